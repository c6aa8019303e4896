#pragma once
// DLG_ENEMY_SET, the form of one enemy of the stage: its enemy group and character ID,
// the enemy record, its move rules (edited in DLG_MOVEAI) and the buttons that load and
// keep them as templates. OK makes the undo step before the entry takes the edits.

#include <string>

#include "database/move_ai.h"
#include "stage/stage_records.h"
#include "toolkit/live_instance.h"
#include "toolkit/record_form.h"

class DLG_ENEMY_SET : public cRecordForm<cPutEnemy>, public cLiveInstance<DLG_ENEMY_SET> {
 public:
  enum : unsigned {
    kIdGroup = 1020,
    kIdGroupNum = 1021,
    kIdGroupSpin = 1022,
    kIdCharaId = 1023,
    kIdCharaNum = 1024,
    kIdCharaSpin = 1025,
    kIdEnemy = 1026,
    kIdRules = 1027,
    kIdInsert = 1028,
    kIdEdit = 1029,
    kIdDelete = 1030,
    kIdTemplate = 1031,
    kIdLoad = 1032,
    kIdOverwrite = 1033,
    kIdNew = 1034,
    kIdOrder = 1035,
  };

  DLG_ENEMY_SET(const cPutEnemy& source, QWidget* parent);

  CTRL_LIST_CLASS<cMoveAI> m_RuleList;
  VECTOR_CLASS<cMoveAI> m_vecRules;  // the working list of move rules
  int m_nTemplate = 0;               // the template the buttons act on

 protected:
  bool OnOk() override;
  void OnFormCommand(unsigned id, unsigned code) override;

 private:
  void InsertRule();
  // DLG_MOVEAI on the rule of `row`; true on OK.
  bool EditRule(int row);
  void RulesReplaced();
  void NewTemplate();
  void OrderTemplates();
  void RefillTemplates();

  VECTOR_CLASS<std::string> m_vecEnemyRows;
  VECTOR_CLASS<std::string> m_vecTemplateRows;
};

// The form on g_EditState.m_pEditEnemy, with every other window disabled while it is
// open; on OK the entry takes the edits after the undo step. Its result.
int RunEnemySet(QWidget* parent);
