#pragma once
// A class: the template of a character. Characters point at one class and fall back on
// it for every status left at 0; the class also gives the sense in every category of
// every skill list, the resistance per element, the normal attack and, per list,
// optionally slots of its own. Row 0 of the class table is reserved.

#include <cstdint>
#include <string>

#include "database/skill_list.h"
#include "kernel/serial.h"
#include "kernel/vector_class.h"

constexpr const char* kClassPath = "data\\database\\Class.dat";

// Slots of one skill list that a class uses in place of the list's own.
class cOrgSlotList : public cSerial {
 public:
  cOrgSlotList() {
    Reset();
    m_vecSlot.resize(1);
  }
  SERIAL_RECORD(cOrgSlotList)
  int Serialize(int op, const cSerial* other, cSerialFile* file, std::uint32_t version) override;

  int m_bOwn;
  VECTOR_CLASS<cSlot> m_vecSlot;
};

// One status value of a character.
class cParam : public cSerial {
 public:
  cParam() { Reset(); }
  SERIAL_RECORD(cParam)
  int Serialize(int op, const cSerial* other, cSerialFile* file, std::uint32_t version) override;

  int m_nType;   // index in STATUS9
  int m_nBase;   // the character's own value
  int m_nValue;  // after equipment
};

class cClass : public cSerial {
 public:
  static constexpr int kStatusCount = 9;
  static constexpr int kDefaultResist = 100;

  cClass() { SetDefault(); }
  SERIAL_RECORD(cClass)

  void SetDefault();
  // Sizes the sense vectors, the element resistances and the own slot lists to the
  // skill list and element tables as they stand now.
  void FixRefs();

  int Serialize(int op, const cSerial* other, cSerialFile* file, std::uint32_t version) override;
  int Load(cSerialFile* file) override;
  int Save(cSerialFile* file) override;

  int m_nID;
  int m_nGraphic;
  std::int16_t m_sHue;
  std::int16_t m_sSaturation;
  std::int16_t m_sValue;
  int m_nScale;
  int m_nMove;
  int m_bFly;
  int m_nExRate;
  int m_nLevelMax;
  int m_anInit[kStatusCount];
  int m_anFinal[kStatusCount];  // 0: the status stays at its initial value
  int m_nAtkList;
  int m_nAtkSkill;
  int m_bNoAttack;
  VECTOR_CLASS<cOrgSlotList> m_vecOrgSlot;  // one per skill list
  std::string m_strName;
  VECTOR_CLASS<VECTOR_CLASS<std::int32_t>> m_vecvecSense;  // by list, then category
  VECTOR_CLASS<std::int32_t> m_vecElemResist;               // one per element row
};

// Resizes `sense` to the skill lists of the project and each inner vector to its list's
// categories; new entries are 0. Shared by classes and characters.
void FitSenseToLists(VECTOR_CLASS<VECTOR_CLASS<std::int32_t>>& sense);
// Whether FitSenseToLists would leave `sense` as it is.
bool SenseFitsLists(const VECTOR_CLASS<VECTOR_CLASS<std::int32_t>>& sense);
