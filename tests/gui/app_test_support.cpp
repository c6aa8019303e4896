#include "gui/app_test_support.h"

#include <filesystem>

#include "app/idle_frame.h"
#include "project/project_globals.h"
#include "sound/sound_start.h"
#include "stage/edit_state.h"

namespace fs = std::filesystem;

void TemplateProjectTest::SetUp() {
  ProjectDirTest::SetUp();
  fs::copy(ORTALUNE_TEMPLATE_DIR, m_dir, fs::copy_options::recursive);
  ResetProjectGlobals();
  g_EditConfig.Init();
  g_TestPlay.Init();
  g_Ini = INI_VALUES{};
  g_EditState = cEditState{};
  g_bStartupDone = 0;
  g_bAppActive = 1;
  bTestPlay = 0;
  g_pDlgMain = nullptr;
  g_IdleClients = cIdleClients{};
}

void TemplateProjectTest::TearDown() {
  g_pDlgMain = nullptr;
  g_IdleClients = cIdleClients{};
  ProjectDirTest::TearDown();
}

int cRecordingShell::BattleModeDialog() {
  ++dialogs;
  iniReadAtDialog = g_Ini.m_bDefaulted != 0;
  soundAtDialog = soundStarted;
  return dialogResult;
}

int cRecordingShell::CreateMainWindow() {
  ++windows;
  return 1;
}

void cRecordingShell::StartSound(int bMidiDirectMusic) {
  StartOfflineSound(bMidiDirectMusic);
  soundStarted = true;
}
