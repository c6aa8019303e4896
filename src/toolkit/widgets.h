#pragma once
// The widgets behind the typed controls. They know nothing of forms: each reports the
// user's actions through its callbacks, which the layout connects to the form's
// command path. Writes by the program go around the callbacks.

#include <QFocusEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPoint>
#include <functional>

class cSurface;

// The number edit: typed characters pass the number filter; committed input-method
// text arrives as the ASCII characters it stands for, and nothing of a composition
// shows in the box or reaches the form.
class cNumberEdit : public QLineEdit {
 public:
  explicit cNumberEdit(QWidget* parent = nullptr);
  std::function<void()> onEdited;
  std::function<void()> onFocusOut;
  // Never narrower than `widest` needs, so that a form squeezed to fit the screen still
  // shows every number of its range whole.
  void FitText(const QString& widest);

 protected:
  void keyPressEvent(QKeyEvent* e) override;
  void inputMethodEvent(QInputMethodEvent* e) override;
  void focusOutEvent(QFocusEvent* e) override;
};

// A text field that tells whether Backspace made the edit in progress, since the text
// edit's rules join lines on Backspace only: one line (QLineEdit) or several
// (QPlainTextEdit). Only the user's edits reach onEdited: the program writes with the
// signals blocked.
template <class Base>
class cTextEditOf : public Base {
 public:
  explicit cTextEditOf(QWidget* parent = nullptr);
  std::function<void()> onEdited;
  std::function<void()> onFocusOut;
  bool EditByBackspace() const { return m_bBackspace; }

 protected:
  void keyPressEvent(QKeyEvent* e) override {
    m_bBackspace = e->key() == Qt::Key_Backspace;
    Base::keyPressEvent(e);
    m_bBackspace = false;
  }
  void focusOutEvent(QFocusEvent* e) override {
    Base::focusOutEvent(e);
    if (e->reason() != Qt::PopupFocusReason && onFocusOut) onFocusOut();
  }

 private:
  bool m_bBackspace = false;
};
using cTextLine = cTextEditOf<QLineEdit>;
using cTextBox = cTextEditOf<QPlainTextEdit>;

// Two arrow buttons; each click reports +1 (up) or -1 (down).
class cSpinButtons : public QWidget {
 public:
  explicit cSpinButtons(QWidget* parent = nullptr);
  std::function<void(int delta)> onDelta;
  void Click(int delta) {
    if (isEnabled() && onDelta) onDelta(delta);
  }
};

// The list box: the user's selection changes and focus changes are reported; the right
// button is left to the form's context menu.
class cListWidget : public QListWidget {
 public:
  explicit cListWidget(QWidget* parent = nullptr);
  std::function<void()> onSelChange;
  std::function<void(bool focus)> onFocus;
  std::function<void(int top)> onScrolled;
  std::function<void()> onDoubleClick;  // on a row
  // Narrower than Qt's own default: forms set lists beside their fields, and a long
  // row scrolls.
  QSize sizeHint() const override;

 protected:
  void mousePressEvent(QMouseEvent* e) override;
  void mouseReleaseEvent(QMouseEvent* e) override;
  void focusInEvent(QFocusEvent* e) override;
  void focusOutEvent(QFocusEvent* e) override;
};

// Shows a surface of 24 or 32 bits as it is.
class cPictureWidget : public QWidget {
 public:
  explicit cPictureWidget(QWidget* parent = nullptr);
  const cSurface* surface = nullptr;

 protected:
  void paintEvent(QPaintEvent* e) override;
};

// A QImage over a surface's pixels (no copy); null for an empty surface or another depth.
class QImage;
class QPainter;
QImage ImageOfSurface(const cSurface& s);
// The one way a surface reaches the screen: drawn at `at` (logical pixels) with
// `ratio` of its pixels to a logical pixel. Where the screen's density is a whole
// multiple of that, every pixel becomes a crisp block; else it is smoothed.
void PaintSurface(QPainter& p, QPoint at, const cSurface& s, double ratio = 1.0);

// The virtual key code of a Qt key; 0 for keys without one here.
int VirtualKeyOf(int qtKey);
