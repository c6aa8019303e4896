// Classes and characters: their streams at old versions, the repairs against the other
// tables, and the game's generation and levelling as the previews run them.

#include <gtest/gtest.h>

#include <numeric>
#include <tuple>

#include "database/chara_kinds.h"
#include "database/chara_random.h"
#include "database/db_test_support.h"
#include "database/record_stream.h"

namespace {

class CharaTest : public DatabaseTest {
 protected:
  void SetUp() override {
    DatabaseTest::SetUp();
    g_System = cSystem();
    SetTables(3, 2, 2);
    g_Database.m_vecPtVal.resize(4);
    g_vecSkillList.assign(2, cSkillList());
    g_vecSkillList[1].m_vecCateg.resize(3);
    g_vecClass.assign(2, cClass());
    SetClassRange(1, 10, 39, 30);
  }
  void TearDown() override {
    SetCharaRandomSource({});
    DatabaseTest::TearDown();
  }

  static void SetClassRange(int row, int init, int final, int levelMax) {
    cClass& cls = g_vecClass[static_cast<std::size_t>(row)];
    std::fill(std::begin(cls.m_anInit), std::end(cls.m_anInit), init);
    std::fill(std::begin(cls.m_anFinal), std::end(cls.m_anFinal), final);
    cls.m_nLevelMax = levelMax;
  }

  // The ally the preview would level: resolved from its class, mean generation.
  static cFriend Leveled(int level) {
    cFriend ally;
    ally.m_nLevel = level;
    ally.FixRefs();
    cFriend source = ally;
    source.ResolveStatus(0);
    ally.Generate(0, 0, 1, 0, source);
    ally.LevelTo(level, 0, 1, 0);
    return ally;
  }

 private:
  cGlobalsGuard<cSystem, VECTOR_CLASS<cSkillList>, VECTOR_CLASS<cClass>> m_guard{g_System, g_vecSkillList, g_vecClass};
};

}  // namespace

TEST_F(CharaTest, ClassStreamsAtOldVersions) {
  cClass cls;
  cls.m_nAtkList = 1, cls.m_nAtkSkill = 5, cls.m_nScale = 300;
  // Three values after the final status that version 35 dropped.
  EXPECT_EQ(StreamAtVersion(cls, 34).size(), StreamAtVersion(cls, 35).size() + 12);

  // The scale came with 36; the slot lists are sized by the repair, not the file.
  cClass fromOld = LoadedFrom<cClass>(StreamAtVersion(cls, 34));
  EXPECT_EQ(std::tie(fromOld.m_nScale, fromOld.m_nAtkSkill, fromOld.m_strName), std::make_tuple(200, 5, cls.m_strName));
  EXPECT_EQ(fromOld.m_vecElemResist.size(), 3u);
  cClass fromV15 = LoadedFrom<cClass>(StreamAtVersion(cls, 15));
  EXPECT_EQ(std::tie(fromV15.m_nAtkList, fromV15.m_nAtkSkill), std::make_tuple(0, 1));
  EXPECT_EQ(fromV15.m_vecOrgSlot.size(), 2u);
}

TEST_F(CharaTest, ClassFollowsTheElementAndListTables) {
  cClass cls;
  cls.m_vecElemResist[2] = 50;
  SetTables(5, 2, 2);
  g_vecSkillList.emplace_back();
  g_vecSkillList[2].m_vecCateg.resize(4);
  cls.FixRefs();
  EXPECT_EQ(cls.m_vecElemResist, (VECTOR_CLASS<std::int32_t>{100, 100, 50, 100, 100}));
  ASSERT_EQ(cls.m_vecvecSense.size(), 3u);
  EXPECT_EQ(cls.m_vecvecSense[2], VECTOR_CLASS<std::int32_t>(4, 0));
  ASSERT_EQ(cls.m_vecOrgSlot.size(), 3u);
  EXPECT_EQ(std::make_tuple(cls.m_vecOrgSlot[2].m_bOwn, cls.m_vecOrgSlot[2].m_vecSlot.size()), std::make_tuple(0, 1u));
  SetTables(2, 2, 2);
  cls.FixRefs();
  EXPECT_EQ(cls.m_vecElemResist, (VECTOR_CLASS<std::int32_t>{100, 100}));
}

TEST_F(CharaTest, EnemyDropsTheFieldsOfVersions33And44Only) {
  cEnemy enemy;
  enemy.m_nTraining = 2;
  EXPECT_EQ(StreamAtVersion(enemy, 33).size(), StreamAtVersion(enemy, 32).size() + 8);
  EXPECT_EQ(StreamAtVersion(enemy, 34).size(), StreamAtVersion(enemy, 32).size() + 8);  // the fixed EX pair
  EXPECT_EQ(StreamAtVersion(enemy, 44).size(), StreamAtVersion(enemy, 43).size() + 4);
  EXPECT_EQ(StreamAtVersion(enemy, 45).size(), StreamAtVersion(enemy, 43).size() + 4);  // m_nState4
  EXPECT_EQ(LoadedFrom<cEnemy>(StreamAtVersion(enemy, 44)).m_nTraining, 0);  // below 104
  EXPECT_EQ(LoadedFrom<cEnemy>(StreamAtVersion(enemy, 104)).m_nTraining, 2);

  cFriend ally;
  ally.m_bRandomSkill = 1, ally.m_bRandomSense = 0, ally.m_bRegenerate = 0, ally.m_nBuiltVersion = 290;
  cFriend old = LoadedFrom<cFriend>(StreamAtVersion(ally, 120));
  EXPECT_EQ(std::tie(old.m_bRegenerate, old.m_bRandomSense, old.m_nBuiltVersion), std::make_tuple(1, 1, 0));
  EXPECT_TRUE(Compare(LoadedFrom<cFriend>(SavedStream(ally)), ally));
}

// A copy of a character (what a page of the database sheet works on) shares the places,
// growth and sense until one side changes them; then only that side changes, in memory
// and in its file.
TEST_F(CharaTest, CopiesShareTheDerivedTablesUntilOneOfThemChangesThem) {
  cFriend ally;
  ally.FixRefs();
  ASSERT_EQ((*ally.m_vecvecSlot)[0].size(), 200u);
  const std::vector<unsigned char> saved = SavedStream(ally);

  cFriend byValue = ally;
  cFriend byWalk;
  byWalk.Copy(ally);
  EXPECT_TRUE(byValue.m_vecvecSlot.SharesWith(ally.m_vecvecSlot));
  EXPECT_TRUE(byWalk.m_vecvecReserve.SharesWith(ally.m_vecvecReserve));
  EXPECT_EQ(SavedStream(byWalk), saved);

  byValue.m_vecvecSlot.Edit()[0][0].m_nSkill = 1;
  EXPECT_FALSE(byValue.m_vecvecSlot.SharesWith(ally.m_vecvecSlot));
  EXPECT_EQ((*ally.m_vecvecSlot)[0][0].m_nSkill, 0);
  EXPECT_EQ(SavedStream(ally), saved);
  EXPECT_NE(SavedStream(byValue), saved);

  // A repair that finds nothing to change copies nothing; one that changes a place
  // changes only its own character's.
  byWalk.FixRefs();
  EXPECT_TRUE(byWalk.m_vecvecSlot.SharesWith(ally.m_vecvecSlot));
  EXPECT_TRUE(byWalk.m_avecGrow.SharesWith(ally.m_avecGrow) && byWalk.m_vecvecSenseAdd.SharesWith(ally.m_vecvecSenseAdd));

  // The growth and sense tables likewise: a preview's generation on a copy gives the
  // copy tables of its own and leaves the original's saved bytes alone.
  cFriend grown = ally;
  grown.m_nLevel = 20;
  cFriend source = grown;
  source.ResolveStatus(0);
  grown.Generate(0, 0, 1, 0, source);
  grown.LevelTo(20, 1, 1, 0);
  EXPECT_FALSE(grown.m_avecGrow.SharesWith(ally.m_avecGrow) || grown.m_vecvecSenseBase.SharesWith(ally.m_vecvecSenseBase));
  EXPECT_GT((*grown.m_avecGrow)[0][1], 0);
  EXPECT_EQ(SavedStream(ally), saved);

  g_vecSkillList[0].m_nFreeSlots = 3;
  byWalk.FixRefs();
  EXPECT_FALSE(byWalk.m_vecvecSlot.SharesWith(ally.m_vecvecSlot));
  EXPECT_EQ((*byWalk.m_vecvecSlot)[0].size(), 3u);
  EXPECT_EQ((*ally.m_vecvecSlot)[0].size(), 200u);

  // A read from a file gives a record places of its own.
  cFriend read = LoadedFrom<cFriend>(SavedStream(byValue));
  EXPECT_EQ((*read.m_vecvecSlot)[0][0].m_nSkill, 1);
  EXPECT_FALSE(read.m_vecvecSlot.SharesWith(byValue.m_vecvecSlot));
}

TEST_F(CharaTest, RepairsReferencesIntoDeletedRows) {
  cFriend ally;
  ally.m_nClass = 7, ally.m_nMoneyVal = 4, ally.m_nCompatiType = 2, ally.m_nLevel = 50;
  ally.m_vecvecReserve.Edit().resize(2);
  ally.m_vecvecReserve.Edit()[1].resize(2);
  ally.m_vecvecReserve.Edit()[1][0].m_nSkill = 1;
  ally.m_vecvecReserve.Edit()[1][1].m_nSkill = 9;  // past the two skill rows
  ally.m_vecLearnSkill.resize(3);
  ally.m_vecLearnSkill[1].m_nList = 2;
  ally.m_vecLearnSkill[2].m_nSkill = 2;
  ally.m_anEquip[0][0] = 5, ally.m_anEquip[0][1] = 3, ally.m_anEquip[1][0] = 1, ally.m_anEquip[1][1] = 150;
  ally.FixRefs();
  EXPECT_EQ(std::tie(ally.m_nClass, ally.m_nMoneyVal, ally.m_nCompatiType, ally.m_nLevelMax, ally.m_nLevel),
            std::make_tuple(1, 1, 0, 30, 30));
  EXPECT_EQ(std::make_tuple((*ally.m_avecGrow)[8].size(), (*ally.m_vecvecSense)[1].size(), ally.m_vecLearnSkill.size()),
            std::make_tuple(30u, 3u, 1u));
  // The reserve keeps its valid skills across a repair; the stale place is erased.
  ASSERT_EQ((*ally.m_vecvecReserve)[1].size(), 199u);
  EXPECT_EQ(std::tie((*ally.m_vecvecReserve)[1][0].m_nSkill, (*ally.m_vecvecReserve)[1][1].m_nSkill), std::make_tuple(1, 0));
  // List 0 has 200 free places.
  EXPECT_EQ(std::tie(ally.m_anEquip[0][0], ally.m_anEquip[0][1], ally.m_anEquip[1][1]), std::make_tuple(0, 3, 150));

  g_vecClass.clear();  // nothing loaded yet: no repair at all
  cFriend untouched;
  untouched.m_nClass = 9;
  untouched.FixRefs();
  EXPECT_EQ(untouched.m_nClass, 9);
}

TEST_F(CharaTest, PlacesFollowTheSlotTypeOfEachList) {
  g_vecSkillList[0].m_nSlotType = kSlotLimited;
  g_vecSkillList[0].m_vecSlot.resize(3);
  g_vecSkillList[0].m_vecSlot[2].m_nEmptySymbol = 7;
  g_vecSkillList[1].m_nSlotType = kSlotNone;
  cEnemy enemy;
  enemy.m_vecvecSlot.Edit().assign(2, VECTOR_CLASS<cAcqSkill>(4));
  enemy.m_vecvecSlot.Edit()[0][0].m_nSkill = 1;
  enemy.m_vecvecSlot.Edit()[1][0].m_nSkill = 1;
  enemy.m_vecvecReserve.Clear();
  enemy.BuildPlaces(0);
  ASSERT_EQ((*enemy.m_vecvecSlot)[0].size(), 3u);
  EXPECT_EQ((*enemy.m_vecvecSlot)[0][0].m_nSkill, 1);  // kept without bClear
  EXPECT_EQ((*enemy.m_vecvecSlot)[0][2].m_Slot.m_nEmptySymbol, 7);
  ASSERT_EQ((*enemy.m_vecvecSlot)[1].size(), 1u);
  EXPECT_EQ((*enemy.m_vecvecSlot)[1][0].m_nSkill, 0);  // type 2 always clears its one place
  EXPECT_TRUE((*enemy.m_vecvecReserve)[0].empty());    // enemies have no reserve

  // The class's own slots replace the list's; an empty own vector keeps the places.
  cOrgSlotList& own = g_vecClass[1].m_vecOrgSlot[0];
  own.m_bOwn = 1;
  own.m_vecSlot.resize(5);
  enemy.BuildPlaces(1);
  EXPECT_EQ((*enemy.m_vecvecSlot)[0].size(), 5u);
  EXPECT_EQ((*enemy.m_vecvecSlot)[0][0].m_nSkill, 0);
  own.m_vecSlot.clear();
  enemy.BuildPlaces(0);
  EXPECT_EQ((*enemy.m_vecvecSlot)[0].size(), 5u);

  g_vecSkillList[0].m_nSlotType = kSlotUnlimited;
  g_vecSkillList[0].m_nFreeSlots = 4;
  enemy.BuildPlaces(0);
  ASSERT_EQ((*enemy.m_vecvecSlot)[0].size(), 4u);
  EXPECT_EQ((*enemy.m_vecvecSlot)[0][3].m_Slot.m_bAnyCateg, 1);
}

TEST_F(CharaTest, GrowthCarriesFractionsFromLevelToLevel) {
  // 150 hundredths a level with fraction 50: +2, +1, +2, +1 ...
  g_System.m_nGrowTimeMin = g_System.m_nGrowTimeMax = 0;
  SetClassRange(1, 10, 22, 9);
  std::vector<int> status;
  for (int level = 1; level <= 9; ++level) status.push_back(Leveled(level).m_aParam[3].m_nBase);
  EXPECT_EQ(status, (std::vector<int>{10, 12, 13, 15, 16, 18, 19, 21, 22}));
  // The line is computed in doubles as the game computes it: for 5 levels its flat
  // value lands just below 1 and a level gains 149, not 150.
  SetClassRange(1, 10, 16, 5);
  EXPECT_EQ((*Leveled(1).m_avecGrow)[3][1], 149);

  // g = 0 on 30 levels: the same 100 at every level.
  SetClassRange(1, 10, 39, 30);
  cFriend flat = Leveled(1);
  EXPECT_EQ(std::tie((*flat.m_avecGrow)[2][0], (*flat.m_avecGrow)[2][1], (*flat.m_avecGrow)[2][29]), std::make_tuple(0, 100, 100));

  // g = 10: the line rises from 0 at level 2 to twice the mean at the limit.
  g_System.m_nGrowTimeMin = g_System.m_nGrowTimeMax = 10;
  cFriend late = Leveled(1);
  EXPECT_EQ(std::tie((*late.m_avecGrow)[2][1], (*late.m_avecGrow)[2][29]), std::make_tuple(0, 200));

  // Limit levels 1 and 2 give no growth; the preview still ends at the final value.
  for (int limit : {1, 2}) {
    SetClassRange(1, 10, 40, limit);
    cFriend small = Leveled(limit);
    EXPECT_EQ(small.m_aParam[2].m_nBase, limit == 1 ? 10 : 40) << limit;
    EXPECT_EQ((*small.m_avecGrow)[2], VECTOR_CLASS<std::int32_t>(static_cast<std::size_t>(limit), 0));
  }
}

TEST_F(CharaTest, LevellingKeepsStatusInsideItsRange) {
  cFriend ally = Leveled(1);
  ally.m_avecGrow.Edit()[5][1] = -80;  // s = 50 - 80 = -30: one point down, fraction 70
  ally.m_aParam[0].m_nBase = 1;
  ally.m_avecGrow.Edit()[0][1] = -500;
  ally.m_nEX = 100;
  ally.GainEX(0);
  // HP never ends a level below 1.
  EXPECT_EQ(std::tie(ally.m_aParam[5].m_nBase, ally.m_anFrac[5], ally.m_aParam[0].m_nBase, ally.m_nLevel),
            std::make_tuple(9, 70, 1, 2));

  // Far more experience than the limit: stops at the limit, reads nothing past it.
  ally.m_nEX = 100000;
  ally.GainEX(0);
  EXPECT_EQ(std::tie(ally.m_nLevel, ally.m_nEX), std::make_tuple(30, 0));
}

TEST_F(CharaTest, SeededGenerationIsRepeatableAndEnds) {
  // Steps of 0 must not stall the distribution.
  g_System.m_bScout = 1, g_System.m_nGrowMin = g_System.m_nGrowMax = 20, g_System.m_nGrowUnit = 0;
  g_System.m_dGrowScout = g_System.m_dSenseScout = 0, g_System.m_bRandomChange = 0;
  g_System.m_nSenseMin = g_System.m_nSenseMax = 10, g_System.m_nSenseUnit = 0;
  std::fill(std::begin(g_System.m_adRate), std::end(g_System.m_adRate), 1.0);
  g_vecSkillList[0].m_vecSkill[1].m_nLearnRate = 100;
  auto generate = [](cChara& c) {
    unsigned seed = 12345;
    SetCharaRandomSource([&seed] { return static_cast<int>((seed = seed * 1103515245u + 12345u) >> 16 & 0x7fff); });
    c.FixRefs();
    cChara source = c;
    source.ResolveStatus(0);
    c.Generate(1, 3, 0, 0, source);
    SetCharaRandomSource({});
  };
  cFriend a, b;
  a.m_bRandomSense = b.m_bRandomSense = 1;
  g_vecClass[1].m_vecvecSense[0][0] = 5;
  generate(a);
  generate(b);
  EXPECT_TRUE(Compare(a, b));
  EXPECT_EQ(a.m_nBuiltVersion, 290);
  auto sum = [](const auto& rows) {
    long long total = 0;
    for (const auto& row : rows) total = std::accumulate(row.begin(), row.end(), total);
    return total;
  };
  EXPECT_EQ(sum(*a.m_avecRandomGrow), 2000);  // the whole total, in hundredths, spread over levels
  EXPECT_EQ(sum(*a.m_vecvecSenseAdd), 10);

  // No status qualifies: random growth is skipped rather than searched for ever.
  std::fill(std::begin(g_System.m_adRate), std::end(g_System.m_adRate), 0.0);
  cEnemy enemy;
  enemy.m_bRandomSense = enemy.m_bRandomSkill = 1;
  generate(enemy);
  EXPECT_EQ((*enemy.m_vecvecSenseAdd)[0][0], 0);  // enemies get no random sense or skills
  EXPECT_TRUE(enemy.m_vecLearnSkill.empty());
}
