#include "stage/stage.h"

#include "database/table_rows.h"
#include "kernel/serial_fields.h"
#include "platform/cp932.h"

namespace {

// Files from 68 on list the groups before the enemies and the events behind the old
// event list; before 68 the groups come last.
constexpr std::uint32_t kGroupsFirst = 68;
constexpr std::uint32_t kOldEventsDropped = 108;

}  // namespace

void cStage::Init() {
  Reset();
  m_strName = CP932_TEXT("ステージ");
  Resize(20, 15);
  m_vecPutEnemy.clear();
  m_vecEvent.clear();
  m_vecOldEvent.clear();
  m_vecGroupPos.assign(2, cGroupPos());
  m_vecWinCond.clear();
  m_vecLoseCond.clear();
  m_vecRuleCond.clear();
  m_nStartGroup = 0;
  m_nRewardVal = 1;
  m_nReward = 0;
  m_nRewardTurnCut = 0;
  m_bRewardTurnPercent = 1;
  m_nRewardRepeatRate = 50;
  m_nExpRate = 100;
  m_nExpClearedRate = 50;
  m_nGoldRate = 100;
  m_nGoldClearedRate = 50;
  m_nBack = 1;
  m_nBgm = 0;
  m_bAllGroups = 1;
  m_bShowClear = 1;
  m_bShowGameOver = 1;
}

int cStage::Serialize(int op, const cSerial* other, cSerialFile* file, std::uint32_t version) {
  const auto* o = SerialOther<cStage>(other);
  SERIAL_FIELD(SerialInt(op, m_nWidth, OTHER(m_nWidth), file));
  SERIAL_FIELD(SerialInt(op, m_nHeight, OTHER(m_nHeight), file));
  SERIAL_FIELD(SerialInt(op, m_nStride, OTHER(m_nStride), file));
  SERIAL_FIELD(SerialInt(op, m_nShift, OTHER(m_nShift), file));
  SERIAL_FIELD(SerialInt(op, m_nStartGroup, OTHER(m_nStartGroup), file));
  if (version >= 87) SERIAL_FIELD(SerialInt(op, m_nRewardVal, OTHER(m_nRewardVal), file));
  SERIAL_FIELD(SerialInt(op, m_nReward, OTHER(m_nReward), file));
  if (version >= 118) SERIAL_FIELD(SerialInt(op, m_nRewardTurnCut, OTHER(m_nRewardTurnCut), file));
  if (version >= 127) SERIAL_FIELD(SerialInt(op, m_bRewardTurnPercent, OTHER(m_bRewardTurnPercent), file));
  SERIAL_FIELD(SerialInt(op, m_nRewardRepeatRate, OTHER(m_nRewardRepeatRate), file));
  SERIAL_FIELD(SerialInt(op, m_nExpRate, OTHER(m_nExpRate), file));
  SERIAL_FIELD(SerialInt(op, m_nExpClearedRate, OTHER(m_nExpClearedRate), file));
  if (version >= 87) {
    SERIAL_FIELD(SerialInt(op, m_nGoldRate, OTHER(m_nGoldRate), file));
    SERIAL_FIELD(SerialInt(op, m_nGoldClearedRate, OTHER(m_nGoldClearedRate), file));
  }
  SERIAL_FIELD(SerialString(op, m_strName, OTHER(m_strName), file));
  if (version >= 66) SERIAL_FIELD(SerialInt(op, m_nBack, OTHER(m_nBack), file));
  SERIAL_FIELD(SerialInt(op, m_nBgm, OTHER(m_nBgm), file));
  if (version >= 47) SERIAL_FIELD(SerialInt(op, m_bAllGroups, OTHER(m_bAllGroups), file));
  if (version >= 84) {
    SERIAL_FIELD(SerialInt(op, m_bShowClear, OTHER(m_bShowClear), file));
    SERIAL_FIELD(SerialInt(op, m_bShowGameOver, OTHER(m_bShowGameOver), file));
  }
  SERIAL_FIELD(SerialIntVector(op, m_vecMap, OTHER(m_vecMap), file));
  if (version >= kGroupsFirst) SERIAL_FIELD(SerialRecordVector(op, m_vecGroupPos, OTHER(m_vecGroupPos), file));
  SERIAL_FIELD(SerialRecordVector(op, m_vecPutEnemy, OTHER(m_vecPutEnemy), file));
  if (version < kGroupsFirst) SERIAL_FIELD(SerialRecordVector(op, m_vecEvent, OTHER(m_vecEvent), file));
  if (version < kOldEventsDropped) SERIAL_FIELD(SerialRecordVector(op, m_vecOldEvent, OTHER(m_vecOldEvent), file));
  if (version >= kGroupsFirst) SERIAL_FIELD(SerialRecordVector(op, m_vecEvent, OTHER(m_vecEvent), file));
  if (version < kGroupsFirst) SERIAL_FIELD(SerialRecordVector(op, m_vecGroupPos, OTHER(m_vecGroupPos), file));
  SERIAL_FIELD(SerialRecordVector(op, m_vecWinCond, OTHER(m_vecWinCond), file));
  SERIAL_FIELD(SerialRecordVector(op, m_vecLoseCond, OTHER(m_vecLoseCond), file));
  SERIAL_FIELD(SerialRecordVector(op, m_vecRuleCond, OTHER(m_vecRuleCond), file));
  return 1;
}

int cStage::Load(cSerialFile* file) {
  if (!cSerial::Load(file)) return 0;
  // The sizes come from the file unchecked, and every map walk indexes with them: a
  // file in which they disagree is refused, and the stage stays as it was.
  std::string why = SizeDisagreement();
  if (!why.empty()) {
    file->Fail(("stage file refused: " + why).c_str());
    return 0;
  }
  Clamp();
  return 1;
}

int cStage::Save(cSerialFile* file) {
  Clamp();
  return cSerial::Save(file);
}

void cStage::Clamp() {
  const int groups = m_vecGroupPos.Count();
  if (m_nStartGroup < 0 || m_nStartGroup >= groups) m_nStartGroup = 0;
  if (m_nRewardVal < 0 || m_nRewardVal >= PtValRows()) m_nRewardVal = 1;
  ClampCells(LandRows());
  for (cPutEnemy& enemy : m_vecPutEnemy) {
    enemy.Clamp();
    // Signed: an enemy that is not placed (-1) stays so.
    if (enemy.m_nX >= m_nWidth || enemy.m_nY >= m_nHeight) {
      enemy.m_nX = -1;
      enemy.m_nY = -1;
    }
  }
  RemoveEventsOutside();
  for (cGroupPos& group : m_vecGroupPos) group.Clamp(m_nWidth, m_nHeight);
  for (auto* lines : {&m_vecWinCond, &m_vecLoseCond, &m_vecRuleCond}) {
    for (cEndCond& line : *lines) line.Clamp(groups, m_nWidth, m_nHeight);
  }
  if (m_nBack < 0 || m_nBack >= BackRows()) m_nBack = 1;
  if (m_nBgm < 0 || m_nBgm >= BgmRows()) m_nBgm = 0;
}
