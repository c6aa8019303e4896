#include "editor/map_scroll.h"

#include <algorithm>
#include <cstdint>

#include "platform/cp932.h"
#include "stage/stage_view_draw.h"

cMapScrollRange MapScrollRange(int cells, int viewPx) {
  int page = std::max(0, viewPx / kMapCellPx);
  return {std::max(0, cells - std::max(1, page)), page};
}

int WheelScrollDelta(int amount) {
  unsigned d = static_cast<std::uint16_t>(amount);
  int steps = d / 120 < 10 ? static_cast<int>(d / 120) : -1;
  return -steps;
}

int CellOfPixel(int scroll, int px) { return scroll + (px >= 0 ? px / kMapCellPx : (px - kMapCellPx + 1) / kMapCellPx); }

std::string MainTitleText(const std::string& stagePath) {
  std::string title = "オルタルーン";
  if (!stagePath.empty()) title += "  " + Cp932ToUtf8Lossy(stagePath);
  return title;
}
