#include "database/skill_acquisition.h"

#include <algorithm>

#include "project/project_globals.h"

namespace {

VECTOR_CLASS<cAcqSkill>* PlacesOf(VECTOR_CLASS<VECTOR_CLASS<cAcqSkill>>* byList, int list) {
  if (byList == nullptr || list < 0 || list >= byList->Count()) return nullptr;
  return &(*byList)[static_cast<std::size_t>(list)];
}

bool HoldsSkill(const SKILL_HOLDER& chara, int list, int skill) {
  for (auto* byList : {chara.pSlots, chara.pReserve}) {
    const VECTOR_CLASS<cAcqSkill>* places = PlacesOf(byList, list);
    if (places == nullptr) continue;
    if (std::any_of(places->begin(), places->end(), [skill](const cAcqSkill& p) { return p.m_nSkill == skill; })) {
      return true;
    }
  }
  return false;
}

bool SenseSuffices(const SKILL_HOLDER& chara, int list, const cSkill& skill) {
  return SenseOf(chara, list, skill.m_nCateg) >= skill.m_nNeedSense;
}

bool CategoryAccepted(const cSlot& slot, const cSkill& skill) {
  if (slot.m_bAnyCateg) return true;
  return std::any_of(slot.m_vecAcqCond.begin(), slot.m_vecAcqCond.end(),
                     [&skill](const cAcqCond& c) { return c.m_nCateg == skill.m_nCateg; });
}

void Fill(cAcqSkill& place, int list, int skillRow, const cSkill& skill) {
  place.m_nList = list;
  place.m_nSkill = skillRow;
  if (skill.m_nResourceType != 0) place.m_nUses = skill.m_nUseLimit;
}

}  // namespace

const cSkill* FindSkill(int list, int skill) {
  if (list < 0 || list >= g_vecSkillList.Count()) return nullptr;
  const VECTOR_CLASS<cSkill>& skills = g_vecSkillList[static_cast<std::size_t>(list)].m_vecSkill;
  if (skill < 0 || skill >= skills.Count()) return nullptr;
  return &skills[static_cast<std::size_t>(skill)];
}

int SenseOf(const SKILL_HOLDER& chara, int list, int categ) {
  if (chara.pSense == nullptr || list < 0 || list >= chara.pSense->Count()) return 0;
  const VECTOR_CLASS<std::int32_t>& senses = (*chara.pSense)[static_cast<std::size_t>(list)];
  return (categ >= 0 && categ < senses.Count()) ? senses[static_cast<std::size_t>(categ)] : 0;
}

bool CanLearnSkill(const SKILL_HOLDER& chara, int list, int skill, bool testSense) {
  if (skill == 0) return false;
  const cSkill* s = FindSkill(list, skill);
  if (s == nullptr) return false;
  if (testSense && !SenseSuffices(chara, list, *s)) return false;
  return s->m_nLearnClass == 0 || s->m_nLearnClass == chara.nClass;
}

bool PlaceAccepts(const SKILL_HOLDER& chara, int list, const cSlot& slot, int skill, bool testSense,
                  bool testDuplicates) {
  if (skill == 0) return true;
  if (!CanLearnSkill(chara, list, skill, testSense)) return false;
  if (testDuplicates && HoldsSkill(chara, list, skill)) return false;
  return CategoryAccepted(slot, *FindSkill(list, skill));
}

bool PlaceSkill(SKILL_HOLDER& chara, int list, int skill, bool testDuplicates) {
  const cSkill* s = FindSkill(list, skill);
  if (skill == 0 || s == nullptr) return false;
  if (testDuplicates && HoldsSkill(chara, list, skill)) return false;
  if (VECTOR_CLASS<cAcqSkill>* slots = PlacesOf(chara.pSlots, list)) {
    for (cAcqSkill& place : *slots) {
      if (place.m_nSkill == 0 && PlaceAccepts(chara, list, place.m_Slot, skill, true, false)) {
        Fill(place, list, skill, *s);
        if (chara.recalcStatus) chara.recalcStatus();
        return true;
      }
    }
  }
  if (chara.bEnemy) return false;
  if (VECTOR_CLASS<cAcqSkill>* reserve = PlacesOf(chara.pReserve, list)) {
    for (cAcqSkill& place : *reserve) {
      if (place.m_nSkill == 0 && CategoryAccepted(place.m_Slot, *s) && SenseSuffices(chara, list, *s)) {
        Fill(place, list, skill, *s);
        return true;
      }
    }
  }
  return false;
}
