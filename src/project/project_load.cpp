#include "project/project_load.h"

#include <array>

#include "app/diagnostics.h"
#include "kernel/record_vector_file.h"
#include "platform/cp932.h"
#include "project/project_globals.h"
#include "project/sheets.h"

namespace {

template <auto& Record>
int LoadRecord(const char* path) {
  return Record.LoadFile(path);
}

// A project older than the test play file kept two of its settings in the editor
// configuration; they move over, and training gets its default.
void MigrateTestPlay(int loaded) {
  if (loaded || g_nFileVersion >= 221) return;
  g_TestPlay.Reset();
  g_TestPlay.m_bAutoFind = g_EditConfig.m_bAutoFindOld;
  g_TestPlay.m_strGamePath = g_EditConfig.m_strGamePathOld;
  g_TestPlay.m_nTraining = 2;
}

int LoadSheetsStep(const char*) {
  if (!LoadSheets()) return 0;
  FoldSheets();
  return 1;
}

// Records join this table as they are built, at their place in the order.
const std::array kLoadSteps = {
    cLoadStep{kTestPlayPath, &LoadRecord<g_TestPlay>, kFailIgnored, &MigrateTestPlay},
    cLoadStep{nullptr, &LoadSheetsStep, kFailStops, nullptr, true},
};

int RunLoadSteps(bool bWithImages) {
  for (const cLoadStep& step : kLoadSteps) {
    if (step.bImages && !bWithImages) continue;
    int loaded = step.load(step.path);
    if (!loaded && step.failRule == kFailStops) {
      if (step.path != nullptr) ReportLoadFailure(step.path);
      return 0;
    }
    if (step.after != nullptr) step.after(loaded);
  }
  return 1;
}

}  // namespace

std::span<const cLoadStep> ProjectLoadSteps() { return kLoadSteps; }

int LoadProject() { return RunLoadSteps(true); }
int LoadProjectRecords() { return RunLoadSteps(false); }

void ReportLoadFailure(const char* storedPath) {
  const std::string& format =
      g_bFileTooNew ? CP932_TEXT("%s の読み込みに失敗しました！\n実行ファイル(.exe)より上位のバージョンのファイルは使用できません。")
                    : CP932_TEXT("%s の読み込みに失敗しました！\nこのファイルが存在しない場合は「default」フォルダから「data」フォルダへ同名のファイルをコピーして下さい。");
  ReportBox(format.c_str(), storedPath);
}

void ShowProjectLoadFailed() {
  ErrorBox(g_bFileTooNew ? CP932_TEXT("プロジェクトのロードに失敗しました！")
                         : CP932_TEXT("プロジェクトのロードに失敗しました！フォルダやファイルの位置や名称が変更された可能性があります！"));
}
