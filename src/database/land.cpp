#include "database/land.h"

#include "database/table_rows.h"
#include "kernel/serial_fields.h"

int cLand::Serialize(int op, const cSerial* other, cSerialFile* file, std::uint32_t version) {
  const auto* o = SerialOther<cLand>(other);
  SERIAL_FIELD(SerialInt(op, m_nID, OTHER(m_nID), file));
  SERIAL_FIELD(SerialInt(op, m_nMoveCost, OTHER(m_nMoveCost), file));
  SERIAL_FIELD(SerialInt(op, m_bNoMove, OTHER(m_bNoMove), file));
  SERIAL_FIELD(SerialInt(op, m_nGraphic, OTHER(m_nGraphic), file));
  SERIAL_FIELD(SerialInt(op, m_bPercent, OTHER(m_bPercent), file));
  SERIAL_FIELD(SerialIntArray(op, m_anStatus, o ? o->m_anStatus : nullptr, kStatusCount, file));
  if (version >= 94) SERIAL_FIELD(SerialIntVector(op, m_vecElemRate, OTHER(m_vecElemRate), file));
  SERIAL_FIELD(SerialInt(op, m_nSpecial, OTHER(m_nSpecial), file));
  SERIAL_FIELD(SerialInt(op, m_nSpecialValue, OTHER(m_nSpecialValue), file));
  SERIAL_FIELD(SerialInt(op, m_bTraining, OTHER(m_bTraining), file));
  SERIAL_FIELD(SerialString(op, m_strName, OTHER(m_strName), file));
  SERIAL_FIELD(SerialString(op, m_strDesc, OTHER(m_strDesc), file));
  if (version < 66) SERIAL_FIELD(SerialString(op, g_strScratch, o ? &g_strScratch : nullptr, file));
  if (version >= 66) SERIAL_FIELD(SerialInt(op, m_nBack, OTHER(m_nBack), file));
  return 1;
}

int cLand::Load(cSerialFile* file) {
  if (!cSerial::Load(file)) return 0;
  // Files before the rates and before the background carry nothing to migrate: the
  // element starts from the constructor's defaults and FixRefs sizes the rates.
  FixRefs();
  return 1;
}

int cLand::Save(cSerialFile* file) {
  FixRefs();
  return cSerial::Save(file);
}

void cLand::FixRefs() {
  if (m_nMoveCost < 1) m_nMoveCost = 1;
  // A negative row is no row either; it would index the table like one beyond the end.
  if (m_nBack < 0 || m_nBack >= BackRows()) m_nBack = 1;
  const std::size_t elements = static_cast<std::size_t>(ElementRows());
  if (m_vecElemRate.size() != elements) m_vecElemRate.resize(elements, kDefaultElemRate);
}

void cLand::SetDefault() {
  Reset();
  FixRefs();
  m_nBack = 1;
  m_nMoveCost = 1;
  m_bTraining = 1;
  for (std::int32_t& rate : m_vecElemRate) rate = kDefaultElemRate;
}
