#include "editor/enemy_list.h"

#include "project/project_globals.h"
#include "stage/edit_state.h"
#include "stage/enemy_palette.h"
#include "stage/map_edit.h"
#include "toolkit/ctrl_types.h"

cEnemyList::cEnemyList() {
  for (int op : {kListCut, kListPaste, kListInsert, kListDelete}) m_List.LeaveToForm(op);
}

cListInit<cPutEnemy> cEnemyList::Init() {
  cListInit<cPutEnemy> init;
  init.pSource = init.pWork = &g_Stage.m_vecPutEnemy;
  init.nMaxRows = kMaxPutEnemies;
  init.bBlankRow = 1;
  init.pfnRowText = [](std::string& out, int, const cPutEnemy& entry) { out = PutEnemyRowText(entry); };
  return init;
}

bool cEnemyList::Command(unsigned id, unsigned code) {
  switch (id) {
    case kIdInsert: Insert(); return true;
    case kIdEdit: Edit(); return true;
    case kIdDelete: Delete(); return true;
    case kIdListCount: DataCount(); return true;
    case kIdList:
      if (code == kNotifyDblClk) Edit();
      // The box holds the user's selection before the list takes it.
      if (code == kNotifySelChange || code == kNotifyDblClk) ChooseEnemyRow(m_List.GetSel());
      return code == kNotifySelChange || code == kNotifyDblClk;
    default: break;
  }
  switch (m_List.OpOf(id)) {
    case kListInsert: Insert(); return true;
    case kListCut: Cut(); return true;
    case kListPaste: Paste(); return true;
    case kListDelete: Delete(); return true;
    default: return false;
  }
}

// The list always stands on a row; for none that is the blank one, which names no entry.
void cEnemyList::Show(int row) {
  m_List.SelectOnly(row < 0 ? m_List.RowCount() : row, 0);
  m_List.Redraw();
  m_List.RedrawSel();
}

void cEnemyList::Changed() {
  if (m_fnMapChanged) m_fnMapChanged();
  ChooseEnemyRow(m_List.GetSel());
  g_EditState.m_bStageModified = 1;
}

// The new entry is the form's to fill; declined, it goes again.
void cEnemyList::Insert() {
  if (!m_List.Insert()) return;
  const int row = m_List.m_nCurSel;
  g_EditState.m_pEditEnemy = &g_Stage.m_vecPutEnemy[row];
  const bool confirmed = m_fnEditEntry && m_fnEditEntry();
  g_EditState.m_pEditEnemy = nullptr;
  if (!confirmed) {
    m_List.Delete(row, 0);
    Show(row);  // the selection stays where the insert was asked for, the blank row too
    ChooseEnemyRow(m_List.GetSel());
    return;
  }
  m_List.Redraw();
  m_List.RedrawSel();
  Changed();
}

void cEnemyList::Edit() {
  if (!RealRowSelected()) return;
  g_EditState.m_pEditEnemy = &g_Stage.m_vecPutEnemy[m_List.GetSel()];
  const bool confirmed = m_fnEditEntry && m_fnEditEntry();
  g_EditState.m_pEditEnemy = nullptr;
  if (!confirmed) return;
  m_List.Redraw();
  m_List.RedrawSel();
  Changed();
}

void cEnemyList::Delete() {
  if (!RealRowSelected()) return;
  PushUndo();
  m_List.Delete(-1, 0);
  Changed();
}

void cEnemyList::Cut() {
  if (!RealRowSelected()) return;
  PushUndo();
  m_List.Cut();
  Changed();
}

// A paste beyond the limit is refused by the list after the undo step.
void cEnemyList::Paste() {
  if (m_List.GetSel() < 0) {
    ListBeep();
    return;
  }
  if (m_List.m_vecClip.empty()) return;
  PushUndo();
  UnplaceEnemies(m_List.m_vecClip);
  m_List.PasteClip();
  Changed();
}

void cEnemyList::DataCount() {
  int count = m_List.RowCount();
  if (!m_fnAskCount || !m_fnAskCount(count)) return;
  PushUndo();
  m_List.Resize(count);
  Changed();
}
