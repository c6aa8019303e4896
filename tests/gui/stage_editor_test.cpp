// The stage editor's windows driven as a user drives them: the mouse on the map and
// the chip palette, the menu and the toolbar, the questions on leaving.

#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QCoreApplication>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QTimer>
#include <QTest>
#include <QToolButton>
#include <filesystem>

#include "app/app_frame.h"
#include "app/stage_commands.h"
#include "editor/command_bar.h"
#include "editor/dlg_chip.h"
#include "editor/dlg_enemy.h"
#include "editor/dlg_enemy_set.h"
#include "editor/dlg_event.h"
#include "editor/dlg_main.h"
#include "editor/editor_shell.h"
#include "editor/view_main.h"
#include "forms/event/dlg_event_set.h"
#include "forms/event/dlg_eventact.h"
#include "gui/app_test_support.h"
#include "gui/editor_shell_fixture.h"
#include "gui/stage_form_support.h"
#include "platform/cp932.h"
#include "project/project_globals.h"
#include "stage/edit_state.h"
#include "stage/event_menu.h"
#include "stage/map_edit.h"

namespace fs = std::filesystem;

namespace {

class StageEditorTest : public EditorShellTest {
 protected:
  void SetUp() override {
    EditorShellTest::SetUp();
    m_view->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(m_view));
  }
  QAction* Menu(int id) const { return m_view->Commands().MenuAction(id); }
  QAction* Tool(int id) const { return m_view->Commands().ToolAction(id); }
  int Cell(int x, int y) const { return g_Stage.m_vecMap[g_Stage.CellIndex(x, y)]; }
};

TEST_F(StageEditorTest, AChipChosenInThePaletteIsDrawnByAPenStrokeAndOneUndoRestoresTheCells) {
  DLG_CHIP* chip = m_view->Dlg()->Chip();
  ASSERT_NE(chip, nullptr) << "an open stage starts with the chip palette";
  QTest::mouseClick(chip->m_View.m_hWnd, Qt::LeftButton, {}, QPoint(32 + 5, 5));
  EXPECT_EQ(g_EditState.m_nSelected, 1);
  EXPECT_TRUE(chip->m_pStatus->text().startsWith(QStringLiteral("2 : ")));

  const std::vector<int> before(g_Stage.m_vecMap.begin(), g_Stage.m_vecMap.end());
  QWidget* map = m_view->Dlg()->m_Map.m_hWnd;
  QTest::mousePress(map, Qt::LeftButton, {}, QPoint(5, 5));
  QTest::mouseMove(map, QPoint(32 + 5, 5));
  QTest::mouseMove(map, QPoint(32 + 5, 32 + 5));
  QTest::mouseRelease(map, Qt::LeftButton, {}, QPoint(32 + 5, 32 + 5));
  EXPECT_EQ(std::make_tuple(Cell(0, 0), Cell(1, 0), Cell(1, 1)), std::make_tuple(1, 1, 1));
  EXPECT_EQ(g_EditState.m_bStageModified, 1);
  EXPECT_TRUE(Tool(IDM_UNDO)->isEnabled());

  Menu(IDM_UNDO)->trigger();
  EXPECT_EQ(std::vector<int>(g_Stage.m_vecMap.begin(), g_Stage.m_vecMap.end()), before);
  EXPECT_FALSE(Menu(IDM_UNDO)->isEnabled());
  EXPECT_TRUE(Menu(IDM_REDO)->isEnabled());

  // The tool buttons, found by their names, change the tool.
  for (QToolButton* button : chip->findChildren<QToolButton*>())
    if (button->accessibleName() == QStringLiteral("塗り潰し")) button->click();
  EXPECT_EQ(g_EditState.m_nTool, TOOL_FILL);
}

// The palettes are tool windows of the main window, which keeps its shortcuts for them.
TEST_F(StageEditorTest, TheMainWindowsShortcutsWorkFromAnActivePalette) {
  PushUndo();
  QWidget* chip = m_view->Dlg()->Chip();
  chip->activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(chip));
  QTest::keyClick(chip, Qt::Key_Z, Qt::ControlModifier);
  EXPECT_TRUE(g_EditState.m_History.CanRedo());

  ChangePalette(PALETTE_ENEMY);
  QWidget* enemies = m_view->Dlg()->Enemy()->m_hWnd;
  enemies->activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(enemies));
  QTest::keyClick(enemies, Qt::Key_Y, Qt::ControlModifier);
  EXPECT_FALSE(g_EditState.m_History.CanRedo());
}

TEST_F(StageEditorTest, AWindowBroughtBackGivesTheMapTheFocusWithoutAPlayingPreview) {
  m_view->activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(m_view));
  m_view->menuBar()->setFocus();  // the focus elsewhere in the window
  ASSERT_NE(m_view->focusWidget(), m_view->Dlg());
  m_view->showMinimized();
  m_view->showNormal();
  QTest::qWait(50);
  EXPECT_EQ(m_view->focusWidget(), m_view->Dlg());
}

TEST_F(StageEditorTest, SpaceInTheChipPaletteChangesThePaletteOnceTheKeyIsHandled) {
  QTest::keyClick(m_view->Dlg()->Chip(), Qt::Key_Space);
  QCoreApplication::processEvents();
  EXPECT_EQ(g_EditState.m_nPalette, PALETTE_ENEMY);
  EXPECT_EQ(m_view->Dlg()->Chip(), nullptr);
}

TEST_F(StageEditorTest, CommandsFollowTheOpenStageAndSpaceChangesThePalette) {
  EXPECT_TRUE(Menu(IDM_SAVE)->isEnabled());
  EXPECT_TRUE(Menu(IDM_PALETTE_CHIP)->isChecked());
  QTest::keyClick(m_view->Dlg(), Qt::Key_Space);
  EXPECT_EQ(g_EditState.m_nPalette, PALETTE_ENEMY);
  EXPECT_TRUE(Tool(IDT_PALETTE_ENEMY)->isChecked());
  EXPECT_EQ(m_view->Dlg()->Chip(), nullptr);

  Menu(IDM_CLOSE)->trigger();
  EXPECT_EQ(g_EditState.m_bStageOpen, 0);
  for (int id : {IDM_SAVE, IDM_UNDO, IDT_PALETTE_CHIP}) EXPECT_FALSE((Tool(id) ? Tool(id) : Menu(id))->isEnabled()) << id;
  for (int id : {IDM_NEW, IDM_OPEN, IDM_DATABASE, IDM_TEST_PLAY}) EXPECT_TRUE(Menu(id)->isEnabled()) << id;
  EXPECT_EQ(m_view->windowTitle(), QStringLiteral("オルタルーン"));

  // A new stage: its first save asks where, and then the title holds the path.
  Menu(IDM_NEW)->trigger();
  EXPECT_EQ(g_EditState.m_bStageOpen, 1);
  m_prompt.files = {{(m_dir / "data/stg/Mine.stg2").string()}};
  Tool(IDM_SAVE)->trigger();
  EXPECT_EQ(m_view->windowTitle(), QStringLiteral("オルタルーン  data\\stg\\Mine.stg2"));
}

TEST_F(StageEditorTest, TheDatabaseSheetTakesThePlaceOfTheStageEditorUntilItCloses) {
  Menu(IDM_DATABASE)->trigger();
  EXPECT_FALSE(m_view->isVisible());
  EXPECT_FALSE(m_view->Dlg()->Chip()->isVisible());
  QWidget* sheet = nullptr;
  for (QWidget* w : QApplication::topLevelWidgets())
    if (w->isVisible() && w->windowTitle() == QStringLiteral("データベースの設定")) sheet = w;
  ASSERT_NE(sheet, nullptr);
  sheet->close();
  QTest::qWait(1);
  EXPECT_TRUE(m_view->isVisible());
  EXPECT_TRUE(m_view->Dlg()->Chip()->isVisible());
  EXPECT_EQ(m_prompt.beeps, 0);
}

TEST_F(StageEditorTest, LeavingWithChangesAsksAndCancelKeepsTheWindowAndTheFlags) {
  g_EditState.m_bStageModified = 1;
  m_prompt.answers = {IDCANCEL};
  EXPECT_FALSE(m_view->close());
  EXPECT_TRUE(m_view->isVisible());
  EXPECT_EQ(g_EditState.m_bStageModified, 1);

  // Escape asks whether to end at all; no keeps the editor.
  m_prompt.shown.clear();
  m_prompt.answers = {IDNO};
  QTest::keyClick(m_view->Dlg(), Qt::Key_Escape);
  ASSERT_EQ(m_prompt.shown.size(), 1u);
  EXPECT_EQ(m_prompt.shown[0].caption, CP932_TEXT("終了確認"));
  EXPECT_TRUE(m_view->isVisible());

  // Qt's own buttons speak Japanese.
  EXPECT_EQ(QCoreApplication::translate("QPlatformTheme", "&Yes"), QStringLiteral("はい(&Y)"));
}

TEST_F(StageEditorTest, AnEnemyInsertedInItsPaletteIsDrawnWithThePenAndItsRightDoubleClickOpensItsForm) {
  QTest::keyClick(m_view->Dlg(), Qt::Key_Space);
  DLG_ENEMY* palette = m_view->Dlg()->Enemy();
  ASSERT_NE(palette, nullptr);
  g_Stage.m_vecPutEnemy.clear();
  palette->Refresh();
  DuringModal([](DLG_CLASS& form) {
    Choose(form, DLG_ENEMY_SET::kIdEnemy, 1);
    Click(form, kIdOk);
  });
  Click(*palette, cEnemyList::kIdInsert);
  ASSERT_EQ(g_Stage.m_vecPutEnemy.Count(), 1);
  EXPECT_EQ(g_EditState.m_nSelected, 0) << "the new entry is the brush";

  m_view->activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(m_view));
  QWidget* map = m_view->Dlg()->m_Map.m_hWnd;
  QTest::mouseClick(map, Qt::LeftButton, {}, QPoint(2 * 32 + 5, 3 * 32 + 5));
  EXPECT_EQ(std::make_pair(g_Stage.m_vecPutEnemy[0].m_nX, g_Stage.m_vecPutEnemy[0].m_nY), std::make_pair(2, 3));
  EXPECT_TRUE(palette->m_Enemies.m_List.Box().rows[0].find("(2,3)") != std::string::npos);

  bool opened = false;
  DuringModal([&](DLG_CLASS& form) {
    opened = DLG_ENEMY_SET::Live() == &form;
    Click(form, kIdCancel);
  });
  const QPoint cell(2 * 32 + 5, 3 * 32 + 5);
  QTest::mousePress(map, Qt::RightButton, {}, cell);
  QTest::mouseRelease(map, Qt::RightButton, {}, cell);
  QTest::mouseDClick(map, Qt::RightButton, {}, cell);
  EXPECT_TRUE(opened);

  // Space in the palette belongs to the main window: the next palette, and this one goes.
  QWidget* list = palette->GetDlgItem(cEnemyList::kIdList);
  list->activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(list->window()));
  list->setFocus();
  ASSERT_EQ(QApplication::focusWidget(), list);
  QTest::keyClick(list, Qt::Key_Space);
  QCoreApplication::processEvents();
  EXPECT_EQ(g_EditState.m_nPalette, PALETTE_EVENT);
  EXPECT_EQ(m_view->Dlg()->Enemy(), nullptr);
}

// The author's path: a template put on the map, opened again, given a page with a wait,
// and the stage saved with it.
TEST_F(StageEditorTest, AnEventPutWithThePenIsEditedIntoTwoPagesWithAWaitAndSavedWithTheStage) {
  Menu(IDM_PALETTE_EVENT)->trigger();
  DLG_EVENT* palette = m_view->Dlg()->Event();
  ASSERT_NE(palette, nullptr);
  ASSERT_GE(g_vecEventPlt.Count(), 1);
  EXPECT_EQ(g_EditState.m_nSelected, 0) << "the first template is the pen's";
  g_EditConfig.m_bEditIfPlaced = 1;
  g_EditConfig.m_bEditBeforePut = 0;
  g_Stage.m_vecEvent.clear();

  m_view->activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(m_view));
  QWidget* map = m_view->Dlg()->m_Map.m_hWnd;
  const QPoint cell(2 * 32 + 5, 3 * 32 + 5);
  QTest::mouseClick(map, Qt::LeftButton, {}, cell);
  ASSERT_EQ(g_Stage.m_vecEvent.Count(), 1);

  bool opened = false;
  DuringModal([&](DLG_CLASS& form) {
    opened = DLG_EVENT_SET::Live() == &form;
    Click(form, DLG_EVENT_SET::kIdPageInsert);
    DuringModal([](DLG_CLASS& chooser) {
      DuringModal([](DLG_CLASS& wait) { Click(wait, kIdOk); });
      Click(chooser, DLG_EVENTACT::ButtonOf(EACT_WAIT));
    });
    Click(form, DLG_EVENT_SET::kIdActInsert);
    Click(form, kIdOk);
  });
  QTest::mouseClick(map, Qt::LeftButton, {}, cell);  // placed already: the form opens on it
  EXPECT_TRUE(opened);
  EXPECT_EQ(g_Stage.m_vecEvent.Count(), 1);

  g_EditState.m_strStagePath = "data\\stg\\Authored.stg2";
  fs::create_directories("data/stg");
  Menu(IDM_SAVE)->trigger();
  cStage read;
  ASSERT_TRUE(read.LoadFile(g_EditState.m_strStagePath.c_str()));
  ASSERT_EQ(read.m_vecEvent.Count(), 1);
  const cEvent& event = read.m_vecEvent[0];
  EXPECT_EQ(std::make_pair(event.m_nX, event.m_nY), std::make_pair(2, 3));
  ASSERT_EQ(event.m_vecPage.Count(), 2);
  ASSERT_EQ(event.m_vecPage[0].m_vecAct.Count(), 1);
  EXPECT_EQ(event.m_vecPage[0].m_vecAct[0].m_nKind, EACT_WAIT);
  EXPECT_EQ(event.m_vecPage[0].m_vecAct[0].m_vecInt, VECTOR_CLASS<std::int32_t>{10}) << "the wait's default";
  Undo();
  EXPECT_EQ(g_Stage.m_vecEvent[0].m_vecPage.Count(), 1) << "the form's OK is one undo step";

  // Copied on the map, the event pastes into the palette as a template.
  m_view->activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(m_view));
  QTimer::singleShot(0, [] {
    auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    ASSERT_NE(menu, nullptr);
    for (QAction* a : menu->actions())
      if (a->data().toInt() == IDM_EVENT_COPY) menu->setActiveAction(a);
    QTest::keyClick(menu, Qt::Key_Return);
  });
  QTest::mousePress(map, Qt::RightButton, {}, cell);
  QTest::mouseRelease(map, Qt::RightButton, {}, cell);
  EXPECT_EQ(g_EditState.m_bEventClip, 1);
  const int templates = g_vecEventPlt.Count();
  palette->m_Palette.m_List.SelectOnly(templates, 0);
  palette->SendCommand(40032, 0);  // Ctrl+V at the blank row
  ASSERT_EQ(g_vecEventPlt.Count(), templates + 1);
  EXPECT_EQ(g_vecEventPlt.back().m_vecPage.Count(), 1);
}

TEST_F(StageEditorTest, TheStartEventOpensFromTheMenuAndItsOkSavesItsFile) {
  std::filesystem::remove("data/database/StartEvent.dat");
  bool opened = false;
  DuringModal([&](DLG_CLASS& form) {
    opened = DLG_EVENT_SET::Live() == &form && !form.GetDlgItem(DLG_EVENT_SET::kIdPageList)->isEnabled();
    Click(form, kIdOk);
  });
  Menu(IDM_START_EVENT)->trigger();
  EXPECT_TRUE(opened);
  EXPECT_TRUE(fs::exists("data/database/StartEvent.dat"));
  EXPECT_EQ(g_EditState.m_pEditEvent, nullptr);
  EXPECT_FALSE(Menu(IDM_UNDO)->isEnabled()) << "no undo step for the start event";
}

TEST_F(StageEditorTest, ThePalettesLeaveTheirPlacesForTheNextStart) {
  QTest::keyClick(m_view->Dlg(), Qt::Key_Space);
  ASSERT_NE(m_view->Dlg()->Enemy(), nullptr);
  g_EditConfig.m_PosEnemy.m_bValid = 0;
  m_view->m_bAskOnClose = false;
  m_view->close();
  EXPECT_TRUE(g_EditConfig.m_PosEnemy.m_bValid);
}

TEST_F(StageEditorTest, ConfirmedSettingsEmptyTheHistoryAndConfirmedGroupsKeepIt) {
  QWidget* map = m_view->Dlg()->m_Map.m_hWnd;
  QTest::mouseClick(map, Qt::LeftButton, {}, QPoint(5, 5));
  ASSERT_TRUE(Menu(IDM_UNDO)->isEnabled());
  g_EditState.m_bStageModified = 0;
  DuringModal([](DLG_CLASS& form) { Click(form, kIdOk); });
  Menu(IDM_POSITION_GROUPS)->trigger();
  EXPECT_EQ(g_EditState.m_bStageModified, 1);
  EXPECT_TRUE(Menu(IDM_UNDO)->isEnabled());

  g_EditState.m_bStageModified = 0;
  DuringModal([](DLG_CLASS& form) { Click(form, kIdOk); });
  Menu(IDM_STAGE_SETTINGS)->trigger();
  EXPECT_EQ(g_EditState.m_bStageModified, 1);
  EXPECT_FALSE(Menu(IDM_UNDO)->isEnabled());
}

}  // namespace
