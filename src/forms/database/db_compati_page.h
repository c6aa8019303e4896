#pragma once
// DLG_DBSKILLTYPE, page 4 of the database sheet: the compatibility types, each a set of
// rules against other types; and DLG_INFL, "相性", one rule.

#include "database/compati_type.h"
#include "forms/table_page.h"
#include "toolkit/record_form.h"

class DLG_INFL : public cRecordForm<cInfl> {
 public:
  enum : unsigned { kTarget = 1401, kWhat, kOp, kValue };
  DLG_INFL(const cInfl& source, QWidget* parent = nullptr);

 private:
  VECTOR_CLASS<std::string> m_vecTypeNames;
  VECTOR_CLASS<int> m_vecTypeValues;
};

class DLG_DBSKILLTYPE : public cTablePage<cCompatiType> {
 public:
  enum : unsigned { kList = 1410, kName, kRules, kInsert, kEdit, kDelete };
  DLG_DBSKILLTYPE();

 protected:
  void OnFormCommand(unsigned id, unsigned code) override;

 private:
  // The rule of the selected row through DLG_INFL; a rule just inserted goes again on
  // Cancel.
  void EditRule(bool inserted);
  CTRL_LIST_CLASS<cInfl> m_Rules;
};
