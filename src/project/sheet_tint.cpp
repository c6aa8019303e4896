#include "project/sheet_tint.h"

#include <algorithm>

#include "project/project_globals.h"

cHsv RgbToHsv(int r, int g, int b) {
  int max = std::max({r, g, b}), min = std::min({r, g, b});
  if (max == 0) max = 1;
  int d = max - min;
  if (d == 0) d = 1;
  const double rc = static_cast<double>(max - r) / d, gc = static_cast<double>(max - g) / d,
               bc = static_cast<double>(max - b) / d;
  double h;
  if (r == max) h = bc - gc;
  else if (g == max) h = 2 + rc - bc;
  else h = 4 + gc - rc;
  int hue = static_cast<int>(h * 60);
  if (hue < 0) hue += 360;
  return {hue, d * 255 / max, max};
}

void HsvToRgb(const cHsv& hsv, int& r, int& g, int& b) {
  const int v = hsv.v;
  if (hsv.s == 0) {
    r = g = b = v;
    return;
  }
  const int i = hsv.h / 60;
  const double f = hsv.h / 60.0 - i, n = hsv.s / 255.0;
  const int p = static_cast<int>(v * (1 - n)), q = static_cast<int>(v * (1 - f * n)),
            t = static_cast<int>(v * (1 - (1 - f) * n));
  switch (i) {
    case 0: r = v, g = t, b = p; break;
    case 1: r = q, g = v, b = p; break;
    case 2: r = p, g = v, b = t; break;
    case 3: r = p, g = q, b = v; break;
    case 4: r = t, g = p, b = v; break;
    default: r = v, g = p, b = q; break;
  }
}

namespace {

struct cTintJob {
  int target;       // sheet drawn into
  int firstSheet;   // the graphic's sheet for g 0..perSheet-1
  int firstColour;  // the colour sheet beside it
  int perSheet;     // graphics on one sheet
  int rows;         // height of one graphic's strip
  bool copyStrip;   // the untinted strip goes first
};

bool IsKey(const unsigned char* p) {
  return p[0] == (g_nKeyColor & 0xFF) && p[1] == ((g_nKeyColor >> 8) & 0xFF) && p[2] == ((g_nKeyColor >> 16) & 0xFF);
}

void Tint(const cTintJob& job, int g, int nHue, int nSat, int nVal) {
  if (g <= 0) return;
  const int s = g / job.perSheet, y0 = (g % job.perSheet) * job.rows;
  if (job.firstSheet + s >= kSheetCount || job.firstColour + s >= kSheetCount) return;
  cSurface& target = g_aSheet[job.target];
  const cSurface& strip = g_aSheet[job.firstSheet + s];
  const cSurface& colour = g_aSheet[job.firstColour + s].IsEmpty() ? strip : g_aSheet[job.firstColour + s];
  if (target.IsEmpty() || target.m_nBits != 24) target.Create(std::max(colour.m_nWidth, 1), job.rows, 24, 1);
  // The key's bytes in a pixel's order, blue first, which is how FillBytes takes them.
  const unsigned char key[3] = {static_cast<unsigned char>(g_nKeyColor), static_cast<unsigned char>(g_nKeyColor >> 8),
                                static_cast<unsigned char>(g_nKeyColor >> 16)};
  target.FillBytes(key);
  if (job.copyStrip && !strip.IsEmpty()) target.Blit(0, 0, strip.m_nWidth, job.rows, strip, 0, y0, 1);
  if (colour.IsEmpty() || colour.m_nBits != 24) return;
  const int width = std::min(colour.m_nWidth, target.m_nWidth);
  for (int y = 0; y < std::min(job.rows, target.m_nHeight) && y0 + y < colour.m_nHeight; ++y)
    for (int x = 0; x < width; ++x) {
      const unsigned char* p = colour.Pixel(x, y0 + y);
      if (IsKey(p)) continue;
      cHsv hsv = RgbToHsv(p[2], p[1], p[0]);
      hsv.h += nHue;
      if (hsv.h < 0) hsv.h += 360;
      if (hsv.h >= 360) hsv.h -= 360;
      hsv.s = std::clamp(hsv.s + nSat, 0, 255);
      hsv.v = std::clamp(hsv.v + nVal, 0, 255);
      int r, gr, b;
      HsvToRgb(hsv, r, gr, b);
      unsigned char* out = target.Pixel(x, y);
      out[0] = static_cast<unsigned char>(b), out[1] = static_cast<unsigned char>(gr), out[2] = static_cast<unsigned char>(r);
    }
}

}  // namespace

void TintCharacter(int g, int nHue, int nSat, int nVal) {
  Tint({kCharaTintSheet, 2, 10, 20, 48, true}, g, nHue, nSat, nVal);
}

void TintEffect(int g, int nHue, int nSat, int nVal) {
  Tint({kEffectTintSheet, 23, 23, 16, 64, false}, g, nHue, nSat, nVal);
}
