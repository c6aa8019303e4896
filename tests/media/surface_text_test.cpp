#include <gtest/gtest.h>

#include "media/media_fixtures.h"
#include "platform/cp932.h"

namespace {

struct Box {
  int left = 1 << 30, top = 1 << 30, right = -1, bottom = -1, count = 0;
};

// The pixels that differ from `background`. Text is drawn without blending, so each of
// them must be `ink` exactly.
Box Ink(const cSurface& s, Bgr background, Bgr ink) {
  Box b;
  for (int y = 0; y < s.m_nHeight; ++y)
    for (int x = 0; x < s.m_nWidth; ++x) {
      if (PixelAt(s, x, y) == background) continue;
      EXPECT_EQ(PixelAt(s, x, y), ink) << x << "," << y;
      b = Box{std::min(b.left, x), std::min(b.top, y), std::max(b.right, x), std::max(b.bottom, y), b.count + 1};
    }
  return b;
}

cSurface Page(std::uint32_t colour) {
  cSurface s;
  s.Create(120, 70, 24, 0);
  s.Fill(colour);
  return s;
}

}  // namespace

TEST(SurfaceTextTest, LinesAreTwentyPixelsApartInTheTextColour) {
  cSurface s = Page(0xFFFFFF);
  s.Text(10, 5, Cp932FromLiteral("剣A\nB\n"), 0x0000FF, kBkTransparent);
  Box all = Ink(s, {255, 255, 255}, {0, 0, 255});
  EXPECT_GT(all.count, 30);
  EXPECT_GE(all.left, 10);
  EXPECT_GE(all.top, 5);
  EXPECT_LT(all.right, 10 + 40);
  EXPECT_LT(all.bottom, 5 + 40);  // the empty third line draws nothing
  cSurface second = Page(0xFFFFFF);
  second.Text(10, 5, "\nB", 0x0000FF, kBkTransparent);
  EXPECT_GE(Ink(second, {255, 255, 255}, {0, 0, 255}).top, 25);

  cSurface opaque = Page(0);
  opaque.Text(0, 0, "i", 0x000000, kBkOpaque);  // the cell behind the text turns white
  EXPECT_EQ(PixelAt(opaque, 0, 0), (Bgr{255, 255, 255}));
  EXPECT_EQ(PixelAt(opaque, 60, 30), (Bgr{0, 0, 0}));
}
