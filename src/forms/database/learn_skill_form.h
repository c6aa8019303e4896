#pragma once
// DLG_LEARNSKILL, "習得スキル": a skill an ally learns on reaching a level.

#include "database/chara.h"
#include "forms/database/skill_pair.h"
#include "toolkit/record_form.h"

class DLG_LEARNSKILL : public cRecordForm<cLearnSkill> {
 public:
  enum : unsigned { kList = 1501, kSkill, kLevel, kLevelSpin };
  explicit DLG_LEARNSKILL(const cLearnSkill& source, QWidget* parent = nullptr);

 protected:
  void OnFormCommand(unsigned id, unsigned code) override;

 private:
  cSkillPair m_Skill{kList, kSkill};
};
