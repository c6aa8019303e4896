#include "platform/file_io.h"

#include "support/test_env.h"

namespace fs = std::filesystem;

using FileIoTest = ProjectDirTest;

TEST_F(FileIoTest, ReadWholeFileReadsRegularFilesOnly) {
  std::vector<unsigned char> out = {9};
  EXPECT_FALSE(ReadWholeFile("missing", out));
  EXPECT_FALSE(ReadWholeFile(m_dir, out));
  EXPECT_EQ(out, Bytes({9}));
  std::vector<unsigned char> big(200000);
  for (std::size_t i = 0; i < big.size(); ++i) big[i] = static_cast<unsigned char>(i * 7);
  WriteBytes("big", big);
  ASSERT_TRUE(ReadWholeFile("big", out));
  EXPECT_EQ(out, big);
}

TEST_F(FileIoTest, AtomicFileReplacesOnlyOnCommit) {
  WriteBytes("target", Bytes({1, 2, 3}));
  {
    cAtomicFile file;
    ASSERT_TRUE(file.Create("target"));
    ASSERT_TRUE(file.Write("new", 3));
    EXPECT_EQ(FileBytes("target"), Bytes({1, 2, 3}));  // nothing visible before the commit
  }  // abandoned
  EXPECT_EQ(FileBytes("target"), Bytes({1, 2, 3}));

  ASSERT_TRUE(WriteFileAtomic("target", "new", 3));
  EXPECT_EQ(FileText("target"), "new");
  EXPECT_EQ(std::distance(fs::directory_iterator(m_dir), fs::directory_iterator()), 1);

  cAtomicFile nowhere;
  EXPECT_FALSE(nowhere.Create(m_dir / "missing_dir" / "x"));
  EXPECT_FALSE(nowhere.Write("x", 1));
  EXPECT_FALSE(nowhere.Commit());
}
