#include "stage/move_ai_rows.h"

#include "database/numbered_rows.h"
#include "project/project_globals.h"

cValueRows HealSkillRows(int list) {
  cValueRows out;
  if (list < 0 || list >= g_vecSkillList.Count()) return out;
  const VECTOR_CLASS<cSkill>& skills = g_vecSkillList[list].m_vecSkill;
  // Row 0 of a skill table is reserved.
  for (int i = 1; i < skills.Count(); ++i) {
    if (skills[i].m_nKind != kSkillHeal) continue;
    out.rows.push_back(NumberedRow(i, 0, skills[i].m_strName));
    out.values.push_back(i);
  }
  return out;
}

cValueRows DestinationRows() {
  cValueRows out;
  const VECTOR_CLASS<cGroupPos>& groups = g_Stage.m_vecGroupPos;
  for (int i = 1; i < groups.Count(); ++i) {
    if (groups[i].m_vecPos.Count() >= kMaxDestinationPositions) continue;
    out.rows.push_back(NumberedRow(i, 0, groups[i].m_strName));
    out.values.push_back(i);
  }
  return out;
}
