#pragma once
// The chip palette's rules: the chips of a list in list order, 8 to a row, each shown
// with its own picture, and a click that chooses the entry under it as a brush of one.
// The stage's palette lists the terrain records, the world map's its world chips; a
// face says which list, how a chip is drawn and where the choice goes.

#include <string>

#include "media/surface.h"

constexpr int kChipPaletteCols = 8;
constexpr int kChipPaletteMaxRows = 32;  // rows drawn at a time
constexpr std::uint32_t kChipHighlightColour = 0xFF007F;

struct cChipPaletteFace {
  int (*count)();
  void (*draw)(cSurface& buffer, int px, int py, int n);  // entry n at (px, py)
  const std::string& (*name)(int n);                      // CP932; n is a valid entry
  int (*selected)();
  void (*choose)(int n);  // the click's effect: selection and a one-cell brush
};
// The terrain records into g_EditState, and the world chips into g_WorldEditState.
const cChipPaletteFace& StageChipFace();
const cChipPaletteFace& WorldChipFace();

// Rows a list of `count` takes: (count - 1) div 8 + 1, one row for an empty list.
int ChipPaletteRows(int count);
// The height of the picture in pixels: the list's rows, no more than `availablePx`
// allows in whole rows and no more than kChipPaletteMaxRows, at least one row.
int ChipPaletteHeight(int count, int availablePx);
// The entry at pixel (px, py) with the list scrolled to row `top`. A click beyond the
// last entry gives its number all the same; the tools refuse such a brush.
int ChipAtPixel(int px, int py, int top);
// The stage's click: the entry becomes the selection and the one-cell brush.
void ChooseChip(int n);
// "%d : %s", the selected entry's number from 1 and its name, in CP932; empty when
// nothing valid is selected.
std::string ChipStatusText(const cChipPaletteFace& face = StageChipFace());
// The rows from `top` into `buffer` (256 pixels wide), and the selection's frame.
void DrawChipPalette(cSurface& buffer, int top, const cChipPaletteFace& face = StageChipFace());
