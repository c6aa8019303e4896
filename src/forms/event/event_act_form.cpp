// Placeholder until the kinds' forms land: every kind reports no form and a run is a
// Cancel, so the chooser and the event form can be built against the interface.
#include "forms/event/event_act_form.h"

bool EventActHasForm(int) { return false; }

int RunEventActForm(cEventAct& act, const cEventActFormContext&) {
  NormalizeEventAct(act);
  return 0;
}
