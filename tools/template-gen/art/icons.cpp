// Small pictures of 16 x 16: the symbols that texts and skill categories show, and the
// images of the editor's tool bars. Each is a few shapes, outlined afterwards.

#include <cmath>
#include <vector>

#include "art/art_layout.h"
#include "art/sheets.h"

namespace art {
namespace {

constexpr float kPi = 3.14159265f;
const Col kSteel = Hex(0xD4DCE6), kGold = Hex(0xF0C840), kWood = Hex(0x9A6434), kRed = Hex(0xE04038);

using Icon = void (*)(cSketch&);

std::vector<Pt> StarPoints(float cx, float cy, float outer, float inner, int points) {
  std::vector<Pt> star;
  for (int n = 0; n < points * 2; ++n) {
    const float a = -kPi / 2 + n * kPi / points, r = n % 2 ? inner : outer;
    star.push_back({cx + r * std::cos(a), cy + r * std::sin(a)});
  }
  return star;
}

void Blade(cSketch& s, float len, Col handle) {
  s.Stroke(3, 13, 5, 11, 2, handle);
  s.Stroke(5, 11, 5 + len * 0.7f, 11 - len * 0.7f, 2.4f, kSteel);
  s.Stroke(3.5f, 8.5f, 7.5f, 12.5f, 1.6f, kGold);
}

const Icon kSymbols[] = {
    [](cSketch& s) { Blade(s, 12, Hex(0x6A4222)); },
    [](cSketch& s) {
      s.Stroke(2, 14, 11, 5, 1.5f, kWood);
      s.Poly({{14, 2}, {9, 5}, {11, 7}}, kSteel, 0.2f);
    },
    [](cSketch& s) {
      for (int n = 0; n < 6; ++n) {
        const float a0 = -kPi / 2 + n * kPi / 6, a1 = a0 + kPi / 6;
        s.Stroke(5 + 7 * std::cos(a0), 8 + 6.5f * std::sin(a0), 5 + 7 * std::cos(a1), 8 + 6.5f * std::sin(a1), 1.8f,
                 kWood);
      }
      s.Stroke(5, 1.5f, 5, 14.5f, 0.8f, Hex(0xF0F0E0));
    },
    [](cSketch& s) {
      s.Stroke(4, 14, 10, 6, 1.6f, kWood);
      s.Ellipse(11, 4.5f, 3, 3, Hex(0x70C8F8), 0.4f);
    },
    [](cSketch& s) {
      s.Stroke(3, 14, 10, 3, 1.6f, kWood);
      s.Poly({{8, 3}, {14, 2}, {15, 8}, {10, 7}}, kSteel, 0.3f);
    },
    [](cSketch& s) { Blade(s, 7, Hex(0x3A3A48)); },
    [](cSketch& s) {
      s.Poly({{8, 1}, {13, 8}, {13, 12}, {10, 15}, {6, 15}, {3, 12}, {3, 8}, {5, 5}, {6, 8}}, Hex(0xF05A20), 0.3f);
      s.Poly({{8, 6}, {11, 11}, {9, 14}, {7, 14}, {5, 11}}, Hex(0xFFD040), 0.2f);
    },
    [](cSketch& s) {
      for (int n = 0; n < 3; ++n) {
        const float a = n * kPi / 3;
        s.Stroke(8 - 6 * std::cos(a), 8 - 6 * std::sin(a), 8 + 6 * std::cos(a), 8 + 6 * std::sin(a), 1.8f,
                 Hex(0x90E0FF));
      }
      s.Ellipse(8, 8, 2, 2, Hex(0xF0FCFF), 0.f);
    },
    [](cSketch& s) { s.Poly({{10, 1}, {4, 9}, {8, 9}, {5, 15}, {13, 6}, {9, 6}, {12, 1}}, Hex(0xF8E040), 0.2f); },
    [](cSketch& s) {
      s.Stroke(2, 5, 11, 5, 1.6f, Hex(0x80E0A0)), s.Stroke(11, 5, 12, 2.5f, 1.6f, Hex(0x80E0A0));
      s.Stroke(1, 9, 13, 9, 1.6f, Hex(0xC8F8D8)), s.Stroke(4, 13, 10, 13, 1.6f, Hex(0x80E0A0));
    },
    [](cSketch& s) {
      s.Poly({{2, 14}, {3, 8}, {7, 4}, {12, 5}, {14, 10}, {14, 14}}, Hex(0xA07848), 0.4f);
      s.Stroke(6, 8, 8, 11, 0.8f, Hex(0x6A4A28));
    },
    [](cSketch& s) {
      s.Poly(StarPoints(8, 8, 7.5f, 4.5f, 8), Hex(0xFFE890), 0.f);
      s.Ellipse(8, 8, 3.5f, 3.5f, Hex(0xFFFCE8), 0.2f);
    },
    [](cSketch& s) {
      s.Ellipse(8, 8, 6.5f, 6.5f, Hex(0x7A3AB0), 0.4f);
      s.Ellipse(10.5f, 6, 4.5f, 4.5f, Hex(0x000000), 0.f);
    },
    [](cSketch& s) {
      s.Ellipse(8, 8, 7, 7, Hex(0xF0FFF0), 0.2f);
      s.Rect(6.5f, 3, 3, 10, Hex(0x40C060), 0.f), s.Rect(3, 6.5f, 10, 3, Hex(0x40C060), 0.f);
    },
    [](cSketch& s) {
      s.Poly({{2, 2}, {14, 2}, {14, 8}, {8, 15}, {2, 8}}, kSteel, 0.35f);
      s.Poly({{4, 4}, {12, 4}, {12, 8}, {8, 12.5f}, {4, 8}}, Hex(0x3A66D4), 0.35f);
    },
    [](cSketch& s) {
      s.Poly({{2, 3}, {6, 2}, {8, 4}, {10, 2}, {14, 3}, {13, 9}, {11, 14}, {5, 14}, {3, 9}}, kSteel, 0.4f);
      s.Stroke(8, 5, 8, 13, 0.8f, Hex(0x8A92A0));
    },
    [](cSketch& s) {
      s.Rect(6, 1, 4, 4, Hex(0xC8D8E0), 0.2f);
      s.Ellipse(8, 10, 5.5f, 5, Hex(0xC8D8E0), 0.2f);
      s.Ellipse(8, 11, 4.5f, 3.5f, kRed, 0.3f);
      s.Rect(6, 0.5f, 4, 1.5f, Hex(0x8A5A30), 0.f);
    },
    [](cSketch& s) {
      s.Ellipse(8, 10, 5.5f, 5, kGold, 0.3f);
      s.Ellipse(8, 10.5f, 3.5f, 3, Hex(0x000000), 0.f);
      s.Poly({{8, 1}, {11, 4}, {8, 7}, {5, 4}}, Hex(0x40D0F0), 0.3f);
    },
    [](cSketch& s) {
      s.Rect(3, 2, 11, 13, Hex(0x8A3A2A), 0.3f);
      s.Rect(4, 12, 10, 2, Hex(0xF4ECD8), 0.f);
      s.Rect(6, 5, 6, 1, kGold, 0.f), s.Rect(6, 7, 6, 1, kGold, 0.f);
    },
    [](cSketch& s) {
      s.Ellipse(5, 5, 3.5f, 3.5f, kGold, 0.3f);
      s.Ellipse(5, 5, 1.3f, 1.3f, Hex(0x000000), 0.f);
      s.Stroke(7, 7, 14, 14, 2, kGold);
      s.Rect(10, 11, 2, 2, kGold, 0.f), s.Rect(12, 9, 2, 2, kGold, 0.f);
    },
    [](cSketch& s) {
      s.Ellipse(8, 8, 6.5f, 6.5f, kGold, 0.4f);
      s.Ellipse(8, 8, 4.5f, 4.5f, Hex(0xF8D860), 0.1f);
      s.Rect(7.3f, 5, 1.4f, 6, Hex(0xB08820), 0.f);
    },
    [](cSketch& s) { s.Poly(StarPoints(8, 8.5f, 7.5f, 3.2f, 5), Hex(0xF8E040), 0.3f); },
    [](cSketch& s) {
      s.Ellipse(5.2f, 6, 3.6f, 3.6f, kRed, 0.3f), s.Ellipse(10.8f, 6, 3.6f, 3.6f, kRed, 0.3f);
      s.Poly({{1.8f, 7}, {14.2f, 7}, {8, 14.5f}}, kRed, 0.3f);
    },
    [](cSketch& s) {
      s.Ellipse(8, 7, 6, 5.5f, Hex(0xF0ECE0), 0.3f);
      s.Rect(5, 10, 6, 4, Hex(0xF0ECE0), 0.3f);
      s.Ellipse(5.5f, 7, 1.6f, 1.8f, Hex(0x201820), 0.f), s.Ellipse(10.5f, 7, 1.6f, 1.8f, Hex(0x201820), 0.f);
    },
    [](cSketch& s) {
      s.Poly({{8, 1}, {13, 9}, {12, 13}, {8, 15}, {4, 13}, {3, 9}}, Hex(0x9A40C0), 0.4f);
      s.Ellipse(6.5f, 10, 1.3f, 1.3f, Hex(0xE0B0F0), 0.f);
    },
    [](cSketch& s) {
      for (int n = 0; n < 2; ++n) {
        const float x = n * 6 + 1, y = 8 - n * 6, z = 7 - n * 2;
        s.Rect(x, y, z, 1.6f, Hex(0x80B0F0), 0.f), s.Rect(x, y + z - 1.6f, z, 1.6f, Hex(0x80B0F0), 0.f);
        s.Stroke(x + z - 0.8f, y + 0.8f, x + 0.8f, y + z - 0.8f, 1.6f, Hex(0x80B0F0));
      }
    },
    [](cSketch& s) { s.Poly({{8, 1}, {15, 8}, {11, 8}, {11, 15}, {5, 15}, {5, 8}, {1, 8}}, Hex(0x50D060), 0.3f); },
    [](cSketch& s) { s.Poly({{8, 15}, {15, 8}, {11, 8}, {11, 1}, {5, 1}, {5, 8}, {1, 8}}, Hex(0xE04848), 0.3f); },
    [](cSketch& s) {
      s.Poly({{4, 1}, {10, 1}, {10, 9}, {15, 11}, {15, 15}, {3, 15}}, Hex(0x8A5630), 0.35f);
      s.Rect(4, 3, 6, 1.2f, Hex(0x5A3418), 0.f);
    },
    [](cSketch& s) {
      s.Ellipse(8, 8, 7, 4.5f, Hex(0xF8F8F0), 0.2f);
      s.Ellipse(8, 8, 3, 3, Hex(0x3A7AD0), 0.2f);
      s.Ellipse(8, 8, 1.3f, 1.3f, Hex(0x101018), 0.f);
    },
    [](cSketch& s) {
      s.Poly({{4, 2}, {12, 2}, {15, 6}, {8, 15}, {1, 6}}, Hex(0x30C090), 0.4f);
      s.Poly({{4, 2}, {12, 2}, {10, 6}, {6, 6}}, Hex(0xA0F0D8), 0.1f);
    },
    [](cSketch& s) {
      s.Rect(3, 5, 10, 8, Hex(0xE8B890), 0.35f);
      for (float x = 3; x < 13; x += 2.5f) s.Rect(x, 5, 0.8f, 4, Hex(0xB07850), 0.f);
      s.Rect(2, 7, 3, 4, Hex(0xE8B890), 0.3f);
    },
};
static_assert(std::size(kSymbols) == TemplateArt::kSymbolCount);

// Tool bar images, left to right in each strip.
const Icon kPenTools[] = {
    [](cSketch& s) {
      s.Stroke(4, 12, 12, 4, 3, Hex(0xF0C040), 0.3f);
      s.Poly({{2, 14}, {2.5f, 11}, {5, 13.5f}}, Hex(0x3A3A3A), 0.f);
      s.Stroke(12, 4, 13.5f, 2.5f, 3, Hex(0xE08090));
    },
    [](cSketch& s) {
      s.Stroke(3, 13, 13, 3, 1.2f, Hex(0x2A2A6A));
      s.Rect(1.5f, 11.5f, 3, 3, Hex(0xD03030), 0.f), s.Rect(11.5f, 1.5f, 3, 3, Hex(0xD03030), 0.f);
    },
    [](cSketch& s) {
      s.Rect(2, 3, 12, 10, Hex(0x2A2A6A), 0.f);
      s.Rect(3.2f, 4.2f, 9.6f, 7.6f, Hex(0xFFFFFF), 0.f);
    },
    [](cSketch& s) {
      s.Poly({{2, 7}, {8, 2}, {13, 8}, {7, 13}}, Hex(0xB0B8C4), 0.35f);
      s.Poly({{2, 7}, {13, 8}, {7, 13}}, Hex(0x3A7AD8), 0.2f);
      s.Ellipse(13.5f, 12, 1.6f, 2.5f, Hex(0x3A7AD8), 0.2f);
    },
};

const Icon kPaletteTools[] = {
    [](cSketch& s) {
      s.Rect(1, 1, 7, 7, Hex(0x58A838), 0.2f), s.Rect(8, 1, 7, 7, Hex(0x3A70C8), 0.2f);
      s.Rect(1, 8, 7, 7, Hex(0xC8A060), 0.2f), s.Rect(8, 8, 7, 7, Hex(0x9A9488), 0.2f);
    },
    [](cSketch& s) {
      s.Ellipse(8, 10, 6.5f, 5, Hex(0xD84040), 0.4f);
      s.Ellipse(8, 6, 3.5f, 3.5f, Hex(0xD84040), 0.3f);
      s.Rect(5, 9, 1.5f, 2, Hex(0x201820), 0.f), s.Rect(9.5f, 9, 1.5f, 2, Hex(0x201820), 0.f);
    },
    [](cSketch& s) {
      s.Rect(2, 6, 12, 8, Hex(0xA86C38), 0.3f);
      s.Poly({{2, 6}, {3, 3}, {13, 3}, {14, 6}}, Hex(0xB87840), 0.3f);
      s.Rect(2, 6, 12, 1.2f, kGold, 0.f), s.Rect(7, 7, 2, 3, kGold, 0.f);
    },
};

const Icon kTestPlayTools[] = {
    [](cSketch& s) {
      s.Ellipse(8, 8, 7, 7, Hex(0x2E9A4A), 0.35f);
      s.Poly({{6, 4}, {12, 8}, {6, 12}}, Hex(0xF8FFF8), 0.f);
    },
};

const Icon kWorldPaletteTools[] = {
    [](cSketch& s) {
      s.Ellipse(8, 8, 7, 7, Hex(0x3A70C8), 0.35f);
      s.Poly({{4, 4}, {9, 3}, {10, 7}, {6, 10}, {3, 8}}, Hex(0x58A838), 0.2f);
      s.Poly({{10, 10}, {13, 9}, {12, 13}}, Hex(0x58A838), 0.2f);
    },
    [](cSketch& s) {
      s.Rect(3, 1, 1.6f, 14, Hex(0x5A4030), 0.f);
      s.Poly({{4.6f, 2}, {14, 4.5f}, {4.6f, 8}}, Hex(0xE03A30), 0.2f);
    },
};

template <std::size_t N>
cCanvas Strip(const Icon (&icons)[N], int perRow, int height) {
  cCanvas sheet(perRow * 16, height);
  for (std::size_t n = 0; n < N; ++n) {
    const int x = static_cast<int>(n % perRow) * 16, y = static_cast<int>(n / perRow) * 16;
    cCanvas cell(16, 16);
    cSketch s(cell, 0, 0, 16, 16, 1.f);
    icons[n](s);
    // Holes are drawn in black and cut out here.
    for (int j = 0; j < 16; ++j)
      for (int i = 0; i < 16; ++i)
        if (cell.Raw(i, j) == 0xFF000000u) cell.Erase(i, j);
    Outline(cell, 0, 0, 16, 16, 0.35f);
    sheet.Paste(cell, 0, 0, 16, 16, x, y);
  }
  return sheet;
}

}  // namespace

cCanvas DrawSymbolSheet() { return Strip(kSymbols, 16, TemplateArt::kSymbolSize.height); }

cCanvas DrawToolbar(eToolbar toolbar) {
  switch (toolbar) {
    case eToolbar::kPen: return Strip(kPenTools, 4, 16);
    case eToolbar::kPalette: return Strip(kPaletteTools, 3, 16);
    case eToolbar::kTestPlay: return Strip(kTestPlayTools, 1, 16);
    case eToolbar::kWorldPalette: break;
  }
  return Strip(kWorldPaletteTools, 2, 16);
}

}  // namespace art
