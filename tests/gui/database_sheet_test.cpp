// The database sheet on a project made from the template: its pages in tab order, the
// one apply that commits every page and writes the files, Cancel that leaves the files
// as they were, and the class page with its lists and sub-forms.

#include <gtest/gtest.h>

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTabWidget>

#include "forms/database/database_sheet.h"
#include "forms/database/db_class_page.h"
#include "forms/database/db_compati_page.h"
#include "forms/database/db_help_page.h"
#include "forms/database/db_land_page.h"
#include "forms/database/db_media_pages.h"
#include "forms/database/db_small_pages.h"
#include "forms/database/slot_forms.h"
#include "kernel/record_vector_file.h"
#include "gui/app_test_support.h"
#include "gui/database_sheet_fixture.h"
#include "gui/form_probe.h"
#include "platform/cp932.h"
#include "project/project_globals.h"

namespace fs = std::filesystem;

namespace {

constexpr const char* kClassFile = "data/database/Class.dat";

TEST_F(DatabaseSheetTest, TheClassPageComesFirstWithItsPaddedTab) {
  auto* tabs = m_pSheet->m_hWnd->findChild<QTabWidget*>();
  ASSERT_NE(tabs, nullptr);
  EXPECT_EQ(tabs->tabText(0), QStringLiteral("\u3000\u3000クラス\u3000\u3000"));
  EXPECT_EQ(List(DLG_DBCLASS::kList)->count(), g_vecClass.Count());  // rows from 1, and the blank row
  EXPECT_EQ(List(DLG_DBCLASS::kResist)->count(), g_System.m_vecElem.Count());
  EXPECT_EQ(List(DLG_DBCLASS::kSense)->count(), g_vecSkillList.Count() + 1);
}

TEST_F(DatabaseSheetTest, EveryPageOpensWholeWithItsControlsNamed) {
  for (int row = 0; row < kDatabasePageCount; ++row) {
    m_pSheet->SetCurrentPage(row);
    EXPECT_EQ(ProbeOpenForm(*m_pSheet->PageOfRow(row)), std::vector<std::string>{}) << row;
  }
}

TEST_F(DatabaseSheetTest, ApplyCommitsThePageAndWritesTheFilesAndCancelLeavesThemAlone) {
  const std::vector<unsigned char> before = FileBytes(kClassFile);
  TypeClassName("X");
  EXPECT_TRUE(List(DLG_DBCLASS::kList)->item(0)->text().endsWith("X")) << "the row follows the typing";
  EXPECT_TRUE(m_pSheet->ApplyEnabled());
  EXPECT_EQ(FileBytes(kClassFile), before) << "nothing is written before the apply";

  SheetButton("適用")->click();
  EXPECT_NE(FileBytes(kClassFile), before);
  EXPECT_TRUE(g_vecClass[1].m_strName.ends_with("X"));
  EXPECT_TRUE(m_pClass->m_bStale) << "the apply marks every page for its refresh";

  const std::vector<unsigned char> applied = FileBytes(kClassFile);
  TypeClassName("Y");
  SheetButton("キャンセル")->click();
  EXPECT_EQ(FileBytes(kClassFile), applied);
  EXPECT_FALSE(g_vecClass[1].m_strName.ends_with("Y"));
  EXPECT_EQ(m_ends, 1) << "the opener hears of the end";
}

TEST_F(DatabaseSheetTest, AResistanceIsEditedThroughTheNumberFormAndReachesTheRow) {
  List(DLG_DBCLASS::kResist)->setCurrentRow(0);
  AnswerNumber(250);
  m_pClass->SendCommand(DLG_DBCLASS::kResistEdit, kNotifyClicked);
  EXPECT_TRUE(List(DLG_DBCLASS::kResist)->item(0)->text().endsWith(" 250"));
  EXPECT_EQ(m_pClass->m_vecWork[1].m_vecElemResist[1], 250) << "the class row took the edit";
  EXPECT_EQ(g_vecClass[1].m_vecElemResist[1], 100) << "the table waits for the apply";

  // The blank row asks nothing.
  List(DLG_DBCLASS::kResist)->setCurrentRow(List(DLG_DBCLASS::kResist)->count() - 1);
  m_pClass->SendCommand(DLG_DBCLASS::kResistEdit, kNotifyClicked);
  EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}

TEST_F(DatabaseSheetTest, TheTerrainPageClearsARowToItsDefaultsAndShowsItsChip) {
  auto* land = ShowPage<DLG_DBLAND>(5);
  ASSERT_NE(land, nullptr);
  EXPECT_EQ(ProbeOpenForm(*land), std::vector<std::string>{});
  auto* rows = static_cast<QListWidget*>(land->GetDlgItem(DLG_DBLAND::kList));
  EXPECT_EQ(rows->count(), g_vecLand.Count() + 1) << "terrain rows start at 0";

  land->m_vecWork[2].m_nMoveCost = 7;
  land->m_vecWork[2].m_vecElemRate[1] = 5;
  rows->setCurrentRow(2);
  land->SendCommand(DLG_DBLAND::kIdClear, kNotifyClicked);
  EXPECT_EQ(land->m_vecWork[2].m_nMoveCost, 1);
  EXPECT_EQ(land->m_vecWork[2].m_vecElemRate[1], 100) << "rates of 100, not zeros";

  // A new graphic number shows its chip at once.
  auto* chip = land->GetCtrl<CTRL_PICTURE_CLASS>(DLG_DBLAND::kChip);
  const auto before = chip->m_Surface.m_vecBits;
  auto* graphic = static_cast<QLineEdit*>(land->GetDlgItem(DLG_DBLAND::kGraphic));
  graphic->setFocus();
  graphic->selectAll();
  QTest::keyClicks(graphic, g_vecLand[2].m_nGraphic == 9 ? "10" : "9");
  EXPECT_NE(chip->m_Surface.m_vecBits, before);
}

TEST_F(DatabaseSheetTest, ASlotRowSetsACategoryItsListNoLongerHasToTheFirst) {
  cOrgSlotList own;
  cSlot& slot = own.m_vecSlot.emplace_back();
  slot.m_bAnyCateg = 0;
  slot.m_vecAcqCond.emplace_back().m_nCateg = g_vecSkillList[0].m_vecCateg.Count();
  DLG_ORGSLOT form(own, 0);
  ASSERT_TRUE(form.Create(0, true));
  EXPECT_EQ(form.m_Work.m_vecSlot.back().m_vecAcqCond[0].m_nCateg, 0);
  form.SendCommand(kIdCancel, kNotifyClicked);
}

TEST_F(DatabaseSheetTest, ARuleInsertedAndCancelledLeavesTheListAsItWas) {
  auto* types = ShowPage<DLG_DBSKILLTYPE>(4);
  ASSERT_NE(types, nullptr);
  const int rules = types->m_Edit.m_vecInfl.Count();
  QTimer::singleShot(0, [] {
    for (QPushButton* b : QApplication::activeModalWidget()->findChildren<QPushButton*>())
      if (b->text() == QStringLiteral("ｷｬﾝｾﾙ")) b->click();
  });
  types->SendCommand(DLG_DBSKILLTYPE::kInsert, kNotifyClicked);
  EXPECT_EQ(types->m_Edit.m_vecInfl.Count(), rules);
  EXPECT_EQ(types->m_vecWork[1].m_vecInfl.Count(), rules);
}

TEST_F(DatabaseSheetTest, AHelpPageWrittenInItsFormShowsItsFirstLineAndAnInsertCancelledIsGone) {
  auto* help = ShowPage<DLG_DB_HELP>(13);
  ASSERT_NE(help, nullptr);
  EXPECT_EQ(ProbeOpenForm(*help), std::vector<std::string>{});
  const int pages = help->m_Edit.m_vecText.Count();
  QTimer::singleShot(0, [] {
    QWidget* w = QApplication::activeModalWidget();
    w->findChild<QPlainTextEdit*>()->setPlainText(QStringLiteral("一行目\n二行目"));
    for (QPushButton* b : w->findChildren<QPushButton*>())
      if (b->text() == "OK") b->click();
  });
  help->SendCommand(DLG_DB_HELP::kInsert, kNotifyClicked);
  ASSERT_EQ(help->m_Edit.m_vecText.Count(), pages + 1);
  auto* list = static_cast<QListWidget*>(help->GetDlgItem(DLG_DB_HELP::kPages));
  EXPECT_TRUE(list->item(0)->text().endsWith(QStringLiteral("一行目"))) << "the first line stands for the page";

  QTimer::singleShot(0, [] {
    for (QPushButton* b : QApplication::activeModalWidget()->findChildren<QPushButton*>())
      if (b->text() == QStringLiteral("ｷｬﾝｾﾙ")) b->click();
  });
  help->SendCommand(DLG_DB_HELP::kInsert, kNotifyClicked);
  EXPECT_EQ(help->m_Edit.m_vecText.Count(), pages + 1);
}

TEST_F(DatabaseSheetTest, RenamingACommonVariableIsSavedAtOnceAndTheRowsStartAtVariableOne) {
  auto* vars = ShowPage<DLG_DB_PTVAL>(6);
  ASSERT_NE(vars, nullptr);
  const int variable = vars->m_Edit.m_nCommonVar;
  ASSERT_GT(variable, 0);
  QTimer::singleShot(0, [] {
    QWidget* w = QApplication::activeModalWidget();
    w->findChild<QLineEdit*>()->setText(QStringLiteral("所持金"));
    for (QPushButton* b : w->findChildren<QPushButton*>())
      if (b->text() == "OK") b->click();
  });
  vars->SendCommand(DLG_DB_PTVAL::kRename, kNotifyClicked);
  EXPECT_EQ(g_vecGValInfo[variable].m_strName, CP932_TEXT("所持金"));
  VECTOR_CLASS<cGValInfo> saved;
  ASSERT_TRUE(LoadVector(saved, kGValInfoPath));
  EXPECT_EQ(saved[variable].m_strName, CP932_TEXT("所持金")) << "saved without waiting for the apply";

  auto* combo = static_cast<QComboBox*>(vars->GetDlgItem(DLG_DB_PTVAL::kCommonVar));
  EXPECT_EQ(combo->count(), 999);
  EXPECT_EQ(combo->currentIndex(), variable - 1);
  EXPECT_TRUE(combo->itemText(variable - 1).endsWith(QStringLiteral("所持金")));
}

TEST_F(DatabaseSheetTest, AMusicRowFollowsItsFileNameAndAChosenFileIsStoredRelative) {
  auto* music = ShowPage<DLG_DB_BGM>(12);
  ASSERT_NE(music, nullptr);
  EXPECT_EQ(ProbeOpenForm(*music), std::vector<std::string>{});
  auto* same = static_cast<QCheckBox*>(music->GetDlgItem(DLG_DB_BGM::kSameName));
  if (!same->isChecked()) same->click();
  auto* path = static_cast<QLineEdit*>(music->GetDlgItem(DLG_DB_BGM::kPath));
  path->setFocus();
  path->selectAll();
  QTest::keyClicks(path, "bgm\\battle.ogg");
  EXPECT_EQ(static_cast<QLineEdit*>(music->GetDlgItem(DLG_DB_BGM::kName))->text(), QStringLiteral("battle"));
  EXPECT_FALSE(music->GetDlgItem(DLG_DB_BGM::kName)->isEnabled());
  EXPECT_EQ(music->m_vecWork[1].m_strName, "battle") << "the row follows at once";

  // "参照": the chosen file goes in relative to the project; a cancel changes nothing.
  m_prompt.files = {{(m_dir / "bgm" / "field.mid").string()}, {}};
  music->SendCommand(DLG_DB_BGM::kBrowse, kNotifyClicked);
  EXPECT_EQ(music->m_vecWork[1].m_strPath, "bgm\\field.mid");
  EXPECT_EQ(music->m_vecWork[1].m_strName, "field");
  ASSERT_EQ(m_prompt.fileAsks.size(), 1u);
  EXPECT_EQ(m_prompt.fileAsks[0].title, "BGMの選択");
  music->SendCommand(DLG_DB_BGM::kBrowse, kNotifyClicked);
  EXPECT_EQ(music->m_vecWork[1].m_strPath, "bgm\\field.mid");

  // "再生" of a file that cannot be played says so.
  path->setFocus();
  path->selectAll();
  QTest::keyClicks(path, "bgm\\none.txt");
  music->SendCommand(DLG_DB_BGM::kPlay, kNotifyClicked);
  ASSERT_EQ(m_prompt.shown.size(), 1u);
  EXPECT_EQ(m_prompt.shown[0].text, CP932_TEXT("読み込み失敗！"));
}

TEST_F(DatabaseSheetTest, ABackgroundsKindEnablesItsPartsAndTheOthersKeepTheirValues) {
  auto* backs = ShowPage<DLG_DB_BACK>(10);
  ASSERT_NE(backs, nullptr);
  EXPECT_EQ(ProbeOpenForm(*backs), std::vector<std::string>{});
  auto* kind = static_cast<QComboBox*>(backs->GetDlgItem(DLG_DB_BACK::kKind));
  backs->m_vecWork[1].m_strPath = "image\\back\\sky.png";
  static_cast<QListWidget*>(backs->GetDlgItem(DLG_DB_BACK::kList))->setCurrentRow(0);
  backs->SendCommand(DLG_DB_BACK::kList, kNotifySelChange);  // the row, with its path, into the controls
  kind->setCurrentIndex(BACKKIND_COLOR);
  backs->SendCommand(DLG_DB_BACK::kKind, kNotifySelChange);
  EXPECT_TRUE(backs->GetDlgItem(DLG_DB_BACK::kRed)->isEnabled());
  EXPECT_FALSE(backs->GetDlgItem(DLG_DB_BACK::kChipW)->isEnabled());
  EXPECT_FALSE(backs->GetDlgItem(DLG_DB_BACK::kPath)->isEnabled());
  EXPECT_TRUE(backs->GetDlgItem(DLG_DB_BACK::kScrollX)->isEnabled());
  EXPECT_EQ(backs->m_vecWork[1].m_nKind, BACKKIND_COLOR);
  EXPECT_EQ(backs->m_vecWork[1].m_strPath, "image\\back\\sky.png") << "a disabled part keeps its value";
}

TEST_F(DatabaseSheetTest, MovingInAListOfTheRowKeepsThePagesEditsOfOtherRows) {
  TypeClassName("Q");
  Click(List(DLG_DBCLASS::kList), 1);
  Click(List(DLG_DBCLASS::kResist), 1);
  EXPECT_TRUE(m_pClass->m_vecWork[1].m_strName.ends_with("Q"));
}

TEST_F(DatabaseSheetTest, AFileThatCannotBeWrittenIsNamedToTheUser) {
  fs::remove(kClassFile);
  fs::create_directory(kClassFile);  // a directory where the file should go
  TypeClassName("Z");
  SheetButton("適用")->click();
  ASSERT_EQ(m_prompt.shown.size(), 1u);
  EXPECT_NE(m_prompt.shown[0].text.find("Class.dat"), std::string::npos);
}

TEST_F(DatabaseSheetTest, TheSheetWithItsRichestPagesFitsAScreenOf1024By768) {
  for (int row : {0, 1, 2}) m_pSheet->SetCurrentPage(row);
  const QSize least = m_pSheet->m_hWnd->minimumSizeHint();
  EXPECT_LE(least.width(), 1024);
  EXPECT_LE(least.height(), 768 - 40) << "and room for a title bar";
}

}  // namespace
