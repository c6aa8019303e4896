// ortalune-tool as an author runs it.

#include "app/prop_sheet_size.h"
#include "command_table.h"
#include "support/test_env.h"

namespace {
int Tool(std::vector<std::string> args) {
  testing::internal::CaptureStdout();
  testing::internal::CaptureStderr();
  int status = RunTool(args);
  testing::internal::GetCapturedStdout();
  testing::internal::GetCapturedStderr();
  return status;
}
}  // namespace

using ResaveTest = ProjectDirTest;

TEST_F(ResaveTest, RewritesAnOldFileAtTheCurrentVersion) {
  cPropSheetSize size;
  size.m_nOsMajor = 10;
  ASSERT_EQ(size.SaveFile("SheetSize.dat"), 1);
  std::vector<unsigned char> old = FileBytes("SheetSize.dat");
  old[0] = 36;  // as an old program wrote it
  old[1] = 0;
  WriteBytes("SheetSize.dat", old);

  EXPECT_EQ(Tool({"resave", "SheetSize.dat", "out.dat"}), kToolOk);
  std::vector<unsigned char> expected = old;
  expected[0] = 0x22;
  expected[1] = 1;
  EXPECT_EQ(FileBytes("out.dat"), expected);
  EXPECT_EQ(FileBytes("SheetSize.dat"), old);  // the input stays when OUT is given

  EXPECT_EQ(Tool({"resave", "--type", "sheetsize", "SheetSize.dat"}), kToolOk);
  EXPECT_EQ(FileBytes("SheetSize.dat"), expected);
}

TEST_F(ResaveTest, RefusesWhatItCannotReadAndLeavesTheFileAlone) {
  cPropSheetSize size;
  ASSERT_EQ(size.SaveFile("SheetSize.dat"), 1);
  std::vector<unsigned char> newer = FileBytes("SheetSize.dat");
  newer[0] = 0x23;  // 291
  WriteBytes("SheetSize.dat", newer);
  EXPECT_EQ(Tool({"resave", "SheetSize.dat"}), kToolFailed);
  EXPECT_EQ(FileBytes("SheetSize.dat"), newer);

  std::vector<unsigned char> cut(newer.begin(), newer.begin() + 10);
  cut[0] = 0x22;
  WriteBytes("SheetSize.dat", cut);
  EXPECT_EQ(Tool({"resave", "SheetSize.dat"}), kToolFailed);
  EXPECT_EQ(FileBytes("SheetSize.dat"), cut);

  EXPECT_EQ(Tool({"resave", "missing/SheetSize.dat"}), kToolFailed);
  EXPECT_EQ(Tool({"resave", "Unknown.dat"}), kToolUsage);
  EXPECT_EQ(Tool({"resave", "--type", "Nope", "SheetSize.dat"}), kToolUsage);
  EXPECT_EQ(Tool({"resave"}), kToolUsage);
  EXPECT_EQ(Tool({"frobnicate"}), kToolUsage);
  EXPECT_EQ(Tool({"--help"}), kToolOk);
}
