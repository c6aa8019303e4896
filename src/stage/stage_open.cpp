#include "stage/stage_open.h"

#include <filesystem>
#include <system_error>

#include "platform/diagnostics.h"
#include "platform/cp932.h"
#include "platform/stored_path.h"
#include "project/project_globals.h"
#include "stage/edit_state.h"

namespace fs = std::filesystem;

namespace {

void SetStageOpen(int open, const std::string& storedPath) {
  g_EditState.m_bStageOpen = open;
  g_EditState.m_strStagePath = storedPath;
}

bool HasDriveLetter(const std::string& path) {
  return path.size() >= 2 && path[1] == ':' && ((path[0] >= 'A' && path[0] <= 'Z') || (path[0] >= 'a' && path[0] <= 'z'));
}

}  // namespace

int LoadDefaultStage() { return g_Stage.LoadFile(g_EditConfig.m_strDefaultStage.c_str()); }

int NewStageFromDefault() {
  if (!LoadDefaultStage()) {
    g_Stage.Init();
    g_Stage.Clamp();
    MSP(CP932_TEXT("デフォルトステージ %s の読み込みに失敗しました！").c_str(), g_EditConfig.m_strDefaultStage.c_str());
  }
  SetStageOpen(1, std::string());
  return 1;
}

int LoadLastStage(const std::string& storedPath) {
  if (storedPath.empty()) {
    SetStageOpen(0, std::string());
    return 0;
  }
  if (!g_Stage.LoadFile(storedPath.c_str())) {
    g_Stage.Init();
    SetStageOpen(0, std::string());
    return 0;
  }
  SetStageOpen(1, storedPath);
  return 1;
}

void ResetStageOpenState() { SetStageOpen(0, std::string()); }

int MakeRelativePath(std::string& storedPath) {
  const bool absolute = !storedPath.empty() && (storedPath[0] == '\\' || storedPath[0] == '/');
  if (HasDriveLetter(storedPath)) return 0;  // a drive of its own: nothing here is relative to it
  if (!absolute) return 1;
  std::error_code ec;
  fs::path cwd = fs::current_path(ec);
  if (ec) return 0;
  fs::path relative = NativePathOf(storedPath).lexically_normal().lexically_relative(cwd.lexically_normal());
  if (relative.empty()) return 0;
  std::string utf8;
  for (const fs::path& component : relative) {
    if (component == "." || component.empty()) continue;
    if (!utf8.empty()) utf8 += '\\';
    utf8 += component.string();
  }
  std::string stored;
  if (utf8.empty() || !Utf8ToCp932(utf8, stored)) return 0;
  storedPath = stored;
  return 1;
}
