#include "project/system_records.h"

#include "kernel/serial_fields.h"

int cCmd::Serialize(int op, const cSerial* other, cSerialFile* file, std::uint32_t version) {
  const auto* o = SerialOther<cCmd>(other);
  SERIAL_FIELD(SerialString(op, m_strName, OTHER(m_strName), file));
  SERIAL_FIELD(SerialInt(op, m_bEnabled, OTHER(m_bEnabled), file));
  return 1;
}

int cTextRow::Serialize(int op, const cSerial* other, cSerialFile* file, std::uint32_t version) {
  const auto* o = SerialOther<cTextRow>(other);
  SERIAL_FIELD(SerialString(op, m_strText, OTHER(m_strText), file));
  return 1;
}

int cParamInfo::Serialize(int op, const cSerial* other, cSerialFile* file, std::uint32_t version) {
  const auto* o = SerialOther<cParamInfo>(other);
  SERIAL_FIELD(SerialString(op, m_strName, OTHER(m_strName), file));
  SERIAL_FIELD(SerialInt(op, m_bShow, OTHER(m_bShow), file));
  SERIAL_FIELD(SerialInt(op, m_nDigits, OTHER(m_nDigits), file));
  if (version >= 9) SERIAL_FIELD(SerialInt(op, m_nMax, OTHER(m_nMax), file));
  return 1;
}

void cParamInfo::DeriveDigits() { m_nDigits = DecimalDigits(m_nMax); }

int cEdBack_Unused::Serialize(int op, const cSerial* other, cSerialFile* file, std::uint32_t version) {
  const auto* o = SerialOther<cEdBack_Unused>(other);
  SERIAL_FIELD(SerialInt(op, m_nValue, OTHER(m_nValue), file));
  SERIAL_FIELD(SerialDouble(op, m_dMin, OTHER(m_dMin), file));
  SERIAL_FIELD(SerialDouble(op, m_dMax, OTHER(m_dMax), file));
  return 1;
}

int DecimalDigits(int value) {
  int digits = 1;
  for (int i = 0; i < 10 && (value /= 10) != 0; ++i) ++digits;
  return digits;
}
