// The main window over the open stage, its scroll rules and the idle frame's clock.

#include <gtest/gtest.h>

#include <QImage>
#include <QLabel>
#include <QScrollBar>
#include <QTest>
#include <filesystem>

#include "app/idle_frame.h"
#include "editor/dlg_main.h"
#include "editor/editor_shell.h"
#include "editor/idle_timer.h"
#include "editor/map_scroll.h"
#include "editor/view_main.h"
#include "gui/app_test_support.h"
#include "project/project_globals.h"
#include "stage/edit_state.h"

namespace {

TEST(MapScrollTest, BarsRunOverTheCellsWithAPageOfTheCellsInView) {
  struct Case {
    int cells, px, max, page;
  } cases[] = {{50, 640, 30, 20}, {50, 650, 30, 20}, {10, 640, 0, 20}, {1, 640, 0, 20}, {50, 20, 49, 0}, {0, 640, 0, 20}};
  for (const Case& c : cases) {
    cMapScrollRange r = MapScrollRange(c.cells, c.px);
    EXPECT_EQ(r.nMax, c.max) << c.cells << " cells in " << c.px;
    EXPECT_EQ(r.nPage, c.page);
  }
}

bool g_bPreview = false;

TEST(IdleFrameTest, TimerRunsOnlyWhileAPreviewShowsInTheActiveApplicationOutsideATestPlay) {
  g_IdleClients.animatedPreviewShown = [] { return g_bPreview; };
  cIdleTimer timer;
  struct Case {
    bool preview;
    Qt::ApplicationState state;
    int testPlay;
    bool running;
  } cases[] = {
      {true, Qt::ApplicationActive, 0, true},     {false, Qt::ApplicationActive, 0, false},
      {true, Qt::ApplicationInactive, 0, false},  {true, Qt::ApplicationHidden, 0, false},
      {true, Qt::ApplicationActive, 1, false},    {true, Qt::ApplicationActive, 0, true},
  };
  for (const Case& c : cases) {
    g_bPreview = c.preview;
    bTestPlay = c.testPlay;
    timer.OnApplicationStateChanged(c.state);
    EXPECT_EQ(timer.Running(), c.running) << c.preview << " " << c.state << " " << c.testPlay;
  }
  // A frame that finds the preview gone stops the clock.
  g_bPreview = false;
  EXPECT_TRUE(QTest::qWaitFor([&] { return !timer.Running(); }, 1000));
  bTestPlay = 0;
  g_IdleClients = cIdleClients{};
}

using MainWindowTest = TemplateProjectTest;

TEST_F(MainWindowTest, ShowsTheOpenStageWithBarsInCellsAndTheCursorCell) {
  std::filesystem::copy("default", "data", std::filesystem::copy_options::recursive);
  cEditorShell shell;
  ASSERT_TRUE(StartUp(shell));
  VIEW_MAIN* view = shell.m_pView.get();
  ASSERT_NE(view, nullptr);
  ASSERT_EQ(g_pDlgMain, view->Dlg());
  EXPECT_EQ(view->windowTitle().toStdString(), "オルタルーン  " + std::string("data\\stg\\Sample.stg2"));
  EXPECT_EQ(g_pDlgMain->size(), QSize(DLG_MAIN::kWidth, DLG_MAIN::kHeight));
  EXPECT_EQ(g_pDlgMain->m_pStatus->text(), QStringLiteral("座標 (0,0)"));

  QWidget* map = g_pDlgMain->m_Map.m_hWnd;
  cMapScrollRange h = MapScrollRange(g_Stage.m_nWidth, map->width());
  EXPECT_EQ(g_pDlgMain->m_pScrollH->maximum(), h.nMax);
  EXPECT_EQ(g_pDlgMain->m_pScrollV->maximum(), MapScrollRange(g_Stage.m_nHeight, map->height()).nMax);

  // What the screen shows is the stage view drawn at the bar's position.
  g_pDlgMain->m_pScrollH->setValue(1);
  QImage shown = map->grab().toImage().convertToFormat(QImage::Format_RGB888);
  cSurface expected;
  expected.Create(map->width(), map->height(), 24, 0);
  STAGE_VIEW at = g_pDlgMain->m_Map.m_View;
  EXPECT_EQ(at.m_nScrollX, 1);
  DrawStageView(expected, at);
  for (QPoint p : {QPoint(5, 5), QPoint(100, 70), QPoint(map->width() - 1, map->height() - 1)}) {
    const unsigned char* px = expected.Pixel(p.x(), p.y());
    EXPECT_EQ(shown.pixelColor(p), QColor(px[2], px[1], px[0])) << p.x() << "," << p.y();
  }
  view->m_bAskOnClose = false;
  view->close();
  ShutDown();
}

}  // namespace
