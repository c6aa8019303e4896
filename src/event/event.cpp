#include "event/event.h"

#include "database/table_rows.h"
#include "kernel/serial_fields.h"

cEventPage::cEventPage() {
  Reset();
  m_nPosGroup = 1;
  NormalizeEventPage(*this);
}

void NormalizeEventPage(cEventPage& page) {
  if (page.m_nPosGroup >= GroupPosRows()) page.m_nPosGroup = 0;
  if (page.m_nFriendCond >= FriendRows()) page.m_nFriendCond = 0;
}

int cEventPage::Serialize(int op, const cSerial* other, cSerialFile* file, std::uint32_t version) {
  const auto* o = SerialOther<cEventPage>(other);
  SERIAL_FIELD(SerialInt(op, m_nGraphic, OTHER(m_nGraphic), file));
  // Before 27 a page had one turn value and no more.
  if (version >= 27) SERIAL_FIELD(SerialInt(op, m_bTurnCondA, OTHER(m_bTurnCondA), file));
  SERIAL_FIELD(SerialInt(op, m_nTurnABase, OTHER(m_nTurnABase), file));
  if (version >= 27) {
    SERIAL_FIELD(SerialInt(op, m_nTurnAStep, OTHER(m_nTurnAStep), file));
    SERIAL_FIELD(SerialInt(op, m_bTurnCondB, OTHER(m_bTurnCondB), file));
    SERIAL_FIELD(SerialInt(op, m_nTurnBMin, OTHER(m_nTurnBMin), file));
    SERIAL_FIELD(SerialInt(op, m_nTurnBMax, OTHER(m_nTurnBMax), file));
  }
  SERIAL_FIELD(SerialInt(op, m_bEventVarCond, OTHER(m_bEventVarCond), file));
  SERIAL_FIELD(SerialInt(op, m_nEventVarValue, OTHER(m_nEventVarValue), file));
  SERIAL_FIELD(SerialInt(op, m_nEventVarCmp, OTHER(m_nEventVarCmp), file));
  SERIAL_FIELD(SerialInt(op, m_nCommonVar, OTHER(m_nCommonVar), file));
  SERIAL_FIELD(SerialInt(op, m_nCommonVarValue, OTHER(m_nCommonVarValue), file));
  SERIAL_FIELD(SerialInt(op, m_nCommonVarCmp, OTHER(m_nCommonVarCmp), file));
  SERIAL_FIELD(SerialInt(op, m_bFirstTryOnly, OTHER(m_bFirstTryOnly), file));
  SERIAL_FIELD(SerialInt(op, m_nTargetRange, OTHER(m_nTargetRange), file));
  SERIAL_FIELD(SerialInt(op, m_nTargetChara, OTHER(m_nTargetChara), file));
  SERIAL_FIELD(SerialInt(op, m_nTargetExist, OTHER(m_nTargetExist), file));
  if (version >= 42) SERIAL_FIELD(SerialInt(op, m_nFriendCond, OTHER(m_nFriendCond), file));
  SERIAL_FIELD(SerialInt(op, m_nPosGroup, OTHER(m_nPosGroup), file));
  if (version >= 114) {
    SERIAL_FIELD(SerialInt(op, m_bEnemyGroupCond, OTHER(m_bEnemyGroupCond), file));
    SERIAL_FIELD(SerialInt(op, m_nEnemyGroup, OTHER(m_nEnemyGroup), file));
    SERIAL_FIELD(SerialInt(op, m_bEnemyIdCond, OTHER(m_bEnemyIdCond), file));
    SERIAL_FIELD(SerialInt(op, m_nEnemyId, OTHER(m_nEnemyId), file));
  }
  SERIAL_FIELD(SerialInt(op, m_nTiming, OTHER(m_nTiming), file));
  SERIAL_FIELD(SerialString(op, m_strCommand, OTHER(m_strCommand), file));
  if (version >= 75) SERIAL_FIELD(SerialInt(op, m_bChainPrev, OTHER(m_bChainPrev), file));
  SERIAL_FIELD(SerialRecordVector(op, m_vecAct, OTHER(m_vecAct), file));
  return 1;
}

int cEventPage::Load(cSerialFile* file) {
  if (!cSerial::Load(file)) return 0;
  NormalizeEventPage(*this);
  return 1;
}

int cEventPage::Save(cSerialFile* file) {
  NormalizeEventPage(*this);
  return cSerial::Save(file);
}

void cEvent::Clear() {
  Reset();
  m_vecPage.push_back(cEventPage());
}

int cEvent::Serialize(int op, const cSerial* other, cSerialFile* file, std::uint32_t version) {
  const auto* o = SerialOther<cEvent>(other);
  SERIAL_FIELD(SerialInt(op, m_nX, OTHER(m_nX), file));
  SERIAL_FIELD(SerialInt(op, m_nY, OTHER(m_nY), file));
  SERIAL_FIELD(SerialInt(op, m_bHeldByChara, OTHER(m_bHeldByChara), file));
  SERIAL_FIELD(SerialInt(op, m_nReserved1, OTHER(m_nReserved1), file));
  SERIAL_FIELD(SerialInt(op, m_nReserved2, OTHER(m_nReserved2), file));
  SERIAL_FIELD(SerialInt(op, m_nReserved3, OTHER(m_nReserved3), file));
  SERIAL_FIELD(SerialString(op, m_strName, OTHER(m_strName), file));
  SERIAL_FIELD(SerialRecordVector(op, m_vecPage, OTHER(m_vecPage), file));
  return 1;
}
