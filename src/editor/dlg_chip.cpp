#include "editor/dlg_chip.h"

#include <QAction>
#include <QActionGroup>
#include <QApplication>
#include <QGridLayout>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QScreen>
#include <QScrollBar>
#include <QTimer>
#include <QToolBar>
#include <algorithm>

#include "editor/map_scroll.h"
#include "editor/qt_prompt.h"
#include "project/project_globals.h"
#include "stage/chip_palette.h"
#include "stage/edit_state.h"
#include "stage/stage_view_draw.h"
#include "toolkit/toolbar_images.h"
#include "toolkit/wnd_class.h"

namespace {

constexpr int kViewWidth = kChipPaletteCols * kMapCellPx;
const char* const kToolTexts[] = {"普通", "直線", "矩形", "塗り潰し"};


}  // namespace

void cChipView::OnPaint() { DrawChipPalette(m_Back, m_nTop, *m_pFace); }

void cChipView::OnLButtonDown(int x, int y) {
  m_pFace->choose(ChipAtPixel(x, y, m_nTop));
  if (m_onChosen) m_onChosen();
}

void cChipView::OnMouseWheel(int amount, bool) {
  if (m_onWheel) m_onWheel(amount);
}

DLG_CHIP::DLG_CHIP(QWidget* owner, std::function<void(int)> keys)
    : DLG_CHIP(owner, std::move(keys), {StageChipFace(), true, true, g_EditConfig.m_PosChip, QPoint(8, 0)}) {}

DLG_CHIP::DLG_CHIP(QWidget* owner, std::function<void(int)> keys, const cLook& look)
    : QWidget(owner, Qt::Tool), m_Keys(std::move(keys)), m_Look(look) {
  setWindowTitle(QStringLiteral("マップチップパレット"));
  setAccessibleName(windowTitle());
  m_View.m_pFace = &m_Look.face;
  m_pToolBar = new QToolBar(this);
  m_pToolBar->setVisible(m_Look.tools);
  m_pToolBar->setIconSize(QSize(16, 16));
  m_pTools = new QActionGroup(this);
  const std::vector<QIcon> pictures = ToolbarStrip("e_image\\ToolBar_Pen.bmp", 4);
  for (int tool = 0; tool < 4; ++tool) {
    QAction* action = m_pToolBar->addAction(pictures[static_cast<std::size_t>(tool)], QString::fromUtf8(kToolTexts[tool]));
    action->setCheckable(true);
    action->setChecked(g_EditState.m_nTool == tool);
    m_pTools->addAction(action);
    m_pToolBar->widgetForAction(action)->setAccessibleName(action->text());
    connect(action, &QAction::triggered, this, [tool] { g_EditState.m_nTool = g_EditState.m_nCursorShape = tool; });
  }
  m_View.CreateView(this, kViewWidth, kMapCellPx, true);
  m_View.m_hWnd->setFixedWidth(kViewWidth);
  m_View.m_hWnd->setAccessibleName(windowTitle());
  m_pScroll = new QScrollBar(Qt::Vertical, this);
  m_pStatus = new QLabel(this);
  m_pStatus->setContentsMargins(4, 1, 4, 1);
  auto* grid = new QGridLayout(this);
  grid->setContentsMargins(0, 0, 0, 0);
  grid->setSpacing(0);
  grid->addWidget(m_pToolBar, 0, 0, 1, 2);
  grid->addWidget(m_View.m_hWnd, 1, 0);
  grid->addWidget(m_pScroll, 1, 1);
  grid->addWidget(m_pStatus, 2, 0, 1, 2);
  connect(m_pScroll, &QScrollBar::valueChanged, this, [this](int top) {
    m_View.m_nTop = top;
    m_View.Invalidate();
  });
  m_View.m_onChosen = [this] { Refresh(); };
  if (m_Look.wheel)
    m_View.m_onWheel = [this](int amount) { m_pScroll->setValue(m_pScroll->value() + WheelScrollDelta(amount)); };
  Relayout();
  Refresh();
}

DLG_CHIP::~DLG_CHIP() {
  if (m_bPlaced) m_Look.stored.Set(x(), y(), width(), height());
}

void DLG_CHIP::Relayout() {
  const QScreen* screen = parentWidget() != nullptr ? parentWidget()->screen() : QGuiApplication::primaryScreen();
  const QRect work = screen != nullptr ? screen->availableGeometry() : QRect(0, 0, 1024, 768);
  // What the window needs beside the chips: bars, and the frame the desktop adds.
  const int frame = std::max(frameGeometry().height() - height(), 32);
  const int extra = (m_Look.tools ? m_pToolBar->sizeHint().height() : 0) + m_pStatus->sizeHint().height();
  const int full = ChipPaletteHeight(m_Look.face.count(), work.height() - extra - frame);
  m_View.m_hWnd->setMaximumHeight(full);
  m_View.m_hWnd->setMinimumHeight(kMapCellPx);
  setMinimumHeight(extra + kMapCellPx);
  setMaximumHeight(extra + full);

  QRect place(0, 0, kViewWidth + m_pScroll->sizeHint().width(), extra + full);
  const cWndPosInfo& stored = m_Look.stored;
  if (m_bPlaced) {
    place.moveTopLeft(pos());
    place.setHeight(std::min(height(), extra + full));
  } else if (stored.m_bValid) {
    place.moveTopLeft(QPoint(stored.m_nX, stored.m_nY));
    place.setHeight(std::clamp(stored.m_nHeight, extra + kMapCellPx, extra + full));
  } else if (parentWidget() != nullptr) {
    // Beside the main window.
    place.moveTopLeft(parentWidget()->frameGeometry().topRight() + m_Look.offset);
  }
  resize(place.size());
  move(PlaceInWorkArea(place.topLeft(), frameGeometry().size().expandedTo(place.size()), work));
  m_bPlaced = true;
  UpdateScroll();
}

void DLG_CHIP::UpdateScroll() {
  m_pScroll->setRange(0, std::max(0, (m_Look.face.count() - 1) / kChipPaletteCols));
  m_pScroll->setPageStep(std::max(1, m_View.m_hWnd->height() / kMapCellPx));
}

void DLG_CHIP::Refresh() {
  if (QAction* current = m_pTools->actions().value(g_EditState.m_nTool)) current->setChecked(true);
  m_pStatus->setText(QtText(ChipStatusText(m_Look.face)));
  m_View.Invalidate();
}

void DLG_CHIP::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_F5 && m_Keys) {
    m_Keys(event->key());
    return;
  }
  if (event->key() == Qt::Key_Space && m_Keys) {
    // A change of palette takes this window away: it runs once the key has been handled.
    QObject* owner = parentWidget() != nullptr ? static_cast<QObject*>(parentWidget()) : qApp;
    QTimer::singleShot(0, owner, [keys = m_Keys] { keys(Qt::Key_Space); });
    return;
  }
  QWidget::keyPressEvent(event);
}

void DLG_CHIP::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  UpdateScroll();
}
