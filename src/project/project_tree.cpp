#include "project/project_tree.h"

#include <filesystem>

#include "platform/diagnostics.h"
#include "platform/cp932.h"
#include "platform/stored_path.h"

namespace fs = std::filesystem;

void CreateProjectDirectories() {
  static const char* const kDirectories[] = {
      "e_data",       "e_image", "user_data",   "data", "data\\database", "data\\stg",     "data\\random_name",
      "csv",          "image",   "image\\back", "image\\picture",         "wave",          "bgm"};
  for (const char* dir : kDirectories) {
    std::error_code ec;
    fs::create_directory(NativePathOf(dir), ec);
  }
}

int CreateDefaultData(void* hWnd, int& bFresh) {
  bFresh = 0;
  std::error_code ec;
  fs::path data = fs::absolute(NativePathOf("data"), ec);
  fs::path source = fs::absolute(NativePathOf("default"), ec);
  if (fs::is_directory(data, ec)) return 1;
  if (!fs::is_directory(source, ec)) return 0;
  int answer = MesBox(hWnd, CP932_TEXT("データが存在しません！デフォルトデータを作成しますか？\n"),
                      CP932_TEXT("デフォルトデータ作成の確認"), MB_YESNO);
  if (answer != IDYES) return 0;
  fs::copy(source, data, fs::copy_options::recursive, ec);
  if (ec) {
    std::error_code ignored;
    fs::remove_all(data, ignored);
    return 0;
  }
  bFresh = 1;
  return 1;
}
