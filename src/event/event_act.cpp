#include "event/event_act.h"

#include "kernel/serial_fields.h"

int cEventAct::Serialize(int op, const cSerial* other, cSerialFile* file, std::uint32_t version) {
  const auto* o = SerialOther<cEventAct>(other);
  SERIAL_FIELD(SerialInt(op, m_nKind, OTHER(m_nKind), file));
  SERIAL_FIELD(SerialIntVector(op, m_vecInt, OTHER(m_vecInt), file));
  SERIAL_FIELD(SerialStringVector(op, m_vecStr, OTHER(m_vecStr), file));
  // Shop goods once lived in the action itself; the current format never writes them.
  if (version < 55) SERIAL_FIELD(SerialRecordVector(op, m_vecOldShopSkill, OTHER(m_vecOldShopSkill), file));
  return 1;
}

int cEventAct::Load(cSerialFile* file) {
  if (!cSerial::Load(file)) return 0;
  if (g_nFileVersion < kCurrentFormatVersion) MigrateEventAct(*this, g_nFileVersion);
  NormalizeEventAct(*this);
  return 1;
}

int cEventAct::Save(cSerialFile* file) {
  NormalizeEventAct(*this);
  return cSerial::Save(file);
}

void SetEventActDefaults(cEventAct& act) {
  const cEventActInfo& info = EventActInfoOf(act.m_nKind);
  act.m_vecInt = EventActDefaultInts(act.m_nKind);
  act.m_vecStr.assign(static_cast<std::size_t>(info.m_nStrCount), std::string());
}
