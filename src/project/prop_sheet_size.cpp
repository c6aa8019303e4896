#include "project/prop_sheet_size.h"

#include "kernel/serial_fields.h"

int cPropSheetSize::Serialize(int op, const cSerial* other, cSerialFile* file, std::uint32_t version) {
  const auto* o = SerialOther<cPropSheetSize>(other);
  SERIAL_FIELD(SerialInt(op, m_nOsMajor, OTHER(m_nOsMajor), file));
  SERIAL_FIELD(SerialInt(op, m_nOsMinor, OTHER(m_nOsMinor), file));
  SERIAL_FIELD(SerialString(op, m_strFontFace, OTHER(m_strFontFace), file));
  SERIAL_FIELD(SerialInt(op, m_nFontWidth, OTHER(m_nFontWidth), file));
  SERIAL_FIELD(SerialInt(op, m_nFontHeight, OTHER(m_nFontHeight), file));
  SERIAL_FIELD(SerialDouble(op, m_dRateX, OTHER(m_dRateX), file));
  SERIAL_FIELD(SerialDouble(op, m_dRateY, OTHER(m_dRateY), file));
  return 1;
}
