// Rectangle copies with their raster operations, scaled copies, lines and pens. All of
// it works on the planes directly and clips to both surfaces.

#include <algorithm>
#include <cstring>

#include "media/surface.h"
#include "media/surface_pixels.h"

using namespace surface_pixels;

namespace {

// The three raster operations the masked copy needs.
enum class Rop { Copy, And, Or };

void ApplyRow(unsigned char* d, const unsigned char* s, std::size_t n, Rop op) {
  switch (op) {
    case Rop::Copy:
      std::memmove(d, s, n);
      break;
    case Rop::And:
      for (std::size_t i = 0; i < n; ++i) d[i] &= s[i];
      break;
    case Rop::Or:
      for (std::size_t i = 0; i < n; ++i) d[i] |= s[i];
      break;
  }
}

// A read-only view of one plane: pixel (x, y) at base + y * stride + x * bpp.
struct PlaneView {
  const unsigned char* base;
  std::size_t stride;
  int bits;
};

bool SameBuffer(const unsigned char* a, const std::vector<unsigned char>& plane) {
  return !plane.empty() && a == plane.data();
}

// Clips one axis of a copy of `len` pixels from `s` to `d` so that both lie within
// [0, dLimit) and [0, sLimit).
bool ClipAxis(long long& d, long long& s, long long& len, long long dLimit, long long sLimit) {
  if (d < 0) {
    s -= d;
    len += d;
    d = 0;
  }
  if (s < 0) {
    d -= s;
    len += s;
    s = 0;
  }
  len = std::min({len, dLimit - d, sLimit - s});
  return len > 0;
}

// One pass of a copy of w x h pixels of `src` at (sx, sy) onto the colour plane of
// `dst` at (dx, dy), already clipped.
void CopyPass(cSurface& dst, int dx, int dy, int w, int h, PlaneView src, int sx, int sy, Rop op) {
  const int dbpp = dst.BytesPerPixel(), sbpp = src.bits / 8;
  std::vector<unsigned char> snapshot;
  if (SameBuffer(src.base, dst.m_vecBits)) {
    // A copy within one plane reads the source as it was before the pass.
    std::size_t rowBytes = static_cast<std::size_t>(w) * sbpp;
    snapshot.resize(rowBytes * h);
    for (int r = 0; r < h; ++r)
      std::memcpy(&snapshot[r * rowBytes], src.base + (sy + r) * src.stride + static_cast<std::size_t>(sx) * sbpp,
                  rowBytes);
    src = PlaneView{snapshot.data(), rowBytes, src.bits};
    sx = sy = 0;
  }
  std::vector<unsigned char> converted;
  if (src.bits != dst.m_nBits) converted.resize(static_cast<std::size_t>(w) * dbpp);
  const std::size_t dstride = static_cast<std::size_t>(dst.Stride());
  for (int r = 0; r < h; ++r) {
    const unsigned char* s = src.base + (sy + r) * src.stride + static_cast<std::size_t>(sx) * sbpp;
    if (!converted.empty()) {
      ConvertPixels(s, src.bits, converted.data(), dst.m_nBits, static_cast<std::size_t>(w));
      s = converted.data();
    }
    unsigned char* d = dst.m_vecBits.data() + (dy + r) * dstride + static_cast<std::size_t>(dx) * dbpp;
    ApplyRow(d, s, static_cast<std::size_t>(w) * dbpp, op);
  }
}

// Nearest-neighbour mapping of one axis of a scaled copy: the destination pixels
// [first, first + src.size()) take source pixels src[i].
struct AxisMap {
  int first = 0;
  std::vector<int> src;
};

// Destination pixel i of the rectangle (counted from its low edge) samples source pixel
// (2i + 1) * sLen / (2 * dLen), counted from the source's low edge, or from its high
// edge when the axis is mirrored.
AxisMap MapAxis(long long d, long long dExt, long long dLimit, long long s, long long sExt, long long sLimit) {
  AxisMap map;
  long long dLow = dExt > 0 ? d : d + dExt, dLen = dExt > 0 ? dExt : -dExt;
  long long sLow = sExt > 0 ? s : s + sExt, sLen = sExt > 0 ? sExt : -sExt;
  bool mirrored = (dExt < 0) != (sExt < 0);
  long long i0 = std::max(0LL, -dLow), i1 = std::min(dLen, dLimit - dLow);
  for (long long i = i0; i < i1; ++i) {
    long long j = static_cast<long long>((static_cast<__int128>(2 * i + 1) * sLen) / (2 * dLen));
    if (mirrored) j = sLen - 1 - j;
    long long sp = sLow + j;
    // The mapping is monotonic, so the valid pixels form one run.
    if (sp < 0 || sp >= sLimit) {
      if (!map.src.empty()) break;
      continue;
    }
    if (map.src.empty()) map.first = static_cast<int>(dLow + i);
    map.src.push_back(static_cast<int>(sp));
  }
  return map;
}

void StretchPass(cSurface& dst, const AxisMap& xs, const AxisMap& ys, PlaneView src, Rop op) {
  const int dbpp = dst.BytesPerPixel(), sbpp = src.bits / 8;
  const std::size_t n = xs.src.size();
  std::vector<unsigned char> gathered(n * sbpp), converted;
  if (src.bits != dst.m_nBits) converted.resize(n * dbpp);
  const std::size_t dstride = static_cast<std::size_t>(dst.Stride());
  for (std::size_t r = 0; r < ys.src.size(); ++r) {
    const unsigned char* srow = src.base + static_cast<std::size_t>(ys.src[r]) * src.stride;
    unsigned char* g = gathered.data();
    for (std::size_t k = 0; k < n; ++k, g += sbpp) std::memcpy(g, srow + static_cast<std::size_t>(xs.src[k]) * sbpp, sbpp);
    const unsigned char* s = gathered.data();
    if (!converted.empty()) {
      ConvertPixels(s, src.bits, converted.data(), dst.m_nBits, n);
      s = converted.data();
    }
    unsigned char* d = dst.m_vecBits.data() + static_cast<std::size_t>(ys.first + static_cast<int>(r)) * dstride +
                       static_cast<std::size_t>(xs.first) * dbpp;
    ApplyRow(d, s, n * dbpp, op);
  }
}

// The on/off runs of the broken cosmetic styles, starting with a run that is drawn.
struct DashPattern {
  int runs[6];
  int count;
};

const DashPattern* PatternOf(int style) {
  static const DashPattern dash{{18, 6}, 2};
  static const DashPattern dot{{3, 3}, 2};
  static const DashPattern dashDot{{9, 6, 3, 6}, 4};
  static const DashPattern dashDotDot{{9, 3, 3, 3, 3, 3}, 6};
  switch (style) {
    case kPenDash:
      return &dash;
    case kPenDot:
      return &dot;
    case kPenDashDot:
      return &dashDot;
    case kPenDashDotDot:
      return &dashDotDot;
    default:
      return nullptr;
  }
}

int PatternLength(const DashPattern& p) {
  int total = 0;
  for (int i = 0; i < p.count; ++i) total += p.runs[i];
  return total;
}

bool PatternOn(const DashPattern& p, int position) {
  for (int i = 0; i < p.count; ++i) {
    if (position < p.runs[i]) return i % 2 == 0;
    position -= p.runs[i];
  }
  return false;
}

// Of the n lines at start + i * step, those that can fall in [0, limit): [first, last).
// Lines outside draw nothing, so a huge count costs nothing.
bool VisibleSteps(long long start, long long step, long long n, long long limit, long long& first, long long& last) {
  auto floorDiv = [](long long a, long long b) {  // b > 0
    long long q = a / b;
    return (a % b != 0 && a < 0) ? q - 1 : q;
  };
  auto ceilDiv = [&](long long a, long long b) { return -floorDiv(-a, b); };
  long long lo, hi;  // inclusive
  if (step > 0) {
    lo = ceilDiv(-start, step);
    hi = floorDiv(limit - 1 - start, step);
  } else {
    lo = ceilDiv(start - limit + 1, -step);
    hi = floorDiv(start, -step);
  }
  first = std::max(0LL, lo);
  last = std::min(n, hi + 1);
  return first < last;
}

}  // namespace

void cSurface::Blit(int x, int y, int w, int h, const cSurface& source, int sx, int sy, int bNoMask) {
  if (IsEmpty() || source.IsEmpty()) return;
  long long dx = x, dy = y, ssx = sx, ssy = sy, ww = w, hh = h;
  if (!ClipAxis(dx, ssx, ww, m_nWidth, source.m_nWidth)) return;
  if (!ClipAxis(dy, ssy, hh, m_nHeight, source.m_nHeight)) return;
  const std::size_t sstride = static_cast<std::size_t>(source.Stride());
  PlaneView colour{source.m_vecBits.data(), sstride, source.m_nBits};
  int cx = static_cast<int>(dx), cy = static_cast<int>(dy), cw = static_cast<int>(ww), ch = static_cast<int>(hh);
  int csx = static_cast<int>(ssx), csy = static_cast<int>(ssy);
  if (source.HasMask() && !bNoMask) {
    PlaneView mask{source.m_vecMaskBits.data(), sstride, source.m_nBits};
    CopyPass(*this, cx, cy, cw, ch, mask, csx, csy, Rop::And);
    CopyPass(*this, cx, cy, cw, ch, colour, csx, csy, Rop::Or);
  } else {
    CopyPass(*this, cx, cy, cw, ch, colour, csx, csy, Rop::Copy);
  }
}

void cSurface::StretchBlit(int x, int y, int w, int h, const cSurface& source, int sx, int sy, int sw, int sh,
                           int bNoMask) {
  if (IsEmpty() || source.IsEmpty() || !w || !h || !sw || !sh) return;
  AxisMap xs = MapAxis(x, w, m_nWidth, sx, sw, source.m_nWidth);
  AxisMap ys = MapAxis(y, h, m_nHeight, sy, sh, source.m_nHeight);
  if (xs.src.empty() || ys.src.empty()) return;

  const std::size_t sstride = static_cast<std::size_t>(source.Stride());
  const bool masked = source.HasMask() && !bNoMask;
  if (masked) StretchPass(*this, xs, ys, PlaneView{source.m_vecMaskBits.data(), sstride, source.m_nBits}, Rop::And);

  PlaneView colour{source.m_vecBits.data(), sstride, source.m_nBits};
  std::vector<unsigned char> snapshot;
  AxisMap colourRows = ys;
  if (&source == this) {
    // A copy onto its own surface (the mirroring of cells) reads the picture as it was
    // before this pass: the rows it reads are taken aside first.
    int rowLo = std::min(ys.src.front(), ys.src.back()), rowHi = std::max(ys.src.front(), ys.src.back());
    snapshot.assign(m_vecBits.begin() + static_cast<std::ptrdiff_t>(rowLo * sstride),
                    m_vecBits.begin() + static_cast<std::ptrdiff_t>((rowHi + 1) * sstride));
    for (int& row : colourRows.src) row -= rowLo;
    colour.base = snapshot.data();
  }
  StretchPass(*this, xs, colourRows, colour, masked ? Rop::Or : Rop::Copy);
}

int cSurface::SetPen(int style, int width, std::uint32_t colour) {
  if (style < kPenSolid || style > kPenInsideFrame) return 0;
  PEN pen;
  pen.nWidth = width > 1 ? width : 1;
  // Broken styles exist only for thin pens.
  pen.nStyle = (pen.nWidth > 1 && PatternOf(style)) ? kPenSolid : style;
  pen.colour = colour;
  m_oldPen = m_pen;
  m_pen = pen;
  if (style == kPenDot) m_nBkMode = kBkTransparent;
  return 1;
}

void cSurface::ReleasePen() { m_pen = m_oldPen; }

void cSurface::Line(int x1, int y1, int x2, int y2) { DrawLine(x1, y1, x2, y2); }

void cSurface::Frame(int x, int y, int w, int h) {
  long long l = x, t = y, r = static_cast<long long>(x) + w - 1, b = static_cast<long long>(y) + h - 1;
  DrawLine(l, t, r, t);
  DrawLine(r, t, r, b);
  DrawLine(r, b, l, b);
  DrawLine(l, b, l, t);
}

void cSurface::Grid(int x, int y, int w, int h, int cellW, int cellH, std::uint32_t colour) {
  if (cellW == 0 || cellH == 0) return;
  SetPen(kPenSolid, 1, colour);
  const long long right = static_cast<long long>(x) + w, bottom = static_cast<long long>(y) + h;
  long long first = 0, last = 0;
  if (VisibleSteps(x, cellW, static_cast<long long>(w) / cellW + 1, m_nWidth, first, last))
    for (long long i = first; i < last; ++i) DrawLine(x + i * cellW, y, x + i * cellW, bottom);
  DrawLine(right - 1, y, right - 1, bottom);
  if (VisibleSteps(y, cellH, static_cast<long long>(h) / cellH + 1, m_nHeight, first, last))
    for (long long j = first; j < last; ++j) DrawLine(x, y + j * cellH, right, y + j * cellH);
  DrawLine(x, bottom - 1, right, bottom - 1);
  ReleasePen();
}

void cSurface::FillRows(int x1, int x2, int rows, std::uint32_t colour) {
  SetPen(kPenSolid, 1, colour);
  int last = std::min(rows, m_nHeight);
  for (int r = 0; r < last; ++r) DrawLine(x1, r, x2, r);
}

// Bresenham from (x1, y1) towards (x2, y2), the end point left out. Along the major
// axis step i, the minor axis is at floor((2 * i * minor + major) / (2 * major)), that
// is the exact line rounded with halves away from the start. Only the steps that fall
// inside the surface are visited, so far-off coordinates cost nothing.
void cSurface::DrawLine(long long x1, long long y1, long long x2, long long y2) {
  if (IsEmpty() || m_pen.nStyle == kPenNull) return;
  const long long dx = x2 - x1, dy = y2 - y1;
  const long long adx = dx < 0 ? -dx : dx, ady = dy < 0 ? -dy : dy;
  const bool xMajor = adx >= ady;
  const long long major = xMajor ? adx : ady, minor = xMajor ? ady : adx;
  if (major == 0) return;
  const int stepMajor = (xMajor ? dx : dy) < 0 ? -1 : 1, stepMinor = (xMajor ? dy : dx) < 0 ? -1 : 1;
  const long long majorStart = xMajor ? x1 : y1, minorStart = xMajor ? y1 : x1;
  const long long majorLimit = xMajor ? m_nWidth : m_nHeight;

  const int bpp = BytesPerPixel();
  const std::size_t stride = static_cast<std::size_t>(Stride());
  const int penWidth = m_pen.nWidth;
  const int reachLow = (penWidth - 1) / 2, reachHigh = penWidth / 2;  // square brush around each point
  unsigned char on[4], gap[4];
  ColourBytes(m_pen.colour, m_nBits, on);
  ColourBytes(m_nBkColor, m_nBits, gap);
  const DashPattern* pattern = PatternOf(m_pen.nStyle);
  const int patternLength = pattern ? PatternLength(*pattern) : 1;

  // Steps whose major coordinate (widened by the brush) lies inside the surface.
  auto stepsTo = [&](long long coordinate) {  // first i with majorStart + stepMajor * i == coordinate
    return stepMajor > 0 ? coordinate - majorStart : majorStart - coordinate;
  };
  long long lo = std::max(0LL, std::min(stepsTo(-reachHigh), stepsTo(majorLimit - 1 + reachLow)));
  long long hi = std::min(major, std::max(stepsTo(-reachHigh), stepsTo(majorLimit - 1 + reachLow)) + 1);
  if (lo >= hi) return;

  // A solid thin horizontal line is a row fill.
  if (!pattern && penWidth == 1 && xMajor && minor == 0) {
    if (y1 < 0 || y1 >= m_nHeight) return;
    long long a = majorStart + stepMajor * lo, b = majorStart + stepMajor * (hi - 1);
    if (a > b) std::swap(a, b);
    FillPixels(m_vecBits.data() + static_cast<std::size_t>(y1) * stride + static_cast<std::size_t>(a) * bpp, on, bpp,
               static_cast<std::size_t>(b - a + 1));
    return;
  }

  const unsigned __int128 twiceMajor = static_cast<unsigned __int128>(major) * 2;
  unsigned __int128 numerator = static_cast<unsigned __int128>(lo) * 2 * minor + major;
  long long minorOffset = static_cast<long long>(numerator / twiceMajor);
  long long remainder = static_cast<long long>(numerator % twiceMajor);
  const long long twiceMinor = 2 * minor, twiceMajorLL = 2 * major;

  for (long long i = lo; i < hi; ++i) {
    const unsigned char* colour = on;
    bool draw = true;
    if (pattern && !PatternOn(*pattern, static_cast<int>(i % patternLength))) {
      draw = m_nBkMode == kBkOpaque;
      colour = gap;
    }
    if (draw) {
      long long mj = majorStart + stepMajor * i, mn = minorStart + stepMinor * minorOffset;
      long long px = xMajor ? mj : mn, py = xMajor ? mn : mj;
      long long x0 = std::max(0LL, px - reachLow), x1e = std::min<long long>(m_nWidth, px + reachHigh + 1);
      long long y0 = std::max(0LL, py - reachLow), y1e = std::min<long long>(m_nHeight, py + reachHigh + 1);
      for (long long yy = y0; yy < y1e; ++yy) {
        if (x0 < x1e)
          FillPixels(m_vecBits.data() + static_cast<std::size_t>(yy) * stride + static_cast<std::size_t>(x0) * bpp,
                     colour, bpp, static_cast<std::size_t>(x1e - x0));
      }
    }
    remainder += twiceMinor;
    if (remainder >= twiceMajorLL) {
      remainder -= twiceMajorLL;
      ++minorOffset;
    }
  }
}
