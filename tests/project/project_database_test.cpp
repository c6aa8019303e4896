// The database files of a project: the order they load in, what stops the load, and
// what the saves write.

#include "project/project_files.h"

#include <tuple>

#include "platform/cp932.h"
#include "platform/stored_path.h"
#include "project/project_globals.h"
#include "project/project_load.h"
#include "support/test_env.h"

namespace fs = std::filesystem;

namespace {

void SetVersion(const std::string& path, std::uint32_t version) {
  std::vector<unsigned char> bytes = FileBytes(path);
  for (int i = 0; i < 4; ++i) bytes[static_cast<std::size_t>(i)] = static_cast<unsigned char>(version >> (8 * i));
  WriteBytes(path, bytes);
}

class ProjectDatabaseTest : public ProjectDirTest {
 protected:
  void SetUp() override {
    ProjectDirTest::SetUp();
    ResetProjectGlobals();
    ASSERT_EQ(SaveProjectRecords(), 1);
  }
  void TearDown() override {
    ResetProjectGlobals();
    ProjectDirTest::TearDown();
  }

  // Every file whose failure stops the load, with its native path.
  static std::vector<std::pair<std::string, fs::path>> StoppingFiles() {
    std::vector<std::pair<std::string, fs::path>> files;
    for (const cLoadStep& step : ProjectLoadSteps()) {
      if (step.path != nullptr && step.failRule == kFailStops) files.emplace_back(step.path, NativePathOf(step.path));
    }
    for (const char* name : {"CompatiType.dat", "PartyVal.dat", "CharaAnim.dat", "EffectAnim.dat", "Picture.dat",
                             "Back.dat", "Sound.dat", "Bgm.dat", "Help.dat"}) {
      files.emplace_back(std::string("data\\database\\") + name, fs::path("data/database") / name);
    }
    return files;
  }
};

}  // namespace

TEST_F(ProjectDatabaseTest, SavedFilesLoadBackAndNumbersComeFromPositions) {
  for (const auto& [stored, native] : StoppingFiles()) EXPECT_TRUE(fs::exists(native)) << stored;
  g_vecSkillList.resize(2);
  g_vecSkillList[1].m_nID = g_vecSkillList[1].m_vecSkill[1].m_nID = 9;
  ASSERT_EQ(SaveAllDatabaseFiles(), 1);
  g_vecSkillList.clear();

  ASSERT_EQ(LoadProjectRecords(), 1);
  EXPECT_TRUE(m_prompt.shown.empty());
  ASSERT_EQ(g_vecSkillList.size(), 2u);
  EXPECT_EQ(std::tie(g_vecSkillList[1].m_nID, g_vecSkillList[1].m_vecSkill[1].m_nID), std::make_tuple(1, 1));
}

TEST_F(ProjectDatabaseTest, EachMissingOrTooNewFileStopsTheLoadWithItsMessage) {
  const std::vector<std::pair<std::string, fs::path>> files = StoppingFiles();
  EXPECT_EQ(files.size(), 20u);
  for (const auto& [stored, native] : files) {
    const std::vector<unsigned char> bytes = FileBytes(native);
    for (bool tooNew : {false, true}) {
      if (tooNew) SetVersion(native.string(), 291);
      else fs::remove(native);
      m_prompt.shown.clear();
      EXPECT_EQ(LoadProjectRecords(), 0) << stored;
      ASSERT_EQ(m_prompt.shown.size(), 1u) << stored;
      const std::string reason = tooNew ? "実行ファイル(.exe)より上位のバージョンのファイルは使用できません。"
                                        : "このファイルが存在しない場合は「default」フォルダから「data」フォルダへ同名のファイルをコピーして下さい。";
      EXPECT_EQ(m_prompt.shown[0].text, stored + CP932_TEXT(" の読み込みに失敗しました！\n") + Cp932FromLiteral(reason.c_str()));
      WriteBytes(native, bytes);
    }
  }
}

TEST_F(ProjectDatabaseTest, HelpIsReadOnlyFromProjectsThatHaveIt) {
  // An empty music list reads the same at any version; the file read just before
  // Help decides whether Help is read.
  g_Database.m_vecBgm.clear();
  ASSERT_EQ(SaveDatabase(), 1);
  fs::remove("data/database/Help.dat");
  SetVersion("data/database/Bgm.dat", 211);
  g_Database.m_vecHelp.resize(3);
  EXPECT_EQ(LoadDatabase(), 1);
  EXPECT_EQ(g_Database.m_vecHelp.size(), 3u);  // nothing read: the list stays as it was

  SetVersion("data/database/Bgm.dat", 212);
  EXPECT_EQ(LoadDatabase(), 0);
  ASSERT_EQ(m_prompt.shown.size(), 1u);
  EXPECT_NE(m_prompt.shown[0].text.find("Help.dat"), std::string::npos);
}

TEST_F(ProjectDatabaseTest, AFileThatCannotBeWrittenDoesNotStopTheOthers) {
  fs::remove("data/database/Back.dat");
  fs::create_directory("data/database/Back.dat");  // in the way of the save
  fs::remove("data/database/Help.dat");
  EXPECT_EQ(SaveDatabase(), 0);
  EXPECT_TRUE(fs::exists("data/database/Help.dat"));  // written after the one that failed
  EXPECT_TRUE(fs::is_directory("data/database/Back.dat"));
}
