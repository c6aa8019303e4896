// Effect animations: 16 motifs of 8 frames in 64 x 64 cells, drawn as light added up
// on the dark key colour. The first sheet has the motifs' natural colours, the others
// turn their hues round the colour circle.

#include <algorithm>
#include <cmath>
#include <vector>

#include "art/art_layout.h"
#include "art/sheets.h"

namespace art {
namespace {

constexpr int kCell = 64, kFrames = 8;
constexpr float kPi = 3.14159265f;

// Light gathered in one cell; pixels too dim to see stay transparent.
class cGlow {
 public:
  cGlow() : m_vecLight(kCell * kCell) {}
  void Add(int x, int y, Col c, float a) {
    if (x < 0 || y < 0 || x >= kCell || y >= kCell || a <= 0) return;
    Col& p = m_vecLight[y * kCell + x];
    p = Gather(p, c, a);
  }
  // A round light: full at the centre, gone at radius r.
  void Light(float cx, float cy, float r, Col c, float k = 1) {
    Each(cx - r, cy - r, cx + r, cy + r, [&](int x, int y, float u, float v) {
      const float d = std::hypot(u - cx, v - cy) / r;
      if (d < 1) Add(x, y, c, k * (1 - d) * (1 - d));
    });
  }
  // A line of light of half width w, fading out sideways.
  void Beam(float x1, float y1, float x2, float y2, float w, Col c, float k = 1) {
    const float dx = x2 - x1, dy = y2 - y1, len2 = std::max(1e-4f, dx * dx + dy * dy);
    Each(std::min(x1, x2) - w, std::min(y1, y2) - w, std::max(x1, x2) + w, std::max(y1, y2) + w,
         [&](int x, int y, float u, float v) {
           const float t = std::clamp(((u - x1) * dx + (v - y1) * dy) / len2, 0.f, 1.f);
           const float d = std::hypot(u - x1 - t * dx, v - y1 - t * dy) / w;
           if (d < 1) Add(x, y, c, k * (1 - d));
         });
  }
  void Ring(float cx, float cy, float radius, float w, Col c, float k = 1) {
    Each(cx - radius - w, cy - radius - w, cx + radius + w, cy + radius + w, [&](int x, int y, float u, float v) {
      const float d = std::abs(std::hypot(u - cx, v - cy) - radius) / w;
      if (d < 1) Add(x, y, c, k * (1 - d));
    });
  }
  // A solid shape, for rocks and crystals: replaces what is below it.
  void Solid(const std::vector<Pt>& poly, Col c) {
    float x0 = 1e9f, y0 = 1e9f, x1 = -1e9f, y1 = -1e9f;
    for (const Pt& p : poly) x0 = std::min(x0, p.x), y0 = std::min(y0, p.y), x1 = std::max(x1, p.x), y1 = std::max(y1, p.y);
    Each(x0, y0, x1, y1, [&](int x, int y, float u, float v) {
      bool in = false;
      for (std::size_t i = 0, j = poly.size() - 1; i < poly.size(); j = i++)
        if ((poly[i].y > v) != (poly[j].y > v) &&
            u < (poly[j].x - poly[i].x) * (v - poly[i].y) / (poly[j].y - poly[i].y) + poly[i].x)
          in = !in;
      if (in) m_vecLight[y * kCell + x] = Scale(c, 1.f - 0.35f * ((u - x0) / (x1 - x0 + 1) + (v - y0) / (y1 - y0 + 1)) / 2);
    });
  }
  void Star(float cx, float cy, float r, Col c, float k = 1) {
    Beam(cx - r, cy, cx + r, cy, r * 0.18f, c, k);
    Beam(cx, cy - r, cx, cy + r, r * 0.18f, c, k);
    Light(cx, cy, r * 0.5f, c, k);
  }
  void Paste(cCanvas& sheet, int x0, int y0) const {
    for (int y = 0; y < kCell; ++y)
      for (int x = 0; x < kCell; ++x) {
        const Col c = m_vecLight[y * kCell + x];
        if (std::max({c.r, c.g, c.b}) >= 36) sheet.Put(x0 + x, y0 + y, c);
      }
  }

 private:
  // Light adds up and saturates towards white rather than clipping one channel.
  static Col Gather(Col p, Col c, float a) {
    Col sum = art::Add(p, Scale(c, a));
    const float peak = std::max({sum.r, sum.g, sum.b});
    if (peak > 255) sum = Mix(Scale(sum, 255 / peak), Hex(0xFFFFFF), std::min(0.6f, (peak - 255) / 400));
    return sum;
  }
  template <class F>
  void Each(float x0, float y0, float x1, float y1, F f) {
    for (int y = std::max(0, static_cast<int>(y0)); y <= std::min(kCell - 1, static_cast<int>(y1) + 1); ++y)
      for (int x = std::max(0, static_cast<int>(x0)); x <= std::min(kCell - 1, static_cast<int>(x1) + 1); ++x)
        f(x, y, x + 0.5f, y + 0.5f);
  }
  std::vector<Col> m_vecLight;
};

struct cPalette {
  Col core, mid, edge;
};

// Rises to 1 at the middle of the animation and falls back to 0 at its end.
float Swell(float t) { return std::sin(std::clamp(t, 0.f, 1.f) * kPi); }

using Motif = void (*)(cGlow&, float t, const cPalette&);

void Spark(cGlow& g, float t, const cPalette& p) {
  const float k = Swell(t);
  g.Star(32, 32, 6 + 18 * t, p.core, k);
  for (int n = 0; n < 6; ++n) {
    const float a = n * kPi / 3 + 0.4f, r = 6 + 22 * t;
    g.Light(32 + r * std::cos(a), 32 + r * std::sin(a), 3, p.mid, k);
  }
}

void Slash(cGlow& g, float t, const cPalette& p) {
  // A curved stroke from the top right down to the bottom left; its head runs ahead
  // and its tail fades behind.
  const float head = std::min(1.f, t * 2.2f), tail = std::max(0.f, t * 1.6f - 0.5f);
  for (float s = tail; s <= head; s += 0.015f) {
    const float u = 1 - s;
    const float x = u * u * 56 + 2 * u * s * 50 + s * s * 8, y = u * u * 6 + 2 * u * s * 46 + s * s * 58;
    const float w = 1.5f + 5 * std::sin(s * kPi) * (1 - t * 0.5f);
    g.Light(x, y, w * 1.8f, p.mid, 0.45f);
    g.Light(x, y, w, p.core, 0.9f);
  }
}

void Thrust(cGlow& g, float t, const cPalette& p) {
  const float reach = 8 + 48 * std::min(1.f, t * 2.5f), fade = 1 - std::max(0.f, t - 0.4f) / 0.6f;
  g.Beam(4, 36, reach, 28, 3, p.mid, 0.8f * fade);
  g.Beam(4, 36, reach, 28, 1.5f, p.core, fade);
  if (t > 0.3f) g.Star(reach, 28, 6 + 10 * (t - 0.3f), p.core, fade);
}

void Arrow(cGlow& g, float t, const cPalette& p) {
  if (t < 0.4f) {
    const float s = t / 0.4f, x = 4 + 28 * s, y = 4 + 28 * s;
    g.Beam(x - 14, y - 14, x, y, 1.2f, p.mid, 1);
    g.Light(x, y, 4, p.core, 1);
    return;
  }
  const float s = (t - 0.4f) / 0.6f;
  g.Star(32, 32, 8 + 12 * s, p.core, 1 - s);
  g.Ring(32, 32, 6 + 16 * s, 2, p.mid, 1 - s);
}

void Impact(cGlow& g, float t, const cPalette& p) {
  g.Ring(32, 32, 4 + 26 * t, 3 * (1 - t) + 1, p.mid, 1 - t);
  g.Star(32, 32, 20 * Swell(t * 1.4f), p.core, 1);
  for (int n = 0; n < 8; ++n) {
    const float a = n * kPi / 4 + Hash(n, 0, 7) * 0.6f, r = 8 + 24 * t * (0.7f + 0.5f * Hash(n, 1, 7));
    g.Light(32 + r * std::cos(a), 32 + r * std::sin(a), 2.5f, p.edge, 1 - t);
  }
}

void Fire(cGlow& g, float t, const cPalette& p) {
  const float k = Swell(t * 0.9f + 0.1f);
  for (int n = 0; n < 22; ++n) {
    const float life = std::fmod(Hash(n, 0, 11) + t * 1.3f, 1.f);
    const float x = 18 + 28 * Hash(n, 1, 11) + 3 * std::sin(life * 7 + n), y = 56 - 40 * life;
    const float r = (12 - 7 * life) * (0.7f + 0.5f * k);
    g.Light(x, y, r * 1.5f, p.edge, 0.6f * k);
    g.Light(x, y, r, Mix(p.core, p.mid, life), 0.9f * k * (1 - life * 0.6f));
  }
}

void Ice(cGlow& g, float t, const cPalette& p) {
  const float grow = std::min(1.f, t * 2), fade = t < 0.6f ? 1 : 1 - (t - 0.6f) / 0.4f;
  for (int n = 0; n < 6; ++n) {
    const float a = n * kPi / 3 + 0.3f, len = (16 + 12 * Hash(n, 0, 13)) * grow, w = 5;
    if (t >= 0.75f) {  // shattered: shards fly apart
      const float r = 14 + 40 * (t - 0.75f);
      g.Light(32 + r * std::cos(a), 32 + r * std::sin(a), 3, p.core, fade);
      continue;
    }
    const float c = std::cos(a), s = std::sin(a);
    g.Solid({{32 - s * w, 32 + c * w}, {32 + c * len, 32 + s * len}, {32 + s * w, 32 - c * w}}, p.mid);
    g.Beam(32, 32, 32 + c * len, 32 + s * len, 1, p.core, 0.6f);
  }
  g.Light(32, 32, 14, p.edge, 0.6f * fade);
}

void Thunder(cGlow& g, float t, const cPalette& p) {
  const int seed = static_cast<int>(t * 7);
  const float k = t < 0.7f ? 1 : (1 - t) / 0.3f;
  float x = 32 + 10 * (Hash(seed, 0, 17) - 0.5f), y = 0;
  const float bottom = std::min(48.f, 16 + 64 * t);
  while (y < bottom) {
    const float nx = 32 + 18 * (Hash(seed, static_cast<int>(y), 17) - 0.5f), ny = std::min(bottom, y + 8);
    g.Beam(x, y, nx, ny, 6, p.mid, 0.6f * k);
    g.Beam(x, y, nx, ny, 2.5f, p.core, k);
    x = nx, y = ny;
  }
  if (bottom >= 48) g.Light(x, y, 14, p.edge, k * (seed % 2 ? 1 : 0.6f));
}

void Wind(cGlow& g, float t, const cPalette& p) {
  const float k = Swell(t);
  for (int arm = 0; arm < 3; ++arm)
    for (float s = 0; s < 1; s += 0.025f) {
      const float a = arm * 2 * kPi / 3 + s * 4 + t * 6, r = 4 + 24 * s;
      g.Light(32 + r * std::cos(a), 32 + r * std::sin(a) * 0.7f, 2.5f, s < 0.5f ? p.core : p.mid, k * (1 - s * 0.7f));
    }
}

void Earth(cGlow& g, float t, const cPalette& p) {
  const float rise = std::min(1.f, t * 2.5f), sink = t > 0.7f ? (t - 0.7f) / 0.3f : 0;
  g.Light(32, 54, 26 * rise, p.edge, 0.5f * (1 - sink));
  for (int n = 0; n < 4; ++n) {
    const float x = 12 + n * 13 + 4 * Hash(n, 0, 19), h = (10 + 12 * Hash(n, 1, 19)) * rise * (1 - sink);
    if (h < 1) continue;
    g.Solid({{x - 6, 58}, {x - 4, 58 - h * 0.7f}, {x, 58 - h}, {x + 5, 58 - h * 0.6f}, {x + 6, 58}}, p.mid);
    g.Beam(x - 3, 58 - h * 0.6f, x, 58 - h, 1, p.core, 0.7f);
  }
}

void Heal(cGlow& g, float t, const cPalette& p) {
  const float k = Swell(t);
  g.Light(32, 36, 24, p.edge, 0.5f * k);
  for (int n = 0; n < 10; ++n) {
    const float life = std::fmod(Hash(n, 0, 23) + t, 1.f);
    const float x = 12 + 40 * Hash(n, 1, 23), y = 56 - 46 * life;
    const float r = n % 3 == 0 ? 5 : 3;
    if (n % 3 == 0) {
      g.Beam(x - r, y, x + r, y, 1.2f, p.core, k), g.Beam(x, y - r, x, y + r, 1.2f, p.core, k);
    } else {
      g.Star(x, y, r, p.mid, k * Swell(life));
    }
  }
}

void Holy(cGlow& g, float t, const cPalette& p) {
  const float k = Swell(t), w = 4 + 10 * k;
  g.Beam(32, 0, 32, 56, w, p.mid, 0.7f * k);
  g.Beam(32, 0, 32, 56, w * 0.4f, p.core, k);
  g.Ring(32, 54, 10 + 14 * t, 2, p.edge, k);
}

void Dark(cGlow& g, float t, const cPalette& p) {
  const float k = Swell(t), pull = 1 - t;
  for (int n = 0; n < 8; ++n) {
    const float a = n * kPi / 4 + t * 3;
    for (float s = 0; s < 1; s += 0.05f) {
      const float r = 8 + (30 * pull + 6) * s, b = a + s * 1.5f;
      g.Light(32 + r * std::cos(b), 32 + r * std::sin(b), 2.5f, p.mid, k * (1 - s));
    }
  }
  g.Light(32, 32, 12 * k + 2, p.edge, 1);
  g.Light(32, 32, 5 * k, p.core, k);
}

void Poison(cGlow& g, float t, const cPalette& p) {
  const float k = Swell(t);
  for (int n = 0; n < 12; ++n) {
    const float life = std::fmod(Hash(n, 0, 29) + t * 0.8f, 1.f);
    const float x = 14 + 36 * Hash(n, 1, 29) + 3 * std::sin(life * 9), y = 56 - 40 * life;
    const float r = 3 + 4 * Hash(n, 2, 29);
    g.Ring(x, y, r, 1.2f, p.mid, k);
    g.Light(x - r * 0.3f, y - r * 0.3f, 1.5f, p.core, k);
  }
  g.Light(32, 52, 22, p.edge, 0.4f * k);
}

void Explosion(cGlow& g, float t, const cPalette& p) {
  const float r = 6 + 26 * std::sqrt(t), k = 1 - t * t;
  g.Light(32, 32, r * 1.2f, p.edge, k);
  g.Light(32, 32, r, p.mid, k);
  g.Light(32, 32, r * 0.6f * (1 - t), p.core, 1);
  g.Ring(32, 32, r + 2, 2.5f, p.edge, 0.8f * t * k * 2);
}

void Barrier(cGlow& g, float t, const cPalette& p) {
  const float k = Swell(t);
  std::vector<Pt> hex;
  for (int n = 0; n < 6; ++n) hex.push_back({32 + 22 * std::cos(n * kPi / 3 + kPi / 6), 32 + 22 * std::sin(n * kPi / 3 + kPi / 6)});
  for (int n = 0; n < 6; ++n) {
    const Pt& a = hex[n];
    const Pt& b = hex[(n + 1) % 6];
    g.Beam(a.x, a.y, b.x, b.y, 2.5f, p.mid, k);
  }
  g.Light(32, 32, 22, p.edge, 0.45f * k);
  g.Ring(32, 32, 26 * t, 2, p.core, 1 - t);
}

struct cEffect {
  int motif;
  Motif paint;
  cPalette colours;
};

const cEffect kEffects[] = {
    {TemplateArt::kSparkEffect, Spark, {Hex(0xFFF8D0), Hex(0xFFD060), Hex(0xC07020)}},
    {TemplateArt::kSlashEffect, Slash, {Hex(0xFFFFFF), Hex(0x90C8FF), Hex(0x4060C0)}},
    {TemplateArt::kThrustEffect, Thrust, {Hex(0xFFFFFF), Hex(0xA0D8FF), Hex(0x4070C0)}},
    {TemplateArt::kArrowEffect, Arrow, {Hex(0xFFF8E0), Hex(0xD8B070), Hex(0x806030)}},
    {TemplateArt::kImpactEffect, Impact, {Hex(0xFFFFF0), Hex(0xFFC040), Hex(0xF07030)}},
    {TemplateArt::kFireEffect, Fire, {Hex(0xFFF080), Hex(0xFF7020), Hex(0xB02010)}},
    {TemplateArt::kIceEffect, Ice, {Hex(0xF0FCFF), Hex(0x70C8F0), Hex(0x3070C0)}},
    {TemplateArt::kThunderEffect, Thunder, {Hex(0xFFFFF0), Hex(0xF0E040), Hex(0xA0A0FF)}},
    {TemplateArt::kWindEffect, Wind, {Hex(0xF0FFF0), Hex(0x70E090), Hex(0x309050)}},
    {TemplateArt::kEarthEffect, Earth, {Hex(0xE8C890), Hex(0x9A7040), Hex(0x806040)}},
    {TemplateArt::kHealEffect, Heal, {Hex(0xF0FFF0), Hex(0x80F0A0), Hex(0x40B070)}},
    {TemplateArt::kHolyEffect, Holy, {Hex(0xFFFFF0), Hex(0xFFF0A0), Hex(0xE0C060)}},
    {TemplateArt::kDarkEffect, Dark, {Hex(0xF0C0FF), Hex(0x8040C0), Hex(0x502080)}},
    {TemplateArt::kPoisonEffect, Poison, {Hex(0xF0D0FF), Hex(0xB050E0), Hex(0x6A8A30)}},
    {TemplateArt::kExplosionEffect, Explosion, {Hex(0xFFFFD0), Hex(0xFFA030), Hex(0xA03010)}},
    {TemplateArt::kBarrierEffect, Barrier, {Hex(0xF0FFFF), Hex(0x60C0F0), Hex(0x3060B0)}},
};
static_assert(std::size(kEffects) == TemplateArt::kEffectMotifCount);

}  // namespace

cCanvas DrawEffectSheet(int variant) {
  cCanvas sheet(TemplateArt::kEffectSize.width, TemplateArt::kEffectSize.height);
  const float hue = variant * 360.f / TemplateArt::kEffectVariantCount;
  for (const cEffect& e : kEffects) {
    if (TemplateArt::EffectGraphic(variant, static_cast<TemplateArt::EffectMotif>(e.motif)) == 0) continue;
    const cPalette colours{HueShift(e.colours.core, hue), HueShift(e.colours.mid, hue), HueShift(e.colours.edge, hue)};
    for (int frame = 0; frame < kFrames; ++frame) {
      cGlow glow;
      e.paint(glow, (frame + 0.5f) / kFrames, colours);
      glow.Paste(sheet, frame * kCell, e.motif * kCell);
    }
  }
  return sheet;
}

}  // namespace art
