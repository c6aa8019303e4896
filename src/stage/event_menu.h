#pragma once
// The context menu of the event palette on the map: edit, cut, copy, paste, new and
// delete of the event under the cursor. The menu works on a copy of the cursor frame
// pushed as it opens, so that what the mouse does meanwhile does not move its cell,
// and pops that frame when it closes, chosen or dismissed.

#include <array>

enum : int {
  IDM_EVENT_EDIT = 40059,
  IDM_EVENT_CUT = 40027,
  IDM_EVENT_COPY = 40024,
  IDM_EVENT_PASTE = 40025,
  IDM_EVENT_NEW = 40028,
  IDM_EVENT_DELETE = 40029,
};

struct cEventMenuItem {
  int id;
  const char* text;  // UTF-8
};
// The items in menu order.
inline constexpr std::array<cEventMenuItem, 6> kEventMenu{{{IDM_EVENT_EDIT, "編集"},
                                                           {IDM_EVENT_CUT, "切り取り"},
                                                           {IDM_EVENT_COPY, "コピー"},
                                                           {IDM_EVENT_PASTE, "貼り付け"},
                                                           {IDM_EVENT_NEW, "新規作成"},
                                                           {IDM_EVENT_DELETE, "削除"}}};

// Which items of kEventMenu are enabled for m_pEditEvent and the clipboard.
std::array<bool, kEventMenu.size()> EventMenuEnabling();

// The menu's whole run at the cursor cell: m_pEditEvent is the event there, the frame
// pushed, the host's menu shown, the item chosen run, the frame popped.
void EventContextMenu();

// One item on the top cursor frame, as the menu runs it. Unknown ids do nothing.
void RunEventMenuItem(int id);
