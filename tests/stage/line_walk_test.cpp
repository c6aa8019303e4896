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

TEST(LineWalkTest, StepTowardArrivesWithinTenSubSteps) {
  double fx = 2.5, fy = 3.5;
  EXPECT_TRUE(StepToward(fx, fy, 2, 3, 1.0)) << "a cell to itself arrives on the first sub-step";
  EXPECT_NEAR(fx, 2.6, 1e-9);
  EXPECT_NEAR(fy, 3.6, 1e-9);
  fx = 0.5, fy = 0.5;
  EXPECT_FALSE(StepToward(fx, fy, 5, 0, 1.0)) << "one cell per call along the major axis";
  EXPECT_NEAR(fx, 1.5, 1e-9);
  EXPECT_NEAR(fy, 0.5, 1e-9);
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

TEST(LineWalkTest, RectangleColumnCounterRunsOnAcrossRows) {
  Visits v;
  auto visit = [&](int x, int y, int i) { v.push_back({x, y, i}); };
  WalkRect(1, 1, 3, 2, 10, 10, 2, 2, 64, visit);
  EXPECT_EQ(v, (Visits{{1, 1, 0}, {2, 1, 1}, {3, 1, 0}, {1, 2, 65}, {2, 2, 64}, {3, 2, 65}}));
  v.clear();
  WalkRect(2, 3, 3, 3, 4, 4, 1, 1, 64, visit);
  EXPECT_EQ(v, (Visits{{2, 3, 0}, {3, 3, 0}})) << "cut at the map's right and bottom edges";
}

}  // namespace
