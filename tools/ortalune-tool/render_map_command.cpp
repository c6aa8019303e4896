// render-stage and render-world: the whole map as one picture, drawn by the editor's
// own map drawing with the project's own sheets, without the cursor.

#include <cstdio>
#include <filesystem>
#include <string>

#include "command_table.h"
#include "media/png_writer.h"
#include "project/project_globals.h"
#include "project_here.h"
#include "stage/edit_state.h"
#include "stage/stage_view_draw.h"
#include "stage/world_view_draw.h"

namespace fs = std::filesystem;

namespace {

// The largest map is 200 by 150 cells: 6400 by 4800 pixels, 92 MB at 24 bits.
bool MakeMapPicture(cSurface& picture, int width, int height, MAP_VIEW& view, const char* command) {
  if (width < 1 || height < 1 || picture.Create(width * kMapCellPx, height * kMapCellPx, 24, 0) == 0) {
    std::fprintf(stderr, "%s: cannot make a picture of %d by %d cells\n", command, width, height);
    return false;
  }
  picture.Fill(0);
  view.m_nWidth = picture.m_nWidth;
  view.m_nHeight = picture.m_nHeight;
  view.m_bCursor = 0;
  return true;
}

int SavePicture(const cSurface& picture, const std::string& out, const char* command) {
  std::string error;
  if (!SavePng(picture, out, error)) {
    std::fprintf(stderr, "%s: %s\n", command, error.c_str());
    return kToolFailed;
  }
  std::printf("%s: wrote %s (%d by %d pixels)\n", command, out.c_str(), picture.m_nWidth, picture.m_nHeight);
  return kToolOk;
}

// Output paths are taken from where the command was started, before it enters the
// project; a stage path may also be given relative to the project, as the project
// names it ("data/stg/..."), which a new project still holds in "default".
fs::path StageFileIn(const fs::path& given) {
  std::error_code ec;
  if (fs::exists(given, ec) || given.is_absolute()) return given;
  auto first = given.begin();
  if (first != given.end() && *first == "data" && !fs::is_directory("data", ec)) {
    fs::path inDefault = "default";
    for (auto it = std::next(first); it != given.end(); ++it) inDefault /= *it;
    return inDefault;
  }
  return given;
}

std::string Absolute(const std::string& path) {
  std::error_code ec;
  fs::path absolute = fs::absolute(path, ec);
  return ec ? path : absolute.string();
}

}  // namespace

int RunRenderStage(std::span<const std::string> args) {
  if (args.size() != 2) {
    std::fprintf(stderr, "usage: ortalune-tool render-stage FILE.stg2 OUT.png\n");
    return kToolUsage;
  }
  const std::string out = Absolute(args[1]);
  cProjectDataHere here("render-stage");
  if (!LoadProjectHere(here, "render-stage")) return kToolFailed;
  const fs::path stageFile = StageFileIn(args[0]);
  if (!g_Stage.LoadFile(stageFile)) {
    std::fprintf(stderr, "render-stage: %s does not load as a stage file of this project\n", stageFile.c_str());
    return kToolFailed;
  }
  g_EditState.m_bStageOpen = 1;
  cSurface picture;
  MAP_VIEW view;
  if (!MakeMapPicture(picture, g_Stage.m_nWidth, g_Stage.m_nHeight, view, "render-stage")) return kToolFailed;
  DrawStageView(picture, view);
  return SavePicture(picture, out, "render-stage");
}

int RunRenderWorld(std::span<const std::string> args) {
  if (args.size() != 1) {
    std::fprintf(stderr, "usage: ortalune-tool render-world OUT.png\n");
    return kToolUsage;
  }
  const std::string out = Absolute(args[0]);
  cProjectDataHere here("render-world");
  if (!LoadProjectHere(here, "render-world")) return kToolFailed;
  cSurface picture;
  MAP_VIEW view;
  if (!MakeMapPicture(picture, g_WorldMap.m_nWidth, g_WorldMap.m_nHeight, view, "render-world")) return kToolFailed;
  DrawWorldView(picture, view);
  return SavePicture(picture, out, "render-world");
}
