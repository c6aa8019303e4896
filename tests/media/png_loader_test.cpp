#include <gtest/gtest.h>

#include "media/media_fixtures.h"
#include "platform/cp932.h"
#include "support/test_env.h"

namespace {

class PngLoaderTest : public ProjectDirTest {
 protected:
  cSurface Load(const PngFixture& f, int bits = 24) {
    WritePng(Path("image/t.png"), f);
    cSurface s;
    SHEET_DESC desc = Sheet("image\\t.png");
    desc.nBits = bits;
    EXPECT_EQ(s.LoadPng("image\\t.png", desc, 1), 1);
    return s;
  }
};

}  // namespace

TEST_F(PngLoaderTest, EveryColourTypeLandsAsBlueGreenRed) {
  struct Case {
    const char* what;
    PngFixture png;
    int alpha;
    std::vector<Bgr> row0;
  } cases[] = {
      // Alpha 0 gives 0, 0, 0; any other alpha is fully visible; opaque black becomes blue 1.
      {"palette+tRNS", {4, 1, PNG_COLOR_TYPE_PALETTE, 8, {0, 1, 2, 3}, {{255, 0, 0}, {0, 255, 0}, {0, 0, 0}, {0, 0, 255}}, {0, 128}},
       1, {{0, 0, 0}, {0, 255, 0}, {1, 0, 0}, {255, 0, 0}}},
      {"grey", {4, 1, PNG_COLOR_TYPE_GRAY, 8, {0, 128, 255, 37}}, 0, {{0, 0, 0}, {128, 128, 128}, {255, 255, 255}, {37, 37, 37}}},
      {"grey 2 bits", {4, 1, PNG_COLOR_TYPE_GRAY, 2, {0x1B}}, 0, {{0, 0, 0}, {85, 85, 85}, {170, 170, 170}, {255, 255, 255}}},
      {"grey+alpha", {4, 1, PNG_COLOR_TYPE_GRAY_ALPHA, 8, {10, 0, 0, 255, 200, 1, 0, 0}}, 1,
       {{0, 0, 0}, {1, 0, 0}, {200, 200, 200}, {0, 0, 0}}},
      {"rgb", {2, 1, PNG_COLOR_TYPE_RGB, 8, {10, 20, 30, 0, 0, 0}}, 0, {{30, 20, 10}, {0, 0, 0}}},
      {"rgba, odd width", {3, 1, PNG_COLOR_TYPE_RGBA, 8, {9, 8, 7, 0, 1, 2, 3, 255, 0, 0, 7, 9}}, 1,
       {{0, 0, 0}, {3, 2, 1}, {7, 0, 0}}},
      {"rgb 16 bits", {2, 1, PNG_COLOR_TYPE_RGB, 16, {0x12, 0xFF, 0x34, 0, 0xAB, 0x80, 0xFF, 0xFF, 0, 1, 0x7F, 0xFF}}, 0,
       {{0xAB, 0x34, 0x12}, {0x7F, 0, 0xFF}}},
      // Alpha 0x00FF keeps its high byte, 0: transparent; 0x0100 gives 1: visible.
      {"rgba 16 bits", {2, 1, PNG_COLOR_TYPE_RGBA, 16, {64, 0, 64, 0, 64, 0, 0, 0xFF, 0x50, 0, 0x60, 0, 0x70, 0, 1, 0}}, 1,
       {{0, 0, 0}, {0x70, 0x60, 0x50}}},
      // Gamma: a linear file is corrected for the 2.2 screen; 1 / 2.2 is what no gAMA means.
      {"gamma 1.0", {3, 1, PNG_COLOR_TYPE_GRAY, 8, {128, 64, 200}, {}, {}, false, 1.0}, 0,
       {{186, 186, 186}, {136, 136, 136}, {228, 228, 228}}},
      {"gamma 1/2.2", {1, 1, PNG_COLOR_TYPE_GRAY, 8, {128}, {}, {}, false, 1 / 2.2}, 0, {{128, 128, 128}}},
  };
  for (const Case& c : cases) {
    cSurface s = Load(c.png);
    EXPECT_EQ(s.m_bAlpha, c.alpha) << c.what;
    EXPECT_EQ(RowOf(s, 0), c.row0) << c.what;
  }
}

TEST_F(PngLoaderTest, InterlacedImagesAssembleEveryPass) {
  for (int channels : {3, 4}) {
    PngFixture f{9, 7, channels == 3 ? PNG_COLOR_TYPE_RGB : PNG_COLOR_TYPE_RGBA, 8, {}, {}, {}, true};
    for (int i = 0; i < 63; ++i) {
      f.rows.insert(f.rows.end(), {static_cast<unsigned char>(i % 9 * 20 + 1), static_cast<unsigned char>(i / 9 * 30),
                                   static_cast<unsigned char>(i)});
      if (channels == 4) f.rows.push_back(255);
    }
    cSurface s = Load(f);
    for (int i = 0; i < 63; ++i) ASSERT_EQ(PixelAt(s, i % 9, i / 9), (Bgr{i, i / 9 * 30, i % 9 * 20 + 1})) << i;
  }
}

TEST_F(PngLoaderTest, MissingForeignTruncatedAndDamagedFiles) {
  std::filesystem::create_directories(Path("image"));
  PngFixture big{64, 64, PNG_COLOR_TYPE_RGBA, 8, {}};
  for (int i = 0; i < 64 * 64 * 4; ++i) big.rows.push_back(static_cast<unsigned char>(i * 7 + i / 251));
  const std::vector<unsigned char> good = EncodePng(big);
  std::vector<unsigned char> damaged = good, wide = good;
  damaged[good.size() / 2] ^= 0x5A;  // image data whose checksum no longer holds
  wide[16] = 0x7F;                   // a width beyond every limit
  const std::string broken = "が読み込めません！\nファイルが不正、もしくは対応していない形式です。";
  struct Case {
    std::vector<unsigned char> bytes;
    std::string message;  // after the path and a space; empty for no box
  } cases[] = {
      {{}, ""},  // no file at all, and bReport 0
      {Bytes({'B', 'M', 0, 0, 0, 0, 0, 0, 0, 0}), "はpngファイルではありません！"},
      {std::vector<unsigned char>(good.begin(), good.begin() + 12), broken},
      {std::vector<unsigned char>(good.begin(), good.begin() + 40), broken},
      {std::vector<unsigned char>(good.begin(), good.begin() + static_cast<std::ptrdiff_t>(good.size() / 2)), broken},
      {std::vector<unsigned char>(good.begin(), good.end() - 12), broken},  // no end chunk
      {damaged, broken},
      {wide, broken},
  };
  for (const Case& c : cases) {
    std::filesystem::remove(Path("image/t.png"));
    if (!c.bytes.empty()) WriteBytes(Path("image/t.png"), c.bytes);
    m_prompt.shown.clear();
    cSurface s;
    EXPECT_EQ(s.LoadPng("image\\t.png", Sheet("image\\t.png"), 0), 0);
    EXPECT_TRUE(s.IsEmpty());
    ASSERT_EQ(m_prompt.shown.size(), c.message.empty() ? 0u : 1u) << c.message;
    if (!c.message.empty()) {
      EXPECT_EQ(m_prompt.shown[0].text, "image\\t.png " + Cp932FromLiteral(c.message.c_str()));
    }
  }
  std::filesystem::remove(Path("image/t.png"));
  m_prompt.shown.clear();
  cSurface s;
  EXPECT_EQ(s.LoadPng("image\\t.png", Sheet("image\\t.png"), 1), 0);  // missing, reported
  ASSERT_EQ(m_prompt.shown.size(), 1u);
  EXPECT_EQ(m_prompt.shown[0].text, CP932_TEXT("image\\t.png が読み込めません！"));
  EXPECT_EQ(m_prompt.shown[0].caption, CP932_TEXT("エラー"));
}
