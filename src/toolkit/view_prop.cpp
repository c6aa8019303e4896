#include <QDialog>
#include <QHBoxLayout>
#include <QMouseEvent>
#include <QPainter>
#include <QPushButton>
#include <QTabWidget>
#include <QTimer>
#include <QVBoxLayout>

#include "toolkit/dlg_class.h"
#include "toolkit/widgets.h"

namespace {

// The widget of a view: paints the view's back buffer and passes the mouse on.
class cViewWidget : public QWidget {
 public:
  cViewWidget(VIEW_CLASS* view, QWidget* parent) : QWidget(parent), m_pView(view) { setMouseTracking(true); }

 protected:
  void paintEvent(QPaintEvent*) override {
    m_pView->OnPaint();
    const QImage image = ImageOfSurface(m_pView->m_Back);
    if (image.isNull()) return;
    QPainter p(this);
    p.drawImage(0, 0, image);
  }
  void mousePressEvent(QMouseEvent* e) override { Button(e, true); }
  void mouseReleaseEvent(QMouseEvent* e) override { Button(e, false); }
  void mouseDoubleClickEvent(QMouseEvent* e) override {
    const QPoint p = Track(e);
    if (e->button() == Qt::LeftButton) m_pView->OnLButtonDblClk(p.x(), p.y());
    if (e->button() == Qt::RightButton) m_pView->OnRButtonDblClk(p.x(), p.y());
  }
  void mouseMoveEvent(QMouseEvent* e) override {
    const QPoint p = Track(e);
    m_pView->OnMouseMove(p.x(), p.y());
  }

 private:
  QPoint Track(QMouseEvent* e) {
    const QPoint p = e->position().toPoint();
    cMouseState& m = m_pView->m_Mouse;
    m.x = p.x();
    m.y = p.y();
    m.left = e->buttons() & Qt::LeftButton;
    m.right = e->buttons() & Qt::RightButton;
    return p;
  }
  void Button(QMouseEvent* e, bool down) {
    const QPoint p = Track(e);
    if (e->button() == Qt::LeftButton) down ? m_pView->OnLButtonDown(p.x(), p.y()) : m_pView->OnLButtonUp(p.x(), p.y());
    if (e->button() == Qt::RightButton) down ? m_pView->OnRButtonDown(p.x(), p.y()) : m_pView->OnRButtonUp(p.x(), p.y());
  }
  VIEW_CLASS* m_pView;
};

// The window of a sheet: closing it by its frame is Cancel.
class cSheetWindow : public QDialog {
 public:
  cSheetWindow(PROP_CLASS* sheet, QWidget* parent) : QDialog(parent), m_pSheet(sheet) {}
  void reject() override { m_pSheet->Close(); }

 private:
  PROP_CLASS* m_pSheet;
};

}  // namespace

bool VIEW_CLASS::CreateView(QWidget* parent, int w, int h) {
  if (m_hWnd) return false;
  auto* widget = new cViewWidget(this, parent);
  widget->resize(w, h);
  m_hWnd = widget;
  m_Back.Create(std::max(1, w), std::max(1, h), 24, 0);
  OnCreate();
  return true;
}

void VIEW_CLASS::Invalidate() {
  if (m_hWnd) m_hWnd->update();
}

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
  auto* tabs = new QTabWidget(window);
  column->addWidget(tabs);
  for (int i = 0; i < m_vecPage.Count(); ++i) {
    DLG_CLASS* page = m_vecPage[i];
    page->m_hParent = tabs;
    page->Create(0, false);
    tabs->addTab(page->m_hWnd, m_vecTitle[i]);
  }
  auto* buttons = new QHBoxLayout;
  buttons->addStretch(1);
  auto* ok = new QPushButton(QStringLiteral("OK"), window);
  auto* cancel = new QPushButton(QString::fromUtf8("キャンセル"), window);
  auto* apply = new QPushButton(QString::fromUtf8("適用"), window);
  apply->setObjectName(QStringLiteral("apply"));
  apply->setEnabled(false);
  for (QPushButton* b : {ok, cancel, apply}) {
    b->setAutoDefault(false);
    buttons->addWidget(b);
  }
  column->addLayout(buttons);
  QObject::connect(ok, &QPushButton::clicked, window, [this] {
    ApplyPages();
    Close();
  });
  QObject::connect(cancel, &QPushButton::clicked, window, [this] { Close(); });
  QObject::connect(apply, &QPushButton::clicked, window, [this, apply] {
    ApplyPages();
    apply->setEnabled(false);
  });
  QObject::connect(tabs, &QTabWidget::currentChanged, window, [this](int) {
    if (DLG_CLASS* page = CurrentPage()) page->OnSetActive();
  });
  g_WndList.AddSheet(this);
  window->show();
  if (DLG_CLASS* page = CurrentPage()) page->OnSetActive();
  return true;
}

DLG_CLASS* PROP_CLASS::CurrentPage() const {
  auto* tabs = m_hWnd ? m_hWnd->findChild<QTabWidget*>() : nullptr;
  if (tabs == nullptr || m_bClosed) return nullptr;
  const int i = tabs->currentIndex();
  return i >= 0 && i < m_vecPage.Count() ? m_vecPage[i] : nullptr;
}

void PROP_CLASS::ApplyPages() {
  for (DLG_CLASS* page : m_vecPage) page->OnApply();
}

void PROP_CLASS::Changed() {
  if (!m_hWnd) return;
  if (auto* apply = m_hWnd->findChild<QPushButton*>(QStringLiteral("apply"))) apply->setEnabled(true);
}

void PROP_CLASS::Close() {
  if (m_bClosed || !m_hWnd) return;
  m_bClosed = true;
  m_hWnd->hide();
  // The registry deletes the sheet once Qt has left the handler that closed it.
  QTimer::singleShot(0, [] {
    while (g_WndList.Pump()) {
    }
  });
}
