#pragma once
// The pieces of map editing that the stage editor and the world map editor share: the
// pointer turned into a cell, the walk of a brush over the map, the palette states, the
// pen's placing of an event template, and the scrolling of a drag that leaves the view.
// Each editor brings its own map, brush row length and rules.

#include <algorithm>
#include <cstdlib>

#include "stage/edit_state.h"
#include "stage/stage_view_draw.h"

// The cell under a pixel of the view; a pixel outside the view is first taken to its
// edge. There is no test against the map: the result may lie beyond it.
struct cViewCell {
  int x, y;    // the cell
  int px, py;  // the cell's top left pixel in the view
  bool inside;  // the pixel lay in the view
};
inline cViewCell ViewCellAt(const MAP_VIEW& view, int px, int py) {
  const bool inside = px >= 0 && py >= 0 && px < view.m_nWidth && py < view.m_nHeight;
  if (!inside) {
    px = std::clamp(px, 0, std::max(view.m_nWidth - 1, 0));
    py = std::clamp(py, 0, std::max(view.m_nHeight - 1, 0));
  }
  return {view.m_nScrollX + px / kMapCellPx, view.m_nScrollY + py / kMapCellPx, px - px % kMapCellPx,
          py - py % kMapCellPx, inside};
}

// Calls f(x, y, r, c) for each cell of a w x h brush laid from (x0, y0), row by row,
// stopping at the map's right and bottom edge and at the brush buffer's own size.
template <class F>
void WalkBrush(int x0, int y0, int w, int h, int mapW, int mapH, int bufferW, int bufferH, F&& f) {
  w = std::min(w, bufferW);
  h = std::min(h, bufferH);
  for (int r = 0; r < h && y0 + r < mapH; ++r)
    for (int c = 0; c < w && x0 + c < mapW; ++c)
      if (x0 + c >= 0 && y0 + r >= 0) f(x0 + c, y0 + r, r, c);
}

// The rectangle between the pick's start cell and the cursor, both included.
struct cCellRect {
  int x, y, w, h;
};
inline cCellRect PickedRect(int x0, int y0, int x1, int y1) {
  return {std::min(x0, x1), std::min(y0, y1), std::abs(x1 - x0) + 1, std::abs(y1 - y0) + 1};
}

// Stores the current palette's tool, cursor shape, selection and brush in its saved
// state and loads those of `palette`, which becomes current. Any edit state with the
// members of a palette state serves.
template <class State>
void SwapPaletteState(State& es, int palette) {
  if (palette == es.m_nPalette) return;
  int* saved = es.m_aPaletteState[es.m_nPalette];
  int* const fields[] = {&es.m_nTool, &es.m_nCursorShape, &es.m_nSelected,
                         &es.m_nListSel, &es.m_nBrushW, &es.m_nBrushH};
  static_assert(std::size(fields) == PALSTATE_COUNT);
  for (int i = 0; i < PALSTATE_COUNT; ++i) saved[i] = *fields[i];
  const int* load = es.m_aPaletteState[palette];
  for (int i = 0; i < PALSTATE_COUNT; ++i) *fields[i] = load[i];
  es.m_nPalette = palette;
}

// How the pen places the event palette's template: the checks of the configuration.
struct cEventPenRules {
  bool editIfPlaced;   // an event on the cell opens in the event form instead
  bool editBeforePut;  // the template goes through the event form before it is placed
};
// Whether a press of the pen leaves its undo step to the event form's OK.
inline bool EventFormMakesStep(const cEventPenRules& rules, bool eventAtCursor) {
  return (rules.editIfPlaced && eventAtCursor) || rules.editBeforePut;
}
// The pen's event on cell (x, y): the event there into the form, or a copy of `tmpl`
// numbered by number(copy, event it replaces or null), through the form where the rules
// ask, put on the cell. edit(event, placed) runs the form, true when confirmed.
template <class Map, class Event, class Number, class Edit>
void PenPlaceEvent(Map& map, const Event& tmpl, int x, int y, const cEventPenRules& rules, Number&& number,
                   Edit&& edit) {
  Event* placed = map.EventAt(x, y);
  if (rules.editIfPlaced && placed != nullptr) {
    edit(*placed, true);
    return;
  }
  Event temp = tmpl;
  number(temp, placed);
  if (rules.editBeforePut) {
    temp.m_nX = x;
    temp.m_nY = y;
    if (!edit(temp, false)) return;
  }
  map.PutEvent(temp, x, y);
}

// The drag-scrolling of a view while a drag runs outside it: for the pointer at `pos`
// in a view `size` pixels long, -1, 0 or 1 cells. It moves one cell on every eighth
// poll, and on every poll while the pointer is more than 32 pixels outside.
inline int DragScrollStep(int pos, int size, int poll) {
  const int before = -pos, after = pos - (size - 1);
  const int outside = std::max(before, after);
  if (outside <= 0) return 0;
  if (outside <= 32 && poll % 8 != 0) return 0;
  return before > 0 ? -1 : 1;
}
