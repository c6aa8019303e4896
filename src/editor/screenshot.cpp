#include "editor/screenshot.h"

#include <QApplication>
#include <QMenu>
#include <QMenuBar>
#include <QPixmap>
#include <QScreen>
#include <QEventLoop>
#include <QTimer>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <string>

#include "editor/form_catalog.h"
#include "forms/database/database_sheet.h"
#include "toolkit/dlg_class.h"
#include "editor/view_main.h"

namespace {

std::string EnvPath(const char* name) {
  const char* value = std::getenv(name);
  return value != nullptr ? value : "";
}

void Save(QWidget* widget, const std::string& path) {
  QPixmap picture = widget->grab();
  if (picture.save(QString::fromStdString(path), "PNG"))
    std::fprintf(stderr, "ortalune: wrote %s (%d by %d pixels)\n", path.c_str(), picture.width(), picture.height());
  else
    std::fprintf(stderr, "ortalune: cannot write %s\n", path.c_str());
}

// The whole screen with the main window, its palette and the first menu open, as the
// user sees them together.
void SaveScreen(const std::string& path) {
  QMenu* first = nullptr;
  if (const QList<QAction*> menus = g_pViewMain->menuBar()->actions(); !menus.isEmpty()) first = menus.front()->menu();
  if (first != nullptr) {
    const QRect item = g_pViewMain->menuBar()->actionGeometry(g_pViewMain->menuBar()->actions().front());
    first->popup(g_pViewMain->menuBar()->mapToGlobal(item.bottomLeft()));
  }
  QEventLoop settle;
  QTimer::singleShot(300, &settle, &QEventLoop::quit);
  settle.exec();
  QScreen* screen = g_pViewMain->screen();
  const QPixmap picture = screen != nullptr ? screen->grabWindow(0) : QPixmap();
  if (first != nullptr) first->hide();
  if (picture.save(QString::fromStdString(path), "PNG"))
    std::fprintf(stderr, "ortalune: wrote %s (%d by %d pixels)\n", path.c_str(), picture.width(), picture.height());
  else
    std::fprintf(stderr, "ortalune: cannot write %s\n", path.c_str());
}

void EndRun() {
  if (g_pViewMain == nullptr) return QApplication::exit(0);
  g_pViewMain->m_bAskOnClose = false;
  g_pViewMain->close();
}

// Each form of the catalog, shown long enough to be laid out and painted.
void SaveForms(const std::string& folder) {
  for (const cFormCatalogEntry& entry : FormCatalog()) {
    std::unique_ptr<DLG_CLASS> form = entry.make();
    if (!form->Create(0, true)) continue;
    QEventLoop settle;
    QTimer::singleShot(300, &settle, &QEventLoop::quit);
    settle.exec();
    Save(form->m_hWnd, folder + "/" + entry.name + ".png");
    form->SendCommand(kIdCancel, kNotifyClicked);
  }
  // The database sheet, on each page it has.
  if (PROP_DATABASE* sheet = OpenDatabaseSheet(nullptr, {})) {
    for (int page = 0; page < sheet->m_vecPage.Count(); ++page) {
      sheet->SetCurrentPage(page);
      QEventLoop settle;
      QTimer::singleShot(300, &settle, &QEventLoop::quit);
      settle.exec();
      Save(sheet->m_hWnd, folder + "/PROP_DATABASE-" + std::to_string(page) + ".png");
    }
    sheet->Cancel();
  }
}

}  // namespace

bool ScheduleScreenshots() {
  std::string mainPath = EnvPath("ORTALUNE_SCREENSHOT");
  std::string formFolder = EnvPath("ORTALUNE_SCREENSHOT_FORMS");
  if (mainPath.empty() && formFolder.empty()) return false;
  // Late enough for the window to be laid out and painted.
  QTimer::singleShot(500, [mainPath, formFolder] {
    if (!mainPath.empty() && g_pViewMain != nullptr) {
      Save(g_pViewMain, mainPath);
      std::string screen = mainPath;
      screen.insert(screen.size() - (screen.ends_with(".png") ? 4 : 0), "-screen");
      SaveScreen(screen);
    }
    if (!formFolder.empty()) SaveForms(formFolder);
    EndRun();
  });
  return true;
}
