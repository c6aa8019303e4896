// The chip palette's rules: rows and height from the terrain list, the entry under a
// click, and the status text.

#include <gtest/gtest.h>

#include <tuple>

#include "platform/cp932.h"
#include "project/project_globals.h"
#include "stage/chip_palette.h"
#include "stage/edit_state.h"

namespace {

class ChipPaletteTest : public ::testing::Test {
 protected:
  void SetUp() override {
    ResetProjectGlobals();
    g_EditState = cEditState{};
    g_vecLand.resize(20);
    g_vecLand[4].m_strName = CP932_TEXT("森");
  }
  void TearDown() override {
    g_EditState = cEditState{};
    ResetProjectGlobals();
  }
};

TEST_F(ChipPaletteTest, TheHeightFollowsTheListWithinTheWorkAreaInWholeRows) {
  EXPECT_EQ(ChipPaletteRows(20), 3);
  EXPECT_EQ(ChipPaletteRows(16), 2);
  EXPECT_EQ(ChipPaletteRows(0), 1);
  EXPECT_EQ(ChipPaletteHeight(20, 1000), 3 * 32);
  EXPECT_EQ(ChipPaletteHeight(999, 700), 21 * 32) << "a short screen takes what fits";
  EXPECT_EQ(ChipPaletteHeight(999, 5000), 32 * 32) << "at most 32 rows at a time";
  EXPECT_EQ(ChipPaletteHeight(20, 10), 32) << "never below one row";
}

TEST_F(ChipPaletteTest, AClickChoosesTheEntryUnderItAsABrushOfOneAndTheStatusNamesIt) {
  EXPECT_EQ(ChipAtPixel(5, 5, 0), 0);
  EXPECT_EQ(ChipAtPixel(4 * 32 + 1, 32 + 1, 2), 4 + 3 * 8) << "the rows scrolled away count";
  EXPECT_EQ(ChipAtPixel(400, 0, 0), 7) << "a click right of the chips takes the last column";
  g_EditState.m_nBrushW = g_EditState.m_nBrushH = 3;
  ChooseChip(4);
  EXPECT_EQ(std::make_tuple(g_EditState.m_nSelected, g_EditState.m_aBrushChip[0], g_EditState.m_nBrushW,
                            g_EditState.m_nBrushH),
            std::make_tuple(4, 4u, 1, 1));
  EXPECT_EQ(ChipStatusText(), CP932_TEXT("5 : 森"));
  ChooseChip(30);  // beyond the list: chosen all the same, and no text
  EXPECT_EQ(ChipStatusText(), "");
  EXPECT_FALSE(g_EditState.ChipBrushValid(0)) << "the tools refuse such a brush";
}

}  // namespace
