// The database sheet on a project made from the template: its pages in tab order, the
// one apply that commits every page and writes the files, Cancel that leaves the files
// as they were, and the class page with its lists and sub-forms.

#include <QTabWidget>

#include "gui/database_sheet_fixture.h"
#include "gui/form_probe.h"
#include "platform/cp932.h"
#include "project/project_globals.h"

namespace fs = std::filesystem;

namespace {

constexpr const char* kClassFile = "data/database/Class.dat";

TEST_F(DatabaseSheetTest, TheClassPageComesFirstWithItsPaddedTabAndEveryControlNamed) {
  auto* tabs = m_pSheet->m_hWnd->findChild<QTabWidget*>();
  ASSERT_NE(tabs, nullptr);
  EXPECT_EQ(tabs->tabText(0), QStringLiteral("\u3000\u3000クラス\u3000\u3000"));
  EXPECT_EQ(ProbeOpenForm(*m_pClass), std::vector<std::string>{});
  EXPECT_EQ(List(DLG_DBCLASS::kList)->count(), g_vecClass.Count());  // rows from 1, and the blank row
  EXPECT_EQ(List(DLG_DBCLASS::kResist)->count(), g_System.m_vecElem.Count());
  EXPECT_EQ(List(DLG_DBCLASS::kSense)->count(), g_vecSkillList.Count() + 1);
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
