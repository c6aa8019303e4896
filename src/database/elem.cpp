#include "database/elem.h"

#include "kernel/serial_fields.h"

int cElem::Serialize(int op, const cSerial* other, cSerialFile* file, std::uint32_t version) {
  const auto* o = SerialOther<cElem>(other);
  SERIAL_FIELD(SerialInt(op, m_nReserved, OTHER(m_nReserved), file));
  SERIAL_FIELD(SerialString(op, m_strName, OTHER(m_strName), file));
  return 1;
}
