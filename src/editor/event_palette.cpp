#include "editor/event_palette.h"

#include "project/project_globals.h"
#include "stage/edit_state.h"
#include "toolkit/ctrl_types.h"
#include "toolkit/list_ctrl_base.h"
#include "toolkit/list_init.h"

namespace {

cEditState& ES() { return g_EditState; }

}  // namespace

// The palette runs the list's commands itself, for their effect on the edit state.
cEventPalette::cEventPalette() {
  for (int op : {kListCut, kListCopy, kListPaste, kListInsert, kListDelete}) m_List.LeaveToForm(op);
}

cListInit<cEvent> cEventPalette::Init() {
  return NumberedRows<cEvent>(&g_vecEventPlt, 1, 999,
                              [](std::string& out, int, const cEvent& event) { out = event.m_strName; });
}

bool cEventPalette::Command(unsigned id, unsigned code) {
  switch (id) {
    case kIdInsert: Insert(); return true;
    case kIdEdit: Edit(); return true;
    case kIdDelete: Delete(); return true;
    case kIdListCount: DataCount(); return true;
    case kIdList:
      if (code == kNotifyDblClk) Edit();
      if (code == kNotifySelChange) {
        m_List.OnSelChange();
        SyncPaletteSelection();
      }
      return code == kNotifySelChange || code == kNotifyDblClk;
    default: break;
  }
  bool ran = false;
  const int op = m_List.OpOf(id);
  switch (op) {
    case kListInsert: Insert(); return true;
    case kListCut: ran = m_List.Cut(); break;
    case kListCopy: ran = m_List.Copy(); break;
    case kListPaste: ran = m_List.PasteClip(); break;
    case kListDelete: ran = m_List.Delete(-1, 0); break;
    default: return false;
  }
  // A copy or cut also fills the map's event clipboard with the first template taken.
  if (ran && (op == kListCopy || op == kListCut) && !m_List.m_vecClip.empty()) {
    ES().m_bEventClip = 1;
    ES().m_EventClip = m_List.m_vecClip[0];
  }
  if (ran && op != kListCopy) ES().m_bEventPltModified = 1;
  SyncPaletteSelection();
  return true;
}

void cEventPalette::SyncPaletteSelection() {
  cEditState& es = ES();
  const int row = m_List.GetSel();
  es.m_nListSel = row;
  if (!m_List.IsReal(row)) {
    es.m_nSelected = -1;
    es.m_nBrushW = es.m_nBrushH = 0;
    return;
  }
  es.m_nSelected = row;
  es.m_PutEvent = g_vecEventPlt[row];
  es.m_nBrushW = es.m_nBrushH = 1;
}

// The template form on `row`; the palette counts as changed whatever the answer.
bool cEventPalette::RunForm(int row) {
  cEditState& es = ES();
  es.m_bStartEvent = 0;
  es.m_pEditEvent = &g_vecEventPlt[row];
  const bool confirmed = m_fnEditEvent && m_fnEditEvent(g_vecEventPlt[row]);
  es.m_pEditEvent = nullptr;
  if (confirmed) {
    m_List.Redraw();
    m_List.RedrawSel();
  }
  return confirmed;
}

void cEventPalette::Edit() {
  if (RealRowSelected()) RunForm(m_List.GetSel());
  SyncPaletteSelection();
  ES().m_bEventPltModified = 1;
}

// The new template is the form's to fill; declined, it goes again.
void cEventPalette::Insert() {
  if (!m_List.Insert()) return;
  const int row = m_List.m_nCurSel;
  if (!RunForm(row)) {
    m_List.Delete(row, 1);
    m_List.SelectOnly(row, 0);
    m_List.Redraw();
    m_List.RedrawSel();
  }
  SyncPaletteSelection();
  ES().m_bEventPltModified = 1;
}

void cEventPalette::Delete() {
  if (!RealRowSelected()) return;
  m_List.Delete(-1, 0);
  SyncPaletteSelection();
  ES().m_bEventPltModified = 1;
}

void cEventPalette::DataCount() {
  int count = m_List.RowCount();
  if (!m_fnAskCount || !m_fnAskCount(count)) return;
  m_List.Resize(count);
  SyncPaletteSelection();
  ES().m_bEventPltModified = 1;
}
