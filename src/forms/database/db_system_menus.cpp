// The pages of the words of the game: its menus, each command offered or not and
// named, and the terms of its windows and messages, each where its meaning belongs.

#include "forms/database/db_system_pages.h"
#include "platform/cp932.h"
#include "project/system_defaults.h"
#include "project/system_labels.h"

namespace {

// Headings of the menus, by their place in the record.
enum eMenu : int {
  kTitle, kOption, kParty, kScout, kRevive, kRelease, kConfig, kShop, kTraining, kTrainSide, kTrainEntry, kPrepare,
  kAction, kStage, kTest, kBattle,
};
const char* Heading(eMenu menu) { return kSystemMenuLabels[menu]; }

}  // namespace

DLG_DBSYSTEM_5::DLG_DBSYSTEM_5() : cSystemPage("システム5") {
  cFormTable& F = Table();
  F.Column();
  F.Group("キャラのステータス");
  F.Text("表示").Text("名前").Text("上限").Row();
  const VECTOR_CLASS<cParamInfo> defaults = DefaultSystemParams();
  for (int row = 0; row < g_System.m_vecParam.Count(); ++row) {
    cParamInfo& param = *Use(&g_System.m_vecParam[row], "m_vecParam", row);
    const std::string name = row < defaults.Count() ? Cp932ToUtf8Lossy(defaults[row].m_strName) : std::to_string(row);
    F.Check(NewId(), "", &param.m_bShow).Named((name + " 表示").c_str());
    F.EditStr(NewId(), "", &param.m_strName, WideLine(4)).Named((name + " 名前").c_str());
    // Level, experience and movement have their ceilings in the game itself.
    if (row < kSystemStatusCount) F.EditVal(NewId(), "", &param.m_nMax, 1, 999999).Named((name + " 上限").c_str());
    F.Row();
  }
  F.EndGroup();
  MenuGroup(Heading(kOption), SYSTEM_ROWS(m_vecOptionMenu), 8);
  F.Column();
  F.Group("効果の予測");
  F.Check(kPredict, "効果予測ウインドウを表示", SYSTEM_FIELD(m_bPredict)).Span(2).Row();
  // Each part of the forecast is shown while its check is on, under the term beside it.
  for (int row = 0; row < kSystemPredictCount; ++row) {
    const unsigned show = kPredictShow + static_cast<unsigned>(row);
    F.Check(show, kSystemPredictLabels[row], Use(&g_System.m_vecPredict[row], "m_vecPredict", row)).EnableBy(kPredict);
    F.EditStr(kPredictTerm + static_cast<unsigned>(row), "", Use(&g_System.m_vecTerm[row + 1].m_strText, "m_vecTerm", row + 1),
              WideLine(8))
        .Named((std::string(kSystemPredictLabels[row]) + " の表示名").c_str())
        .EnableBy(kPredict)
        .EnableBy(show)
        .Row();
  }
  F.EndGroup();
  F.Group("スキル");
  F.Check(NewId(), "なるべくスキルリストを2つ同時に表示", SYSTEM_FIELD(m_bTwoSkillLists)).Span(2).Row();
  Term(0, "威力");
  Term(5, "ストック");
  Term(6, "リザーブ");
  F.EndGroup();
  F.Group(Heading(kTitle));
  // The image, when shown, supplies the words of the title menu.
  F.Check(kGameModeImage, "文字画像「image\\GameMode.png」を表示", SYSTEM_FIELD(m_bGameModeImage)).Span(2).Row();
  MenuRows(SYSTEM_ROWS(m_vecTitleMenu), 16, kGameModeImage);
  Term(7, "セーブデータ");
  F.EndGroup();
  F.EndColumns();
}

DLG_DBSYSTEM_6::DLG_DBSYSTEM_6() : cSystemPage("システム6") {
  cFormTable& F = Table();
  F.Column();
  F.Text("初期値↓").Row();
  F.EditVal<std::int16_t>(NewId(), "ウィンドウの色", SYSTEM_FIELD(m_shWindowHue), 0, 359).Row();
  F.EditVal<std::int16_t>(NewId(), "ウィンドウの明るさ", SYSTEM_FIELD(m_shWindowLight), -255, 255).Row();
  F.EditVal<std::int16_t>(NewId(), "ウィンドウの透明度", SYSTEM_FIELD(m_shWindowAlpha), -255, 255).Row();
  MenuGroup(Heading(kParty), SYSTEM_ROWS(m_vecPartyMenu), 10);
  MenuGroup(Heading(kRelease), SYSTEM_ROWS(m_vecReleaseMenu), 16);
  F.Column();
  F.Group(Heading(kShop));
  MenuRows(SYSTEM_ROWS(m_vecShopMenu), 10);
  Term(13, "個数の単位");
  Term(21, "所持数の後");
  Term(22, "数の問い");
  Term(23, "在庫");
  F.EndGroup();
  F.Group(Heading(kScout));
  MenuRows(SYSTEM_ROWS(m_vecScoutMenu), 16);
  Term(24, "ランダム");
  F.EndGroup();
  MenuGroup(Heading(kRevive), SYSTEM_ROWS(m_vecReviveMenu), 16);
  Question("「セーブ」", 17, 18);
  F.Column();
  Question("「ゲーム終了」", 19, 20);
  MenuGroup(Heading(kConfig), SYSTEM_ROWS(m_vecConfigMenu), 16);
  F.Group("スキルリストの操作説明");
  Term(8, "リスト切替");
  Term(9, "メインスキルへ");
  Term(10, "リザーブスキルへ");
  Term(11, "キャラ切替");
  Term(12, "位置交換");
  F.EndGroup();
  F.Group("スキル編成におけるエラー");
  Term(14, "復元していない");
  Term(15, "忘れられない");
  Term(16, "ストックが一杯");
  F.EndGroup();
  F.EndColumns();
}

DLG_DBSYSTEM_7::DLG_DBSYSTEM_7() : cSystemPage("システム7") {
  cFormTable& F = Table();
  F.Column();
  MenuGroup(Heading(kTraining), SYSTEM_ROWS(m_vecTrainingMenu), 10);
  MenuGroup(Heading(kTrainSide), SYSTEM_ROWS(m_vecTrainSideMenu), 16);
  MenuGroup(Heading(kTrainEntry), SYSTEM_ROWS(m_vecTrainEntryMenu), 16);
  F.Group("トレーニング戦闘");
  Term(25, "同キャラ対戦");
  Term(26, "勝利数の後");
  Term(27, "勝者の後");
  Term(28, "戦闘終了");
  F.EndGroup();
  F.Column();
  Question("ワールドマップのプレイ確認メニュー", 29, 30);
  F.Group(Heading(kPrepare));
  MenuRows(SYSTEM_ROWS(m_vecPrepareMenu), 10);
  Term(31, "リーダー不在");
  F.EndGroup();
  Question("「攻略開始」", 37, 38);
  Question("「引き返す」", 39, 40);
  F.EndColumns();
}

DLG_DBSYSTEM_8::DLG_DBSYSTEM_8() : cSystemPage("システム8") {
  cFormTable& F = Table();
  F.Column();
  MenuGroup(Heading(kStage), SYSTEM_ROWS(m_vecStageMenu), 16);
  Question("「ターン終了」", 41, 42);
  F.Group("ルール確認");
  Term(32, "ターン数の後");
  Term(33, "勝利条件");
  Term(34, "敗北条件");
  Term(35, "その他");
  Term(36, "ターゲット表示");
  F.EndGroup();
  F.Group("地形情報");
  Term(50, "移動コスト");
  Term(51, "移動不可");
  F.EndGroup();
  F.Column();
  MenuGroup(Heading(kTest), SYSTEM_ROWS(m_vecTestMenu), 16);
  Question("「このステージをリトライ」", 43, 44);
  Question("「このステージをクリア」", 45, 46);
  F.Group("「ターンスキップ」");
  Term(47, "ターン数の問い");
  F.EndGroup();
  Question("「ゲーム終了」", 48, 49);
  F.EndColumns();
}

DLG_DBSYSTEM_9::DLG_DBSYSTEM_9() : cSystemPage("システム9") {
  cFormTable& F = Table();
  F.Column();
  MenuGroup(Heading(kAction), SYSTEM_ROWS(m_vecActionMenu), 4);
  MenuGroup(Heading(kBattle), SYSTEM_ROWS(m_vecBattleMenu), 4);
  F.Group("戦闘メッセージ");
  Term(52, "撃破");
  Term(53, "死亡");
  Term(54, "スキル習得");
  F.EndGroup();
  F.Column();
  F.Group("System.ini");
  F.Skip().Text("識別文字列").Text("デフォルト値").Row();
  for (int row = 0; row < g_System.m_vecIni.Count(); ++row) {
    cIni& ini = *Use(&g_System.m_vecIni[row], "m_vecIni", row);
    const std::string label = row < kSystemIniCount ? kSystemIniLabels[row] : std::to_string(row);
    F.Text(label.c_str());
    F.EditStr(NewId(), "", &ini.m_strKey, {.nLimit = 32, .nLineLen = 32, .nMaxLines = 1})
        .Named((label + " 識別文字列").c_str());
    F.EditVal(NewId(), "", &ini.m_nDefault, 0, 99).Named((label + " デフォルト値").c_str()).Row();
  }
  F.Text("☆System.iniで識別文字列が見つからなかった場合はデフォルト値になります。", 3).Row();
  F.EndGroup();
  F.EndColumns();
}
