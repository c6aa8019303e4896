// The ally and enemy pages of the database sheet on the template's project: the two
// preview columns against the game's own computation, the names of other tables as
// the last apply left them, the lists edited through their modal forms, and an apply
// that writes exactly what the pages show.

#include <QComboBox>
#include <QLabel>
#include <QTabWidget>
#include <map>

#include "database/ai_labels.h"
#include "database/ai_summary.h"
#include "database/chara_preview.h"
#include "forms/database/battle_ai_forms.h"
#include "forms/database/db_enemy_page.h"
#include "forms/database/db_friend_page.h"
#include "forms/database/learn_skill_form.h"
#include "gui/database_sheet_fixture.h"
#include "gui/form_probe.h"
#include "kernel/record_vector_file.h"
#include "kernel/serial_file.h"
#include "platform/cp932.h"
#include "project/project_files.h"
#include "project/project_globals.h"

namespace fs = std::filesystem;

namespace {

// A vector as its file holds it.
template <class T>
std::vector<unsigned char> Saved(VECTOR_CLASS<T> rows) {
  SerialFilePtr file = OpenSerialWriteBuffer();
  WriteRecordVector(rows, file.get());
  return file->Bytes();
}

std::string Text(QWidget* w) {
  if (auto* combo = qobject_cast<QComboBox*>(w)) return combo->currentText().toStdString();
  return static_cast<QLabel*>(w)->text().toStdString();
}

// The two columns as a page shows them, status by status.
std::vector<std::string> Columns(DLG_CLASS& page) {
  std::vector<std::string> shown;
  for (unsigned base : {cCharaControls::kGame, cCharaControls::kReference})
    for (int s = 0; s < cChara::kStatusCount; ++s) shown.push_back(Text(page.GetDlgItem(base + s)));
  return shown;
}

std::vector<std::string> Expected(const cChara& row) {
  const CHARA_PREVIEW preview = PreviewChara(row);
  std::vector<std::string> columns;
  for (const auto& column : {preview.anGame, preview.anReference})
    for (int v : column) columns.push_back(preview.bValid ? std::to_string(v) : "");
  return columns;
}

class CharaPagesTest : public DatabaseSheetTest {
 protected:
  // The save the program makes of the records as they stand, without the sheet: what
  // an apply that changes nothing must write again.
  void BeforeOpening() override {
    ASSERT_TRUE(SaveAllDatabaseFiles());
    m_Saved = DatabaseFiles();
    m_vecFriend = g_vecFriend;
    m_vecEnemy = g_vecEnemy;
  }

  Files m_Saved;
  VECTOR_CLASS<cFriend> m_vecFriend;
  VECTOR_CLASS<cEnemy> m_vecEnemy;
};

TEST_F(CharaPagesTest, EachCharacterPageShowsItsRowAndThePreviewFollowsEveryChange) {
  auto* tabs = m_pSheet->m_hWnd->findChild<QTabWidget*>();
  auto* enemy = ShowPage<DLG_DBENEMY>(2);
  EXPECT_EQ(tabs->tabText(2), QStringLiteral("\u3000敵キャラ\u3000"));
  EXPECT_EQ(ProbeOpenForm(*enemy), std::vector<std::string>{});
  EXPECT_EQ(Columns(*enemy), Expected(g_vecEnemy[1])) << "with the enemies' rates";
  auto* page = ShowPage<DLG_DBFRIEND>(1);
  EXPECT_EQ(tabs->tabText(1), QStringLiteral("\u3000味方キャラ\u3000"));
  EXPECT_EQ(ProbeOpenForm(*page), std::vector<std::string>{});
  EXPECT_EQ(ListOf(*page, DLG_DBFRIEND::kList)->count(), g_vecFriend.Count());
  EXPECT_EQ(Text(page->GetDlgItem(cCharaControls::kClass)), "001 剣士");
  EXPECT_EQ(Columns(*page), Expected(g_vecFriend[1]));
  EXPECT_NE(Columns(*page)[0], "");

  // A typed initial value reaches the row, and both columns are computed anew.
  TypeInto(*page, cCharaControls::kInit + 2, "7");
  EXPECT_EQ(page->m_vecWork[1].m_anInit[2], g_vecFriend[1].m_anInit[2] * 10 + 7);
  EXPECT_EQ(Columns(*page), Expected(page->m_vecWork[1]));
  EXPECT_NE(Columns(*page), Expected(g_vecFriend[1]));

  // A row without a class shows nothing.
  page->m_vecWork[2].m_nClass = 0;
  Click(ListOf(*page, DLG_DBFRIEND::kList), 1);
  EXPECT_EQ(Columns(*page), std::vector<std::string>(18, ""));
}

TEST_F(CharaPagesTest, TheNameFileTheGrowthTimeAndTheFixedEXFollowTheirChecks) {
  auto* ally = ShowPage<DLG_DBFRIEND>(1);
  auto* enemy = ShowPage<DLG_DBENEMY>(2);
  const std::pair<DLG_CLASS*, std::pair<unsigned, unsigned>> rules[] = {
      {ally, {cCharaControls::kRandomName, cCharaControls::kNameFile}},
      {ally, {cCharaControls::kRandomGrowth, cCharaControls::kGrowthTime}},
      {enemy, {DLG_DBENEMY::kFixEX, DLG_DBENEMY::kFixEXValue}},
  };
  for (const auto& [page, ids] : rules) {
    auto* check = static_cast<QAbstractButton*>(page->GetDlgItem(ids.first));
    const bool onWhenChecked = ids.first != cCharaControls::kRandomGrowth;  // random growth decides the time itself
    for (int click = 0; click < 2; ++click) {
      EXPECT_EQ(page->GetDlgItem(ids.second)->isEnabled(), check->isChecked() == onWhenChecked) << ids.second;
      check->click();
    }
  }
}

// The pages work on copies of the tables; a character's places, most of its memory,
// stay shared with the table through the page's showing and the sheet's apply.
TEST_F(CharaPagesTest, ThePagesAndTheApplyShareTheCharactersPlacesWithTheTables) {
  auto* page = ShowPage<DLG_DBFRIEND>(1);
  ASSERT_GE(g_vecFriend.Count(), 2);
  EXPECT_TRUE(page->m_vecWork[1].m_vecvecSlot.SharesWith(g_vecFriend[1].m_vecvecSlot));
  EXPECT_TRUE(page->m_vecWork[1].m_avecGrow.SharesWith(g_vecFriend[1].m_avecGrow));
  SheetButton("適用")->click();
  EXPECT_TRUE(page->m_vecWork[1].m_vecvecSlot.SharesWith(g_vecFriend[1].m_vecvecSlot));

  // The rows "ﾃﾞｰﾀ数" adds are copies of one default character, which share its places.
  const int rows = page->m_List.RowCount();
  AnswerNumber(rows + 2);
  page->SendCommand(DLG_DBFRIEND::kIdCount, kNotifyClicked);
  ASSERT_EQ(page->m_vecWork.Count(), rows + 3);
  const cFriend& added = page->m_vecWork[static_cast<std::size_t>(rows + 1)];
  EXPECT_TRUE(added.m_vecvecSlot.SharesWith(page->m_vecWork[static_cast<std::size_t>(rows + 2)].m_vecvecSlot));
  EXPECT_TRUE(Compare(added, cFriend()));
}

TEST_F(CharaPagesTest, ARenamedClassShowsUnderItsOldNameUntilTheSheetIsApplied) {
  TypeClassName("X");
  auto* page = ShowPage<DLG_DBFRIEND>(1);
  EXPECT_EQ(Text(page->GetDlgItem(cCharaControls::kClass)), "001 剣士");
  SheetButton("適用")->click();
  ShowPage<DLG_DBCLASS>(0);
  ShowPage<DLG_DBFRIEND>(1);
  EXPECT_EQ(Text(page->GetDlgItem(cCharaControls::kClass)), "001 剣士X");
}

TEST_F(CharaPagesTest, ASkillToLearnIsInsertedThroughItsFormAndCancelTakesItOutAgain) {
  // A second skill list, for the pair of boxes to move between.
  cSkillList& extra = g_vecSkillList.emplace_back();
  extra.m_strName = CP932_TEXT("秘術");
  extra.m_vecSkill.resize(3);
  extra.m_vecSkill[1].m_strName = CP932_TEXT("一");
  extra.m_vecSkill[2].m_strName = CP932_TEXT("二");
  auto* page = ShowPage<DLG_DBFRIEND>(1);
  QListWidget* learn = ListOf(*page, DLG_DBFRIEND::kLearn);
  const VECTOR_CLASS<cLearnSkill> before = page->m_vecWork[1].m_vecLearnSkill;
  ASSERT_GE(before.Count(), 2);
  const std::vector<unsigned char> table = Saved(g_vecFriend);

  Click(learn, 1);
  WhenModal([](DLG_CLASS& form) { form.SendCommand(kIdCancel, kNotifyClicked); });
  page->SendCommand(DLG_DBFRIEND::kLearnInsert, kNotifyClicked);
  EXPECT_EQ(Saved(page->m_vecWork[1].m_vecLearnSkill), Saved(before));
  EXPECT_EQ(learn->count(), before.Count() + 1);

  // The list box moves the skill box to the first skill of the chosen list.
  WhenModal([](DLG_CLASS& form) {
    auto* lists = static_cast<QComboBox*>(form.GetDlgItem(DLG_LEARNSKILL::kList));
    lists->setCurrentIndex(1);
    form.SendCommand(DLG_LEARNSKILL::kList, kNotifySelChange);
    EXPECT_EQ(Text(form.GetDlgItem(DLG_LEARNSKILL::kSkill)), "一");
    TypeInto(form, DLG_LEARNSKILL::kLevel, "2");
    form.SendCommand(kIdOk, kNotifyClicked);
  });
  page->SendCommand(DLG_DBFRIEND::kLearnInsert, kNotifyClicked);
  const VECTOR_CLASS<cLearnSkill>& rows = page->m_vecWork[1].m_vecLearnSkill;
  ASSERT_EQ(rows.Count(), before.Count() + 1);
  EXPECT_EQ(rows[1].m_nList, 1);
  EXPECT_EQ(rows[1].m_nSkill, 1);
  EXPECT_EQ(rows[1].m_nLevel, 12) << "the level's 1 and the typed 2";
  EXPECT_EQ(learn->item(1)->text().toStdString(), "LV12 -一");
  EXPECT_EQ(Saved(g_vecFriend), table) << "the table waits for the apply";

  // The list's own Delete key reaches the row at once, and the page keeps its other
  // edits: another row and back show the inserted skill, without the first.
  VECTOR_CLASS<cLearnSkill> expected = rows;
  expected.erase(expected.begin());
  m_pSheet->m_hWnd->activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(m_pSheet->m_hWnd));
  learn->setFocus();
  Click(learn, 0);
  page->SendCommand(kListIdSets[kListSecondFree].aKey[kListDelete], kNotifyClicked);
  Click(ListOf(*page, DLG_DBFRIEND::kList), 1);
  Click(ListOf(*page, DLG_DBFRIEND::kList), 0);
  EXPECT_EQ(Saved(page->m_vecWork[1].m_vecLearnSkill), Saved(expected));
}

TEST_F(CharaPagesTest, ABattleAIInsertedAndCancelledLeavesTheListAsItWas) {
  auto* page = ShowPage<DLG_DBENEMY>(2);
  Click(ListOf(*page, DLG_DBENEMY::kAI), 0);
  const std::vector<unsigned char> before = Saved(page->m_vecWork[1].m_vecBattleAI);
  WhenModal([](DLG_CLASS& form) {
    // The skill boxes wait for an action that uses a skill.
    EXPECT_FALSE(form.GetDlgItem(DLG_BATTLEAI::kSkill)->isEnabled());
    static_cast<QComboBox*>(form.GetDlgItem(DLG_BATTLEAI::kAction))->setCurrentIndex(kAISkill);
    form.SendCommand(DLG_BATTLEAI::kAction, kNotifySelChange);
    EXPECT_TRUE(form.GetDlgItem(DLG_BATTLEAI::kSkill)->isEnabled());
    form.SendCommand(kIdCancel, kNotifyClicked);
  });
  page->SendCommand(DLG_DBENEMY::kAIInsert, kNotifyClicked);
  EXPECT_EQ(Saved(page->m_vecWork[1].m_vecBattleAI), before);
  EXPECT_EQ(ListOf(*page, DLG_DBENEMY::kAI)->count(), g_vecEnemy[1].m_vecBattleAI.Count() + 1);
}

// The edits a user makes on the character pages and in their sub-forms: a name typed
// on each, a skill to learn raised to level 19, and a battle AI inserted with one
// condition; the same edits made on copies of the tables.
class CharaEditsTest : public CharaPagesTest {
 protected:
  void EditPages() {
    auto* ally = ShowPage<DLG_DBFRIEND>(1);
    // A name file past the list is kept through every change of the row.
    ally->m_vecWork[1].m_nNameFile = 40;
    Click(ListOf(*ally, DLG_DBFRIEND::kList), 1);
    Click(ListOf(*ally, DLG_DBFRIEND::kList), 0);
    TypeInto(*ally, cCharaControls::kName, "A");
    WhenModal([](DLG_CLASS& form) {
      TypeInto(form, DLG_LEARNSKILL::kLevel, "9");
      form.SendCommand(kIdOk, kNotifyClicked);
    });
    Click(ListOf(*ally, DLG_DBFRIEND::kLearn), 0);
    ally->SendCommand(DLG_DBFRIEND::kLearn, kNotifyDblClk);
    m_vecFriend[1].m_strName += "A";
    m_vecFriend[1].m_nNameFile = 40;
    m_vecFriend[1].m_vecLearnSkill[0].m_nLevel = 19;

    auto* enemy = ShowPage<DLG_DBENEMY>(2);
    TypeInto(*enemy, cCharaControls::kName, "E");
    Click(ListOf(*enemy, DLG_DBENEMY::kAI), 0);
    WhenModal([](DLG_CLASS& form) {
      static_cast<QComboBox*>(form.GetDlgItem(DLG_BATTLEAI::kAction))->setCurrentIndex(kAISkill);
      form.SendCommand(DLG_BATTLEAI::kAction, kNotifySelChange);
      WhenModal([](DLG_CLASS& cond) {
        TypeInto(cond, DLG_BATTLEAI_COND::kValue, "50");
        static_cast<QAbstractButton*>(cond.GetDlgItem(DLG_BATTLEAI_COND::kPercent))->click();
        cond.SendCommand(kIdOk, kNotifyClicked);
      });
      form.SendCommand(DLG_BATTLEAI::kCondInsert, kNotifyClicked);
      EXPECT_EQ(ListOf(form, DLG_BATTLEAI::kConds)->item(0)->text().toStdString(), "自分 の HP が 50％ である");
      form.SendCommand(kIdOk, kNotifyClicked);
    });
    enemy->SendCommand(DLG_DBENEMY::kAIInsert, kNotifyClicked);
    cBattleAI ai;
    ai.m_nAction = kAISkill;
    ai.m_nSkill = 1;
    ai.m_vecCond.emplace_back();
    ai.m_vecCond[0].m_nValue = 50;
    ai.m_vecCond[0].m_bPercent = 1;
    m_vecEnemy[1].m_strName += "E";
    m_vecEnemy[1].m_vecBattleAI.insert(m_vecEnemy[1].m_vecBattleAI.begin(), ai);
    EXPECT_EQ(ListOf(*enemy, DLG_DBENEMY::kAI)->item(0)->text().toStdString(), Cp932ToUtf8Lossy(SummaryBattleAI(ai)));
  }
};

TEST_F(CharaEditsTest, ApplyWritesWhatThePagesShowAndNoOtherFile) {
  EditPages();
  SheetButton("適用")->click();
  ASSERT_TRUE(SaveVector(m_vecFriend, "friend.dat"));
  ASSERT_TRUE(SaveVector(m_vecEnemy, "enemy.dat"));
  Files files = DatabaseFiles();
  EXPECT_EQ(files["Friend.dat"], FileBytes("friend.dat"));
  EXPECT_EQ(files["Enemy.dat"], FileBytes("enemy.dat"));
  for (Files* f : {&files, &m_Saved}) f->erase("Friend.dat"), f->erase("Enemy.dat");
  EXPECT_EQ(files, m_Saved);
}

TEST_F(CharaEditsTest, CancelAfterEditsOnEveryPageLeavesTablesAndFilesAsTheyWere) {
  const std::vector<unsigned char> classes = Saved(g_vecClass), allies = Saved(g_vecFriend), enemies = Saved(g_vecEnemy);
  TypeClassName("C");
  EditPages();
  SheetButton("キャンセル")->click();
  EXPECT_EQ(DatabaseFiles(), m_Saved);
  EXPECT_EQ(Saved(g_vecClass), classes);
  EXPECT_EQ(Saved(g_vecFriend), allies);
  EXPECT_EQ(Saved(g_vecEnemy), enemies);
}

}  // namespace
