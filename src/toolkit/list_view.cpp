#include <QGuiApplication>
#include <QItemSelection>
#include <QMenu>
#include <QScrollBar>
#include <QSignalBlocker>

#include "platform/cp932.h"
#include "toolkit/dlg_class.h"
#include "toolkit/widgets.h"

namespace {

struct cOpFace {
  const char* label;
  QKeySequence key;
};
// Menu text and key of each operation, in the order of the id sets.
const cOpFace& FaceOf(int op) {
  static const cOpFace kFaces[kListOpCount] = {
      {"切り取り", QKeySequence(Qt::CTRL | Qt::Key_X)}, {"コピー", QKeySequence(Qt::CTRL | Qt::Key_C)},
      {"貼り付け", QKeySequence(Qt::CTRL | Qt::Key_V)}, {"新規作成", QKeySequence(Qt::CTRL | Qt::Key_I)},
      {"新規挿入", QKeySequence(Qt::CTRL | Qt::Key_I)}, {"データのクリア", QKeySequence(Qt::Key_Delete)},
      {"削除", QKeySequence(Qt::Key_Delete)},
  };
  return kFaces[op];
}

}  // namespace

bool CTRL_LISTVIEW_CLASS::Bind(DLG_CLASS* owner, const cListIdSet& ids) {
  auto* w = BindWidget<cListWidget>(owner, m_List.m_nId);
  if (w == nullptr) return false;
  m_List.SetIdSet(ids);
  w->setSelectionMode(m_List.m_bMulti ? QAbstractItemView::ExtendedSelection : QAbstractItemView::SingleSelection);
  m_pMenu = new QMenu(w);
  std::vector<cAccel> keys;
  for (int op = 0; op < kListOpCount; ++op) {
    if (ids.aMenu[op] != 0) m_pMenu->addAction(QString::fromUtf8(FaceOf(op).label))->setData(ids.aMenu[op]);
    if (ids.aKey[op] != 0) keys.push_back({FaceOf(op).key, ids.aKey[op]});
  }
  owner->AddAccelerators(w, keys);
  w->onSelChange = [this] {
    TakeSelection();
    m_pOwner->SendCommand(m_nId, kNotifySelChange);
  };
  w->onFocus = [this](bool focus) {
    m_List.Box().focus = focus;
    if (!focus) m_pOwner->SendCommand(m_nId, kNotifyListKillFocus);
  };
  w->onScrolled = [this](int top) { m_List.OnScrolled(std::max(0, top)); };
  w->onDoubleClick = [this] { m_pOwner->SendCommand(m_nId, kNotifyDblClk); };
  m_nRowsRev = m_nSelRev = ~0u;
  m_List.Box().focus = w->hasFocus();
  Sync();
  return true;
}

CTRL_LISTVIEW_CLASS::~CTRL_LISTVIEW_CLASS() {
  // The widget may outlive the binding (a window deleted later).
  if (auto* w = dynamic_cast<cListWidget*>(m_hWnd.data())) {
    w->onSelChange = nullptr;
    w->onFocus = nullptr;
    w->onScrolled = nullptr;
    w->onDoubleClick = nullptr;
  }
}

void CTRL_LISTVIEW_CLASS::Update() {
  if (!m_pOwner->m_bFirstFill) m_List.Update();
  Sync();
}

void CTRL_LISTVIEW_CLASS::Apply() { m_List.Apply(OwnerUpdating()); }

void CTRL_LISTVIEW_CLASS::RedrawSel() { m_List.RedrawSel(); }

void CTRL_LISTVIEW_CLASS::OnKillFocus() { m_List.OnKillFocus(); }

void CTRL_LISTVIEW_CLASS::OnKey(int key, bool bCtrl) {
  for (unsigned id : m_List.OnKey(key, bCtrl)) m_pOwner->SendCommand(id, kNotifyClicked);
}

void CTRL_LISTVIEW_CLASS::TakeSelection() {
  auto* w = dynamic_cast<cListWidget*>(m_hWnd.data());
  if (w == nullptr) return;
  cListBox& b = m_List.Box();
  const int current = w->currentRow();
  if (!b.multi) {
    b.curSel = current >= 0 && w->item(current)->isSelected() ? current : -1;
  } else {
    b.sel.assign(b.Count(), 0);
    for (int i = 0; i < std::min(b.Count(), w->count()); ++i) b.sel[i] = w->item(i)->isSelected() ? 1 : 0;
    b.caret = current;
    // The anchor stays while Shift extends the selection.
    if (!(QGuiApplication::keyboardModifiers() & Qt::ShiftModifier) || b.anchor < 0) b.anchor = current;
  }
  b.topIndex = std::max(0, w->indexAt(QPoint(1, 1)).row());
}

void CTRL_LISTVIEW_CLASS::Sync() {
  auto* w = dynamic_cast<cListWidget*>(m_hWnd.data());
  if (w == nullptr) return;
  const cListBox& b = m_List.Box();
  const QSignalBlocker block(w);
  const QSignalBlocker blockScroll(w->verticalScrollBar());
  const bool rows = b.rowsRevision != m_nRowsRev;
  if (rows) {
    w->clear();
    QStringList texts;
    texts.reserve(static_cast<qsizetype>(b.rows.size()));
    bool oneLine = true;
    for (const std::string& row : b.rows) {
      texts.push_back(QString::fromStdString(Cp932ToUtf8Lossy(row)));
      oneLine = oneLine && row.find('\n') == std::string::npos;
    }
    // Rows of one line each have one height, which the view then measures once instead
    // of for every row of a table of 999. A message's row may keep its line breaks.
    w->setUniformItemSizes(oneLine);
    w->addItems(texts);
    m_nRowsRev = b.rowsRevision;
  }
  if (!rows && b.selRevision == m_nSelRev) return;
  m_nSelRev = b.selRevision;
  if (!b.multi) {
    if (b.Valid(b.curSel)) w->setCurrentRow(b.curSel, QItemSelectionModel::ClearAndSelect);
    else w->clearSelection();
  } else {
    // One selection of runs of rows: row by row, each change would go through the model.
    QItemSelection selection;
    for (int i = 0; i < w->count(); ++i) {
      if (!b.IsSelected(i)) continue;
      int last = i;
      while (last + 1 < w->count() && b.IsSelected(last + 1)) ++last;
      selection.select(w->model()->index(i, 0), w->model()->index(last, 0));
      i = last;
    }
    w->selectionModel()->select(selection, QItemSelectionModel::ClearAndSelect);
    if (b.Valid(b.caret)) w->setCurrentRow(b.caret, QItemSelectionModel::NoUpdate);
  }
  if (b.Valid(b.topIndex)) w->scrollToItem(w->item(b.topIndex), QAbstractItemView::PositionAtTop);
}

int CTRL_LISTVIEW_CLASS::HitTest(QPoint global) {
  auto* w = dynamic_cast<cListWidget*>(m_hWnd.data());
  if (w == nullptr) return 0;
  const QPoint p = w->viewport()->mapFromGlobal(global);
  if (!w->viewport()->rect().contains(p)) return 0;
  if (!m_List.HitTestRow(w->indexAt(p).row(), m_pOwner->IsCurrent())) return 0;
  w->setFocus(Qt::OtherFocusReason);
  Sync();
  return 1;
}
