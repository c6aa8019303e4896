#include "stage/map_cursor.h"

cCursorStack g_Cursor;

void cCursorStack::Pop() {
  if (m_vecFrame.size() < 2) return;
  const cCursorFrame popped = m_vecFrame.back();
  m_vecFrame.pop_back();
  m_vecFrame.back() = popped;
}
