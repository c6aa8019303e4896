#pragma once
// The picture of the stage view: the map of g_Stage with its enemies, events, start
// positions, grid and the cursor of the current tool, drawn into a back buffer that the
// window then copies to its control. The world map view shares the view geometry and
// the pieces drawn the same way in both (world_view_draw.h).

#include <cstddef>
#include <cstdint>
#include <string>

#include "kernel/vector_class.h"
#include "media/surface.h"
#include "stage/stage_records.h"

// Sheets of g_aSheet that the map views draw from. All cells are 32 by 32.
enum : int {
  SHEET_MAP_CHIP = 0,
  SHEET_MAP_CHARA = 1,
  SHEET_EVENT = 18,
  SHEET_WORLD_BACK = 19,
  SHEET_WORLD_CHIP = 20,
  SHEET_WORLD_EVENT = 21,
  SHEET_ACCESSORY = 31,
};

constexpr int kMapCellPx = 32;
// Drawing colours, 0xBBGGRR.
constexpr std::uint32_t kMapGridColour = 0xFFFFFF;
constexpr std::uint32_t kEventMarkColour = 0x00FFFF;
constexpr std::uint32_t kMapCursorColour = 0xFF0080;
constexpr std::uint32_t kMapPickColour = 0x8000FF;

// Where the view stands and what the pointer does. The cells in view are those from
// the scroll position on, view size div 32 plus 1 in each direction, so a partly
// visible last column and row are drawn too.
struct MAP_VIEW {
  int m_nScrollX = 0;  // cell at the top left
  int m_nScrollY = 0;
  int m_nWidth = 0;  // view size in pixels
  int m_nHeight = 0;
  int m_nCursorX = 0;  // cursor cell; it may lie beyond the map
  int m_nCursorY = 0;
  int m_bLeftDown = 0;  // the left button is held: the line and rectangle previews show
  int m_bCursor = 1;    // 0 for a picture of the map alone

  int Cols() const { return m_nWidth / kMapCellPx + 1; }
  int Rows() const { return m_nHeight / kMapCellPx + 1; }
  bool InView(int x, int y) const {
    return x >= m_nScrollX && y >= m_nScrollY && x - m_nScrollX < Cols() && y - m_nScrollY < Rows();
  }
  // Top left pixel of a cell.
  int PixelX(int x) const { return (x - m_nScrollX) * kMapCellPx; }
  int PixelY(int y) const { return (y - m_nScrollY) * kMapCellPx; }
};
using STAGE_VIEW = MAP_VIEW;

// Draws the stage view of g_Stage and g_EditState into `buffer`, which the caller has
// created at least as large as the view: cleared to black, then chips, enemies, event
// marks, the start positions of the start group, the grid and, with m_bCursor, the
// cursor. With no stage open (g_EditState.m_bStageOpen 0) the buffer is only cleared
// and the result is 0; otherwise 1, and the status bar is due MapCoordText. Cells,
// enemies and graphics that name nothing in their tables or sheets draw nothing.
int DrawStageView(cSurface& buffer, const STAGE_VIEW& view);

// The picture of the position group form: the map of g_Stage with its enemies and
// events, the grid, and the position mark of the accessory sheet on each of `positions`
// in view. It has no cursor, and no start positions.
void DrawGroupPosView(cSurface& buffer, const MAP_VIEW& view, const VECTOR_CLASS<cMapPos>& positions);

// The status bar text of a map view: "座標 (x,y)" in CP932.
std::string MapCoordText(int x, int y);

// The chip of terrain record `terrain` at (px, py); nothing for a missing record or cell.
void DrawTerrainChip(cSurface& buffer, int px, int py, long long terrain);

// --- Pieces shared by the stage and the world map views ---

// Whether the 32 x 32 cell at (sx, sy) lies wholly inside the sheet.
bool SheetHasCell(const cSurface& sheet, long long sx, long long sy);

// Copies the 32 x 32 cell of `sheet` at (sx, sy) to (px, py), masked where the sheet
// has a mask. A cell that does not lie wholly inside the sheet is not drawn.
void BlitSheetCell(cSurface& buffer, int px, int py, const cSurface& sheet, long long sx, long long sy);

// An event's mark in the cell at (px, py): its 32 x 32 picture at (sx, sy) of `sheet`
// shrunk to 16 x 16 at the cell offset (15, 1), and a 16 x 16 frame around it in the
// current pen. The frame marks the event even when the picture is missing.
void DrawEventMark(cSurface& buffer, int px, int py, const cSurface& sheet, long long sx, long long sy);

// White lines every 32 pixels from the view's origin and along its last pixel column
// and row, as cSurface::Grid draws them.
void DrawMapGrid(cSurface& buffer, const MAP_VIEW& view);

// The outline of the w x h cells from cell (x, y), in the current pen. Nothing for an
// empty size.
void DrawCellFrame(cSurface& buffer, const MAP_VIEW& view, int x, int y, int w, int h);

// The outline of the cells between two corner cells, both included.
void DrawCellRange(cSurface& buffer, const MAP_VIEW& view, int x0, int y0, int x1, int y1);
