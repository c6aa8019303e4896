#include "editor/dlg_main.h"

#include <QGridLayout>
#include <QImage>
#include <QLabel>
#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>
#include <QWheelEvent>
#include <algorithm>

#include "editor/map_scroll.h"
#include "editor/qt_prompt.h"
#include "project/project_globals.h"
#include "stage/edit_state.h"

cStageViewWidget::cStageViewWidget(QWidget* parent) : QWidget(parent) {
  setMouseTracking(true);
  setAttribute(Qt::WA_OpaquePaintEvent);
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
  setMinimumSize(1, 1);
}

void cStageViewWidget::paintEvent(QPaintEvent*) {
  m_View.m_nWidth = width();
  m_View.m_nHeight = height();
  if (m_Buffer.m_nWidth != width() || m_Buffer.m_nHeight != height()) m_Buffer.Create(width(), height(), 24, 0);
  if (m_Buffer.IsEmpty()) return;
  DrawStageView(m_Buffer, m_View);
  // The buffer's rows are blue, green, red bytes, as the image format reads them.
  QImage image(m_Buffer.m_vecBits.data(), m_Buffer.m_nWidth, m_Buffer.m_nHeight, m_Buffer.Stride(),
               QImage::Format_BGR888);
  QPainter painter(this);
  painter.drawImage(0, 0, image);
}

void cStageViewWidget::mouseMoveEvent(QMouseEvent* event) {
  QPoint p = event->position().toPoint();
  int x = CellOfPixel(m_View.m_nScrollX, p.x());
  int y = CellOfPixel(m_View.m_nScrollY, p.y());
  if (x == m_View.m_nCursorX && y == m_View.m_nCursorY) return;
  m_View.m_nCursorX = x;
  m_View.m_nCursorY = y;
  update();
  if (m_onCursor) m_onCursor();
}

void cStageViewWidget::wheelEvent(QWheelEvent* event) {
  if (m_onWheel) m_onWheel(event->angleDelta().y(), (event->modifiers() & Qt::ControlModifier) != 0);
  event->accept();
}

void cStageViewWidget::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  if (m_onResize) m_onResize();
}

DLG_MAIN::DLG_MAIN(QWidget* parent, QSize size) : QWidget(parent), m_Size(size) {
  setFocusPolicy(Qt::StrongFocus);
  setMinimumSize(kMinWidth, kMinHeight);
  setMaximumSize(kWidth, kHeight);
  m_pView = new cStageViewWidget(this);
  m_pScrollH = new QScrollBar(Qt::Horizontal, this);
  m_pScrollV = new QScrollBar(Qt::Vertical, this);
  m_pStatus = new QLabel(this);
  m_pStatus->setContentsMargins(4, 1, 4, 1);
  auto* grid = new QGridLayout(this);
  grid->setContentsMargins(0, 0, 0, 0);
  grid->setSpacing(0);
  grid->addWidget(m_pView, 0, 0);
  grid->addWidget(m_pScrollV, 0, 1);
  grid->addWidget(m_pScrollH, 1, 0);
  grid->addWidget(m_pStatus, 2, 0, 1, 2);
  QObject::connect(m_pScrollH, &QScrollBar::valueChanged, this, [this] { Scrolled(); });
  QObject::connect(m_pScrollV, &QScrollBar::valueChanged, this, [this] { Scrolled(); });
  m_pView->m_onCursor = [this] { m_pStatus->setText(StatusText()); };
  // Without Ctrl the wheel moves the horizontal bar, with Ctrl the vertical one.
  m_pView->m_onWheel = [this](int amount, bool ctrl) {
    QScrollBar* bar = ctrl ? m_pScrollV : m_pScrollH;
    bar->setValue(bar->value() + WheelScrollDelta(amount));
  };
  // The ranges follow the view's size.
  m_pView->m_onResize = [this] { UpdateScrollRanges(); };
  m_pStatus->setText(StatusText());
}

QString DLG_MAIN::StatusText() const { return QtText(MapCoordText(m_pView->m_View.m_nCursorX, m_pView->m_View.m_nCursorY)); }

void DLG_MAIN::UpdateScrollRanges() {
  bool open = g_EditState.m_bStageOpen != 0;
  cMapScrollRange h = MapScrollRange(open ? g_Stage.m_nWidth : 0, m_pView->width());
  cMapScrollRange v = MapScrollRange(open ? g_Stage.m_nHeight : 0, m_pView->height());
  m_pScrollH->setRange(0, h.nMax);
  m_pScrollH->setPageStep(std::max(1, h.nPage));
  m_pScrollV->setRange(0, v.nMax);
  m_pScrollV->setPageStep(std::max(1, v.nPage));
  Scrolled();
}

void DLG_MAIN::Redraw() { m_pView->update(); }


void DLG_MAIN::Scrolled() {
  STAGE_VIEW& view = m_pView->m_View;
  if (view.m_nScrollX == m_pScrollH->value() && view.m_nScrollY == m_pScrollV->value()) return;
  view.m_nScrollX = m_pScrollH->value();
  view.m_nScrollY = m_pScrollV->value();
  Redraw();
}
