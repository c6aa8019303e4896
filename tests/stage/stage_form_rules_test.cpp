// The rules behind the stage's forms, without a display: the enemy palette's row texts
// and brush, the position group clicks, what the move rule form offers, the move rule
// templates, and what the editor does after the settings and group forms.

#include <tuple>

#include "database/move_ai_templates.h"
#include "platform/cp932.h"
#include "project/project_files.h"
#include "stage/enemy_palette.h"
#include "stage/group_pos_edit.h"
#include "stage/map_edit.h"
#include "stage/move_ai_rows.h"
#include "stage/stage_form_results.h"
#include "stage/stage_test_support.h"

namespace {

class StageFormRulesTest : public StageTest {
 protected:
  cGlobalsGuard<VECTOR_CLASS<cMoveAITemplate>, VECTOR_CLASS<cSkillList>> m_tables{g_vecMoveAITemplate, g_vecSkillList};
};

cPutEnemy Entry(int enemy, int x, int y, int bGroup, int group) {
  cPutEnemy e;
  e.m_nEnemy = enemy, e.m_nX = x, e.m_nY = y, e.m_bGroup = bGroup, e.m_nGroup = group;
  return e;
}

TEST_F(StageFormRulesTest, EnemyRowsPadTheNameByBytesAndShowWhatIsMissing) {
  g_vecEnemy.resize(13);
  g_vecEnemy[12].m_strName = "ABCD";
  g_vecEnemy[12].m_nLevel = 7;
  EXPECT_EQ(PutEnemyRowText(Entry(12, 4, 5, 1, 3)), CP932_TEXT("グ3 (4,5) 12-ABCD     LV7 "));
  EXPECT_EQ(PutEnemyRowText(Entry(12, -1, -1, 0, 5)), CP932_TEXT("グ- (--,--) 12-ABCD     LV7 "));
  // A double-byte name counts two bytes a character.
  g_vecEnemy[12].m_strName = CP932_TEXT("竜");
  EXPECT_EQ(PutEnemyRowText(Entry(12, 4, 5, 1, 3)), CP932_TEXT("グ3 (4,5) 12-竜       LV7 "));
  EXPECT_EQ(PutEnemyRowText(cPutEnemy()), CP932_TEXT("(--,--) 未設定"));
  EXPECT_EQ(PutEnemyRowText(Entry(0, 2, 3, 0, 0)), CP932_TEXT("(2,3) 未設定"));
  EXPECT_EQ(PutEnemyRowText(Entry(40, 2, 3, 0, 0)), CP932_TEXT("(2,3) 未設定")) << "an enemy the table lost";
}

TEST_F(StageFormRulesTest, TheSelectedEnemyRowIsThePensBrushAndTheBlankRowEmptiesIt) {
  g_Stage.m_vecPutEnemy.resize(3);
  ChooseEnemyRow(2);
  EXPECT_EQ(std::tie(g_EditState.m_nListSel, g_EditState.m_nSelected, g_EditState.m_aBrushEnemy[0],
                     g_EditState.m_nBrushW, g_EditState.m_nBrushH),
            std::make_tuple(2, 2, 2, 1, 1));
  ChooseEnemyRow(3);
  EXPECT_EQ(std::tie(g_EditState.m_nListSel, g_EditState.m_nSelected, g_EditState.m_nBrushW, g_EditState.m_nBrushH),
            std::make_tuple(3, -1, 0, 0));
}

TEST_F(StageFormRulesTest, AClickTakesACellOutOfItsGroupAndASecondPutsItBackAtTheEnd) {
  VECTOR_CLASS<cMapPos> cells = {{1, 1}, {2, 2}, {3, 3}};
  ToggleGroupPos(cells, 2, 2);
  EXPECT_EQ(cells, (VECTOR_CLASS<cMapPos>{{1, 1}, {3, 3}}));
  ToggleGroupPos(cells, 2, 2);
  EXPECT_EQ(cells, (VECTOR_CLASS<cMapPos>{{1, 1}, {3, 3}, {2, 2}}));

  MAP_VIEW view;
  view.m_nWidth = 640, view.m_nHeight = 480, view.m_nScrollX = 2;
  int x = -9, y = -9;
  EXPECT_TRUE(GroupCellAt(view, 639, 479, x, y));
  // No test against the map: a 20 by 15 map is smaller than the picture.
  EXPECT_EQ(std::tie(x, y), std::make_tuple(21, 14));
  EXPECT_FALSE(GroupCellAt(view, 640, 5, x, y));
  EXPECT_FALSE(GroupCellAt(view, 5, -1, x, y));
  EXPECT_EQ(std::tie(x, y), std::make_tuple(21, 14)) << "the cursor stays";

  cGroupPos group;
  group.m_strName = "ab", group.m_nCenterX = 3, group.m_nCenterY = 4;
  EXPECT_EQ(GroupPosRowText(group), CP932_TEXT("ab       中心座標(3,4)"));
}

TEST_F(StageFormRulesTest, DestinationsAreGroupsOfFewerThanFivePositionsAndSkillsAreHealingOnes) {
  g_Stage.m_vecGroupPos.resize(4);
  g_Stage.m_vecGroupPos[1].m_vecPos.resize(5);
  g_Stage.m_vecGroupPos[2].m_vecPos.resize(4);
  g_Stage.m_vecGroupPos[2].m_strName = "near";
  const cValueRows groups = DestinationRows();
  EXPECT_EQ(groups.rows, (VECTOR_CLASS<std::string>{"2 near", "3 "}));
  EXPECT_EQ(groups.values, (VECTOR_CLASS<int>{2, 3}));

  g_vecSkillList.resize(1);
  g_vecSkillList[0].m_vecSkill.resize(4);
  for (int i = 0; i < 4; ++i) g_vecSkillList[0].m_vecSkill[i].m_nKind = i == 1 ? kSkillPhysicalAttack : kSkillHeal;
  g_vecSkillList[0].m_vecSkill[3].m_strName = "cure";
  const cValueRows skills = HealSkillRows(0);
  EXPECT_EQ(skills.rows, (VECTOR_CLASS<std::string>{"2 ", "3 cure"})) << "row 0 of a skill table is reserved";
  EXPECT_EQ(skills.values, (VECTOR_CLASS<int>{2, 3}));
  EXPECT_TRUE(HealSkillRows(1).rows.empty());
}

TEST_F(StageFormRulesTest, TemplatesStopAt999AndSayHowMany) {
  std::filesystem::create_directories("data");
  VECTOR_CLASS<cMoveAI> rules(2), none;
  VECTOR_CLASS<cMoveAITemplate> copy;
  g_vecMoveAITemplate.resize(kMaxMoveAITemplates - 1);
  EXPECT_FALSE(StartMoveAITemplate(none, copy)) << "no rules, no template";
  ASSERT_TRUE(StartMoveAITemplate(rules, copy));
  EXPECT_EQ(copy.Count(), kMaxMoveAITemplates);
  EXPECT_EQ(copy.back().m_vecMoveAI.Count(), 2);
  EXPECT_EQ(StoreMoveAITemplates(copy), 1);
  EXPECT_EQ(g_vecMoveAITemplate.Count(), kMaxMoveAITemplates);

  EXPECT_FALSE(StartMoveAITemplate(rules, copy));
  ASSERT_EQ(m_prompt.shown.size(), 1u);
  EXPECT_EQ(m_prompt.shown[0].text, CP932_TEXT("999個までしか保存できません！"));
  VECTOR_CLASS<cMoveAITemplate> saved;
  ASSERT_EQ(LoadVector(saved, kMoveAITemplateFile.path), 1);
  EXPECT_EQ(saved.Count(), kMaxMoveAITemplates);
}

TEST_F(StageFormRulesTest, LoadingATemplateAsksBeforeRulesAreLostAndOverwritingSavesAtOnce) {
  std::filesystem::create_directories("data");
  g_vecMoveAITemplate.resize(1);
  g_vecMoveAITemplate[0].m_strName = "tmpl";
  g_vecMoveAITemplate[0].m_vecMoveAI.resize(3);
  VECTOR_CLASS<cMoveAI> rules(1);
  EXPECT_FALSE(LoadMoveAITemplate(-1, rules));
  EXPECT_EQ(m_prompt.shown.back().text, CP932_TEXT("テンプレートが選択されていません！"));
  m_prompt.answers = {IDNO, IDYES};
  EXPECT_FALSE(LoadMoveAITemplate(0, rules));
  EXPECT_EQ(rules.Count(), 1);
  EXPECT_TRUE(LoadMoveAITemplate(0, rules));
  EXPECT_EQ(rules.Count(), 3);
  EXPECT_EQ(m_prompt.shown.back().caption, CP932_TEXT("移動AIテンプレートの読込"));

  m_prompt.answers = {IDYES};
  rules.resize(2);
  ASSERT_TRUE(OverwriteMoveAITemplate(0, rules));
  EXPECT_EQ(m_prompt.shown.back().text, CP932_TEXT("「tmpl」を上書きします。\nよろしいですか？\n"));
  VECTOR_CLASS<cMoveAITemplate> saved;
  ASSERT_EQ(LoadVector(saved, kMoveAITemplateFile.path), 1);
  EXPECT_EQ(saved[0].m_vecMoveAI.Count(), 2);
}

TEST_F(StageFormRulesTest, ConfirmedSettingsClampEmptyTheHistoryAndMarkTheStageEvenUnchanged) {
  g_EditState.m_bStageOpen = 1;
  PushUndo();
  ASSERT_TRUE(g_EditState.m_History.CanUndo());
  cEndCond line;
  line.m_nFocus = 4, line.m_nFocusX = 64, line.m_nFocusY = 3;
  g_Stage.m_vecWinCond.push_back(line);
  StageSettingsConfirmed();
  EXPECT_FALSE(g_EditState.m_History.CanUndo());
  EXPECT_EQ(g_EditState.m_bStageModified, 1);
  EXPECT_EQ(std::tie(g_Stage.m_vecWinCond[0].m_nFocusX, g_Stage.m_vecWinCond[0].m_nFocusY), std::make_tuple(19, 3));
}

TEST_F(StageFormRulesTest, ConfirmedGroupsLoseTheClicksBeyondTheMapAndKeepTheHistory) {
  g_EditState.m_bStageOpen = 1;
  PushUndo();
  g_Stage.m_vecGroupPos[1].m_vecPos = {{19, 14}, {20, 2}};
  PositionGroupsConfirmed();
  EXPECT_EQ(g_Stage.m_vecGroupPos[1].m_vecPos, (VECTOR_CLASS<cMapPos>{{19, 14}}));
  EXPECT_TRUE(g_EditState.m_History.CanUndo());
  EXPECT_EQ(g_EditState.m_bStageModified, 1);
}

}  // namespace
