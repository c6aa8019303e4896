#include "database/battle_ai.h"

#include "database/ai_labels.h"
#include "database/table_rows.h"
#include "kernel/serial_fields.h"

int cBattleAICond::Serialize(int op, const cSerial* other, cSerialFile* file, std::uint32_t version) {
  const auto* o = SerialOther<cBattleAICond>(other);
  SERIAL_FIELD(SerialInt(op, m_nWho, OTHER(m_nWho), file));
  SERIAL_FIELD(SerialInt(op, m_nWhat, OTHER(m_nWhat), file));
  SERIAL_FIELD(SerialInt(op, m_nValue, OTHER(m_nValue), file));
  SERIAL_FIELD(SerialInt(op, m_nOp, OTHER(m_nOp), file));
  SERIAL_FIELD(SerialInt(op, m_bPercent, OTHER(m_bPercent), file));
  return 1;
}

void cBattleAI::SetDefault() {
  Reset();
  m_nSkill = 1;
  m_nPriorityLv = 1;
  m_nPriorityVal = 10;
}

void cBattleAI::FixRefs() {
  if (m_nAction != kAISkill && m_nAction != kAIQuick) return;
  if (m_nList >= SkillListRows()) m_nList = 0;
  if (m_nSkill >= SkillRowsOf(m_nList)) m_nSkill = 0;
}

int cBattleAI::Serialize(int op, const cSerial* other, cSerialFile* file, std::uint32_t version) {
  const auto* o = SerialOther<cBattleAI>(other);
  SERIAL_FIELD(SerialInt(op, m_nAction, OTHER(m_nAction), file));
  SERIAL_FIELD(SerialInt(op, m_nList, OTHER(m_nList), file));
  SERIAL_FIELD(SerialInt(op, m_nReserved, OTHER(m_nReserved), file));
  SERIAL_FIELD(SerialInt(op, m_nSkill, OTHER(m_nSkill), file));
  SERIAL_FIELD(SerialInt(op, m_nPriorityLv, OTHER(m_nPriorityLv), file));
  SERIAL_FIELD(SerialInt(op, m_nPriorityVal, OTHER(m_nPriorityVal), file));
  if (version >= 250) SERIAL_FIELD(SerialInt(op, m_bNoEvaluate, OTHER(m_bNoEvaluate), file));
  SERIAL_FIELD(SerialRecordVector(op, m_vecCond, OTHER(m_vecCond), file));
  return 1;
}
