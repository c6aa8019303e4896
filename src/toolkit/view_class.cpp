#include "toolkit/view_class.h"

#include <QMouseEvent>
#include <QPainter>
#include <QWheelEvent>
#include <algorithm>

#include "toolkit/widgets.h"

namespace {

// The widget of a view: paints the view's back buffer and passes the mouse on.
class cViewWidget : public QWidget {
 public:
  cViewWidget(VIEW_CLASS* view, QWidget* parent) : QWidget(parent), m_pView(view) {
    setMouseTracking(true);
    setAttribute(Qt::WA_OpaquePaintEvent);
  }
  VIEW_CLASS* m_pView;

 protected:
  void paintEvent(QPaintEvent*) override {
    if (m_pView == nullptr) return;
    m_pView->OnPaint();
    QPainter p(this);
    PaintSurface(p, QPoint(0, 0), m_pView->m_Back, m_pView->m_dBackRatio);
  }
  void resizeEvent(QResizeEvent* e) override {
    QWidget::resizeEvent(e);
    if (m_pView == nullptr || !m_bGrow) return;
    m_pView->m_Back.Create(std::max(1, width()), std::max(1, height()), 24, 0);
    m_pView->OnSize();
  }
  void mousePressEvent(QMouseEvent* e) override { Mouse(e); }
  void mouseReleaseEvent(QMouseEvent* e) override { Mouse(e); }
  void mouseDoubleClickEvent(QMouseEvent* e) override { Mouse(e); }
  void mouseMoveEvent(QMouseEvent* e) override { Mouse(e); }
  void wheelEvent(QWheelEvent* e) override {
    if (m_pView != nullptr) m_pView->OnMouseWheel(e->angleDelta().y(), (e->modifiers() & Qt::ControlModifier) != 0);
    e->accept();
  }

 public:
  bool m_bGrow = false;

 private:
  void Mouse(QMouseEvent* e) {
    if (m_pView != nullptr) DispatchMouse(*m_pView, e);
  }
};

}  // namespace

VIEW_CLASS::~VIEW_CLASS() {
  // The widget calls back into this object; it must not outlive it.
  if (auto* w = dynamic_cast<cViewWidget*>(m_hWnd.data())) {
    w->m_pView = nullptr;
    delete w;
  }
}

bool VIEW_CLASS::CreateView(QWidget* parent, int w, int h, bool bGrow) {
  if (m_hWnd) return false;
  auto* widget = new cViewWidget(this, parent);
  widget->m_bGrow = bGrow;
  if (bGrow) {
    widget->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    widget->setMinimumSize(1, 1);
  }
  widget->resize(w, h);
  m_hWnd = widget;
  m_Back.Create(std::max(1, w), std::max(1, h), 24, 0);
  OnCreate();
  return true;
}

void VIEW_CLASS::Invalidate() {
  if (m_hWnd) m_hWnd->update();
}

double VIEW_CLASS::ScreenRatio() const { return m_hWnd ? m_hWnd->devicePixelRatioF() : 1.0; }
