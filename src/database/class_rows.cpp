#include "database/class_rows.h"

#include <cstdio>

#include "database/skill_acquisition.h"
#include "platform/cp932.h"
#include "project/project_globals.h"

namespace {

const cSkillList* ListAt(int list) {
  return list >= 0 && list < g_vecSkillList.Count() ? &g_vecSkillList[list] : nullptr;
}

std::string WithNumber(const std::string& text, int value, const char* format) {
  char number[24];
  std::snprintf(number, sizeof number, format, value);
  return text + number;
}

}  // namespace

std::string CategName(int list, int categ) {
  const cSkillList* l = ListAt(list);
  return l != nullptr && categ >= 0 && categ < l->m_vecCateg.Count() ? l->m_vecCateg[categ].m_strName : std::string();
}

std::string SummarySlot(cSlot& slot, const cSkillList& list) {
  if (slot.m_bAnyCateg) return CP932_TEXT("無制限");
  std::string text;
  for (cAcqCond& cond : slot.m_vecAcqCond) {
    if (cond.m_nCateg >= list.m_vecCateg.Count() || cond.m_nCateg < 0) cond.m_nCateg = 0;
    if (cond.m_nCateg < list.m_vecCateg.Count()) text += list.m_vecCateg[cond.m_nCateg].m_strName;
    text += ' ';
  }
  return text;
}

std::string SenseRowText(int list, const VECTOR_CLASS<std::int32_t>& sense) {
  const cSkillList* l = ListAt(list);
  std::string text = (l != nullptr ? l->m_strName : std::string()) + " - ";
  for (int c = 0; c < sense.Count(); ++c) text += WithNumber(CategName(list, c), sense[c], "%d ");
  return text;
}

std::string ElemValueRowText(int elem, int value) {
  const std::string name = elem >= 0 && elem < g_System.m_vecElem.Count() ? g_System.m_vecElem[elem].m_strName : "";
  return WithNumber(name, value, " %d");
}

std::string OrgSlotRowText(int list, cOrgSlotList& slots) {
  const cSkillList* l = ListAt(list);
  std::string text = (l != nullptr ? l->m_strName : std::string()) + " - ";
  static const cSkillList kNoList;
  for (cSlot& slot : slots.m_vecSlot) text += SummarySlot(slot, l != nullptr ? *l : kNoList) + " ";
  return text;
}

std::string CategValueRowText(int list, int categ, int value) {
  return WithNumber(CategName(list, categ), value, " %d");
}

std::string LearnSkillRowText(const cLearnSkill& learn) {
  const cSkill* skill = FindSkill(learn.m_nList, learn.m_nSkill);
  const std::string categ = skill != nullptr ? CategName(learn.m_nList, skill->m_nCateg) : std::string();
  return WithNumber("LV", learn.m_nLevel, "%d ") + categ + "-" + (skill != nullptr ? skill->m_strName : std::string());
}
