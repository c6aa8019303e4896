#include "editor/editor_shell.h"

#include <QApplication>
#include <QTimer>

#include "platform/diagnostics.h"
#include "app/idle_frame.h"
#include "platform/main_window_link.h"
#include "editor/dlg_battle_mode.h"
#include "editor/dlg_main.h"
#include "editor/dlg_worldmap.h"
#include "editor/idle_timer.h"
#include "forms/animated_previews.h"
#include "forms/database/database_sheet.h"
#include "editor/screenshot.h"
#include "editor/test_play_watch.h"
#include "editor/view_main.h"
#include "stage/edit_state.h"
#include "stage/map_edit.h"

namespace {

void PostCloseOfMain() {
  if (g_pViewMain != nullptr) QTimer::singleShot(0, g_pViewMain, [] { g_pViewMain->close(); });
}

// A bad index ends the run at once, without the question.
void DestroyMain() {
  if (g_pViewMain == nullptr) return;
  g_pViewMain->m_bAskOnClose = false;
  QTimer::singleShot(0, g_pViewMain, [] { g_pViewMain->close(); });
}

// While the world map is open (view number 2) the focus goes to its window.
void FocusMain() {
  if (g_pDlgWorldMap != nullptr) g_pDlgWorldMap->FocusWindow();
  else if (g_pDlgMain != nullptr) g_pDlgMain->setFocus();
}

}  // namespace

cEditorShell::cEditorShell() = default;

cEditorShell::~cEditorShell() {
  g_pDlgMain = nullptr;
  g_IdleClients = cIdleClients{};
  SetMainWindowHandlers(nullptr, nullptr);
  SetActiveWindowForBoxes(nullptr);
}

int cEditorShell::BattleModeDialog() { return RunBattleModeDialog(); }

int cEditorShell::CreateMainWindow() {
  m_pView = std::make_unique<VIEW_MAIN>();
  m_pView->show();
  g_pDlgMain = m_pView->Dlg();
  SetMainWindowHandlers(PostCloseOfMain, DestroyMain);
  SetActiveWindowForBoxes(m_pView.get());
  g_IdleClients.focusMain = FocusMain;
  g_IdleClients.animatedPreviewShown = AnyAnimatedPreviewLive;
  g_IdleClients.giveFrames = GiveAnimatedPreviewFrames;
  m_pIdle = std::make_unique<cIdleTimer>();
  g_IdleClients.previewsChanged = ReconsiderIdleFrames;
  m_pIdle->Reconsider();
  m_pTestPlay = std::make_unique<cTestPlayWatch>();
  // The palette the configuration stored comes up with an open stage.
  if (g_EditState.m_bStageOpen) ChangePalette(g_EditState.m_nPalette);
  m_pView->FocusMain();
  return 1;
}

int cEditorShell::RunLoop() {
  ScheduleScreenshots();
  int result = QApplication::exec();
  g_pDlgMain = nullptr;
  return result;
}
