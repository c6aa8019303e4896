#include "stage/stage_view_draw.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <vector>

#include "platform/cp932.h"
#include "project/project_globals.h"
#include "stage/edit_state.h"
#include "stage/line_walk.h"

namespace {

// Where the chip of a terrain record lies on the map chip sheet, 8 chips to a row;
// false when the record or its cell is missing.
bool TerrainChip(long long terrain, long long& sx, long long& sy) {
  if (terrain < 0 || terrain >= static_cast<long long>(g_vecLand.size())) return false;
  const int n = g_vecLand[static_cast<std::size_t>(terrain)].m_nGraphic;
  sx = (n % 8) * kMapCellPx, sy = (n / 8) * static_cast<long long>(kMapCellPx);
  return n >= 0 && SheetHasCell(g_aSheet[SHEET_MAP_CHIP], sx, sy);
}

// Clears a cell to black as a fill of the whole buffer would.
void ClearCell(cSurface& buffer, int px, int py) {
  static const cSurface black = [] {
    cSurface s;
    s.Create(kMapCellPx, kMapCellPx, 24, 0);
    s.Fill(0);
    return s;
  }();
  buffer.Blit(px, py, kMapCellPx, kMapCellPx, black, 0, 0, 1);
}

// The map graphic of an enemy row is its class's, or -1 when the row or class is
// missing.
int EnemyMapGraphic(int enemy) {
  if (enemy <= 0 || enemy >= static_cast<int>(g_vecEnemy.size())) return -1;
  const cClass* cls = g_vecEnemy[static_cast<std::size_t>(enemy)].Class();
  return cls != nullptr ? cls->m_nGraphic : -1;
}

// Graphic g of the map character sheet: column g div 20 of 64 pixels, its right half,
// row g mod 20.
void DrawMapChara(cSurface& buffer, int px, int py, int g) {
  if (g < 0) return;
  const long long k = g / 20;
  BlitSheetCell(buffer, px, py, g_aSheet[SHEET_MAP_CHARA], k * 64 + 32, (g - k * 20) * kMapCellPx);
}

// Chips of an unmasked sheet hide the cell wholly, so when the cells in view cover the
// buffer only the cells without such a chip need clearing: the clear and the chips
// together then touch each pixel once.
void DrawCells(cSurface& buffer, const MAP_VIEW& view) {
  const bool perCell = buffer.m_nWidth <= view.Cols() * kMapCellPx && buffer.m_nHeight <= view.Rows() * kMapCellPx;
  const bool opaque = !g_aSheet[SHEET_MAP_CHIP].HasMask();
  if (!perCell) buffer.Fill(0);
  for (int r = 0; r < view.Rows(); ++r)
    for (int c = 0; c < view.Cols(); ++c) {
      const int px = c * kMapCellPx, py = r * kMapCellPx;
      const int* cell = g_Stage.CellAt(view.m_nScrollX + c, view.m_nScrollY + r);
      long long sx = 0, sy = 0;
      const bool chip = cell != nullptr && TerrainChip(*cell, sx, sy);
      if (perCell && !(chip && opaque)) ClearCell(buffer, px, py);
      if (chip) BlitSheetCell(buffer, px, py, g_aSheet[SHEET_MAP_CHIP], sx, sy);
    }
}

void DrawEnemies(cSurface& buffer, const MAP_VIEW& view) {
  for (const cPutEnemy& enemy : g_Stage.m_vecPutEnemy) {
    if (enemy.m_nEnemy == 0 || !view.InView(enemy.m_nX, enemy.m_nY)) continue;
    DrawMapChara(buffer, view.PixelX(enemy.m_nX), view.PixelY(enemy.m_nY), EnemyMapGraphic(enemy.m_nEnemy));
  }
}

// Event sheet: graphic g in columns of 32, each 64 pixels apart.
void DrawEvents(cSurface& buffer, const MAP_VIEW& view) {
  buffer.SetPen(kPenSolid, 1, kEventMarkColour);
  for (const cEvent& event : g_Stage.m_vecEvent) {
    if (event.m_vecPage.empty() || !view.InView(event.m_nX, event.m_nY)) continue;
    const long long g = event.m_vecPage[0].m_nGraphic;
    DrawEventMark(buffer, view.PixelX(event.m_nX), view.PixelY(event.m_nY), g_aSheet[SHEET_EVENT], (g / 32) * 64,
                  (g % 32) * kMapCellPx);
  }
  buffer.ReleasePen();
}

void DrawStartPositions(cSurface& buffer, const MAP_VIEW& view) {
  const int group = g_Stage.m_nStartGroup;
  if (group <= 0 || group >= static_cast<int>(g_Stage.m_vecGroupPos.size())) return;
  for (const cMapPos& pos : g_Stage.m_vecGroupPos[static_cast<std::size_t>(group)].m_vecPos)
    if (view.InView(pos.x, pos.y))
      BlitSheetCell(buffer, view.PixelX(pos.x), view.PixelY(pos.y), g_aSheet[SHEET_ACCESSORY], 0, 64);
}

// A brush entry's chip at a map cell, for the previews of palette 0.
void DrawBrushChip(cSurface& buffer, const MAP_VIEW& view, int x, int y, int index) {
  const cEditState& es = g_EditState;
  if (es.m_nPalette == PALETTE_CHIP && es.ChipBrushValid(index))
    DrawTerrainChip(buffer, view.PixelX(x), view.PixelY(y), es.m_aBrushChip[static_cast<std::size_t>(index)]);
}

// The line preview walks as the line tool will on release.
void DrawLinePreview(cSurface& buffer, const MAP_VIEW& view) {
  const cEditState& es = g_EditState;
  WalkLine(es.m_nLineX, es.m_nLineY, view.m_nCursorX, view.m_nCursorY, es.m_nBrushW, [&](int x, int y, int i) {
    if (!g_Stage.HasCell(x, y)) return;
    DrawBrushChip(buffer, view, x, y, i);
    DrawCellFrame(buffer, view, x, y, 1, 1);
  });
}

// The rectangle preview: the size the last move measured, from the corner of start and
// cursor nearest the origin, with the brush counters of the tool.
void DrawRectPreview(cSurface& buffer, const MAP_VIEW& view) {
  const cEditState& es = g_EditState;
  const int left = std::min(es.m_nRectX, view.m_nCursorX), top = std::min(es.m_nRectY, view.m_nCursorY);
  WalkRect(left, top, es.m_nRectW, es.m_nRectH, g_Stage.m_nWidth, g_Stage.m_nHeight, es.m_nBrushW, es.m_nBrushH,
           cEditState::kBrushSide, [&](int x, int y, int i) { DrawBrushChip(buffer, view, x, y, i); });
  DrawCellFrame(buffer, view, left, top, es.m_nRectW, es.m_nRectH);
}

void DrawCursor(cSurface& buffer, const MAP_VIEW& view) {
  const cEditState& es = g_EditState;
  const int x = view.m_nCursorX, y = view.m_nCursorY;
  buffer.SetPen(kPenSolid, 2, es.m_nCursorShape == CURSOR_PICK ? kMapPickColour : kMapCursorColour);
  switch (es.m_nCursorShape) {
    case TOOL_PEN:
      DrawCellFrame(buffer, view, x, y, es.m_nBrushW, es.m_nBrushH);
      break;
    case TOOL_LINE:
      if (view.m_bLeftDown)
        DrawLinePreview(buffer, view);
      else
        DrawCellFrame(buffer, view, x, y, 1, 1);
      break;
    case TOOL_RECT:
      if (view.m_bLeftDown)
        DrawRectPreview(buffer, view);
      else
        DrawCellFrame(buffer, view, x, y, 1, 1);
      break;
    case TOOL_FILL:
      DrawCellFrame(buffer, view, x, y, 1, 1);
      break;
    case CURSOR_PICK:
      DrawCellRange(buffer, view, es.m_nDragX, es.m_nDragY, x, y);
      break;
    default:
      break;
  }
  buffer.ReleasePen();
}

}  // namespace

int DrawStageView(cSurface& buffer, const STAGE_VIEW& view) {
  if (!g_EditState.m_bStageOpen) {
    buffer.Fill(0);
    return 0;
  }
  DrawCells(buffer, view);
  DrawEnemies(buffer, view);
  DrawEvents(buffer, view);
  DrawStartPositions(buffer, view);
  DrawMapGrid(buffer, view);
  if (view.m_bCursor) DrawCursor(buffer, view);
  return 1;
}

void DrawGroupPosView(cSurface& buffer, const MAP_VIEW& view, const VECTOR_CLASS<cMapPos>& positions) {
  DrawCells(buffer, view);
  DrawEnemies(buffer, view);
  DrawEvents(buffer, view);
  DrawMapGrid(buffer, view);
  for (const cMapPos& pos : positions)
    if (view.InView(pos.x, pos.y))
      BlitSheetCell(buffer, view.PixelX(pos.x), view.PixelY(pos.y), g_aSheet[SHEET_ACCESSORY], 64, 64);
}

void DrawTerrainChip(cSurface& buffer, int px, int py, long long terrain) {
  long long sx, sy;
  if (TerrainChip(terrain, sx, sy)) BlitSheetCell(buffer, px, py, g_aSheet[SHEET_MAP_CHIP], sx, sy);
}

std::string MapCoordText(int x, int y) {
  char numbers[32];
  std::snprintf(numbers, sizeof numbers, "(%d,%d)", x, y);
  return CP932_TEXT("座標 ") + numbers;
}

bool SheetHasCell(const cSurface& sheet, long long sx, long long sy) {
  return sx >= 0 && sy >= 0 && sx + kMapCellPx <= sheet.m_nWidth && sy + kMapCellPx <= sheet.m_nHeight;
}

void BlitSheetCell(cSurface& buffer, int px, int py, const cSurface& sheet, long long sx, long long sy) {
  if (SheetHasCell(sheet, sx, sy))
    buffer.Blit(px, py, kMapCellPx, kMapCellPx, sheet, static_cast<int>(sx), static_cast<int>(sy));
}

void DrawEventMark(cSurface& buffer, int px, int py, const cSurface& sheet, long long sx, long long sy) {
  constexpr int kMarkX = 15, kMarkY = 1, kMarkSize = 16;
  if (SheetHasCell(sheet, sx, sy))
    buffer.StretchBlit(px + kMarkX, py + kMarkY, kMarkSize, kMarkSize, sheet, static_cast<int>(sx),
                       static_cast<int>(sy), kMapCellPx, kMapCellPx);
  buffer.Frame(px + kMarkX, py + kMarkY, kMarkSize, kMarkSize);
}

// The pixels of cSurface::Grid(0, 0, w, h, 32, 32, white), written row by row: line by
// line, the vertical lines cost a pass over the buffer each. White is all bytes 0xFF
// in 24 and 32 bits; other depths go through Grid.
void DrawMapGrid(cSurface& buffer, const MAP_VIEW& view) {
  const int w = view.m_nWidth, h = view.m_nHeight, bpp = buffer.BytesPerPixel();
  if (bpp != 3 && bpp != 4) {
    buffer.Grid(0, 0, w, h, kMapCellPx, kMapCellPx, kMapGridColour);
    return;
  }
  auto lines = [](int extent, int limit) {  // every 32 pixels from 0 and the last pixel
    std::vector<int> at;
    for (long long i = 0; i <= extent / kMapCellPx && i * kMapCellPx < limit; ++i)
      at.push_back(static_cast<int>(i * kMapCellPx));
    if (extent - 1 >= 0 && extent - 1 < limit) at.push_back(extent - 1);
    return at;
  };
  const std::vector<int> columns = lines(w, buffer.m_nWidth), rows = lines(h, buffer.m_nHeight);
  const std::size_t span = static_cast<std::size_t>(std::min(w, buffer.m_nWidth)) * static_cast<std::size_t>(bpp);
  for (int y = 0; y < std::min(h, buffer.m_nHeight); ++y) {
    unsigned char* row = buffer.Pixel(0, y);
    for (int x : columns) std::memset(row + static_cast<std::size_t>(x) * bpp, 0xFF, static_cast<std::size_t>(bpp));
  }
  if (w > 0)
    for (int y : rows) std::memset(buffer.Pixel(0, y), 0xFF, span);
}

void DrawCellFrame(cSurface& buffer, const MAP_VIEW& view, int x, int y, int w, int h) {
  if (w <= 0 || h <= 0) return;
  buffer.Frame(view.PixelX(x), view.PixelY(y), w * kMapCellPx, h * kMapCellPx);
}

void DrawCellRange(cSurface& buffer, const MAP_VIEW& view, int x0, int y0, int x1, int y1) {
  DrawCellFrame(buffer, view, std::min(x0, x1), std::min(y0, y1), std::abs(x1 - x0) + 1, std::abs(y1 - y0) + 1);
}
