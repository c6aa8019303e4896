// The order and the failure rules of the project load.

#include "project/project_load.h"

#include <algorithm>
#include <tuple>

#include "platform/diagnostics.h"
#include "platform/cp932.h"
#include "project/project_globals.h"
#include "support/test_env.h"

namespace fs = std::filesystem;

namespace {

class ProjectLoadTest : public ProjectDirTest {
 protected:
  void SetUp() override {
    ProjectDirTest::SetUp();
    g_EditConfig.Init();
    g_TestPlay.Init();
    fs::create_directories("e_data");
  }
};

}  // namespace

TEST_F(ProjectLoadTest, FailureMessagesNameTheDefaultFolderOrTheVersion) {
  ASSERT_EQ(ReportCreate("Report_Editor.txt"), 1);
  g_bFileTooNew = 0;
  ReportLoadFailure("data\\GValInfo.dat");
  g_bFileTooNew = 1;
  ReportLoadFailure("data\\database\\System.dat");
  ShowProjectLoadFailed();
  g_bFileTooNew = 0;
  ShowProjectLoadFailed();

  ASSERT_EQ(m_prompt.shown.size(), 4u);
  const std::string missing = CP932_TEXT(
      "data\\GValInfo.dat の読み込みに失敗しました！\nこのファイルが存在しない場合は「default」フォルダから「data」フォルダへ同名のファイルをコピーして下さい。");
  const std::string newer = CP932_TEXT(
      "data\\database\\System.dat の読み込みに失敗しました！\n実行ファイル(.exe)より上位のバージョンのファイルは使用できません。");
  EXPECT_EQ(std::tie(m_prompt.shown[0].text, m_prompt.shown[0].caption, m_prompt.shown[1].text, m_prompt.shown[2].text,
                     m_prompt.shown[3].text),
            std::make_tuple(missing, CP932_TEXT("エラー"), newer, CP932_TEXT("プロジェクトのロードに失敗しました！"),
                            CP932_TEXT("プロジェクトのロードに失敗しました！フォルダやファイルの位置や名称が変更された可能性があります！")));
  // The log holds the file messages, each line ended the Windows way.
  std::string crlf;
  for (char c : missing + "\n" + newer + "\n") crlf += c == '\n' ? std::string("\r\n") : std::string(1, c);
  EXPECT_EQ(FileText("Report_Editor.txt"), crlf);
}

TEST_F(ProjectLoadTest, TestPlaySettingsOfAnOldProjectComeFromTheEditorConfiguration) {
  g_EditConfig.m_bAutoFindOld = 0, g_EditConfig.m_strGamePathOld = "Game.bin", g_TestPlay.m_nRandomSkill = 2;

  // The file is missing and the last file opened is older than the test play file.
  g_nFileVersion = 220;
  auto steps = ProjectLoadSteps();
  auto found = std::find_if(steps.begin(), steps.end(),
                            [](const cLoadStep& s) { return s.path != nullptr && std::string(s.path) == "e_data\\Testplay.dat"; });
  ASSERT_NE(found, steps.end());
  const cLoadStep& step = *found;
  EXPECT_EQ(step.failRule, kFailIgnored);
  int loaded = step.load(step.path);
  EXPECT_EQ(loaded, 0);
  step.after(loaded);
  EXPECT_EQ(std::tie(g_TestPlay.m_bAutoFind, g_TestPlay.m_strGamePath, g_TestPlay.m_nRandomSkill, g_TestPlay.m_nTraining),
            std::make_tuple(0, "Game.bin", 0, 2));

  // In a newer project a missing file simply leaves the settings as they were.
  g_TestPlay.Init();
  g_nFileVersion = 221;
  step.after(step.load(step.path));
  EXPECT_EQ(std::tie(g_TestPlay.m_bAutoFind, g_TestPlay.m_strGamePath), std::make_tuple(1, ""));
  EXPECT_TRUE(m_prompt.shown.empty());
}

TEST_F(ProjectLoadTest, TestPlayFileOfEachAge) {
  cTestPlay stored;
  stored.m_bAutoFind = 0, stored.m_strGamePath = "g", stored.m_nSkillLevel = 3;
  ASSERT_EQ(stored.SaveFile("e_data\\Testplay.dat"), 1);
  EXPECT_EQ(FileBytes("e_data/Testplay.dat"),
            Bytes({0x22, 1, 0, 0, 0, 0, 0, 0, 2, 0, 0, 0, 'g', 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 3, 0, 0, 0, 2, 0, 0, 0}));

  // Before 221 the file starts with the growth setting.
  WriteBytes("e_data/Testplay.dat", Bytes({200, 0, 0, 0, 1, 0, 0, 0, 0, 0, 0, 0, 1, 0, 0, 0, 2, 0, 0, 0, 0, 0, 0, 0}));
  cTestPlay old;
  ASSERT_EQ(old.LoadFile("e_data\\Testplay.dat"), 1);
  EXPECT_EQ(std::tie(old.m_bAutoFind, old.m_bNoRandomGrowth, old.m_nRandomSkill, old.m_nSkillLevel, old.m_nTraining),
            std::make_tuple(1, 1, 1, 2, 0));
}
