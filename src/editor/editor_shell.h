#pragma once
// The editor's side of the start-up: its dialogs, its main window and its event loop.

#include <memory>

#include "app/app_frame.h"

class VIEW_MAIN;
class cIdleTimer;
class cTestPlayWatch;

class cEditorShell : public cAppShell {
 public:
  cEditorShell();
  ~cEditorShell() override;
  int BattleModeDialog() override;
  int CreateMainWindow() override;
  int RunLoop() override;

  std::unique_ptr<VIEW_MAIN> m_pView;
  std::unique_ptr<cIdleTimer> m_pIdle;
  std::unique_ptr<cTestPlayWatch> m_pTestPlay;
};
