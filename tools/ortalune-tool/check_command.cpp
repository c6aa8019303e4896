#include <cstdio>
#include <filesystem>

#include "app/edit_config_load.h"
#include "command_table.h"
#include "platform/stored_path.h"
#include "project/project_globals.h"
#include "project/project_load.h"

namespace fs = std::filesystem;

int RunCheck(std::span<const std::string> args) {
  if (args.size() > 1) {
    std::fprintf(stderr, "usage: ortalune-tool check [DIR]\n");
    return kToolUsage;
  }
  std::error_code ec;
  if (!args.empty()) fs::current_path(args[0], ec);
  if (ec) {
    std::fprintf(stderr, "check: cannot enter %s: %s\n", args[0].c_str(), ec.message().c_str());
    return kToolFailed;
  }
  if (!fs::is_directory(NativePathOf("data"), ec)) {
    if (!fs::is_directory(NativePathOf("default"), ec)) {
      std::fprintf(stderr, "check: there is neither \"data\" nor \"default\" here: the editor would end without a message\n");
      return kToolFailed;
    }
    std::fprintf(stderr, "check: \"data\" does not exist yet; checking \"default\" in its place\n");
    SetStoredPathAlias("data", "default");
  }
  LoadEditConfig(g_EditConfig, false);
  int loaded = LoadProject();
  SetStoredPathAlias("", "");
  if (!loaded) {
    ShowProjectLoadFailed();
    return kToolFailed;
  }
  std::printf("check: the project loads\n");
  return kToolOk;
}
