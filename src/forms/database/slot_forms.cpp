#include "forms/database/slot_forms.h"

#include "database/class_rows.h"
#include "forms/database/symbol_reference.h"
#include "forms/input_forms.h"
#include "platform/cp932.h"
#include "project/project_globals.h"
#include "toolkit/list_init.h"

namespace {

const cSkillList& ListOrEmpty(int list) {
  static const cSkillList kNone;
  return list >= 0 && list < g_vecSkillList.Count() ? g_vecSkillList[list] : kNone;
}

}  // namespace

DLG_SLOT::DLG_SLOT(const cSlot& source, int list, QWidget* parent)
    : DLG_SLOT(source, ListOrEmpty(list).m_vecCateg, parent) {}

DLG_SLOT::DLG_SLOT(const cSlot& source, const VECTOR_CLASS<cCateg>& categs, QWidget* parent)
    : cRecordForm(parent, "スロット", source) {
  for (const cCateg& c : categs) m_vecCategNames.push_back(c.m_strName);
  cListInit<cAcqCond> conds = NumberedRows<cAcqCond>(&m_Work.m_vecAcqCond, 0, 99, {});
  conds.pEditRec = &m_EditCond;
  conds.pfnRowText = [this](std::string& out, int, const cAcqCond& c) {
    out = c.m_nCateg >= 0 && c.m_nCateg < m_vecCategNames.Count() ? m_vecCategNames[c.m_nCateg] : std::string();
  };

  cFormTable& F = Table();
  F.Check(kAny, "キャラが習得可能な全てのカテゴリーを習得できる", &m_Work.m_bAnyCateg).Span(3).Row();
  F.Group("習得可能なカテゴリー");
  F.List(kConds, "", m_Conds, conds, kListSecondFree, 6).Span(3).DisableBy(kAny).Row();
  F.Combo(kCateg, "カテゴリー", &m_EditCond.m_nCateg, &m_vecCategNames).DisableBy(kAny);
  F.Button(kInsert, "挿入").DisableBy(kAny);
  F.Button(kDelete, "削除").DisableBy(kAny).Row();
  F.EndGroup();
  F.Check(kShowAll, "スキル未習得時、このスロットが習得可能な全てのカテゴリーシンボルを表示", &m_Work.m_bShowAllSymbols)
      .Span(3)
      .Row();
  F.Combo(kEmptySymbol, "スキル未習得時に表示するシンボル", &m_Work.m_nEmptySymbol, &SymbolNumberLabels())
      .DisableBy(kShowAll);
  F.Picture(kSymbolPreview, "シンボル", 32, 32).Row();
  F.OkCancel();
}

void DLG_SLOT::OnReady() {
  if (auto* preview = GetCtrl<CTRL_PICTURE_CLASS>(kSymbolPreview)) DrawSymbolPreview(*preview, m_Work.m_nEmptySymbol);
}

void DLG_SLOT::OnFormCommand(unsigned id, unsigned code) {
  switch (id) {
    case kInsert: m_Conds.Insert(); break;
    case kDelete: m_Conds.Delete(-1, 0); break;
    case kEmptySymbol:
      if (auto* preview = GetCtrl<CTRL_PICTURE_CLASS>(kSymbolPreview)) DrawSymbolPreview(*preview, Value(kEmptySymbol));
      break;
    default: break;
  }
}

DLG_ORGSLOT::DLG_ORGSLOT(const cOrgSlotList& source, int list, QWidget* parent)
    : cRecordForm(parent, "スロット", source), m_nList(list) {
  cListInit<cSlot> rows = NumberedRows<cSlot>(&m_Work.m_vecSlot, 1, 99, {});
  // The summary sets a category the list no longer has to 0 in the row's own slot.
  rows.pfnRowText = [this](std::string& out, int, const cSlot& slot) {
    out = SummarySlot(const_cast<cSlot&>(slot), ListOrEmpty(m_nList));
  };

  cFormTable& F = Table();
  F.Check(kOwn, "このクラス独自のスロットを使用", &m_Work.m_bOwn).Span(4).Row();
  F.List(kSlots, "スロット", m_Slots, rows, kListSecondFree, 8).LabelAbove().Span(4).Row();
  F.Button(kNew, "新規").Button(kEdit, "編集").Button(kClear, "クリア").Button(kIdListCount, "データ数").Row();
  F.OkCancel();
}

void DLG_ORGSLOT::EditSlot() {
  const int row = m_Slots.GetSel();
  if (!m_Slots.IsReal(row)) return;
  cSlot& slot = m_Work.m_vecSlot[row];
  if (EditRecord<DLG_SLOT>(slot, m_nList, m_hWnd.data()) == 1) m_Slots.Redraw();
}

void DLG_ORGSLOT::OnFormCommand(unsigned id, unsigned code) {
  switch (id) {
    case kNew: m_Slots.Append(); break;
    case kEdit: EditSlot(); break;
    case kClear: m_Slots.Clear(); break;
    case kIdListCount: {
      int count = m_Slots.RowCount();
      if (InputValue(this, nullptr, &count, 1, 99, CP932_TEXT("データ数"))) m_Slots.Resize(count);
      break;
    }
    case kSlots:
      if (code == kNotifyDblClk) EditSlot();
      break;
    default: break;
  }
}
