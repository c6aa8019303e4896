#include "editor/dlg_main.h"

#include <QGridLayout>
#include <QLabel>
#include <QScrollBar>
#include <algorithm>

#include "editor/map_scroll.h"
#include "editor/qt_prompt.h"
#include "project/project_globals.h"
#include "stage/edit_state.h"

void cStageView::OnPaint() {
  m_View.m_nWidth = m_Back.m_nWidth;
  m_View.m_nHeight = m_Back.m_nHeight;
  DrawStageView(m_Back, m_View);
}

void cStageView::OnMouseMove(int px, int py) {
  const int x = CellOfPixel(m_View.m_nScrollX, px);
  const int y = CellOfPixel(m_View.m_nScrollY, py);
  if (x == m_View.m_nCursorX && y == m_View.m_nCursorY) return;
  m_View.m_nCursorX = x;
  m_View.m_nCursorY = y;
  Invalidate();
  if (m_onCursor) m_onCursor();
}

void cStageView::OnMouseWheel(int amount, bool bCtrl) {
  if (m_onWheel) m_onWheel(amount, bCtrl);
}

void cStageView::OnSize() {
  if (m_onResize) m_onResize();
}

DLG_MAIN::DLG_MAIN(QWidget* parent, QSize size) : QWidget(parent), m_Size(size) {
  setFocusPolicy(Qt::StrongFocus);
  setMinimumSize(kMinWidth, kMinHeight);
  setMaximumSize(kWidth, kHeight);
  m_Map.CreateView(this, size.width(), size.height(), true);
  m_pScrollH = new QScrollBar(Qt::Horizontal, this);
  m_pScrollV = new QScrollBar(Qt::Vertical, this);
  m_pStatus = new QLabel(this);
  m_pStatus->setContentsMargins(4, 1, 4, 1);
  auto* grid = new QGridLayout(this);
  grid->setContentsMargins(0, 0, 0, 0);
  grid->setSpacing(0);
  grid->addWidget(m_Map.m_hWnd, 0, 0);
  grid->addWidget(m_pScrollV, 0, 1);
  grid->addWidget(m_pScrollH, 1, 0);
  grid->addWidget(m_pStatus, 2, 0, 1, 2);
  QObject::connect(m_pScrollH, &QScrollBar::valueChanged, this, [this] { Scrolled(); });
  QObject::connect(m_pScrollV, &QScrollBar::valueChanged, this, [this] { Scrolled(); });
  m_Map.m_onCursor = [this] { m_pStatus->setText(StatusText()); };
  // Without Ctrl the wheel moves the horizontal bar, with Ctrl the vertical one.
  m_Map.m_onWheel = [this](int amount, bool ctrl) {
    QScrollBar* bar = ctrl ? m_pScrollV : m_pScrollH;
    bar->setValue(bar->value() + WheelScrollDelta(amount));
  };
  // The ranges follow the view's size.
  m_Map.m_onResize = [this] { UpdateScrollRanges(); };
  m_pStatus->setText(StatusText());
}

QString DLG_MAIN::StatusText() const { return QtText(MapCoordText(m_Map.m_View.m_nCursorX, m_Map.m_View.m_nCursorY)); }

void DLG_MAIN::UpdateScrollRanges() {
  bool open = g_EditState.m_bStageOpen != 0;
  cMapScrollRange h = MapScrollRange(open ? g_Stage.m_nWidth : 0, m_Map.m_hWnd->width());
  cMapScrollRange v = MapScrollRange(open ? g_Stage.m_nHeight : 0, m_Map.m_hWnd->height());
  m_pScrollH->setRange(0, h.nMax);
  m_pScrollH->setPageStep(std::max(1, h.nPage));
  m_pScrollV->setRange(0, v.nMax);
  m_pScrollV->setPageStep(std::max(1, v.nPage));
  Scrolled();
}

void DLG_MAIN::Redraw() { m_Map.Invalidate(); }


void DLG_MAIN::Scrolled() {
  STAGE_VIEW& view = m_Map.m_View;
  if (view.m_nScrollX == m_pScrollH->value() && view.m_nScrollY == m_pScrollV->value()) return;
  view.m_nScrollX = m_pScrollH->value();
  view.m_nScrollY = m_pScrollV->value();
  Redraw();
}
