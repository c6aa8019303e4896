#include "stage/map_cursor.h"

#include <algorithm>

cCursorStack g_Cursor;

void cCursorStack::KeepWithin(int width, int height) {
  for (cCursorFrame& f : m_vecFrame) {
    f.nX = std::clamp(f.nX, 0, std::max(width - 1, 0));
    f.nY = std::clamp(f.nY, 0, std::max(height - 1, 0));
  }
}

void cCursorStack::Pop() {
  if (m_vecFrame.size() < 2) return;
  const cCursorFrame popped = m_vecFrame.back();
  m_vecFrame.pop_back();
  m_vecFrame.back() = popped;
}
