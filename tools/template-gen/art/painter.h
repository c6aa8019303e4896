#pragma once
// The painter's toolkit behind the template's pictures: an RGBA canvas, deterministic
// noise, colours, shaded shapes in scalable design units, and outlines. A pixel is
// either fully opaque or fully transparent, as masked sheets know nothing in between.

#include <cstdint>
#include <initializer_list>
#include <vector>

namespace art {

// A colour with channels 0..255, kept in floats so that shading and mixing round once.
struct Col {
  float r = 0, g = 0, b = 0;
};
Col Hex(std::uint32_t rrggbb);
Col Mix(Col a, Col b, float t);
Col Scale(Col c, float f);
Col Add(Col a, Col b);
Col HueShift(Col c, float degrees);

// Integer hash of a lattice point, uniform in [0, 1).
float Hash(int x, int y, std::uint32_t seed);
// Smooth value noise of lattice `cell` pixels; with `period` (in pixels, a multiple of
// the cell) it wraps, so that a chip tiles without a seam.
float Noise(float x, float y, float cell, int period, std::uint32_t seed);
// Three octaves of Noise, halving the cell each time; about 0..1.
float Fbm(float x, float y, float cell, int period, std::uint32_t seed);

class cCanvas {
 public:
  cCanvas(int width, int height);  // all transparent
  int Width() const { return m_nWidth; }
  int Height() const { return m_nHeight; }
  bool Opaque(int x, int y) const;
  Col At(int x, int y) const;
  // Drawing is clipped to the canvas and to the clip rectangle.
  void Put(int x, int y, Col c);
  void Blend(int x, int y, Col c, float alpha);  // over an opaque pixel; else Put
  void AddLight(int x, int y, Col c, float amount);
  void Erase(int x, int y);
  void FillRect(int x, int y, int w, int h, Col c);
  void SetClip(int x, int y, int w, int h);
  void ResetClip();
  // Copies the opaque pixels of a w x h area of `source`.
  void Paste(const cCanvas& source, int sx, int sy, int w, int h, int dx, int dy);
  // 0xAARRGGBB; alpha is 0 or 255.
  std::uint32_t Raw(int x, int y) const { return m_vecPixels[Index(x, y)]; }

 private:
  std::size_t Index(int x, int y) const { return static_cast<std::size_t>(y) * m_nWidth + x; }
  bool Clipped(int x, int y) const;
  int m_nWidth, m_nHeight;
  int m_nClipX = 0, m_nClipY = 0, m_nClipW, m_nClipH;
  std::vector<std::uint32_t> m_vecPixels;
};

struct Pt {
  float x, y;
};

// Shapes in design units: a unit is `scale` pixels from the origin, and each shape is
// clipped to the w x h pixel cell at the origin. `shade` lights a shape from the top
// left: its pixels are brightened towards that side and darkened away from it.
class cSketch {
 public:
  cSketch(cCanvas& canvas, int x, int y, int w, int h, float scale);
  void Ellipse(float cx, float cy, float rx, float ry, Col c, float shade = 0.3f);
  void Rect(float x, float y, float w, float h, Col c, float shade = 0.2f);
  void Poly(std::initializer_list<Pt> points, Col c, float shade = 0.2f);
  void Poly(const std::vector<Pt>& points, Col c, float shade = 0.2f);
  // A thick line with round ends.
  void Stroke(float x1, float y1, float x2, float y2, float width, Col c, float shade = 0.f);
  // Moves the origin by design units (for bobbing and lunges) and mirrors left to right.
  void Offset(float dx, float dy) { m_fDx += dx, m_fDy += dy; }
  void Mirror(bool on) { m_bMirror = on; }
  cCanvas& Canvas() { return m_canvas; }

 private:
  template <class Inside>
  void Cover(float x0, float y0, float x1, float y1, Col c, float shade, Inside inside);
  cCanvas& m_canvas;
  int m_nX, m_nY, m_nW, m_nH;
  float m_fScale;
  float m_fDx = 0, m_fDy = 0;
  bool m_bMirror = false;
};

// Rings the opaque pixels of the area with a dark rim taken from the colour inside,
// on the transparent pixels beside them (four-way).
void Outline(cCanvas& canvas, int x, int y, int w, int h, float darkness = 0.3f);

}  // namespace art
