// A sheet of table pages: pages made when first shown, set-active, apply to the pages
// that exist, the Apply button, and the page sequence of the table pages.

#include <gtest/gtest.h>

#include <QApplication>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTabWidget>
#include <QTest>
#include <QTimer>

#include "database/media_tables.h"
#include "database/record_stream.h"
#include "forms/table_page.h"
#include "gui/form_probe.h"
#include "platform/cp932.h"
#include "toolkit/prop_class.h"
#include "support/test_env.h"

namespace {

class DLG_PICTURES : public cTablePage<cEdPicture> {
 public:
  enum : unsigned { kList = 1500, kName = 1501, kPath = 1502 };
  explicit DLG_PICTURES(VECTOR_CLASS<cEdPicture>& table) : cTablePage(table, "ピクチャー", {1, 1, 999}) {
    MainList(kList, "ピクチャー", [](const cEdPicture& r) { return r.m_strName; });
    Table().EditStr(kName, "名前", &m_Edit.m_strName, {.nLimit = 32, .nMaxLines = 1}).Row();
    Table().EditStr(kPath, "ファイル", &m_Edit.m_strPath, {.nLimit = 260, .nMaxLines = 1}).Row();
  }
  void OnSetActive() override {
    ++m_nActivations;
    cTablePage::OnSetActive();
  }
  void OnApply() override { CommitPage(); }
  QListWidget* List() const { return static_cast<QListWidget*>(GetDlgItem(kList)); }
  int m_nActivations = 0;
};

VECTOR_CLASS<cEdPicture> Pictures(std::initializer_list<const char*> names) {
  VECTOR_CLASS<cEdPicture> table(1);  // row 0 stands for "none"
  for (const char* name : names) {
    cEdPicture p;
    p.m_strName = Utf8ToCp932Lossy(name);
    table.push_back(p);
  }
  return table;
}

std::vector<unsigned char> Bytes(VECTOR_CLASS<cEdPicture>& table) {
  std::vector<unsigned char> all;
  for (cEdPicture& p : table) {
    const std::vector<unsigned char> one = SavedStream(p);
    all.insert(all.end(), one.begin(), one.end());
  }
  return all;
}

class SheetTest : public ProjectDirTest {
 protected:
  void SetUp() override {
    ProjectDirTest::SetUp();
    m_pSheet = new PROP_CLASS;
    m_pFirst = new DLG_PICTURES(m_first);
    m_pSecond = new DLG_PICTURES(m_second);
    m_pSheet->AddPage(m_pFirst, "一");
    m_pSheet->AddPage(m_pSecond, "二");
    ASSERT_TRUE(m_pSheet->Create(nullptr, "シート"));
  }
  void TearDown() override {
    if (g_WndList.SheetCount() > 0) {
      m_pSheet->Cancel();
      QTest::qWait(1);  // the registry lets the sheet go once the loop runs
    }
    ProjectDirTest::TearDown();
  }
  QPushButton* Button(const char* text) const {
    for (QPushButton* b : m_pSheet->m_hWnd->findChildren<QPushButton*>())
      if (b->text() == QString::fromUtf8(text)) return b;
    return nullptr;
  }
  void TypeName(const char* keys) {
    auto* name = static_cast<QLineEdit*>(m_pFirst->GetDlgItem(DLG_PICTURES::kName));
    name->setFocus();
    QTest::keyClick(name, Qt::Key_End);
    QTest::keyClicks(name, keys);
  }

  VECTOR_CLASS<cEdPicture> m_first = Pictures({"森", "城"});
  VECTOR_CLASS<cEdPicture> m_second = Pictures({"海"});
  PROP_CLASS* m_pSheet = nullptr;  // the registry owns it once open
  DLG_PICTURES* m_pFirst = nullptr;
  DLG_PICTURES* m_pSecond = nullptr;
};

TEST_F(SheetTest, APageIsMadeWhenFirstShownAndActivatedEachTime) {
  EXPECT_TRUE(m_pFirst->m_hWnd && !m_pSecond->m_hWnd);
  EXPECT_EQ(m_pFirst->m_nActivations, 1);
  EXPECT_EQ(ProbeOpenForm(*m_pFirst), std::vector<std::string>{});
  m_pSheet->m_hWnd->findChild<QTabWidget*>()->setCurrentIndex(1);  // as a click on the tab
  EXPECT_TRUE(m_pSecond->m_hWnd);
  EXPECT_EQ(m_pSecond->List()->count(), 2);  // the row and the blank row
  m_pSheet->SetCurrentPage(0);
  EXPECT_EQ(m_pFirst->m_nActivations, 2);
  EXPECT_EQ(m_pSheet->CurrentPage(), m_pFirst);
}

TEST_F(SheetTest, TypingReachesTheRowAtOnceAndApplyWritesOnlyThePagesThatWereShown) {
  const std::vector<unsigned char> secondBefore = Bytes(m_second);
  EXPECT_FALSE(m_pSheet->ApplyEnabled());
  TypeName("wood");
  EXPECT_TRUE(m_pFirst->List()->item(0)->text().endsWith(QString::fromUtf8(" 森wood")));
  EXPECT_TRUE(m_pSheet->ApplyEnabled());
  EXPECT_EQ(m_first[1].m_strName, CP932_TEXT("森")) << "the table waits for the apply";

  Button("適用")->click();
  EXPECT_EQ(m_first[1].m_strName, CP932_TEXT("森wood"));
  EXPECT_FALSE(m_pSheet->ApplyEnabled());
  EXPECT_EQ(Bytes(m_second), secondBefore) << "a page never shown leaves its table alone";
}

TEST_F(SheetTest, CancelLeavesEveryTableAsItWas) {
  const std::vector<unsigned char> before = Bytes(m_first);
  TypeName("X");
  m_pFirst->m_List.Box().focus = true;
  m_pFirst->SendCommand(DLG_PICTURES::kIdNew, kNotifyClicked);
  EXPECT_EQ(m_pFirst->List()->count(), 4);
  Button("キャンセル")->click();
  EXPECT_FALSE(m_pSheet->IsOpen());
  EXPECT_EQ(Bytes(m_first), before);
}

TEST_F(SheetTest, ClearGivesTheRecordsDefaultsAndTheCountInForceChangesNothing) {
  m_pFirst->m_vecWork[2].m_strPath = "image\\a.png";
  m_pFirst->List()->setCurrentRow(1);
  m_pFirst->SendCommand(DLG_PICTURES::kIdClear, kNotifyClicked);
  m_pSheet->Apply();
  cEdPicture fresh;
  EXPECT_EQ(SavedStream(m_first[2]), SavedStream(fresh));

  const std::vector<unsigned char> before = Bytes(m_first);
  QTimer::singleShot(0, [] {
    for (QPushButton* b : QApplication::activeModalWidget()->findChildren<QPushButton*>())
      if (b->text() == "OK") b->click();  // the row count as offered
  });
  m_pFirst->SendCommand(DLG_PICTURES::kIdCount, kNotifyClicked);
  m_pSheet->Apply();
  EXPECT_EQ(Bytes(m_first), before);
}

}  // namespace
