#include "toolkit/list_command.h"

#include "toolkit/ctrl_types.h"

void BeginListCommand(std::span<cListCtrlBase* const> lists) {
  for (cListCtrlBase* list : lists) list->Freeze();
}

void EndListCommand(std::span<cListCtrlBase* const> lists, const cListCommand& cmd, cListCommandHost& host) {
  for (cListCtrlBase* list : lists) {
    if (cmd.code == kNotifySelChange && cmd.id == list->m_nId) {
      list->OnSelChange();
      host.UpdateAllExcept(*list);
    }
  }
  for (cListCtrlBase* list : lists) {
    if (list->HandleKeyCommand(cmd.id) || list->HandleMenuCommand(cmd.id)) host.UpdateAllExcept(*list);
  }
  if (cmd.ready) host.UpdateEnable();
  if (cmd.ready && cmd.changed) {
    host.ApplyControls();
    for (cListCtrlBase* list : lists) list->CommitRow();
  }
  for (cListCtrlBase* list : lists) list->RedrawSel();
  if (cmd.page) host.SheetChanged();
}
