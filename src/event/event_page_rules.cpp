#include "event/event_page_rules.h"

namespace {

enum : int { kCharaAny = 0, kCharaFriend = 1, kCharaEnemy = 2, kCharaActing = 3, kCharaLeader = 4, kCharaHolder = 5 };
enum : int { kRangeNone = 0, kRangeGroup = 3 };
constexpr int kGraphicCells = 512;
constexpr int kCellsPerColumn = 32;

}  // namespace

cEventPageEnable EventPageEnable(const cEventPage& page) {
  cEventPageEnable e{};
  e.turnA = page.m_bTurnCondA != 0;
  e.turnB = page.m_bTurnCondB != 0;
  e.eventVar = page.m_bEventVarCond != 0;
  e.commonVar = page.m_nCommonVar != 0;
  e.command = page.m_nTiming == TIMING_FRIEND_COMMAND || page.m_nTiming == TIMING_HOLDER_COMMAND;
  if (page.m_nTargetRange == kRangeNone) return e;
  e.targetChara = true;
  e.posGroup = page.m_nTargetRange == kRangeGroup;
  const int chara = page.m_nTargetChara;
  e.friendCond = chara == kCharaFriend || chara == kCharaLeader || chara == kCharaActing || chara == kCharaHolder;
  const bool enemy = chara == kCharaEnemy || chara == kCharaActing || chara == kCharaHolder;
  e.enemyGroupCheck = e.enemyIdCheck = enemy;
  e.enemyGroup = enemy && page.m_bEnemyGroupCond != 0;
  e.enemyId = enemy && page.m_bEnemyIdCond != 0;
  return e;
}

bool EventGraphicCell(int graphic, cCellRect& cell) {
  if (graphic <= 0 || graphic >= kGraphicCells) return false;
  cell = {(graphic / kCellsPerColumn) * 64, (graphic % kCellsPerColumn) * 32, 32, 32};
  return true;
}

int EventMapGraphic(const cEvent& event) { return event.m_vecPage.empty() ? 0 : event.m_vecPage[0].m_nGraphic; }
