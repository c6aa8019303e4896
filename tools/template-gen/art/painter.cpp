#include "art/painter.h"

#include <algorithm>
#include <cmath>
#include <tuple>
#include <utility>

namespace art {

Col Hex(std::uint32_t rrggbb) {
  return {static_cast<float>(rrggbb >> 16 & 0xFF), static_cast<float>(rrggbb >> 8 & 0xFF),
          static_cast<float>(rrggbb & 0xFF)};
}

Col Mix(Col a, Col b, float t) { return {a.r + (b.r - a.r) * t, a.g + (b.g - a.g) * t, a.b + (b.b - a.b) * t}; }

Col Scale(Col c, float f) { return {c.r * f, c.g * f, c.b * f}; }

Col Add(Col a, Col b) { return {a.r + b.r, a.g + b.g, a.b + b.b}; }

Col HueShift(Col c, float degrees) {
  // Rotation about the grey axis keeps the brightness and needs no HSV round trip.
  const float a = degrees * 3.14159265f / 180.f;
  const float cosA = std::cos(a), sinA = std::sin(a);
  const float k = (1.f - cosA) / 3.f, s = std::sqrt(1.f / 3.f) * sinA;
  const float m0 = cosA + k, m1 = k - s, m2 = k + s;
  return {c.r * m0 + c.g * m1 + c.b * m2, c.r * m2 + c.g * m0 + c.b * m1, c.r * m1 + c.g * m2 + c.b * m0};
}

float Hash(int x, int y, std::uint32_t seed) {
  std::uint32_t h = static_cast<std::uint32_t>(x) * 0x8DA6B343u ^ static_cast<std::uint32_t>(y) * 0xD8163841u ^
                    seed * 0xCB1AB31Fu;
  h ^= h >> 13;
  h *= 0x5BD1E995u;
  h ^= h >> 15;
  return static_cast<float>(h & 0xFFFFFF) / 16777216.f;
}

float Noise(float x, float y, float cell, int period, std::uint32_t seed) {
  const float gx = x / cell, gy = y / cell;
  const int ix = static_cast<int>(std::floor(gx)), iy = static_cast<int>(std::floor(gy));
  const float fx = gx - ix, fy = gy - iy;
  const int wrap = period > 0 ? std::max(1, static_cast<int>(std::lround(period / cell))) : 0;
  auto at = [&](int a, int b) {
    if (wrap) a = ((a % wrap) + wrap) % wrap, b = ((b % wrap) + wrap) % wrap;
    return Hash(a, b, seed);
  };
  const float sx = fx * fx * (3 - 2 * fx), sy = fy * fy * (3 - 2 * fy);
  const float top = at(ix, iy) + (at(ix + 1, iy) - at(ix, iy)) * sx;
  const float bottom = at(ix, iy + 1) + (at(ix + 1, iy + 1) - at(ix, iy + 1)) * sx;
  return top + (bottom - top) * sy;
}

float Fbm(float x, float y, float cell, int period, std::uint32_t seed) {
  return Noise(x, y, cell, period, seed) * 0.55f + Noise(x, y, cell / 2, period, seed + 1) * 0.3f +
         Noise(x, y, cell / 4, period, seed + 2) * 0.15f;
}

namespace {

std::uint32_t Pack(Col c) {
  auto channel = [](float v) { return static_cast<std::uint32_t>(std::clamp(std::lround(v), 0L, 255L)); };
  return 0xFF000000u | channel(c.r) << 16 | channel(c.g) << 8 | channel(c.b);
}

}  // namespace

cCanvas::cCanvas(int width, int height)
    : m_nWidth(width), m_nHeight(height), m_nClipW(width), m_nClipH(height),
      m_vecPixels(static_cast<std::size_t>(width) * height, 0) {}

bool cCanvas::Clipped(int x, int y) const {
  return x < m_nClipX || y < m_nClipY || x >= m_nClipX + m_nClipW || y >= m_nClipY + m_nClipH || x < 0 || y < 0 ||
         x >= m_nWidth || y >= m_nHeight;
}

bool cCanvas::Opaque(int x, int y) const {
  return x >= 0 && y >= 0 && x < m_nWidth && y < m_nHeight && (m_vecPixels[Index(x, y)] >> 24) != 0;
}

Col cCanvas::At(int x, int y) const {
  if (x < 0 || y < 0 || x >= m_nWidth || y >= m_nHeight) return {};
  return Hex(m_vecPixels[Index(x, y)] & 0xFFFFFF);
}

void cCanvas::Put(int x, int y, Col c) {
  if (!Clipped(x, y)) m_vecPixels[Index(x, y)] = Pack(c);
}

void cCanvas::Blend(int x, int y, Col c, float alpha) {
  if (Clipped(x, y)) return;
  Put(x, y, Opaque(x, y) ? Mix(At(x, y), c, alpha) : c);
}

void cCanvas::AddLight(int x, int y, Col c, float amount) {
  if (Clipped(x, y)) return;
  Put(x, y, Add(At(x, y), Scale(c, amount)));
}

void cCanvas::Erase(int x, int y) {
  if (!Clipped(x, y)) m_vecPixels[Index(x, y)] = 0;
}

void cCanvas::FillRect(int x, int y, int w, int h, Col c) {
  for (int j = y; j < y + h; ++j)
    for (int i = x; i < x + w; ++i) Put(i, j, c);
}

void cCanvas::SetClip(int x, int y, int w, int h) {
  m_nClipX = x, m_nClipY = y, m_nClipW = w, m_nClipH = h;
}

void cCanvas::ResetClip() { SetClip(0, 0, m_nWidth, m_nHeight); }

void cCanvas::Paste(const cCanvas& source, int sx, int sy, int w, int h, int dx, int dy) {
  for (int j = 0; j < h; ++j)
    for (int i = 0; i < w; ++i)
      if (source.Opaque(sx + i, sy + j) && !Clipped(dx + i, dy + j))
        m_vecPixels[Index(dx + i, dy + j)] = source.Raw(sx + i, sy + j);
}

cSketch::cSketch(cCanvas& canvas, int x, int y, int w, int h, float scale)
    : m_canvas(canvas), m_nX(x), m_nY(y), m_nW(w), m_nH(h), m_fScale(scale) {}

template <class Inside>
void cSketch::Cover(float x0, float y0, float x1, float y1, Col c, float shade, Inside inside) {
  const float cx = (x0 + x1) / 2, cy = (y0 + y1) / 2;
  const float hw = std::max(0.5f, (x1 - x0) / 2), hh = std::max(0.5f, (y1 - y0) / 2);
  int px0 = static_cast<int>(std::floor((x0 + m_fDx) * m_fScale)) - 1;
  int px1 = static_cast<int>(std::ceil((x1 + m_fDx) * m_fScale)) + 1;
  if (m_bMirror) std::tie(px0, px1) = std::pair(m_nW - 1 - px1, m_nW - 1 - px0);
  const int py0 = static_cast<int>(std::floor((y0 + m_fDy) * m_fScale)) - 1;
  const int py1 = static_cast<int>(std::ceil((y1 + m_fDy) * m_fScale)) + 1;
  for (int py = std::max(0, py0); py <= std::min(m_nH - 1, py1); ++py) {
    for (int px = std::max(0, px0); px <= std::min(m_nW - 1, px1); ++px) {
      const int dx = m_bMirror ? m_nW - 1 - px : px;
      const float u = (dx + 0.5f) / m_fScale - m_fDx, v = (py + 0.5f) / m_fScale - m_fDy;
      if (!inside(u, v)) continue;
      float nx = (u - cx) / hw, ny = (v - cy) / hh;
      if (m_bMirror) nx = -nx;
      const float light = 1.f - shade * (nx * 0.55f + ny * 0.85f);
      m_canvas.Put(m_nX + px, m_nY + py, Scale(c, light));
    }
  }
}

void cSketch::Ellipse(float cx, float cy, float rx, float ry, Col c, float shade) {
  Cover(cx - rx, cy - ry, cx + rx, cy + ry, c, shade, [&](float u, float v) {
    const float a = (u - cx) / rx, b = (v - cy) / ry;
    return a * a + b * b <= 1.f;
  });
}

void cSketch::Rect(float x, float y, float w, float h, Col c, float shade) {
  Cover(x, y, x + w, y + h, c, shade, [&](float u, float v) { return u >= x && u < x + w && v >= y && v < y + h; });
}

void cSketch::Poly(std::initializer_list<Pt> points, Col c, float shade) {
  Poly(std::vector<Pt>(points), c, shade);
}

void cSketch::Poly(const std::vector<Pt>& points, Col c, float shade) {
  if (points.size() < 3) return;
  float x0 = points[0].x, x1 = x0, y0 = points[0].y, y1 = y0;
  for (const Pt& p : points) x0 = std::min(x0, p.x), x1 = std::max(x1, p.x), y0 = std::min(y0, p.y), y1 = std::max(y1, p.y);
  Cover(x0, y0, x1, y1, c, shade, [&](float u, float v) {
    bool in = false;
    for (std::size_t i = 0, j = points.size() - 1; i < points.size(); j = i++) {
      const Pt& a = points[i];
      const Pt& b = points[j];
      if ((a.y > v) != (b.y > v) && u < (b.x - a.x) * (v - a.y) / (b.y - a.y) + a.x) in = !in;
    }
    return in;
  });
}

void cSketch::Stroke(float x1, float y1, float x2, float y2, float width, Col c, float shade) {
  const float r = width / 2;
  const float dx = x2 - x1, dy = y2 - y1, len2 = std::max(1e-6f, dx * dx + dy * dy);
  Cover(std::min(x1, x2) - r, std::min(y1, y2) - r, std::max(x1, x2) + r, std::max(y1, y2) + r, c, shade,
        [&](float u, float v) {
          const float t = std::clamp(((u - x1) * dx + (v - y1) * dy) / len2, 0.f, 1.f);
          const float ex = u - (x1 + t * dx), ey = v - (y1 + t * dy);
          return ex * ex + ey * ey <= r * r;
        });
}

void Outline(cCanvas& canvas, int x, int y, int w, int h, float darkness) {
  std::vector<std::pair<int, int>> rim;
  std::vector<Col> colour;
  for (int j = y; j < y + h; ++j) {
    for (int i = x; i < x + w; ++i) {
      if (canvas.Opaque(i, j)) continue;
      static constexpr int kSides[4][2] = {{1, 0}, {-1, 0}, {0, 1}, {0, -1}};
      for (const auto& s : kSides) {
        const int ni = i + s[0], nj = j + s[1];
        if (ni < x || nj < y || ni >= x + w || nj >= y + h || !canvas.Opaque(ni, nj)) continue;
        rim.emplace_back(i, j);
        // Never pure black: that is the key colour of the unmasked sheets.
        colour.push_back(Add(Scale(canvas.At(ni, nj), darkness), Col{14, 10, 18}));
        break;
      }
    }
  }
  for (std::size_t k = 0; k < rim.size(); ++k) canvas.Put(rim[k].first, rim[k].second, colour[k]);
}

}  // namespace art
