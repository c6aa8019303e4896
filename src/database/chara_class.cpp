#include "database/chara_class.h"

#include "database/table_rows.h"
#include "kernel/serial_fields.h"
#include "project/project_globals.h"

int cOrgSlotList::Serialize(int op, const cSerial* other, cSerialFile* file, std::uint32_t version) {
  const auto* o = SerialOther<cOrgSlotList>(other);
  SERIAL_FIELD(SerialInt(op, m_bOwn, OTHER(m_bOwn), file));
  SERIAL_FIELD(SerialRecordVector(op, m_vecSlot, OTHER(m_vecSlot), file));
  return 1;
}

int cParam::Serialize(int op, const cSerial* other, cSerialFile* file, std::uint32_t version) {
  const auto* o = SerialOther<cParam>(other);
  SERIAL_FIELD(SerialInt(op, m_nType, OTHER(m_nType), file));
  SERIAL_FIELD(SerialInt(op, m_nBase, OTHER(m_nBase), file));
  SERIAL_FIELD(SerialInt(op, m_nValue, OTHER(m_nValue), file));
  return 1;
}

bool SenseFitsLists(const VECTOR_CLASS<VECTOR_CLASS<std::int32_t>>& sense) {
  if (sense.size() != g_vecSkillList.size()) return false;
  for (std::size_t list = 0; list < sense.size(); ++list)
    if (sense[list].size() != g_vecSkillList[list].m_vecCateg.size()) return false;
  return true;
}

void FitSenseToLists(VECTOR_CLASS<VECTOR_CLASS<std::int32_t>>& sense) {
  sense.resize(g_vecSkillList.size());
  for (std::size_t list = 0; list < sense.size(); ++list) {
    sense[list].resize(g_vecSkillList[list].m_vecCateg.size(), 0);
  }
}

void cClass::SetDefault() {
  Reset();
  FixRefs();
  m_nGraphic = 1;
  m_nScale = 200;
  m_nMove = 4;
  m_nExRate = 100;
  m_nLevelMax = 30;
  for (int i = 0; i < kStatusCount; ++i) m_anInit[i] = m_anFinal[i] = 1;
  m_vecElemResist.assign(m_vecElemResist.size(), kDefaultResist);
  m_nAtkList = 0;
  m_nAtkSkill = 1;
  for (cOrgSlotList& own : m_vecOrgSlot) own = cOrgSlotList();
}

void cClass::FixRefs() {
  FitSenseToLists(m_vecvecSense);
  m_vecElemResist.resize(static_cast<std::size_t>(ElementRows()), kDefaultResist);
  m_vecOrgSlot.resize(g_vecSkillList.size());
}

int cClass::Serialize(int op, const cSerial* other, cSerialFile* file, std::uint32_t version) {
  const auto* o = SerialOther<cClass>(other);
  SERIAL_FIELD(SerialInt(op, m_nID, OTHER(m_nID), file));
  SERIAL_FIELD(SerialInt(op, m_nGraphic, OTHER(m_nGraphic), file));
  if (version >= 40) {
    SERIAL_FIELD(SerialShort(op, m_sHue, OTHER(m_sHue), file));
    SERIAL_FIELD(SerialShort(op, m_sSaturation, OTHER(m_sSaturation), file));
    SERIAL_FIELD(SerialShort(op, m_sValue, OTHER(m_sValue), file));
  }
  if (version >= 36) SERIAL_FIELD(SerialInt(op, m_nScale, OTHER(m_nScale), file));
  SERIAL_FIELD(SerialInt(op, m_nMove, OTHER(m_nMove), file));
  SERIAL_FIELD(SerialInt(op, m_bFly, OTHER(m_bFly), file));
  SERIAL_FIELD(SerialInt(op, m_nExRate, OTHER(m_nExRate), file));
  SERIAL_FIELD(SerialInt(op, m_nLevelMax, OTHER(m_nLevelMax), file));
  SERIAL_FIELD(SerialIntArray(op, m_anInit, o ? o->m_anInit : nullptr, kStatusCount, file));
  SERIAL_FIELD(SerialIntArray(op, m_anFinal, o ? o->m_anFinal : nullptr, kStatusCount, file));
  if (version < 35) {
    for (int i = 0; i < 3; ++i) SERIAL_FIELD(SerialInt(op, g_nScratchInt, o ? &g_nScratchInt : nullptr, file));
  }
  if (version >= 16) {
    SERIAL_FIELD(SerialInt(op, m_nAtkList, OTHER(m_nAtkList), file));
    SERIAL_FIELD(SerialInt(op, m_nAtkSkill, OTHER(m_nAtkSkill), file));
  }
  if (version >= 116) SERIAL_FIELD(SerialInt(op, m_bNoAttack, OTHER(m_bNoAttack), file));
  if (version >= 83) SERIAL_FIELD(SerialRecordVector(op, m_vecOrgSlot, OTHER(m_vecOrgSlot), file));
  SERIAL_FIELD(SerialString(op, m_strName, OTHER(m_strName), file));
  SERIAL_FIELD(SerialVectorVector(op, m_vecvecSense, OTHER(m_vecvecSense), file));
  SERIAL_FIELD(SerialIntVector(op, m_vecElemResist, OTHER(m_vecElemResist), file));
  return 1;
}

int cClass::Load(cSerialFile* file) {
  if (!cSerial::Load(file)) return 0;
  if (g_nFileVersion < 36) m_nScale = 200;
  FixRefs();
  return 1;
}

int cClass::Save(cSerialFile* file) {
  FixRefs();
  return cSerial::Save(file);
}
