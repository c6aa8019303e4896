#include "stage/chip_palette.h"

#include <algorithm>
#include <cstdio>

#include "project/project_globals.h"
#include "stage/edit_state.h"
#include "stage/stage_view_draw.h"

int ChipPaletteRows(int count) { return count <= 0 ? 1 : (count - 1) / kChipPaletteCols + 1; }

int ChipPaletteHeight(int count, int availablePx) {
  const int rows = std::min({ChipPaletteRows(count), kChipPaletteMaxRows, availablePx / kMapCellPx});
  return std::max(rows, 1) * kMapCellPx;
}

int ChipAtPixel(int px, int py, int top) {
  const int col = std::clamp(px / kMapCellPx, 0, kChipPaletteCols - 1);
  return col + (std::max(py, 0) / kMapCellPx + top) * kChipPaletteCols;
}

void ChooseChip(int n) {
  cEditState& es = g_EditState;
  es.m_nSelected = n;
  es.m_aBrushChip[0] = static_cast<std::uint32_t>(n);
  es.m_nBrushW = es.m_nBrushH = 1;
}

std::string ChipStatusText() {
  const int n = g_EditState.m_nSelected;
  if (n < 0 || n >= static_cast<int>(g_vecLand.size())) return {};
  char number[16];
  std::snprintf(number, sizeof number, "%d : ", n + 1);
  return number + g_vecLand[static_cast<std::size_t>(n)].m_strName;
}

void DrawChipPalette(cSurface& buffer, int top) {
  buffer.Fill(0);
  const int count = static_cast<int>(g_vecLand.size());
  const int rows = buffer.m_nHeight / kMapCellPx + 1;
  for (int r = 0; r < rows; ++r)
    for (int c = 0; c < kChipPaletteCols; ++c) {
      const int n = (top + r) * kChipPaletteCols + c;
      if (n < count) DrawTerrainChip(buffer, c * kMapCellPx, r * kMapCellPx, n);
    }
  const int sel = g_EditState.m_nSelected;
  if (sel < 0) return;
  buffer.SetPen(kPenSolid, 2, kChipHighlightColour);
  buffer.Frame((sel % kChipPaletteCols) * kMapCellPx, (sel / kChipPaletteCols - top) * kMapCellPx, kMapCellPx,
               kMapCellPx);
  buffer.ReleasePen();
}
