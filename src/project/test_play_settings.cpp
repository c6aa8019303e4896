#include "project/test_play_settings.h"

#include "kernel/serial_fields.h"

void cTestPlay::Init() {
  Reset();
  m_bAutoFind = 1;
  m_nTraining = 2;
}

int cTestPlay::Serialize(int op, const cSerial* other, cSerialFile* file, std::uint32_t version) {
  const auto* o = SerialOther<cTestPlay>(other);
  if (version >= 221) {
    SERIAL_FIELD(SerialInt(op, m_bAutoFind, OTHER(m_bAutoFind), file));
    SERIAL_FIELD(SerialString(op, m_strGamePath, OTHER(m_strGamePath), file));
  }
  SERIAL_FIELD(SerialInt(op, m_bNoRandomGrowth, OTHER(m_bNoRandomGrowth), file));
  SERIAL_FIELD(SerialInt(op, m_bNoRandomSense, OTHER(m_bNoRandomSense), file));
  SERIAL_FIELD(SerialInt(op, m_nRandomSkill, OTHER(m_nRandomSkill), file));
  SERIAL_FIELD(SerialInt(op, m_nSkillLevel, OTHER(m_nSkillLevel), file));
  SERIAL_FIELD(SerialInt(op, m_nTraining, OTHER(m_nTraining), file));
  return 1;
}
