// The start-up and the exit of the editor on a project made from the template.

#include <gtest/gtest.h>
#include <unistd.h>

#include <QComboBox>
#include <QPushButton>
#include <QTimer>
#include <filesystem>
#include <tuple>

#include "app/app_frame.h"
#include "app/single_instance.h"
#include "editor/dlg_battle_mode.h"
#include "gui/app_test_support.h"
#include "kernel/record_vector_file.h"
#include "platform/cp932.h"
#include "project/project_globals.h"
#include "project/project_tree.h"
#include "stage/edit_state.h"

namespace fs = std::filesystem;

namespace {

using AppStartTest = TemplateProjectTest;

TEST_F(AppStartTest, FreshProjectRunsEveryStepInOrderAndAsksTheBattleModeOnce) {
  m_prompt.answers = {IDYES};  // make the data from the default tree
  cRecordingShell first;
  ASSERT_TRUE(StartUp(first));
  EXPECT_EQ(first.steps, (std::vector<std::string>{"kernel globals", "start directory", "default data", "directories",
                                                    "tables", "edit config", "project", "last stage", "System.ini",
                                                    "battle mode", "sound", "main window", "done"}));
  ASSERT_EQ(m_prompt.shown.size(), 1u);
  EXPECT_EQ(m_prompt.shown[0].caption, CP932_TEXT("デフォルトデータ作成の確認"));
  // The template remembers its sample stage.
  EXPECT_EQ(std::tie(first.dialogs, first.iniReadAtDialog, first.soundAtDialog, first.windows, g_bStartupDone,
                     g_EditState.m_bStageOpen),
            std::make_tuple(1, true, false, 1, 1, 1));
  EXPECT_TRUE(fs::is_directory("data/stg") && fs::is_directory("user_data") && fs::is_directory("image/picture"));

  g_EditState.m_nPalette = 2;
  ShutDown();
  cEditConfig saved;
  ASSERT_EQ(saved.LoadFile(kEditConfigPath), 1);
  EXPECT_EQ(std::tie(saved.m_nPalette, saved.m_strStagePath), std::make_tuple(2, g_EditState.m_strStagePath));
  VECTOR_CLASS<cGValInfo> names;
  ASSERT_EQ(LoadVector(names, kGValInfoPath), 1);
  EXPECT_EQ(names.Count(), kCommonVarRows);

  // The next start finds the data: no question, no dialog, the palette comes back.
  g_bStartupDone = 0;
  g_EditState = cEditState{};
  cRecordingShell second;
  ASSERT_TRUE(StartUp(second));
  EXPECT_EQ(std::make_tuple(m_prompt.shown.size(), second.dialogs, g_EditState.m_nPalette), std::make_tuple(1u, 0, 2));
  // The chip palette keeps a run's first brush for when it is chosen again.
  EXPECT_EQ(g_EditState.m_aPaletteState[PALETTE_CHIP][PALSTATE_BRUSH_W], 1);
  ShutDown();
}

TEST_F(AppStartTest, RefusedOrClosedFirstRunEndsBeforeTheWindow) {
  struct Case {
    int answer, dialogResult;
    const char* lastStep;
  };
  for (Case c : {Case{IDNO, 1, "default data"}, Case{IDYES, 0, "battle mode"}}) {
    std::error_code ec;
    fs::remove_all("data", ec);
    m_prompt.answers = {c.answer};
    cRecordingShell shell;
    shell.dialogResult = c.dialogResult;
    EXPECT_FALSE(StartUp(shell));
    EXPECT_EQ(std::tie(shell.steps.back(), shell.windows, g_bStartupDone), std::make_tuple(c.lastStep, 0, 0));
  }
}

TEST_F(AppStartTest, FailedProjectLoadForgetsTheLastStage) {
  fs::create_directories("data");  // exists, so no copy is offered, but holds nothing
  g_EditConfig.m_strStagePath = "data\\stg\\Sample.stg2";
  ASSERT_EQ(g_EditConfig.SaveFile(kEditConfigPath), 1);
  cRecordingShell shell;
  EXPECT_FALSE(StartUp(shell));
  EXPECT_EQ(shell.steps.back(), "project");
  ASSERT_FALSE(m_prompt.shown.empty());
  EXPECT_EQ(m_prompt.shown.back().text,
            CP932_TEXT("プロジェクトのロードに失敗しました！フォルダやファイルの位置や名称が変更された可能性があります！"));
  cEditConfig saved;
  ASSERT_EQ(saved.LoadFile(kEditConfigPath), 1);
  EXPECT_EQ(saved.m_strStagePath, "");
}

TEST_F(AppStartTest, ExitSavesTheConfigurationOnlyAfterACompleteStartButTheNamesAlways) {
  g_bStartupDone = 0;
  fs::create_directories("data");
  ShutDown();
  EXPECT_EQ(FileBytes("e_data/EditConfig.dat"),
            FileBytes(fs::path(ORTALUNE_TEMPLATE_DIR) / "e_data" / "EditConfig.dat"));
  EXPECT_TRUE(fs::exists("data/GValInfo.dat"));
}

TEST_F(AppStartTest, SecondStartAsksAndGoesOnOnlyOnYes) {
  const std::string name = "ortalune-test-" + std::to_string(::getpid());
  cInstanceLock first;
  ASSERT_TRUE(PassSingleInstance(first, name));
  EXPECT_TRUE(m_prompt.shown.empty());
  for (int answer : {IDNO, IDYES}) {
    m_prompt.answers = {answer};
    cInstanceLock second;
    EXPECT_EQ(PassSingleInstance(second, name), answer == IDYES);
  }
  ASSERT_EQ(m_prompt.shown.size(), 2u);
  EXPECT_EQ(m_prompt.shown[0].text, CP932_TEXT("既に起動しています。\n二重起動しますか？  ※非推奨。データの上書き保存に注意！\n"));
  EXPECT_EQ(std::tie(m_prompt.shown[0].caption, m_prompt.shown[0].style),
            std::make_tuple(CP932_TEXT("二重起動"), static_cast<unsigned>(MB_YESNO)));
}

TEST_F(AppStartTest, BattleModeDialogSavesTheChosenModeAndTheTurnModeWithIt) {
  m_prompt.answers = {IDYES};
  int bFresh = 0;
  ASSERT_EQ(CreateDefaultData(nullptr, bFresh), 1);
  ASSERT_EQ(g_System.LoadFile(kSystemPath), 1);
  QTimer::singleShot(0, [] {
    auto* combo = qobject_cast<QComboBox*>(DLG_BATTLEMODE::Live()->GetDlgItem(DLG_BATTLEMODE::kIdMode));
    ASSERT_NE(combo, nullptr);
    EXPECT_EQ(combo->count(), 2);
    combo->setCurrentIndex(1);
    qobject_cast<QPushButton*>(DLG_BATTLEMODE::Live()->GetDlgItem(1006))->click();
  });
  EXPECT_EQ(RunBattleModeDialog(), 1);
  cSystem saved;
  ASSERT_EQ(saved.LoadFile(kSystemPath), 1);
  EXPECT_EQ(std::tie(saved.m_nBattleMode, saved.m_nTurnMode), std::make_tuple(1, 1));
}

}  // namespace
