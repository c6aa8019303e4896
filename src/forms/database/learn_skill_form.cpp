#include "forms/database/learn_skill_form.h"

DLG_LEARNSKILL::DLG_LEARNSKILL(const cLearnSkill& source, QWidget* parent)
    : cRecordForm(parent, "習得スキル", source) {
  cFormTable& F = Table();
  m_Skill.DeclareList(F, "", &m_Work.m_nList);
  m_Skill.DeclareSkill(F, "", &m_Work.m_nSkill).Row();
  F.EditVal(kLevel, "習得LV", &m_Work.m_nLevel, 1, 99, 1, kLevelSpin).Row();
  F.OkCancel();
  m_Skill.FillLists(*this, m_Work.m_nList);
}

void DLG_LEARNSKILL::OnFormCommand(unsigned id, unsigned code) { m_Skill.OnCommand(*this, id, code); }
