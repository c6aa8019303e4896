#include "editor/dlg_worldevent.h"

#include <algorithm>

#include "editor/dlg_worldevent_set.h"
#include "forms/input_forms.h"
#include "platform/cp932.h"
#include "project/project_globals.h"
#include "stage/world_edit.h"
#include "toolkit/ctrl_types.h"

DLG_WORLDEVENT::DLG_WORLDEVENT(QWidget* owner, std::function<void(int)> keys)
    : cPaletteWindow(owner, "イベントパレット", g_EditConfig.m_PosWorldEvent, std::move(keys)) {
  for (int op : {kListCut, kListCopy, kListPaste, kListInsert, kListDelete}) m_List.LeaveToForm(op);
  cListInit<cWorldEvent> init;
  init.pSource = init.pWork = &g_WorldMap.m_vecEventPlt;
  init.nMinRows = 1;
  init.nMaxRows = kMaxTemplates;
  init.pfnRowText = [](std::string& out, int, const cWorldEvent& event) { out = event.m_strName; };

  cFormTable& F = Table();
  F.Check(kIdEditIfPlaced, "配置済みなら編集", &g_EditConfig.m_bWorldEditIfPlaced).Span(4).Row();
  F.Check(kIdEditBeforePut, "配置直前に編集", &g_EditConfig.m_bWorldEditBeforePut).Span(4).Row();
  F.Check(kIdAutoStageNo, "ステージ番号を自動で振り分け", &g_EditConfig.m_bAutoStageNo).Span(4).Row();
  F.Group("イベント一覧(テンプレート)");
  F.List(kIdList, "", m_List, init, kListFirstFree, 16).Span(4).Row();
  F.Button(kIdInsert, "挿入");
  F.Button(kIdEdit, "編集");
  F.Button(kIdDelete, "削除");
  F.Button(kIdListCount, "ﾃﾞｰﾀ数").Row();
  F.EndGroup();
}

DLG_WORLDEVENT::~DLG_WORLDEVENT() { End(0); }

void DLG_WORLDEVENT::OnReady() {
  m_hWnd->setFixedSize(m_hWnd->sizeHint());
  const int row = g_WorldEditState.m_nListSel;
  m_List.SelectOnly(m_List.IsReal(row) ? row : 0, 0);
  SelectWorldTemplate(m_List.GetSel());  // the row shown selected is what the pen puts
  RedrawLists();
}

void DLG_WORLDEVENT::OnFormCommand(unsigned id, unsigned code) {
  switch (id) {
    case kIdInsert: Insert(); return;
    case kIdEdit: Edit(); return;
    case kIdDelete:
      m_List.Delete(-1, 0);
      ChooseWorldTemplate(m_List.GetSel());
      return;
    case kIdListCount: DataCount(); return;
    case kIdList:
      if (code == kNotifyDblClk) Edit();
      if (code == kNotifySelChange || code == kNotifyDblClk) ChooseWorldTemplate(m_List.GetSel());
      return;
    default: break;
  }
  switch (m_List.OpOf(id)) {
    case kListInsert: Insert(); break;
    case kListCut:
      Copy(true);
      ChooseWorldTemplate(m_List.GetSel());
      break;
    case kListCopy: Copy(false); break;
    // The pen follows the list's new selection, as after the buttons.
    case kListPaste:
      if (m_List.PasteClip()) ChooseWorldTemplate(m_List.GetSel());
      break;
    case kListDelete:
      if (m_List.Delete(-1, 0)) ChooseWorldTemplate(m_List.GetSel());
      break;
    default: break;
  }
}

// The new template is the form's to fill; cancelled, it goes again.
void DLG_WORLDEVENT::Insert() {
  if (!m_List.Insert()) return;
  const int row = m_List.m_nCurSel;
  if (RunWorldEventSet(g_WorldMap.m_vecEventPlt[row], m_hWnd) != 1) m_List.Delete(row, 0);
  m_List.Redraw();
  m_List.RedrawSel();
  ChooseWorldTemplate(m_List.GetSel());
}

void DLG_WORLDEVENT::Edit() {
  const int row = m_List.GetSel();
  if (!m_List.IsReal(row) || RunWorldEventSet(g_WorldMap.m_vecEventPlt[row], m_hWnd) != 1) return;
  m_List.Redraw();
  m_List.RedrawSel();
  ChooseWorldTemplate(row);
}

void DLG_WORLDEVENT::Copy(bool cut) {
  if (!(cut ? m_List.Cut() : m_List.Copy()) || m_List.m_vecClip.empty()) return;
  g_WorldEditState.m_EventClip = m_List.m_vecClip[0];
  g_WorldEditState.m_bEventClip = 1;
}

void DLG_WORLDEVENT::TakeIntoClipboard(const cWorldEvent& event) { m_List.m_vecClip = {event}; }

void DLG_WORLDEVENT::DataCount() {
  int count = m_List.RowCount();
  if (InputValue(this, nullptr, &count, 1, kMaxTemplates, CP932_TEXT("データ数")) != 1) return;
  m_List.Resize(count);
  ChooseWorldTemplate(m_List.GetSel());
}

void DLG_WORLDEVENT::OnDestroy() {
  cPaletteWindow::OnDestroy();
  g_EditConfig.SaveFile(kEditConfigPath);
}
