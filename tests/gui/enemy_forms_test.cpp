// The enemy palette's commands, the enemy form and the move rule form, as the author
// uses them: entries copied, cut and pasted, forms confirmed and declined.

#include <QFontMetrics>
#include <QLineEdit>
#include <QListWidget>
#include <QTest>
#include <filesystem>
#include <tuple>

#include "database/ai_labels.h"
#include "editor/dlg_enemy.h"
#include "editor/dlg_enemy_set.h"
#include "editor/dlg_moveai.h"
#include "editor/dlg_moveai_template.h"
#include "forms/input_forms.h"
#include "kernel/record_vector_file.h"
#include "editor/enemy_list.h"
#include "gui/stage_form_support.h"
#include "platform/cp932.h"
#include "stage/enemy_palette.h"
#include "stage/map_edit.h"

namespace {

class EnemyListTest : public StageFormTest {
 protected:
  void SetUp() override {
    StageFormTest::SetUp();
    g_Stage.m_vecPutEnemy.resize(2);
    Put(0, 1, 2, 3);
    m_enemies.m_List.Bind(m_enemies.Init());
    m_enemies.m_List.Box().focus = true;
    m_enemies.m_fnEditEntry = [this] {
      ++m_nForms;
      if (m_bConfirm) g_EditState.m_pEditEnemy->m_nEnemy = 2;
      return m_bConfirm;
    };
  }
  static void Put(int row, int enemy, int x, int y) {
    cPutEnemy& e = g_Stage.m_vecPutEnemy[row];
    e.m_nEnemy = enemy, e.m_nX = x, e.m_nY = y;
  }
  // The user selects a row; then a command of the palette, or else of the list.
  void Select(int row) {
    m_enemies.m_List.Box().curSel = row;
    Run(cEnemyList::kIdList, kNotifySelChange);
    m_enemies.m_List.OnSelChange();
  }
  void Run(unsigned id, unsigned code = kNotifyClicked) {
    if (!m_enemies.Command(id, code)) m_enemies.m_List.HandleKeyCommand(id);
  }
  std::vector<std::tuple<int, int, int>> Entries() const {
    std::vector<std::tuple<int, int, int>> out;
    for (const cPutEnemy& e : g_Stage.m_vecPutEnemy) out.emplace_back(e.m_nEnemy, e.m_nX, e.m_nY);
    return out;
  }

  cEnemyList m_enemies;
  bool m_bConfirm = false;
  int m_nForms = 0;
};

constexpr unsigned kCut = 40030, kCopy = 40031, kPaste = 40032, kInsertKey = 40069, kDeleteItem = 40029;

TEST_F(EnemyListTest, APastedCopyOfAPlacedEntryComesInOffTheMapAndTheOriginalStays) {
  Select(0);
  Run(kCopy);
  EXPECT_FALSE(g_EditState.m_History.CanUndo()) << "a copy changes nothing";
  Select(1);
  Run(kPaste);
  EXPECT_EQ(Entries(), (std::vector<std::tuple<int, int, int>>{{1, 2, 3}, {1, -1, -1}, {0, -1, -1}}));
  EXPECT_TRUE(g_EditState.m_History.CanUndo());
  EXPECT_EQ(g_EditState.m_bStageModified, 1);
  EXPECT_EQ(m_enemies.m_List.Box().rows[1], CP932_TEXT("グ- (--,--) 1-         LV1 "));
}

TEST_F(EnemyListTest, CutAndPasteLeavesTheCellEmptyAndUndoPutsTheEntryBack) {
  Select(0);
  Run(kCut);
  EXPECT_EQ(Entries(), (std::vector<std::tuple<int, int, int>>{{0, -1, -1}}));
  Select(1);  // the blank row: the paste goes to the end
  Run(kPaste);
  EXPECT_EQ(Entries(), (std::vector<std::tuple<int, int, int>>{{0, -1, -1}, {1, -1, -1}}));
  EXPECT_EQ(g_EditState.m_nSelected, 1) << "the pasted entry is the brush";
  Undo();
  Undo();
  EXPECT_EQ(Entries(), (std::vector<std::tuple<int, int, int>>{{1, 2, 3}, {0, -1, -1}}));
}

TEST_F(EnemyListTest, ADeclinedInsertLeavesTheListAsItWasAndAConfirmedOneIsTheBrush) {
  const std::vector<unsigned char> before = SavedBytes(g_Stage);
  Select(1);
  Run(kInsertKey);
  EXPECT_EQ(m_nForms, 1);
  EXPECT_EQ(SavedBytes(g_Stage), before);
  EXPECT_EQ(m_enemies.m_List.m_nCurSel, 1);
  EXPECT_EQ(g_EditState.m_bStageModified, 0);

  m_bConfirm = true;
  Run(cEnemyList::kIdInsert);
  EXPECT_EQ(Entries(), (std::vector<std::tuple<int, int, int>>{{1, 2, 3}, {2, -1, -1}, {0, -1, -1}}));
  EXPECT_EQ(std::tie(g_EditState.m_nSelected, g_EditState.m_nBrushW, g_EditState.m_bStageModified),
            std::make_tuple(1, 1, 1));
  EXPECT_EQ(g_EditState.m_pEditEnemy, nullptr);

  // The blank row has no entry to edit.
  Select(3);
  Run(cEnemyList::kIdEdit);
  EXPECT_EQ(m_nForms, 2);
}

TEST_F(EnemyListTest, TheLimitRefusesAnInsertWithoutAFormAndAPasteAfterItsUndoStep) {
  g_Stage.m_vecPutEnemy.resize(kMaxPutEnemies);
  m_enemies.m_List.Update();
  Select(0);
  Run(kCopy);
  Run(cEnemyList::kIdInsert);
  EXPECT_EQ(std::tie(m_prompt.beeps, m_nForms), std::make_tuple(1, 0));
  Run(kPaste);
  EXPECT_EQ(m_prompt.beeps, 2);
  EXPECT_EQ(g_Stage.m_vecPutEnemy.Count(), kMaxPutEnemies);
  EXPECT_TRUE(g_EditState.m_History.CanUndo());

  // The data count asks, and its undo step brings the lost entries back.
  m_enemies.m_fnAskCount = [](int& count) {
    EXPECT_EQ(count, kMaxPutEnemies);
    count = 1;
    return true;
  };
  Run(kIdListCount);
  EXPECT_EQ(g_Stage.m_vecPutEnemy.Count(), 1);
  Undo();
  EXPECT_EQ(g_Stage.m_vecPutEnemy.Count(), kMaxPutEnemies);
  Select(0);
  Run(kDeleteItem);
  EXPECT_EQ(g_Stage.m_vecPutEnemy.Count(), kMaxPutEnemies - 1);
}

class EnemyFormTest : public StageFormTest {};

TEST_F(EnemyFormTest, OkMakesTheUndoStepBeforeTheEntryTakesExactlyWhatTheFormShows) {
  g_Stage.m_vecPutEnemy.resize(1);
  cPutEnemy& entry = g_Stage.m_vecPutEnemy[0];
  entry.m_nX = 4, entry.m_nY = 5;
  g_EditState.m_pEditEnemy = &entry;

  // Cancel: the stage's bytes stay, whatever was done in the form.
  const std::vector<unsigned char> before = SavedBytes(g_Stage);
  DuringModal([](DLG_CLASS& form) {
    Click(form, DLG_ENEMY_SET::kIdGroup);
    Choose(form, DLG_ENEMY_SET::kIdEnemy, 2);
    Click(form, kIdCancel);
  });
  EXPECT_EQ(RunEnemySet(nullptr), 0);
  EXPECT_EQ(SavedBytes(g_Stage), before);

  DuringModal([](DLG_CLASS& form) {
    // The numbers open with their checks only.
    EXPECT_FALSE(form.GetDlgItem(DLG_ENEMY_SET::kIdGroupNum)->isEnabled());
    Click(form, DLG_ENEMY_SET::kIdGroup);
    EXPECT_TRUE(form.GetDlgItem(DLG_ENEMY_SET::kIdGroupNum)->isEnabled());
    auto* group = static_cast<QLineEdit*>(form.GetDlgItem(DLG_ENEMY_SET::kIdGroupNum));
    group->selectAll();
    QTest::keyClicks(group, "7");
    Choose(form, DLG_ENEMY_SET::kIdEnemy, 2);
    EXPECT_EQ(static_cast<QComboBox*>(form.GetDlgItem(DLG_ENEMY_SET::kIdEnemy))->itemText(0), QStringLiteral("未設定"));
    EXPECT_EQ(static_cast<QComboBox*>(form.GetDlgItem(DLG_ENEMY_SET::kIdEnemy))->itemText(2), QStringLiteral("002 "));
    Click(form, kIdOk);
  });
  EXPECT_EQ(RunEnemySet(nullptr), 1);
  // The character ID shows 1 for the 0 of a new entry, and so stores 1.
  EXPECT_EQ(std::tie(entry.m_bGroup, entry.m_nGroup, entry.m_nEnemy, entry.m_bCharaId, entry.m_nCharaId, entry.m_nX),
            std::make_tuple(1, 7, 2, 0, 1, 4));
  Undo();
  EXPECT_EQ(SavedBytes(g_Stage), before);
}

TEST_F(EnemyFormTest, AnInsertedMoveRuleIsEditedInItsFormAndDeclinedItGoesAgain) {
  cPutEnemy entry;
  g_EditState.m_pEditEnemy = &entry;
  DuringModal([](DLG_CLASS& form) {
    auto& set = static_cast<DLG_ENEMY_SET&>(form);
    DuringModal([](DLG_CLASS& rule) {
      Choose(rule, DLG_MOVEAI::kIdGoal, 7);
      Choose(rule, DLG_MOVEAI::kIdAction, 1);
      Click(rule, kIdOk);
    });
    Click(form, DLG_ENEMY_SET::kIdInsert);
    EXPECT_EQ(set.m_RuleList.Box().rows[0], CP932_TEXT("マップ全範囲内 で 最も近い敵 に 戦闘"));
    DuringModal([](DLG_CLASS& rule) { Click(rule, kIdCancel); });
    Click(form, DLG_ENEMY_SET::kIdInsert);
    EXPECT_EQ(set.m_vecRules.Count(), 1);
    Click(form, kIdOk);
  });
  ASSERT_EQ(RunEnemySet(nullptr), 1);
  ASSERT_EQ(entry.m_vecMoveAI.Count(), 1);
  EXPECT_EQ(std::tie(entry.m_vecMoveAI[0].m_nGoal, entry.m_vecMoveAI[0].m_nAction), std::make_tuple(7, 1));
}

TEST_F(EnemyFormTest, TheDestinationOffersGroupsOfFourAndGreyedOutKeepsItsValue) {
  g_Stage.m_vecGroupPos.resize(3);
  g_Stage.m_vecGroupPos[1].m_vecPos.resize(5);
  g_Stage.m_vecGroupPos[2].m_vecPos.resize(4);
  cMoveAI rule;
  rule.m_nGoal = kGoalNearestDestination, rule.m_nGroup = 2;
  DuringModal([](DLG_CLASS& form) {
    QWidget* destination = form.GetDlgItem(DLG_MOVEAI::kIdGroup);
    EXPECT_EQ(static_cast<QComboBox*>(destination)->count(), 1);
    EXPECT_TRUE(destination->isEnabled());
    Choose(form, DLG_MOVEAI::kIdGoal, 7);
    EXPECT_FALSE(destination->isEnabled());
    // The status block needs both of its switches; the skill its action.
    QWidget* status = form.GetDlgItem(DLG_MOVEAI::kIdStatus);
    EXPECT_FALSE(form.GetDlgItem(DLG_MOVEAI::kIdStatusCond)->isEnabled());
    Click(form, DLG_MOVEAI::kIdCond);
    EXPECT_FALSE(status->isEnabled());
    Click(form, DLG_MOVEAI::kIdStatusCond);
    EXPECT_TRUE(status->isEnabled());
    EXPECT_FALSE(form.GetDlgItem(DLG_MOVEAI::kIdSkill)->isEnabled());
    Choose(form, DLG_MOVEAI::kIdAction, kMoveHeal);
    EXPECT_TRUE(form.GetDlgItem(DLG_MOVEAI::kIdSkill)->isEnabled());
    Click(form, kIdOk);
  });
  ASSERT_EQ(RunMoveAI(rule, nullptr), 1);
  // Combos that show no row (no healing skill, no variable) leave their fields alone.
  EXPECT_EQ(std::tie(rule.m_nGoal, rule.m_nGroup, rule.m_bCond, rule.m_bStatusCond, rule.m_nSkill, rule.m_nVal),
            std::make_tuple(7, 2, 1, 1, 0, 0));
}

TEST_F(EnemyFormTest, ARenamedCommonVariableIsSavedAtOnceAndWithoutOneTheButtonBeeps) {
  std::filesystem::create_directories("data");
  FitCommonVarNames(g_vecGValInfo);
  cMoveAI rule;
  rule.m_bCond = rule.m_bValCond = 1;
  DuringModal([this](DLG_CLASS& form) {
    Click(form, DLG_MOVEAI::kIdRename);
    EXPECT_EQ(m_prompt.beeps, 1) << "no variable is chosen";
    Choose(form, DLG_MOVEAI::kIdVal, 2);
    DuringModal([](DLG_CLASS& input) {
      EXPECT_EQ(input.Title(), "変数名の入力");
      QTest::keyClicks(input.GetDlgItem(cInputForm::kIdInput), "gate");
      Click(input, kIdOk);
    });
    Click(form, DLG_MOVEAI::kIdRename);
    EXPECT_EQ(static_cast<QComboBox*>(form.GetDlgItem(DLG_MOVEAI::kIdVal))->currentText(), QStringLiteral("003 gate"));
    Click(form, kIdCancel);
  });
  EXPECT_EQ(RunMoveAI(rule, nullptr), 0);
  VECTOR_CLASS<cGValInfo> saved;
  ASSERT_EQ(LoadVector(saved, kGValInfoPath), 1);
  EXPECT_EQ(saved[3].m_strName, "gate");
}

TEST_F(EnemyFormTest, ANewTemplateIsNamedInTheTemplateFormAndOffered) {
  std::filesystem::create_directories("data");
  g_vecMoveAITemplate.resize(1);
  g_vecMoveAITemplate[0].m_strName = "old";
  cPutEnemy entry;
  entry.m_vecMoveAI.resize(2);
  g_EditState.m_pEditEnemy = &entry;
  DuringModal([](DLG_CLASS& form) {
    DuringModal([](DLG_CLASS& templates) {
      auto& t = static_cast<DLG_MOVEAITEMPLATE&>(templates);
      EXPECT_EQ(t.m_List.m_nCurSel, 1) << "the new template is selected";
      QTest::keyClicks(templates.GetDlgItem(DLG_MOVEAITEMPLATE::kIdName), "guard");
      Click(templates, DLG_MOVEAITEMPLATE::kIdUp);
      Click(templates, kIdOk);
    });
    Click(form, DLG_ENEMY_SET::kIdNew);
    auto* combo = static_cast<QComboBox*>(form.GetDlgItem(DLG_ENEMY_SET::kIdTemplate));
    EXPECT_EQ(std::make_pair(combo->count(), combo->itemText(0)), std::make_pair(2, QStringLiteral("guard")));
    Click(form, kIdCancel);
  });
  EXPECT_EQ(RunEnemySet(nullptr), 0);
  VECTOR_CLASS<cMoveAITemplate> saved;
  ASSERT_EQ(LoadVector(saved, "data\\MoveAITemplate.dat"), 1);
  ASSERT_EQ(saved.Count(), 2);
  EXPECT_EQ(std::tie(saved[0].m_strName, saved[1].m_strName), std::make_tuple(std::string("guard"), std::string("old")));
  EXPECT_EQ(saved[0].m_vecMoveAI.Count(), 2);
}

TEST_F(EnemyFormTest, ThePaletteListsTheStagesEnemiesInItsFixedPitchRows) {
  g_Stage.m_vecPutEnemy.resize(2);
  g_EditState.m_nListSel = 1;
  DLG_ENEMY palette(nullptr, nullptr, nullptr);
  ASSERT_TRUE(palette.Create());
  auto* list = static_cast<QListWidget*>(palette.GetDlgItem(cEnemyList::kIdList));
  EXPECT_EQ(list->count(), 3);
  EXPECT_EQ(list->currentRow(), 1) << "it opens on the palette's row";
  // Names padded by bytes put the levels of rows alike in one column.
  g_vecEnemy[1].m_strName = CP932_TEXT("スライム");
  g_vecEnemy[2].m_strName = CP932_TEXT("ウルフ");
  for (int i : {0, 1}) g_Stage.m_vecPutEnemy[i].m_nEnemy = i + 1;
  palette.Refresh();
  const QFontMetrics metrics(list->font());
  auto levelAt = [&](int row) {
    const QString text = list->item(row)->text();
    return metrics.horizontalAdvance(text.left(text.indexOf(QStringLiteral("LV"))));
  };
  EXPECT_EQ(levelAt(0), levelAt(1));
  EXPECT_EQ(metrics.horizontalAdvance(QStringLiteral("ウ")), 2 * metrics.horizontalAdvance(QLatin1Char('-')));
  g_Stage.m_vecPutEnemy.clear();
  palette.Refresh();
  EXPECT_EQ(list->count(), 1);
  // Its place is kept for the next time.
  palette.End(0);
  EXPECT_TRUE(g_EditConfig.m_PosEnemy.m_bValid);
}

}  // namespace
