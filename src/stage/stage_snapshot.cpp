#include "stage/stage_snapshot.h"

std::uint64_t cStageSnapshot::EstimateBytes() const {
  std::uint64_t bytes = 4 * static_cast<std::uint64_t>(m_Map.m_vecMap.size());
  for (const cPutEnemy& enemy : m_Map.m_vecPutEnemy) bytes += 56 + 24 * enemy.m_vecMoveAI.size();
  for (const cEvent& event : m_Map.m_vecEvent) bytes += 80 + 24 * event.m_vecPage.size();
  return bytes;
}

std::uint64_t cWorldSnapshot::EstimateBytes() const {
  std::uint64_t bytes = 4 * static_cast<std::uint64_t>(m_Map.m_vecMap.size());
  for (const cWorldEvent& event : m_Map.m_vecEvent) bytes += 64 + 24 * event.m_vecPage.size();
  return bytes;
}
