#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QScreen>
#include <QTest>
#include <QTimer>

#include <tuple>

#include "database/record_stream.h"
#include "platform/cp932.h"
#include "gui/sample_form.h"

namespace {

cSkill SampleSkill() {
  cSkill s;
  s.m_strName = CP932_TEXT("火炎"), s.m_nPrice = 120, s.m_nCostSP = 7, s.m_nKind = 1;
  return s;
}

void Click(DLG_CLASS& form, unsigned id) { static_cast<QAbstractButton*>(form.GetDlgItem(id))->click(); }

// Runs the form modally; `during` acts on the open window.
int RunModal(DLG_CLASS& form, std::function<void()> during) {
  QTimer::singleShot(0, [during] { during(); });
  return form.DoModal();
}

// The user edits every kind of control, then closes with `button`.
void EditAndClose(DLG_SAMPLE& form, unsigned button) {
  auto* price = static_cast<QLineEdit*>(form.GetDlgItem(DLG_SAMPLE::kPrice));
  price->selectAll();
  QTest::keyClicks(price, "345");
  auto* name = static_cast<QLineEdit*>(form.GetDlgItem(DLG_SAMPLE::kName));
  QTest::keyClick(name, Qt::Key_End);
  QTest::keyClicks(name, "X");
  Click(form, DLG_SAMPLE::kUnlimited);
  auto* kind = static_cast<QComboBox*>(form.GetDlgItem(DLG_SAMPLE::kKind));
  kind->setCurrentIndex(2);
  emit kind->activated(2);
  Click(form, button);
}

TEST(FormPattern, CancelLeavesTheSourceAsItWasAndOkCopiesTheEditsBack) {
  for (unsigned button : {unsigned{kIdCancel}, unsigned{kIdOk}}) {
    cSkill source = SampleSkill();
    const std::vector<unsigned char> before = SavedStream(source);
    DLG_SAMPLE form(source);
    const int result = RunModal(form, [&] { EditAndClose(form, button); });
    if (result == 1) source.Copy(form.m_Work);
    if (button == kIdCancel) {
      EXPECT_EQ(result, 0);
      EXPECT_EQ(SavedStream(source), before);
      continue;
    }
    EXPECT_EQ(std::tie(result, source.m_nPrice, source.m_strName, source.m_bUnlimited, source.m_nKind, source.m_nCostSP),
              std::make_tuple(1, 345, CP932_TEXT("火炎X"), 1, 2, 7));
    EXPECT_TRUE(form.m_vecCtrl.empty() && !form.m_hWnd);  // End forgets the controls
  }
}

TEST(FormPattern, ValueChangesRunTheEnablingRulesAndOtherCommandsDoNot) {
  DLG_SAMPLE form(SampleSkill());
  RunModal(form, [&] {
    const int before = form.m_nEnableRuns;
    Click(form, DLG_SAMPLE::kUnlimited);
    EXPECT_EQ(form.m_nEnableRuns, before + 1);
    EXPECT_FALSE(form.GetDlgItem(DLG_SAMPLE::kPrice)->isEnabled());
    form.SendCommand(DLG_SAMPLE::kKind, kNotifyListKillFocus);  // no value change of a combo
    form.SendCommand(40001, kNotifyClicked);                  // no control of the form
    EXPECT_EQ(form.m_nEnableRuns, before + 1);
    Click(form, kIdCancel);
  });
}

TEST(FormPattern, ACommandRaisedWhileOneIsHandledIsDropped) {
  DLG_SAMPLE form(SampleSkill());
  bool nestedRan = true;
  form.onReset = [&] {
    Click(form, DLG_SAMPLE::kUnlimited);  // the widget changes, its command does not arrive
    nestedRan = form.SendCommand(kIdOk, kNotifyClicked);
  };
  const int result = RunModal(form, [&] {
    Click(form, DLG_SAMPLE::kReset);
    EXPECT_EQ(form.m_vecSeen, (std::vector<std::pair<unsigned, unsigned>>{{DLG_SAMPLE::kReset, kNotifyClicked}}));
    EXPECT_EQ(form.m_bInCommand, 0);
    Click(form, kIdCancel);
  });
  EXPECT_TRUE(!nestedRan && result == 0);
}

TEST(FormPattern, ProgrammaticChangesNeverNotifyNorWriteBack) {
  cSkill source = SampleSkill();
  DLG_SAMPLE form(source);
  RunModal(form, [&] {
    form.m_vecSeen.clear();
    form.m_Work.m_nPrice = 777, form.m_Work.m_bUnlimited = 1, form.m_Work.m_nKind = 0, form.m_Work.m_strName = "abc";
    form.UpdateAll();
    EXPECT_TRUE(form.m_vecSeen.empty());
    EXPECT_EQ(std::make_tuple(static_cast<QLineEdit*>(form.GetDlgItem(DLG_SAMPLE::kPrice))->text(),
                              static_cast<QCheckBox*>(form.GetDlgItem(DLG_SAMPLE::kUnlimited))->isChecked(),
                              static_cast<QComboBox*>(form.GetDlgItem(DLG_SAMPLE::kKind))->currentIndex(),
                              static_cast<QLineEdit*>(form.GetDlgItem(DLG_SAMPLE::kName))->text()),
              std::make_tuple(QString("777"), true, 0, QString("abc")));
    // Apply while the form is updating leaves every field alone.
    static_cast<QLineEdit*>(form.GetDlgItem(DLG_SAMPLE::kPrice))->setText("5");
    form.m_bUpdating = 1;
    form.ApplyAll();
    form.m_bUpdating = 0;
    EXPECT_EQ(form.m_Work.m_nPrice, 777);
    Click(form, kIdCancel);
  });
}

TEST(Placement, WindowsStayInsideTheWorkArea) {
  const QRect work(0, 0, 800, 600);
  struct Case {
    QPoint pos;
    QSize size;
    QPoint expected;
  } cases[] = {
      {{-5, 10}, {200, 100}, {0, 10}},     // negative becomes 0
      {{700, 550}, {200, 100}, {600, 500}},  // pulled back by the overflow
      {{100, 100}, {200, 100}, {100, 100}},
      {{-50, -50}, {900, 700}, {0, 0}},    // larger than the work area: near edge stays
  };
  for (const Case& c : cases) EXPECT_EQ(PlaceInWorkArea(c.pos, c.size, work), c.expected);
  EXPECT_EQ(PlaceInWorkArea({5, 5}, {10, 10}, QRect(100, 50, 300, 300)), QPoint(100, 50));

  DLG_SAMPLE form(SampleSkill());
  form.m_nX = -5;
  form.m_nY = 20;
  RunModal(form, [&] {
    EXPECT_EQ(form.m_hWnd->x(), QGuiApplication::primaryScreen()->availableGeometry().left());
    Click(form, kIdCancel);
  });
}

TEST(Registry, ModelessFormsJoinWhileOpenAndTheirFlagsAreUndone) {
  DLG_SAMPLE other(SampleSkill());
  ASSERT_TRUE(other.Create(0, true));
  EXPECT_TRUE(g_WndList.Contains(&other));
  DLG_SAMPLE form(SampleSkill());
  RunModal(form, [&] {
    EXPECT_TRUE(other.m_hWnd->isVisible());
    Click(form, kIdCancel);
  });
  form.m_vecSeen.clear();
  QTimer::singleShot(0, [&] {
    EXPECT_FALSE(other.m_hWnd->isVisible() || other.m_hWnd->isEnabled());
    Click(form, kIdCancel);
  });
  form.DoModal(kDlgHideOthers | kDlgDisableOthers);
  EXPECT_TRUE(other.m_hWnd->isVisible() && other.m_hWnd->isEnabled());
  EXPECT_FALSE(other.Create());  // one window per object
  other.End(0);
  EXPECT_FALSE(g_WndList.Contains(&other) || other.m_hWnd);
}

}  // namespace
