#include <gtest/gtest.h>

#include <array>
#include <vector>

#include "stage/line_walk.h"

namespace {

using Visits = std::vector<std::array<int, 3>>;  // x, y, brush entry

Visits Line(int x0, int y0, int x1, int y1, int brushW) {
  Visits v;
  WalkLine(x0, y0, x1, y1, brushW, [&](int x, int y, int i) { v.push_back({x, y, i}); });
  return v;
}

TEST(LineWalkTest, WalksVisitCellsWithTheirBrushEntries) {
  // To itself: the cell, then once more after arriving.
  EXPECT_EQ(Line(2, 3, 2, 3, 3), (Visits{{2, 3, 0}, {2, 3, 1}}));
  // Right to left, entry 0 at the press cell, wrapping past the brush width.
  EXPECT_EQ(Line(5, 0, 2, 0, 3), (Visits{{5, 0, 0}, {4, 0, 1}, {3, 0, 2}, {2, 0, 0}}));
  EXPECT_EQ(Line(0, 4, 0, 1, 0), (Visits{{0, 4, 0}, {0, 3, 0}, {0, 2, 0}, {0, 1, 0}})) << "no brush stays at 0";
  // The longest line of a stage ends on its target well inside the round limit.
  Visits diagonal = Line(0, 0, 63, 63, 1);
  EXPECT_LE(diagonal.size(), 200u);
  EXPECT_EQ(diagonal.back(), (std::array<int, 3>{63, 63, 0}));
  // A target it never reaches stops after 200 rounds.
  EXPECT_EQ(Line(0, 0, 1000, 0, 1).size(), 200u);
}

}  // namespace
