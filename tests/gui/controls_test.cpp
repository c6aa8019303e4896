#include <gtest/gtest.h>

#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>
#include <QSlider>
#include <QTest>

#include "toolkit/ctrls.h"
#include "toolkit/dlg_class.h"

namespace {

// A list of numbers, the number under edit, a slider with its mirror and a combo over a
// value table.
class DLG_ROWS : public DLG_CLASS {
 public:
  enum : unsigned { kList = 1200, kEdit = 1201, kSlider = 1202, kMirror = 1203, kCombo = 1204 };
  explicit DLG_ROWS(const VECTOR_CLASS<int>& rows, bool multi = false) : DLG_CLASS(nullptr, "行"), m_vecSource(rows) {
    m_vecValues = {10, 20, 30};
    cListInit<int> init;
    init.bMulti = multi ? 1 : 0;
    init.pSource = &m_vecSource;
    init.pWork = &m_vecWork;
    init.pEditRec = &m_nEdit;
    init.nMinRows = 1;
    init.pfnRowText = [](std::string& out, int, const int& v) { out = std::to_string(v); };
    Table()
        .List(kList, "行", m_List, init)
        .EditVal(kEdit, "値", &m_nEdit, 0, 999)
        .Row()
        .Slider<short>(kSlider, "段階", &m_sLevel, 0, 50, 10, 1, kMirror)
        .Row()
        .Combo(kCombo, "選択", &m_nChoice, &m_vecLabels, &m_vecValues);
  }
  void OnFormCommand(unsigned id, unsigned code) override {
    if (id == kSlider) ++m_nSliderCommands;
  }
  QListWidget* List() { return static_cast<QListWidget*>(GetDlgItem(kList)); }

  VECTOR_CLASS<int> m_vecSource, m_vecWork;
  int m_nEdit = 0;
  short m_sLevel = 12;
  int m_nChoice = 25;  // in no row of the value table
  VECTOR_CLASS<std::string> m_vecLabels{"ten", "twenty", "thirty"};
  VECTOR_CLASS<int> m_vecValues;
  int m_nSliderCommands = 0;
  CTRL_LIST_CLASS<int> m_List;
};

std::vector<std::string> Rows(QListWidget* w) {
  std::vector<std::string> rows;
  for (int i = 0; i < w->count(); ++i) rows.push_back(w->item(i)->text().toStdString());
  return rows;
}

TEST(SliderControl, ItsNumberBoxShowsThePositionAndTakesNoTyping) {
  DLG_ROWS form(VECTOR_CLASS<int>{1});
  ASSERT_TRUE(form.Create(0, false));
  auto* mirror = static_cast<QLineEdit*>(form.GetDlgItem(DLG_ROWS::kMirror));
  EXPECT_EQ(mirror->text(), "12");
  QTest::keyClicks(mirror, "3");
  form.ApplyAll();
  EXPECT_EQ(std::make_pair(mirror->text(), form.m_sLevel), std::make_pair(QString("12"), short{12}));
  form.End(0);
}

TEST(ListControl, RowsSelectionEditRecordAndCommitAgree) {
  DLG_ROWS form(VECTOR_CLASS<int>{4, 5, 6});
  ASSERT_TRUE(form.Create(0, false));
  EXPECT_EQ(Rows(form.List()), (std::vector<std::string>{"4", "5", "6"}));
  EXPECT_EQ(form.List()->currentRow(), 0);
  form.List()->setCurrentRow(2);  // as a click does
  EXPECT_EQ(form.m_nEdit, 6);
  auto* edit = static_cast<QLineEdit*>(form.GetDlgItem(DLG_ROWS::kEdit));
  EXPECT_EQ(edit->text(), "6");
  QTest::keyClick(edit, Qt::Key_End);
  QTest::keyClicks(edit, "1");  // each change of a control is committed to the row
  EXPECT_EQ(Rows(form.List()), (std::vector<std::string>{"4", "5", "61"}));
  EXPECT_EQ(form.m_vecSource, (VECTOR_CLASS<int>{4, 5, 6}));

  form.m_List.Box().focus = true;  // the list's keys act only while it has the focus
  form.SendCommand(kListIdSets[kListFirstFree].aKey[kListDelete], kNotifyClicked);
  EXPECT_EQ(Rows(form.List()), (std::vector<std::string>{"4", "5"}));
  EXPECT_EQ(form.List()->currentRow(), 1);
  EXPECT_EQ(edit->text(), "5");
  form.ApplyAll();
  EXPECT_EQ(form.m_vecSource, (VECTOR_CLASS<int>{4, 5}));
  form.End(0);
}

TEST(ListControl, AMultipleSelectionSurvivesARefillOfTheRows) {
  DLG_ROWS form(VECTOR_CLASS<int>{1, 2, 3, 4, 5, 6}, true);
  ASSERT_TRUE(form.Create(0, false));
  QListWidget* list = form.List();
  for (int row : {0, 2, 3, 5}) list->item(row)->setSelected(true);  // as Ctrl-clicks do
  form.m_List.Redraw();
  form.UpdateAll();
  std::vector<int> shown;
  for (int row = 0; row < list->count(); ++row)
    if (list->item(row)->isSelected()) shown.push_back(row);
  EXPECT_EQ(shown, (std::vector<int>{0, 2, 3, 5}));
  form.End(0);
}

TEST(ListControl, RowsShareOneHeightUnlessARowKeepsALineBreak) {
  DLG_ROWS form(VECTOR_CLASS<int>{1, 2, 3});
  ASSERT_TRUE(form.Create(0, false));
  QListWidget* list = form.List();
  EXPECT_TRUE(list->uniformItemSizes());
  form.m_List.m_pfnRowText = [](std::string& out, int, const int& v) { out = v == 2 ? "two\r\nlines" : std::to_string(v); };
  form.m_List.Redraw();
  form.UpdateAll();
  EXPECT_FALSE(list->uniformItemSizes());
  EXPECT_GT(list->visualItemRect(list->item(1)).height(), list->visualItemRect(list->item(0)).height());
  form.End(0);
}

TEST(Combo, AValueOutsideTheTableShowsNoRowAndKeepsItsFieldAndShrunkLabelsKeepTheLastRow) {
  DLG_ROWS form(VECTOR_CLASS<int>{1});
  ASSERT_TRUE(form.Create(0, false));
  auto* combo = static_cast<QComboBox*>(form.GetDlgItem(DLG_ROWS::kCombo));
  EXPECT_EQ(combo->count(), 3);
  EXPECT_EQ(combo->currentIndex(), -1);
  form.ApplyAll();
  EXPECT_EQ(form.m_nChoice, 25) << "a value no row shows is kept, not overwritten";

  auto& ctrl = *form.GetCtrl<CTRL_COMBO_CLASS<int>>(DLG_ROWS::kCombo);
  ctrl.m_Init.pValues = nullptr;  // plain rows: value = row
  ctrl.m_Rules.Bind(ctrl.m_Init);
  form.m_nChoice = 2;
  form.UpdateAll();
  ctrl.SetLabels(VECTOR_CLASS<std::string>{"a", "b"});
  EXPECT_EQ(combo->count(), 2);
  EXPECT_EQ(combo->currentIndex(), 1);
  form.End(0);
}

}  // namespace
