// The colour arithmetic of the tinted previews and the tint of a character graphic.

#include <gtest/gtest.h>

#include <tuple>

#include "project/project_globals.h"
#include "project/sheet_tint.h"

namespace {

std::tuple<int, int, int> Hsv(int r, int g, int b) {
  const cHsv c = RgbToHsv(r, g, b);
  return {c.h, c.s, c.v};
}

TEST(SheetTint, HsvFollowsTheGamesIntegerRulesGreyAndBlackIncluded) {
  EXPECT_EQ(Hsv(255, 0, 0), std::make_tuple(0, 255, 255));
  EXPECT_EQ(Hsv(0, 0, 255), std::make_tuple(240, 255, 255));
  EXPECT_EQ(Hsv(100, 100, 100), std::make_tuple(0, 2, 100)) << "a grey keeps a little saturation";
  EXPECT_EQ(Hsv(0, 0, 0), std::make_tuple(240, 255, 1)) << "black has value 1";
  EXPECT_EQ(Hsv(255, 0, 128), std::make_tuple(330, 255, 255)) << "a negative hue wraps";
  for (auto [r, g, b] : {std::tuple{255, 0, 0}, {0, 255, 0}, {12, 200, 90}, {250, 250, 250}}) {
    int r2, g2, b2;
    HsvToRgb(RgbToHsv(r, g, b), r2, g2, b2);
    EXPECT_NEAR(r2, r, 3);
    EXPECT_NEAR(g2, g, 3);
    EXPECT_NEAR(b2, b, 3);
  }
}

class SheetTintTest : public ::testing::Test {
 protected:
  void SetUp() override {
    m_key = g_nKeyColor;
    g_nKeyColor = 0x00FF00;  // green is transparent
    for (int sheet : {2, 10, kCharaTintSheet}) g_aSheet[sheet] = cSurface{};
  }
  void TearDown() override {
    g_nKeyColor = m_key;
    for (int sheet : {2, 10, kCharaTintSheet}) g_aSheet[sheet] = cSurface{};
  }
  static void Paint(cSurface& s, int x, int y, int r, int g, int b) {
    unsigned char* p = s.Pixel(x, y);
    p[0] = static_cast<unsigned char>(b), p[1] = static_cast<unsigned char>(g), p[2] = static_cast<unsigned char>(r);
  }
  static std::tuple<int, int, int> Rgb(int x, int y) {
    const unsigned char* p = g_aSheet[kCharaTintSheet].Pixel(x, y);
    return {p[2], p[1], p[0]};
  }
  std::uint32_t m_key = 0;
};

TEST_F(SheetTintTest, OnlyThePixelsTheColourSheetPaintsTakeTheTintOverTheCharactersStrip) {
  cSurface& chara = g_aSheet[2];
  chara.Create(48, 96, 24, 0);
  for (int y = 0; y < 96; ++y)
    for (int x = 0; x < 48; ++x) Paint(chara, x, y, y < 48 ? 10 : 200, 0, 0);  // graphic 1 is the second strip
  cSurface& colour = g_aSheet[10];
  colour.Create(48, 96, 24, 0);
  for (int y = 0; y < 96; ++y)
    for (int x = 0; x < 48; ++x) Paint(colour, x, y, 0, 255, 0);
  Paint(colour, 3, 48 + 5, 255, 0, 0);

  TintCharacter(1, 240, 0, 0);
  EXPECT_EQ(Rgb(3, 5), std::make_tuple(0, 0, 255)) << "red turned by 240 degrees is blue";
  EXPECT_EQ(Rgb(4, 5), std::make_tuple(200, 0, 0)) << "the strip stands where the colour sheet is transparent";

  // Without a colour sheet the graphic's own pixels take the tint; graphic 0 draws nothing.
  g_aSheet[10] = cSurface{};
  TintCharacter(1, 0, 0, -255);
  EXPECT_EQ(Rgb(4, 5), std::make_tuple(0, 0, 0));
  const auto before = g_aSheet[kCharaTintSheet].m_vecBits;
  TintCharacter(0, 100, 0, 0);
  EXPECT_EQ(g_aSheet[kCharaTintSheet].m_vecBits, before);
}

}  // namespace
