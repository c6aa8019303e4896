#pragma once
// The battle AI forms of the enemy page: DLG_BATTLEAI, "戦闘AI", one action an enemy
// may take in a fight with the conditions that make it a candidate, and
// DLG_BATTLEAI_COND, "戦闘AI 条件", one of those conditions.

#include "database/battle_ai.h"
#include "forms/database/skill_pair.h"
#include "forms/database/sub_form_list.h"
#include "toolkit/record_form.h"

class DLG_BATTLEAI_COND : public cRecordForm<cBattleAICond> {
 public:
  enum : unsigned { kWho = 1551, kWhat, kValue, kOp, kPercent };
  explicit DLG_BATTLEAI_COND(const cBattleAICond& source, QWidget* parent = nullptr);
};

class DLG_BATTLEAI : public cRecordForm<cBattleAI> {
 public:
  enum : unsigned {
    kAction = 1521, kList, kSkill, kPriorityLv, kPriorityLvSpin, kPriorityVal, kPriorityValSpin, kNoEvaluate, kConds,
    kCondEdit, kCondInsert, kCondDelete,
  };
  explicit DLG_BATTLEAI(const cBattleAI& source, QWidget* parent = nullptr);

 protected:
  void OnReady() override;
  void OnFormCommand(unsigned id, unsigned code) override;

 private:
  cSkillPair m_Skill{kList, kSkill};
  cSubFormList<cBattleAICond> m_Conds{{kConds, kCondEdit, kCondInsert, kCondDelete}};
};
