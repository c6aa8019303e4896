// Battle and move AI: their bytes, the migrations of old rules, reference repair and
// the list texts.

#include <climits>
#include <filesystem>
#include <tuple>

#include "database/ai_summary.h"
#include "database/battle_ai.h"
#include "database/db_test_support.h"
#include "database/move_ai.h"
#include "database/record_stream.h"
#include "platform/cp932.h"
#include "project/project_files.h"

namespace {

class AITest : public ProjectDirTest {
 protected:
  // Two lists; list 0 has a category "剣" and skills 0..2, skill 1 "斬撃" in it.
  void SetUp() override {
    ProjectDirTest::SetUp();
    g_vecSkillList.resize(2);
    cSkillList& list = g_vecSkillList[0];
    list.m_vecCateg.resize(1);
    list.m_vecCateg[0].m_strName = CP932_TEXT("剣");
    list.m_vecSkill.resize(3);
    list.m_vecSkill[1].m_strName = CP932_TEXT("斬撃");
  }
  void TearDown() override {
    g_vecSkillList.clear();
    g_vecMoveAITemplate.clear();
    ProjectDirTest::TearDown();
  }
};

cMoveAI RuleAt(std::uint32_t version, void (*set)(cMoveAI&)) {
  cMoveAI rule;
  set(rule);
  return LoadedFrom<cMoveAI>(StreamAtVersion(rule, version));
}

}  // namespace

TEST_F(AITest, NewRecordsHaveTheirBytesAndTemplatesTheirFile) {
  cBattleAI ai;
  cBattleAICond cond;
  cMoveAI rule;
  cMoveAITemplate templ;
  EXPECT_EQ(SavedStream(ai), cDbStream::File(290).Ints(3, 0).Int(1).Int(1).Int(10).Int(0).Int(0).bytes);
  EXPECT_EQ(SavedStream(cond), cDbStream::File(290).Ints(5, 0).bytes);
  EXPECT_EQ(SavedStream(rule), cDbStream::File(290).Ints(20, 0).Int(1).bytes);
  EXPECT_EQ(SavedStream(templ), cDbStream::File(290).Text("").Text("").Int(0).bytes);

  // The game's latch state goes with a copy but not into the file.
  rule.m_bLatched = 1;
  templ.m_vecMoveAI.push_back(rule);
  templ.m_strName = CP932_TEXT("突撃");
  g_vecMoveAITemplate = {cMoveAITemplate(), templ};
  std::filesystem::create_directory("data");
  ASSERT_EQ(kMoveAITemplateFile.save(kMoveAITemplateFile.path), 1);
  g_vecMoveAITemplate.clear();
  ASSERT_EQ(kMoveAITemplateFile.load(kMoveAITemplateFile.path), 1);
  ASSERT_EQ(g_vecMoveAITemplate.size(), 2u);
  EXPECT_TRUE(Compare(g_vecMoveAITemplate[1], templ));
  cMoveAITemplate copy;
  copy.Copy(templ);
  EXPECT_EQ(copy.m_vecMoveAI[0].m_bLatched - g_vecMoveAITemplate[1].m_vecMoveAI[0].m_bLatched, 1);
}

TEST_F(AITest, GoalsOfOldRulesMoveUpOverTheGoalsInsertedLater) {
  struct Case { std::uint32_t version; int stored, loaded; } cases[] = {
      {47, 5, 7}, {47, 4, 5}, {47, 3, 4}, {47, 2, 2}, {48, 5, 6}, {49, 3, 4}, {50, 5, 5}, {50, 3, 3},
      {47, INT_MAX, INT_MAX}};  // a damaged file's largest number stays
  for (const Case& c : cases) {
    cMoveAI rule;
    rule.m_nGoal = c.stored;
    EXPECT_EQ(LoadedFrom<cMoveAI>(StreamAtVersion(rule, c.version)).m_nGoal, c.loaded) << c.version << " " << c.stored;
  }
}

TEST_F(AITest, FieldsAndTheConditionSwitchFollowTheirVersions) {
  // Before 113 any condition switched the rule's conditions on.
  EXPECT_EQ(RuleAt(100, [](cMoveAI& r) { r.m_bStatusCond = 1; }).m_bCond, 1);
  EXPECT_EQ(RuleAt(100, [](cMoveAI& r) { r.m_nStatus = 1; }).m_bCond, 0);
  EXPECT_EQ(RuleAt(113, [](cMoveAI& r) { r.m_bValCond = 1; }).m_bCond, 0);
  EXPECT_EQ(RuleAt(50, [](cMoveAI& r) { r.m_bMovedCond = 1; }).m_bCond, 0);  // not in the file yet
  cMoveAI at43 = RuleAt(43, [](cMoveAI& r) { r.m_bFriendInRange = 1; r.m_nReserved = 7; r.m_nCondType = 1; });
  EXPECT_EQ(std::tie(at43.m_bFriendInRange, at43.m_bCond, at43.m_nCondType, at43.m_nReserved), std::make_tuple(0, 0, 0, 1));
  EXPECT_EQ(RuleAt(45, [](cMoveAI& r) { r.m_nReserved = 7; }).m_nReserved, 7);

  cBattleAI ai;
  ai.m_bNoEvaluate = 1;
  ai.m_vecCond.resize(2);
  EXPECT_EQ(LoadedFrom<cBattleAI>(StreamAtVersion(ai, 249)).m_bNoEvaluate, 0);
  EXPECT_EQ(LoadedFrom<cBattleAI>(StreamAtVersion(ai, 250)).m_vecCond.size(), 2u);
  cMoveAITemplate templ;
  templ.m_strName = "n", templ.m_strDesc = "d";
  cMoveAITemplate at57 = LoadedFrom<cMoveAITemplate>(StreamAtVersion(templ, 57));
  EXPECT_EQ(at57.m_strName + at57.m_strDesc, "n");
}

TEST_F(AITest, ReferencesBeyondTheirTablesAreRepaired) {
  // List 0 has skills 0..2, list 1 only 0..1.
  struct Case { int list, skill, group, fixedList, fixedSkill; } rules[] = {
      {2, 2, 1000, 0, 2}, {1, 2, -1, 1, 0}, {1, 1, 0, 1, 1}};
  for (const Case& c : rules) {
    cMoveAI rule;
    rule.m_nList = c.list, rule.m_nSkill = c.skill, rule.m_nGroup = c.group;
    SavedStream(rule);
    EXPECT_EQ(rule.m_nList * 100 + rule.m_nSkill * 10 + rule.m_nGroup, c.fixedList * 100 + c.fixedSkill * 10) << c.list;
  }
  // Only skill and quick actions refer to skills.
  struct BattleCase { int action, list, skill, fixedList, fixedSkill; } actions[] = {
      {0, 5, 9, 5, 9}, {1, 5, 2, 0, 2}, {2, 5, 3, 0, 0}, {1, 1, 1, 1, 1}, {1, 1, 2, 1, 0}};
  for (const BattleCase& c : actions) {
    cBattleAI ai;
    ai.m_nAction = c.action, ai.m_nList = c.list, ai.m_nSkill = c.skill;
    ai.FixRefs();
    EXPECT_EQ(ai.m_nList * 100 + ai.m_nSkill, c.fixedList * 100 + c.fixedSkill) << c.action << c.list << c.skill;
  }
  // Before any skill list is loaded nothing is in range, and nothing is read.
  g_vecSkillList.clear();
  cMoveAI early = RuleAt(290, [](cMoveAI& r) { r.m_nList = 3; r.m_nSkill = 2; });
  EXPECT_EQ(early.m_nList + early.m_nSkill, 0);
}

TEST_F(AITest, SummariesNameTheirValues) {
  auto battle = [](int action, int lv, int val, int skill) {
    cBattleAI ai;
    ai.m_nAction = action, ai.m_nPriorityLv = lv, ai.m_nPriorityVal = val, ai.m_nSkill = skill;
    return SummaryBattleAI(ai);
  };
  EXPECT_EQ(battle(0, 2, 30, 1), CP932_TEXT("攻撃 (優先2-30)"));
  EXPECT_EQ(battle(1, 1, 10, 1), CP932_TEXT("スキル 剣-斬撃 (優先1-10)"));
  EXPECT_EQ(battle(2, 9, 100, 1), CP932_TEXT("クイック 剣-斬撃 (優先9-100)"));
  EXPECT_EQ(battle(1, 1, 10, 7), CP932_TEXT("スキル - (優先1-10)"));  // a skill that is gone
  EXPECT_EQ(battle(3, 1, 10, 1), "");

  auto cond = [](int who, int what, int value, int op, int percent) {
    cBattleAICond c;
    c.m_nWho = who, c.m_nWhat = what, c.m_nValue = value, c.m_nOp = op, c.m_bPercent = percent;
    return SummaryBattleAICond(c);
  };
  EXPECT_EQ(cond(0, 0, 50, 3, 0), CP932_TEXT("自分 の HP が 50 以下"));
  EXPECT_EQ(cond(1, 14, 7, 7, 1), CP932_TEXT("相手 の 地形 が 7％ の倍数でない"));
  EXPECT_EQ(cond(2, 15, 1, 8, 0), CP932_TEXT(" の  が 1 "));

  auto move = [](int range, int goal, int action, int moved) {
    cMoveAI r;
    r.m_nRange = range, r.m_nGoal = goal, r.m_nAction = action, r.m_nSkill = 1, r.m_bMovedCond = moved;
    return SummaryMoveAI(r);
  };
  EXPECT_EQ(move(1, 7, 1, 0), CP932_TEXT("行動範囲内 で 最も近い敵 に 戦闘"));
  EXPECT_EQ(move(2, 4, 2, 0), CP932_TEXT("自分＋隣4マス内 で 最もHPが低い味方 に 回復(斬撃)"));
  // The note follows the four conditions, not the master switch.
  EXPECT_EQ(move(0, 10, 0, 1), CP932_TEXT("マップ全範囲内 で 最も近い目的地 に 待機   ※条件あり"));
  EXPECT_EQ(move(0, 0, 3, 1), "");
}
