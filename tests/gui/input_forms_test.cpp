#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QInputMethodEvent>
#include <QLineEdit>
#include <QTest>
#include <QTimer>
#include <functional>

#include "forms/input_forms.h"
#include "gui/modal_support.h"
#include "platform/cp932.h"

namespace {

QLineEdit* InputEdit(DLG_CLASS& form) { return qobject_cast<QLineEdit*>(form.GetDlgItem(cInputForm::kIdInput)); }
void Press(DLG_CLASS& form, unsigned id) { static_cast<QAbstractButton*>(form.GetDlgItem(id))->click(); }

// Types `utf8` as an input method's commits, one character each.
void Type(QWidget* w, const char* utf8) {
  for (QChar c : QString::fromUtf8(utf8)) {
    QInputMethodEvent commit;
    commit.setCommitString(QString(c));
    QApplication::sendEvent(w, &commit);
  }
}

// The keyboard focus on `w` in its active window.
bool FocusOn(QWidget* w) {
  w->window()->activateWindow();
  if (!QTest::qWaitForWindowActive(w->window())) return false;
  w->setFocus();
  return QApplication::focusWidget() == w;
}

TEST(InputValue, OpensSelectedSoATypedDigitReplacesItAndOnlyOkStoresTheClampedValue) {
  struct Case {
    const char* keys;
    unsigned button;
    int result, value;
  } cases[] = {{"7", kIdOk, 1, 7}, {"50", kIdOk, 1, 20}, {"7", kIdCancel, 0, 5}};
  for (const Case& c : cases) {
    int value = 5;
    DuringModal([&](DLG_CLASS& form) {
      EXPECT_EQ(form.m_hWnd->windowTitle(), QString::fromUtf8("個数"));
      QLineEdit* edit = InputEdit(form);
      EXPECT_EQ(edit->selectedText(), "5");
      QTest::keyClicks(edit, c.keys);
      EXPECT_EQ(value, 5);  // the field waits for OK
      Press(form, c.button);
    });
    EXPECT_EQ(InputValue(nullptr, nullptr, &value, 0, 20, CP932_TEXT("個数")), c.result) << c.keys;
    EXPECT_EQ(value, c.value) << c.keys;
  }
}

TEST(InputText, KeepsToItsLimitAndOnlyOkWritesTheField) {
  struct Case {
    bool wide;
    const char* keys;
    unsigned button;
    int result;
    std::string expected;
  } cases[] = {
      {false, "abcdefgh", kIdOk, 1, "abcde"},                        // five bytes
      {true, "あいうえおか", kIdOk, 1, CP932_TEXT("あいうえお")},  // five characters
      {true, "xyz", kIdCancel, 0, "old"},
  };
  for (const Case& c : cases) {
    std::string text = "old";
    DuringModal([&](DLG_CLASS& form) {
      QLineEdit* edit = InputEdit(form);
      EXPECT_EQ(edit->selectedText(), "old");
      Type(edit, c.keys);
      Press(form, c.button);
    });
    EXPECT_EQ(InputText(nullptr, nullptr, &text, 5, c.wide), c.result) << c.keys;
    EXPECT_EQ(text, c.expected) << c.keys;
  }
}

// A form that records the keys it is given.
class cKeyForm : public DLG_INPUT_STR {
 public:
  explicit cKeyForm(std::string* text) : DLG_INPUT_STR(nullptr, text, 10, false, {}, nullptr, false) {}
  void OnKeyDown(int key, bool bCtrl) override { keys.push_back(key); }
  std::vector<int> keys;
};

// Runs a key form with its edit focused; `during` gets the edit.
int RunKeyForm(cKeyForm& form, std::function<void(QLineEdit*)> during) {
  QTimer::singleShot(0, [&form, during] {
    QLineEdit* edit = InputEdit(form);
    if (FocusOn(edit)) during(edit);
    else ADD_FAILURE() << "the edit has no focus";
    if (form.m_hWnd && form.m_hWnd->isVisible()) Press(form, kIdOk);
  });
  return form.DoModal();
}

TEST(FormKeys, KeysInAChildReachTheFormOnceAndTabNever) {
  std::string text = "abc";
  cKeyForm form(&text);
  RunKeyForm(form, [&](QLineEdit* edit) {
    for (Qt::Key k : {Qt::Key_F5, Qt::Key_Space, Qt::Key_Left, Qt::Key_Down, Qt::Key_Delete, Qt::Key_F1, Qt::Key_F8,
                      Qt::Key_Tab})
      QTest::keyClick(edit, k);
    EXPECT_EQ(form.keys, (std::vector<int>{116, 32, 37, 40, 46, 112, 119}));
  });
}

TEST(FormKeys, NothingReachesTheFormWhileTheInputMethodComposes) {
  std::string text;
  cKeyForm form(&text);
  RunKeyForm(form, [&](QLineEdit* edit) {
    QInputMethodEvent compose(QString::fromUtf8("か"), {});
    QApplication::sendEvent(edit, &compose);
    for (Qt::Key k : {Qt::Key_F5, Qt::Key_Space, Qt::Key_Down, Qt::Key_Return}) QTest::keyClick(edit, k);
    EXPECT_TRUE(form.keys.empty());
    QInputMethodEvent commit;
    commit.setCommitString(QString::fromUtf8("蚊"));
    QApplication::sendEvent(edit, &commit);
    QTest::keyClick(edit, Qt::Key_F5);
    EXPECT_EQ(form.keys, std::vector<int>{116});
  });
}

TEST(FormKeys, EscapeClosesTheFormUnlessTheFormHoldsItBack) {
  for (int hold : {0, 1}) {
    std::string text;
    cKeyForm form(&text);
    form.m_bHoldEsc = hold;
    const int result = RunKeyForm(form, [&](QLineEdit* edit) {
      QTest::keyClick(edit, Qt::Key_Escape);
      EXPECT_EQ(form.keys, hold ? std::vector<int>{} : std::vector<int>{27});
    });
    EXPECT_EQ(result, hold) << hold;  // held back, the form stays open for OK
  }
}

}  // namespace
