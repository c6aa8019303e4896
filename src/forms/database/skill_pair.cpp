#include "forms/database/skill_pair.h"

#include "event/event_names.h"
#include "project/project_globals.h"

std::string cSkillPair::Row(int number, const std::string& name) const {
  return m_bNumbered ? NumberedLabel(number, name) : name;
}

cFormTable& cSkillPair::DeclareList(cFormTable& F, const char* label, int* list) {
  return F.Combo(m_nListId, label, list, &m_vecListNames);
}

cFormTable& cSkillPair::DeclareSkill(cFormTable& F, const char* label, int* skill) {
  m_pSkill = skill;
  return F.Combo(m_nSkillId, label, skill, &m_vecSkillNames, &m_vecSkillValues);
}

void cSkillPair::FillLists(DLG_CLASS& form, int list) {
  m_vecListNames.clear();
  for (int i = 0; i < g_vecSkillList.Count(); ++i) m_vecListNames.push_back(Row(i, g_vecSkillList[i].m_strName));
  FillSkills(form, list);
  // Before the window stands the boxes take their rows when they are bound.
  if (!form.m_hWnd) return;
  if (auto* combo = form.GetCtrl<CTRL_COMBO_CLASS<int>>(m_nListId)) combo->SetLabels(m_vecListNames);
}

void cSkillPair::FillSkills(DLG_CLASS& form, int list) {
  m_vecSkillNames.clear();
  m_vecSkillValues.clear();
  if (list >= 0 && list < g_vecSkillList.Count()) {
    const VECTOR_CLASS<cSkill>& skills = g_vecSkillList[list].m_vecSkill;
    for (int i = 1; i < skills.Count(); ++i) {
      m_vecSkillNames.push_back(Row(i, skills[i].m_strName));
      m_vecSkillValues.push_back(i);
    }
  }
  if (!form.m_hWnd) return;
  if (auto* combo = form.GetCtrl<CTRL_COMBO_CLASS<int>>(m_nSkillId)) combo->SetLabels(m_vecSkillNames, &m_vecSkillValues);
}

void cSkillPair::OnCommand(DLG_CLASS& form, unsigned id, unsigned code) {
  if (id != m_nListId || code != kNotifySelChange || !form.m_bReady) return;
  FillSkills(form, form.Value(m_nListId));
  if (m_pSkill != nullptr) *m_pSkill = m_vecSkillValues.empty() ? 0 : m_vecSkillValues[0];
  if (auto* combo = form.GetCtrl<CTRL_COMBO_CLASS<int>>(m_nSkillId)) combo->Update();
}
