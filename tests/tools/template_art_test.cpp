// The template's pictures and tunes as the editor reads them: every graphic the layout
// names shows at its place, transparent where nothing is drawn, and the tunes are
// well-formed songs of the parts they were written with.

#include <gtest/gtest.h>

#include <filesystem>
#include <functional>
#include <set>

#include <unistd.h>

#include "art/art_layout.h"
#include "art/audio.h"
#include "art/painter.h"
#include "art/sheet_files.h"
#include "art/smf_writer.h"
#include "art/template_art.h"
#include "media/surface.h"
#include "sound/smf_format.h"

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

TEST_F(TemplateArtTest, EffectSheetsHoldEveryMotifButTheNoneGraphic) {
  for (int variant = 0; variant < kEffectVariantCount; ++variant) {
    const cSurface sheet = Load("Effect" + std::to_string(variant + 1) + ".png", false);
    ASSERT_FALSE(sheet.IsEmpty());
    for (int motif = 0; motif < kEffectMotifCount; ++motif) {
      const int drawn = Drawn(sheet, 0, motif * 64, 512, 64);
      if (EffectGraphic(variant, static_cast<EffectMotif>(motif)) == 0) EXPECT_EQ(drawn, 0);
      else EXPECT_GT(drawn, 400) << "sheet " << variant + 1 << " motif " << motif;
    }
  }
}

// The statuses and the tempo of a normalised song image.
struct cSongSummary {
  std::set<int> statuses;
  std::uint32_t tempo = 0;
};

cSongSummary Summarise(const std::string& image) {
  cSongSummary song;
  const auto* data = reinterpret_cast<const unsigned char*>(image.data());
  std::size_t pos = kSmfImageEvents;
  std::uint32_t delta = 0, length = 0;
  while (pos < image.size() && ReadVarLen(data, image.size(), pos, delta)) {
    const int status = data[pos++];
    song.statuses.insert(status);
    if (status == 0xFF) {
      const int type = data[pos++];
      if (!ReadVarLen(data, image.size(), pos, length)) break;
      if (type == 0x51) song.tempo = data[pos] << 16 | data[pos + 1] << 8 | data[pos + 2];
      pos += length;
    } else {
      pos += (status & 0xE0) == 0xC0 ? 1 : 2;
    }
  }
  return song;
}

TEST_F(TemplateArtTest, TunesAreFormat1SongsWithTempoPartsAndDrums) {
  const double kBpm[] = {96, 148};
  for (int n = 0; n < static_cast<int>(std::size(kBgmFiles)); ++n) {
    const std::string tune = art::ComposeTune(n);
    EXPECT_EQ(tune, art::ComposeTune(n)) << "not deterministic";
    const auto* data = reinterpret_cast<const unsigned char*>(tune.data());
    ASSERT_GT(tune.size(), 14u);
    EXPECT_EQ(data[9], 1) << "format";
    EXPECT_EQ(data[11], 5) << "tracks: conductor, melody, chords, bass, drums";
    std::string image;
    ASSERT_EQ(NormaliseSmf(data, tune.size(), image), eSmfCheck::kOk) << kBgmFiles[n];
    const cSongSummary song = Summarise(image);
    EXPECT_EQ(song.tempo, static_cast<std::uint32_t>(60000000.0 / kBpm[n] + 0.5)) << kBgmFiles[n];
    for (int status : {0x90, 0x91, 0x92, 0x99, 0xC0, 0xC1, 0xC2, 0xC9, 0xFF})
      EXPECT_TRUE(song.statuses.count(status)) << kBgmFiles[n] << " lacks status " << status;
  }
}

TEST(TemplateArtToolkitTest, NoiseWrapsAtItsPeriodSoChipsTile) {
  for (float x : {0.f, 3.5f, 17.f, 31.f})
    for (float y : {0.f, 9.f, 30.5f}) {
      EXPECT_FLOAT_EQ(art::Noise(x, y, 8, 32, 7), art::Noise(x + 32, y - 32, 8, 32, 7));
      EXPECT_FLOAT_EQ(art::Fbm(x, y, 8, 32, 7), art::Fbm(x - 32, y + 64, 8, 32, 7));
    }
}

TEST_F(TemplateArtTest, KeyedSheetsNeverDrawInTheKeyColourAndMaskedOnesUseAlpha) {
  art::cCanvas canvas(4, 1);
  canvas.Put(0, 0, art::Hex(kKeyColour));  // drawn, though in the key colour
  canvas.Put(1, 0, art::Hex(0x80C040));
  std::string error;
  for (const bool mask : {false, true}) {
    const std::string name = mask ? "probe-masked.png" : "probe-keyed.png";
    ASSERT_TRUE(art::SaveSheet(canvas, mask ? art::eSheetKind::kMasked : art::eSheetKind::kKeyed,
                               s_root / "image" / name, error))
        << error;
    const cSurface sheet = Load(name, true);
    EXPECT_EQ(Drawn(sheet, 0, 0, 1, 1), 1) << name;
    EXPECT_EQ(Drawn(sheet, 1, 0, 1, 1), 1) << name;
    EXPECT_EQ(Drawn(sheet, 2, 0, 2, 1), 0) << name;
  }
}

TEST(TemplateArtToolkitTest, SmfTracksEndNotesBeforeTheNextStartsAndEndWhereTold) {
  art::cSmfTrack track;
  track.Note(240, 0, 60, 100, 240);  // a repeated key: the second note starts as the first ends
  track.Note(0, 0, 60, 90, 240);
  const std::string chunk = track.Chunk(960);
  const unsigned char expected[] = {'M', 'T', 'r', 'k', 0, 0, 0, 23,                   // header
                                    0x00, 0x90, 60, 90,   0x81, 0x70, 0x80, 60, 0x40,  // first note
                                    0x00, 0x90, 60, 100,  0x81, 0x70, 0x80, 60, 0x40,  // second note
                                    0x83, 0x60, 0xFF, 0x2F, 0x00};                     // end at 960
  EXPECT_EQ(chunk, std::string(reinterpret_cast<const char*>(expected), sizeof expected));
}

}  // namespace
