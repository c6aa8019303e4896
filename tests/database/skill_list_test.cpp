// Skill lists: migrations, repairs, numbering, and the rules of learning and placing.

#include <tuple>

#include "database/skill_acquisition.h"
#include "database/record_stream.h"
#include "platform/cp932.h"
#include "project/project_globals.h"
#include "support/test_env.h"

namespace {

class SkillListTest : public ProjectDirTest {
 protected:
  void TearDown() override {
    g_vecSkillList.clear();
    ProjectDirTest::TearDown();
  }
};

}  // namespace

TEST_F(SkillListTest, OldScenesMenusAndTestKeysMigrate) {
  cSkillList old;
  old.m_vecScene.clear();
  for (int i = 0; i < 10; ++i) old.m_vecScene.push_back(100 + i);
  cSkillList at76 = LoadedFrom<cSkillList>(StreamAtVersion(old, 76));
  EXPECT_EQ(at76.m_vecScene, (VECTOR_CLASS<std::int32_t>{100, 101, 1, 102, 103, 104, 105, 106, 107, 108, 109}));
  cSkillList at77 = LoadedFrom<cSkillList>(StreamAtVersion(old, 77));
  EXPECT_EQ(at77.m_vecScene.size(), 10u);

  old.m_vecSellCmd.resize(5);
  cSkillList at55 = LoadedFrom<cSkillList>(StreamAtVersion(old, 55));
  EXPECT_EQ(at55.m_vecSellCmd.size(), 2u);  // not in the file: the constructor's two stay
  ASSERT_EQ(at55.m_vecMenuCmd.size(), 6u);
  EXPECT_EQ(at55.m_vecMenuCmd[4].m_strName, CP932_TEXT("忘れる"));
  EXPECT_EQ(LoadedFrom<cSkillList>(StreamAtVersion(old, 56)).m_vecMenuCmd.size(), 7u);

  EXPECT_EQ(LoadedFrom<cSkillList>(StreamAtVersion(old, 40)).m_bF8Stock, 1);
  EXPECT_EQ(LoadedFrom<cSkillList>(StreamAtVersion(old, 41)).m_bF8Stock, 0);

  old.m_vecCateg[0].m_dRate = 2.5;
  EXPECT_EQ(LoadedFrom<cSkillList>(StreamAtVersion(old, 121)).m_vecCateg[0].m_dRate, 1.0);
  EXPECT_EQ(LoadedFrom<cSkillList>(StreamAtVersion(old, 122)).m_vecCateg[0].m_dRate, 2.5);
}

TEST_F(SkillListTest, CategoryReferencesBeyondTheTableAreRepairedOnSave) {
  cSkillList list;
  list.m_vecSkill[1].m_nCateg = 3;
  list.m_vecSlot[0].m_vecAcqCond.resize(5);
  const int conds[] = {0, 4, 5, 0, 9};  // two bad ones next to each other
  for (int i = 0; i < 5; ++i) list.m_vecSlot[0].m_vecAcqCond[static_cast<std::size_t>(i)].m_nCateg = conds[i];
  SavedStream(list);
  ASSERT_EQ(list.m_vecSlot[0].m_vecAcqCond.size(), 2u);
  EXPECT_EQ(std::tie(list.m_vecSkill[1].m_nCateg, list.m_vecSlot[0].m_vecAcqCond[1].m_nCateg), std::make_tuple(0, 0));
}

TEST_F(SkillListTest, NumbersComeFromPositionsNotFromTheFile) {
  g_vecSkillList.resize(2);
  g_vecSkillList[1].m_nID = 7;
  g_vecSkillList[1].m_vecSkill.resize(3);
  g_vecSkillList[1].m_vecSkill[2].m_nID = 0;
  NumberSkillLists(g_vecSkillList);
  EXPECT_EQ(std::tie(g_vecSkillList[1].m_nID, g_vecSkillList[1].m_vecSkill[2].m_nID), std::make_tuple(1, 2));

  cShopSkill shop;
  shop.m_nList = 5, shop.m_nSkill = 2;
  shop.FixRefs();
  EXPECT_EQ(std::tie(shop.m_nList, shop.m_nSkill), std::make_tuple(0, 1));
  shop.m_nList = 1, shop.m_nSkill = 3;
  shop.FixRefs();
  EXPECT_EQ(shop.m_nSkill, 1);
}

namespace {

// A character with one list of two categories, three slots and two reserve places.
struct cTestChara {
  VECTOR_CLASS<VECTOR_CLASS<std::int32_t>> sense{{5, 0}};
  VECTOR_CLASS<VECTOR_CLASS<cAcqSkill>> slots{VECTOR_CLASS<cAcqSkill>(3)};
  VECTOR_CLASS<VECTOR_CLASS<cAcqSkill>> reserve{VECTOR_CLASS<cAcqSkill>(2)};
  int recalcs = 0;
  SKILL_HOLDER holder;
  cTestChara() {
    holder.nClass = 2;
    holder.pSense = &sense;
    holder.pSlots = &slots;
    holder.pReserve = &reserve;
    holder.recalcStatus = [this] { ++recalcs; };
  }
};

void MakeList() {
  g_vecSkillList.resize(1);
  cSkillList& list = g_vecSkillList[0];
  list.m_vecCateg.resize(2);
  list.m_vecSkill.resize(5);
  list.m_vecSkill[1].m_nNeedSense = 3;                      // category 0
  list.m_vecSkill[2].m_nCateg = 1;                          // needs sense 1 in category 1
  list.m_vecSkill[3].m_nLearnClass = 4;                     // another class only
  list.m_vecSkill[4].m_nResourceType = 1, list.m_vecSkill[4].m_nUseLimit = 12;  // counted uses
  list.m_vecSkill[4].m_nNeedSense = 0;
}

}  // namespace

TEST_F(SkillListTest, LearningNeedsSenseAndTheRightClass) {
  MakeList();
  cTestChara c;
  // List, skill, whether sense counts: skill 9 and list 3 are beyond their tables.
  for (auto [list, skill, sense, can] : {std::tuple{0, 0, true, false}, {0, 1, true, true}, {0, 2, true, false},
                                         {0, 2, false, true}, {0, 3, false, false}, {0, 9, false, false}, {3, 1, false, false}})
    EXPECT_EQ(CanLearnSkill(c.holder, list, skill, sense), can) << list << " " << skill << " " << sense;
  c.holder.nClass = 4;
  EXPECT_TRUE(CanLearnSkill(c.holder, 0, 3, false));
}

TEST_F(SkillListTest, PlacesAcceptByCategoryAndDuplicates) {
  MakeList();
  cTestChara c;
  cSlot any;
  cSlot limited;
  limited.m_bAnyCateg = 0;
  EXPECT_TRUE(PlaceAccepts(c.holder, 0, limited, 0, true, true));  // an empty skill always fits
  EXPECT_TRUE(PlaceAccepts(c.holder, 0, any, 1, true, true));
  EXPECT_FALSE(PlaceAccepts(c.holder, 0, limited, 1, true, true));  // no conditions: nothing
  limited.m_vecAcqCond.resize(1);
  EXPECT_TRUE(PlaceAccepts(c.holder, 0, limited, 1, true, true));
  c.reserve[0][1].m_nSkill = 1;
  EXPECT_FALSE(PlaceAccepts(c.holder, 0, any, 1, true, true));
  EXPECT_TRUE(PlaceAccepts(c.holder, 0, any, 1, true, false));
}

TEST_F(SkillListTest, PlacingFillsTheFirstFreeSlotThenTheReserve) {
  MakeList();
  cTestChara c;
  c.slots[0][0].m_nSkill = 1;
  c.slots[0][1].m_Slot.m_bAnyCateg = 0;  // accepts nothing
  EXPECT_TRUE(PlaceSkill(c.holder, 0, 4, true));
  EXPECT_EQ(std::tie(c.slots[0][2].m_nSkill, c.slots[0][2].m_nUses, c.recalcs), std::make_tuple(4, 12, 1));

  EXPECT_FALSE(PlaceSkill(c.holder, 0, 4, true));  // held already
  EXPECT_TRUE(PlaceSkill(c.holder, 0, 1, false));  // duplicates allowed: slots full, so the reserve
  EXPECT_EQ(std::tie(c.reserve[0][0].m_nSkill, c.recalcs), std::make_tuple(1, 1));
  EXPECT_FALSE(PlaceSkill(c.holder, 0, 2, false));  // no sense in category 1
  EXPECT_FALSE(PlaceSkill(c.holder, 0, 0, false));

  c.holder.bEnemy = true;
  EXPECT_FALSE(PlaceSkill(c.holder, 0, 1, false));  // an enemy has no reserve
  EXPECT_EQ(c.reserve[0][1].m_nSkill, 0);
}
