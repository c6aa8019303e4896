#include "stage/stage_records.h"

#include "database/table_rows.h"
#include "kernel/serial_fields.h"

int cPutEnemy::Serialize(int op, const cSerial* other, cSerialFile* file, std::uint32_t version) {
  const auto* o = SerialOther<cPutEnemy>(other);
  SERIAL_FIELD(SerialInt(op, m_nEnemy, OTHER(m_nEnemy), file));
  SERIAL_FIELD(SerialInt(op, m_nX, OTHER(m_nX), file));
  SERIAL_FIELD(SerialInt(op, m_nY, OTHER(m_nY), file));
  if (version >= 46) SERIAL_FIELD(SerialInt(op, m_bGroup, OTHER(m_bGroup), file));
  SERIAL_FIELD(SerialInt(op, m_nGroup, OTHER(m_nGroup), file));
  if (version >= 52) {
    SERIAL_FIELD(SerialInt(op, m_bCharaId, OTHER(m_bCharaId), file));
    SERIAL_FIELD(SerialInt(op, m_nCharaId, OTHER(m_nCharaId), file));
  }
  SERIAL_FIELD(SerialRecordVector(op, m_vecMoveAI, OTHER(m_vecMoveAI), file));
  return 1;
}

int cPutEnemy::Load(cSerialFile* file) {
  if (!cSerial::Load(file)) return 0;
  // Before the flag, a group number alone made the enemy a group member.
  if (g_nFileVersion < 46) m_bGroup = m_nGroup != 0 ? 1 : 0;
  Clamp();
  return 1;
}

int cPutEnemy::Save(cSerialFile* file) {
  Clamp();
  return cSerial::Save(file);
}

void cPutEnemy::Clamp() {
  if (m_nEnemy < 0 || m_nEnemy >= EnemyRows()) m_nEnemy = 0;
  for (cMoveAI& ai : m_vecMoveAI) ai.FixRefs();
}

int cGroupPos::Serialize(int op, const cSerial* other, cSerialFile* file, std::uint32_t version) {
  const auto* o = SerialOther<cGroupPos>(other);
  SERIAL_FIELD(SerialInt(op, m_nCenterX, OTHER(m_nCenterX), file));
  SERIAL_FIELD(SerialInt(op, m_nCenterY, OTHER(m_nCenterY), file));
  SERIAL_FIELD(SerialString(op, m_strName, OTHER(m_strName), file));
  SERIAL_FIELD(SerialPairVector(op, m_vecPos, OTHER(m_vecPos), file));
  return 1;
}

int cGroupPos::Load(cSerialFile* file) {
  if (!cSerial::Load(file)) return 0;
  Clamp(StageWidth(), StageHeight());
  return 1;
}

int cGroupPos::Save(cSerialFile* file) {
  Clamp(StageWidth(), StageHeight());
  return cSerial::Save(file);
}

void cGroupPos::Clamp(int width, int height) {
  std::erase_if(m_vecPos, [=](const cMapPos& pos) { return pos.x >= width || pos.y >= height; });
  if (m_nCenterX >= width) m_nCenterX = 0;
  if (m_nCenterY >= height) m_nCenterY = 0;
}

int cEndCond::Serialize(int op, const cSerial* other, cSerialFile* file, std::uint32_t version) {
  const auto* o = SerialOther<cEndCond>(other);
  SERIAL_FIELD(SerialInt(op, m_nFocus, OTHER(m_nFocus), file));
  SERIAL_FIELD(SerialInt(op, m_nFocusChara, OTHER(m_nFocusChara), file));
  SERIAL_FIELD(SerialInt(op, m_nFocusGroup, OTHER(m_nFocusGroup), file));
  SERIAL_FIELD(SerialInt(op, m_nFocusX, OTHER(m_nFocusX), file));
  SERIAL_FIELD(SerialInt(op, m_nFocusY, OTHER(m_nFocusY), file));
  SERIAL_FIELD(SerialInt(op, m_nShowGroup, OTHER(m_nShowGroup), file));
  SERIAL_FIELD(SerialString(op, m_strText, OTHER(m_strText), file));
  return 1;
}

void cEndCond::Clamp(int groups, int width, int height) {
  if (m_nFocusGroup < 0 || m_nFocusGroup >= groups) m_nFocusGroup = 1;
  if (m_nFocusX >= width) m_nFocusX = width - 1;
  if (m_nFocusY >= height) m_nFocusY = height - 1;
  if (m_nShowGroup < 0 || m_nShowGroup >= groups) m_nShowGroup = 0;
}
