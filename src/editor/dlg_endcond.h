#pragma once
// DLG_ENDCOND, one line of a stage's victory, defeat or rule description: its text, and
// what the map cursor goes to when the player selects it. Only the control that the
// chosen target needs is open.

#include <string>

#include "stage/stage_records.h"
#include "toolkit/live_instance.h"
#include "toolkit/record_form.h"

class DLG_ENDCOND : public cRecordForm<cEndCond>, public cLiveInstance<DLG_ENDCOND> {
 public:
  enum : unsigned {
    kIdText = 1100,
    kIdFocus = 1101,
    kIdChara = 1102,
    kIdCharaSpin = 1103,
    kIdGroup = 1104,
    kIdX = 1105,
    kIdXSpin = 1106,
    kIdY = 1107,
    kIdYSpin = 1108,
    kIdShowGroup = 1109,
  };
  // What m_nFocus names.
  enum : int { kFocusNone, kFocusLeader, kFocusChara, kFocusGroup, kFocusCell };

  DLG_ENDCOND(const cEndCond& source, QWidget* parent);

 private:
  VECTOR_CLASS<std::string> m_vecGroupRows;
  VECTOR_CLASS<std::string> m_vecShowRows;
};

// The form on `line`, which takes the edits on OK; its result.
int RunEndCond(cEndCond& line, QWidget* parent);
