// Things that stand on a map: the event graphics, the places of the world map and the
// marks of the accessory sheet. Each is a small painter in 32-pixel units, given which
// of its two frames (or variants) to draw.

#include <cmath>

#include "art/art_layout.h"
#include "art/figures.h"
#include "art/sheets.h"

namespace art {
namespace {

const Col kWood = Hex(0x9A6434), kDarkWood = Hex(0x6A4222), kGold = Hex(0xE8C048), kStone = Hex(0xA8A49A);

void Sparkle(cSketch& s, float x, float y, float r) {
  s.Poly({{x, y - r}, {x + r * 0.25f, y}, {x, y + r}, {x - r * 0.25f, y}}, Hex(0xFFFCE0), 0.f);
  s.Poly({{x - r, y}, {x, y - r * 0.25f}, {x + r, y}, {x, y + r * 0.25f}}, Hex(0xFFFCE0), 0.f);
}

void ChestBody(cSketch& s) {
  s.Rect(5, 15, 22, 13, kWood, 0.3f);
  s.Rect(5, 15, 22, 2, kGold, 0.1f);
  s.Rect(8, 15, 2, 13, kGold, 0.2f), s.Rect(22, 15, 2, 13, kGold, 0.2f);
}

void Chest(cSketch& s, int frame) {
  ChestBody(s);
  s.Poly({{5, 15}, {6, 9}, {10, 7}, {22, 7}, {26, 9}, {27, 15}}, Hex(0xA86C38), 0.35f);
  s.Rect(8, 7.5f, 2, 7.5f, kGold, 0.2f), s.Rect(22, 7.5f, 2, 7.5f, kGold, 0.2f);
  s.Rect(14, 13, 4, 5, kGold, 0.3f);
  s.Rect(15.5f, 15, 1, 2, Hex(0x3A2A18), 0.f);
  if (frame) Sparkle(s, 24, 9, 4);
}

void OpenChest(cSketch& s, int frame) {
  s.Poly({{6, 12}, {8, 3}, {24, 3}, {26, 12}}, Hex(0x8A5428), 0.3f);  // the lid, standing up
  s.Rect(5, 12, 22, 4, Hex(0x3A2414), 0.f);
  for (int n = 0; n < 5; ++n) s.Ellipse(9 + n * 3.5f, 14 - (n % 2), 2.2f, 1.6f, kGold, 0.4f);
  ChestBody(s);
  if (frame) Sparkle(s, 12, 10, 3.5f), Sparkle(s, 21, 8, 2.5f);
}

void Signpost(cSketch& s, int frame) {
  s.Rect(14.5f, 12, 3, 18, kDarkWood, 0.3f);
  s.Poly({{4, 5}, {26, 5}, {29, 10}, {26, 15}, {4, 15}}, kWood, 0.3f);
  for (int line = 0; line < 2; ++line) s.Rect(7, 8 + line * 3.5f, 14 - line * 4, 1, Hex(0x4A2E18), 0.f);
  if (frame) s.Rect(11, 27, 10, 3, Hex(0x6A9A40), 0.2f);  // a tuft at the foot
}

void EventDoor(cSketch& s, int frame) {
  s.Rect(4, 6, 24, 26, Hex(0x7A766E), 0.3f);
  s.Ellipse(16, 8, 12, 6, Hex(0x7A766E), 0.3f);
  if (frame) {
    s.Rect(7, 9, 18, 23, Hex(0x1E1814), 0.f);  // opened
    s.Ellipse(16, 9.5f, 9, 5, Hex(0x1E1814), 0.f);
    return;
  }
  s.Rect(7, 9, 18, 23, Hex(0x8A5630), 0.25f);
  s.Ellipse(16, 9.5f, 9, 5, Hex(0x8A5630), 0.25f);
  for (float x = 11; x < 24; x += 4.5f) s.Rect(x, 6, 0.8f, 26, Hex(0x5A3418), 0.f);
  s.Rect(7, 14, 18, 1.5f, Hex(0x3C3C44), 0.f), s.Rect(7, 25, 18, 1.5f, Hex(0x3C3C44), 0.f);
  s.Ellipse(21, 20, 1.3f, 1.3f, kGold, 0.2f);
}

void EventStairs(cSketch& s, int frame) {
  s.Rect(3, 3, 26, 26, Hex(0x5A564E), 0.2f);
  for (int n = 0; n < 5; ++n) {
    const float y = 5 + n * 4.6f;
    s.Rect(5 + n, y, 22 - 2 * n, 4.6f, Scale(kStone, 1.f - n * 0.16f), 0.1f);
    s.Rect(5 + n, y + 3.6f, 22 - 2 * n, 1, Scale(kStone, 0.5f - n * 0.06f), 0.f);
  }
  if (frame) s.Rect(13, 27, 6, 2, Hex(0x101014), 0.f);
}

void Crystal(cSketch& s, int frame) {
  const float up = frame ? -2.f : 0.f;
  s.Ellipse(16, 29, 7, 2, Hex(0x4A5A70), 0.f);
  s.Poly({{16, 3 + up}, {23, 13 + up}, {16, 26 + up}, {9, 13 + up}}, Hex(0x60D0F0), 0.4f);
  s.Poly({{16, 3 + up}, {23, 13 + up}, {16, 26 + up}}, Hex(0x3090D0), 0.2f);
  s.Poly({{16, 6 + up}, {19, 13 + up}, {16, 20 + up}, {13, 13 + up}}, Hex(0xC8F4FF), 0.2f);
  if (frame) Sparkle(s, 22, 6, 3);
}

void Flag(cSketch& s, int frame) {
  s.Rect(8, 3, 2, 27, kDarkWood, 0.2f);
  s.Ellipse(9, 3, 2, 2, kGold, 0.2f);
  const float w = frame ? 2.f : -2.f;
  s.Poly({{10, 5}, {18, 5 + w}, {26, 5}, {26, 17}, {18, 17 + w}, {10, 17}}, Hex(0xD03C34), 0.3f);
  s.Ellipse(18, 11 + w / 2, 2.5f, 2.5f, kGold, 0.2f);
  s.Rect(5, 28, 8, 2, Hex(0x6A6458), 0.2f);
}

void Villager(cSketch& s, int frame) {
  DrawFigure(s.Canvas(), 0, 0, 32, 0, kVillagerFigure,
             frame ? TemplateArt::kWalkFrame1 : TemplateArt::kWalkFrame0);
}

struct cThing {
  int graphic;
  void (*paint)(cSketch&, int);
};

constexpr cThing kEvents[] = {
    {TemplateArt::kChest, Chest},         {TemplateArt::kOpenChest, OpenChest}, {TemplateArt::kSignpost, Signpost},
    {TemplateArt::kEventDoor, EventDoor}, {TemplateArt::kVillager, Villager},   {TemplateArt::kEventStairs, EventStairs},
    {TemplateArt::kCrystal, Crystal},     {TemplateArt::kFlag, Flag},
};
static_assert(std::size(kEvents) == TemplateArt::kEventGraphicCount - TemplateArt::kChest);

// World places are shown at half size: bold shapes, few details. Variant 1 is the
// place with a stage, which flies a banner.
void Banner(cSketch& s) {
  s.Rect(25, 1, 1.6f, 14, Hex(0x4A3A2A), 0.f);
  s.Poly({{26.5f, 1.5f}, {32, 4}, {26.5f, 7}}, Hex(0xE83A30), 0.1f);
}

void House(cSketch& s, float x, float y, float w, Col roof) {
  s.Rect(x, y, w, w * 0.7f, Hex(0xECDCB0), 0.3f);
  s.Poly({{x - 1.5f, y + 0.5f}, {x + w / 2, y - w * 0.55f}, {x + w + 1.5f, y + 0.5f}}, roof, 0.3f);
  s.Rect(x + w * 0.4f, y + w * 0.3f, w * 0.25f, w * 0.4f, Hex(0x5A3A20), 0.f);
}

void Town(cSketch& s, int stage) {
  House(s, 4, 12, 10, Hex(0xC8403A));
  House(s, 17, 15, 11, Hex(0x3A6AC0));
  House(s, 8, 22, 9, Hex(0xC87A30));
  if (stage) Banner(s);
}

void Castle(cSketch& s, int stage) {
  const Col wall = Hex(0xB4AEA2), roof = Hex(0x3A5AB0);
  s.Rect(5, 14, 22, 15, wall, 0.3f);
  for (float x : {3.f, 23.f}) {
    s.Rect(x, 9, 6, 20, wall, 0.35f);
    s.Poly({{x - 1, 10}, {x + 3, 3}, {x + 7, 10}}, roof, 0.3f);
  }
  s.Rect(12, 7, 8, 10, wall, 0.35f);
  s.Poly({{11, 8}, {16, 0}, {21, 8}}, roof, 0.3f);
  s.Rect(13.5f, 21, 5, 8, Hex(0x3A2A20), 0.f);
  s.Ellipse(16, 21, 2.5f, 2.5f, Hex(0x3A2A20), 0.f);
  if (stage) Banner(s);
}

void Cave(cSketch& s, int stage) {
  s.Poly({{1, 30}, {5, 14}, {12, 6}, {21, 7}, {28, 14}, {31, 30}}, Hex(0x8A7A64), 0.4f);
  s.Poly({{9, 30}, {10, 21}, {16, 16}, {22, 21}, {23, 30}}, Hex(0x1A1416), 0.f);
  s.Rect(5, 12, 3, 1.5f, Hex(0x6E6050), 0.f), s.Rect(20, 10, 4, 1.5f, Hex(0x6E6050), 0.f);
  if (stage) Banner(s);
}

void Tower(cSketch& s, int stage) {
  s.Rect(10, 9, 12, 21, Hex(0x9A8E80), 0.4f);
  for (float x = 9; x < 23; x += 4) s.Rect(x, 5, 2.5f, 5, Hex(0x9A8E80), 0.3f);
  s.Rect(9, 8, 14, 2, Hex(0x8A7E70), 0.f);
  s.Rect(14.5f, 14, 3, 4, Hex(0xF0D060), 0.f);
  s.Rect(13.5f, 24, 5, 6, Hex(0x3A2A20), 0.f);
  if (stage) Banner(s);
}

void Shrine(cSketch& s, int stage) {
  const Col marble = Hex(0xE8E4DA);
  s.Rect(3, 27, 26, 3, Hex(0xB8B2A6), 0.2f);
  s.Poly({{2, 13}, {16, 4}, {30, 13}}, Hex(0xD8D2C4), 0.35f);
  s.Rect(4, 12, 24, 3, marble, 0.2f);
  for (float x = 6; x < 26; x += 6.5f) s.Rect(x, 15, 3, 12, marble, 0.4f);
  s.Ellipse(16, 9.5f, 1.8f, 1.8f, Hex(0xE8B840), 0.f);
  if (stage) Banner(s);
}

constexpr cThing kPlaces[] = {
    {TemplateArt::kTown, Town},   {TemplateArt::kCastle, Castle}, {TemplateArt::kCave, Cave},
    {TemplateArt::kTower, Tower}, {TemplateArt::kShrine, Shrine},
};
static_assert(std::size(kPlaces) == TemplateArt::kWorldEventGraphicCount);

void Paint(cCanvas& sheet, int x, int y, void (*paint)(cSketch&, int), int variant) {
  cCanvas cell(32, 32);
  cSketch s(cell, 0, 0, 32, 32, 1.f);
  paint(s, variant);
  if (paint != Villager) Outline(cell, 0, 0, 32, 32);  // a figure comes outlined
  sheet.Paste(cell, 0, 0, 32, 32, x, y);
}

// Accessory marks: corner brackets, dithered range tiles and the two position marks.
void Corners(cSketch& s, Col c) {
  constexpr float kArm = 9;
  for (int k = 0; k < 4; ++k) {
    const bool right = k & 1, bottom = k & 2;
    s.Rect(right ? 31 - kArm : 1, bottom ? 29 : 1, kArm, 2, c, 0.f);
    s.Rect(right ? 29 : 1, bottom ? 31 - kArm : 1, 2, kArm, c, 0.f);
  }
}

void Checker(cCanvas& sheet, int x0, int y0, Col c) {
  for (int y = 0; y < 32; ++y)
    for (int x = 0; x < 32; ++x)
      if ((x + y) % 2 == 0 || x == 0 || y == 0 || x == 31 || y == 31) sheet.Put(x0 + x, y0 + y, c);
}

}  // namespace

cCanvas DrawEventSheet() {
  cCanvas sheet(TemplateArt::kEventSize.width, TemplateArt::kEventSize.height);
  for (const cThing& e : kEvents)
    for (int frame = 0; frame < 2; ++frame)
      Paint(sheet, (e.graphic / 32) * 64 + frame * 32, (e.graphic % 32) * 32, e.paint, frame);
  return sheet;
}

cCanvas DrawWorldEventSheet() {
  cCanvas sheet(TemplateArt::kWorldEventSize.width, TemplateArt::kWorldEventSize.height);
  for (const cThing& p : kPlaces) {
    Paint(sheet, 0, p.graphic * 32, p.paint, 1);
    Paint(sheet, 32, p.graphic * 32, p.paint, 0);
  }
  return sheet;
}

cCanvas DrawAccessorySheet() {
  cCanvas sheet(TemplateArt::kAccessorySize.width, TemplateArt::kAccessorySize.height);
  auto cell = [&](int x, int y) { return cSketch(sheet, x, y, 32, 32, 1.f); };
  cSketch cursor = cell(0, 0), attack = cell(32, 0);
  Corners(cursor, Hex(0xF8F8F0));
  Corners(attack, Hex(0xF04040));
  Outline(sheet, 0, 0, 64, 32);
  Checker(sheet, 64, 0, Hex(0x4080F0));  // move range
  Checker(sheet, 96, 0, Hex(0xF05040));  // attack range
  cSketch arrow = cell(0, 32);
  arrow.Poly({{16, 28}, {6, 14}, {12, 14}, {12, 3}, {20, 3}, {20, 14}, {26, 14}}, Hex(0xF8E040), 0.3f);
  cSketch target = cell(32, 32);
  target.Ellipse(16, 16, 12, 12, Hex(0xF04040), 0.f);
  target.Ellipse(16, 16, 9.5f, 9.5f, Hex(0x000000), 0.f);  // holes are drawn black and cut out
  for (int y = 32; y < 64; ++y)
    for (int x = 32; x < 64; ++x)
      if (sheet.Raw(x, y) == 0xFF000000u) sheet.Erase(x, y);
  target.Rect(15, 1, 2, 30, Hex(0xF04040), 0.f), target.Rect(1, 15, 30, 2, Hex(0xF04040), 0.f);
  // The start position: a bright frame around a star.
  cSketch start = cell(0, 64);
  start.Rect(1, 1, 30, 30, Hex(0x40C8F0), 0.f);
  start.Rect(3, 3, 26, 26, Hex(0x1A4A8A), 0.f);
  std::vector<Pt> star;
  for (int n = 0; n < 10; ++n) {
    const float a = -3.14159265f / 2 + n * 3.14159265f / 5, r = n % 2 ? 4.5f : 11.f;
    star.push_back({16 + r * std::cos(a), 17 + r * std::sin(a)});
  }
  start.Poly(star, Hex(0xF8E040), 0.3f);
  // The position mark: a diamond ring.
  cSketch mark = cell(64, 64);
  mark.Poly({{16, 2}, {30, 16}, {16, 30}, {2, 16}}, Hex(0xF89030), 0.25f);
  mark.Poly({{16, 7}, {25, 16}, {16, 25}, {7, 16}}, Hex(0x000000), 0.f);
  for (int y = 64; y < 96; ++y)
    for (int x = 64; x < 96; ++x)
      if (sheet.Raw(x, y) == 0xFF000000u) sheet.Erase(x, y);
  return sheet;
}

}  // namespace art
