#include "stage/world_event.h"

#include "project/edit_config.h"
#include "kernel/serial_fields.h"

int cWorldEventPage::Serialize(int op, const cSerial* other, cSerialFile* file, std::uint32_t version) {
  const auto* o = SerialOther<cWorldEventPage>(other);
  SERIAL_FIELD(SerialInt(op, m_nType, OTHER(m_nType), file));
  SERIAL_FIELD(SerialInt(op, m_nGraphic, OTHER(m_nGraphic), file));
  SERIAL_FIELD(SerialInt(op, m_nStageNo, OTHER(m_nStageNo), file));
  SERIAL_FIELD(SerialInt(op, m_bPassable, OTHER(m_bPassable), file));
  SERIAL_FIELD(SerialInt(op, m_bReplay, OTHER(m_bReplay), file));
  SERIAL_FIELD(SerialInt(op, m_nGameClear, OTHER(m_nGameClear), file));
  SERIAL_FIELD(SerialInt(op, m_nCondStage, OTHER(m_nCondStage), file));
  SERIAL_FIELD(SerialInt(op, m_nCondVar, OTHER(m_nCondVar), file));
  SERIAL_FIELD(SerialInt(op, m_nCondValue, OTHER(m_nCondValue), file));
  SERIAL_FIELD(SerialInt(op, m_nCondCmp, OTHER(m_nCondCmp), file));
  if (version >= 54) {
    SERIAL_FIELD(SerialInt(op, m_bVariation, OTHER(m_bVariation), file));
    SERIAL_FIELD(SerialInt(op, m_nVarNo, OTHER(m_nVarNo), file));
    SERIAL_FIELD(SerialInt(op, m_nVarValue, OTHER(m_nVarValue), file));
  }
  if (version >= 107) SERIAL_FIELD(SerialString(op, m_strStageName, OTHER(m_strStageName), file));
  // The stage path has stayed last while fields went in before it.
  SERIAL_FIELD(SerialString(op, m_strStagePath, OTHER(m_strStagePath), file));
  return 1;
}

int cWorldEventPage::Load(cSerialFile* file) {
  if (!cSerial::Load(file)) return 0;
  if (g_nFileVersion < 106 && !m_strStagePath.empty()) m_strStagePath = WithStageExtension(m_strStagePath);
  if (g_nFileVersion < 107) m_strStageName.clear();
  return 1;
}

int cWorldEvent::Serialize(int op, const cSerial* other, cSerialFile* file, std::uint32_t version) {
  const auto* o = SerialOther<cWorldEvent>(other);
  SERIAL_FIELD(SerialInt(op, m_nX, OTHER(m_nX), file));
  SERIAL_FIELD(SerialInt(op, m_nY, OTHER(m_nY), file));
  SERIAL_FIELD(SerialString(op, m_strName, OTHER(m_strName), file));
  SERIAL_FIELD(SerialRecordVector(op, m_vecPage, OTHER(m_vecPage), file));
  return 1;
}
