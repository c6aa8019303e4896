#pragma once
// The map cursor: a small stack of frames, the top one being the cursor. A context
// menu pushes a copy of the top frame when it opens; the command it runs works on that
// frame and pops it, whatever the mouse did meanwhile, and the popped values stay as
// the new top. A menu dismissed without a choice pops too.

#include <vector>

struct cCursorFrame {
  int nX = 0, nY = 0;    // the cell
  int nPx = 0, nPy = 0;  // the cell's top left pixel in the view
};

class cCursorStack {
 public:
  cCursorFrame& Top() { return m_vecFrame.back(); }
  const cCursorFrame& Top() const { return m_vecFrame.back(); }
  void Push() { m_vecFrame.push_back(m_vecFrame.back()); }
  void Pop();
  // One frame of zeros.
  void Reset() { m_vecFrame.assign(1, cCursorFrame{}); }
  // Brings every frame onto a map of `width` by `height` cells, so that a cell kept from
  // before the map was made smaller is never one the map no longer has.
  void KeepWithin(int width, int height);
  int Depth() const { return static_cast<int>(m_vecFrame.size()); }

 private:
  std::vector<cCursorFrame> m_vecFrame{1};
};

extern cCursorStack g_Cursor;
