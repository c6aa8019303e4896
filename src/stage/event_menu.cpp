#include "stage/event_menu.h"

#include "project/project_globals.h"
#include "stage/edit_state.h"
#include "stage/map_cursor.h"
#include "stage/map_edit.h"

namespace {

cEditState& ES() { return g_EditState; }

void Edit() {
  cEditState& es = ES();
  if (es.m_pEditEvent == nullptr) return;
  es.m_bStartEvent = 0;
  es.m_bEditPlaced = 1;
  if (MapEditHost().EditEvent(*es.m_pEditEvent, true)) es.m_bStageModified = 1;
}

// A copy, and a cut, keep the clipboard flag set even where no event stands, so that
// an earlier content stays pasteable.
void Copy(bool cut) {
  cEditState& es = ES();
  es.m_bEventClip = 1;
  if (es.m_pEditEvent == nullptr) return;
  if (cut) PushUndo();
  es.m_EventClip = *es.m_pEditEvent;
  if (!cut) return;
  g_Stage.RemoveEvent(es.m_pEditEvent);
  es.m_pEditEvent = nullptr;
  es.m_bStageModified = 1;
}

void Paste() {
  cEditState& es = ES();
  if (!es.m_bEventClip) return;
  PushUndo();
  cEvent copy = es.m_EventClip;
  g_Stage.PutEvent(copy, g_Cursor.Top().nX, g_Cursor.Top().nY);
  es.m_bStageModified = 1;
}

void New() {
  cEditState& es = ES();
  es.m_bStartEvent = 0;
  es.m_bEditPlaced = 0;
  cEvent temp;
  temp.m_nX = g_Cursor.Top().nX;
  temp.m_nY = g_Cursor.Top().nY;
  es.m_pEditEvent = &temp;
  const bool confirmed = MapEditHost().EditEvent(temp, false);
  es.m_pEditEvent = nullptr;
  if (!confirmed) return;
  g_Stage.PutEvent(temp, temp.m_nX, temp.m_nY);
  es.m_bStageModified = 1;
}

void Delete() {
  cEditState& es = ES();
  if (es.m_pEditEvent == nullptr) return;
  PushUndo();
  g_Stage.RemoveEventsAt(g_Cursor.Top().nX, g_Cursor.Top().nY);
  es.m_pEditEvent = nullptr;
  es.m_bStageModified = 1;
}

}  // namespace

std::array<bool, kEventMenu.size()> EventMenuEnabling() {
  const bool event = ES().m_pEditEvent != nullptr;
  return {event, event, event, ES().m_bEventClip != 0, true, event};
}

void EventContextMenu() {
  cEditState& es = ES();
  es.m_pEditEvent = g_Stage.EventAt(g_Cursor.Top().nX, g_Cursor.Top().nY);
  g_Cursor.Push();
  const std::array<bool, kEventMenu.size()> enabled = EventMenuEnabling();
  RunEventMenuItem(MapEditHost().PopupEventMenu(enabled.data()));
  g_Cursor.Pop();
  // The list may have moved under the pointer; nothing keeps it past the menu.
  es.m_pEditEvent = nullptr;
}

void RunEventMenuItem(int id) {
  if (!ES().m_bStageOpen) return;
  switch (id) {
    case IDM_EVENT_EDIT: Edit(); break;
    case IDM_EVENT_CUT: Copy(true); break;
    case IDM_EVENT_COPY: Copy(false); break;
    case IDM_EVENT_PASTE: Paste(); break;
    case IDM_EVENT_NEW: New(); break;
    case IDM_EVENT_DELETE: Delete(); break;
    default: break;
  }
}
