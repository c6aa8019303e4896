#include <gtest/gtest.h>

#include <QFocusEvent>
#include <QInputMethodEvent>
#include <QLineEdit>
#include <QTest>

#include <tuple>

#include "platform/cp932.h"
#include "toolkit/ctrls.h"
#include "toolkit/dlg_class.h"
#include "toolkit/widgets.h"

namespace {

class DLG_NUMBERS : public DLG_CLASS {
 public:
  enum : unsigned { kFive = 1100, kSigned = 1101, kByte = 1102, kByteSpin = 1103, kHundredth = 1104 };
  DLG_NUMBERS() : DLG_CLASS(nullptr, "数") {
    Table()
        .EditVal(kFive, "五から", &m_nFive, 5, 10)
        .EditVal(kSigned, "負から", &m_nSigned, -5, 10)
        .Row()
        .EditVal<unsigned char>(kByte, "バイト", &m_byByte, 0, 255, 1, kByteSpin)
        .EditVal(kHundredth, "百分の一", &m_dHundredth, 0.0, 100.0, 0.01);
  }
  void OnFormCommand(unsigned id, unsigned code) override {
    if (code == kNotifyEditUpdate) ++m_nUpdates;
  }
  QLineEdit* Edit(unsigned id) { return static_cast<QLineEdit*>(GetDlgItem(id)); }

  int m_nFive = 7, m_nSigned = 3;
  unsigned char m_byByte = 9;
  double m_dHundredth = 0;
  int m_nUpdates = 0;
};

class NumberEdit : public ::testing::Test {
 protected:
  void SetUp() override { ASSERT_TRUE(m_Form.Create(0, false)); }
  void TearDown() override { m_Form.End(0); }
  // The user empties the box and types `keys`.
  QLineEdit* Type(unsigned id, const char* keys) {
    QLineEdit* e = m_Form.Edit(id);
    e->selectAll();
    QTest::keyClick(e, Qt::Key_Backspace);
    QTest::keyClicks(e, keys);
    return e;
  }
  void LeaveBox(unsigned id) {
    QFocusEvent out(QEvent::FocusOut, Qt::TabFocusReason);
    QApplication::sendEvent(m_Form.Edit(id), &out);
  }
  DLG_NUMBERS m_Form;
};

// The rules themselves are tested as plain functions; here each event of the widget
// must reach them: keystrokes, leaving the box, the spin buttons, Apply.
TEST_F(NumberEdit, KeystrokesFocusSpinAndApplyRunTheRules) {
  EXPECT_EQ(Type(DLG_NUMBERS::kByte, "300")->text(), "255");
  EXPECT_EQ(Type(DLG_NUMBERS::kSigned, "1a2")->text(), "10");
  Type(DLG_NUMBERS::kFive, "");
  LeaveBox(DLG_NUMBERS::kFive);
  EXPECT_EQ(m_Form.Edit(DLG_NUMBERS::kFive)->text(), "5");
  Type(DLG_NUMBERS::kHundredth, "1.234");
  LeaveBox(DLG_NUMBERS::kHundredth);
  EXPECT_EQ(m_Form.Edit(DLG_NUMBERS::kHundredth)->text(), "1.23");

  Type(DLG_NUMBERS::kByte, "");
  const int updates = m_Form.m_nUpdates;
  auto* spin = static_cast<cSpinButtons*>(m_Form.GetDlgItem(DLG_NUMBERS::kByteSpin));
  spin->Click(+1);
  spin->Click(+1);
  spin->Click(-1);
  EXPECT_EQ(m_Form.Edit(DLG_NUMBERS::kByte)->text(), "1");
  EXPECT_EQ(m_Form.m_nUpdates, updates + 3);
  EXPECT_EQ(m_Form.m_byByte, 9);  // nothing reaches the field before Apply
  m_Form.ApplyAll();
  EXPECT_EQ(std::tie(m_Form.m_byByte, m_Form.m_nFive), std::make_tuple(1, 5));
  EXPECT_DOUBLE_EQ(m_Form.m_dHundredth, 1.23);
}

TEST_F(NumberEdit, InputMethodResultsArriveAsDigitsAndCompositionsStayOut) {
  QLineEdit* e = Type(DLG_NUMBERS::kByte, "");
  const int updates = m_Form.m_nUpdates;
  QInputMethodEvent composing(QString::fromUtf8("１"), {});
  QApplication::sendEvent(e, &composing);
  EXPECT_EQ(e->text(), "");
  EXPECT_EQ(m_Form.m_nUpdates, updates);
  QInputMethodEvent commit;
  commit.setCommitString(QString::fromUtf8("１あ２"));
  QApplication::sendEvent(e, &commit);
  EXPECT_EQ(e->text(), "12");
  EXPECT_EQ(m_Form.m_nUpdates, updates + 1);
  QInputMethodEvent other;
  other.setCommitString(QString::fromUtf8("かな"));
  QApplication::sendEvent(e, &other);
  EXPECT_EQ(e->text(), "12");
  EXPECT_EQ(m_Form.m_nUpdates, updates + 1);
}

}  // namespace
