#pragma once
// The chip palette's rules: the terrain records in list order, 8 to a row, each shown
// with its own chip, and a click that chooses the entry under it as a brush of one.

#include <string>

#include "media/surface.h"

constexpr int kChipPaletteCols = 8;
constexpr int kChipPaletteMaxRows = 32;  // rows drawn at a time
constexpr std::uint32_t kChipHighlightColour = 0xFF007F;

// Rows the terrain list takes: (count - 1) div 8 + 1, one row for an empty list.
int ChipPaletteRows(int count);
// The height of the picture in pixels: the list's rows, no more than `availablePx`
// allows in whole rows and no more than kChipPaletteMaxRows, at least one row.
int ChipPaletteHeight(int count, int availablePx);
// The entry at pixel (px, py) with the list scrolled to row `top`. A click beyond the
// last entry gives its number all the same; the tools refuse such a brush.
int ChipAtPixel(int px, int py, int top);
// The click's effect: the entry becomes the selection and the one-cell brush.
void ChooseChip(int n);
// "%d : %s", the selected entry's number from 1 and its name, in CP932; empty when
// nothing valid is selected.
std::string ChipStatusText();
// The rows from `top` into `buffer` (256 pixels wide), and the selection's frame.
void DrawChipPalette(cSurface& buffer, int top);
