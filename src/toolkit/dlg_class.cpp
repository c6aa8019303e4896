#include "toolkit/dlg_class.h"
#include "toolkit/prop_class.h"

#include <QApplication>
#include <QDialog>
#include <QGuiApplication>
#include <QInputMethodEvent>
#include <QMenu>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QTimer>
#include <QVBoxLayout>
#include <optional>

#include "platform/diagnostics.h"
#include "platform/cp932.h"
#include "toolkit/ctrls.h"
#include "toolkit/form_layout.h"
#include "toolkit/widgets.h"

namespace {

constexpr const char* kFormProperty = "DLG_CLASS";

// The form a widget belongs to: the nearest widget carrying the form's property, not
// looking past a window that carries none (a popup menu is no part of the form).
DLG_CLASS* FormOf(QObject* o) {
  for (auto* w = qobject_cast<QWidget*>(o); w != nullptr; w = w->parentWidget()) {
    const QVariant v = w->property(kFormProperty);
    if (v.isValid() && v.value<quintptr>() != 0) return reinterpret_cast<DLG_CLASS*>(v.value<quintptr>());
    if (w->isWindow()) break;
  }
  return nullptr;
}

// Passes keys and right-button releases to the forms while a child control has the
// focus, as the forms' lists and scrolling need.
class cFormEvents : public QObject {
 public:
  bool eventFilter(QObject* o, QEvent* e) override {
    switch (e->type()) {
      case QEvent::KeyPress: return Key(o, static_cast<QKeyEvent*>(e));
      case QEvent::InputMethod: Compose(o, static_cast<QInputMethodEvent*>(e)); break;
      case QEvent::MouseButtonPress:
      case QEvent::MouseButtonRelease:
      case QEvent::MouseMove: Mouse(o, static_cast<QMouseEvent*>(e)); break;
      default: break;
    }
    return false;
  }

 private:
  // True to swallow the key.
  bool Key(QObject* o, QKeyEvent* e) {
    // The first receiver only: an ignored key travels on to the parents.
    QWidget* focus = QApplication::focusWidget();
    auto* w = qobject_cast<QWidget*>(o);
    if (w == nullptr || (focus != nullptr ? w != focus : !w->isWindow())) return false;
    DLG_CLASS* form = FormOf(o);
    const int vk = VirtualKeyOf(e->key());
    // Keys of a composition belong to the input method; Tab stays with the focus chain.
    if (form == nullptr || vk == 0 || vk == 9 || Composing()) return false;
    if (vk == 27 && form->m_bHoldEsc) return true;
    const bool ctrl = e->modifiers() & Qt::ControlModifier;
    // A modeless form takes Control keys through its accelerators.
    if (form->m_bModeless && ctrl) return false;
    form->OnKeyDown(vk, ctrl);
    return false;
  }
  // A composition lasts from the first preedit text to the event that clears it, and
  // only while its widget keeps the focus.
  void Compose(QObject* o, QInputMethodEvent* e) {
    if (e->preeditString().isEmpty()) m_pComposing = nullptr;
    else if (o == QApplication::focusWidget()) m_pComposing = static_cast<QWidget*>(o);
  }
  bool Composing() const { return m_pComposing && m_pComposing == QApplication::focusWidget(); }
  static void Mouse(QObject* o, QMouseEvent* e) {
    DLG_CLASS* form = FormOf(o);
    if (form == nullptr || !form->m_bReady) return;
    const bool released = e->type() == QEvent::MouseButtonRelease && e->button() == Qt::RightButton;
    if (form->RightEdge().Poll(e->buttons() & Qt::RightButton, e->buttons() & Qt::LeftButton, released,
                               form->IsCurrent()))
      form->OnContextMenu(e->globalPosition().toPoint());
  }
  QPointer<QWidget> m_pComposing;
};

void InstallFormEvents() {
  static cFormEvents* filter = nullptr;
  if (filter != nullptr || qApp == nullptr) return;
  filter = new cFormEvents;
  filter->setParent(qApp);
  qApp->installEventFilter(filter);
}

}  // namespace

// The window of a dialog form.
class cDlgWindow : public QDialog {
 public:
  cDlgWindow(DLG_CLASS* form, QWidget* parent) : QDialog(parent), m_pForm(form) {}
  void reject() override {
    if (m_pForm != nullptr) m_pForm->OnClose();
  }
  DLG_CLASS* m_pForm;

 protected:
  void moveEvent(QMoveEvent*) override {
    if (m_pForm != nullptr && isVisible()) {
      m_pForm->m_nX = x();
      m_pForm->m_nY = y();
    }
  }
  void mousePressEvent(QMouseEvent* e) override { Mouse(e); }
  void mouseReleaseEvent(QMouseEvent* e) override { Mouse(e); }
  void mouseDoubleClickEvent(QMouseEvent* e) override { Mouse(e); }
  void mouseMoveEvent(QMouseEvent* e) override { Mouse(e); }

 private:
  void Mouse(QMouseEvent* e) {
    if (m_pForm != nullptr) DispatchMouse(*m_pForm, e);
  }
};

DLG_CLASS* DLG_CLASS::FromWidget(QObject* w) { return FormOf(w); }

void DLG_CLASS::RunSoon(std::function<void()> fn) {
  QPointer<QWidget> window = m_hWnd;
  if (!window) return;
  QTimer::singleShot(0, window, [window, fn = std::move(fn)] {
    if (window && FormOf(window) != nullptr) fn();
  });
}

void ReportMissingCtrl(unsigned id) { MSP(CP932_TEXT("コントロールID 【%u】 が見つかりません！").c_str(), id); }

DLG_CLASS::DLG_CLASS(QWidget* parent, const char* title, int type) : WND_CLASS(type), m_strTitle(title) {
  m_hParent = parent;
}

DLG_CLASS::DLG_CLASS(QWidget* parent, const char* title, QWidget* placeCtrl, bool center) : DLG_CLASS(parent, title) {
  m_pPlaceCtrl = placeCtrl;
  m_bCenter = center;
}

DLG_CLASS::~DLG_CLASS() {
  m_vecCtrl.clear();
  if (m_hWnd) {
    QWidget* w = m_hWnd;
    w->setProperty(kFormProperty, QVariant());
    if (auto* d = dynamic_cast<cDlgWindow*>(w)) d->m_pForm = nullptr;
    WindowGone();
    w->deleteLater();
  }
}

void DLG_CLASS::SetMetrics(int w, int h, int minW, int minH, int maxW, int maxH, int scroll) {
  m_nW = w, m_nH = h, m_nMinW = minW, m_nMinH = minH, m_nMaxW = maxW, m_nMaxH = maxH, m_nScroll = scroll;
}

bool DLG_CLASS::BuildWindow(bool modeless) {
  InstallFormEvents();
  QWidget* w = m_nType == 2 ? new QWidget(m_hParent) : new cDlgWindow(this, m_hParent);
  w->setProperty(kFormProperty, QVariant::fromValue(reinterpret_cast<quintptr>(this)));
  m_hWnd = w;
  m_mapItem.clear();
  QWidget* content = w;
  if (m_nScroll != 0) {
    auto* outer = new QVBoxLayout(w);
    outer->setContentsMargins(0, 0, 0, 0);
    m_pScrollArea = new QScrollArea(w);
    m_pScrollArea->setWidgetResizable(true);
    m_pScrollArea->setHorizontalScrollBarPolicy((m_nScroll & kDlgScrollH) ? Qt::ScrollBarAlwaysOn : Qt::ScrollBarAlwaysOff);
    m_pScrollArea->setVerticalScrollBarPolicy((m_nScroll & kDlgScrollV) ? Qt::ScrollBarAlwaysOn : Qt::ScrollBarAlwaysOff);
    content = new QWidget;
    m_pScrollArea->setWidget(content);
    outer->addWidget(m_pScrollArea);
  }
  auto* sink = new QWidget(content);
  sink->setFocusPolicy(Qt::StrongFocus);
  RegisterItem(kIdFocusSink, sink);
  cFormLayout layout(*this, content);
  m_Table.Layout(layout, m_strTitle);
  if (m_nW > 0 && m_nH > 0) w->resize(m_nW, m_nH);
  else w->adjustSize();
  if (m_nMinW > 0 || m_nMinH > 0) w->setMinimumSize(m_nMinW, m_nMinH);
  if (m_nMaxW > 0 || m_nMaxH > 0) w->setMaximumSize(m_nMaxW > 0 ? m_nMaxW : QWIDGETSIZE_MAX, m_nMaxH > 0 ? m_nMaxH : QWIDGETSIZE_MAX);
  m_bModeless = modeless ? 1 : 0;
  m_bRunAccelerators = modeless;
  return true;
}

void DLG_CLASS::OnInitDialog() {
  m_vecCtrl.clear();
  m_vecListView.clear();
  m_bReady = 0;
  if (m_bModeless) g_WndList.Add(this);
  if (m_pScrollArea) {
    m_ScrollH = std::make_unique<CTRL_SCROLL_CLASS>();
    m_ScrollV = std::make_unique<CTRL_SCROLL_CLASS>();
    m_ScrollH->BindBar(this, m_pScrollArea->horizontalScrollBar());
    m_ScrollV->BindBar(this, m_pScrollArea->verticalScrollBar());
    m_pScrollH = m_ScrollH.get();
    m_pScrollV = m_ScrollV.get();
    m_pScrollH->SetPos(0);
    m_pScrollV->SetPos(0);
  }
  if (QWidget* sink = GetDlgItem(kIdFocusSink)) sink->hide();
  if (!m_strTitle.empty() && m_nType != 2) m_hWnd->setWindowTitle(QString::fromStdString(m_strTitle));
  Place();
  InstallAccelerators();
  m_Table.Bind(*this);
  m_bFirstFill = true;
  UpdateAll();
  m_bFirstFill = false;
  UpdateEnable();
  m_bReady = 1;
  OnReady();
}

void DLG_CLASS::Place() {
  if (m_nType == 2 || !m_hWnd) return;
  const QSize size = m_hWnd->size();
  std::optional<QPoint> pos;
  if (m_pPlaceWnd != nullptr && m_pPlaceWnd->m_hWnd) {
    const QRect r = m_pPlaceWnd->m_hWnd->frameGeometry();
    pos = m_bCenter ? CentreOn(r, size) : r.topLeft();
  } else if (m_pPlaceCtrl) {
    const QRect r(m_pPlaceCtrl->mapToGlobal(QPoint(0, 0)), m_pPlaceCtrl->size());
    // Beside the control, so that the list it came from stays in view.
    pos = m_bCenter ? CentreOn(r, size) : QPoint(r.right() + 1, r.top());
  } else if (m_nX != -1000 && m_nY != -1000) {
    pos = QPoint(m_nX, m_nY);
  }
  if (!pos) return;
  QScreen* screen = QGuiApplication::screenAt(*pos);
  if (screen == nullptr) screen = QGuiApplication::primaryScreen();
  if (screen == nullptr) return;
  m_hWnd->move(PlaceInWorkArea(*pos, size, screen->availableGeometry()));
}

void DLG_CLASS::OpenWindow(int flags, bool modeless) {
  End(0);
  m_nShowFlags = flags;
  if (flags & kDlgHideOthers) g_WndList.ShowAll(false);
  if (flags & kDlgDisableOthers) g_WndList.EnableAll(false);
  m_bShowFlagsApplied = true;
  m_bEnded = false;
  BuildWindow(modeless);
  OnInitDialog();
  SyncLists();
}

int DLG_CLASS::DoModal(int flags) {
  if (m_hWnd) return 0;
  OpenWindow(flags, false);
  QPointer<QWidget> window = m_hWnd;
  OnPaint();
  if (auto* dialog = qobject_cast<QDialog*>(window.data()); dialog != nullptr && !m_bEnded) dialog->exec();
  WindowGone();
  if (window) {
    window->setProperty(kFormProperty, QVariant());
    delete window.data();
  }
  return m_nResult;
}

bool DLG_CLASS::Create(int flags, bool bShow) {
  if (m_hWnd) return false;
  OpenWindow(flags, true);
  if (bShow && m_hWnd) m_hWnd->show();
  OnPaint();
  return m_hWnd != nullptr;
}

void DLG_CLASS::End(int result) {
  m_nResult = result;
  m_vecCtrl.clear();
  m_bEnded = true;
  if (!m_hWnd) return;
  if (!m_bModeless) {
    if (auto* d = qobject_cast<QDialog*>(m_hWnd.data())) d->done(result);
    return;
  }
  // The window goes now; Qt deletes it once it has left the handler that ended it.
  QWidget* w = m_hWnd;
  w->hide();
  w->setProperty(kFormProperty, QVariant());
  if (auto* d = dynamic_cast<cDlgWindow*>(w)) d->m_pForm = nullptr;
  WindowGone();
  w->deleteLater();
}

void DLG_CLASS::WindowGone() {
  if (m_hWnd) OnDestroy();
  m_hWnd = nullptr;
  m_bReady = 0;
  g_WndList.Remove(this);
  UndoShowFlags();
}

void DLG_CLASS::UndoShowFlags() {
  if (!m_bShowFlagsApplied) return;
  m_bShowFlagsApplied = false;
  if (m_nShowFlags & kDlgHideOthers) g_WndList.ShowAll(true);
  if (m_nShowFlags & kDlgDisableOthers) g_WndList.EnableAll(true);
}

void DLG_CLASS::UpdateAll() { UpdateAllExcept(0u); }

void DLG_CLASS::UpdateAllExcept(unsigned id) {
  for (CTRL_CLASS* c : m_vecCtrl) {
    if (id != 0 && c->m_nId == id) continue;
    m_bUpdating = 1;
    c->Update();
    m_bUpdating = 0;
  }
  SyncLists();
}

void DLG_CLASS::UpdateAllExcept(cListCtrlBase& list) { UpdateAllExcept(list.m_nId); }

void DLG_CLASS::ApplyAll() {
  for (CTRL_CLASS* c : m_vecCtrl) c->Apply();
}

void DLG_CLASS::ApplyControls() {
  for (CTRL_CLASS* c : m_vecCtrl)
    if (c->m_nCtrlType != kCtrlList) c->Apply();
}

unsigned DLG_CLASS::FindChanged(unsigned id, unsigned code) const {
  for (const CTRL_CLASS* c : m_vecCtrl)
    if (c->m_nId == id && IsValueChange(c->m_nCtrlType, code)) return id;
  return 0;
}

void DLG_CLASS::RedrawLists() {
  for (CTRL_CLASS* c : m_vecCtrl)
    if (c->m_nCtrlType == kCtrlList) c->RedrawSel();
  SyncLists();
}

void DLG_CLASS::RouteCommand(unsigned id, unsigned code) {
  for (CTRL_CLASS* c : m_vecCtrl) {
    if (c->m_nId != id) continue;
    const int t = c->m_nCtrlType;
    if ((t == kCtrlEditVal || t == kCtrlEditStr) && code == kNotifyEditUpdate) c->OnChange();
    else if ((t == kCtrlEditVal || t == kCtrlEditStr) && code == kNotifyEditKillFocus) c->OnKillFocus();
    else if ((t == kCtrlCombo || t == kCtrlList) && code == kNotifySelChange) c->OnChange();
    else if (t == kCtrlList && code == kNotifyListKillFocus) c->OnKillFocus();
    else continue;
    break;
  }
  const std::vector<cListCtrlBase*> lists = Lists();
  BeginListCommand(lists);
}

void DLG_CLASS::OnCommand(unsigned id, unsigned code) {
  RouteCommand(id, code);
  if (id == kIdOk) {
    ApplyAll();
    if (OnOk()) End(1);
    return;
  }
  if (id == kIdCancel) {
    End(0);
    return;
  }
  OnFormCommand(id, code);
  if (m_bEnded) return;  // the form's command closed it
  FinishCommand(id, code);
}

// The end of every command. A form with lists ends it in the order that keeps the
// edit record, the rows and the controls agreeing; a plain form reruns its enabling
// rules on a change of value. A page then tells its sheet.
void DLG_CLASS::FinishCommand(unsigned id, unsigned code) {
  const bool changed = m_bReady != 0 && FindChanged(id, code) != 0;
  if (m_vecListView.empty()) {
    if (changed) UpdateEnable();
    if (m_nType == 2) SheetChanged();
    return;
  }
  cListCommand cmd;
  cmd.id = id;
  cmd.code = code;
  cmd.ready = m_bReady != 0;
  cmd.changed = changed;
  cmd.page = m_nType == 2;
  const std::vector<cListCtrlBase*> lists = Lists();
  ::EndListCommand(lists, cmd, *this);
  SyncLists();
}

void DLG_CLASS::UpdateEnable() {
  m_Table.UpdateEnable(*this);
  OnUpdateEnable();
}

int DLG_CLASS::Value(unsigned id) {
  CTRL_CLASS* c = GetCtrl(id);
  return c != nullptr ? c->ScreenValue() : 0;
}

void DLG_CLASS::SheetChanged() {
  if (m_pSheet != nullptr) m_pSheet->Changed();
}

void DLG_CLASS::Notify(unsigned id, int delta) {
  for (CTRL_CLASS* c : m_vecCtrl)
    if (c->OnNotify(id, delta)) break;
}

void DLG_CLASS::Scrolled(QWidget* from) {
  for (CTRL_CLASS* c : m_vecCtrl)
    if (c->OnScroll(from)) break;
}

void DLG_CLASS::OnKeyDown(int key, bool bCtrl) {
  if (m_pScrollH != nullptr) {
    struct cKeyScroll {
      int key;
      bool vertical;
      int action;
    };
    static constexpr cKeyScroll kKeys[] = {
        {33, true, QAbstractSlider::SliderPageStepSub}, {34, true, QAbstractSlider::SliderPageStepAdd},
        {35, false, QAbstractSlider::SliderPageStepAdd}, {36, false, QAbstractSlider::SliderPageStepSub},
        {37, false, QAbstractSlider::SliderSingleStepSub}, {39, false, QAbstractSlider::SliderSingleStepAdd},
        {38, true, QAbstractSlider::SliderSingleStepSub}, {40, true, QAbstractSlider::SliderSingleStepAdd},
    };
    for (const cKeyScroll& k : kKeys)
      if (k.key == key) (k.vertical ? m_pScrollV : m_pScrollH)->Scroll(k.action);
  }
  if (!m_bModeless)
    for (CTRL_CLASS* c : m_vecCtrl) c->OnKey(key, bCtrl);
}

void DLG_CLASS::OnContextMenu(QPoint global) {
  for (auto& view : m_vecListView) {
    if (!view->HitTest(global)) continue;
    SendCommand(view->m_nId, kNotifySelChange);
    if (!view->m_pMenu->isEmpty()) TrackMenu(view->m_pMenu);
    return;
  }
}

QWidget* DLG_CLASS::GetDlgItem(unsigned id) const {
  auto it = m_mapItem.find(id);
  return it == m_mapItem.end() ? nullptr : it->second.data();
}

void DLG_CLASS::RegisterItem(unsigned id, QWidget* w) {
  if (id != 0) m_mapItem[id] = w;
}

void DLG_CLASS::EnableCtrl(unsigned id, bool bEnable) {
  if (CTRL_CLASS* c = GetCtrl(id)) c->Enable(bEnable);
}

std::vector<cListCtrlBase*> DLG_CLASS::Lists() const {
  std::vector<cListCtrlBase*> lists;
  for (const auto& view : m_vecListView) lists.push_back(&view->m_List);
  return lists;
}

void DLG_CLASS::SyncLists() {
  for (auto& view : m_vecListView) view->Sync();
}

bool DLG_CLASS::BindListView(cListCtrlBase& list, const cListIdSet& ids) {
  auto view = std::make_unique<CTRL_LISTVIEW_CLASS>(list);
  if (!view->Bind(this, ids)) return false;
  m_vecCtrl.push_back(view.get());
  m_vecListView.push_back(std::move(view));
  return true;
}
