#include "editor/screenshot.h"

#include <QApplication>
#include <QListWidget>
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

#include "app/app_frame.h"
#include "app/stage_commands.h"
#include "app/world_commands.h"
#include "editor/dlg_worldmap.h"
#include "editor/form_catalog.h"
#include "forms/database/database_sheet.h"
#include "forms/database/db_skill_list_page.h"
#include "forms/database/db_skill_page.h"
#include "project/project_globals.h"
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

// Lets the event loop run for `ms`, for windows to be laid out and painted.
void Settle(int ms) {
  QEventLoop settle;
  QTimer::singleShot(ms, &settle, &QEventLoop::quit);
  settle.exec();
}

void SaveWholeScreen(const std::string& path) {
  QScreen* screen = g_pViewMain->screen();
  const QPixmap picture = screen != nullptr ? screen->grabWindow(0) : QPixmap();
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
  Settle(300);
  SaveWholeScreen(path);
  if (first != nullptr) first->hide();
}

// A test play as the user starts it. The game program's window needs a moment to come
// up; its end message arrives in the event loop like any other.
void SaveTestPlay(const std::string& path) {
  std::fprintf(stderr, "ortalune: starting a test play, as F5 does\n");
  g_pViewMain->Command(IDM_TEST_PLAY);
  if (!bTestPlay) {
    std::fprintf(stderr, "ortalune: the test play did not start (see the message above)\n");
    return;
  }
  Settle(2500);
  SaveWholeScreen(path);
  constexpr int kWaitMs = 30000;
  for (int waited = 0; bTestPlay && waited < kWaitMs; waited += 100) Settle(100);
  if (bTestPlay)
    std::fprintf(stderr, "ortalune: no end message from the game program within %d seconds\n", kWaitMs / 1000);
  else
    std::fprintf(stderr, "ortalune: the game program's end message arrived; the test play is over\n");
}

// The world map window over the whole screen, once with each palette beside it.
void SaveWorldMapShots(const std::string& folder) {
  g_pViewMain->Command(IDM_WORLD_MAP);
  if (g_pDlgWorldMap == nullptr) return;
  const int palettes[] = {IDW_TOOL_CHIP, IDW_TOOL_EVENT};
  const char* const names[] = {"/DLG_WORLDMAP-chips.png", "/DLG_WORLDMAP-events.png"};
  for (int i = 0; i < 2; ++i) {
    g_pDlgWorldMap->Command(palettes[i]);
    Settle(400);
    SaveWholeScreen(folder + names[i]);
  }
  g_pDlgWorldMap->close();
  Settle(100);
}

void EndRun() {
  if (g_pViewMain == nullptr) return QApplication::exit(0);
  g_pViewMain->m_bAskOnClose = false;
  g_pViewMain->close();
}

// The skill sheet of the first skill list, on its first magic attack and its first
// weapon.
void SaveSkillSheet(PROP_DATABASE& sheet, const std::string& folder) {
  auto* lists = dynamic_cast<DLG_DBSKILLLIST*>(sheet.PageOfRow(3));
  if (lists == nullptr || g_vecSkillList.empty()) return;
  sheet.SetCurrentPage(3);
  lists->SendCommand(DLG_DBSKILLLIST::kEditSkills, kNotifyClicked);
  if (lists->SkillSheet() == nullptr) return;
  DLG_DBSKILL& page = *lists->SkillSheet()->Page();
  const std::pair<int, const char*> shots[] = {{kSkillMagicAttack, "magic"}, {kSkillPhysicalWeapon, "weapon"}};
  for (const auto& [kind, name] : shots) {
    for (int row = 1; row < page.m_vecWork.Count(); ++row) {
      if (page.m_vecWork[row].m_nKind != kind) continue;
      static_cast<QListWidget*>(page.GetDlgItem(DLG_DBSKILL::kList))->setCurrentRow(row - 1, QItemSelectionModel::ClearAndSelect);
      page.SendCommand(DLG_DBSKILL::kList, kNotifySelChange);
      Settle(300);
      Save(lists->SkillSheet()->m_hWnd, folder + "/PROP_DBSKILL-" + name + ".png");
      break;
    }
  }
  lists->SkillSheet()->Cancel();
}

// Each form of the catalog, shown long enough to be laid out and painted.
void SaveForms(const std::string& folder) {
  for (const cFormCatalogEntry& entry : FormCatalog()) {
    std::unique_ptr<DLG_CLASS> form = entry.make();
    if (!form->Create(0, true)) continue;
    Settle(300);
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
    SaveSkillSheet(*sheet, folder);
    sheet->Cancel();
  }
}

}  // namespace

bool ScheduleScreenshots() {
  std::string mainPath = EnvPath("ORTALUNE_SCREENSHOT");
  std::string formFolder = EnvPath("ORTALUNE_SCREENSHOT_FORMS");
  std::string testPlayPath = EnvPath("ORTALUNE_SCREENSHOT_TESTPLAY");
  std::string worldFolder = EnvPath("ORTALUNE_SCREENSHOT_WORLDMAP");
  if (mainPath.empty() && formFolder.empty() && testPlayPath.empty() && worldFolder.empty()) return false;
  // Late enough for the window to be laid out and painted.
  QTimer::singleShot(500, [mainPath, formFolder, testPlayPath, worldFolder] {
    if (!mainPath.empty() && g_pViewMain != nullptr) {
      Save(g_pViewMain, mainPath);
      std::string screen = mainPath;
      screen.insert(screen.size() - (screen.ends_with(".png") ? 4 : 0), "-screen");
      SaveScreen(screen);
    }
    if (!formFolder.empty()) SaveForms(formFolder);
    if (!worldFolder.empty() && g_pViewMain != nullptr) SaveWorldMapShots(worldFolder);
    if (!testPlayPath.empty() && g_pViewMain != nullptr) SaveTestPlay(testPlayPath);
    EndRun();
  });
  return true;
}
