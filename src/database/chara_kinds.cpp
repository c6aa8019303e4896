#include "database/chara_kinds.h"

#include "kernel/serial_fields.h"
#include "project/project_globals.h"

int cFriend::Serialize(int op, const cSerial* other, cSerialFile* file, std::uint32_t version) {
  SERIAL_FIELD(cChara::Serialize(op, other, file, version));
  const auto* o = SerialOther<cFriend>(other);
  SERIAL_FIELD(SerialInt(op, m_nFriend1, OTHER(m_nFriend1), file));
  SERIAL_FIELD(SerialInt(op, m_nFriend2, OTHER(m_nFriend2), file));
  SERIAL_FIELD(SerialInt(op, m_bInShop, OTHER(m_bInShop), file));
  SERIAL_FIELD(SerialInt(op, m_bAnyTimes, OTHER(m_bAnyTimes), file));
  SERIAL_FIELD(SerialInt(op, m_bNoRelease, OTHER(m_bNoRelease), file));
  if (version >= 121) SERIAL_FIELD(SerialInt(op, m_bRegenerate, OTHER(m_bRegenerate), file));
  return 1;
}

void cFriend::SetDefault() {
  Reset();
  cChara::SetDefault();
  FixRefs();
  m_bEnemy = 0;
  m_bRandomName = 1;
  m_bRandomGrowth = 1;
  m_bRandomSkill = 1;
  m_bInShop = 1;
  m_bAnyTimes = 1;
  m_bRegenerate = 1;
}

int cFriend::Load(cSerialFile* file) {
  if (!cSerial::Load(file)) return 0;
  if (g_nFileVersion < 121) m_bRegenerate = 1;
  if (g_nFileVersion < 214 && m_bRandomSkill) m_bRandomSense = 1;
  if (g_nFileVersion < 232) m_nBuiltVersion = 0;
  FixRefs();
  RecalcStatus();
  return 1;
}

int cFriend::Save(cSerialFile* file) {
  FixRefs();
  RecalcStatus();
  return cSerial::Save(file);
}

int cEnemy::Serialize(int op, const cSerial* other, cSerialFile* file, std::uint32_t version) {
  SERIAL_FIELD(cChara::Serialize(op, other, file, version));
  const auto* o = SerialOther<cEnemy>(other);
  // Fields of two short-lived formats, read and dropped.
  const int dropped = version == 33 ? 2 : version == 44 ? 1 : 0;
  for (int i = 0; i < dropped; ++i) SERIAL_FIELD(SerialInt(op, g_nScratchInt, o ? &g_nScratchInt : nullptr, file));
  if (version >= 51) SERIAL_FIELD(SerialInt(op, m_nReservedE, OTHER(m_nReservedE), file));
  SERIAL_FIELD(SerialInt(op, m_nTraining, OTHER(m_nTraining), file));
  SERIAL_FIELD(SerialRecordVector(op, m_vecMoveAI, OTHER(m_vecMoveAI), file));
  SERIAL_FIELD(SerialRecordVector(op, m_vecBattleAI, OTHER(m_vecBattleAI), file));
  return 1;
}

void cEnemy::SetDefault() {
  Reset();
  cChara::SetDefault();
  FixRefs();
  m_bEnemy = 1;
  m_bRandomGrowth = 0;
  m_bRandomSkill = 0;
  m_vecMoveAI.clear();
  m_vecBattleAI.clear();
  if (g_System.m_nBattleMode == 0) m_vecBattleAI.emplace_back();  // manual battles need one action
}

void cEnemy::FixRefs() {
  cChara::FixRefs();
  for (cBattleAI& action : m_vecBattleAI) action.FixRefs();
  RecalcStatus();
}

int cEnemy::Load(cSerialFile* file) {
  if (!cSerial::Load(file)) return 0;
  if (g_nFileVersion < 104) m_nTraining = 0;
  FixRefs();
  return 1;
}

int cEnemy::Save(cSerialFile* file) {
  FixRefs();
  return cSerial::Save(file);
}
