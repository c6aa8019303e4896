#include "forms/database/db_skill_page.h"

#include <algorithm>

#include "database/skill_labels.h"
#include "forms/database/chara_page.h"
#include "forms/database/skill_csv_commands.h"
#include "forms/graphic_chooser.h"
#include "platform/cp932.h"
#include "project/project_globals.h"
#include "project/sheet_tint.h"
#include "project/system_labels.h"
#include "toolkit/wnd_class.h"

namespace {

using D = DLG_DBSKILL;

constexpr std::pair<unsigned, eSkillControl> kGoverned[] = {
    {D::kResource, kCtlResourceType}, {D::kCostSP, kCtlCostSP}, {D::kUseLimit, kCtlUseLimit},
    {D::kUnlimited, kCtlUnlimited}, {D::kWeapon, kCtlWeaponType}, {D::kUseBattleSkill, kCtlUseBattleSkill},
    {D::kUseBattleStock, kCtlUseBattleStock}, {D::kUseBattleQuick, kCtlUseBattleQuick},
    {D::kUseMapSkill, kCtlUseMapSkill}, {D::kUseMapStock, kCtlUseMapStock}, {D::kEffectValue, kCtlEffectValue},
    {D::kNoStatus, kCtlNoStatusEffect}, {D::kDamageRate, kCtlDamageRate}, {D::kCompati, kCtlCompatiType},
    {D::kCompatiOfWeapon, kCtlCompatiOfWeapon}, {D::kElem, kCtlElem}, {D::kElemOfWeapon, kCtlElemOfWeapon},
    {D::kElemValue, kCtlElemValue}, {D::kHitRate, kCtlHitRate}, {D::kHitOfWeapon, kCtlHitOfWeapon},
    {D::kCritical, kCtlCriticalRate}, {D::kCriticalAdd, kCtlCriticalAddWeapon},
    {D::kSubA + 0, kCtlSubEffectA}, {D::kSubA + 1, kCtlSubEffectA}, {D::kSubA + 2, kCtlSubEffectA},
    {D::kSubA + 3, kCtlSubEffectA}, {D::kSubA + 4, kCtlSubEffectA}, {D::kSubA + 5, kCtlSubEffectA},
    {D::kSubA + 6, kCtlSubEffectA}, {D::kSubA + 7, kCtlSubEffectA}, {D::kSubA + 8, kCtlSubEffectA},
    {D::kSubB + 0, kCtlSubEffectB}, {D::kSubB + 1, kCtlSubEffectB}, {D::kSubB + 2, kCtlSubEffectB},
    {D::kSubB + 3, kCtlSubEffectB}, {D::kSubB + 4, kCtlSubEffectB}, {D::kSubB + 5, kCtlSubEffectB},
    {D::kSubB + 6, kCtlSubEffectB}, {D::kSubB + 7, kCtlSubEffectB}, {D::kSubB + 8, kCtlSubEffectB},
    {D::kSubAPercent, kCtlSubEffectAPercent}, {D::kSubBPercent, kCtlSubEffectBPercent},
    {D::kVanish, kCtlVanishFromStock}, {D::kEffectOfWeapon, kCtlEffectOfWeapon}, {D::kEffect, kCtlEffectGroup},
    {D::kEffectList, kCtlEffectGroup}, {D::kEffectAnim, kCtlEffectGroup}, {D::kCharaAnim, kCtlEffectGroup},
    {D::kScale, kCtlEffectGroup}, {D::kAlpha, kCtlEffectGroup}, {D::kHue, kCtlEffectGroup},
    {D::kSat, kCtlEffectGroup}, {D::kVal, kCtlEffectGroup}, {D::kSound, kCtlEffectGroup},
    {D::kSortNumber, kCtlSortNumber}, {D::kTarget, kCtlTarget},
};

// The controls whose change applies the kind table to the row: the kind and the flags
// and choices its cells read.
constexpr unsigned kRuleInputs[] = {D::kKind, D::kResource, D::kUnlimited, D::kCompatiOfWeapon, D::kElemOfWeapon,
                                    D::kHitOfWeapon, D::kEffectOfWeapon, D::kSortOn};

// What the kind table may write: the target and the flags it clears.
constexpr unsigned kRuleWritten[] = {D::kTarget, D::kUseBattleSkill, D::kUseBattleStock, D::kUseBattleQuick,
                                     D::kUseMapSkill, D::kUseMapStock, D::kCompatiOfWeapon, D::kElemOfWeapon,
                                     D::kHitOfWeapon, D::kCriticalAdd, D::kSubAPercent, D::kEffectOfWeapon};

// "%s %s" of each row's number and name from row `first`, after `head` (CP932) when given.
template <class Row>
void NamesFrom(VECTOR_CLASS<std::string>& out, const VECTOR_CLASS<Row>& table, int first, const std::string& head = {}) {
  NumberedNames(out, table, first);
  if (!head.empty()) out.insert(out.begin(), head);
}

}  // namespace

std::span<const std::pair<unsigned, eSkillControl>> DLG_DBSKILL::Governed() { return kGoverned; }

DLG_DBSKILL::DLG_DBSKILL(cSkillSheetList list)
    : cTablePage(*list.pSkills, "スキル", {1, 1, 999}), m_Owner(std::move(list)) {
  for (const cCateg& c : *m_Owner.pCategs) m_vecCategNames.push_back(c.m_strName);
  NamesFrom(m_vecClassNames, g_vecClass, 1, CP932_TEXT("全クラス習得可"));
  NamesFrom(m_vecCompatiNames, g_Database.m_vecCompatiType, 0);
  NamesFrom(m_vecElemNames, g_System.m_vecElem, 0);
  NamesFrom(m_vecCharaAnimNames, g_Database.m_vecCharaAnimPat, 1);
  NamesFrom(m_vecEffectAnimNames, g_Database.m_vecEffectAnimPat, 1);
  NamesFrom(m_vecSoundNames, g_Database.m_vecSound, 1);

  // Four columns that a screen of 1024 by 768 shows whole: the list over the
  // sub-effects, which are as wide as its buttons; the longest labels of the narrow
  // groups stand above their controls.
  cSkill& E = m_Edit;
  cFormTable& F = Table();
  F.Column();
  MainList(kList, "スキル", [](const cSkill& s) { return s.m_strName; }, 8);
  F.Button(kCsvSave, "CSVファイルに保存").Span(3).Row();
  F.Button(kCsvRead, "CSVファイルの読込").Span(3).Row();

  F.Group("サブ効果");
  F.Skip().Text("サブ効果A").Text("サブ効果B").Row();
  F.Skip();
  F.Check(kSubAPercent, "％で指定↓", &E.m_bSubEffectAPercent);
  F.Check(kSubBPercent, "％で指定↓", &E.m_bSubEffectBPercent).Row();
  for (int s = 0; s < kStatusCount; ++s) {
    F.EditVal(kSubA + s, kSystemStatusLabels[s], &E.m_anSubEffectA[s], -999999, 999999);
    F.EditVal(kSubB + s, "", &E.m_anSubEffectB[s], -999999, 999999).Named(kSystemStatusLabels[s]).Row();
  }
  F.Text("サブ効果A：☆スキルの対象への追加効果\n（武器防具なら自分）", 3).Row();
  F.Text("サブ効果B：☆オート戦闘で「装備」時のみ上昇", 3).Row();
  F.EndGroup();
  F.Column();
  F.Group("基本");
  F.EditStr(kName, "スキル名", &E.m_strName, WideLine(8));
  F.Check(kNotUsed, "未使用", &E.m_bNotUsed).Row();
  F.EditStr(kDesc, "説明", &E.m_strDesc, WideLine(38)).Span(2).Row();
  F.Combo(kKind, "種類", &E.m_nKind, kSkillKindLabels).Span(2).Row();
  F.Combo(kTarget, "対象", &E.m_nTarget, kSkillTargetLabels).Span(2).Row();
  F.Combo(kWeapon, "対応する武器スキル", &E.m_nWeaponType, kSkillWeaponLabels).LabelAbove().Span(3).Row();
  F.Combo(kCateg, "カテゴリー", &E.m_nCateg, &m_vecCategNames).KeepWithoutRow().Span(2).Row();
  F.EndGroup();
  F.Group("エフェクト");
  F.Check(kEffectOfWeapon, "武器スキルのエフェクトと同じ", &E.m_bEffectOfWeapon).Span(3).Row();
  F.EditVal(kEffect, "エフェクト", &E.m_nEffect, 1, 127, 1, kEffectSpin);
  F.Button(kEffectList, "一覧").Row();
  F.Combo(kEffectAnim, "エフェクトアニメ", &E.m_nEffectAnim, &m_vecEffectAnimNames, nullptr, 1).KeepWithoutRow().LabelAbove().Span(2).Row();
  F.Combo(kCharaAnim, "キャラアニメ", &E.m_nCharaAnim, &m_vecCharaAnimNames, nullptr, 1).KeepWithoutRow().Span(2).Row();
  F.Combo(kSound, "効果音", &E.m_nSound, &m_vecSoundNames, nullptr, 1).KeepWithoutRow().Span(2).Row();
  F.EditVal(kScale, "拡大率(%)", &E.m_nScale, 1, 900, 1, kScaleSpin);
  F.Picture(kPreview, "エフェクト", kPreviewSide, kPreviewSide).Row();
  F.EditVal<std::uint8_t>(kAlpha, "透明度(255で不透明)", &E.m_byAlpha, 0, 255, 1, kAlphaSpin).LabelAbove().Span(2).Row();
  F.EditVal<std::int16_t>(kHue, "色相", &E.m_sHue, -359, 359, 1, kHueSpin);
  F.Text("☆0が原色").Row();
  F.EditVal<std::int16_t>(kSat, "彩度", &E.m_sSaturation, -255, 255, 1, kSatSpin);
  F.Text("☆0を推奨").Row();
  F.EditVal<std::int16_t>(kVal, "明度", &E.m_sValue, -255, 255, 1, kValSpin);
  F.Text("☆0を推奨").Row();
  F.EndGroup();
  F.Column();
  F.Group("効果");
  F.EditVal(kEffectValue, "効果値", &E.m_nEffectValue, -999999, 999999).Row();
  F.EditVal(kDamageRate, "ダメージ修正(%)", &E.m_nDamageRate, 0, 999, 1, kDamageRateSpin).Row();
  F.Check(kNoStatus, "キャラの能力値が効果に影響しない", &E.m_bNoStatusEffect).Span(2).Row();
  F.Combo(kCompati, "相性タイプ", &E.m_nCompatiType, &m_vecCompatiNames).KeepWithoutRow().Row();
  F.Check(kCompatiOfWeapon, "武器スキルの相性タイプと同じ", &E.m_bCompatiOfWeapon).Span(2).Row();
  F.Combo(kElem, "属性", &E.m_nElem, &m_vecElemNames).KeepWithoutRow().Row();
  F.Check(kElemOfWeapon, "武器スキルの属性と同じ", &E.m_bElemOfWeapon).Span(2).Row();
  F.EditVal(kElemValue, "属性値", &E.m_nElemValue, -999, 999).Row();
  F.EditVal(kHitRate, "命中率(%)", &E.m_nHitRate, 0, 999, 1, kHitRateSpin).Row();
  F.Check(kHitOfWeapon, "武器スキルの命中率と同じ", &E.m_bHitOfWeapon).Span(2).Row();
  F.EditVal(kCritical, "必殺率(%)", &E.m_nCriticalRate, 0, 999, 1, kCriticalSpin).Row();
  F.Check(kCriticalAdd, "武器スキルの必殺率を加える", &E.m_bCriticalAddWeapon).Span(2).Row();
  F.EndGroup();

  F.Group("消費");
  F.Combo(kResource, "リソースタイプ", &E.m_nResourceType, kSkillResourceLabels).Span(2).Row();
  F.EditVal(kCostSP, "消費SP", &E.m_nCostSP, 0, 999, 1, kCostSPSpin).Row();
  F.EditVal(kUseLimit, "回数制限", &E.m_nUseLimit, 0, 99, 1, kUseLimitSpin);
  F.Check(kUnlimited, "無制限", &E.m_bUnlimited).Row();
  F.EndGroup();
  F.Group("習得条件");
  F.EditVal(kNeedSense, "必要センス(習得条件)", &E.m_nNeedSense, 0, 99, 1, kNeedSenseSpin).LabelAbove().Span(3).Row();
  F.Combo(kLearnClass, "習得クラス", &E.m_nLearnClass, &m_vecClassNames).KeepWithoutRow().Span(2).Row();
  F.Check(kNoForget, "忘れる不可", &E.m_bNoForget).Span(2).Row();
  F.EndGroup();
  F.Column();
  F.Group("習得");
  F.EditVal(kLearnRate, "習得確率(%)", &E.m_nLearnRate, 0, 100, 1, kLearnRateSpin).Row();
  F.Text("※センスが0なら0％", 4).Row();
  F.EditVal(kLearnRateSense, "＋センス×", &E.m_dLearnRateSense, 0.0, 100.0, 0.1).Row();
  F.EditVal(kLearnLvMin, "習得LV", &E.m_nLearnLvMin, 0, 100);
  F.EditVal(kLearnLvMax, "～", &E.m_nLearnLvMax, 0, 100).Row();
  F.EditVal(kLearnLvSense, "－センス×", &E.m_dLearnLvSense, 0.0, 100.0, 0.1).Row();
  F.EditVal(kRankMin, "ランク", &E.m_nRankMin, 0, 999);
  F.EditVal(kRankMax, "～", &E.m_nRankMax, 0, 999).Row();
  F.EditVal(kRarity, "レアリティ", &E.m_nRarity, 0, 100).Row();
  F.EndGroup();

  F.Group("使用");
  F.Check(kUseMapSkill, "マップパートの「スキル」で使用可", &E.m_bUseMapSkill).Row();
  F.Check(kUseMapStock, "マップパートの「ストック」で使用可", &E.m_bUseMapStock).Row();
  F.Check(kUseBattleSkill, "戦闘パートの「スキル」で使用可", &E.m_bUseBattleSkill).Row();
  F.Check(kUseBattleQuick, "戦闘パートの「クイック」で使用可", &E.m_bUseBattleQuick).Row();
  F.Check(kUseBattleStock, "戦闘パートの「ストック」で使用可", &E.m_bUseBattleStock).Row();
  F.EndGroup();
  F.Group("ショップ・ストック");
  F.EditVal(kPrice, "値段", &E.m_nPrice, 0, 999999, 1, kPriceSpin).Row();
  F.Text("☆「0」なら売却不可", 2).Row();
  F.EditVal(kStockMax, "ストックの最大所持数", &E.m_nStockMax, 1, 99, 1, kStockMaxSpin).Span(2).Row();
  F.Check(kVanish, "ストックから使用すると消滅", &E.m_bVanishFromStock).Span(2).Row();
  F.Check(kSortOn, "ソート番号（店用）", &E.m_bSortNumber);
  F.EditVal(kSortNumber, "", &E.m_dSortNumber, 0.0, 999.99, 0.01).Named("ソート番号（店用）").Row();
  F.EndGroup();
  F.EndColumns();
}

void DLG_DBSKILL::OnReady() {
  cTablePage::OnReady();
  m_vecGoverned.clear();
  for (const auto& [id, row] : kGoverned)
    if (CTRL_CLASS* c = GetCtrl(id)) m_vecGoverned.emplace_back(c, row);
  m_vecShownState.assign(m_vecGoverned.size(), -1);
  Enable(RuleStates());
  UpdatePreview();
  ReloadPlayer();
  m_Animation.Show();
}

void DLG_DBSKILL::OnDestroy() { m_Animation.Hide(); }

SKILL_CONTROL_STATES DLG_DBSKILL::RuleStates() const {
  cSkill probe = m_Edit;  // the row as it stands; only a change of the user's applies the clearing
  return ApplySkillKindRules(probe);
}

void DLG_DBSKILL::Enable(const SKILL_CONTROL_STATES& states) {
  for (std::size_t i = 0; i < m_vecGoverned.size(); ++i) {
    const auto& [ctrl, row] = m_vecGoverned[i];
    const signed char on = states[row] ? 1 : 0;
    if (m_vecShownState[i] == on) continue;
    m_vecShownState[i] = on;
    ctrl->Enable(on != 0);
  }
}

// A change has reached the row in edit. A change of the kind or of a flag the kind
// table reads applies the table to the row, and what it wrote (the target, cleared
// flags) goes back to the screen; any other change leaves the row's flags as they are.
void DLG_DBSKILL::ApplyControls() {
  cTablePage::ApplyControls();
  if (std::find(std::begin(kRuleInputs), std::end(kRuleInputs), m_nCommand) == std::end(kRuleInputs)) {
    Enable(RuleStates());
    return;
  }
  const SKILL_CONTROL_STATES states = ApplySkillKindRules(m_Edit);
  for (unsigned id : kRuleWritten)
    if (CTRL_CLASS* c = GetCtrl(id)) {
      m_bUpdating = 1;
      c->Update();
      m_bUpdating = 0;
    }
  Enable(states);
}

// After every command, with the row on the screen.
void DLG_DBSKILL::OnUpdateEnable() {
  if (m_vecGoverned.empty()) return;  // not bound yet
  Enable(RuleStates());
  UpdatePreview();
  ReloadPlayer();
}

void DLG_DBSKILL::UpdatePreview() {
  const std::array<int, 4> key{Value(kEffect), Value(kHue), Value(kSat), Value(kVal)};
  if (key == m_aPreviewKey) return;
  m_aPreviewKey = key;
  TintEffect(key[0], key[1], key[2], key[3]);
  m_nShownFrame = -1;
}

void DLG_DBSKILL::ReloadPlayer() {
  VECTOR_CLASS<ANIM_PATTERN> patterns(1);
  const int pattern = Value(kEffectAnim);
  const VECTOR_CLASS<cEffectAnimPat>& table = g_Database.m_vecEffectAnimPat;
  if (pattern > 0 && pattern < table.Count()) patterns[0] = AnimPattern(table[pattern].m_vecAnim);
  g_AnimPlayer.Reset(patterns);
  DrawFrame(g_AnimPlayer.Current());  // drawn again only where the first frame differs
}

void DLG_DBSKILL::DrawFrame(int frame) {
  if (frame == m_nShownFrame) return;  // most frames show what the last one did
  auto* picture = GetCtrl<CTRL_PICTURE_CLASS>(kPreview);
  if (picture == nullptr) return;
  m_nShownFrame = frame;
  picture->m_Surface.Fill(0);
  if (frame >= 0)
    picture->m_Surface.Blit(0, 0, kPreviewSide, kPreviewSide, g_aSheet[kEffectTintSheet], frame * kPreviewSide, 0);
  picture->Redraw();
}

void DLG_DBSKILL::CommitToList() {
  CommitPage();
  if (m_Owner.commit) m_Owner.commit();
}

void DLG_DBSKILL::SaveCsv() {
  SaveSkillCsvCommand(m_vecWork, m_Owner.nNumber, m_Owner.strName, [this] { CommitToList(); });
}

void DLG_DBSKILL::ReadCsv() {
  if (!ReadSkillCsvCommand(m_vecWork, m_Owner.nNumber, m_Owner.strName, [this] { CommitToList(); })) return;
  m_List.Redraw();
  const int sel = m_List.GetSel();
  m_List.Select(m_List.IsReal(sel) ? sel : 0, 1);
  UpdateAllExcept(m_List.m_nId);
}

void DLG_DBSKILL::OnFormCommand(unsigned id, unsigned code) {
  m_nCommand = id;
  switch (id) {
    case kCsvSave: SaveCsv(); break;
    case kCsvRead: ReadCsv(); break;
    case kEffectList: {
      int effect = Value(kEffect);
      if (ChooseGraphic(1, &effect, m_hWnd.data()))
        if (auto* edit = GetCtrl<CTRL_EDITVAL_CLASS<int>>(kEffect)) edit->SetValue(effect, true);
      break;
    }
    default: break;
  }
  cTablePage::OnFormCommand(id, code);
}

PROP_DBSKILL::PROP_DBSKILL(cSkillSheetList list) : m_pPage(new DLG_DBSKILL(std::move(list))) {
  AddPage(m_pPage, "スキル");
}

void PROP_DBSKILL::ApplyPages() {
  PROP_CLASS::ApplyPages();
  m_pPage->CommitToList();
}

void PROP_DBSKILL::OnEnd() {
  if (m_onEnd) m_onEnd();
}

PROP_DBSKILL* OpenSkillSheet(QWidget* parent, cSkillSheetList list, std::function<void()> onEnd) {
  auto* sheet = new PROP_DBSKILL(std::move(list));
  sheet->m_onEnd = std::move(onEnd);
  if (!sheet->Create(parent, "スキルの設定")) {
    delete sheet;
    return nullptr;
  }
  return sheet;  // the window registry owns it from here
}
