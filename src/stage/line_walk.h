#pragma once
// The walks of the line and rectangle tools: which cells they touch and which brush
// entry each cell takes. The tools and the cursor preview share them, so that what the
// preview shows is what the release draws.

#include <functional>

// Moves (fx, fy) towards the cell (tx, ty) by `step` along the longer axis, in ten
// sub-steps with an integer error term for the shorter one. True as soon as both
// truncations reach the target; the position stays where that happened.
bool StepToward(double& fx, double& fy, int tx, int ty, double step);

// A cell of a walk and the brush entry it takes.
using BRUSH_VISIT = std::function<void(int x, int y, int brushIndex)>;

// The line from the centre of (x0, y0) to (x1, y1), in at most 200 rounds: each round
// visits the cell under the position with brush entry i of row 0, then steps one cell;
// the round after arrival visits the target and ends. i wraps past brushW - 1. Cells
// are visited whether they lie on a map or not.
void WalkLine(int x0, int y0, int x1, int y1, int brushW, const BRUSH_VISIT& visit);

// The w x h rectangle at (x, y), row by row, cut at mapW and mapH. The brush column
// runs on across rows (it is not reset at a row's start), so a brush that does not
// divide the width continues where the last row ended; the brush row steps once per
// row. The entry is row * brushStride + column.
void WalkRect(int x, int y, int w, int h, int mapW, int mapH, int brushW, int brushH, int brushStride,
              const BRUSH_VISIT& visit);
