#include "app/game_program.h"

#include <string>
#include <unistd.h>

#include "platform/elf_section.h"
#include "platform/stored_path.h"
#include "project/project_globals.h"

namespace fs = std::filesystem;

bool CarriesGameMark(const fs::path& path) {
  std::error_code ec;
  if (!fs::is_regular_file(path, ec) || ::access(path.c_str(), X_OK) != 0) return false;
  // The mark is a C string; what a linker pads behind it is no part of it.
  cElfSection section = ReadElfSection(path, ORTALUNE_GAME_MARK_SECTION, 16);
  return section.bFound && section.contents.substr(0, section.contents.find('\0')) == kGameMark;
}

int FindGameProgram(fs::path& buffer) {
  buffer.clear();
  std::error_code ec;
  if (!g_TestPlay.m_bAutoFind) {
    if (g_TestPlay.m_strGamePath.empty()) return 0;
    fs::path manual = NativePathOf(g_TestPlay.m_strGamePath);
    if (!fs::exists(manual, ec)) return 0;
    buffer = std::move(manual);
    return 1;
  }
  for (fs::directory_iterator it(".", ec), end; !ec && it != end; it.increment(ec)) {
    if (!CarriesGameMark(it->path())) continue;
    buffer = it->path().filename();
    return 1;
  }
  return 0;
}
