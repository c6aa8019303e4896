#include "project_here.h"

#include <cstdio>
#include <filesystem>

#include "app/edit_config_load.h"
#include "platform/stored_path.h"
#include "project/project_globals.h"
#include "project/project_load.h"

namespace fs = std::filesystem;

bool LoadProjectIn(const std::string& dir, const char* command) {
  std::error_code ec;
  if (!dir.empty()) fs::current_path(dir, ec);
  if (ec) {
    std::fprintf(stderr, "%s: cannot enter %s: %s\n", command, dir.c_str(), ec.message().c_str());
    return false;
  }
  if (!fs::is_directory(NativePathOf("data"), ec)) {
    if (!fs::is_directory(NativePathOf("default"), ec)) {
      std::fprintf(stderr,
                   "%s: there is neither \"data\" nor \"default\" here: the editor would end without a message\n",
                   command);
      return false;
    }
    std::fprintf(stderr, "%s: \"data\" does not exist yet; reading \"default\" in its place\n", command);
    SetStoredPathAlias("data", "default");
  }
  LoadEditConfig(g_EditConfig, false);
  int loaded = LoadProject();
  SetStoredPathAlias("", "");
  if (!loaded) ShowProjectLoadFailed();
  return loaded != 0;
}
