#pragma once
// DLG_MOVEAI, the form of one move rule: the sentence "range で target に action", the
// healing skill, the destination group, and the block of conditions under which the
// rule holds. Controls the rule's choices leave without meaning are greyed out and keep
// their values.

#include <string>

#include "database/move_ai.h"
#include "stage/move_ai_rows.h"
#include "toolkit/live_instance.h"
#include "toolkit/record_form.h"

class DLG_MOVEAI : public cRecordForm<cMoveAI>, public cLiveInstance<DLG_MOVEAI> {
 public:
  enum : unsigned {
    kIdRange = 1040,
    kIdGoal = 1041,
    kIdAction = 1042,
    kIdList = 1043,
    kIdSkill = 1044,
    kIdGroup = 1045,
    kIdCond = 1046,
    kIdMoved = 1047,
    kIdFriend = 1048,
    kIdStatusCond = 1049,
    kIdStatus = 1050,
    kIdStatusValue = 1051,
    kIdStatusSpin = 1052,
    kIdStatusPercent = 1053,
    kIdStatusOp = 1054,
    kIdValCond = 1055,
    kIdVal = 1056,
    kIdRename = 1057,
    kIdValValue = 1058,
    kIdValSpin = 1059,
    kIdValOp = 1060,
    kIdCondType = 1061,
    kIdLatch = 1062,
  };

  DLG_MOVEAI(const cMoveAI& source, QWidget* parent);

 protected:
  void OnFormCommand(unsigned id, unsigned code) override;

 private:
  void RefillSkills();
  void RenameVariable();

  VECTOR_CLASS<std::string> m_vecListRows;
  VECTOR_CLASS<std::string> m_vecVarRows;
  cValueRows m_Skills;
  cValueRows m_Destinations;
};

// The form on `rule`, which takes the edits on OK; the form's result.
int RunMoveAI(cMoveAI& rule, QWidget* parent);
