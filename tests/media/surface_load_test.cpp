#include <gtest/gtest.h>

#include <tuple>

#include "media/media_fixtures.h"
#include "platform/cp932.h"
#include "support/test_env.h"

namespace {

constexpr Bgr kWhite{255, 255, 255}, kBlack{0, 0, 0};

class SurfaceLoadTest : public ProjectDirTest {
 protected:
  void SetUp() override {
    ProjectDirTest::SetUp();
    std::filesystem::create_directories(Path("image"));
  }
  void TearDown() override {
    g_nKeyColor = 0;
    ProjectDirTest::TearDown();
  }
  static std::vector<unsigned char> OnePixelBmp(unsigned char b, unsigned char g, unsigned char r) {
    return MakeBmp(BmpFixture{1, 1, 24, {b, g, r}});
  }
  std::vector<std::string> Texts() const {
    std::vector<std::string> out;
    for (const auto& box : m_prompt.shown) out.push_back(box.text);
    return out;
  }
};

}  // namespace

TEST_F(SurfaceLoadTest, StarTriesPngThenBmpWhateverTheCase) {
  WritePng(Path("image/mapchip.PNG"), PngFixture{1, 1, PNG_COLOR_TYPE_RGB, 8, {1, 2, 3}});
  WriteBytes(Path("image/MapChip.bmp"), OnePixelBmp(9, 8, 7));
  cSurface s;
  ASSERT_EQ(s.Load(Sheet("image\\MapChip.*")), 1);
  EXPECT_EQ(PixelAt(s, 0, 0), (Bgr{3, 2, 1}));
  std::filesystem::remove(Path("image/mapchip.PNG"));
  s.Release();
  ASSERT_EQ(s.Load(Sheet("image\\MapChip.*")), 1);
  EXPECT_EQ(PixelAt(s, 0, 0), (Bgr{9, 8, 7}));
  s.Release();
  ASSERT_EQ(s.Load(Sheet("image\\MapChip.BMP")), 1);  // a named extension picks the loader
  EXPECT_TRUE(m_prompt.shown.empty());
}

TEST_F(SurfaceLoadTest, MissingSheetsAndBlankSheets) {
  cSurface s;
  EXPECT_EQ(s.Load(Sheet("image\\Character2.*", 0, 1)), 1);
  EXPECT_TRUE(s.IsEmpty());
  EXPECT_EQ(s.Load(Sheet("image\\Event.*", 1)), 0);
  EXPECT_EQ(s.Load(Sheet("image\\Back.bmp", 0, 1)), 0);  // a named file is never optional
  WriteBytes(Path("image/Broken.png"), Bytes({1, 2, 3}));
  EXPECT_EQ(s.Load(Sheet("image\\Broken.*", 0, 1)), 1);  // reported, then the bmp is looked for
  EXPECT_EQ(Texts(), (std::vector<std::string>{CP932_TEXT("image\\Event.png(または.bmp) が見つかりません！"),
                                               CP932_TEXT("image\\Back.bmp が読み込めません！"),
                                               CP932_TEXT("image\\Broken.png はpngファイルではありません！")}));
  EXPECT_EQ(m_prompt.shown[0].caption, CP932_TEXT("エラー"));

  ASSERT_EQ(s.Load(SHEET_DESC{"E", 24, 1, 0, 0, 960, 48, 0}), 1);
  EXPECT_EQ(std::make_tuple(s.m_nWidth, s.m_nHeight, PixelAt(s, 959, 47), MaskAt(s, 959, 47)),
            std::make_tuple(960, 48, kWhite, kBlack));
  EXPECT_EQ(s.Load(SHEET_DESC{"E", 24, 1, 0, 0, 0, 48, 0}), 0);
  EXPECT_EQ(Texts().back(), CP932_TEXT("E が読み込めません！"));
}

TEST_F(SurfaceLoadTest, KeyColourMasksMatchBlueFirst) {
  // Key bytes 0xFF, 0, 0: blue 255 is transparent; red 255 (colour 0x0000FF) is not.
  g_nKeyColor = 0x000000FF;
  WritePng(Path("image/Symbol.png"), PngFixture{3, 1, PNG_COLOR_TYPE_RGB, 8, {0, 0, 255, 255, 0, 0, 9, 9, 9}});
  cSurface s;
  ASSERT_EQ(s.Load(Sheet("image\\Symbol.*", 1)), 1);
  EXPECT_EQ(RowOf(s, 0), (std::vector<Bgr>{kBlack, {0, 0, 255}, {9, 9, 9}}));  // the key pixel cleaned
  EXPECT_EQ(std::make_tuple(MaskAt(s, 0, 0), MaskAt(s, 1, 0), MaskAt(s, 2, 0)), std::make_tuple(kWhite, kBlack, kBlack));

  WriteBytes(Path("image/Plain.bmp"), OnePixelBmp(255, 0, 0));
  cSurface plain, masked;
  ASSERT_EQ(plain.Load(Sheet("image\\Plain.*")), 1);  // unmasked: the key stays in the colour
  EXPECT_TRUE(!plain.HasMask() && PixelAt(plain, 0, 0) == (Bgr{255, 0, 0}));
  ASSERT_EQ(masked.Load(Sheet("image\\Plain.*", 1)), 1);
  EXPECT_EQ(MaskAt(masked, 0, 0), kWhite);
}

TEST_F(SurfaceLoadTest, AlphaSheetsDrawOnlyWhatHasAlpha) {
  g_nKeyColor = 0x00FF00FF;  // plays no part for a file with alpha
  WritePng(Path("image/MapChara.png"), PngFixture{4, 1, PNG_COLOR_TYPE_RGBA, 8,
                                                  {200, 100, 50, 0, 200, 100, 50, 1, 0, 0, 0, 255, 255, 0, 255, 255}});
  cSurface sheet, screen;
  ASSERT_EQ(sheet.Load(Sheet("image\\MapChara.*", 1)), 1);
  EXPECT_EQ(MaskAt(sheet, 0, 0), kWhite);
  ASSERT_TRUE(screen.Create(4, 1, 24, 0));
  screen.Fill(0x00FF00);
  screen.Blit(0, 0, 4, 1, sheet, 0, 0, 0);
  EXPECT_EQ(RowOf(screen, 0), (std::vector<Bgr>{{0, 255, 0}, {50, 100, 200}, {1, 0, 0}, {255, 0, 255}}));
}
