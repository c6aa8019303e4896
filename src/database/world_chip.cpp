#include "database/world_chip.h"

#include "kernel/serial_fields.h"

int cWorldChip::Serialize(int op, const cSerial* other, cSerialFile* file, std::uint32_t version) {
  const auto* o = SerialOther<cWorldChip>(other);
  SERIAL_FIELD(SerialInt(op, m_nID, OTHER(m_nID), file));
  SERIAL_FIELD(SerialInt(op, m_bNoMove, OTHER(m_bNoMove), file));
  SERIAL_FIELD(SerialInt(op, m_nGraphic, OTHER(m_nGraphic), file));
  SERIAL_FIELD(SerialString(op, m_strName, OTHER(m_strName), file));
  SERIAL_FIELD(SerialString(op, m_strReserved, OTHER(m_strReserved), file));
  return 1;
}
