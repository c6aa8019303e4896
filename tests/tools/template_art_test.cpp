// The template's pictures as the editor reads them: every graphic the layout names
// shows at its place, transparent where nothing is drawn.

#include <gtest/gtest.h>

#include <filesystem>
#include <functional>

#include <unistd.h>

#include "art/art_layout.h"
#include "art/template_art.h"
#include "media/surface.h"

namespace fs = std::filesystem;
using namespace TemplateArt;

namespace {

class TemplateArtTest : public ::testing::Test {
 protected:
  static void SetUpTestSuite() {
    s_root = fs::temp_directory_path() / ("ortalune-art-" + std::to_string(::getpid()));
    std::string error;
    ASSERT_TRUE(WriteTemplateMedia(s_root, error)) << error;
  }
  static void TearDownTestSuite() { fs::remove_all(s_root); }

  // Loads a sheet as the project does, the template's key colour in force.
  static cSurface Load(const std::string& name, bool mask) {
    g_nKeyColor = kKeyColour;
    cSurface sheet;
    const SHEET_DESC desc{(s_root / "image" / name).string(), 24, mask ? 1 : 0, 0, 0, 0, 0, 0};
    EXPECT_EQ(sheet.Load(desc), 1) << name;
    return sheet;
  }
  // How many pixels of the w x h cell are drawn: opaque in the mask, or off the key.
  static int Drawn(const cSurface& s, int x, int y, int w, int h) {
    int count = 0;
    for (int j = y; j < y + h; ++j)
      for (int i = x; i < x + w; ++i) {
        const unsigned char* p = s.HasMask() ? s.MaskPixel(i, j) : s.Pixel(i, j);
        const bool drawn = s.HasMask() ? p[0] == 0 : (p[0] | p[1] << 8 | p[2] << 16) != kKeyColour;
        count += drawn;
      }
    return count;
  }
  static fs::path s_root;
};
fs::path TemplateArtTest::s_root;

struct cCellCase {
  const char* sheet;
  bool mask;
  int count;
  int size;
  std::function<std::pair<int, int>(int)> at;
  std::function<bool(int)> empty;
};

TEST_F(TemplateArtTest, EveryGraphicShowsAtItsPlaceAndLeavesTheRestTransparent) {
  auto chara = [](int g) { return std::pair((g / 20) * 64 + 32, (g % 20) * 32); };
  auto noFigure = [](int row) { return row == 0 || row >= kFigureCount; };
  auto never = [](int) { return false; };
  auto characterCell = [](int n) { return std::pair(n % 8 * 48, n / 8 * 48); };
  const cCellCase cases[] = {
      {"MapChara.png", true, kTeamCount * 20, 32, chara, [&](int g) { return noFigure(g % 20); }},
      {"MapChara.png", true, kTeamCount * 20, 32, [&](int g) { return std::pair(chara(g).first - 32, chara(g).second); },
       [&](int g) { return noFigure(g % 20); }},
      {"Event.png", true, kEventGraphicCount, 32, [](int g) { return std::pair((g / 32) * 64, (g % 32) * 32); },
       [](int g) { return g == 0; }},
      {"WorldEvent.png", true, kWorldEventGraphicCount * 2, 32, [](int n) { return std::pair(n % 2 * 32, n / 2 * 32); },
       never},
      {"Symbol.png", true, kSymbolCount, 16, [](int n) { return std::pair(n % 16 * 16, n / 16 * 16); }, never},
      {"Accessory.png", true, 2, 32, [](int n) { return std::pair(n * 64, 64); }, never},
      {"Character1.png", false, 20 * kCharaFrameCount, 48, characterCell, [&](int n) { return noFigure(n / 8); }},
      {"Character4.png", false, 20 * kCharaFrameCount, 48, characterCell, [&](int n) { return noFigure(n / 8); }},
  };
  for (const cCellCase& c : cases) {
    const cSurface sheet = Load(c.sheet, c.mask);
    ASSERT_FALSE(sheet.IsEmpty()) << c.sheet;
    for (int n = 0; n < c.count; ++n) {
      const auto [x, y] = c.at(n);
      const int drawn = Drawn(sheet, x, y, c.size, c.size);
      if (c.empty(n)) {
        EXPECT_EQ(drawn, 0) << c.sheet << " cell " << n;
        continue;
      }
      EXPECT_GT(drawn, c.size * c.size / 12) << c.sheet << " cell " << n;
      EXPECT_LT(drawn, c.size * c.size) << c.sheet << " cell " << n << " has no transparent pixel";
    }
  }
}

}  // namespace
