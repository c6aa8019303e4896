#include "database/help.h"

#include "kernel/serial_fields.h"

int cEdHelpText::Serialize(int op, const cSerial* other, cSerialFile* file, std::uint32_t version) {
  const auto* o = SerialOther<cEdHelpText>(other);
  SERIAL_FIELD(SerialString(op, m_strText, OTHER(m_strText), file));
  return 1;
}

int cEdHelp::Serialize(int op, const cSerial* other, cSerialFile* file, std::uint32_t version) {
  const auto* o = SerialOther<cEdHelp>(other);
  SERIAL_FIELD(SerialString(op, m_strParent, OTHER(m_strParent), file));
  SERIAL_FIELD(SerialString(op, m_strTitle, OTHER(m_strTitle), file));
  SERIAL_FIELD(SerialRecordVector(op, m_vecText, OTHER(m_vecText), file));
  return 1;
}
