#pragma once
// VIEW_MAIN, the frame window: the program's one entry on the desktop, with the menu,
// the toolbar and DLG_MAIN as its central widget. It is the window side of the stage
// editor's engine: what the engine and the commands ask of windows, it does.

#include <QMainWindow>
#include <memory>

#include "stage/map_edit.h"

class DLG_MAIN;
class cCommandBar;

class VIEW_MAIN : public QMainWindow, public cMapEditHost {
 public:
  VIEW_MAIN();
  ~VIEW_MAIN() override;

  // The title from the open stage's path.
  void UpdateTitle() override;
  DLG_MAIN* Dlg() const { return m_pDlg; }
  cCommandBar& Commands() const { return *m_pCommands; }
  // A command of the menu, the toolbar or a key, and the screen brought up to date.
  void Command(int id);

  // Leaving asks to save first; set false to close without questions (the end of a
  // run that the program itself decided).
  bool m_bAskOnClose = true;
  // The palettes are hidden because the user minimised or left the program.
  bool m_bMinimized = false;

  // cMapEditHost
  bool MainIsActive() const override;
  void FocusMain() override;
  void RefreshPalette() override;
  void UpdateCommands() override;
  void ShowPalette(int palette) override;
  bool EditEvent(cEvent& event, bool placed) override;
  void SelectEnemyRow(int row) override;
  void EditEnemyRow(int row) override;
  void DestroyMain() override;
  void BuildMain() override;
  void WaitCursor(bool wait) override;
  bool RunForm(int command) override;
  int PopupEventMenu(const bool* enabled) override;

 protected:
  void closeEvent(QCloseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  void StorePlace();
  void EditStartEvent();
  bool OpenDatabase();
  bool OpenWorldMap();
  void HidePalettes();
  void ShowPalettes();
  DLG_MAIN* m_pDlg = nullptr;
  std::unique_ptr<cCommandBar> m_pCommands;
  QSize m_DlgSize;
};

// The live frame window, or null.
extern VIEW_MAIN* g_pViewMain;
