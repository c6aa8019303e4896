#include "stage/group_pos_edit.h"

#include <algorithm>
#include <cstdio>

#include "platform/cp932.h"

std::string GroupPosRowText(const cGroupPos& group) {
  char text[128];
  std::snprintf(text, sizeof text, "%-8s ", group.m_strName.c_str());
  char centre[64];
  std::snprintf(centre, sizeof centre, "(%d,%d)", group.m_nCenterX, group.m_nCenterY);
  return text + CP932_TEXT("中心座標") + centre;
}

bool GroupCellAt(const MAP_VIEW& view, int px, int py, int& x, int& y) {
  if (px < 0 || px >= view.m_nWidth || py < 0 || py >= view.m_nHeight) return false;
  x = view.m_nScrollX + px / kMapCellPx;
  y = view.m_nScrollY + py / kMapCellPx;
  return true;
}

void ToggleGroupPos(VECTOR_CLASS<cMapPos>& positions, int x, int y) {
  const cMapPos cell{x, y};
  auto found = std::find(positions.begin(), positions.end(), cell);
  if (found != positions.end()) positions.erase(found);
  else positions.push_back(cell);
}
