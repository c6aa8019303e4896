// The row texts of the database pages' lists and of the slots.

#include <gtest/gtest.h>

#include "database/class_rows.h"
#include "platform/cp932.h"
#include "project/project_globals.h"

namespace {

class ClassRowsTest : public ::testing::Test {
 protected:
  void SetUp() override {
    ResetProjectGlobals();
    g_vecSkillList.resize(1);
    cSkillList& list = g_vecSkillList[0];
    list.m_strName = CP932_TEXT("武器");
    list.m_vecCateg.resize(2);
    list.m_vecCateg[0].m_strName = CP932_TEXT("剣");
    list.m_vecCateg[1].m_strName = CP932_TEXT("槍");
    list.m_vecSkill.resize(2);
    list.m_vecSkill[1].m_strName = CP932_TEXT("突き");
    list.m_vecSkill[1].m_nCateg = 1;
  }
  void TearDown() override { ResetProjectGlobals(); }
};

TEST_F(ClassRowsTest, ASlotNamesItsCategoriesAndRepairsOneThatIsGone) {
  cSlot slot;
  EXPECT_EQ(SummarySlot(slot, g_vecSkillList[0]), CP932_TEXT("無制限"));
  slot.m_bAnyCateg = 0;
  slot.m_vecAcqCond.resize(2);
  slot.m_vecAcqCond[0].m_nCateg = 1;
  slot.m_vecAcqCond[1].m_nCateg = 5;  // past the list's categories
  EXPECT_EQ(SummarySlot(slot, g_vecSkillList[0]), CP932_TEXT("槍 剣 "));
  EXPECT_EQ(slot.m_vecAcqCond[1].m_nCateg, 0) << "the summary sets it to 0 in the record";

  cOrgSlotList own;  // one limitless slot
  own.m_vecSlot.push_back(slot);
  EXPECT_EQ(OrgSlotRowText(0, own), CP932_TEXT("武器 - 無制限 槍 剣  "));
}

TEST_F(ClassRowsTest, SenseAndValueRowsNameTheirEntries) {
  EXPECT_EQ(SenseRowText(0, VECTOR_CLASS<std::int32_t>{3, 12}), CP932_TEXT("武器 - 剣3 槍12 "));
  EXPECT_EQ(CategValueRowText(0, 1, 40), CP932_TEXT("槍 40"));
  EXPECT_EQ(CategValueRowText(3, 0, 5), " 5") << "a list that is gone names nothing";
}

TEST_F(ClassRowsTest, ASkillToLearnShowsItsLevelCategoryAndName) {
  cLearnSkill learn;
  learn.m_nSkill = 1;
  learn.m_nLevel = 12;
  EXPECT_EQ(LearnSkillRowText(learn), CP932_TEXT("LV12 槍-突き"));
  learn.m_nSkill = 7;  // past the list's skills: no names, and no fault
  EXPECT_EQ(LearnSkillRowText(learn), "LV12 -");
}

}  // namespace
