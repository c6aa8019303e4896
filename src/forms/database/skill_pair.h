#pragma once
// The two boxes that choose a skill: the first a skill list, the second a skill of
// that list, its rows from 1. A selection in the first box, once the form is ready,
// gives the second the skills of the chosen list and puts it on their first row.
// Names come from the applied tables; a form refills them when its page goes stale.
// The event forms number the rows as they number every row of a table.

#include "toolkit/dlg_class.h"

class cSkillPair {
 public:
  cSkillPair(unsigned listId, unsigned skillId, bool numbered = false)
      : m_nListId(listId), m_nSkillId(skillId), m_bNumbered(numbered) {}

  // The list box and the skill box, each declared where the form places it; the
  // caller adds its modifiers to the one just declared.
  cFormTable& DeclareList(cFormTable& F, const char* label, int* list);
  cFormTable& DeclareSkill(cFormTable& F, const char* label, int* skill);

  // The list box's rows and the skills of `list`; on a bound form, into both boxes.
  void FillLists(DLG_CLASS& form, int list);
  // The skill box's rows from the skills of `list`.
  void FillSkills(DLG_CLASS& form, int list);
  // The form's command: the skill box follows a user's choice of list.
  void OnCommand(DLG_CLASS& form, unsigned id, unsigned code);

 private:
  std::string Row(int number, const std::string& name) const;

  unsigned m_nListId, m_nSkillId;
  bool m_bNumbered;
  int* m_pSkill = nullptr;
  VECTOR_CLASS<std::string> m_vecListNames, m_vecSkillNames;
  VECTOR_CLASS<int> m_vecSkillValues;
};
