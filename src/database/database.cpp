#include "database/database.h"

#include "kernel/serial_fields.h"

int cDatabase::Serialize(int op, const cSerial* other, cSerialFile* file, std::uint32_t version) {
  const auto* o = SerialOther<cDatabase>(other);
  if (version >= 99) SERIAL_FIELD(SerialRecordVector(op, m_vecCompatiType, OTHER(m_vecCompatiType), file));
  SERIAL_FIELD(SerialRecordVector(op, m_vecPtVal, OTHER(m_vecPtVal), file));
  SERIAL_FIELD(SerialRecordVector(op, m_vecCharaAnimPat, OTHER(m_vecCharaAnimPat), file));
  SERIAL_FIELD(SerialRecordVector(op, m_vecEffectAnimPat, OTHER(m_vecEffectAnimPat), file));
  SERIAL_FIELD(SerialRecordVector(op, m_vecPicture, OTHER(m_vecPicture), file));
  if (version >= 66) SERIAL_FIELD(SerialRecordVector(op, m_vecBack, OTHER(m_vecBack), file));
  SERIAL_FIELD(SerialRecordVector(op, m_vecSound, OTHER(m_vecSound), file));
  SERIAL_FIELD(SerialRecordVector(op, m_vecBgm, OTHER(m_vecBgm), file));
  if (version >= 211) SERIAL_FIELD(SerialRecordVector(op, m_vecHelp, OTHER(m_vecHelp), file));
  return 1;
}
