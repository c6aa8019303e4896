#include "project/prop_sheet_size.h"

#include "support/test_env.h"

using PropSheetSizeTest = ProjectDirTest;

TEST_F(PropSheetSizeTest, DefaultAndMeasuredRecordsHaveTheirExactBytes) {
  std::filesystem::create_directory("e_data");
  cPropSheetSize size;
  ASSERT_EQ(size.SaveFile(kSheetSizePath), 1);
  std::vector<unsigned char> expected = Bytes({0x22, 1, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 1, 0, 0, 0});
  expected.resize(expected.size() + 8 + 16, 0);
  EXPECT_EQ(FileBytes("e_data/SheetSize.dat"), expected);

  size.m_nOsMajor = 6;
  size.m_nOsMinor = 1;
  size.m_strFontFace = "\x82\x6C\x82\x72";  // full-width "MS"
  size.m_nFontHeight = -12, size.m_dRateX = 1.0, size.m_dRateY = 0.5;
  ASSERT_EQ(size.SaveFile(kSheetSizePath), 1);
  EXPECT_EQ(FileBytes("e_data/SheetSize.dat"),
            Bytes({0x22, 1, 0, 0, 6, 0, 0, 0, 1, 0, 0, 0, 5, 0, 0, 0, 0x82, 0x6C, 0x82, 0x72, 0,
                   0, 0, 0, 0, 0xF4, 0xFF, 0xFF, 0xFF, 0, 0, 0, 0, 0, 0, 0xF0, 0x3F, 0, 0, 0, 0, 0, 0, 0xE0, 0x3F}));

  cPropSheetSize loaded;
  ASSERT_EQ(loaded.LoadFile(kSheetSizePath), 1);
  EXPECT_TRUE(Compare(loaded, size));
}
