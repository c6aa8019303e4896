// The world map editor as the author uses it: opened from the stage editor's menu,
// chips drawn, an event placed through its form with an automatic stage number, saved,
// closed and read back; and the two forms of the world map on their own.

#include <gtest/gtest.h>

#include <QAction>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QTest>

#include "app/stage_commands.h"
#include "app/world_commands.h"
#include "editor/command_bar.h"
#include "editor/dlg_worldchip.h"
#include "editor/dlg_worldevent.h"
#include "editor/dlg_worldevent_set.h"
#include "editor/dlg_worldmap.h"
#include "editor/dlg_worldmap_set.h"
#include "editor/editor_shell.h"
#include "editor/view_main.h"
#include "gui/app_test_support.h"
#include "gui/editor_shell_fixture.h"
#include "gui/stage_form_support.h"
#include "project/project_globals.h"
#include "stage/world_edit.h"

namespace {

class WorldMapEditorTest : public EditorShellTest {
 protected:
  void TearDown() override {
    if (g_pDlgWorldMap != nullptr) {
      g_EditState.m_bWorldModified = 0;
      g_pDlgWorldMap->close();
    }
    EditorShellTest::TearDown();
  }
  int Cell(int x, int y) const { return g_WorldMap.m_vecMap[g_WorldMap.CellIndex(x, y)]; }
  static QPoint At(int x, int y) { return {x * 32 + 5, y * 32 + 5}; }
};

TEST_F(WorldMapEditorTest, OpenDrawPlaceAnEventSaveCloseAndReadTheFileBack) {
  g_EditConfig.m_bWorldEditIfPlaced = g_EditConfig.m_bWorldEditBeforePut = g_EditConfig.m_bAutoStageNo = 1;
  m_view->Commands().MenuAction(IDM_WORLD_MAP)->trigger();
  DLG_WORLDMAP* world = g_pDlgWorldMap;
  ASSERT_NE(world, nullptr);
  EXPECT_FALSE(m_view->isVisible()) << "the stage editor steps aside";
  EXPECT_EQ(world->windowTitle(), QStringLiteral("ワールドマップ"));
  world->activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(world));
  ASSERT_NE(world->Chip(), nullptr) << "the chip palette comes first";
  ASSERT_GE(g_WorldMap.m_vecChip.Count(), 3);
  ASSERT_GE(g_WorldMap.m_nWidth, 4);

  // A chip from the palette, drawn by a stroke of the pen.
  QTest::mouseClick(world->Chip()->m_View.m_hWnd, Qt::LeftButton, {}, QPoint(2 * 32 + 5, 5));
  EXPECT_TRUE(world->Chip()->m_pStatus->text().startsWith(QStringLiteral("3 : ")));
  QWidget* map = world->m_Map.m_hWnd;
  QTest::mousePress(map, Qt::LeftButton, {}, At(0, 0));
  QTest::mouseMove(map, At(1, 0));
  QTest::mouseMove(map, At(2, 0));
  QTest::mouseRelease(map, Qt::LeftButton, {}, At(2, 0));
  EXPECT_EQ(std::make_tuple(Cell(0, 0), Cell(1, 0), Cell(2, 0)), std::make_tuple(2, 2, 2));
  EXPECT_EQ(world->m_pStatus->text(), QStringLiteral("座標 (2,0)"));
  EXPECT_TRUE(world->Commands().ToolAction(IDW_UNDO)->isEnabled());

  // The event palette; its first template goes onto the map through the form, which
  // shows the number it was given: the sample's fort holds stage 1.
  world->Commands().ToolAction(IDW_TOOL_EVENT)->trigger();
  ASSERT_NE(world->Event(), nullptr);
  EXPECT_EQ(world->Chip(), nullptr);
  EXPECT_EQ(g_WorldEditState.m_nSelected, 0) << "the row the palette opens on is the pen's";
  world->activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(world));
  int shownNumber = -1;
  DuringModal([&](DLG_CLASS& form) {
    shownNumber = form.Value(DLG_WORLDEVENT_SET::kIdStageNo);
    Click(form, kIdOk);
  });
  QTest::mousePress(map, Qt::LeftButton, {}, At(3, 2));
  QTest::mouseRelease(map, Qt::LeftButton, {}, At(3, 2));
  EXPECT_EQ(shownNumber, 2);
  ASSERT_TRUE(g_WorldMap.HasEventAt(3, 2));

  // The list's own delete key takes the pen on to the row selected after it.
  const int templates = g_WorldMap.m_vecEventPlt.Count();
  ASSERT_GT(templates, 1);
  world->Event()->SendCommand(kListIdSets[kListFirstFree].aKey[kListDelete], 0);
  EXPECT_EQ(g_WorldMap.m_vecEventPlt.Count(), templates - 1);
  EXPECT_EQ(g_WorldEditState.m_PutEvent.m_strName, g_WorldMap.m_vecEventPlt[0].m_strName);

  // Saved with Ctrl+S's command, then closed without a question.
  world->Commands().MenuAction(IDW_SAVE)->trigger();
  EXPECT_EQ(g_EditState.m_bWorldModified, 0);
  world->Commands().MenuAction(IDW_CLOSE)->trigger();
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  EXPECT_EQ(g_pDlgWorldMap, nullptr);
  EXPECT_TRUE(m_view->isVisible()) << "the stage editor comes back";

  cWorldMap read;
  ASSERT_TRUE(read.LoadFile(kWorldMapPath));
  EXPECT_EQ(read.m_vecMap[read.CellIndex(1, 0)], 2);
  ASSERT_NE(read.EventAt(3, 2), nullptr);
  EXPECT_EQ(read.EventAt(3, 2)->m_vecPage[0].m_nStageNo, 2);
}

TEST_F(WorldMapEditorTest, SpaceChangesThePaletteAndTheWindowRefusesToMinimise) {
  m_view->Commands().MenuAction(IDM_WORLD_MAP)->trigger();
  DLG_WORLDMAP* world = g_pDlgWorldMap;
  ASSERT_NE(world, nullptr);
  world->activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(world));
  QTest::keyClick(world->centralWidget(), Qt::Key_Space);
  EXPECT_EQ(g_WorldEditState.m_nPalette, WORLD_PALETTE_EVENT);
  EXPECT_TRUE(world->Commands().MenuAction(IDW_PALETTE_EVENT)->isChecked());
  QTest::keyClick(world->centralWidget(), Qt::Key_Space);
  EXPECT_EQ(g_WorldEditState.m_nPalette, WORLD_PALETTE_CHIP);
  world->showMinimized();
  EXPECT_FALSE(world->isMinimized());
}

void Type(DLG_CLASS& form, unsigned id, const char* text) {
  auto* edit = static_cast<QLineEdit*>(form.GetDlgItem(id));
  edit->selectAll();
  QTest::keyClicks(edit, text);
}

class WorldFormsTest : public StageFormTest {
 protected:
  void SetUp() override {
    StageFormTest::SetUp();
    g_WorldMap.Init();
    g_WorldEditState.Reset();
  }
};

TEST_F(WorldFormsTest, ARoadHasNoStageNumberAndOkAlwaysMakesAStep) {
  cWorldEvent event;
  event.m_vecPage[0].m_nStageNo = 4;
  const std::vector<unsigned char> before = SavedBytes(event);
  DuringModal([](DLG_CLASS& form) {
    Choose(form, DLG_WORLDEVENT_SET::kIdType, WORLDEVENT_ROAD);
    Click(form, kIdCancel);
  });
  EXPECT_EQ(RunWorldEventSet(event, nullptr), 0);
  EXPECT_EQ(SavedBytes(event), before) << "cancel changes nothing";
  EXPECT_EQ(g_WorldEditState.m_History.UndoCount(), 0);

  bool numberEnabled = true;
  DuringModal([&](DLG_CLASS& form) {
    Choose(form, DLG_WORLDEVENT_SET::kIdType, WORLDEVENT_WALL);
    numberEnabled = form.GetDlgItem(DLG_WORLDEVENT_SET::kIdStageNo)->isEnabled();
    Click(form, kIdOk);
  });
  EXPECT_EQ(RunWorldEventSet(event, nullptr), 1);
  EXPECT_FALSE(numberEnabled);
  EXPECT_EQ(std::make_tuple(event.m_vecPage[0].m_nType, event.m_vecPage[0].m_nStageNo),
            std::make_tuple(+WORLDEVENT_WALL, 0));
  event.m_vecPage[0].m_nStageNo = 5;  // a wall with a number, as a file may hold it
  DuringModal([](DLG_CLASS& form) { Click(form, kIdOk); });
  RunWorldEventSet(event, nullptr);
  EXPECT_EQ(event.m_vecPage[0].m_nStageNo, 0);
  EXPECT_EQ(std::make_tuple(g_WorldEditState.m_History.UndoCount(), g_EditState.m_bWorldModified), std::make_tuple(2, 1))
      << "an OK without a change of the user makes its step too";
}

TEST_F(WorldFormsTest, SettingsOkResizesTheWorldMapAndCancelLeavesItsBytes) {
  const std::vector<unsigned char> before = SavedBytes(g_WorldMap);
  DuringModal([](DLG_CLASS& form) {
    Type(form, DLG_WORLDMAP_SET::kIdWidth, "7");
    Click(form, kIdCancel);
  });
  EXPECT_EQ(RunWorldMapSettings(nullptr), 0);
  EXPECT_EQ(SavedBytes(g_WorldMap), before);

  DuringModal([](DLG_CLASS& form) {
    Type(form, DLG_WORLDMAP_SET::kIdWidth, "250");  // beyond 200: the limit takes it
    EXPECT_TRUE(static_cast<QLineEdit*>(form.GetDlgItem(DLG_WORLDMAP_SET::kIdBackImage))->isReadOnly());
    Click(form, kIdOk);
  });
  EXPECT_EQ(RunWorldMapSettings(nullptr), 1);
  EXPECT_EQ(std::make_tuple(g_WorldMap.m_nWidth, g_WorldMap.m_nStride), std::make_tuple(200, 256));
}

}  // namespace
