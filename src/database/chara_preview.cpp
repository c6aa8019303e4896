#include "database/chara_preview.h"

#include <algorithm>

#include "project/project_globals.h"

namespace {

// The status at the working row's level; with bClassOnly the row's own ranges are
// cleared first so that the class decides.
std::array<int, cChara::kStatusCount> Column(const cChara& working, bool bClassOnly) {
  cChara source = working;
  if (bClassOnly) {
    std::fill(std::begin(source.m_anInit), std::end(source.m_anInit), 0);
    std::fill(std::begin(source.m_anFinal), std::end(source.m_anFinal), 0);
  }
  source.ResolveStatus(0);
  cChara grown = source;
  grown.Generate(0, 0, 1, 0, source);
  grown.LevelTo(working.m_nLevel, 1, 1, 0);
  if (working.m_bEnemy) grown.ApplyRates(g_System.m_anEnemyRate, bClassOnly ? 1 : 0);
  std::array<int, cChara::kStatusCount> column{};
  for (int i = 0; i < cChara::kStatusCount; ++i) column[static_cast<std::size_t>(i)] = grown.m_aParam[i].m_nBase;
  return column;
}

}  // namespace

CHARA_PREVIEW PreviewChara(const cChara& working) {
  CHARA_PREVIEW preview;
  if (working.Class() == nullptr) return preview;
  preview.bValid = true;
  preview.anGame = Column(working, false);
  preview.anReference = Column(working, true);
  return preview;
}
