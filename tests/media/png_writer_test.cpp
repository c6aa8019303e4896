#include <gtest/gtest.h>

#include <tuple>

#include "media/media_fixtures.h"
#include "media/png_writer.h"
#include "support/test_env.h"

namespace {
class PngWriterTest : public ProjectDirTest {};
}  // namespace

// What the writer saves, the loader reads back pixel for pixel; from a 32-bit surface
// the alpha channel comes back as the loader's transparency (black where alpha is 0).
TEST_F(PngWriterTest, SavedSurfacesLoadBackUnchanged) {
  for (int bits : {24, 32}) {
    cSurface written;
    ASSERT_EQ(written.Create(5, 3, bits, 0), 1);
    for (int y = 0; y < 3; ++y)
      for (int x = 0; x < 5; ++x) {
        unsigned char* p = written.Pixel(x, y);
        p[0] = static_cast<unsigned char>(x * 40 + 1), p[1] = static_cast<unsigned char>(y * 70 + 2), p[2] = 200;
        if (bits == 32) p[3] = static_cast<unsigned char>(x == 0 ? 0 : 255);
      }
    std::string error;
    ASSERT_TRUE(SavePng(written, Path("out.png"), error)) << error;
    cSurface read;
    ASSERT_EQ(read.LoadPng("out.png", Sheet("out.png"), 1), 1);
    ASSERT_EQ(std::make_tuple(read.m_nWidth, read.m_nHeight, read.m_bAlpha), std::make_tuple(5, 3, bits == 32 ? 1 : 0));
    for (int y = 0; y < 3; ++y)
      for (int x = 0; x < 5; ++x) {
        const unsigned char* w = written.Pixel(x, y);
        Bgr expected = bits == 32 && x == 0 ? Bgr{0, 0, 0} : Bgr{w[0], w[1], w[2]};
        EXPECT_EQ(PixelAt(read, x, y), expected) << bits << " bits at " << x << "," << y;
      }
  }
}

TEST_F(PngWriterTest, AnEmptySurfaceIsRefusedAndNothingIsWritten) {
  cSurface empty;
  std::string error;
  EXPECT_FALSE(SavePng(empty, Path("none.png"), error));
  EXPECT_FALSE(error.empty() || std::filesystem::exists(Path("none.png")));
}
