// The test play command: which program it finds, what it saves before the start, what
// it refuses and says, and how the game's end message ends it.

#include <gtest/gtest.h>

#include <filesystem>
#include <tuple>

#include "app/app_frame.h"
#include "app/game_program.h"
#include "app/stage_commands.h"
#include "app/test_play.h"
#include "platform/clock.h"
#include "platform/cp932.h"
#include "platform/diagnostics.h"
#include "platform/stored_path.h"
#include "project/project_globals.h"
#include "stage/edit_state.h"
#include "stage/map_edit.h"
#include "support/elf_image.h"
#include "support/test_env.h"

namespace fs = std::filesystem;

namespace {

const std::string& NotFound() { return CP932_TEXT("ゲームプログラムが見つかりません！"); }
const std::string& Twice() {
  return CP932_TEXT("二重起動はできません！\n二重起動でないのにこのエラーが出る場合はエディタープログラムとゲームプログ"
                    "ラムのバージョンが合っていない可能性があります。");
}

// A file with the game mark, or without it, executable or not.
void WriteProgram(const fs::path& path, bool marked = true, bool executable = true) {
  WriteBytes(path, ElfBytes({.section = marked ? ".ortalune" : ".text"}));
  fs::permissions(path, executable ? fs::perms::owner_all : fs::perms::owner_read | fs::perms::owner_write);
}

class cFocusHost : public cMapEditHost {
 public:
  void FocusMain() override { ++focused; }
  void UpdateCommands() override { ++updates; }
  int focused = 0, updates = 0;
};

class TestPlayTest : public ProjectDirTest {
 protected:
  void SetUp() override {
    ProjectDirTest::SetUp();
    ResetProjectGlobals();
    fs::create_directories("data/stg");
    g_TestPlay.Init();
    g_EditState = cEditState{};
    g_EditConfig.m_nUndoDepth = 5;
    bTestPlay = 0;
    g_bAppActive = 1;
    SetMapEditHost(&m_host);
    SetGameLauncher([this](const fs::path& program) {
      m_launched.push_back(program);
      return m_bLaunchWorks;
    });
  }
  void TearDown() override {
    SetGameLauncher(nullptr);
    SetMapEditHost(nullptr);
    g_EditState = cEditState{};
    bTestPlay = 0;
    ProjectDirTest::TearDown();
  }
  void OpenStage(const std::string& stored) {
    g_Stage.Init();
    g_Stage.Resize(8, 6);
    g_EditState.m_bStageOpen = 1;
    g_EditState.m_strStagePath = stored;
  }
  std::vector<std::string> Texts() const {
    std::vector<std::string> texts;
    for (const auto& shown : m_prompt.shown) texts.push_back(shown.text);
    return texts;
  }

  cFocusHost m_host;
  std::vector<fs::path> m_launched;
  bool m_bLaunchWorks = true;
};

TEST_F(TestPlayTest, TheManualPathCountsOnlyWhereSomethingExists) {
  g_TestPlay.m_bAutoFind = 0;
  WriteProgram("ignored-because-manual");
  fs::path found = "stale";
  for (const char* stored : {"", "game\\missing"}) {
    g_TestPlay.m_strGamePath = stored;
    EXPECT_EQ(FindGameProgram(found), 0) << stored;
    EXPECT_TRUE(found.empty());
  }
  fs::create_directory("game");
  WriteBytes("game/play", {});  // not even a program: the launch will say so
  g_TestPlay.m_strGamePath = "GAME\\play";
  EXPECT_EQ(FindGameProgram(found), 1) << "names from the home platform ignore case";
  EXPECT_EQ(found, NativePathOf("game\\play"));
}

TEST_F(TestPlayTest, TheSearchPassesOverAnythingUnmarkedAndTakesTheFirstMarkedProgramListed) {
  WriteProgram("plain", false);
  WriteProgram("not-executable", true, false);
  WriteBytes("cut", std::vector<unsigned char>(40, 0x7F));
  fs::permissions("cut", fs::perms::owner_all);
  fs::create_directory("folder.ortalune");
  fs::path found;
  EXPECT_EQ(FindGameProgram(found), 0);
  StartTestPlay();
  EXPECT_EQ(Texts(), std::vector<std::string>{NotFound()});
  EXPECT_EQ(bTestPlay, 0);

  WriteProgram("one");
  WriteProgram("two");
  fs::path first;
  for (const fs::directory_entry& entry : fs::directory_iterator("."))
    if (entry.path().filename() == "one" || entry.path().filename() == "two") {
      first = entry.path().filename();
      break;
    }
  EXPECT_EQ(FindGameProgram(found), 1);
  EXPECT_EQ(found, first);
}

TEST_F(TestPlayTest, WithNoStageOpenNothingIsSavedAndTheGameStarts) {
  WriteProgram("game");
  g_EditState.m_bEventPltModified = 1;
  StartTestPlay();
  EXPECT_EQ(m_launched, std::vector<fs::path>{"game"});
  EXPECT_TRUE(m_prompt.shown.empty());
  EXPECT_FALSE(fs::exists("data/EventPlt.dat"));
  EXPECT_EQ(std::tie(bTestPlay, g_bAppActive, g_EditState.m_bEventPltModified), std::make_tuple(1, 0, 1));
  EXPECT_EQ(g_strTestPlayStage, "");
}

TEST_F(TestPlayTest, AStageWithoutAFileOrThatCannotBeSavedStartsNothing) {
  WriteProgram("game");
  OpenStage("");
  g_EditState.m_bStageModified = 1;
  StartTestPlay();
  OpenStage("data\\gone\\a.stg2");
  g_EditState.m_bStageModified = 1;
  StartTestPlay();
  EXPECT_EQ(Texts(), (std::vector<std::string>{
                         CP932_TEXT("ステージファイルのパスが無効です！\n1度はステージを保存しないと、テストプレイは実行できません！"),
                         CP932_TEXT("ステージファイルのパスが無効です！\n1度ステージを保存する必要があります！")}));
  EXPECT_TRUE(m_launched.empty());
  EXPECT_EQ(std::tie(bTestPlay, g_bAppActive, g_EditState.m_bStageModified), std::make_tuple(0, 1, 1));
  EXPECT_TRUE(m_prompt.fileAsks.empty()) << "a test never asks where to save";
}

TEST_F(TestPlayTest, ALaunchSavesBothClearsTheFlagsAndTheHistoryAndRemembersTheStage) {
  WriteProgram("game");
  OpenStage("data\\stg\\t.stg2");
  PushUndo();
  g_EditState.m_bStageModified = 1;
  g_EditState.m_bEventPltModified = 1;
  g_vecEventPlt.resize(2);
  ASSERT_TRUE(g_EditState.m_History.CanUndo());
  ASSERT_TRUE(RunStageCommand(IDT_TEST_PLAY));

  EXPECT_EQ(m_launched.size(), 1u);
  EXPECT_TRUE(fs::exists("data/stg/t.stg2"));
  EXPECT_TRUE(fs::exists("data/EventPlt.dat"));
  EXPECT_EQ(std::tie(g_EditState.m_bStageModified, g_EditState.m_bEventPltModified), std::make_tuple(0, 0));
  EXPECT_FALSE(g_EditState.m_History.CanUndo());
  EXPECT_GE(m_host.updates, 1) << "undo's button goes grey";
  EXPECT_EQ(g_strTestPlayStage, "data\\stg\\t.stg2");
  m_prompt.answers = {IDCANCEL};
  EXPECT_EQ(AskSave(), 1);
  EXPECT_TRUE(m_prompt.shown.empty()) << "leaving asks nothing afterwards";
}

TEST_F(TestPlayTest, ARepeatedKeyIsAbsorbedAndALaterPressWhileTheGameRunsIsRefused) {
  WriteProgram("game");
  RunStageCommand(IDM_TEST_PLAY_KEY);
  RunStageCommand(IDM_TEST_PLAY_KEY);
  RunStageCommand(IDM_TEST_PLAY);
  EXPECT_EQ(m_launched.size(), 1u);
  EXPECT_TRUE(m_prompt.shown.empty());

  g_dwTestPlayStart = GetTickMs() - 3000;
  RunStageCommand(IDM_TEST_PLAY_KEY);
  EXPECT_EQ(m_launched.size(), 1u);
  EXPECT_EQ(Texts(), std::vector<std::string>{Twice()});
  EXPECT_EQ(bTestPlay, 1);
}

TEST_F(TestPlayTest, AProgramThatWillNotRunIsSaidAndTheEditorStaysIdle) {
  WriteProgram("game");  // marked, but no program this machine can run
  SetGameLauncher(nullptr);
  StartTestPlay();
  ASSERT_EQ(m_prompt.shown.size(), 1u);
  EXPECT_EQ(std::tie(m_prompt.shown[0].text, m_prompt.shown[0].caption),
            std::make_tuple(CP932_TEXT("ゲームプログラムが呼び出せません！"), CP932_TEXT("エラー")));
  EXPECT_EQ(std::tie(bTestPlay, g_bAppActive), std::make_tuple(0, 1));
}

TEST_F(TestPlayTest, OnlyTheEndMessageWithZeroEndsTheTest) {
  ECSetup(1, (m_dir / "EC_Editor.txt").string());
  bTestPlay = 1;
  OnGameEnded({1, "ignored"});
  EXPECT_EQ(std::tie(bTestPlay, m_host.focused), std::make_tuple(1, 0));
  EXPECT_FALSE(fs::exists("EC_Editor.txt"));
  OnGameEnded({0, ""});
  EXPECT_EQ(std::tie(bTestPlay, m_host.focused), std::make_tuple(0, 1));
  EXPECT_EQ(FileText("EC_Editor.txt"), "bTestPlay = FALSE;\r\n");
}

}  // namespace
