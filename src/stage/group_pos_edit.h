#pragma once
// The rules of the position group forms apart from their windows: the list's row text,
// the cell a click in the group's map picture names, and what the click does.

#include <string>

#include "kernel/vector_class.h"
#include "stage/stage_records.h"
#include "stage/stage_view_draw.h"

// A stage shows 99 groups at most, behind its hidden group 0.
constexpr int kMaxGroupRows = 99;

// "%-8s 中心座標(%d,%d)" of the group's name and centre, in CP932.
std::string GroupPosRowText(const cGroupPos& group);

// The cell under pixel (px, py) of the group form's map picture. False outside the
// picture. The cell is not tested against the map: when the map is smaller than the
// picture a click may name a cell beyond its edge, which the stage's clamp removes.
bool GroupCellAt(const MAP_VIEW& view, int px, int py, int& x, int& y);

// A click on cell (x, y): a cell of the group leaves it, the others keeping their
// order; any other cell joins it at the end.
void ToggleGroupPos(VECTOR_CLASS<cMapPos>& positions, int x, int y);
