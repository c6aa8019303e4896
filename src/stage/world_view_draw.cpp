#include "stage/world_view_draw.h"

#include "project/project_globals.h"
#include "stage/chip_palette.h"
#include "stage/world_edit_state.h"

namespace {

void DrawChips(cSurface& buffer, const MAP_VIEW& view) {
  const cWorldMap& map = g_WorldMap;
  for (int r = 0; r < view.Rows(); ++r)
    for (int c = 0; c < view.Cols(); ++c) {
      const int* cell = map.CellAt(view.m_nScrollX + c, view.m_nScrollY + r);
      if (cell == nullptr || *cell < 0 || *cell >= static_cast<int>(map.m_vecChip.size())) continue;
      WorldChipFace().draw(buffer, c * kMapCellPx, r * kMapCellPx, *cell);
    }
}

// The number is right-aligned on the mark by its count of digits.
int StageNumberOffset(int number) { return number < 10 ? 19 : number < 100 ? 15 : 7; }

// A stage's icon is in the left column of the sheet while it has a number, in the right
// one otherwise.
void DrawEvents(cSurface& buffer, const MAP_VIEW& view) {
  buffer.SetPen(kPenSolid, 1, kEventMarkColour);
  for (const cWorldEvent& event : g_WorldMap.m_vecEvent) {
    if (event.m_vecPage.empty() || !view.InView(event.m_nX, event.m_nY)) continue;
    const cWorldEventPage& page = event.m_vecPage[0];
    const int px = view.PixelX(event.m_nX), py = view.PixelY(event.m_nY);
    DrawEventMark(buffer, px, py, g_aSheet[SHEET_WORLD_EVENT], page.m_nStageNo > 0 ? 0 : 32,
                  static_cast<long long>(page.m_nGraphic) * kMapCellPx);
    if (page.m_nType == WORLDEVENT_STAGE && page.m_nStageNo != 0)
      buffer.Printf(px + StageNumberOffset(page.m_nStageNo), py + 1, "%d", page.m_nStageNo);
  }
  buffer.ReleasePen();
}

void DrawCursor(cSurface& buffer, const MAP_VIEW& view) {
  const cWorldEditState& es = g_WorldEditState;
  const bool picking = es.m_nCursorShape == WORLD_CURSOR_PICK;
  buffer.SetPen(kPenSolid, 2, picking ? kMapPickColour : kMapCursorColour);
  if (es.m_nCursorShape == WORLD_CURSOR_BRUSH)
    DrawCellFrame(buffer, view, view.m_nCursorX, view.m_nCursorY, es.m_nBrushW, es.m_nBrushH);
  else if (picking && es.m_bPicking)
    DrawCellRange(buffer, view, es.m_nDragX, es.m_nDragY, view.m_nCursorX, view.m_nCursorY);
  buffer.ReleasePen();
}

}  // namespace

void DrawWorldView(cSurface& buffer, const WORLD_VIEW& view) {
  if (g_WorldMap.m_bUseImage)
    buffer.Blit(0, 0, view.m_nWidth, view.m_nHeight, g_aSheet[SHEET_WORLD_BACK], view.m_nScrollX * kMapCellPx,
                view.m_nScrollY * kMapCellPx, 1);
  DrawChips(buffer, view);
  DrawEvents(buffer, view);
  DrawMapGrid(buffer, view);
  if (view.m_bCursor) DrawCursor(buffer, view);
}
