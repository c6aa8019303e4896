#include "app/app_frame.h"

#include <algorithm>
#include <filesystem>

#include "platform/diagnostics.h"
#include "app/edit_config_load.h"
#include "app/report_startup.h"
#include "app/single_instance.h"
#include "database/random_names.h"
#include "database/skill_csv_columns.h"
#include "kernel/record_vector_file.h"
#include "project/project_globals.h"
#include "project/project_load.h"
#include "project/project_tree.h"
#include "sound/sound_start.h"
#include "stage/edit_state.h"
#include "stage/map_brush.h"
#include "stage/stage_open.h"

namespace fs = std::filesystem;

DLG_MAIN* g_pDlgMain = nullptr;
int g_bStartupDone = 0;
int g_bAppActive = 0;
int bTestPlay = 0;
int g_bFocusRequest = 0;
std::string g_strStartDir;

void cAppShell::StartSound(int bMidiDirectMusic) { ::StartSound(bMidiDirectMusic); }

namespace {

bool KernelGlobals(cStartUpRun&) {
  g_nCurVersion = kCurrentFormatVersion;
  g_bNormalizeOnLoad = 0;
  g_bFileTooNew = 0;
  return true;
}

bool RememberStartDir(cStartUpRun&) {
  std::error_code ec;
  g_strStartDir = fs::current_path(ec).string();
  return true;
}

bool DefaultData(cStartUpRun& run) { return CreateDefaultData(nullptr, run.bFresh) != 0; }

bool Directories(cStartUpRun&) {
  CreateProjectDirectories();
  return true;
}

// Built before any project file is read: the name file box and the CSV columns.
bool Tables(cStartUpRun&) {
  BuildNameFileList(g_vecNameFile);
  SkillColumns();
  return true;
}

bool EditConfig(cStartUpRun&) {
  LoadEditConfig(g_EditConfig);
  return true;
}

// A failed load forgets the last stage, so that the next start does not trip over it.
bool Project(cStartUpRun&) {
  if (LoadProject()) return true;
  ShowProjectLoadFailed();
  g_EditConfig.m_strStagePath.clear();
  g_EditConfig.SaveFile(kEditConfigPath);
  return false;
}

bool LastStage(cStartUpRun&) {
  LoadLastStage(g_EditConfig.m_strStagePath);
  return true;
}

// The keys of the file are rows of the settings record, so this follows the project.
bool SystemIni(cStartUpRun&) {
  LoadSystemIni("System.ini", g_Ini, g_System.m_vecIni);
  return true;
}

bool BattleMode(cStartUpRun& run) { return !run.bFresh || run.shell.BattleModeDialog() != 0; }

bool Sound(cStartUpRun& run) {
  run.shell.StartSound(g_Ini.m_nMidiDirectMusic);
  return true;
}

bool MainWindow(cStartUpRun& run) {
  // The run's edit state starts from its defaults; the stored palette then comes in as a
  // change of palette does, so that the chip palette keeps its own tool and brush.
  g_EditState.Reset();
  if (g_EditState.m_bStageOpen)
    SwapPaletteState(g_EditState, std::clamp(g_EditConfig.m_nPalette, 0, cEditState::kPaletteCount - 1));
  if (run.shell.CreateMainWindow()) return true;
  ReportOutOfMemory();
  return false;
}

bool Done(cStartUpRun&) {
  g_bStartupDone = 1;
  return true;
}

constexpr cStartStep kStartSteps[] = {
    {"kernel globals", KernelGlobals}, {"start directory", RememberStartDir}, {"default data", DefaultData},
    {"directories", Directories},      {"tables", Tables},                    {"edit config", EditConfig},
    {"project", Project},              {"last stage", LastStage},             {"System.ini", SystemIni},
    {"battle mode", BattleMode},       {"sound", Sound},                      {"main window", MainWindow},
    {"done", Done},
};

}  // namespace

std::span<const cStartStep> StartUpSteps() { return kStartSteps; }

bool StartUp(cAppShell& shell) {
  cStartUpRun run{shell};
  for (const cStartStep& step : kStartSteps) {
    shell.OnStartStep(step.name);
    if (!step.run(run)) return false;
  }
  return true;
}

void ShutDown() {
  if (g_bStartupDone) {
    g_EditConfig.m_strStagePath = g_EditState.m_strStagePath;
    g_EditConfig.m_nPalette = g_EditState.m_nPalette;
    g_EditConfig.SaveFile(kEditConfigPath);
  }
  // Every exit, whether or not a name changed.
  SaveVector(g_vecGValInfo, kGValInfoPath);
  EndSound();
}

int RunEditorProcess(cAppShell& shell) {
  std::error_code ec;
  if (!StartReportLog(fs::current_path(ec))) return 0;
  cInstanceLock lock;
  if (!PassSingleInstance(lock)) return 0;
  if (!StartUp(shell)) return 0;
  int result = shell.RunLoop();
  ShutDown();
  return result;
}
