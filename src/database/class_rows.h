#pragma once
// The row texts of the database pages' lists and of their sub-forms, in CP932. They
// read the skill lists and elements as the tables stand (what the sheet last applied).

#include <cstdint>
#include <string>

#include "database/chara.h"
#include "database/chara_class.h"

// "無制限" for a slot open to every category, else "%s " with each condition's
// category name. A condition naming a category past the list's end is set to 0 here,
// in the record, as the text is made.
std::string SummarySlot(cSlot& slot, const cSkillList& list);

// "%s - " with the list's name, then "%s%d " per category with its name and the sense.
std::string SenseRowText(int list, const VECTOR_CLASS<std::int32_t>& sense);
// "%s %d": the element's name and the value (a resistance, a rate).
std::string ElemValueRowText(int elem, int value);
// "%s - " with the list's name, then each slot's summary followed by " ".
std::string OrgSlotRowText(int list, cOrgSlotList& slots);
// "%s %d": the category's name in list `list` and its sense.
std::string CategValueRowText(int list, int categ, int value);
// The name of category `categ` of list `list`; empty where either is missing.
std::string CategName(int list, int categ);
// "LV%d %s-%s": the level, the name of the skill's category and the skill's name.
std::string LearnSkillRowText(const cLearnSkill& learn);
