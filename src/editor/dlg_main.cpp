#include "editor/dlg_main.h"

#include <QKeyEvent>
#include <QLabel>
#include <QScrollBar>
#include <algorithm>

#include "editor/dlg_chip.h"
#include "editor/dlg_enemy.h"
#include "editor/dlg_event.h"
#include "editor/map_scroll.h"
#include "editor/qt_prompt.h"
#include "project/project_globals.h"
#include "stage/edit_state.h"
#include "stage/map_edit.h"

void cStageView::OnPaint() {
  m_View.m_nWidth = m_Back.m_nWidth;
  m_View.m_nHeight = m_Back.m_nHeight;
  DrawStageView(m_Back, m_View);
}

void cStageView::Mouse(eMapMouse msg, int x, int y) {
  const cMouseState& m = m_Mouse;
  StageMouse(m_View, {msg, x, y, m.left, m.right});
  Invalidate();
  if (m_onCursor) m_onCursor();
}

void cStageView::OnMouseMove(int x, int y) {
  const int cx = m_View.m_nCursorX, cy = m_View.m_nCursorY;
  if (!g_EditState.m_bStageOpen) {
    // Without a stage the status line still follows the pointer.
    m_View.m_nCursorX = CellOfPixel(m_View.m_nScrollX, x);
    m_View.m_nCursorY = CellOfPixel(m_View.m_nScrollY, y);
    if (m_onCursor && (cx != m_View.m_nCursorX || cy != m_View.m_nCursorY)) m_onCursor();
    return;
  }
  StageMouse(m_View, {eMapMouse::kMove, x, y, m_Mouse.left, m_Mouse.right});
  // A move within the cell changes nothing on the screen.
  if (cx == m_View.m_nCursorX && cy == m_View.m_nCursorY) return;
  Invalidate();
  if (m_onCursor) m_onCursor();
}

DLG_MAIN::DLG_MAIN(QWidget* parent, QSize size) : QWidget(parent), m_Size(size) {
  setFocusPolicy(Qt::StrongFocus);
  setMinimumSize(kMinWidth, kMinHeight);
  m_Map.CreateView(this, size.width(), size.height(), true);
  m_Map.m_hWnd->setAccessibleName(QStringLiteral("マップ"));
  m_Pane.Build(this, m_Map, m_Map.m_View);
  m_pScrollH = m_Pane.m_pScrollH;
  m_pScrollV = m_Pane.m_pScrollV;
  m_pStatus = m_Pane.m_pStatus;
  m_Map.m_onCursor = [this] { m_pStatus->setText(StatusText()); };
  m_Map.m_onWheel = [this](int amount, bool ctrl) { m_Pane.Wheel(amount, ctrl); };
  // The ranges follow the view's size.
  m_Map.m_onResize = [this] { UpdateScrollRanges(); };
  m_pStatus->setText(StatusText());
}

DLG_MAIN::~DLG_MAIN() { delete m_pDlgChip.data(); }  // the enemy palette goes with its owner

QString DLG_MAIN::StatusText() const { return QtText(MapCoordText(m_Map.m_View.m_nCursorX, m_Map.m_View.m_nCursorY)); }

void DLG_MAIN::UpdateScrollRanges() {
  const bool open = g_EditState.m_bStageOpen != 0;
  m_Pane.SetMapSize(open ? g_Stage.m_nWidth : 0, open ? g_Stage.m_nHeight : 0);
}

void DLG_MAIN::Redraw() { m_Map.Invalidate(); }

void DLG_MAIN::ShowPalette(int palette) {
  if (palette != PALETTE_CHIP) delete m_pDlgChip.data();
  if (palette != PALETTE_ENEMY) m_pDlgEnemy.reset();
  if (palette != PALETTE_EVENT) m_pDlgEvent.reset();
  auto keys = [this](int key) {
    if (m_onKey) m_onKey(key);
  };
  if (palette == PALETTE_CHIP && m_pDlgChip == nullptr) {
    m_pDlgChip = new DLG_CHIP(window(), keys);
    m_pDlgChip->show();
  }
  if (palette == PALETTE_ENEMY && m_pDlgEnemy == nullptr) {
    m_pDlgEnemy = std::make_unique<DLG_ENEMY>(window(), keys, [this] { Redraw(); });
    m_pDlgEnemy->Create();
  }
  if (palette == PALETTE_EVENT && m_pDlgEvent == nullptr) {
    m_pDlgEvent = std::make_unique<DLG_EVENT>(window(), keys, [this] { Redraw(); });
    m_pDlgEvent->Create();
  }
}

DLG_CHIP* DLG_MAIN::Chip() const { return m_pDlgChip.data(); }

void DLG_MAIN::RefreshPalette() {
  if (m_pDlgChip != nullptr) m_pDlgChip->Refresh();
  if (m_pDlgEnemy != nullptr) m_pDlgEnemy->Refresh();
  Redraw();
}

void DLG_MAIN::SetPaletteVisible(bool visible) {
  if (m_pDlgChip != nullptr) m_pDlgChip->setVisible(visible);
  if (m_pDlgEnemy != nullptr && m_pDlgEnemy->m_hWnd) m_pDlgEnemy->m_hWnd->setVisible(visible);
  if (m_pDlgEvent != nullptr && m_pDlgEvent->m_hWnd) m_pDlgEvent->m_hWnd->setVisible(visible);
}

bool DLG_MAIN::PaletteVisible() const {
  if (m_pDlgChip != nullptr) return m_pDlgChip->isVisible();
  if (m_pDlgEvent != nullptr) return m_pDlgEvent->m_hWnd && m_pDlgEvent->m_hWnd->isVisible();
  return m_pDlgEnemy != nullptr && m_pDlgEnemy->m_hWnd && m_pDlgEnemy->m_hWnd->isVisible();
}

void DLG_MAIN::keyPressEvent(QKeyEvent* event) {
  const bool space = event->key() == Qt::Key_Space && !m_Map.m_Mouse.left && !m_Map.m_Mouse.right;
  if ((space || event->key() == Qt::Key_F5) && m_onKey) {
    m_onKey(event->key());
    return;
  }
  QWidget::keyPressEvent(event);
}
