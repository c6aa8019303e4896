#include "editor/view_main.h"

#include <QCloseEvent>
#include <QKeyEvent>
#include <QMenuBar>
#include <algorithm>

#include "platform/diagnostics.h"
#include "editor/dlg_main.h"
#include "editor/dlg_testplay.h"
#include "editor/map_scroll.h"
#include "platform/cp932.h"
#include "project/project_globals.h"
#include "stage/edit_state.h"

VIEW_MAIN* g_pViewMain = nullptr;

namespace {

// Where the dialog opens and its size, from the stored place when there is one.
QRect StoredPlace() {
  const cWndPosInfo& pos = g_EditConfig.m_PosMain;
  if (!pos.m_bValid) return {50, 50, DLG_MAIN::kWidth, DLG_MAIN::kHeight};
  return {pos.m_nX, pos.m_nY, std::clamp(pos.m_nWidth, DLG_MAIN::kMinWidth, +DLG_MAIN::kWidth),
          std::clamp(pos.m_nHeight, DLG_MAIN::kMinHeight, +DLG_MAIN::kHeight)};
}

}  // namespace

VIEW_MAIN::VIEW_MAIN() {
  g_pViewMain = this;
  setAttribute(Qt::WA_DeleteOnClose, false);
  QRect place = StoredPlace();
  m_pDlg = new DLG_MAIN(this, place.size());
  setCentralWidget(m_pDlg);
  BuildMenu();
  UpdateTitle();
  resize(sizeHint());  // the stored size, which may exceed what adjustSize allows on a small screen
  move(place.topLeft());
}

VIEW_MAIN::~VIEW_MAIN() {
  if (g_pViewMain == this) g_pViewMain = nullptr;
}

void VIEW_MAIN::UpdateTitle() { setWindowTitle(QString::fromStdString(MainTitleText(g_EditState.m_strStagePath))); }

void VIEW_MAIN::BuildMenu() {
  QMenu* testPlay = menuBar()->addMenu(QStringLiteral("テストプレイ(&T)"));
  testPlay->addAction(QStringLiteral("テストプレイの設定(&E)"), this, [this] { RunTestPlaySettings(this); });
}

void VIEW_MAIN::StorePlace() {
  g_EditConfig.m_PosMain.Set(x(), y(), m_pDlg->width(), m_pDlg->height());
}

void VIEW_MAIN::closeEvent(QCloseEvent* event) {
  if (m_bAskOnClose && MesBox(this, CP932_TEXT("終了しますか？\n"), CP932_TEXT("終了確認"), MB_YESNO) != IDYES) {
    event->ignore();
    return;
  }
  StorePlace();
  event->accept();
}

void VIEW_MAIN::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Escape) {
    close();
    return;
  }
  QMainWindow::keyPressEvent(event);
}
