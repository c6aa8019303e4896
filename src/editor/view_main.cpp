#include "editor/view_main.h"

#include <QApplication>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QScreen>
#include <QTimer>
#include <algorithm>

#include "app/app_frame.h"
#include "app/idle_frame.h"
#include "app/stage_commands.h"
#include "editor/command_bar.h"
#include "editor/dlg_chip.h"
#include "editor/dlg_enemy.h"
#include "editor/dlg_event.h"
#include "editor/dlg_grouppos.h"
#include "editor/dlg_main.h"
#include "editor/dlg_stage.h"
#include "editor/dlg_testplay.h"
#include "editor/dlg_worldmap.h"
#include "editor/map_scroll.h"
#include "forms/database/database_sheet.h"
#include "forms/event/dlg_event_set.h"
#include "platform/cp932.h"
#include "platform/diagnostics.h"
#include "project/project_globals.h"
#include "stage/edit_state.h"
#include "stage/event_menu.h"
#include "stage/stage_form_results.h"
#include "toolkit/wnd_class.h"

VIEW_MAIN* g_pViewMain = nullptr;

namespace {

// Where the dialog opens and its size, from the stored place when there is one.
QRect StoredPlace() {
  const cWndPosInfo& pos = g_EditConfig.m_PosMain;
  if (!pos.m_bValid) return {50, 50, DLG_MAIN::kWidth, DLG_MAIN::kHeight};
  return {pos.m_nX, pos.m_nY, std::max(pos.m_nWidth, +DLG_MAIN::kMinWidth), std::max(pos.m_nHeight, +DLG_MAIN::kMinHeight)};
}

}  // namespace

VIEW_MAIN::VIEW_MAIN() {
  g_pViewMain = this;
  setAttribute(Qt::WA_DeleteOnClose, false);
  const QRect place = StoredPlace();
  m_DlgSize = place.size();
  m_pCommands = std::make_unique<cCommandBar>(this, [this](int id) { Command(id); });
  BuildMain();
  SetMapEditHost(this);
  resize(sizeHint());
  if (const QScreen* screen = QGuiApplication::primaryScreen()) {
    const QRect work = screen->availableGeometry();
    resize(size().boundedTo(work.size()));
    move(PlaceInWorkArea(place.topLeft(), size(), work));
  } else {
    move(place.topLeft());
  }
  connect(qApp, &QGuiApplication::applicationStateChanged, this, [this](Qt::ApplicationState state) {
    if (state == Qt::ApplicationActive) {
      g_bFocusRequest = 1;
      QTimer::singleShot(0, this, ServeFocusRequest);
      ShowPalettes();
    } else if (!isMinimized() && !m_bMinimized) {
      HidePalettes();
    }
  });
}

VIEW_MAIN::~VIEW_MAIN() {
  SetMapEditHost(nullptr);
  delete m_pDlg;
  g_pDlgMain = nullptr;
  if (g_pViewMain == this) g_pViewMain = nullptr;
}

void VIEW_MAIN::UpdateTitle() { setWindowTitle(QString::fromStdString(MainTitleText(g_EditState.m_strStagePath))); }

void VIEW_MAIN::Command(int id) {
  RunStageCommand(id);
  if (m_pDlg == nullptr) return;
  m_pDlg->UpdateScrollRanges();
  m_pDlg->RefreshPalette();
}

bool VIEW_MAIN::MainIsActive() const { return isActiveWindow(); }

void VIEW_MAIN::FocusMain() {
  if (m_pDlg == nullptr) return;
  activateWindow();
  m_pDlg->setFocus();
}

void VIEW_MAIN::RefreshPalette() {
  if (m_pDlg != nullptr) m_pDlg->RefreshPalette();
}

void VIEW_MAIN::UpdateCommands() { m_pCommands->Update(); }

void VIEW_MAIN::ShowPalette(int palette) {
  if (m_pDlg != nullptr) m_pDlg->ShowPalette(palette);
}

// The form makes the stage's undo step on OK, before the event takes the edits.
bool VIEW_MAIN::EditEvent(cEvent& event, bool) { return RunEventSet(event, eEventTarget::kStage, this) == 1; }

// The project's start event, saved by the form's OK.
void VIEW_MAIN::EditStartEvent() {
  cEditState& es = g_EditState;
  es.m_bStartEvent = 1;
  es.m_bEditPlaced = 1;
  es.m_pEditEvent = &g_StartEvent;
  RunEventSet(g_StartEvent, eEventTarget::kStart, this);
  es.m_pEditEvent = nullptr;
  es.m_bStartEvent = 0;
}

void VIEW_MAIN::SelectEnemyRow(int row) {
  if (m_pDlg != nullptr && m_pDlg->Enemy() != nullptr) m_pDlg->Enemy()->ShowRow(row);
}

void VIEW_MAIN::EditEnemyRow(int row) {
  if (m_pDlg != nullptr && m_pDlg->Enemy() != nullptr) m_pDlg->Enemy()->EditRow(row);
}

void VIEW_MAIN::DestroyMain() {
  if (m_pDlg == nullptr) return;
  m_DlgSize = m_pDlg->size();
  delete m_pDlg;
  m_pDlg = nullptr;
  g_pDlgMain = nullptr;
}

void VIEW_MAIN::BuildMain() {
  m_pDlg = new DLG_MAIN(this, m_DlgSize);
  m_pDlg->m_onKey = [this](int key) {
    if (key == Qt::Key_F5) {
      Command(IDM_TEST_PLAY);
      return;
    }
    if (!g_EditState.m_bStageOpen) return;
    NextPalette();
    FocusMain();
  };
  setCentralWidget(m_pDlg);
  g_pDlgMain = m_pDlg;
  m_pDlg->UpdateScrollRanges();
  UpdateTitle();
  UpdateCommands();
}

void VIEW_MAIN::WaitCursor(bool wait) {
  if (wait)
    QApplication::setOverrideCursor(Qt::WaitCursor);
  else
    QApplication::restoreOverrideCursor();
}

bool VIEW_MAIN::RunForm(int command) {
  switch (command) {
    case IDM_TEST_PLAY_SETTINGS: RunTestPlaySettings(this); return true;
    case IDM_DATABASE: return OpenDatabase();
    case IDM_WORLD_MAP: return OpenWorldMap();
    case IDM_STAGE_SETTINGS:
      if (RunStageSettings(this) == 1) {
        StageSettingsConfirmed();
        if (m_pDlg != nullptr && m_pDlg->Chip() != nullptr) m_pDlg->Chip()->Relayout();
      }
      return true;
    case IDM_START_EVENT: EditStartEvent(); return true;
    case IDM_POSITION_GROUPS:
      if (RunPositionGroups(this) == 1) PositionGroupsConfirmed();
      return true;
    default: return false;
  }
}

// The stage editor steps aside while the sheet is open, and takes up the applied
// tables when it closes: the stage is repaired against them and the palette laid out
// again.
bool VIEW_MAIN::OpenDatabase() {
  if (OpenDatabaseSheet(nullptr, [this] {
        if (g_EditState.m_bStageOpen) g_Stage.Clamp();
        show();
        setEnabled(true);
        if (m_pDlg != nullptr && m_pDlg->Chip() != nullptr) m_pDlg->Chip()->Relayout();
        if (m_pDlg != nullptr) m_pDlg->SetPaletteVisible(true);
        RefreshPalette();
        FocusMain();
      }) == nullptr)
    return false;
  m_pDlg->SetPaletteVisible(false);
  setEnabled(false);
  hide();
  return true;
}

// The world map takes the stage editor's place until it closes.
bool VIEW_MAIN::OpenWorldMap() {
  if (OpenWorldMapWindow(this, [this] {
        show();
        setEnabled(true);
        if (m_pDlg != nullptr) m_pDlg->SetPaletteVisible(true);
        RefreshPalette();
        FocusMain();
      }) == nullptr)
    return false;
  if (m_pDlg != nullptr) m_pDlg->SetPaletteVisible(false);
  setEnabled(false);
  hide();
  return true;
}

int VIEW_MAIN::PopupEventMenu(const bool* enabled) {
  const int id = RunEventPopup(this, enabled);
  // A copy or cut of an event on the map also reaches the event palette's own clipboard.
  const cEvent* event = g_EditState.m_pEditEvent;
  if ((id == IDM_EVENT_COPY || id == IDM_EVENT_CUT) && event != nullptr && m_pDlg != nullptr && m_pDlg->Event() != nullptr)
    m_pDlg->Event()->m_Palette.m_List.m_vecClip = {*event};
  return id;
}

void VIEW_MAIN::StorePlace() {
  if (m_pDlg != nullptr) g_EditConfig.m_PosMain.Set(x(), y(), m_pDlg->width(), m_pDlg->height());
}

void VIEW_MAIN::HidePalettes() {
  if (m_pDlg == nullptr || !m_pDlg->PaletteVisible()) return;
  m_pDlg->SetPaletteVisible(false);
  m_bMinimized = true;
}

void VIEW_MAIN::ShowPalettes() {
  if (!m_bMinimized) return;
  m_bMinimized = false;
  if (m_pDlg != nullptr) m_pDlg->SetPaletteVisible(true);
}

void VIEW_MAIN::changeEvent(QEvent* event) {
  QMainWindow::changeEvent(event);
  if (event->type() != QEvent::WindowStateChange) return;
  if (isMinimized()) {
    HidePalettes();
  } else {
    g_bFocusRequest = 1;
    QTimer::singleShot(0, this, ServeFocusRequest);
    ShowPalettes();
  }
}

void VIEW_MAIN::closeEvent(QCloseEvent* event) {
  if (m_bAskOnClose && !AskSave()) {
    event->ignore();
    return;
  }
  StorePlace();
  // The palettes go with the window: they leave their places in the configuration
  // before the exit saves it.
  if (m_pDlg != nullptr) m_pDlg->ShowPalette(-1);
  event->accept();
}

void VIEW_MAIN::keyPressEvent(QKeyEvent* event) {
  if (event->key() != Qt::Key_Escape) {
    QMainWindow::keyPressEvent(event);
    return;
  }
  if (MesBox(this, CP932_TEXT("終了しますか？\n"), CP932_TEXT("終了確認"), MB_YESNO) == IDYES) close();
}
