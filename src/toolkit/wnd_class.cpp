#include "toolkit/wnd_class.h"

#include <QAction>
#include <QApplication>
#include <QCursor>
#include <QMenu>
#include <QMouseEvent>
#include <QShortcut>
#include <algorithm>

#include "toolkit/dlg_class.h"
#include "toolkit/prop_class.h"

cWndList g_WndList;

QPoint PlaceInWorkArea(QPoint pos, QSize size, const QRect& work) {
  auto fit = [](int p, int len, int lo, int hi) {
    if (p < lo) p = lo;
    if (p + len > hi) p -= p + len - hi;
    return std::max(p, lo);  // a window larger than the work area keeps its near edge visible
  };
  return {fit(pos.x(), size.width(), work.left(), work.left() + work.width()),
          fit(pos.y(), size.height(), work.top(), work.top() + work.height())};
}

QPoint CentreOn(const QRect& on, QSize size) {
  return {on.left() + (on.width() - size.width()) / 2, on.top() + (on.height() - size.height()) / 2};
}

bool cRightClickEdge::Poll(bool rightHeld, bool leftHeld, bool rightReleased, bool current) {
  if (!m_bArmed) {
    if (!rightHeld) m_bArmed = true;
    return false;
  }
  if (!leftHeld && rightReleased && current) {
    m_bArmed = false;
    return true;
  }
  return false;
}

void DispatchMouse(WND_CLASS& wnd, const QMouseEvent* e) {
  const QPoint p = e->position().toPoint();
  cMouseState& m = wnd.m_Mouse;
  m.x = p.x();
  m.y = p.y();
  m.left = e->buttons() & Qt::LeftButton;
  m.right = e->buttons() & Qt::RightButton;
  const bool left = e->button() == Qt::LeftButton, right = e->button() == Qt::RightButton;
  switch (e->type()) {
    case QEvent::MouseMove: wnd.OnMouseMove(p.x(), p.y()); break;
    case QEvent::MouseButtonPress:
      if (left) wnd.OnLButtonDown(p.x(), p.y());
      if (right) wnd.OnRButtonDown(p.x(), p.y());
      break;
    case QEvent::MouseButtonRelease:
      if (left) wnd.OnLButtonUp(p.x(), p.y());
      if (right) wnd.OnRButtonUp(p.x(), p.y());
      break;
    case QEvent::MouseButtonDblClick:
      if (left) wnd.OnLButtonDblClk(p.x(), p.y());
      if (right) wnd.OnRButtonDblClk(p.x(), p.y());
      break;
    default: break;
  }
}

WND_CLASS::~WND_CLASS() {
  g_WndList.Remove(this);
  for (auto& s : m_vecShortcut) delete s.data();
}

bool WND_CLASS::SendCommand(unsigned id, unsigned code) {
  if (m_bInCommand) return false;
  m_bInCommand = 1;
  OnCommand(id, code);
  m_bInCommand = 0;
  if (m_hWnd) OnPaint();
  return true;
}

void WND_CLASS::TrackMenu(QMenu* menu) {
  if (menu == nullptr) return;
  QAction* chosen = menu->exec(QCursor::pos());
  if (chosen != nullptr && chosen->data().isValid()) SendCommand(chosen->data().toUInt(), 0);
}

void WND_CLASS::AddAccelerators(QWidget* target, std::span<const cAccel> table) {
  m_listAccel.push_back({target, {table.begin(), table.end()}});
  if (m_hWnd) InstallAccelerators();
}

void WND_CLASS::InstallAccelerators() {
  for (auto& s : m_vecShortcut) delete s.data();
  m_vecShortcut.clear();
  if (!m_hWnd || !m_bRunAccelerators) return;
  for (const cAccelPair& pair : m_listAccel) {
    QWidget* on = pair.target ? pair.target.data() : m_hWnd.data();
    for (const cAccel& a : pair.table) {
      auto* s = new QShortcut(a.key, on);
      // A table of the window runs while the window is current; one of a control only
      // while that control has the focus, so that several lists may share the ids.
      s->setContext(on == m_hWnd ? Qt::WindowShortcut : Qt::WidgetShortcut);
      const unsigned id = a.id;
      QObject::connect(s, &QShortcut::activated, on, [this, id] {
        if (IsCurrent()) SendCommand(id, 1);
      });
      m_vecShortcut.push_back(s);
    }
  }
}

void WND_CLASS::Enable(bool bEnable) {
  if (m_hWnd) m_hWnd->setEnabled(bEnable);
}

bool WND_CLASS::IsCurrent() const {
  if (!m_hWnd) return false;
  if (m_nType == 2) return m_pSheet != nullptr && m_hWnd->isActiveWindow() && m_pSheet->CurrentPage() == this;
  return m_hWnd->isActiveWindow();
}

void cWndList::Add(WND_CLASS* wnd, void* owner) {
  if (!Contains(wnd)) m_vecWnd.push_back({wnd, owner});
}

void cWndList::Remove(WND_CLASS* wnd) {
  std::erase_if(m_vecWnd, [wnd](const cEntry& e) { return e.wnd == wnd; });
}

bool cWndList::Contains(const WND_CLASS* wnd) const {
  return std::any_of(m_vecWnd.begin(), m_vecWnd.end(), [wnd](const cEntry& e) { return e.wnd == wnd; });
}

void cWndList::AddSheet(PROP_CLASS* sheet) {
  if (std::find(m_vecSheet.begin(), m_vecSheet.end(), sheet) == m_vecSheet.end()) m_vecSheet.push_back(sheet);
}

void cWndList::RemoveSheet(PROP_CLASS* sheet) { std::erase(m_vecSheet, sheet); }

void cWndList::ShowAll(bool bShow) {
  for (const cEntry& e : m_vecWnd)
    if (e.wnd->m_hWnd && e.wnd->m_nType != 2) e.wnd->m_hWnd->setVisible(bShow);
  for (PROP_CLASS* s : m_vecSheet)
    if (s->IsOpen()) s->m_hWnd->setVisible(bShow);
}

void cWndList::EnableAll(bool bEnable) {
  for (const cEntry& e : m_vecWnd)
    if (e.wnd->m_hWnd && e.wnd->m_nType != 2) e.wnd->m_hWnd->setEnabled(bEnable);
  for (PROP_CLASS* s : m_vecSheet)
    if (s->IsOpen()) s->m_hWnd->setEnabled(bEnable);
}

bool cWndList::Pump() {
  for (PROP_CLASS* s : m_vecSheet) {
    if (s->IsOpen()) continue;
    RemoveSheet(s);
    delete s;
    return true;
  }
  return false;
}
