#include <gtest/gtest.h>

#include <climits>

#include "media/media_fixtures.h"

namespace {

constexpr Bgr kWhite{255, 255, 255}, kBlack{0, 0, 0}, kRed{0, 0, 255};  // red is colour 0x0000FF

cSurface Blank(int w, int h, std::uint32_t colour = 0) {
  cSurface s;
  s.Create(w, h, 24, 0);
  s.Fill(colour);
  return s;
}

// A 24-bit surface whose pixel (x, y) is blue x, green y, red 9.
cSurface Numbered(int w, int h) {
  cSurface s = Blank(w, h);
  for (int y = 0; y < h; ++y)
    for (int x = 0; x < w; ++x) s.Pixel(x, y)[0] = static_cast<unsigned char>(x), s.Pixel(x, y)[1] = y, s.Pixel(x, y)[2] = 9;
  return s;
}

// Each row as '#' for pixels of colour `drawn`, '.' for the rest.
std::vector<std::string> Rows(const cSurface& s, Bgr drawn = kRed) {
  std::vector<std::string> out(static_cast<std::size_t>(s.m_nHeight));
  for (int y = 0; y < s.m_nHeight; ++y)
    for (int x = 0; x < s.m_nWidth; ++x) out[y] += PixelAt(s, x, y) == drawn ? '#' : '.';
  return out;
}

}  // namespace

TEST(SurfaceDrawTest, BlitClipsToBothSurfaces) {
  const cSurface src = Numbered(4, 4);
  struct Case {
    int x, y, w, h, sx, sy;
    std::vector<std::string> drawn;  // of a 6 x 5 destination
    Bgr first;                       // what lands on the first drawn pixel
  } cases[] = {
      {-2, -1, 4, 4, 0, 0, {"##....", "##....", "##....", "......", "......"}, {2, 1, 9}},
      {4, 3, 4, 4, 0, 0, {"......", "......", "......", "....##", "....##"}, {0, 0, 9}},
      {1, 1, 4, 4, -2, -1, {"......", "......", "...##.", "...##.", "...##."}, {0, 0, 9}},
      {0, 0, 5, 5, 2, 3, {"##....", "......", "......", "......", "......"}, {2, 3, 9}},
      {6, 0, 4, 4, 0, 0, {"......", "......", "......", "......", "......"}, {}},
  };
  for (const Case& c : cases) {
    cSurface dst = Blank(6, 5, 0xFFFFFF);
    dst.Blit(c.x, c.y, c.w, c.h, src, c.sx, c.sy, 0);
    std::vector<std::string> untouched = Rows(dst, kWhite);
    for (std::string& row : untouched)
      for (char& ch : row) ch = ch == '#' ? '.' : '#';
    EXPECT_EQ(untouched, c.drawn) << c.x << "," << c.y;
    for (int i = 0; i < 30; ++i)
      if (c.drawn[i / 6][i % 6] == '#') {
        EXPECT_EQ(PixelAt(dst, i % 6, i / 6), c.first);
        break;
      }
  }
  cSurface empty, dst = Blank(2, 2);
  dst.Blit(0, 0, 2, 2, empty, 0, 0, 0);
  empty.Blit(0, 0, 2, 2, dst, 0, 0, 0);
  EXPECT_EQ(PixelAt(dst, 1, 1), kBlack);

  cSurface self = Numbered(3, 3);  // an overlapping copy reads the source first
  self.Blit(1, 1, 2, 2, self, 0, 0, 0);
  EXPECT_EQ(PixelAt(self, 2, 2), (Bgr{1, 1, 9}));
}

TEST(SurfaceDrawTest, LinesFramesGridsAndFillsLeaveTheEndPointOut) {
  cSurface s = Blank(6, 4);
  s.SetPen(kPenSolid, 1, 0x0000FF);
  s.Line(1, 0, 5, 0);
  s.Line(5, 1, 1, 1);
  s.Line(0, 3, 0, 0);
  s.Line(INT_MIN, 2, INT_MAX, 2);  // clipped, not walked
  EXPECT_EQ(Rows(s), (std::vector<std::string>{".####.", "#.####", "######", "#....."}));

  cSurface d = Blank(5, 3);
  d.SetPen(kPenSolid, 1, 0x0000FF);
  d.Line(0, 0, 4, 2);  // halves round away from the start
  EXPECT_EQ(Rows(d), (std::vector<std::string>{"#....", ".##..", "...#."}));

  cSurface f = Blank(6, 5);
  f.SetPen(kPenSolid, 1, 0x0000FF);
  f.Frame(1, 1, 4, 3);
  EXPECT_EQ(Rows(f), (std::vector<std::string>{"......", ".####.", ".#..#.", ".####.", "......"}));

  cSurface g = Blank(10, 6);
  g.SetPen(kPenSolid, 1, 0x00FF00);
  g.Grid(0, 0, 8, 4, 4, 2, 0x0000FF);  // x = 0, 4, 8 and 7 down to y = 3; y = 0, 2, 4 and 3 up to x = 7
  EXPECT_EQ(Rows(g), (std::vector<std::string>{"#########.", "#...#..##.", "#########.", "#########.",
                                               "########..", ".........."}));
  g.Line(9, 0, 9, 1);  // Grid put the caller's pen back
  EXPECT_EQ(PixelAt(g, 9, 0), (Bgr{0, 255, 0}));
  cSurface wide = Blank(5, 3);  // two thousand million columns, five of them visible
  wide.Grid(-1000000000, 0, 2000000000, 3, 1, 2, 0x0000FF);
  EXPECT_EQ(Rows(wide)[1], "#####");

  cSurface r = Blank(5, 3);
  r.FillRows(1, 3, 2, 0x0000FF);
  r.Line(0, 2, 2, 2);  // FillRows left its pen selected
  EXPECT_EQ(Rows(r), (std::vector<std::string>{".##..", ".##..", "##..."}));
  const unsigned char bytes[] = {0x00, 0x00, 0xFF};  // the first byte is the high byte
  r.FillBytes(bytes);
  EXPECT_EQ(Rows(r), std::vector<std::string>(3, "#####"));
}

TEST(SurfaceDrawTest, StretchBlitScalesMirrorsAndClips) {
  const cSurface src = Numbered(4, 2);
  cSurface up = Blank(8, 4);
  up.StretchBlit(0, 0, 8, 4, src, 0, 0, 4, 2, 0);
  EXPECT_EQ(RowOf(up, 2)[2], (Bgr{1, 1, 9}));
  EXPECT_EQ(RowOf(up, 3)[7], (Bgr{3, 1, 9}));

  cSurface small = Blank(6, 2);
  small.StretchBlit(0, 0, 2, 1, src, 0, 0, 4, 1, 0);  // samples the centres: columns 1 and 3
  small.StretchBlit(5, 2, -3, -1, src, 0, 0, 3, 1, 0);  // mirrored into x 2..4 of row 1
  small.StretchBlit(5, 0, 1, 1, src, 4, 0, -4, 1, 0);   // a negative source extent mirrors too
  EXPECT_EQ(RowOf(small, 0), (std::vector<Bgr>{{1, 0, 9}, {3, 0, 9}, kBlack, kBlack, kBlack, {1, 0, 9}}));
  EXPECT_EQ(RowOf(small, 1), (std::vector<Bgr>{kBlack, kBlack, {2, 0, 9}, {1, 0, 9}, {0, 0, 9}, kBlack}));

  cSurface clipped = Blank(3, 1);
  clipped.StretchBlit(-2, 0, 8, 1, src, 0, 0, 4, 1, 0);
  clipped.StretchBlit(0, 0, 3, 1, src, -3, 0, 6, 1, 0);  // the column whose source is outside stays
  EXPECT_EQ(RowOf(clipped, 0), (std::vector<Bgr>{{1, 0, 9}, {0, 0, 9}, {2, 0, 9}}));

  cSurface masked;
  ASSERT_TRUE(masked.Create(2, 1, 24, 1));
  masked.m_vecBits = {0, 0, 200, 0, 0, 0};
  masked.m_vecMaskBits = {0, 0, 0, 255, 255, 255};
  cSurface onto = Blank(4, 1, 0xFF0000);
  onto.StretchBlit(0, 0, 4, 1, masked, 0, 0, 2, 1, 0);
  EXPECT_EQ(RowOf(onto, 0), (std::vector<Bgr>{{0, 0, 200}, {0, 0, 200}, {255, 0, 0}, {255, 0, 0}}));
}
