#pragma once
// The order in which a form with lists runs a command. Keeping it is what makes the
// three copies agree: after a command the edit record, the row and the controls never
// differ, and the source vector is touched only by the list's Apply.
//
//   BeginListCommand   drawing of every list is held
//   (the form's own buttons and menus)
//   EndListCommand     1. a selection change of a list: OnSelChange, then the edit
//                         record to the other controls
//                      2. the lists' key, then menu commands; a list that ran one
//                         refreshes the other controls
//                      3. enabling rules (when ready)
//                      4. a changed control: Apply of the other controls, then the
//                         edit record into the row (when ready)
//                      5. RedrawSel of every list, which ends the hold
//                      6. a page tells its sheet it changed
// Lists go in the form's order; a list over a vector inside another list's edit record
// goes before that list, so that its commit reaches the other edit record first.

#include <span>

#include "toolkit/list_ctrl_base.h"

class cListCommandHost {
 public:
  virtual ~cListCommandHost() = default;
  virtual void UpdateAllExcept(cListCtrlBase& list) = 0;
  virtual void UpdateEnable() = 0;
  // Apply of every control of the form that is not a list.
  virtual void ApplyControls() = 0;
  virtual void SheetChanged() {}
};

struct cListCommand {
  unsigned id = 0;     // control or command id
  unsigned code = 0;   // notification code
  bool ready = false;  // the form has finished its initialisation
  bool changed = false;  // the command changed a control's value
  bool page = false;     // the form is a page of a sheet
};

void BeginListCommand(std::span<cListCtrlBase* const> lists);
void EndListCommand(std::span<cListCtrlBase* const> lists, const cListCommand& cmd, cListCommandHost& host);
