#include "app/edit_config_load.h"

#include <filesystem>

#include "platform/diagnostics.h"
#include "platform/cp932.h"
#include "platform/stored_path.h"

void LoadEditConfig(cEditConfig& config, bool bMoveOldFile) {
  if (config.LoadFile(kEditConfigPath)) return;
  std::error_code ec;
  if (std::filesystem::exists(NativePathOf(kEditConfigPath), ec)) {
    ECSP("%s", CP932_TEXT("EditConfig.Load 失敗").c_str());
    return;
  }
  if (!config.LoadFile(kEditConfigOldPath)) {
    ECSP("%s", CP932_TEXT("EditConfig.Load 失敗 (旧パス)").c_str());
    return;
  }
  if (!bMoveOldFile) return;
  // A failed save leaves the old file to be tried again at the next start.
  if (!config.SaveFile(kEditConfigPath)) return;
  if (!std::filesystem::remove(NativePathOf(kEditConfigOldPath), ec)) {
    ECSP("%s", CP932_TEXT("EditConfig.DeleteFile 失敗 (旧パス)").c_str());
  }
}
