#include "stage/line_walk.h"

#include <cstdlib>

namespace {

constexpr int kMaxLineRounds = 200;

// The next brush entry, back to 0 past the last; a brush narrower than 1 stays at 0.
int NextEntry(int i, int count) { return i + 1 > count - 1 ? 0 : i + 1; }

}  // namespace

bool StepToward(double& fx, double& fy, int tx, int ty, double step) {
  const int ix = static_cast<int>(fx), iy = static_cast<int>(fy);
  const int dx = std::abs(tx - ix), dy = std::abs(ty - iy);
  const double sx = tx - ix >= 0 ? 0.1 * step : -0.1 * step;
  const double sy = ty - iy >= 0 ? 0.1 * step : -0.1 * step;
  // The major axis moves every sub-step, the minor one when the error overflows.
  const bool xMajor = dx > dy;
  const int major = xMajor ? dx : dy, minor = xMajor ? dy : dx;
  double& fMajor = xMajor ? fx : fy;
  double& fMinor = xMajor ? fy : fx;
  const double sMajor = xMajor ? sx : sy, sMinor = xMajor ? sy : sx;
  int err = major >> 1;
  for (int k = 0; k < 10; ++k) {
    err += minor;
    if (err >= major) {
      fMinor += sMinor;
      err -= major;
    }
    fMajor += sMajor;
    if (static_cast<int>(fx) == tx && static_cast<int>(fy) == ty) return true;
  }
  return false;
}

void WalkLine(int x0, int y0, int x1, int y1, int brushW, const BRUSH_VISIT& visit) {
  double fx = x0 + 0.5, fy = y0 + 0.5;
  bool last = false;
  int i = 0;
  for (int round = 0; round < kMaxLineRounds; ++round) {
    visit(static_cast<int>(fx), static_cast<int>(fy), i);
    if (last) return;
    if (StepToward(fx, fy, x1, y1, 1.0)) last = true;
    i = NextEntry(i, brushW);
  }
}

void WalkRect(int x, int y, int w, int h, int mapW, int mapH, int brushW, int brushH, int brushStride,
              const BRUSH_VISIT& visit) {
  int bc = 0, br = 0;
  for (int r = 0; r < h && y + r < mapH; ++r) {
    for (int c = 0; c < w && x + c < mapW; ++c) {
      visit(x + c, y + r, br * brushStride + bc);
      bc = NextEntry(bc, brushW);
    }
    br = NextEntry(br, brushH);
  }
}
