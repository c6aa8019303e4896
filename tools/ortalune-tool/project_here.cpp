#include "project_here.h"

#include <cstdio>
#include <filesystem>

#include "app/edit_config_load.h"
#include "platform/stored_path.h"
#include "project/project_globals.h"
#include "project/project_load.h"

namespace fs = std::filesystem;

bool EnterProjectDir(const std::string& dir, const char* command) {
  if (dir.empty()) return true;
  std::error_code ec;
  fs::current_path(dir, ec);
  if (!ec) return true;
  std::fprintf(stderr, "%s: cannot enter %s: %s\n", command, dir.c_str(), ec.message().c_str());
  return false;
}

cProjectDataHere::cProjectDataHere(const char* command) {
  std::error_code ec;
  if (fs::is_directory(NativePathOf("data"), ec)) {
    m_bFound = true;
    return;
  }
  if (!fs::is_directory(NativePathOf("default"), ec)) return;
  std::fprintf(stderr, "%s: \"data\" does not exist yet; reading \"default\" in its place\n", command);
  SetStoredPathAlias("data", "default");
  m_bFound = m_bReadsDefault = true;
}

cProjectDataHere::~cProjectDataHere() {
  if (m_bReadsDefault) SetStoredPathAlias("", "");
}

bool LoadProjectHere(const cProjectDataHere& here, const char* command) {
  if (!here.Found()) {
    std::fprintf(stderr,
                 "%s: there is neither \"data\" nor \"default\" here: the editor would end without a message\n",
                 command);
    return false;
  }
  LoadEditConfig(g_EditConfig, false);
  if (LoadProject()) return true;
  ShowProjectLoadFailed();
  return false;
}
