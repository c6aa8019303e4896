#pragma once
// The action palette as the event form offers it: saved runs of actions pasted into a
// page, a selection saved as a new entry or over an old one, and the menu rows that
// name the entries. The form's commands stand on these rules.

#include <string>

#include "event/stored_events.h"
#include "kernel/vector_class.h"

constexpr int kActionPaletteMax = 999;

// The commands of the action list's menu. Of the entries' rows only the first 100 of
// each submenu reach the form: a row past them is shown and does nothing.
enum : unsigned {
  IDM_ACTPLT_SORT = 40126,
  IDM_ACTPLT_NEW = 40127,
  IDM_ACTPLT_OVERWRITE = 35000,
  IDM_ACTPLT_PASTE = 35500,
};
constexpr int kPaletteMenuReach = 100;

// The entry a row of the paste or the overwrite submenu stands for; -1 for any other id.
int PalettePasteEntry(unsigned id);
int PaletteOverwriteEntry(unsigned id);

// A submenu row: the entry's number from 1, two digits at least, and its name (CP932).
std::string PaletteMenuRowText(int index, const cEventActPlt& entry);

// "内容： " and the labels of the entry's actions, joined by " → " (CP932).
std::string PaletteContentsText(const cEventActPlt& entry);

// What a paste into the start event takes of `acts`: the actions whose kind it allows, in order.
VECTOR_CLASS<cEventAct> StartEventActs(const VECTOR_CLASS<cEventAct>& acts);
