#include "toolkit/ctrls.h"

#include <QAbstractButton>
#include <QCheckBox>
#include <QComboBox>
#include <QFontMetrics>
#include <QLabel>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QSlider>

#include "platform/cp932.h"
#include "toolkit/dlg_class.h"
#include "toolkit/widgets.h"

// --- the base ---

void CTRL_CLASS::Enable(bool bEnable) {
  if (m_hWnd) m_hWnd->setEnabled(bEnable);
}

bool CTRL_CLASS::OwnerUpdating() const { return m_pOwner != nullptr && m_pOwner->m_bUpdating; }

void CTRL_CLASS::ReportMissing(unsigned id) { ReportMissingCtrl(id); }

QWidget* CTRL_CLASS::FindWidget(DLG_CLASS* owner, unsigned id) {
  m_pOwner = owner;
  m_nId = static_cast<std::uint16_t>(id);
  m_hWnd = owner->GetDlgItem(id);
  if (!m_hWnd) {
    ReportMissing(id);
    return nullptr;
  }
  return m_hWnd;
}

// --- text of edit widgets ---

bool ReadEditBox(const QWidget* w, cEditBox& box) {
  QString text;
  int start = 0, end = 0;
  if (const auto* le = dynamic_cast<const QLineEdit*>(w)) {
    text = le->text();
    if (le->hasSelectedText()) {
      start = le->selectionStart();
      end = le->selectionEnd();
    } else {
      start = end = le->cursorPosition();
    }
  } else if (const auto* pe = dynamic_cast<const QPlainTextEdit*>(w)) {
    text = pe->toPlainText();
    const QTextCursor c = pe->textCursor();
    start = c.selectionStart();
    end = c.selectionEnd();
  }
  const std::string utf8 = text.toStdString();
  if (EditBoxFromScreen(utf8, start, end, box)) return true;
  EditBoxFromScreen(Cp932ToUtf8Lossy(Utf8ToCp932Lossy(utf8)), start, end, box);
  return false;
}

void WriteEditBox(QWidget* w, const cEditBox& box) {
  std::string utf8;
  int start = 0, end = 0;
  ScreenFromEditBox(box, utf8, start, end);
  const QString text = QString::fromStdString(utf8);
  if (auto* le = dynamic_cast<QLineEdit*>(w)) {
    const QSignalBlocker block(le);
    if (le->text() != text) le->setText(text);
    if (start == end) le->setCursorPosition(start);
    else le->setSelection(start, end - start);
  } else if (auto* pe = dynamic_cast<QPlainTextEdit*>(w)) {
    const QSignalBlocker block(pe);
    if (pe->toPlainText() != text) pe->setPlainText(text);
    QTextCursor c = pe->textCursor();
    const int last = static_cast<int>(text.size());
    c.setPosition(std::min(start, last));
    c.setPosition(std::min(end, last), QTextCursor::KeepAnchor);
    pe->setTextCursor(c);
  }
}

// --- number edit and spin ---

bool CTRL_SPIN_CLASS::BindSpin(DLG_CLASS* owner, unsigned id) { return BindWidget<cSpinButtons>(owner, id) != nullptr; }

bool cEditValCtrl::BindBox(DLG_CLASS* owner, unsigned id, unsigned spinId) {
  if (BindWidget<cNumberEdit>(owner, id) == nullptr) return false;
  if (spinId != 0) m_Spin.BindSpin(owner, spinId);
  return true;
}

void cEditValCtrl::FitRange(double nMin, double nMax, int places) {
  if (auto* edit = dynamic_cast<cNumberEdit*>(m_hWnd.data()))
    edit->FitText(QString::fromStdString(EditValWidestText(nMin, nMax, places)));
}

cEditBox cEditValCtrl::Box() const {
  cEditBox box;
  ReadEditBox(m_hWnd, box);
  return box;
}

void cEditValCtrl::Enable(bool bEnable) {
  CTRL_CLASS::Enable(bEnable);
  m_Spin.Enable(bEnable);
}

void cEditValCtrl::OnChange() {
  if (m_bBusy || !m_hWnd) return;
  m_bBusy = true;
  cEditBox box = Box();
  if (Core().OnChange(box)) Show(box);
  m_bBusy = false;
}

void cEditValCtrl::OnKillFocus() {
  if (m_bBusy || !m_hWnd) return;
  cEditBox box = Box();
  Core().OnKillFocus(box);
  Show(box);
}

int cEditValCtrl::OnNotify(unsigned id, int delta) {
  if (!m_Spin.m_hWnd || id != m_Spin.m_nId || !m_hWnd) return 0;
  cEditBox box = Box();
  Core().OnSpin(delta, box);
  Show(box);
  // The new text is a change of the value, as if typed.
  m_pOwner->SendCommand(m_nId, kNotifyEditUpdate);
  return 1;
}

// --- check ---

bool BindCheckWidget(CTRL_CLASS& ctrl, DLG_CLASS* owner, unsigned id) {
  return ctrl.BindWidget<QAbstractButton>(owner, id) != nullptr;
}

bool CheckWidgetChecked(const QWidget* w) {
  const auto* b = dynamic_cast<const QAbstractButton*>(w);
  return b != nullptr && b->isChecked();
}

void SetCheckWidget(QWidget* w, bool on) {
  if (auto* b = dynamic_cast<QAbstractButton*>(w)) {
    const QSignalBlocker block(b);
    b->setChecked(on);
  }
}

// --- combo ---

bool CTRL_COMBO_CLASS<int>::Bind(DLG_CLASS* owner) {
  if (BindWidget<QComboBox>(owner, m_Init.nId) == nullptr) return false;
  m_Rules.Bind(m_Init);
  Fill(-1);  // the selection comes with UpdateAll
  return true;
}

int CTRL_COMBO_CLASS<int>::CurRow() const {
  const auto* c = dynamic_cast<const QComboBox*>(m_hWnd.data());
  return c != nullptr ? c->currentIndex() : -1;
}

void CTRL_COMBO_CLASS<int>::Fill(int row) {
  auto* c = dynamic_cast<QComboBox*>(m_hWnd.data());
  if (c == nullptr) return;
  const QSignalBlocker block(c);
  // A row change of a page refills its boxes of names of 999 rows each time; most
  // times the names are the ones already there.
  if (m_Rules.Rows() != m_vecShown || c->count() != static_cast<int>(m_vecShown.size())) {
    m_vecShown = m_Rules.Rows();
    QStringList texts;
    texts.reserve(static_cast<qsizetype>(m_vecShown.size()));
    for (const std::string& r : m_vecShown) texts.push_back(QString::fromStdString(r));
    c->clear();
    c->addItems(texts);
  }
  c->setCurrentIndex(row);
}

void CTRL_COMBO_CLASS<int>::Update() {
  if (auto* c = dynamic_cast<QComboBox*>(m_hWnd.data())) {
    const QSignalBlocker block(c);
    c->setCurrentIndex(m_Rules.Update());
  }
}

void CTRL_COMBO_CLASS<int>::Apply() { m_Rules.Apply(CurRow(), OwnerUpdating()); }

int CTRL_COMBO_CLASS<int>::GetValue() const { return m_Rules.ValueOfRow(CurRow()); }

void CTRL_COMBO_CLASS<int>::SetLabels(const char* const* labels, const VECTOR_CLASS<int>* pValues) {
  Fill(m_Rules.SetLabels(labels, pValues, CurRow()));
}

void CTRL_COMBO_CLASS<int>::SetLabels(const VECTOR_CLASS<std::string>& labels, const VECTOR_CLASS<int>* pValues) {
  Fill(m_Rules.SetLabels(labels, pValues, CurRow()));
}

// --- slider ---

bool cSliderCtrl::BindSlider(DLG_CLASS* owner, unsigned id, unsigned editId, std::pair<int, int> range, int page,
                             int step) {
  auto* s = BindWidget<QSlider>(owner, id);
  if (s == nullptr) return false;
  const QSignalBlocker block(s);
  s->setRange(range.first, range.second);
  s->setPageStep(page);
  s->setSingleStep(step);
  m_hEdit = nullptr;
  if (editId != 0) {
    m_hEdit = owner->GetDlgItem(editId);
    if (!m_hEdit) ReportMissing(editId);
  }
  return true;
}

void cSliderCtrl::Show(int pos, const cEditBox& mirror) {
  if (auto* s = dynamic_cast<QSlider*>(m_hWnd.data())) {
    const QSignalBlocker block(s);
    s->setValue(pos);
  }
  if (m_hEdit) WriteEditBox(m_hEdit, mirror);
  // The form hears of every new position, as of a command of the slider.
  m_pOwner->SendCommand(m_nId, kNotifyClicked);
}

void cSliderCtrl::Enable(bool bEnable) {
  CTRL_CLASS::Enable(bEnable);
  if (m_hEdit) m_hEdit->setEnabled(bEnable);
}

int cSliderCtrl::OnScroll(QWidget* from) {
  auto* s = dynamic_cast<QSlider*>(m_hWnd.data());
  if (s == nullptr || from != s) return 0;
  cEditBox mirror;
  if (m_hEdit) ReadEditBox(m_hEdit, mirror);
  Scrolled(s->value(), mirror);
  Show(s->value(), mirror);
  return 0;  // the other controls see the move too
}

// --- label, button, picture ---

bool CTRL_LABEL_CLASS::Bind(DLG_CLASS* owner) { return BindWidget<QLabel>(owner, m_Init.nId) != nullptr; }

void CTRL_LABEL_CLASS::SetText(const std::string& text) {
  if (auto* l = dynamic_cast<QLabel*>(m_hWnd.data())) l->setText(QString::fromStdString(Cp932ToUtf8Lossy(text)));
}

bool CTRL_BUTTON_CLASS::Bind(DLG_CLASS* owner) { return BindWidget<QAbstractButton>(owner, m_Init.nId) != nullptr; }

bool CTRL_PICTURE_CLASS::Bind(DLG_CLASS* owner) {
  auto* p = BindWidget<cPictureWidget>(owner, m_Init.nId);
  if (p == nullptr) return false;
  if (m_Init.nWidth != 0 && m_Init.nHeight != 0) p->setFixedSize(m_Init.nWidth, m_Init.nHeight);
  if (m_Init.nX >= 0 && m_Init.nY >= 0) {
    // Dialog units: a quarter of the average character width, an eighth of its height.
    const QFontMetrics fm(p->font());
    p->move(m_Init.nX * fm.averageCharWidth() / 4, m_Init.nY * fm.height() / 8);
  }
  m_Surface.Create(std::max(1, p->width()), std::max(1, p->height()), 24, 0);
  p->surface = &m_Surface;
  return true;
}

void CTRL_PICTURE_CLASS::Redraw() {
  if (m_hWnd) m_hWnd->update();
}

// --- scroll bar ---

void CTRL_SCROLL_CLASS::BindBar(DLG_CLASS* owner, QScrollBar* bar) {
  m_pOwner = owner;
  m_hWnd = bar;
}

QScrollBar* CTRL_SCROLL_CLASS::Bar() const { return dynamic_cast<QScrollBar*>(m_hWnd.data()); }

int CTRL_SCROLL_CLASS::GetPos() const { return Bar() != nullptr ? Bar()->value() : 0; }

void CTRL_SCROLL_CLASS::SetPos(int n) {
  if (Bar() != nullptr) Bar()->setValue(n);
}

int CTRL_SCROLL_CLASS::AddPos(int n) {
  SetPos(GetPos() + n);
  return GetPos();
}

bool CTRL_SCROLL_CLASS::Scroll(int action) {
  if (Bar() == nullptr) return false;
  const int before = GetPos();
  Bar()->triggerAction(static_cast<QAbstractSlider::SliderAction>(action));
  return GetPos() != before;
}

// --- text edit ---

bool CTRL_EDITSTR_CLASS::Bind(DLG_CLASS* owner) {
  QWidget* w = FindWidget(owner, m_Init.nId);
  if (w == nullptr) return false;
  if (dynamic_cast<cTextLine*>(w) == nullptr && dynamic_cast<cTextBox*>(w) == nullptr) {
    ReportMissing(m_Init.nId);
    m_hWnd = nullptr;
    return false;
  }
  cEditBox box;
  m_Rules.Bind(m_Init, box);
  WriteEditBox(m_hWnd, box);
  return true;
}

void CTRL_EDITSTR_CLASS::Update() {
  cEditBox box;
  m_Rules.Update(box);
  WriteEditBox(m_hWnd, box);
}

void CTRL_EDITSTR_CLASS::Apply() {
  cEditBox box;
  ReadEditBox(m_hWnd, box);
  m_Rules.Apply(box, OwnerUpdating());
}

void CTRL_EDITSTR_CLASS::SetText(const std::string& text) {
  cEditBox box;
  m_Rules.SetText(box, text);
  WriteEditBox(m_hWnd, box);
}

void CTRL_EDITSTR_CLASS::OnChange() {
  if (m_bBusy || !m_hWnd) return;
  m_bBusy = true;
  cEditBox box;
  if (ReadEditBox(m_hWnd, box)) {
    bool backspace = false;
    if (const auto* l = dynamic_cast<const cTextLine*>(m_hWnd.data())) backspace = l->EditByBackspace();
    if (const auto* b = dynamic_cast<const cTextBox*>(m_hWnd.data())) backspace = b->EditByBackspace();
    m_Rules.OnChange(box, backspace);
  } else {
    // A character without a CP932 form is refused: the text stays as last accepted.
    const int caret = std::min(box.selStart, static_cast<int>(m_Rules.Last().size()));
    box = {m_Rules.Last(), caret, caret};
  }
  WriteEditBox(m_hWnd, box);
  m_bBusy = false;
}
