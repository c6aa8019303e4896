#include "editor/screenshot.h"

#include <QApplication>
#include <QPixmap>
#include <QTimer>
#include <cstdio>
#include <cstdlib>
#include <string>

#include "editor/dlg_testplay.h"
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

void EndRun() {
  if (g_pViewMain == nullptr) return QApplication::exit(0);
  g_pViewMain->m_bAskOnClose = false;
  g_pViewMain->close();
}

}  // namespace

bool ScheduleScreenshots() {
  std::string mainPath = EnvPath("ORTALUNE_SCREENSHOT");
  std::string formPath = EnvPath("ORTALUNE_SCREENSHOT_TESTPLAY");
  if (mainPath.empty() && formPath.empty()) return false;
  // Late enough for the window to be laid out and painted.
  QTimer::singleShot(500, [mainPath, formPath] {
    if (!mainPath.empty() && g_pViewMain != nullptr) Save(g_pViewMain, mainPath);
    if (!formPath.empty()) {
      ShowTestPlaySettingsFor([formPath](QWidget* form) { Save(form, formPath); });
    }
    EndRun();
  });
  return true;
}
