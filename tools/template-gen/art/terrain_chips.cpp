// Map chips and world map chips: 32 x 32 tiles that repeat without a seam, each a
// textured ground with its own details on top.

#include <algorithm>
#include <cmath>
#include <cstdint>

#include "art/art_layout.h"
#include "art/sheets.h"

namespace art {
namespace {

constexpr int kChip = 32;

// One chip of a sheet; pixel coordinates wrap, so that details crossing an edge come
// in again at the other side and the chip tiles.
struct cChip {
  cCanvas& c;
  int x0, y0;
  std::uint32_t seed;

  static int Wrap(int v) { return ((v % kChip) + kChip) % kChip; }
  Col At(int i, int j) const { return c.At(x0 + Wrap(i), y0 + Wrap(j)); }
  void Put(int i, int j, Col col) { c.Put(x0 + Wrap(i), y0 + Wrap(j), col); }
  void Blend(int i, int j, Col col, float a) { Put(i, j, Mix(At(i, j), col, a)); }
  void Darken(int i, int j, float f) { Put(i, j, Scale(At(i, j), f)); }
  float Rand(int k, int salt = 0) const { return Hash(k, salt, seed); }
  int RandPx(int k, int salt) const { return static_cast<int>(Rand(k, salt) * kChip); }
  cSketch Sketch() const { return cSketch(c, x0, y0, kChip, kChip, 1.f); }

  // Noise ground between two colours, contrast stretched.
  void Ground(Col dark, Col light, float cell, float contrast = 1.6f, std::uint32_t salt = 0) {
    for (int j = 0; j < kChip; ++j)
      for (int i = 0; i < kChip; ++i) {
        const float t = std::clamp((Fbm(i, j, cell, kChip, seed + salt) - 0.5f) * contrast + 0.5f, 0.f, 1.f);
        Put(i, j, Mix(dark, light, t));
      }
  }
  // Per-pixel grain over everything drawn so far.
  void Grain(float amount) {
    for (int j = 0; j < kChip; ++j)
      for (int i = 0; i < kChip; ++i) Put(i, j, Scale(At(i, j), 1.f + amount * (Hash(i, j, seed + 77) - 0.5f)));
  }
  // A soft dark patch, for shadows cast on the ground.
  void Shadow(float cx, float cy, float rx, float ry, float strength) {
    for (int j = static_cast<int>(cy - ry) - 1; j <= static_cast<int>(cy + ry) + 1; ++j)
      for (int i = static_cast<int>(cx - rx) - 1; i <= static_cast<int>(cx + rx) + 1; ++i) {
        const float a = (i + 0.5f - cx) / rx, b = (j + 0.5f - cy) / ry, d = a * a + b * b;
        if (d < 1.f) Darken(i, j, 1.f - strength * (1.f - d * 0.6f));
      }
  }
};

const Col kGrassDark = Hex(0x3F7A2E), kGrassLight = Hex(0x74B447);

void GrassBlades(cChip& k, int count, Col light, Col dark) {
  for (int n = 0; n < count; ++n) {
    const int x = k.RandPx(n, 1), y = k.RandPx(n, 2);
    k.Put(x, y, light);
    k.Put(x, y + 1, Mix(light, dark, 0.5f));
    k.Put(x, y + 2, dark);
  }
}

void Grass(cChip& k) {
  k.Ground(kGrassDark, kGrassLight, 8);
  GrassBlades(k, 26, Hex(0x9AD060), Hex(0x356A27));
}

void Meadow(cChip& k) {
  k.Ground(Hex(0x5F9F3C), Hex(0x92CC5C), 8);
  GrassBlades(k, 14, Hex(0xB0DC78), Hex(0x4C8A33));
  static const Col kPetals[] = {Hex(0xFFFFFF), Hex(0xF4A6C8), Hex(0xC9B4F2), Hex(0xFFE27A)};
  for (int n = 0; n < 9; ++n) {
    const int x = k.RandPx(n, 3), y = k.RandPx(n, 4);
    const Col petal = kPetals[static_cast<int>(k.Rand(n, 5) * 4)];
    k.Put(x - 1, y, petal), k.Put(x + 1, y, petal), k.Put(x, y - 1, petal), k.Put(x, y + 1, petal);
    k.Put(x, y, Hex(0xF2C230));
    k.Darken(x, y + 2, 0.8f);
  }
}

// A round leafy crown over a trunk, lit from the top left.
void LeafyTree(cChip& k, float cx, float cy, float r, Col leaf) {
  cSketch s = k.Sketch();
  k.Shadow(cx + 2, cy + r * 0.9f, r * 0.9f, r * 0.45f, 0.35f);
  s.Rect(cx - 1.5f, cy, 3, r * 0.9f, Hex(0x6B4423), 0.3f);
  s.Ellipse(cx, cy, r, r * 0.9f, Scale(leaf, 0.8f), 0.35f);
  s.Ellipse(cx - r * 0.3f, cy - r * 0.3f, r * 0.55f, r * 0.5f, leaf, 0.3f);
  s.Ellipse(cx + r * 0.35f, cy - r * 0.05f, r * 0.45f, r * 0.42f, Scale(leaf, 0.9f), 0.3f);
  k.Put(static_cast<int>(cx - r * 0.45f), static_cast<int>(cy - r * 0.5f), Mix(leaf, Hex(0xFFFFFF), 0.35f));
}

// A layered conifer.
void Conifer(cChip& k, float cx, float base, float h, Col leaf) {
  cSketch s = k.Sketch();
  k.Shadow(cx + 2, base, h * 0.35f, h * 0.15f, 0.35f);
  s.Rect(cx - 1, base - 3, 2, 3, Hex(0x5A3A1E), 0.2f);
  for (int tier = 0; tier < 3; ++tier) {
    const float top = base - h + tier * h * 0.22f, bottom = base - 2 - (2 - tier) * h * 0.2f;
    const float half = h * (0.22f + tier * 0.08f);
    s.Poly({{cx, top}, {cx + half, bottom}, {cx - half, bottom}}, Scale(leaf, 0.85f + tier * 0.05f), 0.35f);
  }
}

void Woods(cChip& k) {
  Grass(k);
  LeafyTree(k, 10, 11, 7, Hex(0x4E9A35));
  LeafyTree(k, 23, 21, 7.5f, Hex(0x45902F));
}

void Forest(cChip& k) {
  k.Ground(Hex(0x24481C), Hex(0x3A6A2A), 6);
  static const float kTrees[][3] = {{6, 10, 13}, {22, 8, 14}, {14, 20, 14}, {29, 22, 13}, {5, 31, 13}, {21, 32, 14}};
  for (const auto& t : kTrees) Conifer(k, t[0], t[1], t[2], Hex(0x2F6B2A));
}

// A rounded rise of ground, lit from the left.
void Mound(cChip& k, float cx, float base, float rx, float h, Col col) {
  std::vector<Pt> arc;
  for (int n = 0; n <= 16; ++n) {
    const float a = 3.14159265f * n / 16;
    arc.push_back({cx - rx * std::cos(a), base - h * std::sin(a)});
  }
  k.Shadow(cx + 2, base, rx, 2.5f, 0.3f);
  k.Sketch().Poly(arc, col, 0.5f);
}

void Hills(cChip& k) {
  Grass(k);
  Mound(k, 11, 17, 10, 10, Hex(0x6DAA45));
  Mound(k, 22, 29, 9, 9, Hex(0x68A442));
}

// A mountain of two faces: the sunlit west, the shaded east, with ridge lines.
void Peak(cChip& k, float cx, float top, float base, float half, Col rock, bool snow) {
  cSketch s = k.Sketch();
  s.Poly({{cx - half, base}, {cx, top}, {cx + 1, base}}, Scale(rock, 1.15f), 0.1f);
  s.Poly({{cx, top}, {cx + half, base}, {cx + 1, base}}, Scale(rock, 0.72f), 0.1f);
  for (int n = 0; n < 3; ++n) {
    const float t = 0.35f + n * 0.2f;
    s.Stroke(cx - half * t * 0.5f, top + (base - top) * t, cx - half * t * 0.2f, top + (base - top) * (t + 0.15f), 1,
             Scale(rock, 0.8f));
  }
  if (snow) {
    const float sy = top + (base - top) * 0.38f;
    const float sh = half * 0.38f;
    s.Poly({{cx, top}, {cx + sh, sy}, {cx + sh * 0.4f, sy - 2}, {cx - sh * 0.1f, sy + 1}, {cx - sh * 0.6f, sy - 1},
            {cx - sh, sy}},
           Hex(0xF2F6FA), 0.25f);
  }
}

void Mountain(cChip& k) {
  k.Ground(Hex(0x5E7E38), Hex(0x86A052), 8);
  Peak(k, 16, 3, 30, 15, Hex(0x9A7650), false);
  k.Grain(0.12f);
}

void PeakChip(cChip& k) {
  k.Ground(Hex(0x6E6E6A), Hex(0x8F8F88), 8);
  Peak(k, 10, 6, 30, 11, Hex(0x8C8C94), true);
  Peak(k, 21, 2, 31, 13, Hex(0x9A9AA2), true);
  k.Grain(0.1f);
}

void Ripples(cChip& k, int count, int length, Col light) {
  for (int n = 0; n < count; ++n) {
    const int x = k.RandPx(n, 6), y = k.RandPx(n, 7);
    for (int i = 0; i < length; ++i) {
      const int dy = (i == 0 || i == length - 1) ? 1 : 0;
      k.Blend(x + i, y + dy, light, 0.75f);
    }
  }
}

void Sand(cChip& k) {
  k.Ground(Hex(0xCFB06A), Hex(0xEAD49A), 8, 1.2f);
  for (int j = 0; j < kChip; ++j)
    for (int i = 0; i < kChip; ++i) {
      const float wave = std::sin((i * 0.4f + j * 1.2f + 6 * Noise(i, j, 16, kChip, k.seed + 3)) * 3.14159265f / 4);
      if (wave > 0.85f) k.Darken(i, j, 0.9f);
    }
  k.Grain(0.14f);
}

void Shallows(cChip& k) {
  k.Ground(Hex(0x58B8C0), Hex(0x9ADCD4), 10, 1.3f);
  for (int j = 0; j < kChip; ++j)
    for (int i = 0; i < kChip; ++i)
      if (Fbm(i, j, 8, kChip, k.seed + 9) > 0.62f) k.Blend(i, j, Hex(0xD8D0A0), 0.35f);
  Ripples(k, 6, 5, Hex(0xE8FAFA));
}

void Water(cChip& k) {
  k.Ground(Hex(0x23509A), Hex(0x3A7AC4), 12, 1.3f);
  Ripples(k, 7, 6, Hex(0x9CCBF0));
  for (int n = 0; n < 5; ++n) k.Put(k.RandPx(n, 11), k.RandPx(n, 12), Hex(0xD8F0FF));
}

void Swamp(cChip& k) {
  k.Ground(Hex(0x4A5530), Hex(0x6E7642), 8);
  cSketch s = k.Sketch();
  s.Ellipse(10, 12, 8, 5, Hex(0x2E3A2C), 0.f);
  s.Ellipse(23, 24, 7, 4, Hex(0x2E3A2C), 0.f);
  s.Ellipse(9, 11, 5, 2.5f, Hex(0x425448), 0.f);
  s.Ellipse(22, 23, 4, 2, Hex(0x425448), 0.f);
  static const int kReeds[][2] = {{20, 10}, {22, 9}, {4, 26}, {6, 27}, {28, 17}};
  for (const auto& r : kReeds) {
    for (int j = 0; j < 6; ++j) k.Put(r[0], r[1] - j, Mix(Hex(0x3C5A24), Hex(0x7A9A44), j / 6.f));
    k.Put(r[0], r[1] - 6, Hex(0x7A5430));
    k.Put(r[0], r[1] - 7, Hex(0x6A4426));
  }
}

void Bridge(cChip& k) {
  Water(k);
  for (int j = 5; j < 27; ++j)
    for (int i = 0; i < kChip; ++i) {
      const int plank = i / 4;
      Col wood = Scale(Hex(0xA0703E), 0.9f + 0.2f * Hash(plank, 0, k.seed + 4));
      wood = Scale(wood, 0.92f + 0.16f * Noise(i * 3.f, j * 0.5f, 4, 0, k.seed + 5));
      if (i % 4 == 3) wood = Scale(wood, 0.6f);
      k.Put(i, j, wood);
    }
  for (int i = 0; i < kChip; ++i) {
    k.Put(i, 4, Hex(0x5A3A1C)), k.Put(i, 5, Hex(0x7A5230)), k.Put(i, 6, Hex(0x6A4626));
    k.Put(i, 25, Hex(0x7A5230)), k.Put(i, 26, Hex(0x5A3A1C)), k.Put(i, 27, Hex(0x3A2A18));
    k.Darken(i, 28, 0.6f);
  }
  for (int i = 1; i < kChip; i += 8) k.Put(i, 8, Hex(0x3A2A18)), k.Put(i, 23, Hex(0x3A2A18));
}

void DirtRoad(cChip& k) {
  k.Ground(Hex(0x8E6A40), Hex(0xB48C5C), 8);
  for (int n = 0; n < 10; ++n) {
    const int x = k.RandPx(n, 13), y = k.RandPx(n, 14);
    k.Put(x, y, Hex(0xC8AA80)), k.Put(x + 1, y, Hex(0xA88A60)), k.Put(x, y + 1, Hex(0x6E5030));
  }
  k.Grain(0.12f);
}

// Rows of blocks with mortar between; every other row is offset by half a block.
void Masonry(cChip& k, int bw, int bh, Col stone, Col mortar, float vary, float bevel) {
  for (int j = 0; j < kChip; ++j) {
    const int row = j / bh;
    const int shift = (row % 2) * bw / 2;
    for (int i = 0; i < kChip; ++i) {
      const int bx = (i + shift) % kChip, col = bx / bw;
      const int lx = bx % bw, ly = j % bh;
      if (lx == bw - 1 || ly == bh - 1) {
        k.Put(i, j, mortar);
        continue;
      }
      Col c = Scale(stone, 1.f - vary / 2 + vary * Hash(col, row, k.seed + 21));
      c = Scale(c, 0.9f + 0.2f * Fbm(i, j, 4, kChip, k.seed + 22));
      if (ly == 0 || lx == 0) c = Scale(c, 1.f + bevel);
      if (ly == bh - 2 || lx == bw - 2) c = Scale(c, 1.f - bevel);
      k.Put(i, j, c);
    }
  }
}

// Cobbles: the cells of jittered points on a wrapping grid, each stone lit from the
// top left, the gaps between them dark.
void StoneRoad(cChip& k) {
  constexpr int kCell = 8, kCells = kChip / kCell;
  for (int j = 0; j < kChip; ++j)
    for (int i = 0; i < kChip; ++i) {
      float d1 = 1e9f, d2 = 1e9f, ox = 0, oy = 0;
      int near = 0;
      for (int cy = j / kCell - 1; cy <= j / kCell + 1; ++cy)
        for (int cx = i / kCell - 1; cx <= i / kCell + 1; ++cx) {
          const int wx = (cx + kCells) % kCells, wy = (cy + kCells) % kCells;
          const float px = cx * kCell + 1.5f + 5 * Hash(wx, wy, k.seed), py = cy * kCell + 1.5f + 5 * Hash(wx, wy, k.seed + 1);
          const float d = std::hypot(i + 0.5f - px, j + 0.5f - py);
          if (d < d1) d2 = d1, d1 = d, ox = i + 0.5f - px, oy = j + 0.5f - py, near = wy * kCells + wx;
          else if (d < d2) d2 = d;
        }
      if (d2 - d1 < 1.3f) {
        k.Put(i, j, Hex(0x4E4A42));
        continue;
      }
      Col c = Scale(Hex(0xA49E90), 0.85f + 0.3f * Hash(near, 3, k.seed));
      c = Scale(c, 1.f - 0.04f * (ox + oy) - 0.03f * std::max(0.f, 3.f - (d2 - d1)));
      k.Put(i, j, c);
    }
  k.Grain(0.1f);
}

void StoneWall(cChip& k) { Masonry(k, 16, 8, Hex(0xA89C8A), Hex(0x4E4840), 0.22f, 0.2f); }

void CastleWall(cChip& k) {
  Masonry(k, 16, 11, Hex(0x7A8294), Hex(0x30343E), 0.18f, 0.25f);
  for (int j = 0; j < kChip; ++j)
    for (int i = 0; i < kChip; ++i)
      if (Fbm(i, j, 8, kChip, k.seed + 30) > 0.66f) k.Blend(i, j, Hex(0x5E7A3E), 0.45f);  // moss
}

void StoneFloor(cChip& k) { Masonry(k, 16, 16, Hex(0xB4B0A6), Hex(0x6C6860), 0.12f, 0.1f); }

void WoodFloor(cChip& k) {
  for (int j = 0; j < kChip; ++j) {
    const int plank = j / 8;
    const int seam = (plank * 13) % kChip;
    for (int i = 0; i < kChip; ++i) {
      Col c = Scale(Hex(0xA8743E), 0.88f + 0.2f * Hash(plank, 1, k.seed));
      c = Scale(c, 0.86f + 0.28f * Noise(i * 0.25f, j * 2.f, 2, 0, k.seed + plank));
      if (j % 8 == 7 || i == seam) c = Scale(c, 0.55f);
      if (j % 8 == 0) c = Scale(c, 1.12f);
      k.Put(i, j, c);
    }
  }
}

void Carpet(cChip& k) {
  for (int j = 0; j < kChip; ++j)
    for (int i = 0; i < kChip; ++i) {
      const int d = std::abs((i % 16) - 8) + std::abs((j % 16) - 8);
      Col c = Scale(Hex(0x9C2230), 0.92f + 0.1f * Hash(i, j, k.seed));
      if (d == 7 || d == 8) c = Hex(0xD8A840);
      else if (d < 3) c = Hex(0xC8404A);
      else if (d == 3) c = Hex(0xD8A840);
      k.Put(i, j, c);
    }
}

void Stairs(cChip& k) {
  for (int j = 0; j < kChip; ++j) {
    const int step = j / 8, ly = j % 8;
    for (int i = 0; i < kChip; ++i) {
      Col c = Scale(Hex(0xA8A296), 1.05f - step * 0.12f);
      c = Scale(c, 0.92f + 0.16f * Fbm(i, j, 4, kChip, k.seed));
      if (ly < 2) c = Scale(c, 1.2f);
      if (ly >= 6) c = Scale(c, 0.6f);
      if (i < 2 || i >= 30) c = Hex(0x5C5850);
      k.Put(i, j, c);
    }
  }
}

void Door(cChip& k) {
  StoneWall(k);
  cSketch s = k.Sketch();
  s.Rect(5, 8, 22, 24, Hex(0x4A4038), 0.f);
  s.Ellipse(16, 9, 11, 7, Hex(0x4A4038), 0.f);
  s.Rect(7, 9, 18, 23, Hex(0x8A5630), 0.25f);
  s.Ellipse(16, 10, 9, 6, Hex(0x8A5630), 0.25f);
  for (int i = 11; i < 25; i += 5)
    for (int j = 5; j < 32; ++j)
      if (k.At(i, j).r > 100) k.Darken(i, j, 0.65f);
  for (int j : {12, 25}) {
    for (int i = 7; i < 25; ++i) k.Put(i, j, Hex(0x3C3C44));
    for (int i = 9; i < 25; i += 5) k.Put(i, j, Hex(0xA8A8B0));
  }
  s.Ellipse(21, 19, 1.3f, 1.3f, Hex(0xE0C050), 0.3f);
}

void Pillar(cChip& k) {
  StoneFloor(k);
  cSketch s = k.Sketch();
  k.Shadow(20, 29, 9, 3, 0.4f);
  s.Rect(6, 26, 20, 5, Hex(0xC8C2B4), 0.3f);
  s.Rect(6, 1, 20, 5, Hex(0xC8C2B4), 0.3f);
  for (int j = 6; j < 26; ++j)
    for (int i = 9; i < 23; ++i) {
      const float t = (i - 9) / 13.f;
      float light = 0.75f + 0.5f * std::sin(t * 3.14159265f) - 0.3f * t;
      if ((i - 9) % 4 == 3) light *= 0.82f;  // fluting
      k.Put(i, j, Scale(Hex(0xC4BEB0), light));
    }
  for (int i = 6; i < 26; ++i) k.Put(i, 5, Hex(0x8A857A)), k.Put(i, 26, Hex(0xE4DED0));
}

void Village(cChip& k) {
  Grass(k);
  cSketch s = k.Sketch();
  k.Shadow(19, 28, 11, 3, 0.35f);
  s.Rect(7, 15, 18, 13, Hex(0xE2D2A8), 0.25f);
  s.Poly({{4, 16}, {16, 5}, {28, 16}}, Hex(0xB8443A), 0.3f);
  for (int i = 5; i < 28; ++i) k.Put(i, 16, Hex(0x7A2A24));
  s.Rect(14, 20, 5, 8, Hex(0x6E4424), 0.2f);
  s.Rect(9, 18, 3, 3, Hex(0x4A6A9A), 0.f);
  s.Rect(21, 18, 3, 3, Hex(0x4A6A9A), 0.f);
  s.Rect(21, 6, 3, 6, Hex(0x7A6A5A), 0.2f);  // chimney
}

void Fort(cChip& k) {
  Grass(k);
  cSketch s = k.Sketch();
  k.Shadow(19, 29, 12, 3, 0.4f);
  s.Rect(6, 12, 20, 17, Hex(0x9A948A), 0.3f);
  for (int x = 6; x < 26; x += 5) s.Rect(x, 9, 3, 4, Hex(0x9A948A), 0.3f);
  for (int j = 12; j < 29; j += 4)
    for (int i = 6; i < 26; ++i) k.Darken(i, j, 0.82f);
  s.Rect(13, 20, 6, 9, Hex(0x3A2A20), 0.f);
  s.Ellipse(16, 20, 3, 2.5f, Hex(0x3A2A20), 0.f);
  s.Rect(15, 1, 1, 9, Hex(0x5A4A3A), 0.f);
  s.Poly({{16, 1}, {24, 3}, {16, 5}}, Hex(0xD03830), 0.2f);
}

struct cChipPainter {
  int chip;
  void (*paint)(cChip&);
};

constexpr cChipPainter kMapChips[] = {
    {TemplateArt::kGrass, Grass},           {TemplateArt::kMeadow, Meadow},
    {TemplateArt::kWoods, Woods},           {TemplateArt::kForest, Forest},
    {TemplateArt::kHills, Hills},           {TemplateArt::kMountain, Mountain},
    {TemplateArt::kPeak, PeakChip},         {TemplateArt::kSand, Sand},
    {TemplateArt::kShallows, Shallows},     {TemplateArt::kWater, Water},
    {TemplateArt::kSwamp, Swamp},           {TemplateArt::kBridge, Bridge},
    {TemplateArt::kDirtRoad, DirtRoad},     {TemplateArt::kStoneRoad, StoneRoad},
    {TemplateArt::kVillage, Village},       {TemplateArt::kFort, Fort},
    {TemplateArt::kStoneWall, StoneWall},   {TemplateArt::kCastleWall, CastleWall},
    {TemplateArt::kStoneFloor, StoneFloor}, {TemplateArt::kWoodFloor, WoodFloor},
    {TemplateArt::kCarpet, Carpet},         {TemplateArt::kStairs, Stairs},
    {TemplateArt::kDoor, Door},             {TemplateArt::kPillar, Pillar},
};
static_assert(std::size(kMapChips) == TemplateArt::kMapChipCount);

// The world map is seen from far above: fewer, smaller details.
void Plains(cChip& k) {
  k.Ground(Hex(0x5E9A3A), Hex(0x86BE54), 10, 1.3f);
  GrassBlades(k, 8, Hex(0xA0D068), Hex(0x4E8A32));
}

void WorldForest(cChip& k) {
  Plains(k);
  static const float kTrees[][2] = {{8, 13}, {20, 10}, {28, 18}, {13, 24}, {24, 29}, {4, 30}};
  for (const auto& t : kTrees) LeafyTree(k, t[0], t[1], 4.5f, Hex(0x3E8A2E));
}

void WorldMountain(cChip& k) {
  Plains(k);
  Peak(k, 11, 6, 24, 9, Hex(0x9A8060), true);
  Peak(k, 22, 11, 30, 9, Hex(0x8E7658), false);
}

void Sea(cChip& k) {
  k.Ground(Hex(0x1E4488), Hex(0x2E64AC), 14, 1.2f);
  Ripples(k, 5, 4, Hex(0x7AAEE0));
}

void Coast(cChip& k) {
  Sea(k);
  for (int j = 0; j < kChip; ++j)
    for (int i = 0; i < kChip; ++i) {
      const float edge = i + j - 34 + 5 * Noise(i, j, 8, kChip, k.seed + 40);
      if (edge < -2) continue;
      if (edge < 0) k.Put(i, j, Hex(0xE8F4F8));  // surf
      else if (edge < 7) k.Put(i, j, Mix(Hex(0xE2CC8E), Hex(0xD4B878), Hash(i, j, k.seed)));
      else k.Put(i, j, Mix(Hex(0x6AA642), Hex(0x86BE54), Fbm(i, j, 8, kChip, k.seed)));
    }
}

void Desert(cChip& k) {
  Sand(k);
  Mound(k, 12, 20, 9, 5, Hex(0xE4C888));
  Mound(k, 24, 30, 8, 4, Hex(0xE0C282));
}

void WorldRoad(cChip& k) {
  Plains(k);
  for (int j = 11; j < 21; ++j)
    for (int i = 0; i < kChip; ++i) {
      const float wobble = 1.5f * std::sin(i * 3.14159265f / 16);
      const float d = std::abs(j + 0.5f - 16 - wobble);
      if (d < 3.5f) k.Put(i, j, Mix(Hex(0xB08A58), Hex(0xC8A470), Hash(i, j, k.seed + 41)));
      else if (d < 4.5f) k.Darken(i, j, 0.82f);
    }
}

void River(cChip& k) {
  Plains(k);
  for (int j = 0; j < kChip; ++j)
    for (int i = 0; i < kChip; ++i) {
      const float wobble = 3 * std::sin(j * 3.14159265f / 16);
      const float d = std::abs(i + 0.5f - 16 - wobble);
      if (d < 5) k.Put(i, j, Mix(Hex(0x2E6CB8), Hex(0x4A8AD0), Fbm(i, j, 6, kChip, k.seed + 42)));
      else if (d < 6.5f) k.Put(i, j, Hex(0x8A7A50));
    }
  for (int j = 2; j < kChip; j += 9) k.Put(15 + static_cast<int>(3 * std::sin(j * 3.14159265f / 16)), j, Hex(0xB0D8F8));
}

constexpr cChipPainter kWorldChips[] = {
    {TemplateArt::kPlains, Plains}, {TemplateArt::kWorldForest, WorldForest}, {TemplateArt::kWorldMountain, WorldMountain},
    {TemplateArt::kSea, Sea},       {TemplateArt::kCoast, Coast},             {TemplateArt::kDesert, Desert},
    {TemplateArt::kWorldRoad, WorldRoad}, {TemplateArt::kRiver, River},
};
static_assert(std::size(kWorldChips) == TemplateArt::kWorldChipCount);

template <std::size_t N>
cCanvas ChipSheet(TemplateArt::SheetSize size, const cChipPainter (&painters)[N], std::uint32_t seed) {
  cCanvas sheet(size.width, size.height);
  sheet.FillRect(0, 0, size.width, size.height, Hex(0x2A2A30));
  for (const cChipPainter& p : painters) {
    cChip chip{sheet, (p.chip % 8) * kChip, (p.chip / 8) * kChip, seed + static_cast<std::uint32_t>(p.chip) * 101};
    sheet.SetClip(chip.x0, chip.y0, kChip, kChip);
    p.paint(chip);
  }
  sheet.ResetClip();
  return sheet;
}

}  // namespace

cCanvas DrawMapChipSheet() { return ChipSheet(TemplateArt::kMapChipSize, kMapChips, 1000); }

cCanvas DrawWorldMapChipSheet() { return ChipSheet(TemplateArt::kWorldMapChipSize, kWorldChips, 2000); }

cCanvas DrawWorldBack() {
  // Old parchment: warm paper, darker towards the rim, faint sea lines and a compass.
  const auto size = TemplateArt::kWorldBackSize;
  cCanvas back(size.width, size.height);
  for (int y = 0; y < size.height; ++y)
    for (int x = 0; x < size.width; ++x) {
      const float nx = (x - size.width / 2.f) / (size.width / 2.f), ny = (y - size.height / 2.f) / (size.height / 2.f);
      const float vignette = std::clamp(1.05f - 0.35f * (nx * nx + ny * ny), 0.55f, 1.f);
      Col c = Mix(Hex(0xC8AE7C), Hex(0xECDCB0), Fbm(x, y, 64, 0, 3000));
      c = Scale(c, vignette * (0.96f + 0.08f * Hash(x, y, 3001)));
      const float wave = std::sin(x * 0.08f + 2.5f * std::sin(y * 0.05f)) + std::sin(y * 0.6f);
      if (wave > 1.85f) c = Mix(c, Hex(0x6A8AA0), 0.35f);
      if (x % 80 == 0 || y % 80 == 0) c = Mix(c, Hex(0x8A6A44), 0.3f);
      back.Put(x, y, c);
    }
  cSketch s(back, 520, 360, 100, 100, 1.f);
  const Col ink = Hex(0x6A4A2C), red = Hex(0xA03A2A);
  s.Ellipse(50, 50, 30, 30, ink, 0.f);
  s.Ellipse(50, 50, 28, 28, Hex(0xE4D2A4), 0.f);
  s.Poly({{50, 12}, {55, 50}, {50, 88}, {45, 50}}, ink, 0.f);
  s.Poly({{12, 50}, {50, 45}, {88, 50}, {50, 55}}, ink, 0.f);
  s.Poly({{50, 12}, {55, 50}, {45, 50}}, red, 0.f);
  s.Ellipse(50, 50, 3, 3, Hex(0xE4D2A4), 0.f);
  return back;
}

}  // namespace art
