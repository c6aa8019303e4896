#include "editor/palette_form.h"

#include <QTimer>

#include "project/edit_config.h"

cPaletteForm::cPaletteForm(QWidget* owner, const char* title, std::function<void(int)> keys, cWndPosInfo& stored)
    : DLG_CLASS(owner, title), m_fnKeys(std::move(keys)), m_Stored(stored) {
  if (stored.m_bValid) {
    m_nX = stored.m_nX, m_nY = stored.m_nY;
  } else if (owner != nullptr) {
    const QRect frame = owner->frameGeometry();
    m_nX = frame.right() + 1, m_nY = frame.top() + 10;
  }
}

// The flags are set before the window is placed, since a change of flags forgets the
// window's place.
void cPaletteForm::OnInitDialog() {
  m_hWnd->setWindowFlag(Qt::Tool);
  DLG_CLASS::OnInitDialog();
}

void cPaletteForm::OnKeyDown(int key, bool bCtrl) {
  const int qtKey = key == 0x20 ? Qt::Key_Space : key == 0x74 ? Qt::Key_F5 : 0;
  if (qtKey == 0 || !m_fnKeys || m_hParent == nullptr) return DLG_CLASS::OnKeyDown(key, bCtrl);
  QTimer::singleShot(0, m_hParent, [keys = m_fnKeys, qtKey] { keys(qtKey); });
}

void cPaletteForm::OnDestroy() {
  if (m_hWnd) m_Stored.Set(m_hWnd->x(), m_hWnd->y(), m_hWnd->width(), m_hWnd->height());
}
