#pragma once
// The pen stroke of the map benchmarks: a zigzag of moves with the left button held,
// each reaching a new cell and followed by a redraw, and the same redraws alone along
// the same cursor path. The stage and the world map run it with their own engine and
// drawing.

#include <benchmark/benchmark.h>

#include "media/surface.h"
#include "stage/map_edit.h"

inline constexpr int kStrokeMoves = 200;

// Pixel of the k-th move.
inline int StrokeX(int k) { return ((k % 40) * 16) % 640; }
inline int StrokeY(int k) { return (k / 40) * 96 + 5; }

template <class Mouse, class Draw>
void PenStroke(MAP_VIEW& view, cSurface& buffer, Mouse mouse, Draw draw) {
  mouse(view, {eMapMouse::kLeftDown, 5, 5, true, false});
  for (int k = 0; k < kStrokeMoves; ++k) {
    mouse(view, {eMapMouse::kMove, StrokeX(k), StrokeY(k), true, false});
    draw(buffer, view);
  }
  mouse(view, {eMapMouse::kLeftUp, StrokeX(kStrokeMoves - 1), StrokeY(kStrokeMoves - 1), false, false});
  benchmark::DoNotOptimize(buffer.m_vecBits.data());
}

// The cursor as the stroke moves it over a view scrolled to `scrollX`, `scrollY`.
template <class Draw>
void RedrawsOfStroke(MAP_VIEW& view, cSurface& buffer, Draw draw) {
  for (int k = 0; k < kStrokeMoves; ++k) {
    view.m_nCursorX = view.m_nScrollX + StrokeX(k) / kMapCellPx;
    view.m_nCursorY = view.m_nScrollY + StrokeY(k) / kMapCellPx;
    draw(buffer, view);
  }
  benchmark::DoNotOptimize(buffer.m_vecBits.data());
}
