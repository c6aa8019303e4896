#include "forms/database/db_system_pages.h"

#include <QLabel>
#include <cstdio>

#include "forms/database/db_media_pages.h"
#include "forms/input_forms.h"
#include "platform/cp932.h"
#include "project/system_labels.h"
#include "sound/sound_start.h"
#include "toolkit/record_form.h"
#include "toolkit/list_init.h"

DLG_ELEM::DLG_ELEM(const cElem& source, QWidget* parent) : cRecordForm(parent, "属性の種類", source) {
  Table().EditStr(kName, "名称", &m_Work.m_strName, WideLine(1)).Row();
  Table().OkCancel();
}

DLG_DBSYSTEM::DLG_DBSYSTEM() : cSystemPage("システム1") {
  cFormTable& F = Table();
  F.Column();
  F.Group("ゲーム名");
  F.EditStr(NewId(), "ゲーム名", SYSTEM_FIELD(m_strGameName), WideLine(16)).Row();
  F.EndGroup();
  F.Group("ランダム能力UP");
  Range("ランダム能力値成長値（合計）", SYSTEM_FIELD(m_nGrowMin), SYSTEM_FIELD(m_nGrowMax), 0, 999999);
  F.EditVal(NewId(), "＋スカウト力×", SYSTEM_FIELD(m_dGrowScout), 0.0, 100.0, 0.001).Row();
  F.Skip().Check(NewId(), "(+スカウト力×□)で最大値を超えない", SYSTEM_FIELD(m_bGrowCapped)).Span(5).Row();
  Range("ランダムセンス上昇値（合計）", SYSTEM_FIELD(m_nSenseMin), SYSTEM_FIELD(m_nSenseMax), 0, 1000);
  F.EditVal(NewId(), "＋スカウト力×", SYSTEM_FIELD(m_dSenseScout), 0.0, 100.0, 0.001).Row();
  F.Skip().Check(NewId(), "(+スカウト力×□)で最大値を超えない", SYSTEM_FIELD(m_bSenseCapped)).Span(5).Row();
  F.Check(kScout, "スカウト力を有効にする", SYSTEM_FIELD(m_bScout)).Span(6).Row();
  NameCombo(kScoutVal, "スカウト力となるパーティー変数", SYSTEM_FIELD(m_nScoutVal), eSystemNames::kPartyVars);
  F.Span(5).EnableBy(kScout).Row();
  Range("能力値の成長時期", SYSTEM_FIELD(m_nGrowTimeMin), SYSTEM_FIELD(m_nGrowTimeMax), -10, 10);
  F.Row().Skip().Text("☆（早熟）-10 ～ 10（晩成）、0なら一律", 5).Row();
  F.Text("ランダム能力値成長値（合計）を各能力値に分配する際の最小単位", 5);
  F.EditVal(NewId(), "", SYSTEM_FIELD(m_nGrowUnit), 1, 9999).Named("能力値に分配する際の最小単位").Row();
  F.Text("ランダムセンス上昇値（合計）を各カテゴリーのセンスに分配する際の最小単位", 5);
  F.EditVal(NewId(), "", SYSTEM_FIELD(m_nSenseUnit), 1, 9999).Named("センスに分配する際の最小単位").Row();
  F.EndGroup();
  F.Column();
  F.Group("能力値のレート");
  NineStatus(*SYSTEM_FIELD(m_adRate), 0.0, 99.9, 0.1);
  F.EndGroup();
  F.Group("ランダム能力値変化");
  F.Check(kRandomChange, "ランダム能力値変化をする", SYSTEM_FIELD(m_bRandomChange)).Span(2).Row();
  F.EditVal(kChangeValue, "ランダム能力値変化1回の変化値", SYSTEM_FIELD(m_nChangeValue), 1, 9999).EnableBy(kRandomChange).Row();
  F.EditVal(kChangeCount, "ランダム能力値変化を行う回数", SYSTEM_FIELD(m_nChangeCount), 1, 99).EnableBy(kRandomChange).Row();
  F.EndGroup();
  F.EndColumns();
}

void DLG_DBSYSTEM_2::Price(const char* label, int* cost, int* perLevel, int* var) {
  const std::string text = AccessibleText(label);
  cFormTable& F = Table();
  F.EditVal(NewId(), label, cost, 0, 999999);
  F.EditVal(NewId(), "＋キャラのLV×", perLevel, 0, 999999).Named((text + " ＋キャラのLV×").c_str()).Row();
  NameCombo(NewId(), "対象パーティー変数", var, eSystemNames::kPartyVars);
  F.Named((text + " 対象パーティー変数").c_str()).Span(3).Row();
}

DLG_DBSYSTEM_2::DLG_DBSYSTEM_2() : cSystemPage("システム2") {
  cFormTable& F = Table();
  F.Column();
  F.Group("クラスに準ずる敵の能力値の修正(%)");
  NineStatus(*SYSTEM_FIELD(m_anEnemyRate), 0, 999);
  F.EndGroup();
  F.Group("獲得EX");
  F.EditVal(NewId(), "獲得EX = （", SYSTEM_FIELD(m_nExpBase), 0, 1000);
  F.EditVal(NewId(), "＋（敵のLV－味方のLV）×", SYSTEM_FIELD(m_dExpLevel), 0.0, 100.0, 0.1).Row();
  F.EditVal(NewId(), "） × （１＋難易度×", SYSTEM_FIELD(m_dExpDifficulty), -100.0, 100.0, 0.1);
  F.Text("）").Row();
  F.EditVal(NewId(), "さらに敵のトドメを刺したら、獲得EX×", SYSTEM_FIELD(m_dExpKill), 0.0, 100.0, 0.1).Row();
  Range("獲得EXの下限", SYSTEM_FIELD(m_nExpMin), SYSTEM_FIELD(m_nExpMax), 0, 9999, "上限");
  F.Row();
  F.Check(NewId(), "敵を倒したら再行動できる", SYSTEM_FIELD(m_bActAgain)).Span(4).Row();
  F.Check(NewId(), "全ての味方の行動が終わったら自動的にターンを終了する", SYSTEM_FIELD(m_bAutoTurnEnd)).Span(4).Row();
  F.EndGroup();
  F.Column();
  F.Group("所持金");
  NameCombo(NewId(), "メインの所持金となるパーティー変数", SYSTEM_FIELD(m_nMoneyVal), eSystemNames::kPartyVars);
  F.Span(3).Row();
  F.EndGroup();
  F.Group("雇用");
  Price("味方の雇用費", SYSTEM_FIELD(m_nHireCost), SYSTEM_FIELD(m_nHireCostLv), SYSTEM_FIELD(m_nHireVal));
  F.EndGroup();
  F.Group("復活");
  F.Check(NewId(), "味方が死んでもステージクリア後に復活", SYSTEM_FIELD(m_bReviveAfterStage)).Span(4).Row();
  Price("味方の復活費", SYSTEM_FIELD(m_nReviveCost), SYSTEM_FIELD(m_nReviveCostLv), SYSTEM_FIELD(m_nReviveVal));
  F.EndGroup();
  F.Group("放出");
  Price("放出時の売値", SYSTEM_FIELD(m_nReleasePrice), SYSTEM_FIELD(m_nReleasePriceLv), SYSTEM_FIELD(m_nReleaseVal));
  F.EndGroup();
  F.Group("スキル");
  F.EditVal(NewId(), "スキルの売値修正(%)", SYSTEM_FIELD(m_nSkillSellRate), 0, 999).Row();
  F.EndGroup();
  F.EndColumns();
}

DLG_DBSYSTEM_3::DLG_DBSYSTEM_3() : cSystemPage("システム3") {
  cFormTable& F = Table();
  const auto timeMode = [this] { return Value(kTurnMode) == 0; };
  const auto simpleMode = [this] { return Value(kTurnMode) != 0; };
  F.Column();
  F.Group("戦闘モード");
  F.Combo(NewId(), "戦闘モード", SYSTEM_FIELD(m_nBattleMode), kBattleModeLabels).Span(3).Row();
  F.Combo(kTurnMode, "ターン切替モード", SYSTEM_FIELD(m_nTurnMode), kTurnModeLabels).Span(3).Row();
  F.EndGroup();
  F.Group("タイム");
  F.EditVal(kBattleTime, "戦闘時間", SYSTEM_FIELD(m_nBattleTime), 0, 100).EnableIf(timeMode).Row();
  F.Skip().Text("突撃側").Text("迎撃側").Row();
  TwoSides("初期行動値", *SYSTEM_FIELD(m_anInitAction), 0, 9999, kInitAction, timeMode);
  TwoSides("敏捷の修正(%)", *SYSTEM_FIELD(m_anSpeedRate), 0, 9999, kSpeedRate, timeMode);
  F.EditVal(kSpeedBase, "敏捷の基本値", SYSTEM_FIELD(m_nSpeedBase), 0, 999999).EnableIf(timeMode).Row();
  F.Check(kWaitAttacker, "突撃側が1回行動するまで、迎撃側の行動値を加算しない", SYSTEM_FIELD(m_bWaitAttacker))
      .Span(3)
      .EnableIf(timeMode)
      .Row();
  F.Text("行動値が1000に達すると1回行動できます。", 3).Row();
  F.EndGroup();
  F.Group("シンプル");
  F.Combo(kOrderType, "行動順タイプ", SYSTEM_FIELD(m_nOrderType), kOrderTypeLabels).Span(2).EnableIf(simpleMode).Row();
  F.Skip().Text("突撃側").Text("迎撃側").Row();
  TwoSides("基本行動回数", *SYSTEM_FIELD(m_anBaseActions), 0, 99, kBaseActions, simpleMode);
  TwoSides("敏捷差", *SYSTEM_FIELD(m_anSpeedGap), 0, 9999, kSpeedGap, simpleMode);
  TwoSides("行動回数の上限", *SYSTEM_FIELD(m_anMaxActions), 0, 99, kMaxActions, simpleMode);
  F.EndGroup();
  F.Group("行動回数（参考用）");
  Use(&g_System.m_adActions, "m_adActions");
  F.Text("突撃側").Label(kActions).Text("迎撃側").Label(kActions2).Row();
  F.Check(NewId(), "行動順情報を表示", SYSTEM_FIELD(m_bShowOrder)).Span(4).Row();
  F.EndGroup();
  F.Column();
  F.Group("命中・必殺・ダメージ");
  F.EditVal(NewId(), "命中率(%)　＝　基本命中率＋（技能－相手の反応）×", SYSTEM_FIELD(m_dHitSkill), 0.0, 99.9, 0.1).Row();
  F.EditVal(NewId(), "必殺率(%)　＝　基本必殺率＋（技能－相手の反応）×", SYSTEM_FIELD(m_dCritSkill), 0.0, 99.9, 0.1).Row();
  F.EditVal(NewId(), "ダメージ　＝　スキルの威力＋攻撃（魔力）×", SYSTEM_FIELD(m_dDamageAttack), 0.0, 99.9, 0.1).Row();
  F.EditVal(NewId(), "－相手の守備（抵抗）×", SYSTEM_FIELD(m_dDamageDefense), 0.0, 99.9, 0.1).Row();
  F.EndGroup();
  F.Group("修正");
  Range("ダメージの修正(%)", SYSTEM_FIELD(m_nDamageRateMin), SYSTEM_FIELD(m_nDamageRateMax), 0, 999);
  F.Row();
  F.EditVal(NewId(), "戦闘中のHP回復値の修正(%)", SYSTEM_FIELD(m_nHealRate), 0, 999).Row();
  F.Check(NewId(), "スキルが命中しなければSPや使用回数は消費しない", SYSTEM_FIELD(m_bMissKeepsCost)).Span(4).Row();
  F.Check(NewId(), "「ダメージ軽減」スキル使用中は攻撃を回避しない", SYSTEM_FIELD(m_bGuardNoEvade)).Span(4).Row();
  F.EndGroup();
  F.Group("難易度");
  NameCombo(NewId(), "難易度値になるパーティー変数", SYSTEM_FIELD(m_nDifficultyVal), eSystemNames::kPartyVars);
  F.Span(5).Row();
  F.EditVal(NewId(), "初期値", SYSTEM_FIELD(m_nDifficulty), 0, 10).Row();
  F.Text("敵の能力上昇値", 2);
  F.Check(NewId(), "％で指定↓", SYSTEM_FIELD(m_bEnemyUpPercent)).Span(2).Row();
  NineStatus(*SYSTEM_FIELD(m_anEnemyUp), 0, 999999);
  F.EndGroup();
  F.EndColumns();
}

// The reference values of the settings on the screen, by the formula of the mode shown.
void DLG_DBSYSTEM_3::OnUpdateEnable() {
  m_Scratch.m_nTurnMode = Value(kTurnMode);
  m_Scratch.m_nBattleTime = Value(kBattleTime);
  m_Scratch.m_bWaitAttacker = Value(kWaitAttacker);
  for (int side = 0; side < 2; ++side) {
    m_Scratch.m_anInitAction[side] = Value(kInitAction + side);
    m_Scratch.m_anSpeedRate[side] = Value(kSpeedRate + side);
    m_Scratch.m_anBaseActions[side] = Value(kBaseActions + side);
  }
  double actions[2];
  ComputeReferenceActions(m_Scratch, actions);
  for (int side = 0; side < 2; ++side) {
    char text[32];
    std::snprintf(text, sizeof text, "%.1f", actions[side]);
    if (auto* label = GetCtrl<CTRL_LABEL_CLASS>(kActions + side)) label->SetText(text);
  }
}

DLG_DBSYSTEM_4::DLG_DBSYSTEM_4() : cSystemPage("システム4") {
  cFormTable& F = Table();
  cListInit<cElem> elem =
      NumberedRows<cElem>(&m_vecElem, 1, 99, [](std::string& out, int, const cElem& e) { out = e.m_strName; });
  elem.pSource = Use(&g_System.m_vecElem, "m_vecElem");
  elem.nFirstRow = 1;

  F.Column();
  F.Group("属性");
  F.List(kElemList, "", m_Elem, elem, kListFirstFixed, 8).Span(4).Row();
  F.Button(kElemNew, "新規").Button(kElemEdit, "編集").Button(kElemClear, "クリア").Button(kIdListCount, "データ数").Row();
  F.EndGroup();
  F.Group("グラフィック");
  NameCombo(NewId(), "編成メニュー", SYSTEM_FIELD(m_nPartyBack), eSystemNames::kBacks);
  F.Span(3).Row();
  F.Combo(kFont, "フォント", SYSTEM_FIELD(m_nFont), kSystemFontFaces).Span(3).KeepWithoutRow().Row();
  F.Picture(kFontSample, "フォントの見本", kSampleW, kSampleH).Span(4).Row();
  F.Check(NewId(), "文字間を均一にする　※非推奨", SYSTEM_FIELD(m_bEvenPitch)).Span(4).Row();
  F.Text("透過色(R,G,B)");
  F.EditVal<std::uint8_t>(NewId(), "", SYSTEM_FIELD(m_byKeyFirst), 0, 255).Named("透過色 R");
  F.EditVal<std::uint8_t>(NewId(), "", SYSTEM_FIELD(m_byKeySecond), 0, 255).Named("透過色 G");
  F.EditVal<std::uint8_t>(NewId(), "", SYSTEM_FIELD(m_byKeyThird), 0, 255).Named("透過色 B").Row();
  F.EndGroup();
  F.Group("BGM");
  Use(&g_System.m_vecBgmLoop, "m_vecBgmLoop");
  // The stage's row stands last and hidden: the game does not use it, and the record
  // keeps its value.
  for (int row : {kBgmTitle, kBgmWorldMap, kBgmBattle, kBgmOption, kBgmStage}) {
    const unsigned id = kBgm + 3 * static_cast<unsigned>(row);
    const std::string label = kSystemBgmLabels[row];
    NameCombo(id, row == kBgmStage ? "ステージ(※非表示)" : label.c_str(), Use(&g_System.m_vecBgm[row], "m_vecBgm", row),
              eSystemNames::kMusic);
    F.Button(id + 1, "再生").Named((label + " 再生").c_str());
    F.Check(id + 2, "ループ再生", &g_System.m_vecBgmLoop[row]).Named((label + " ループ再生").c_str()).Row();
  }
  F.EndGroup();
  F.Column();
  F.Group("効果音");
  for (int row = 0; row < kSystemSoundCount; ++row) {
    const unsigned id = kSound + 3 * static_cast<unsigned>(row);
    const std::string label = kSystemSoundLabels[row];
    F.EditStr(id, label.c_str(), Use(&g_System.m_vecSoundFile[row].m_strText, "m_vecSoundFile", row),
              {.nLimit = 261, .nLineLen = 261, .nMaxLines = 1});
    F.Button(id + 1, "参照").Named((label + " 参照").c_str());
    F.Button(id + 2, "再生").Named((label + " 再生").c_str()).Row();
  }
  F.EndGroup();
  F.EndColumns();
}

void DLG_DBSYSTEM_4::OnReady() {
  cSystemPage::OnReady();
  for (unsigned id = kBgm + 3 * kBgmStage; id < kBgm + 3 * kBgmStage + 3; ++id)
    if (QWidget* w = GetDlgItem(id)) w->hide();
  // The label of the hidden row goes with it.
  if (QWidget* combo = GetDlgItem(kBgm + 3 * kBgmStage))
    for (QObject* o : combo->parentWidget()->children())
      if (auto* label = qobject_cast<QLabel*>(o); label != nullptr && label->buddy() == combo) label->hide();
  DrawFontSample();
}

// The face chosen, as the game would write with it.
void DLG_DBSYSTEM_4::DrawFontSample() {
  auto* sample = GetCtrl<CTRL_PICTURE_CLASS>(kFontSample);
  if (sample == nullptr) return;
  const int font = Value(kFont);
  cSurface& s = sample->m_Surface;
  s.Fill(0xFFFFFF);
  const char* face = font >= 0 && font < kSystemFontTableSize ? kSystemFontFaces[font] : "";
  s.SetFont(Utf8ToCp932Lossy(face), 16, 0);
  s.Text(0, 1, CP932_TEXT("abc ABC あいう 剣魔龍"), 0, 1);
  sample->Redraw();
}

void DLG_DBSYSTEM_4::EditElem() {
  const int row = m_Elem.GetSel();
  if (!m_Elem.IsReal(row)) return;
  if (EditRecord<DLG_ELEM>(m_vecElem[row + m_Elem.m_nFirstRow], m_hWnd.data()) == 1) m_Elem.Redraw();
}

void DLG_DBSYSTEM_4::OnFormCommand(unsigned id, unsigned code) {
  if (id == kFont) DrawFontSample();
  if (id == kElemNew) m_Elem.Append();
  if (id == kElemClear) m_Elem.Clear();
  if (id == kElemEdit || (id == kElemList && code == kNotifyDblClk)) EditElem();
  if (id == kIdListCount) {
    int count = m_Elem.RowCount();
    if (InputValue(this, nullptr, &count, 1, 99, CP932_TEXT("データ数"))) m_Elem.Resize(count);
  }
  if (id >= kSound && id < kSound + 3 * kSystemSoundCount) {
    const unsigned path = kSound + (id - kSound) / 3 * 3;
    auto* edit = GetCtrl<CTRL_EDITSTR_CLASS>(path);
    cEditBox box;
    if (edit != nullptr) ReadEditBox(edit->m_hWnd, box);
    if ((id - kSound) % 3 == 1 && BrowseMediaFile(*this, kSoundPage, box.text) && edit != nullptr) edit->SetText(box.text);
    if ((id - kSound) % 3 == 2) PlayMediaFile(kSoundPage, box.text, 100);
  }
  if (id >= kBgm && id < kBgm + 3 * kSystemBgmCount && (id - kBgm) % 3 == 1) {
    const int music = Value(id - 1);
    if (music > 0 && music < g_Database.m_vecBgm.Count())
      PlayMediaFile(kBgmPage, g_Database.m_vecBgm[music].m_strPath, g_Database.m_vecBgm[music].m_nVolume);
  }
}
