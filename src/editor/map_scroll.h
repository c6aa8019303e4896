#pragma once
// The scroll rules of a map view, in cells, apart from any widget.

#include <string>

// A bar over a map of `cells` cells shown in `viewPx` pixels: its positions run from 0
// to cells - 1 with a page of the whole cells in view, so the last position shows the
// last page (never below 0).
struct cMapScrollRange {
  int nMax;   // the largest position the bar takes
  int nPage;  // cells in view
};
cMapScrollRange MapScrollRange(int cells, int viewPx);

// The move of a bar for one wheel message, `amount` being the wheel's 16-bit word (120
// a notch up): up by the notches, and down by one whatever the amount.
int WheelScrollDelta(int amount);

// The cell under a pixel of the view.
int CellOfPixel(int scroll, int px);

// The title of the main window: the program's name, with the stage's path behind two
// blanks when it has one. UTF-8; `stagePath` is CP932.
std::string MainTitleText(const std::string& stagePath);
