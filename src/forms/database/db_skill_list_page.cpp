#include "forms/database/db_skill_list_page.h"

#include <utility>

#include "database/class_rows.h"
#include "forms/database/categ_form.h"
#include "forms/database/chara_page.h"
#include "forms/database/db_skill_page.h"
#include "forms/database/slot_forms.h"
#include "forms/input_forms.h"
#include "platform/cp932.h"
#include "project/project_globals.h"
#include "toolkit/wnd_class.h"
#include "toolkit/list_init.h"

namespace {

constexpr const char* kMenuLabels[DLG_DBSKILLLIST::kMenuCount] = {"覚える", "リザーブ", "装備", "復元",
                                                                 "売る",   "忘れる",   "戻る"};
constexpr int kMaxEntries = 99;  // categories and slots of a list

template <class T>
cListInit<T> EntryList(VECTOR_CLASS<T>* rows, std::function<void(std::string&, int, const T&)> text) {
  return NumberedRows<T>(rows, 1, kMaxEntries, std::move(text));
}

// Entry `i` of a vector field, or `blank` where the vector is shorter.
template <class V, class T, class Get>
T EntryOr(const VECTOR_CLASS<V>& v, int i, T blank, Get get) {
  return i < v.Count() ? get(v[i]) : blank;
}

// Entry `i` takes `value`; a vector too short grows to hold it only for a value that
// is not blank, so that showing a cleared row does not fill it.
template <class V, class T, class Set>
void GiveEntry(VECTOR_CLASS<V>& v, int i, const T& value, const T& blank, Set set) {
  if (i >= v.Count()) {
    if (value == blank) return;
    v.resize(static_cast<std::size_t>(i) + 1);
  }
  set(v[i], value);
}

// A list of the row's entries and the four buttons under it.
struct cEntryIds {
  unsigned list, add, edit, clear, count;
};

void EntryButtons(cFormTable& F, const cEntryIds& ids, unsigned slotType = 0) {
  const std::pair<unsigned, const char*> buttons[] = {
      {ids.add, "新規"}, {ids.edit, "編集"}, {ids.clear, "クリア"}, {ids.count, "データ数"}};
  for (int b = 0; b < 4; ++b) {  // two to a row, to keep the column narrow
    F.Button(buttons[b].first, buttons[b].second);
    if (slotType != 0) F.EnableWhen(slotType, kSlotLimited);
    if (b % 2 == 1) F.Row();
  }
}

// The command of such a list: "新規" appends, "クリア" clears the selected entries,
// "データ数" asks for the count, "編集" or a double click runs `edit` on the selected
// entry. True when the entries changed.
template <class T, class Edit>
bool EntryCommand(DLG_CLASS& form, CTRL_LIST_CLASS<T>& list, const cEntryIds& ids, unsigned id, unsigned code,
                  Edit edit) {
  if (id == ids.add) return list.Append() != 0;
  if (id == ids.clear) return list.Clear() != 0;
  if (id == ids.count) {
    int count = list.RowCount();
    return InputValue(&form, nullptr, &count, 1, kMaxEntries, CP932_TEXT("データ数")) && list.Resize(count);
  }
  if (id != ids.edit && (id != ids.list || code != kNotifyDblClk)) return false;
  const int row = list.GetSel();
  return list.IsReal(row) && edit((*list.m_pWork)[row]) == 1;
}

}  // namespace

DLG_DBSKILLLIST::DLG_DBSKILLLIST() : cTablePage(g_vecSkillList, "スキル", {0, 1, 16}) {
  cSkillList& E = m_Edit;
  NumberedNames(m_vecMoneyNames, g_Database.m_vecPtVal, 1);
  cFormTable& F = Table();
  F.Column();
  MainList(kList, "スキルグループ", [](const cSkillList& l) { return l.m_strName; }, 5);
  F.Button(kEditSkills, "このグループの\nスキルを編集").Span(3).Row();
  F.Text("※スキル編集後はデータベース全体を\n保存しないと編集したスキルが\n保存されません", 3).Row();
  F.List(kCategs, "カテゴリー", m_Categs,
         EntryList<cCateg>(&E.m_vecCateg, [](std::string& out, int, const cCateg& c) { out = c.m_strName; }),
         kListSecondFixed, 4)
      .LabelAbove()
      .Span(3)
      .Row();
  EntryButtons(F, {kCategs, kCategNew, kCategEdit, kCategClear, kCategCount});
  // The confirmations: the check that asks, where there is one, and its two answers.
  struct cConfirm {
    const char* title;
    unsigned check;
    unsigned text;
    int* flag;
    std::array<std::string, kConfirmCount>* texts;
  };
  const cConfirm confirms[] = {
      {"「覚える」", kConfirmLearn, kLearnText, &E.m_bConfirmLearn, &m_Shown.aLearn},
      {"「売る」", 0, kSellText, nullptr, &m_Shown.aSell},
      {"「忘れる」", kConfirmForget, kForgetText, &E.m_bConfirmForget, &m_Shown.aForget},
  };
  const char* checkLabels[] = {"「覚える」ときに確認する", "", "「忘れる」ときに確認する"};
  for (int c = 0; c < 3; ++c) {
    const cConfirm& k = confirms[c];
    F.Group(k.title);
    if (k.flag != nullptr) F.Check(k.check, checkLabels[c], k.flag).Span(2).Row();
    for (int t = 0; t < kConfirmCount; ++t) {
      F.EditStr(k.text + t, "", &(*k.texts)[t], WideLine(8));
      if (k.flag != nullptr) F.EnableBy(k.check);
    }
    F.Row();
    F.EndGroup();
  }

  F.Column();
  F.EditStr(kName, "名称", &E.m_strName, WideLine(12)).Row();
  F.Combo(kSlotType, "スロットタイプ", &E.m_nSlotType, kSlotTypeLabels).LabelAbove().Span(2).Row();
  F.List(kSlots, "スロット", m_Slots, EntryList<cSlot>(&E.m_vecSlot, [this](std::string& out, int, const cSlot& s) {
           out = SummarySlot(const_cast<cSlot&>(s), m_Edit);  // repairs a stale category in the row's slot
         }),
         kListThirdFixed, 3)
      .LabelAbove()
      .Span(2)
      .EnableWhen(kSlotType, kSlotLimited)
      .Row();
  EntryButtons(F, {kSlots, kSlotNew, kSlotEdit, kSlotClear, kSlotCount}, kSlotType);
  F.Check(kReserve, "スキルのリザーブが有効", &E.m_bReserve).Row();
  F.EditVal(kReserveMax, "リザーブの数", &E.m_nReserveMax, 1, 999, 1, kReserveMaxSpin).EnableBy(kReserve).Row();
  F.Check(kHeaderSP, "スキルリストのヘッダーにSPを表示", &E.m_bHeaderSP).Span(2).Row();
  F.Check(kSymbolSense, "カテゴリーシンボルに必要センスを表示", &E.m_bSymbolSense).Span(2).Row();
  F.Check(kStatusSense, "キャラのステータスウインドウにセンスを表示\n（習得可能なカテゴリーの情報を表示するか）",
          &E.m_bStatusSense)
      .Span(2)
      .Row();
  F.EditStr(kSenseName, "センス　→", &E.m_strSenseName, WideLine(6))
      .EnableBy(kStatusSense)
      .Row();
  F.Check(kSameSkill, "同じ種類のスキルを複数習得可", &E.m_bSameSkill).Span(2).Row();
  F.Check(kRecoverUses, "ステージクリア後にスキルの残り使用回数を回復", &E.m_bRecoverUses).Span(2).Row();
  F.Check(kStockAsLearn, "ストックからの使用条件をスキルの習得条件と同じにする", &E.m_bStockAsLearn).Span(2).Row();
  F.Combo(kMoneyVal, "売買に使用するパーティー変数", &E.m_nMoneyVal, &m_vecMoneyNames, nullptr, 1)
      .KeepWithoutRow()
      .LabelAbove()
      .Span(2)
      .Row();
  F.Check(kForgetToStock, "忘れたスキルはストックに戻る", &E.m_bForgetToStock).Span(2).Row();
  F.Check(kForgetOnDeath, "死亡時に全てのスキルを忘れてストックに戻す　※非推奨", &E.m_bForgetOnDeath).Span(2).Row();
  F.Check(kForgetOnRelease, "放出時に全てのスキルを忘れてストックに戻す　※非推奨", &E.m_bForgetOnRelease).Span(2).Row();
  F.Check(kF8Learn, "テストプレイ時、F8キーで全てのスキルを習得", &E.m_bF8Learn).Span(2).Row();
  F.Check(kF8Stock, "テストプレイ時、F8キーで全てのスキルを入手", &E.m_bF8Stock).Span(2).Row();

  F.Column();
  F.Group("スキルリストを表示するシーン（閲覧・使用の許可）");
  for (int s = 0; s < kSceneShown; ++s) F.Check(kScene + s, kSceneLabels[s], &m_Shown.aScene[s]).Row();
  F.EndGroup();
  F.Group("スキル編成メニュー");
  for (int m = 0; m < kMenuCount; ++m) {
    F.Check(kMenuOn + m, kMenuLabels[m], &m_Shown.aMenuOn[m]);
    F.EditStr(kMenuName + m, "", &m_Shown.aMenu[m], WideLine(12))
        .Named(kMenuLabels[m])
        .EnableBy(kMenuOn + m)
        .Row();
  }
  F.EndGroup();
  F.EndColumns();
}

void DLG_DBSKILLLIST::OnReady() {
  cTablePage::OnReady();
  m_List.LeaveToForm(kListClear);  // the row's own clearing, below
}

void DLG_DBSKILLLIST::OnStale() {
  NumberedNames(m_vecMoneyNames, g_Database.m_vecPtVal, 1);
  if (auto* combo = GetCtrl<CTRL_COMBO_CLASS<int>>(kMoneyVal)) combo->SetLabels(m_vecMoneyNames);
}

void DLG_DBSKILLLIST::OnDestroy() {
  // The skill sheet works on this page's row, which goes with the page.
  if (m_pSkillSheet != nullptr) m_pSkillSheet->Cancel();
}

void DLG_DBSKILLLIST::TakeEntries() {
  const cSkillList& E = m_Edit;
  for (int s = 0; s < kSceneShown; ++s) m_Shown.aScene[s] = EntryOr(E.m_vecScene, s, 0, [](std::int32_t v) { return v; });
  for (int m = 0; m < kMenuCount; ++m) {
    m_Shown.aMenuOn[m] = EntryOr(E.m_vecMenuCmd, m, 0, [](const cCmd& c) { return c.m_bEnabled; });
    m_Shown.aMenu[m] = EntryOr(E.m_vecMenuCmd, m, std::string(), [](const cCmd& c) { return c.m_strName; });
  }
  const auto name = [](const cCmd& c) { return c.m_strName; };
  for (int t = 0; t < kConfirmCount; ++t) {
    m_Shown.aLearn[t] = EntryOr(E.m_vecLearnCmd, t, std::string(), name);
    m_Shown.aSell[t] = EntryOr(E.m_vecSellCmd, t, std::string(), name);
    m_Shown.aForget[t] = EntryOr(E.m_vecForgetCmd, t, std::string(), name);
  }
}

void DLG_DBSKILLLIST::GiveEntries() {
  cSkillList& E = m_Edit;
  for (int s = 0; s < kSceneShown; ++s)
    GiveEntry(E.m_vecScene, s, m_Shown.aScene[s], 0, [](std::int32_t& v, int x) { v = x; });
  const auto setName = [](cCmd& c, const std::string& x) { c.m_strName = x; };
  // Menu entries added for a value start as the screen showed them: off and unnamed.
  for (int m = 0; m < kMenuCount; ++m) {
    if (!m_Shown.aMenuOn[m] && m_Shown.aMenu[m].empty()) continue;
    while (E.m_vecMenuCmd.Count() <= m) E.m_vecMenuCmd.emplace_back().m_bEnabled = 0;
  }
  for (int m = 0; m < kMenuCount && m < E.m_vecMenuCmd.Count(); ++m) {
    E.m_vecMenuCmd[m].m_bEnabled = m_Shown.aMenuOn[m];
    E.m_vecMenuCmd[m].m_strName = m_Shown.aMenu[m];
  }
  for (int t = 0; t < kConfirmCount; ++t) {
    GiveEntry(E.m_vecLearnCmd, t, m_Shown.aLearn[t], std::string(), setName);
    GiveEntry(E.m_vecSellCmd, t, m_Shown.aSell[t], std::string(), setName);
    GiveEntry(E.m_vecForgetCmd, t, m_Shown.aForget[t], std::string(), setName);
  }
}

void DLG_DBSKILLLIST::UpdateAllExcept(unsigned id) {
  TakeEntries();
  cTablePage::UpdateAllExcept(id);
}

void DLG_DBSKILLLIST::ApplyControls() {
  // The screen has just taken cleared rows; applying it back would only write the
  // ranges of its boxes over the zeros.
  if (std::exchange(m_bJustCleared, false)) return;
  cTablePage::ApplyControls();
  GiveEntries();
}

void DLG_DBSKILLLIST::ClearRows() {
  for (int r = 0; r < m_List.m_vecSelFlag.Count(); ++r) {
    if (!m_List.m_vecSelFlag[r] || !m_List.IsReal(r)) continue;
    cSkillList& list = m_vecWork[r];
    list.Reset();
    list.FixRefs();

  }
  if (m_List.IsReal(m_List.m_nCurSel)) m_List.Select(m_List.m_nCurSel, 1);
  m_List.Redraw();
  m_bJustCleared = true;
}

bool DLG_DBSKILLLIST::CategCommand(unsigned id, unsigned code) {
  return EntryCommand(*this, m_Categs, {kCategs, kCategNew, kCategEdit, kCategClear, kCategCount}, id, code,
                      [this](cCateg& categ) { return EditRecord<DLG_CATEG>(categ, m_hWnd.data()); });
}

bool DLG_DBSKILLLIST::SlotCommand(unsigned id, unsigned code) {
  return EntryCommand(*this, m_Slots, {kSlots, kSlotNew, kSlotEdit, kSlotClear, kSlotCount}, id, code,
                      [this](cSlot& slot) { return EditRecord<DLG_SLOT>(slot, m_Edit.m_vecCateg, m_hWnd.data()); });
}

void DLG_DBSKILLLIST::EditSkills() {
  const int row = m_List.GetSel();
  if (!m_List.IsReal(row) || m_pSkillSheet != nullptr) return;
  m_Edit.FixRefs();
  if (m_Edit.m_vecSkill.Count() < 2) m_Edit.m_vecSkill.resize(2);  // row 0 and one usable skill
  m_List.CommitRow();
  g_WndList.EnableAll(false);
  cSkillSheetList list{&m_Edit.m_vecSkill, &m_Edit.m_vecCateg, row + 1, m_Edit.m_strName, [this] {
                         m_List.CommitRow();
                         SheetChanged();
                       }};
  m_pSkillSheet = OpenSkillSheet(nullptr, std::move(list), [this] {
    m_pSkillSheet = nullptr;
    g_WndList.EnableAll(true);
  });
  if (m_pSkillSheet == nullptr) g_WndList.EnableAll(true);
}

void DLG_DBSKILLLIST::OnFormCommand(unsigned id, unsigned code) {
  if (id == kIdClear || (id != 0 && m_List.OpOf(id) == kListClear)) {
    ClearRows();
    UpdateAllExcept(m_List.m_nId);
    return;
  }
  if (id == kEditSkills) return EditSkills();
  const bool categ = CategCommand(id, code);
  if (categ || SlotCommand(id, code)) {
    m_Categs.Redraw();
    m_Slots.Redraw();  // a slot names the categories
    m_List.CommitRow();
    return;
  }
  cTablePage::OnFormCommand(id, code);
}
