#pragma once
// The slot forms: DLG_SLOT, one slot of a skill list (which categories it takes and the
// symbol it shows while empty), and DLG_ORGSLOT, the slots a class uses in one list in
// place of the list's own.

#include "database/chara_class.h"
#include "toolkit/record_form.h"

class DLG_SLOT : public cRecordForm<cSlot> {
 public:
  enum : unsigned {
    kAny = 1201, kConds = 1202, kCateg = 1203, kInsert = 1204, kDelete = 1205, kShowAll = 1206,
    kEmptySymbol = 1207, kSymbolPreview = 1208,
  };
  // `list` is the skill list whose categories the slot names.
  DLG_SLOT(const cSlot& source, int list, QWidget* parent = nullptr);
  // The categories named as a list in edit holds them.
  DLG_SLOT(const cSlot& source, const VECTOR_CLASS<cCateg>& categs, QWidget* parent = nullptr);

 protected:
  void OnReady() override;
  void OnFormCommand(unsigned id, unsigned code) override;

 private:
  VECTOR_CLASS<std::string> m_vecCategNames;
  cAcqCond m_EditCond;
  CTRL_LIST_CLASS<cAcqCond> m_Conds;
};

class DLG_ORGSLOT : public cRecordForm<cOrgSlotList> {
 public:
  enum : unsigned { kOwn = 1221, kSlots = 1222, kNew = 1223, kEdit = 1224, kClear = 1225 };
  DLG_ORGSLOT(const cOrgSlotList& source, int list, QWidget* parent = nullptr);

 protected:
  void OnFormCommand(unsigned id, unsigned code) override;

 private:
  void EditSlot();
  int m_nList;
  CTRL_LIST_CLASS<cSlot> m_Slots;
};
