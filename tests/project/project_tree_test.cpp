// The project tree and the first-run copy of the default data.

#include "project/project_tree.h"

#include "platform/cp932.h"
#include "support/test_env.h"

namespace fs = std::filesystem;

using ProjectTreeTest = ProjectDirTest;

TEST_F(ProjectTreeTest, EveryStartCreatesTheDirectories) {
  CreateProjectDirectories();
  for (const char* dir : {"e_data", "e_image", "user_data", "data/database", "data/stg", "data/random_name", "csv",
                          "image/back", "image/picture", "wave", "bgm"}) {
    EXPECT_TRUE(fs::is_directory(dir)) << dir;
  }
  EXPECT_FALSE(fs::exists("default"));
  EXPECT_FALSE(fs::exists("data/plt"));
}

TEST_F(ProjectTreeTest, DataThatExistsIsNotLookedAt) {
  fs::create_directory("data");
  fs::create_directories("default/database");
  int bFresh = -1;
  EXPECT_EQ(CreateDefaultData(nullptr, bFresh), 1);
  EXPECT_EQ(bFresh, 0);
  EXPECT_TRUE(m_prompt.shown.empty());
  EXPECT_FALSE(fs::exists("data/database"));
}

TEST_F(ProjectTreeTest, WithoutDataOrDefaultTheProgramCannotGoOn) {
  int bFresh = -1;
  EXPECT_EQ(CreateDefaultData(nullptr, bFresh), 0);
  EXPECT_EQ(bFresh, 0);
  EXPECT_TRUE(m_prompt.shown.empty());
}

TEST_F(ProjectTreeTest, TheDefaultTreeIsCopiedWhenTheUserAgrees) {
  fs::create_directories("default/database");
  WriteBytes("default/database/System.dat", Bytes({1, 2, 3}));
  WriteBytes("default/GValInfo.dat", Bytes({4}));

  int bFresh = -1;
  m_prompt.answers = {IDNO};
  EXPECT_EQ(CreateDefaultData(nullptr, bFresh), 0);
  EXPECT_FALSE(fs::exists("data"));
  ASSERT_EQ(m_prompt.shown.size(), 1u);
  EXPECT_EQ(m_prompt.shown[0].text, CP932_TEXT("データが存在しません！デフォルトデータを作成しますか？\n"));
  EXPECT_EQ(m_prompt.shown[0].caption, CP932_TEXT("デフォルトデータ作成の確認"));
  EXPECT_EQ(m_prompt.shown[0].style, MB_YESNO);

  m_prompt.answers = {IDYES};
  EXPECT_EQ(CreateDefaultData(nullptr, bFresh), 1);
  EXPECT_EQ(bFresh, 1);
  EXPECT_EQ(FileBytes("data/database/System.dat"), Bytes({1, 2, 3}));
  EXPECT_EQ(FileBytes("data/GValInfo.dat"), Bytes({4}));
  EXPECT_TRUE(fs::exists("default/GValInfo.dat"));
}

TEST_F(ProjectTreeTest, AFailedCopyLeavesNoHalfTree) {
  fs::create_directories("default/database");
  WriteBytes("default/a.dat", Bytes({1}));
  fs::create_symlink("nowhere", "default/database/broken.dat");  // cannot be copied
  int bFresh = -1;
  m_prompt.answers = {IDYES};
  EXPECT_EQ(CreateDefaultData(nullptr, bFresh), 0);
  EXPECT_EQ(bFresh, 0);
  EXPECT_FALSE(fs::exists("data"));
}
