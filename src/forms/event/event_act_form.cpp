// The entry of the chooser into the kinds' forms, and the table of which kind has
// which form.

#include "forms/event/event_act_form.h"

#include "forms/event/event_act_form_base.h"

const cActKindForm* ActKindFormOf(int kind) {
  for (auto forms : {ShowActForms(), MapActForms(), ValueActForms(), PartyActForms()})
    for (const cActKindForm& kindForm : forms)
      if (kindForm.kind == kind) return &kindForm;
  return nullptr;
}

bool EventActHasForm(int kind) { return ActKindFormOf(kind) != nullptr; }

// The form edits a copy; only its OK reaches the action. An action of a kind without
// a form is left as it is.
int RunEventActForm(cEventAct& act, const cEventActFormContext& context) {
  if (!EventActHasForm(act.m_nKind)) return 0;
  ResizeEventActSlots(act);
  if (context.bNewAct) SetEventActDefaults(act);
  std::unique_ptr<DLG_EACT_BASE> form = MakeEventActForm(act, context.bStartEvent, context.owner);
  const int result = form->DoModal();
  if (result == 1) act.Copy(form->m_Work);
  return result;
}
