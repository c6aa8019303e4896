#pragma once
// A character: the shared base of the ally and enemy tables. The same record is a
// database entry and a living game character, so besides what the author types it holds
// resolved status ranges, growth tables by level, sense, places and skills to learn;
// the editor runs the game's own generation and levelling on copies to preview them.

#include <array>
#include <cstdint>
#include <string>

#include "database/chara_class.h"
#include "database/skill_acquisition.h"
#include "kernel/serial.h"
#include "kernel/shared_table.h"
#include "kernel/vector_class.h"

// A skill a character learns on reaching a level.
class cLearnSkill : public cSerial {
 public:
  cLearnSkill() {
    Reset();
    m_nSkill = 1;
  }
  SERIAL_RECORD(cLearnSkill)
  int Serialize(int op, const cSerial* other, cSerialFile* file, std::uint32_t version) override;

  int m_nList;
  int m_nSkill;
  int m_nLevel;
};

using SENSE_TABLE = VECTOR_CLASS<VECTOR_CLASS<std::int32_t>>;
using PLACE_TABLE = VECTOR_CLASS<VECTOR_CLASS<cAcqSkill>>;

class cChara : public cSerial {
 public:
  static constexpr int kStatusCount = 9;
  static constexpr int kEquipCount = 3;
  static constexpr int kGeneratedVersion = 290;
  using GROWTH_TABLE = std::array<VECTOR_CLASS<std::int32_t>, kStatusCount>;
  // A default character builds the places of every skill list; a form that only needs
  // a record to bind its controls to copies a row instead, which shares them.
  static constexpr bool kDefaultBuildsPlaces = true;

  cChara() {
    Reset();
    cChara::SetDefault();
  }
  SERIAL_RECORD(cChara)

  int Serialize(int op, const cSerial* other, cSerialFile* file, std::uint32_t version) override;
  virtual void SetDefault();

  // Repairs references into the class, party variable, compatibility and skill list
  // tables and sizes every derived vector to them. Nothing happens while the class
  // table is empty.
  void FixRefs();
  // Sizes the places of every list by its slot type; with bClear every place is emptied.
  void BuildPlaces(int bClear);

  // Growth and levelling, as the game runs them.
  void ResolveStatus(int bKeepLevel);
  void ResetParams();
  void Generate(int bRandom, int nScout, int bMean, int bTableOnly, const cChara& src);
  void LearnDueSkills(int nLevel);
  void GainEX(int bPreview);
  void LevelTo(int nLevel, int nEX, int bPreview, int bKeep);
  void ApplyRates(const int* anRate, int bAll);
  void RecalcStatus();

  // Empties the tables that FixRefs sizes from the other tables: places, sense and
  // growth. A record about to be read needs none of them.
  void DropDerivedTables();

  // The view of this character that the skill placing rules work on.
  SKILL_HOLDER Holder();
  // The class row, or null when it is 0 or past the table.
  const cClass* Class() const;

  int m_nID;
  int m_bRandomName;
  int m_nNameFile;
  int m_bEnemy;
  int m_nReserved;
  int m_nClass;
  int m_nLevel;
  int m_nLevelMax;
  int m_nEX;
  int m_anInit[kStatusCount];
  int m_anFinal[kStatusCount];
  int m_anBaseInit[kStatusCount];
  int m_anBaseFinal[kStatusCount];
  int m_anFrac[kStatusCount];
  int m_anFracInit[kStatusCount];
  int m_abGrow[kStatusCount];
  int m_bRandomGrowth;
  int m_bRandomSense;
  int m_bRandomSkill;
  int m_nGrowthTime;
  int m_nBuiltVersion;
  cParam m_aParam[kStatusCount];
  int m_anState1;
  int m_anState2[3];
  int m_anState3[4];
  int m_nState4;
  int m_nState5;
  int m_anState6[2];
  int m_anState7[3];
  int m_nCompatiType;
  int m_bFixEX;
  int m_nFixEX;
  int m_nMoneyVal;
  int m_nMoney;
  int m_anEquip[kEquipCount][2];  // list row, place index in that list's slots
  std::string m_strName;
  std::string m_strDesc;
  // The derived tables are shared by copies until one changes them: they are most of a
  // character's memory, and what a copy of a character table would spend its time on.
  cSharedTable<GROWTH_TABLE> m_avecGrow;        // per status, hundredths gained on reaching level n, at n-1
  cSharedTable<GROWTH_TABLE> m_avecRandomGrow;  // the random part, same shape
  cSharedTable<SENSE_TABLE> m_vecvecSense;
  cSharedTable<SENSE_TABLE> m_vecvecSenseBase;
  cSharedTable<SENSE_TABLE> m_vecvecSenseAdd;
  cSharedTable<PLACE_TABLE> m_vecvecSlot;
  cSharedTable<PLACE_TABLE> m_vecvecReserve;
  VECTOR_CLASS<cLearnSkill> m_vecLearnSkill;
};

// What a row of a character table being read starts from: its defaults without the
// derived tables, which the file replaces and the load's repair sizes anew.
template <class Row>
Row RowForReading() {
  Row row;
  row.DropDerivedTables();
  return row;
}

// The ceiling of status `i` in the system settings.
int StatusMax(int i);
// v * r / 100 rounded half away from zero.
int StatusPercent(int v, int r);
