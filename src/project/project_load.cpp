#include "project/project_load.h"

#include <array>

#include "platform/diagnostics.h"
#include "kernel/record_vector_file.h"
#include "platform/cp932.h"
#include "project/project_files.h"
#include "project/project_globals.h"
#include "project/sheets.h"
#include "stage/stage_open.h"

namespace {

int LoadDatabaseStep(const char*) { return LoadDatabase(); }

// The images that follow are masked with the project's transparent colour.
int PassKeyColour(const char*) {
  g_nKeyColor = KeyColorOf(g_System);
  return 1;
}

void NumberSkillListsAfterLoad(int) { NumberSkillLists(g_vecSkillList); }

constexpr cLoadStep FileStep(const cProjectFile& file, eFailRule rule, void (*after)(int) = nullptr) {
  return {file.path, file.load, rule, after, false, &file};
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

// The default stage is only a starting content; a project may lack it.
int LoadDefaultStageStep(const char*) { return LoadDefaultStage(); }

// A missing palette is no error: one default event stands in for it.
void FallBackOnEventPalette(int loaded) {
  if (!loaded) UseFallbackEventPalette(g_vecEventPlt);
}

int EndWithNoStageOpen(const char*) {
  ResetStageOpenState();
  return 1;
}

const cProjectFile kTestPlayFile = {kTestPlayPath, [](const char* p) { return g_TestPlay.LoadFile(p); }, nullptr,
                                   [](cSerialFile* file) { g_TestPlay.Save(file); }};

const std::array kLoadSteps = {
    FileStep(kGValInfoFile, kFailStops),
    cLoadStep{nullptr, &LoadDatabaseStep, kFailStops, nullptr},
    FileStep(kSystemFile, kFailStops),
    FileStep(kTestPlayFile, kFailIgnored, &MigrateTestPlay),
    cLoadStep{nullptr, &PassKeyColour, kFailStops, nullptr},
    FileStep(kLandFile, kFailStops),
    FileStep(kSkillFile, kFailStops, &NumberSkillListsAfterLoad),
    FileStep(kClassFile, kFailStops),
    FileStep(kFriendFile, kFailStops),
    FileStep(kEnemyFile, kFailStops),
    cLoadStep{nullptr, &LoadDefaultStageStep, kFailIgnored, nullptr},
    FileStep(kMoveAITemplateFile, kFailStops),
    FileStep(kEventPltFile, kFailIgnored, &FallBackOnEventPalette),
    FileStep(kEventActPltFile, kFailStops),
    FileStep(kWorldMapFile, kFailStops),
    FileStep(kStartEventFile, kFailStops),
    cLoadStep{nullptr, &LoadSheetsStep, kFailStops, nullptr, true},
    cLoadStep{nullptr, &EndWithNoStageOpen, kFailStops, nullptr},
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

std::vector<const cProjectFile*> ProjectRecordFiles() {
  std::vector<const cProjectFile*> files;
  for (const cLoadStep& step : kLoadSteps) {
    if (step.load == &LoadDatabaseStep) files.insert(files.end(), DatabaseListFiles().begin(), DatabaseListFiles().end());
    if (step.file != nullptr) files.push_back(step.file);
  }
  return files;
}

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
