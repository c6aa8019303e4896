#pragma once
// What the ten pages of the game-wide settings share. They show g_System itself, with
// no working copy: a control's value reaches the record only when the sheet applies,
// so a sheet cancelled leaves the record as it was. The shapes that repeat over the
// pages (a menu's rows, the nine status values, the two sides of a battle, a term, a
// choice from another table) are written once here. Every declaration notes the field
// of the record it shows by the name the record's own walk gives it, so that a field no
// page shows can be found.

#include <array>
#include <functional>
#include <string>
#include <type_traits>
#include <vector>

#include "forms/table_page.h"
#include "project/project_globals.h"
#include "project/system.h"
#include "project/system_labels.h"

// One field of cSystem a page shows; `row` is the element of a list, -1 the whole field.
struct cSystemFieldUse {
  std::string name;
  int row = -1;
};

// A list of g_System with the name its walk gives it.
template <class T>
struct cSystemRows {
  VECTOR_CLASS<T>* rows;
  VECTOR_CLASS<T> cSystem::*member;
  const char* name;
};

// The field `member` of g_System, noted as shown by this page.
#define SYSTEM_FIELD(member) Use(&g_System.member, #member)
#define SYSTEM_ROWS(member) cSystemRows<std::remove_reference_t<decltype(g_System.member[0])>>{&g_System.member, &cSystem::member, #member}

// The tables whose names fill a page's choice boxes.
enum class eSystemNames { kPartyVars, kMusic, kBacks, kCount };

class cSystemPage : public cDatabasePage {
 public:
  explicit cSystemPage(const char* title);
  // The page's controls into g_System, if the page was ever shown.
  void CommitPage() override;
  const std::vector<cSystemFieldUse>& FieldUses() const { return m_vecUse; }

 protected:
  template <class T>
  T* Use(T* field, const char* name, int row = -1) {
    m_vecUse.push_back({name, row});
    return field;
  }
  // A fresh id for a control no rule names.
  unsigned NewId() { return m_nNextId++; }

  // --- the shapes ---
  // A menu in a group of its own: per command a check (offered or not) and its words,
  // which are edited while the check is on and, with `alsoOffBy`, that control off.
  void MenuGroup(const char* title, cSystemRows<cCmd> menu, int limit, unsigned alsoOffBy = 0);
  // The same rows in the group open now.
  void MenuRows(cSystemRows<cCmd> menu, int limit, unsigned alsoOffBy = 0);
  // A term of the game, row `row` of m_vecTerm, labelled; `name` where the label alone
  // does not say what it is.
  void Term(int row, const char* label, const char* name = nullptr);
  // The two answers of a question of the game in a group of their own.
  void Question(const char* title, int yesRow, int noRow);
  // The nine status values of an array, three a row.
  template <class T>
  void NineStatus(T (&values)[kSystemStatusCount], T min, T max, T step = 1);
  // A value of each side of a battle, the attacker's and the defender's, with the ids
  // `firstId` and the next.
  void TwoSides(const char* label, int (&values)[2], int min, int max, unsigned firstId, std::function<bool()> enabled);
  // "label lower ～ upper" in one row, or with the upper bound's own label.
  void Range(const char* label, int* low, int* high, int min, int max, const char* highLabel = "～");
  // A choice among the rows of another table, from its row 0, refilled when stale.
  void NameCombo(unsigned id, const char* label, int* field, eSystemNames names);

  // The record waits for the sheet's apply.
  void ApplyControls() override {}
  void OnReady() override { m_bShown = true; }
  void OnSetActive() override;

 private:
  void FillNames();
  std::vector<cSystemFieldUse> m_vecUse;
  std::array<VECTOR_CLASS<std::string>, static_cast<int>(eSystemNames::kCount)> m_aNames;
  std::vector<std::pair<unsigned, eSystemNames>> m_vecNameCombo;
  unsigned m_nNextId = 3000;
  bool m_bShown = false;
};

template <class T>
void cSystemPage::NineStatus(T (&values)[kSystemStatusCount], T min, T max, T step) {
  for (int i = 0; i < kSystemStatusCount; ++i) {
    Table().EditVal<T>(NewId(), kSystemStatusLabels[i], &values[i], min, max, step);
    if (i % 3 == 2) Table().Row();
  }
}

// The fields of cSystem no page shows: stored and carried along, or derived.
const std::vector<std::string>& SystemFieldsWithoutLabel();
