#include "toolkit/prop_class.h"

#include <QDialog>
#include <QHBoxLayout>
#include <QPushButton>
#include <QScreen>
#include <QTabWidget>
#include <QTimer>
#include <QVBoxLayout>

#include "toolkit/dlg_class.h"

namespace {

// The window of a sheet: closing it by its frame or Escape is Cancel.
class cSheetWindow : public QDialog {
 public:
  cSheetWindow(PROP_CLASS* sheet, QWidget* parent) : QDialog(parent), m_pSheet(sheet) {}
  void reject() override { m_pSheet->Cancel(); }

 private:
  PROP_CLASS* m_pSheet;
};

QPushButton* SheetButton(const char* text, QWidget* parent) {
  auto* b = new QPushButton(QString::fromUtf8(text), parent);
  b->setAutoDefault(false);
  return b;
}

}  // namespace

PROP_CLASS::~PROP_CLASS() {
  g_WndList.RemoveSheet(this);
  for (DLG_CLASS* page : m_vecPage) delete page;
  delete m_hWnd.data();
}

void PROP_CLASS::AddPage(DLG_CLASS* page, const char* title) {
  page->m_nType = 2;
  page->m_pSheet = this;
  m_vecPage.push_back(page);
  m_vecTitle.push_back(QString::fromUtf8(title));
}

bool PROP_CLASS::Create(QWidget* parent, const char* caption) {
  if (m_hWnd) return false;
  m_nType = 1;
  m_bClosed = false;
  auto* window = new cSheetWindow(this, parent);
  window->setWindowTitle(QString::fromUtf8(caption));
  m_hWnd = window;
  auto* column = new QVBoxLayout(window);
  column->setContentsMargins(6, 6, 6, 6);  // the tabs frame the pages already
  m_pTabs = new QTabWidget(window);
  column->addWidget(m_pTabs);
  m_vecHolder.clear();
  for (int i = 0; i < m_vecPage.Count(); ++i) {
    auto* holder = new QWidget;
    auto* fill = new QVBoxLayout(holder);
    fill->setContentsMargins(0, 0, 0, 0);
    m_vecHolder.emplace_back(holder);
    m_pTabs->addTab(holder, m_vecTitle[i]);
  }
  auto* buttons = new QHBoxLayout;
  buttons->addStretch(1);
  QPushButton* ok = SheetButton("OK", window);
  QPushButton* cancel = SheetButton("キャンセル", window);
  QPushButton* apply = SheetButton("適用", window);
  for (QPushButton* b : {ok, cancel, apply}) {
    b->setAccessibleName(b->text());
    buttons->addWidget(b);
  }
  apply->setEnabled(false);
  m_pApply = apply;
  column->addLayout(buttons);
  QObject::connect(ok, &QPushButton::clicked, window, [this] { Ok(); });
  QObject::connect(cancel, &QPushButton::clicked, window, [this] { Cancel(); });
  QObject::connect(apply, &QPushButton::clicked, window, [this] { Apply(); });
  g_WndList.AddSheet(this);
  if (!m_vecPage.empty()) SetCurrentPage(0);
  QObject::connect(m_pTabs, &QTabWidget::currentChanged, window, [this](int i) { SetCurrentPage(i); });
  // A sheet of many pages opens no larger than the screen can show; its pages make do
  // with less than the room they would like.
  window->adjustSize();
  if (QScreen* screen = window->screen()) window->resize(window->size().boundedTo(screen->availableGeometry().size()));
  window->show();
  return true;
}

void PROP_CLASS::MakePage(int index) {
  DLG_CLASS* page = m_vecPage[index];
  if (page->m_hWnd) return;
  QWidget* holder = m_vecHolder[static_cast<std::size_t>(index)];
  page->m_hParent = holder;
  page->Create(0, false);
  if (page->m_hWnd) {
    holder->layout()->addWidget(page->m_hWnd);
    page->m_hWnd->show();
  }
}

void PROP_CLASS::SetCurrentPage(int index) {
  if (!IsOpen() || index < 0 || index >= m_vecPage.Count()) return;
  MakePage(index);
  if (m_pTabs->currentIndex() != index) {
    const QSignalBlocker block(m_pTabs);
    m_pTabs->setCurrentIndex(index);
  }
  m_vecPage[index]->OnSetActive();
}

int PROP_CLASS::CurrentIndex() const { return m_pTabs && !m_bClosed ? m_pTabs->currentIndex() : -1; }

DLG_CLASS* PROP_CLASS::CurrentPage() const {
  const int i = CurrentIndex();
  return i >= 0 && i < m_vecPage.Count() ? m_vecPage[i] : nullptr;
}

void PROP_CLASS::ApplyPages() {
  for (DLG_CLASS* page : m_vecPage)
    if (page->m_hWnd) page->OnApply();
}

void PROP_CLASS::Ok() {
  ApplyPages();
  Close();
}

void PROP_CLASS::Cancel() { Close(); }

void PROP_CLASS::Apply() {
  ApplyPages();
  if (m_pApply) m_pApply->setEnabled(false);
}

void PROP_CLASS::Changed() {
  if (m_pApply) m_pApply->setEnabled(true);
}

bool PROP_CLASS::ApplyEnabled() const { return m_pApply && m_pApply->isEnabled(); }

void PROP_CLASS::Close() {
  if (m_bClosed || !m_hWnd) return;
  m_bClosed = true;
  for (DLG_CLASS* page : m_vecPage)
    if (page->m_hWnd) page->End(0);
  OnEnd();
  m_hWnd->hide();
  // The registry deletes the sheet once Qt has left the handler that closed it.
  QTimer::singleShot(0, [] {
    while (g_WndList.Pump()) {
    }
  });
}
