#include "forms/event/dlg_eventact.h"

#include <utility>

#include "toolkit/ctrl_types.h"

namespace {

constexpr int kLastButtonKind = EACT_GAMEOVER;
constexpr int kKindsPerColumn = 9;

cEventActForms& Forms() {
  static cEventActForms forms;
  return forms;
}
bool HasForm(int kind) { return Forms().hasForm ? Forms().hasForm(kind) : EventActHasForm(kind); }
int RunForm(cEventAct& act, const cEventActFormContext& context) {
  return Forms().run ? Forms().run(act, context) : RunEventActForm(act, context);
}

}  // namespace

cEventActForms SetEventActForms(cEventActForms forms) { return std::exchange(Forms(), std::move(forms)); }

bool EventActHasButton(int kind) { return kind >= 1 && kind <= kLastButtonKind; }

bool EventActChoosable(int kind, bool bStartEvent) {
  return EventActHasButton(kind) && (!bStartEvent || EventActInfoOf(kind).m_bStartEventOk);
}

DLG_EVENTACT::DLG_EVENTACT(cEventAct& act, bool bNewAct, bool bStartEvent, QWidget* parent, QWidget* placeCtrl)
    : DLG_CLASS(parent, "イベントのアクション", placeCtrl, true), m_Act(act), m_bNewAct(bNewAct), m_bStartEvent(bStartEvent) {
  cFormTable& F = Table();
  for (int kind = 1; kind <= kLastButtonKind; ++kind) {
    if ((kind - 1) % kKindsPerColumn == 0) F.Column();
    F.Button(ButtonOf(kind), EventActInfoOf(kind).label).EnableIf([kind, bStartEvent] {
      return EventActChoosable(kind, bStartEvent);
    });
    F.Row();
  }
  F.EndColumns();
}

// An existing action goes straight to its own kind's form, once the chooser stands.
void DLG_EVENTACT::OnReady() {
  if (m_bNewAct || !EventActHasButton(m_Act.m_nKind)) return;
  const int kind = m_Act.m_nKind;
  RunSoon([this, kind] { Press(kind); });
}

void DLG_EVENTACT::OnFormCommand(unsigned id, unsigned code) {
  const int kind = static_cast<int>(id) - static_cast<int>(kIdFirstKind) + 1;
  if (code == kNotifyClicked && EventActHasButton(kind)) Press(kind);
}

void DLG_EVENTACT::Press(int kind) {
  m_Act.m_nKind = kind;
  if (!HasForm(kind)) {
    NormalizeEventAct(m_Act);  // the slots of a kind without a form are its counts alone
    End(1);
    return;
  }
  const int result = RunForm(m_Act, {.bNewAct = m_bNewAct, .bStartEvent = m_bStartEvent, .owner = m_hWnd.data()});
  End(result == 1 ? 1 : 0);
}

int RunEventActChooser(cEventAct& act, bool bNewAct, bool bStartEvent, QWidget* parent, QWidget* placeCtrl) {
  DLG_EVENTACT chooser(act, bNewAct, bStartEvent, parent, placeCtrl);
  return chooser.DoModal();
}
