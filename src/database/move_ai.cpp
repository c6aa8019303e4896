#include "database/move_ai.h"

#include <climits>

#include "database/table_rows.h"
#include "kernel/serial_fields.h"

namespace {

// Goals that older formats numbered lower: those at or above `from` move up by one. A
// damaged file's largest number has nowhere to move and stays.
void ShiftGoal(int& goal, int from) {
  if (goal >= from && goal < INT_MAX) ++goal;
}

}  // namespace

bool cMoveAI::HasCond() const { return m_bFriendInRange || m_bStatusCond || m_bValCond || m_bMovedCond; }

void cMoveAI::FixRefs() {
  if (m_nList >= SkillListRows()) m_nList = 0;
  if (m_nSkill >= SkillRowsOf(m_nList)) m_nSkill = 0;
  if (m_nGroup < 0 || m_nGroup >= GroupPosRows()) m_nGroup = 0;
}

int cMoveAI::Serialize(int op, const cSerial* other, cSerialFile* file, std::uint32_t version) {
  const auto* o = SerialOther<cMoveAI>(other);
  SERIAL_FIELD(SerialInt(op, m_nRange, OTHER(m_nRange), file));
  SERIAL_FIELD(SerialInt(op, m_nGoal, OTHER(m_nGoal), file));
  SERIAL_FIELD(SerialInt(op, m_nAction, OTHER(m_nAction), file));
  SERIAL_FIELD(SerialInt(op, m_nList, OTHER(m_nList), file));
  SERIAL_FIELD(SerialInt(op, m_nSkill, OTHER(m_nSkill), file));
  SERIAL_FIELD(SerialInt(op, m_nGroup, OTHER(m_nGroup), file));
  if (version >= 113) SERIAL_FIELD(SerialInt(op, m_bCond, OTHER(m_bCond), file));
  if (version >= 44) {
    SERIAL_FIELD(SerialInt(op, m_bFriendInRange, OTHER(m_bFriendInRange), file));
    SERIAL_FIELD(SerialInt(op, m_bLatch, OTHER(m_bLatch), file));
    SERIAL_FIELD(SerialInt(op, m_bStatusCond, OTHER(m_bStatusCond), file));
    SERIAL_FIELD(SerialInt(op, m_nStatus, OTHER(m_nStatus), file));
    SERIAL_FIELD(SerialInt(op, m_nStatusValue, OTHER(m_nStatusValue), file));
    SERIAL_FIELD(SerialInt(op, m_bStatusPercent, OTHER(m_bStatusPercent), file));
    SERIAL_FIELD(SerialInt(op, m_nStatusOp, OTHER(m_nStatusOp), file));
    SERIAL_FIELD(SerialInt(op, m_bValCond, OTHER(m_bValCond), file));
    SERIAL_FIELD(SerialInt(op, m_nVal, OTHER(m_nVal), file));
    SERIAL_FIELD(SerialInt(op, m_nValValue, OTHER(m_nValValue), file));
    SERIAL_FIELD(SerialInt(op, m_nValOp, OTHER(m_nValOp), file));
  }
  if (version >= 51) SERIAL_FIELD(SerialInt(op, m_bMovedCond, OTHER(m_bMovedCond), file));
  if (version >= 112) SERIAL_FIELD(SerialInt(op, m_nCondType, OTHER(m_nCondType), file));
  if (version >= 45) SERIAL_FIELD(SerialInt(op, m_nReserved, OTHER(m_nReserved), file));
  // Not stored: only a reset and a copy reach it.
  if (op == SERIAL_INIT) m_bLatched = 0;
  if (op == SERIAL_COPY && o != nullptr) m_bLatched = o->m_bLatched;
  return 1;
}

int cMoveAI::Load(cSerialFile* file) {
  if (!cSerial::Load(file)) return 0;
  // Goals inserted later: "any ally at random" at 48, "most effective ally, physical
  // and magic" at 50. The older shift runs first, in the numbering it was made in.
  if (g_nFileVersion < 48) ShiftGoal(m_nGoal, 5);
  if (g_nFileVersion < 50) ShiftGoal(m_nGoal, 3);
  // Before the master switch existed, any condition switched the rule's conditions on.
  if (g_nFileVersion < 113 && HasCond()) m_bCond = 1;
  FixRefs();
  return 1;
}

int cMoveAI::Save(cSerialFile* file) {
  FixRefs();
  return cSerial::Save(file);
}

int cMoveAITemplate::Serialize(int op, const cSerial* other, cSerialFile* file, std::uint32_t version) {
  const auto* o = SerialOther<cMoveAITemplate>(other);
  if (version >= 49) SERIAL_FIELD(SerialString(op, m_strName, OTHER(m_strName), file));
  if (version >= 58) SERIAL_FIELD(SerialString(op, m_strDesc, OTHER(m_strDesc), file));
  SERIAL_FIELD(SerialRecordVector(op, m_vecMoveAI, OTHER(m_vecMoveAI), file));
  return 1;
}
