#pragma once
// DLG_EVENTACT, the action chooser: a button for each kind that a form can make, in
// three columns. A press sets the action's kind and runs that kind's form; the form's
// answer is the chooser's. For an action that exists the chooser presses the button of
// its own kind at once, so the kind of an action is never changed. Closing the window
// is Cancel.

#include <functional>

#include "event/event_act.h"
#include "forms/event/event_act_form.h"
#include "toolkit/dlg_class.h"
#include "toolkit/live_instance.h"

// How the chooser opens a kind's form. The editor uses the kinds' own forms; a test
// may put a stand-in here to drive the flows around them.
struct cEventActForms {
  std::function<bool(int kind)> hasForm;
  std::function<int(cEventAct& act, const cEventActFormContext& context)> run;
};
// Installs `forms` and returns those it replaces; empty members restore the kinds' own.
cEventActForms SetEventActForms(cEventActForms forms);

// Kinds 1 to 25 have a button; in the start event only the kinds it allows can be pressed.
bool EventActHasButton(int kind);
bool EventActChoosable(int kind, bool bStartEvent);

class DLG_EVENTACT : public DLG_CLASS, public cLiveInstance<DLG_EVENTACT> {
 public:
  enum : unsigned { kIdFirstKind = 1267 };  // the button of kind k is kIdFirstKind + k - 1
  static constexpr unsigned ButtonOf(int kind) { return kIdFirstKind + static_cast<unsigned>(kind) - 1; }

  // Opens on `act`, a row of the action list `placeCtrl`; `bNewAct` when that row was
  // just inserted for it.
  DLG_EVENTACT(cEventAct& act, bool bNewAct, bool bStartEvent, QWidget* parent, QWidget* placeCtrl);

  // The press of kind `kind`'s button.
  void Press(int kind);

  cEventAct& m_Act;
  const bool m_bNewAct;
  const bool m_bStartEvent;

 protected:
  void OnReady() override;
  void OnFormCommand(unsigned id, unsigned code) override;
};

// The chooser over `act`; 1 when a kind's form (or a kind without one) confirmed it.
int RunEventActChooser(cEventAct& act, bool bNewAct, bool bStartEvent, QWidget* parent, QWidget* placeCtrl);
