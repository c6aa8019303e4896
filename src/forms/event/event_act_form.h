#pragma once
// The form of one kind of event action (DLG_EACT_BASE and its kinds 1 to 23). The
// chooser (DLG_EVENTACT) opens it on the selected row of the action list; the row is
// the action itself, so nothing is copied and only OK applies the controls.

#include "event/event_act.h"

class QWidget;

struct cEventActFormContext {
  bool bNewAct = false;      // the chooser runs for a new action: the kind's defaults first
  bool bStartEvent = false;  // the action stands in the start event (its refusals apply)
  QWidget* owner = nullptr;  // the form the kind's form sits on
};

// Whether `kind` has a form of its own; the chooser's button of a kind without one
// ends the chooser with the kind set and no form.
bool EventActHasForm(int kind);

// Resizes the slots of `act` to its kind's counts, writes the defaults for a new
// action, and runs the kind's form modally: 1 on OK (the controls applied to the
// slots), 0 on Cancel (the slots as they were after the resize).
int RunEventActForm(cEventAct& act, const cEventActFormContext& context);
