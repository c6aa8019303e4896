#include "art/template_art.h"

#include <functional>
#include <vector>

#include "art/art_layout.h"
#include "art/audio.h"
#include "art/sheet_files.h"
#include "art/sheets.h"
#include "platform/file_io.h"
#include "sound/music_render.h"

namespace {

using art::eSheetKind;

constexpr const char* kCharacterSheets[] = {"image/Character1.png", "image/Character2.png", "image/Character3.png",
                                            "image/Character4.png"};
constexpr const char* kEffectSheets[] = {"image/Effect1.png", "image/Effect2.png", "image/Effect3.png",
                                         "image/Effect4.png", "image/Effect5.png", "image/Effect6.png",
                                         "image/Effect7.png", "image/Effect8.png"};
static_assert(std::size(kEffectSheets) == TemplateArt::kEffectVariantCount);

struct cToolbarJob {
  const char* path;
  art::eToolbar toolbar;
};
constexpr cToolbarJob kToolbars[] = {
    {"e_image/ToolBar_Pen.bmp", art::eToolbar::kPen},
    {"e_image/ToolBar_Palette.bmp", art::eToolbar::kPalette},
    {"e_image/ToolBar_TestPlay.bmp", art::eToolbar::kTestPlay},
    {"e_image/ToolBar_WorldPalette.bmp", art::eToolbar::kWorldPalette},
};

struct cSheetJob {
  const char* path;  // below the root
  eSheetKind kind;
  std::function<art::cCanvas()> draw;
};

std::vector<cSheetJob> SheetJobs() {
  std::vector<cSheetJob> jobs = {
      {"image/MapChip.png", eSheetKind::kOpaque, art::DrawMapChipSheet},
      {"image/WorldMapChip.png", eSheetKind::kOpaque, art::DrawWorldMapChipSheet},
      {"image/back/World.png", eSheetKind::kOpaque, art::DrawWorldBack},
      {"image/MapChara.png", eSheetKind::kMasked, art::DrawMapCharaSheet},
      {"image/Event.png", eSheetKind::kMasked, art::DrawEventSheet},
      {"image/WorldEvent.png", eSheetKind::kMasked, art::DrawWorldEventSheet},
      {"image/Symbol.png", eSheetKind::kMasked, art::DrawSymbolSheet},
      {"image/Accessory.png", eSheetKind::kMasked, art::DrawAccessorySheet},
  };
  for (int team = 0; team < TemplateArt::kTeamCount; ++team)
    jobs.push_back({kCharacterSheets[team], eSheetKind::kKeyed, [team] { return art::DrawCharacterSheet(team); }});
  for (int variant = 0; variant < TemplateArt::kEffectVariantCount; ++variant)
    jobs.push_back({kEffectSheets[variant], eSheetKind::kKeyed, [variant] { return art::DrawEffectSheet(variant); }});
  return jobs;
}

}  // namespace

bool WriteTemplateMedia(const std::filesystem::path& root, std::string& error) {
  for (const char* dir : {"image", "image/back", "e_image", "wave", "bgm"}) {
    std::error_code ec;
    std::filesystem::create_directories(root / dir, ec);
    if (ec) {
      error = "cannot create " + (root / dir).string() + ": " + ec.message();
      return false;
    }
  }
  for (const cSheetJob& job : SheetJobs())
    if (!art::SaveSheet(job.draw(), job.kind, root / job.path, error)) return false;
  for (const cToolbarJob& job : kToolbars)
    if (!art::SaveToolbarBmp(art::DrawToolbar(job.toolbar), root / job.path, error)) return false;
  for (int n = 0; n < static_cast<int>(std::size(TemplateArt::kWaveFiles)); ++n) {
    const std::filesystem::path path = root / "wave" / TemplateArt::kWaveFiles[n];
    if (!WriteWavFile(path, art::SynthesiseSound(n))) {
      error = "cannot write " + path.string();
      return false;
    }
  }
  for (int n = 0; n < static_cast<int>(std::size(TemplateArt::kBgmFiles)); ++n) {
    const std::filesystem::path path = root / "bgm" / TemplateArt::kBgmFiles[n];
    const std::string tune = art::ComposeTune(n);
    if (!WriteFileAtomic(path, tune.data(), tune.size())) {
      error = "cannot write " + path.string();
      return false;
    }
  }
  return true;
}
