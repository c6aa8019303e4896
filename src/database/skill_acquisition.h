#pragma once
// Whether a character may learn a skill, whether one of its places accepts it, and
// placing it. The rules read the skill lists of the project (g_vecSkillList).

#include <functional>

#include "database/skill_list.h"

// What these rules read and change of a character.
struct SKILL_HOLDER {
  int nClass = 0;
  bool bEnemy = false;
  const VECTOR_CLASS<VECTOR_CLASS<std::int32_t>>* pSense = nullptr;  // by list, then category
  VECTOR_CLASS<VECTOR_CLASS<cAcqSkill>>* pSlots = nullptr;           // by list
  VECTOR_CLASS<VECTOR_CLASS<cAcqSkill>>* pReserve = nullptr;         // by list
  std::function<void()> recalcStatus;                               // after a skill enters a slot
};

// The skill row `skill` of list `list`, or null when either is out of range.
const cSkill* FindSkill(int list, int skill);

// The character's sense in a category of a list; 0 where it has none recorded.
int SenseOf(const SKILL_HOLDER& chara, int list, int categ);

// Row 0 never; the sense in the skill's category when testSense; then the class.
bool CanLearnSkill(const SKILL_HOLDER& chara, int list, int skill, bool testSense);

// Whether a place with slot rules `slot` accepts the skill.
bool PlaceAccepts(const SKILL_HOLDER& chara, int list, const cSlot& slot, int skill, bool testSense,
                  bool testDuplicates);

// Puts the skill into the first free slot place that accepts it, else (allies only)
// into the first free reserve place whose rules take its category and whose sense
// test passes. False when there is no such place.
bool PlaceSkill(SKILL_HOLDER& chara, int list, int skill, bool testDuplicates);
