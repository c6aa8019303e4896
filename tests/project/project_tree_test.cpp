// The project tree and the first-run copy of the default data.

#include "project/project_tree.h"

#include <tuple>

#include "platform/cp932.h"
#include "support/test_env.h"

namespace fs = std::filesystem;

using ProjectTreeTest = ProjectDirTest;

// Without data or default the program cannot go on; data that exists is not looked at.
TEST_F(ProjectTreeTest, NoQuestionWithoutDefaultOrWithData) {
  for (bool data : {false, true}) {
    if (data) fs::create_directory("data"), fs::create_directories("default/database");
    int bFresh = -1;
    EXPECT_EQ(CreateDefaultData(nullptr, bFresh), data ? 1 : 0);
    EXPECT_EQ(bFresh, 0);
    EXPECT_TRUE(m_prompt.shown.empty());
  }
  EXPECT_FALSE(fs::exists("data/database"));
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
  EXPECT_EQ(std::tie(m_prompt.shown[0].text, m_prompt.shown[0].caption, m_prompt.shown[0].style),
            std::make_tuple(CP932_TEXT("データが存在しません！デフォルトデータを作成しますか？\n"),
                            CP932_TEXT("デフォルトデータ作成の確認"), unsigned{MB_YESNO}));

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
