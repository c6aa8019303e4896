#include "toolkit/form_layout.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QSlider>
#include <algorithm>

#include "toolkit/ctrl_types.h"
#include "toolkit/dlg_class.h"
#include "toolkit/widgets.h"

namespace {

QString Utf8(const char* s) { return QString::fromUtf8(s != nullptr ? s : ""); }

// Enter presses OK where a form has one, as in every dialog; no other button takes it.
QPushButton* MakeButton(unsigned id, const char* text, QWidget* parent) {
  auto* b = new QPushButton(Utf8(text), parent);
  b->setAutoDefault(false);
  b->setDefault(id == kIdOk);
  return b;
}

// A command from a widget to its form. The form is looked up at the time: a window
// deleted later may still report a lost focus after its form is gone.
void Send(QWidget* w, unsigned id, unsigned code) {
  if (DLG_CLASS* form = DLG_CLASS::FromWidget(w)) form->SendCommand(id, code);
}

}  // namespace

cFormLayout::cFormLayout(DLG_CLASS& form, QWidget* parent)
    : m_Form(form), m_pParent(parent), m_pRoot(new QGridLayout(parent)) {}

cFormLayout& cFormLayout::NoMargins() {
  m_pRoot->setContentsMargins(0, 0, 0, 0);
  m_pRoot->setSpacing(0);
  return *this;
}

QGridLayout* cFormLayout::Grid() const {
  return m_pGroup != nullptr ? m_pGroup : m_pColumn != nullptr ? m_pColumn : m_pRoot;
}

cFormLayout& cFormLayout::Row() {
  if (m_pGroup != nullptr) {
    ++m_nGroupRow;
    m_nGroupCol = 0;
  } else if (m_pColumn != nullptr) {
    ++m_nColumnRow;
    m_nColumnCol = 0;
  } else {
    ++m_nRow;
    m_nCol = 0;
  }
  return *this;
}

cFormLayout& cFormLayout::Put(QWidget* w, unsigned id, int span) {
  int& row = m_pGroup != nullptr ? m_nGroupRow : m_pColumn != nullptr ? m_nColumnRow : m_nRow;
  int& col = m_pGroup != nullptr ? m_nGroupCol : m_pColumn != nullptr ? m_nColumnCol : m_nCol;
  if (w != nullptr) {
    Grid()->addWidget(w, row, col, 1, span);
    m_Form.RegisterItem(id, w);
    m_pLast = w;
  }
  col += span;
  return *this;
}

cFormLayout& cFormLayout::Group(const char* title, int span) {
  EndGroup();
  int& row = m_pColumn != nullptr ? m_nColumnRow : m_nRow;
  int& col = m_pColumn != nullptr ? m_nColumnCol : m_nCol;
  // A box of a given span stands beside what the row holds; one without takes a row.
  if (span <= 0 && col != 0) ++row, col = 0;
  auto* box = new QGroupBox(Utf8(title), m_pParent);
  (m_pColumn != nullptr ? m_pColumn : m_pRoot)->addWidget(box, row, col, 1, span > 0 ? span : -1);
  m_pGroup = new QGridLayout(box);
  m_nGroupRow = m_nGroupCol = 0;
  m_nGroupSpan = span;
  return *this;
}

cFormLayout& cFormLayout::EndGroup() {
  if (m_pGroup == nullptr) return *this;
  m_pGroup = nullptr;
  int& row = m_pColumn != nullptr ? m_nColumnRow : m_nRow;
  int& col = m_pColumn != nullptr ? m_nColumnCol : m_nCol;
  if (m_nGroupSpan > 0) {
    col += m_nGroupSpan;  // the row goes on beside the box
    m_nGroupSpan = 0;
    return *this;
  }
  col = 0;
  ++row;
  return *this;
}

// A column is a grid of its own that spans every row of the form so far and one more,
// which takes what height the column needs beyond them: the rows beside it keep theirs.
cFormLayout& cFormLayout::Column() {
  EndGroup();
  if (m_pBand == nullptr) {
    if (m_nCol != 0) Row();
    m_pBand = new QHBoxLayout;
    m_pRoot->addLayout(m_pBand, m_nRow, 0, 1, -1);
  } else {
    // What a column leaves below its cells stays empty rather than spreading them.
    m_pColumn->setRowStretch(m_nColumnRow + 1, 1);
  }
  m_pColumn = new QGridLayout;
  m_pBand->addLayout(m_pColumn);
  m_nColumnRow = m_nColumnCol = 0;
  return *this;
}

cFormLayout& cFormLayout::EndColumns() {
  EndGroup();
  if (m_pBand == nullptr) return *this;
  m_pColumn->setRowStretch(m_nColumnRow + 1, 1);
  m_pBand = nullptr;
  m_pColumn = nullptr;
  ++m_nRow;
  m_nCol = 0;
  return *this;
}

cFormLayout& cFormLayout::Skip(int span) { return Put(nullptr, 0, span); }

cFormLayout& cFormLayout::Text(const char* text, int span) { return Put(new QLabel(Utf8(text), m_pParent), 0, span); }

cFormLayout& cFormLayout::Label(unsigned id, const char* text, int span) {
  return Put(new QLabel(Utf8(text), m_pParent), id, span);
}

cFormLayout& cFormLayout::Button(unsigned id, const char* text, int span) {
  auto* b = MakeButton(id, text, m_pParent);
  QObject::connect(b, &QPushButton::clicked, b, [b, id] { Send(b, id, kNotifyClicked); });
  return Put(b, id, span);
}

cFormLayout& cFormLayout::Check(unsigned id, const char* text, int span) {
  auto* c = new QCheckBox(Utf8(text), m_pParent);
  // `clicked` comes of the user alone; setChecked by the program stays silent.
  QObject::connect(c, &QCheckBox::clicked, c, [c, id] { Send(c, id, kNotifyClicked); });
  return Put(c, id, span);
}

cFormLayout& cFormLayout::EditVal(unsigned id, unsigned spinId, int span) {
  auto* edit = new cNumberEdit(m_pParent);
  edit->onEdited = [edit, id] { Send(edit, id, kNotifyEditUpdate); };
  edit->onFocusOut = [edit, id] { Send(edit, id, kNotifyEditKillFocus); };
  if (spinId == 0) return Put(edit, id, span);
  auto* cell = new QWidget(m_pParent);
  auto* row = new QHBoxLayout(cell);
  row->setContentsMargins(0, 0, 0, 0);
  row->setSpacing(0);
  auto* spin = new cSpinButtons(cell);
  spin->onDelta = [spin, spinId](int delta) {
    if (DLG_CLASS* form = DLG_CLASS::FromWidget(spin)) form->Notify(spinId, delta);
  };
  row->addWidget(edit);
  row->addWidget(spin);
  m_Form.RegisterItem(id, edit);
  m_Form.RegisterItem(spinId, spin);
  Put(cell, 0, span);
  m_pLast = edit;
  return *this;
}

cFormLayout& cFormLayout::EditStr(unsigned id, int lines, int span) {
  if (lines <= 1) {
    auto* line = new cTextLine(m_pParent);
    line->onEdited = [line, id] { Send(line, id, kNotifyEditUpdate); };
    line->onFocusOut = [line, id] { Send(line, id, kNotifyEditKillFocus); };
    return Put(line, id, span);
  }
  auto* box = new cTextBox(m_pParent);
  box->onEdited = [box, id] { Send(box, id, kNotifyEditUpdate); };
  box->onFocusOut = [box, id] { Send(box, id, kNotifyEditKillFocus); };
  box->setLineWrapMode(QPlainTextEdit::NoWrap);  // the text's own breaks are its lines
  box->setMinimumHeight(box->fontMetrics().lineSpacing() * lines + 12);
  return Put(box, id, span);
}

cFormLayout& cFormLayout::Combo(unsigned id, int span) {
  auto* c = new QComboBox(m_pParent);
  QObject::connect(c, &QComboBox::activated, c, [c, id](int) { Send(c, id, kNotifySelChange); });
  return Put(c, id, span);
}

cFormLayout& cFormLayout::Slider(unsigned id, int span) {
  auto* s = new QSlider(Qt::Horizontal, m_pParent);
  QObject::connect(s, &QSlider::valueChanged, s, [s](int) {
    if (DLG_CLASS* form = DLG_CLASS::FromWidget(s)) form->Scrolled(s);
  });
  return Put(s, id, span);
}

cFormLayout& cFormLayout::Picture(unsigned id, int width, int height, int span) {
  auto* p = new cPictureWidget(m_pParent);
  if (width > 0 && height > 0) p->setFixedSize(width, height);
  return Put(p, id, span);
}

cFormLayout& cFormLayout::List(unsigned id, int rows, int span) {
  auto* l = new cListWidget(m_pParent);
  l->setMinimumHeight(l->fontMetrics().lineSpacing() * rows + 8);
  return Put(l, id, span);
}

cFormLayout& cFormLayout::Widget(unsigned id, const std::function<QWidget*(QWidget*)>& make, int span) {
  return Put(make ? make(m_pParent) : nullptr, id, span);
}

cFormLayout& cFormLayout::OkCancel(bool cancel) {
  EndColumns();
  if (m_nCol != 0) Row();
  auto* cell = new QWidget(m_pParent);
  auto* row = new QHBoxLayout(cell);
  row->setContentsMargins(0, 0, 0, 0);
  row->addStretch(1);
  for (auto [id, text] : {std::pair<unsigned, const char*>{kIdOk, "OK"}, {kIdCancel, "ｷｬﾝｾﾙ"}}) {
    if (id == kIdCancel && !cancel) break;
    auto* b = MakeButton(id, text, cell);
    b->setAccessibleName(b->text());
    QObject::connect(b, &QPushButton::clicked, b, [b, id = id] { Send(b, id, kNotifyClicked); });
    m_Form.RegisterItem(id, b);
    row->addWidget(b);
  }
  m_pRoot->addWidget(cell, m_nRow, 0, 1, -1);
  ++m_nRow;
  return *this;
}
