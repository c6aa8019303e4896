#pragma once
// A skill list: a complete skill system of its own, with its skills, categories, slot
// rules and the texts of its skill menu in the game. A project has up to 16.

#include <string>

#include "database/skill.h"
#include "kernel/vector_class.h"
#include "project/system_records.h"

enum eSlotType : int { kSlotLimited = 0, kSlotUnlimited = 1, kSlotNone = 2 };
enum : int { kSceneCount = 11 };

class cCateg : public cSerial {
 public:
  cCateg() {
    Reset();
    m_dRate = 1.0;
  }
  SERIAL_RECORD(cCateg)
  int Serialize(int op, const cSerial* other, cSerialFile* file, std::uint32_t version) override;
  int Load(cSerialFile* file) override;

  int m_nSymbol;
  std::string m_strName;
  double m_dRate;
};

class cAcqCond : public cSerial {
 public:
  cAcqCond() { Reset(); }
  SERIAL_RECORD(cAcqCond)
  int Serialize(int op, const cSerial* other, cSerialFile* file, std::uint32_t version) override;

  int m_nCateg;
};

class cSlot : public cSerial {
 public:
  cSlot() {
    Reset();
    m_bAnyCateg = 1;
    m_bShowAllSymbols = 1;
  }
  SERIAL_RECORD(cSlot)
  int Serialize(int op, const cSerial* other, cSerialFile* file, std::uint32_t version) override;

  int m_bAnyCateg;
  int m_bShowAllSymbols;
  int m_nEmptySymbol;
  VECTOR_CLASS<cAcqCond> m_vecAcqCond;
};

// One place of a character in a list: in a slot or in the reserve.
class cAcqSkill : public cSerial {
 public:
  cAcqSkill() {
    Reset();
    m_Slot = cSlot();  // Reset zeroed it; a new place has the default slot rules
  }
  SERIAL_RECORD(cAcqSkill)
  int Serialize(int op, const cSerial* other, cSerialFile* file, std::uint32_t version) override;

  int m_nList;
  int m_nSkill;  // 0: the place is empty
  int m_nUses;
  int m_bEquip;
  cSlot m_Slot;
};

// An entry of a shop's goods in old event actions.
class cShopSkill : public cSerial {
 public:
  cShopSkill() {
    Reset();
    m_nSkill = 1;
    FixRefs();
  }
  SERIAL_RECORD(cShopSkill)
  int Serialize(int op, const cSerial* other, cSerialFile* file, std::uint32_t version) override;
  void FixRefs();

  int m_nList;
  int m_nSkill;
  int m_nValue1;
  int m_nValue2;
};

class cSkillList : public cSerial {
 public:
  cSkillList() { SetDefault(); }
  SERIAL_RECORD(cSkillList)

  void SetDefault();
  // Category references beyond the list's categories: skills go to category 0, slot
  // conditions are removed.
  void FixRefs();

  int Serialize(int op, const cSerial* other, cSerialFile* file, std::uint32_t version) override;
  int Load(cSerialFile* file) override;
  int Save(cSerialFile* file) override;

  int m_nID;
  std::string m_strName;
  int m_nSlotType;
  int m_nFreeSlots;
  int m_bReserve;
  int m_nReserveMax;
  int m_bHeaderSP;
  int m_bSymbolSense;
  int m_bStatusSense;
  std::string m_strSenseName;
  int m_nReserved;
  int m_bSameSkill;
  int m_bRecoverUses;
  int m_bStockAsLearn;
  int m_nMoneyVal;
  int m_bForgetOnDeath;
  int m_bForgetOnRelease;
  int m_bF8Learn;
  int m_bF8Stock;
  int m_bForgetToStock;
  int m_bConfirmLearn;
  int m_bConfirmForget;
  VECTOR_CLASS<cSlot> m_vecSlot;
  VECTOR_CLASS<cCateg> m_vecCateg;
  VECTOR_CLASS<std::int32_t> m_vecScene;
  VECTOR_CLASS<cCmd> m_vecMenuCmd;
  VECTOR_CLASS<cCmd> m_vecLearnCmd;
  VECTOR_CLASS<cCmd> m_vecSellCmd;
  VECTOR_CLASS<cCmd> m_vecForgetCmd;
  VECTOR_CLASS<cSkill> m_vecSkill;
};

// After a load: each list's number is its row, each skill's its row in its list. The
// numbers in the file are not trusted.
void NumberSkillLists(VECTOR_CLASS<cSkillList>& lists);

// Labels as the forms show them, each table ending in an empty entry.
extern const char* const kSlotTypeLabels[];
extern const char* const kSceneLabels[];
