#include "stage/chip_palette.h"

#include <algorithm>
#include <cstdio>

#include "project/project_globals.h"
#include "stage/edit_state.h"
#include "stage/stage_view_draw.h"
#include "stage/world_edit.h"

namespace {

void DrawWorldChip(cSurface& buffer, int px, int py, int n) {
  const int g = g_WorldMap.m_vecChip[static_cast<std::size_t>(n)].m_nGraphic;
  if (g >= 0)
    BlitSheetCell(buffer, px, py, g_aSheet[SHEET_WORLD_CHIP], (g % 8) * kMapCellPx,
                  (g / 8) * static_cast<long long>(kMapCellPx));
}

}  // namespace

const cChipPaletteFace& StageChipFace() {
  static const cChipPaletteFace face{
      [] { return static_cast<int>(g_vecLand.size()); },
      [](cSurface& buffer, int px, int py, int n) { DrawTerrainChip(buffer, px, py, n); },
      [](int n) -> const std::string& { return g_vecLand[static_cast<std::size_t>(n)].m_strName; },
      [] { return g_EditState.m_nSelected; },
      ChooseChip,
  };
  return face;
}

const cChipPaletteFace& WorldChipFace() {
  static const cChipPaletteFace face{
      [] { return static_cast<int>(g_WorldMap.m_vecChip.size()); },
      DrawWorldChip,
      [](int n) -> const std::string& { return g_WorldMap.m_vecChip[static_cast<std::size_t>(n)].m_strName; },
      [] { return g_WorldEditState.m_nSelected; },
      ChooseWorldChip,
  };
  return face;
}

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

std::string ChipStatusText(const cChipPaletteFace& face) {
  const int n = face.selected();
  if (n < 0 || n >= face.count()) return {};
  char number[16];
  std::snprintf(number, sizeof number, "%d : ", n + 1);
  return number + face.name(n);
}

void DrawChipPalette(cSurface& buffer, int top, const cChipPaletteFace& face) {
  buffer.Fill(0);
  const int count = face.count();
  const int rows = buffer.m_nHeight / kMapCellPx + 1;
  for (int r = 0; r < rows; ++r)
    for (int c = 0; c < kChipPaletteCols; ++c) {
      const int n = (top + r) * kChipPaletteCols + c;
      if (n < count) face.draw(buffer, c * kMapCellPx, r * kMapCellPx, n);
    }
  const int sel = face.selected();
  if (sel < 0) return;
  buffer.SetPen(kPenSolid, 2, kChipHighlightColour);
  buffer.Frame((sel % kChipPaletteCols) * kMapCellPx, (sel / kChipPaletteCols - top) * kMapCellPx, kMapCellPx,
               kMapCellPx);
  buffer.ReleasePen();
}
