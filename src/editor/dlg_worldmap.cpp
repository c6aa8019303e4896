#include "editor/dlg_worldmap.h"

#include <QCloseEvent>
#include <QCursor>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QScreen>
#include <QScrollBar>
#include <algorithm>
#include <utility>

#include "app/world_commands.h"
#include "editor/command_bar.h"
#include "editor/dlg_worldchip.h"
#include "editor/dlg_worldevent.h"
#include "editor/dlg_worldevent_set.h"
#include "editor/dlg_worldmap_set.h"
#include "editor/map_scroll.h"
#include "editor/qt_prompt.h"
#include "project/project_globals.h"
#include "stage/world_view_draw.h"
#include "toolkit/toolbar_images.h"
#include "toolkit/wnd_class.h"

DLG_WORLDMAP* g_pDlgWorldMap = nullptr;

namespace {

constexpr int kPollMs = 16;

QIcon WorldToolPicture(int id) {
  static const std::vector<QIcon> palettes = ToolbarStrip("e_image\\ToolBar_WorldPalette.bmp", 2);
  switch (id) {
    case IDW_SAVE: return StandardPicture(eStandardPicture::kSave);
    case IDW_UNDO: return StandardPicture(eStandardPicture::kUndo);
    case IDW_REDO: return StandardPicture(eStandardPicture::kRedo);
    case IDW_TOOL_CHIP: return palettes[0];
    case IDW_TOOL_EVENT: return palettes[1];
    default: return {};
  }
}

}  // namespace

void cWorldView::OnPaint() {
  m_View.m_nWidth = m_Back.m_nWidth;
  m_View.m_nHeight = m_Back.m_nHeight;
  DrawWorldView(m_Back, m_View);
}

void cWorldView::Mouse(eMapMouse msg, int x, int y) {
  const int cx = m_View.m_nCursorX, cy = m_View.m_nCursorY;
  WorldMouse(m_View, {msg, x, y, m_Mouse.left, m_Mouse.right});
  // A move within the cell changes nothing on the screen.
  if (msg == eMapMouse::kMove && cx == m_View.m_nCursorX && cy == m_View.m_nCursorY) return;
  Invalidate();
  if (m_onCursor) m_onCursor();
}

DLG_WORLDMAP::DLG_WORLDMAP(QWidget* stageWindow, std::function<void()> onClosed) : m_onClosed(std::move(onClosed)) {
  g_pDlgWorldMap = this;
  setAttribute(Qt::WA_DeleteOnClose);
  setWindowTitle(QStringLiteral("ワールドマップ"));
  // The window cannot be minimised: its palettes would stand alone.
  setWindowFlag(Qt::WindowMinimizeButtonHint, false);
  m_pCommands = std::make_unique<cCommandBar>(this, WorldCommandSet(), WorldToolPicture, [this](int id) { Command(id); });

  auto* client = new QWidget(this);
  client->setFocusPolicy(Qt::StrongFocus);
  client->setMinimumSize(kMinWidth, kMinHeight);
  client->setMaximumSize(kWidth, kHeight);
  m_Map.CreateView(client, kWidth, kHeight, true);
  m_Map.m_hWnd->setAccessibleName(QStringLiteral("ワールドマップ"));
  m_Pane.Build(client, m_Map, m_Map.m_View);
  m_pScrollH = m_Pane.m_pScrollH;
  m_pScrollV = m_Pane.m_pScrollV;
  m_pStatus = m_Pane.m_pStatus;
  setCentralWidget(client);
  m_Map.m_onCursor = [this] {
    m_pStatus->setText(StatusText());
    if (g_WorldEditState.m_bPicking && !m_PollTimer.isActive()) m_PollTimer.start();
  };
  m_Map.m_onWheel = [this](int amount, bool ctrl) { m_Pane.Wheel(amount, ctrl); };
  m_Map.m_onResize = [this] { UpdateScrollRanges(); };
  m_PollTimer.setInterval(kPollMs);
  connect(&m_PollTimer, &QTimer::timeout, this, [this] { Poll(); });

  const cWndPosInfo& stored = g_EditConfig.m_PosWorldMap;
  QRect place(stageWindow != nullptr ? stageWindow->pos() : QPoint(50, 50), QSize(kWidth, kHeight));
  if (stored.m_bValid) place = {stored.m_nX, stored.m_nY, stored.m_nWidth, stored.m_nHeight};
  client->resize(place.size().boundedTo(QSize(kWidth, kHeight)).expandedTo(QSize(kMinWidth, kMinHeight)));
  resize(sizeHint().expandedTo(client->size()));
  const QScreen* screen = QGuiApplication::primaryScreen();
  move(screen != nullptr ? PlaceInWorkArea(place.topLeft(), size(), screen->availableGeometry()) : place.topLeft());
  SetWorldEditHost(this);
  m_pStatus->setText(StatusText());
  UpdateScrollRanges();
}

DLG_WORLDMAP::~DLG_WORLDMAP() {
  SetWorldEditHost(nullptr);
  delete m_pChip.data();
  m_pEvent.reset();
  if (g_pDlgWorldMap == this) g_pDlgWorldMap = nullptr;
  if (m_onClosed) m_onClosed();
}

void DLG_WORLDMAP::Command(int id) {
  RunWorldCommand(id);
  if (g_pDlgWorldMap == this) Redraw();
}

QString DLG_WORLDMAP::StatusText() const {
  return QtText(MapCoordText(m_Map.m_View.m_nCursorX, m_Map.m_View.m_nCursorY));
}

void DLG_WORLDMAP::UpdateScrollRanges() { m_Pane.SetMapSize(g_WorldMap.m_nWidth, g_WorldMap.m_nHeight); }

void DLG_WORLDMAP::Poll() {
  if (!g_WorldEditState.m_bPicking) {
    m_PollTimer.stop();
    return;
  }
  const QPoint p = m_Map.m_hWnd->mapFromGlobal(QCursor::pos());
  if (m_Map.m_hWnd->rect().contains(p)) return;  // the view's own mouse messages carry it
  const bool held = (QGuiApplication::mouseButtons() & Qt::RightButton) != 0;
  if (WorldFramePoll(m_Map.m_View, p.x(), p.y(), false, !held, held, m_pScrollH->maximum(), m_pScrollV->maximum(),
                     ++m_nPoll)) {
    const QSignalBlocker blockH(m_pScrollH), blockV(m_pScrollV);
    m_pScrollH->setValue(m_Map.m_View.m_nScrollX);
    m_pScrollV->setValue(m_Map.m_View.m_nScrollY);
  }
  m_pStatus->setText(StatusText());
  m_Map.Invalidate();
}

DLG_WORLDCHIP* DLG_WORLDMAP::Chip() const { return m_pChip.data(); }

bool DLG_WORLDMAP::WindowIsActive() const { return isActiveWindow(); }

void DLG_WORLDMAP::FocusWindow() {
  activateWindow();
  centralWidget()->setFocus();
}

void DLG_WORLDMAP::Redraw() {
  m_Map.Invalidate();
  if (m_pChip != nullptr) m_pChip->Refresh();
}

void DLG_WORLDMAP::UpdateCommands() { m_pCommands->Update(); }

void DLG_WORLDMAP::ShowPalette(int palette) {
  if (palette != WORLD_PALETTE_CHIP) delete m_pChip.data();
  if (palette != WORLD_PALETTE_EVENT) m_pEvent.reset();
  auto keys = [this](int key) {
    if (key == Qt::Key_Space) {
      NextWorldPalette();
      FocusWindow();
    }
  };
  if (palette == WORLD_PALETTE_CHIP && m_pChip == nullptr) {
    m_pChip = new DLG_WORLDCHIP(this, keys);
    m_pChip->show();
  }
  if (palette == WORLD_PALETTE_EVENT && m_pEvent == nullptr) {
    m_pEvent = std::make_unique<DLG_WORLDEVENT>(this, keys);
    m_pEvent->Create();
  }
}

bool DLG_WORLDMAP::EditEvent(cWorldEvent& event) {
  const bool confirmed = RunWorldEventSet(event, this) == 1;
  if (confirmed && m_pEvent != nullptr) m_pEvent->RedrawLists();
  Redraw();
  return confirmed;
}

int DLG_WORLDMAP::PopupEventMenu(const bool* enabled) { return RunEventPopup(this, enabled); }

void DLG_WORLDMAP::ToListClipboard(const cWorldEvent& event) {
  if (m_pEvent != nullptr) m_pEvent->TakeIntoClipboard(event);
}

void DLG_WORLDMAP::CloseWindow() { close(); }

void DLG_WORLDMAP::ShowPalettes(bool show) {
  for (QWidget* palette : {static_cast<QWidget*>(m_pChip.data()), m_pEvent != nullptr ? m_pEvent->m_hWnd.data() : nullptr}) {
    if (palette == nullptr) continue;
    palette->setVisible(show);
    palette->setEnabled(show);
  }
}

bool DLG_WORLDMAP::RunSettings() { return RunWorldMapSettings(this) == 1; }

void DLG_WORLDMAP::closeEvent(QCloseEvent* event) {
  if (!AskCloseWorldMap()) {
    event->ignore();
    return;
  }
  g_EditConfig.m_PosWorldMap.Set(x(), y(), centralWidget()->width(), centralWidget()->height());
  ShowPalette(-1);  // the palettes leave their places in the configuration
  g_EditConfig.SaveFile(kEditConfigPath);
  WorldClearHistory();
  event->accept();
  if (g_pDlgWorldMap == this) g_pDlgWorldMap = nullptr;
  // The stage editor comes back before this window is gone, so that the program does
  // not see its last window close.
  if (auto closed = std::exchange(m_onClosed, nullptr)) closed();
}

void DLG_WORLDMAP::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Space && !m_Map.m_Mouse.left && !m_Map.m_Mouse.right) {
    NextWorldPalette();
    FocusWindow();
    return;
  }
  QMainWindow::keyPressEvent(event);
}

// The minimise command is swallowed.
void DLG_WORLDMAP::changeEvent(QEvent* event) {
  QMainWindow::changeEvent(event);
  if (event->type() == QEvent::WindowStateChange && isMinimized()) setWindowState(windowState() & ~Qt::WindowMinimized);
}

DLG_WORLDMAP* OpenWorldMapWindow(QWidget* stageWindow, std::function<void()> onClosed) {
  if (g_pDlgWorldMap != nullptr) return nullptr;
  OpenWorldEdit();
  auto* window = new DLG_WORLDMAP(stageWindow, std::move(onClosed));
  window->show();
  window->UpdateCommands();
  ChangeWorldPalette(g_WorldEditState.m_nPalette);
  window->FocusWindow();
  return window;
}
