#include <gtest/gtest.h>

#include "media/media_fixtures.h"
#include "platform/cp932.h"
#include "support/test_env.h"

namespace {

class BmpLoaderTest : public ProjectDirTest {
 protected:
  void SetUp() override {
    ProjectDirTest::SetUp();
    std::filesystem::create_directories(Path("image"));
  }
  // LoadBmp of the bytes as image/t.bmp; `result` gets its result.
  cSurface Load(const std::vector<unsigned char>& bytes, int* result = nullptr, int bits = 24) {
    WriteBytes(Path("image/t.bmp"), bytes);
    cSurface s;
    SHEET_DESC desc = Sheet("image\\t.bmp");
    desc.nBits = bits;
    int r = s.LoadBmp("image\\t.bmp", desc, 1);
    if (result) *result = r;
    return s;
  }
  void ExpectRefused(const std::vector<unsigned char>& bytes, const char* message = "が読み込めません！") {
    m_prompt.shown.clear();
    int result = -1;
    EXPECT_TRUE(Load(bytes, &result).IsEmpty());
    EXPECT_EQ(result, 0);
    ASSERT_EQ(m_prompt.shown.size(), 1u);
    EXPECT_EQ(m_prompt.shown[0].text, "image\\t.bmp " + Cp932FromLiteral(message));
  }
  // 3 x 2 at 24 bits: rows of 9 bytes padded to 12, bottom row first.
  const BmpFixture m_odd{3, 2, 24, {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16, 17, 18}};
};

}  // namespace

TEST_F(BmpLoaderTest, EightTwentyFourAndThirtyTwoBits) {
  // A short palette, indices past it black, and junk between palette and pixels.
  BmpFixture eight{5, 2, 8, {0, 1, 2, 3, 0, 2, 2, 1, 0, 9}, {0x0000FF, 0x00FF00, 0xFF0000}, 3};
  eight.gapBeforePixels = 10;
  cSurface s = Load(MakeBmp(eight));
  const Bgr red{0, 0, 255}, green{0, 255, 0}, blue{255, 0, 0}, black{0, 0, 0};
  EXPECT_EQ(RowOf(s, 0), (std::vector<Bgr>{red, red, green, blue, black}));
  EXPECT_EQ(RowOf(s, 1), (std::vector<Bgr>{blue, green, red, black, blue}));

  s = Load(MakeBmp(m_odd));
  EXPECT_EQ(RowOf(s, 0), (std::vector<Bgr>{{10, 11, 12}, {13, 14, 15}, {16, 17, 18}}));
  EXPECT_EQ(RowOf(s, 1), (std::vector<Bgr>{{1, 2, 3}, {4, 5, 6}, {7, 8, 9}}));

  BmpFixture deep{2, -2, 32, {1, 2, 3, 99, 4, 5, 6, 99, 7, 8, 9, 99, 10, 11, 12, 99}};  // top row first
  for (std::uint32_t compression : {0u, 3u}) {
    deep.compression = compression;
    if (compression == 3) deep.masks = {0x00FF0000, 0x0000FF00, 0x000000FF};
    s = Load(MakeBmp(deep));
    EXPECT_EQ(RowOf(s, 0), (std::vector<Bgr>{{1, 2, 3}, {4, 5, 6}})) << compression;
    EXPECT_EQ(RowOf(s, 1), (std::vector<Bgr>{{7, 8, 9}, {10, 11, 12}})) << compression;
  }
  EXPECT_TRUE(m_prompt.shown.empty());
  deep.masks = {0x000000FF, 0x0000FF00, 0x00FF0000};
  ExpectRefused(MakeBmp(deep));
}

TEST_F(BmpLoaderTest, RefusedShortAndInconsistentFiles) {
  ExpectRefused(MakeBmp(BmpFixture{4, 1, 4, {0x01, 0x23}, std::vector<std::uint32_t>(16, 0)}),
                "(4bit)の読み込みに失敗しました！\n8bit,24bit,32bit以外のカラーには対応していません。");
  ExpectRefused(MakeBmp(BmpFixture{3, 2, 8, {1, 2, 3, 4, 5, 6}, {0}, 0, 1}));  // run-length coded
  ExpectRefused(Bytes({'P', 'K', 3, 4}), "はビットマップファイルではありません！");

  const std::vector<unsigned char> good = MakeBmp(m_odd);  // 54 + 2 x 12 bytes
  for (std::size_t keep : {20, 53, 60, 74})
    ExpectRefused(std::vector<unsigned char>(good.begin(), good.begin() + static_cast<std::ptrdiff_t>(keep)));
  int result = 0;
  Load(std::vector<unsigned char>(good.begin(), good.end() - 3), &result);  // the last row may lack its padding
  EXPECT_EQ(result, 1);
  std::vector<unsigned char> huge = good, offset = good;
  huge[20] = huge[25] = 0x40;  // 0x400003 x 0x40000002 in a file of 78 bytes
  ExpectRefused(huge);
  offset[13] = 0x10;  // pixel data far behind the end
  ExpectRefused(offset);

  m_prompt.shown.clear();
  cSurface other = Load(good, &result, 32);  // other sheet depths are created, not filled
  EXPECT_EQ(result, 1);
  EXPECT_EQ(PixelAt(other, 0, 0), (Bgr{255, 255, 255}));
  ASSERT_EQ(m_prompt.shown.size(), 1u);
  EXPECT_EQ(m_prompt.shown[0].text, CP932_TEXT("24bitDIB以外には未対応！ image\\t.bmp"));
}
