#include "toolkit/widgets.h"

#include <QFocusEvent>
#include <QImage>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QStyle>
#include <QStyleOptionFrame>
#include <QToolButton>
#include <QVBoxLayout>

#include "media/surface.h"
#include "platform/cp932.h"
#include "toolkit/editval_rules.h"

cNumberEdit::cNumberEdit(QWidget* parent) : QLineEdit(parent) {
  connect(this, &QLineEdit::textEdited, this, [this] {
    if (onEdited) onEdited();
  });
  // However tight its form, a number keeps room for its digits: "-999999" and more.
  setMinimumWidth(fontMetrics().horizontalAdvance(QStringLiteral("-0000000")));
}

void cNumberEdit::FitText(const QString& widest) {
  ensurePolished();
  QStyleOptionFrame option;
  initStyleOption(&option);
  const QMargins margins = textMargins();
  // The line edit's own horizontal margin is 2 pixels on each side, and the cursor one more.
  const int text = fontMetrics().horizontalAdvance(widest) + margins.left() + margins.right() + 5;
  const QSize size = style()->sizeFromContents(QStyle::CT_LineEdit, &option, QSize(text, fontMetrics().height()), this);
  setMinimumWidth(size.width());
}

void cNumberEdit::keyPressEvent(QKeyEvent* e) {
  // Keys that type text pass the filter character by character; a refused one
  // vanishes without a beep. Keys without text (arrows, shortcuts) go on.
  const QString text = e->text();
  if (!text.isEmpty() && !(e->modifiers() & (Qt::ControlModifier | Qt::AltModifier))) {
    for (QChar c : text)
      if (!EditValCharPasses(c.unicode())) return;
  }
  QLineEdit::keyPressEvent(e);
}

void cNumberEdit::inputMethodEvent(QInputMethodEvent* e) {
  // The composition never shows; its result is typed as the characters it stands for.
  const QString commit = e->commitString();
  e->accept();
  if (commit.isEmpty()) return;
  std::string cp932;
  if (!Utf8ToCp932(commit.toStdString(), cp932)) cp932 = Utf8ToCp932Lossy(commit.toStdString());
  const std::string typed = EditValImeChars(cp932);
  if (typed.empty()) return;
  {
    const QSignalBlocker block(this);
    insert(QString::fromLatin1(typed.data(), static_cast<int>(typed.size())));
  }
  if (onEdited) onEdited();
}

void cNumberEdit::focusOutEvent(QFocusEvent* e) {
  QLineEdit::focusOutEvent(e);
  if (e->reason() != Qt::PopupFocusReason && onFocusOut) onFocusOut();
}

template <>
cTextLine::cTextEditOf(QWidget* parent) : QLineEdit(parent) {
  connect(this, &QLineEdit::textEdited, this, [this] {
    if (onEdited) onEdited();
  });
}

template <>
cTextBox::cTextEditOf(QWidget* parent) : QPlainTextEdit(parent) {
  connect(this, &QPlainTextEdit::textChanged, this, [this] {
    if (onEdited) onEdited();
  });
}

cSpinButtons::cSpinButtons(QWidget* parent) : QWidget(parent) {
  auto* box = new QVBoxLayout(this);
  box->setContentsMargins(0, 0, 0, 0);
  box->setSpacing(0);
  for (int delta : {1, -1}) {
    auto* b = new QToolButton(this);
    b->setArrowType(delta > 0 ? Qt::UpArrow : Qt::DownArrow);
    b->setAutoRepeat(true);
    b->setFocusPolicy(Qt::NoFocus);
    b->setFixedSize(16, 11);
    connect(b, &QToolButton::clicked, this, [this, delta] { Click(delta); });
    box->addWidget(b);
  }
}

cListWidget::cListWidget(QWidget* parent) : QListWidget(parent) {
  setContextMenuPolicy(Qt::NoContextMenu);
  // As a list box, rows end at its right edge: the blank row's hyphens are wider than
  // most lists and would otherwise bring a bar across every one of them.
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  connect(this, &QListWidget::itemSelectionChanged, this, [this] {
    if (onSelChange) onSelChange();
  });
  connect(verticalScrollBar(), &QScrollBar::valueChanged, this, [this](int) {
    if (onScrolled) onScrolled(indexAt(QPoint(1, 1)).row());
  });
  connect(this, &QListWidget::itemDoubleClicked, this, [this](QListWidgetItem*) {
    if (onDoubleClick) onDoubleClick();
  });
}

void cListWidget::mousePressEvent(QMouseEvent* e) {
  if (e->button() == Qt::RightButton) return;  // the context menu selects by its own rule
  QListWidget::mousePressEvent(e);
}

QSize cListWidget::sizeHint() const { return {200, QListWidget::sizeHint().height()}; }

void cListWidget::mouseReleaseEvent(QMouseEvent* e) {
  if (e->button() == Qt::RightButton) {
    e->ignore();  // the form opens the menu
    return;
  }
  QListWidget::mouseReleaseEvent(e);
}

void cListWidget::focusInEvent(QFocusEvent* e) {
  QListWidget::focusInEvent(e);
  if (onFocus) onFocus(true);
}

void cListWidget::focusOutEvent(QFocusEvent* e) {
  QListWidget::focusOutEvent(e);
  if (e->reason() != Qt::PopupFocusReason && onFocus) onFocus(false);
}

cPictureWidget::cPictureWidget(QWidget* parent) : QWidget(parent) {}

void cPictureWidget::paintEvent(QPaintEvent*) {
  if (surface == nullptr) return;
  QPainter p(this);
  PaintSurface(p, QPoint(0, 0), *surface);
}

void PaintSurface(QPainter& p, QPoint at, const cSurface& s, double ratio) {
  QImage image = ImageOfSurface(s);
  if (image.isNull()) return;
  image.setDevicePixelRatio(ratio);
  const double scale = p.device()->devicePixelRatioF() / ratio;
  const bool whole = scale == static_cast<int>(scale);
  p.setRenderHint(QPainter::SmoothPixmapTransform, !whole);
  p.drawImage(at, image);
}

QImage ImageOfSurface(const cSurface& s) {
  if (s.IsEmpty()) return {};
  // Rows are top-down, blue first: 24 bits are BGR888, 32 bits are the native ARGB
  // word of a little-endian machine.
  const QImage::Format format =
      s.m_nBits == 24 ? QImage::Format_BGR888 : s.m_nBits == 32 ? QImage::Format_RGB32 : QImage::Format_Invalid;
  if (format == QImage::Format_Invalid) return {};
  return QImage(s.m_vecBits.data(), s.m_nWidth, s.m_nHeight, s.Stride(), format);
}

int VirtualKeyOf(int k) {
  if ((k >= Qt::Key_A && k <= Qt::Key_Z) || (k >= Qt::Key_0 && k <= Qt::Key_9) || k == Qt::Key_Space) return k;
  if (k >= Qt::Key_F1 && k <= Qt::Key_F24) return 112 + (k - Qt::Key_F1);
  switch (k) {
    case Qt::Key_Backspace: return 8;
    case Qt::Key_Tab: return 9;
    case Qt::Key_Return:
    case Qt::Key_Enter: return 13;
    case Qt::Key_Shift: return 16;
    case Qt::Key_Control: return 17;
    case Qt::Key_Escape: return 27;
    case Qt::Key_PageUp: return 33;
    case Qt::Key_PageDown: return 34;
    case Qt::Key_End: return 35;
    case Qt::Key_Home: return 36;
    case Qt::Key_Left: return 37;
    case Qt::Key_Up: return 38;
    case Qt::Key_Right: return 39;
    case Qt::Key_Down: return 40;
    case Qt::Key_Insert: return 45;
    case Qt::Key_Delete: return 46;
    default: return 0;
  }
}
