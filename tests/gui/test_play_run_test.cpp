// A test play with the real stand-in game: F5 in the editor starts it on the open
// stage, it asks the editor which stage that is, and its end message ends the test; a
// game that dies without the message leaves every further test refused.

#include <gtest/gtest.h>

#include <QTest>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <filesystem>
#include <unistd.h>

#include "app/app_frame.h"
#include "app/test_play.h"
#include "editor/dlg_chip.h"
#include "editor/dlg_main.h"
#include "editor/editor_shell.h"
#include "editor/view_main.h"
#include "gui/app_test_support.h"
#include "gui/editor_shell_fixture.h"
#include "platform/clock.h"
#include "platform/cp932.h"
#include "project/project_globals.h"
#include "stage/edit_state.h"

namespace fs = std::filesystem;

namespace {

// The game inherits this process's output when it starts; meanwhile that goes to a
// file for the test to read.
class cOutputToFile {
 public:
  explicit cOutputToFile(const char* path) {
    std::fflush(stdout);
    m_saved = ::dup(1);
    const int fd = ::open(path, O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0644);
    ::dup2(fd, 1);
    ::close(fd);
  }
  ~cOutputToFile() {
    std::fflush(stdout);
    ::dup2(m_saved, 1);
    ::close(m_saved);
  }

 private:
  int m_saved;
};

class TestPlayRunTest : public EditorShellTest {
 protected:
  // Any name will do: the editor knows the game by its mark alone.
  void PrepareProject() override { fs::copy_file(ORTALUNE_STANDIN_GAME, "the game"); }
  void TearDown() override {
    ::unsetenv("ORTALUNE_STANDIN_OPTIONS");
    EditorShellTest::TearDown();
    bTestPlay = 0;
  }
  // F5 pressed in `window` with the game's options, its output going to game.txt.
  void PressF5(QWidget* window, const char* options) {
    ::setenv("ORTALUNE_STANDIN_OPTIONS", options, 1);
    cOutputToFile output("game.txt");
    QTest::keyClick(window, Qt::Key_F5);
  }
  static bool GameSaid(const std::string& text) {
    return QTest::qWaitFor([&] { return FileText("game.txt").find(text) != std::string::npos; }, 20000);
  }

};

TEST_F(TestPlayRunTest, TheStandInReadsTheOpenStageAndItsEndMessageEndsTheTest) {
  ASSERT_TRUE(g_EditState.m_bStageOpen);
  g_EditState.m_bStageModified = 1;
  PressF5(m_view->Dlg(), "--no-window");
  EXPECT_EQ(bTestPlay, 1);
  EXPECT_EQ(g_EditState.m_bStageModified, 0);
  ASSERT_TRUE(QTest::qWaitFor([] { return bTestPlay == 0; }, 20000)) << FileText("game.txt");
  ASSERT_TRUE(GameSaid("sent the end message"));
  const std::string said = FileText("game.txt");
  const std::string stage = "stage: " + Cp932ToUtf8Lossy(g_Stage.m_strName) + " (data\\stg\\Sample.stg2)\n" +
                            "size: " + std::to_string(g_Stage.m_nWidth) + " x " + std::to_string(g_Stage.m_nHeight) +
                            "\nenemies: " + std::to_string(g_Stage.m_vecPutEnemy.size()) +
                            "\nevents: " + std::to_string(g_Stage.m_vecEvent.size()) + "\n";
  EXPECT_NE(said.find("game: " + Cp932ToUtf8Lossy(g_System.m_strGameName) + "\n" + stage), std::string::npos) << said;
  EXPECT_TRUE(m_prompt.shown.empty());
}

TEST_F(TestPlayRunTest, AGameThatDiesWithoutTheMessageLeavesFurtherTestsRefused) {
  DLG_CHIP* palette = m_view->Dlg()->Chip();
  ASSERT_NE(palette, nullptr);
  PressF5(palette, "--no-window --no-end-message");
  ASSERT_TRUE(GameSaid("ended without the end message"));
  EXPECT_EQ(bTestPlay, 1);

  g_dwTestPlayStart = GetTickMs() - 3000;
  PressF5(palette, "--no-window");
  ASSERT_EQ(m_prompt.shown.size(), 1u);
  EXPECT_EQ(m_prompt.shown[0].text.substr(0, CP932_TEXT("二重起動はできません！").size()),
            CP932_TEXT("二重起動はできません！"));
  EXPECT_EQ(bTestPlay, 1);
}

}  // namespace
