#include "editor/map_pane.h"

#include <QGridLayout>
#include <QLabel>
#include <QScrollBar>
#include <algorithm>

#include "editor/map_scroll.h"
#include "toolkit/view_class.h"

void cMapPane::Build(QWidget* owner, VIEW_CLASS& view, MAP_VIEW& state) {
  m_pView = &view;
  m_pState = &state;
  m_pScrollH = new QScrollBar(Qt::Horizontal, owner);
  m_pScrollV = new QScrollBar(Qt::Vertical, owner);
  m_pStatus = new QLabel(owner);
  m_pStatus->setContentsMargins(4, 1, 4, 1);
  auto* grid = new QGridLayout(owner);
  grid->setContentsMargins(0, 0, 0, 0);
  grid->setSpacing(0);
  grid->addWidget(view.m_hWnd, 0, 0);
  grid->addWidget(m_pScrollV, 0, 1);
  grid->addWidget(m_pScrollH, 1, 0);
  grid->addWidget(m_pStatus, 2, 0, 1, 2);
  QObject::connect(m_pScrollH, &QScrollBar::valueChanged, owner, [this] { Scrolled(); });
  QObject::connect(m_pScrollV, &QScrollBar::valueChanged, owner, [this] { Scrolled(); });
}

void cMapPane::SetMapSize(int cells, int rows) {
  const cMapScrollRange h = MapScrollRange(cells, m_pView->m_hWnd->width());
  const cMapScrollRange v = MapScrollRange(rows, m_pView->m_hWnd->height());
  m_pScrollH->setRange(0, h.nMax);
  m_pScrollH->setPageStep(std::max(1, h.nPage));
  m_pScrollV->setRange(0, v.nMax);
  m_pScrollV->setPageStep(std::max(1, v.nPage));
  Scrolled();
}

void cMapPane::Wheel(int amount, bool ctrl) {
  QScrollBar* bar = ctrl ? m_pScrollV : m_pScrollH;
  bar->setValue(bar->value() + WheelScrollDelta(amount));
}

void cMapPane::Scrolled() {
  if (m_pState->m_nScrollX == m_pScrollH->value() && m_pState->m_nScrollY == m_pScrollV->value()) return;
  m_pState->m_nScrollX = m_pScrollH->value();
  m_pState->m_nScrollY = m_pScrollV->value();
  m_pView->Invalidate();
}
