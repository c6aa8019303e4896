#include "editor/palette_window.h"

#include <QTimer>

cPaletteWindow::cPaletteWindow(QWidget* owner, const char* title, cWndPosInfo& place, std::function<void(int)> keys)
    : DLG_CLASS(owner, title), m_Place(place), m_fnKeys(std::move(keys)) {
  if (place.m_bValid) {
    m_nX = place.m_nX, m_nY = place.m_nY;
  } else if (owner != nullptr) {
    const QRect frame = owner->frameGeometry();
    m_nX = frame.right() + 1, m_nY = frame.top() + 10;
  }
}

// The flags are set before the window is placed, since a change of flags forgets its place.
void cPaletteWindow::OnInitDialog() {
  m_hWnd->setWindowFlag(Qt::Tool);
  DLG_CLASS::OnInitDialog();
}

void cPaletteWindow::OnKeyDown(int key, bool bCtrl) {
  const int qtKey = key == 0x20 ? Qt::Key_Space : key == 0x74 ? Qt::Key_F5 : 0;
  if (qtKey == 0 || !m_fnKeys || m_hParent == nullptr) return DLG_CLASS::OnKeyDown(key, bCtrl);
  // A change of palette takes this window away: it runs once the key has been handled.
  QTimer::singleShot(0, m_hParent, [keys = m_fnKeys, qtKey] { keys(qtKey); });
}

void cPaletteWindow::OnDestroy() {
  if (m_hWnd) m_Place.Set(m_hWnd->x(), m_hWnd->y(), m_hWnd->width(), m_hWnd->height());
}
