#pragma once
// VIEW_MAIN, the frame window: the program's one entry on the desktop, with the menu,
// and DLG_MAIN as its central widget.

#include <QMainWindow>

class DLG_MAIN;

class VIEW_MAIN : public QMainWindow {
 public:
  VIEW_MAIN();
  ~VIEW_MAIN() override;

  // The title from the open stage's path.
  void UpdateTitle();
  DLG_MAIN* Dlg() const { return m_pDlg; }

  // Closing asks first; set false to close without the question (the end of a run
  // that the program itself decided).
  bool m_bAskOnClose = true;

 protected:
  void closeEvent(QCloseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void BuildMenu();
  void StorePlace();
  DLG_MAIN* m_pDlg;
};

// The live frame window, or null.
extern VIEW_MAIN* g_pViewMain;
