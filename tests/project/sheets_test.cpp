// The 38 sheets of a project and the folds of the tall ones.

#include "project/sheets.h"

#include <tuple>

#include "platform/cp932.h"
#include "project/project_globals.h"
#include "support/bmp_writer.h"
#include "support/test_env.h"

namespace fs = std::filesystem;

namespace {

constexpr std::uint32_t kKey = 0xFF00FF;  // magenta, as 0xBBGGRR

// A colour that tells where a source pixel came from.
std::uint32_t Marker(int sheet, int x, int y) {
  return 0x010000u * static_cast<std::uint32_t>(sheet + 1) + 0x100u * static_cast<std::uint32_t>(x % 251) +
         static_cast<std::uint32_t>(y % 199 + 1);
}

std::uint32_t ColourAt(const cSurface& s, int x, int y) {
  const unsigned char* p = s.Pixel(x, y);
  return (static_cast<std::uint32_t>(p[0]) << 16) | (static_cast<std::uint32_t>(p[1]) << 8) | p[2];
}

std::uint32_t MaskAt(const cSurface& s, int x, int y) {
  const unsigned char* p = s.MaskPixel(x, y);
  return (static_cast<std::uint32_t>(p[0]) << 16) | (static_cast<std::uint32_t>(p[1]) << 8) | p[2];
}

class SheetsTest : public ProjectDirTest {
 protected:
  void SetUp() override {
    ProjectDirTest::SetUp();
    fs::create_directories("image");
    g_nKeyColor = kKey;
    Write("MapChip", 0, 256, 1024);
    Write("MapChara", 1, 32, 32);
    Write("Character1", 2, 48, 960);
    Write("Event", 18, 1024, 1024);
    Write("WorldMapChip", 20, 32, 32);
    Write("WorldEvent", 21, 32, 32);
    Write("Symbol", 22, 32, 32);
    for (int k = 0; k < 8; ++k) Write("Effect" + std::to_string(k + 1), 23 + k, 64, 1024);
    Write("Accessory", 31, 32, 32);
  }
  void TearDown() override {
    for (cSurface& sheet : g_aSheet) sheet.Release();
    ProjectDirTest::TearDown();
  }
  static void Write(const std::string& name, int sheet, int w, int h) {
    WriteBmp24("image/" + name + ".bmp", w, h, [sheet](int x, int y) {
      // The key colour in a corner of every cell of 32, so masks have something to show.
      return (x % 32 == 0 && y % 32 == 0) ? kKey : Marker(sheet, x, y);
    });
  }
};

}  // namespace

TEST_F(SheetsTest, RequiredSheetsLoadOptionalOnesMayBeMissing) {
  ASSERT_EQ(LoadSheets(), 1);
  EXPECT_TRUE(m_prompt.shown.empty());
  EXPECT_FALSE(g_aSheet[0].IsEmpty());
  EXPECT_TRUE(g_aSheet[3].IsEmpty());   // Character2 is optional and absent
  EXPECT_TRUE(g_aSheet[19].IsEmpty());  // no world map background
  EXPECT_EQ(std::tie(g_aSheet[37].m_nWidth, g_aSheet[37].m_nHeight), std::make_tuple(1024, 64));
  // Masks follow the key colour, and the colour plane is cleaned behind them.
  EXPECT_EQ(MaskAt(g_aSheet[18], 32, 64), 0xFFFFFFu);
  EXPECT_EQ(ColourAt(g_aSheet[18], 32, 64), 0u);
  EXPECT_EQ(MaskAt(g_aSheet[18], 33, 64), 0u);
}

TEST_F(SheetsTest, FoldsPutTheLowerHalfBesideTheUpper) {
  Write("Character3", 4, 48, 960);
  ASSERT_EQ(LoadSheets(), 1);
  FoldSheets();

  // Characters: source k at 96k, its lower half 48 further.
  EXPECT_EQ(ColourAt(g_aSheet[32], 5, 7), Marker(2, 5, 7));
  EXPECT_EQ(ColourAt(g_aSheet[32], 48 + 5, 7), Marker(2, 5, 487));
  EXPECT_EQ(ColourAt(g_aSheet[32], 96 * 2 + 48 + 47, 479), Marker(4, 47, 959));
  EXPECT_EQ(ColourAt(g_aSheet[32], 96 * 1 + 10, 10), 0u);  // Character2 missing: the cleared colour stays
  // Effects: source k at 128k.
  EXPECT_EQ(ColourAt(g_aSheet[33], 128 * 7 + 64 + 3, 100), Marker(30, 3, 612));
  // Map chips: the lower half from x 256.
  EXPECT_EQ(ColourAt(g_aSheet[34], 256 + 255, 511), Marker(0, 255, 1023));
  EXPECT_EQ(ColourAt(g_aSheet[34], 1, 1), Marker(0, 1, 1));
  // Events: only the left 32 of each 64 source pixels, mask plane included.
  EXPECT_EQ(ColourAt(g_aSheet[35], 64 * 3 + 5, 9), Marker(18, 64 * 3 + 5, 9));
  EXPECT_EQ(ColourAt(g_aSheet[35], 64 * 3 + 32 + 5, 9), Marker(18, 64 * 3 + 5, 521));
  EXPECT_EQ(MaskAt(g_aSheet[35], 64 * 3 + 32, 0), 0xFFFFFFu);  // key at (192, 512) of the source
  EXPECT_EQ(MaskAt(g_aSheet[35], 64 * 3 + 33, 0), 0u);
  EXPECT_EQ(ColourAt(g_aSheet[35], 64 * 15 + 63, 511), Marker(18, 64 * 15 + 31, 1023));
}
