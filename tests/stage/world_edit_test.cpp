// The world map editor's engine and commands driven as its window drives them: pixels
// and buttons in; cells, events, stage numbers, brushes and undo steps out.

#include <gtest/gtest.h>

#include <filesystem>

#include "app/world_commands.h"
#include "platform/cp932.h"
#include "project/project_globals.h"
#include "stage/event_menu.h"
#include "stage/map_brush.h"
#include "stage/stage_snapshot.h"
#include "stage/world_edit.h"
#include "support/test_env.h"

namespace {

class cWorldHost : public cWorldEditHost {
 public:
  bool EditEvent(cWorldEvent& event) override {
    ++forms;
    if (!confirm) return false;
    cWorldEvent work = event;
    work.m_strName = "edited";
    WorldEventFormConfirmed(event, work);
    return true;
  }
  int PopupEventMenu(const bool* enabled) override {
    std::copy(enabled, enabled + 6, menuEnabled);
    return menuChoice;
  }
  void ToListClipboard(const cWorldEvent& event) override { listClip = event.m_strName; }
  void CloseWindow() override { closeAccepted = AskCloseWorldMap(); }
  bool RunSettings() override {
    if (settingsOk) g_WorldMap.Resize(g_WorldMap.m_nWidth, g_WorldMap.m_nHeight);
    return settingsOk;
  }
  int forms = 0, menuChoice = 0;
  bool confirm = true, settingsOk = true, closeAccepted = false;
  bool menuEnabled[6] = {};
  std::string listClip;
};

cWorldEvent Template(const char* name, int type) {
  cWorldEvent event;
  event.m_strName = name;
  event.m_vecPage[0].m_nType = type;
  return event;
}

class WorldEditTest : public ProjectDirTest {
 protected:
  void SetUp() override {
    ProjectDirTest::SetUp();
    ResetProjectGlobals();
    std::filesystem::create_directories(Path("data/database"));
    g_WorldMap.Resize(8, 6);
    g_WorldMap.m_vecChip.resize(4);
    g_WorldMap.m_vecEventPlt = {Template("stage", WORLDEVENT_STAGE), Template("road", WORLDEVENT_ROAD)};
    g_EditConfig.m_bWorldEditIfPlaced = g_EditConfig.m_bWorldEditBeforePut = 0;
    g_EditConfig.m_bAutoStageNo = 1;
    OpenWorldEdit();
    SetWorldEditHost(&m_host);
    m_view.m_nWidth = 640;
    m_view.m_nHeight = 480;
  }
  void TearDown() override {
    SetWorldEditHost(nullptr);
    SetAvailableMemoryProbe(nullptr);
    g_WorldEditState.Reset();
    ProjectDirTest::TearDown();
  }
  void Mouse(eMapMouse msg, int x, int y, bool left, bool right = false) {
    WorldMouse(m_view, {msg, x * 32 + 5, y * 32 + 5, left, right});
  }
  void Click(int x, int y) {
    Mouse(eMapMouse::kLeftDown, x, y, true);
    Mouse(eMapMouse::kLeftUp, x, y, false);
  }
  void Pick(int x0, int y0, int x1, int y1) {
    Mouse(eMapMouse::kRightDown, x0, y0, false, true);
    Mouse(eMapMouse::kMove, x1, y1, false, true);
    Mouse(eMapMouse::kRightUp, x1, y1, false, false);
  }
  void EventPalette(int row) {
    ChangeWorldPalette(WORLD_PALETTE_EVENT);
    ChooseWorldTemplate(row);
  }
  int Cell(int x, int y) const { return g_WorldMap.m_vecMap[g_WorldMap.CellIndex(x, y)]; }
  int NumberAt(int x, int y) { return g_WorldMap.EventAt(x, y)->m_vecPage[0].m_nStageNo; }
  int Steps() const { return g_WorldEditState.m_History.UndoCount(); }

  cWorldHost m_host;
  MAP_VIEW m_view;
};

TEST_F(WorldEditTest, EitherPressMarksTheMapAndThePenMakesAStepEvenWhereItChangesNothing) {
  Mouse(eMapMouse::kRightDown, 1, 1, false, true);
  EXPECT_EQ(g_EditState.m_bWorldModified, 1) << "a right press";
  Mouse(eMapMouse::kRightUp, 1, 1, false);
  g_EditState.m_bWorldModified = 0;
  ChooseWorldChip(9);  // names no chip: the press still makes its step
  Click(2, 2);
  EXPECT_EQ(std::make_tuple(g_EditState.m_bWorldModified, Steps(), Cell(2, 2)), std::make_tuple(1, 1, 0));

  // Beyond a map smaller than the view the cursor goes on, and a press makes a step.
  Click(15, 12);
  EXPECT_EQ(std::make_tuple(m_view.m_nCursorX, m_view.m_nCursorY, Steps()), std::make_tuple(15, 12, 2));
  EXPECT_EQ(MapCoordText(m_view.m_nCursorX, m_view.m_nCursorY), CP932_TEXT("座標 (15,12)"));

  // A stroke stamps the brush at each cell, clipped to the map.
  ChooseWorldChip(3);
  Mouse(eMapMouse::kLeftDown, 6, 5, true);
  Mouse(eMapMouse::kMove, 7, 5, true);
  Mouse(eMapMouse::kMove, 8, 5, true);
  Mouse(eMapMouse::kLeftUp, 8, 5, false);
  EXPECT_EQ(std::make_tuple(Cell(6, 5), Cell(7, 5), Steps()), std::make_tuple(3, 3, 3));
}

TEST_F(WorldEditTest, AutomaticNumbersTakeTheLowestFreeAndAReplacedEventGivesItsNumberUp) {
  EventPalette(0);
  Click(0, 0), Click(1, 0), Click(2, 0);
  EXPECT_EQ(std::make_tuple(NumberAt(0, 0), NumberAt(1, 0), NumberAt(2, 0)), std::make_tuple(1, 2, 3));
  g_WorldMap.RemoveEventsAt(1, 0);
  Click(4, 4);
  EXPECT_EQ(NumberAt(4, 4), 2) << "the freed number, lowest first";
  // Replacing stage 1 frees 1 for the newcomer.
  Click(0, 0);
  EXPECT_EQ(std::make_tuple(NumberAt(0, 0), g_WorldMap.m_vecEvent.Count()), std::make_tuple(1, 3));

  // Roads and walls keep no number.
  ChooseWorldTemplate(1);
  Click(5, 5);
  EXPECT_EQ(NumberAt(5, 5), 0);
  // Without the check the template's own number stands.
  g_EditConfig.m_bAutoStageNo = 0;
  ChooseWorldTemplate(0);
  Click(6, 5);
  EXPECT_EQ(NumberAt(6, 5), 0);
}

TEST_F(WorldEditTest, TheEventFormsStepsAreMadeByTheirOkAndACancelledFormPlacesNothing) {
  EventPalette(0);
  Click(1, 1);
  ASSERT_EQ(Steps(), 1);
  g_EditConfig.m_bWorldEditIfPlaced = 1;
  Click(1, 1);  // the placed event opens in the form; its OK makes the one step
  EXPECT_EQ(std::make_tuple(m_host.forms, Steps(), g_WorldMap.EventAt(1, 1)->m_strName),
            std::make_tuple(1, 2, std::string("edited")));
  g_EditConfig.m_bWorldEditBeforePut = 1;
  m_host.confirm = false;
  Click(2, 1);
  EXPECT_EQ(std::make_tuple(m_host.forms, Steps(), g_WorldMap.HasEventAt(2, 1)), std::make_tuple(2, 2, 0));
  m_host.confirm = true;
  Click(2, 1);
  EXPECT_EQ(std::make_tuple(Steps(), NumberAt(2, 1)), std::make_tuple(3, 2));
  // A row that is no template leaves the pen nothing, but the press is still a step's.
  g_EditConfig.m_bWorldEditBeforePut = 0;
  ChooseWorldTemplate(-1);
  Click(3, 3);
  EXPECT_EQ(std::make_tuple(g_WorldMap.HasEventAt(3, 3), g_WorldEditState.m_nBrushW), std::make_tuple(0, 0));
}

TEST_F(WorldEditTest, APickTakesTheRangeIntoTheBrushAndTheLargestMapFillsItExactly) {
  g_WorldMap.m_vecMap[g_WorldMap.CellIndex(2, 1)] = 3;
  Pick(3, 2, 2, 1);
  EXPECT_EQ(std::make_tuple(g_WorldEditState.m_nBrushW, g_WorldEditState.m_nBrushH, g_WorldEditState.m_aBrushChip[0],
                            g_WorldEditState.m_nSelected, g_WorldEditState.m_bPicking),
            std::make_tuple(2, 2, 3u, -1, 0));

  g_WorldMap.Resize(cWorldMap::kMaxWidth, cWorldMap::kMaxHeight);
  g_WorldMap.m_vecMap[g_WorldMap.CellIndex(199, 149)] = 2;
  g_WorldEditState.m_nDragX = g_WorldEditState.m_nDragY = 0;
  g_WorldEditState.m_bPicking = 1;
  m_view.m_nScrollX = 199, m_view.m_nScrollY = 149;
  Mouse(eMapMouse::kRightUp, 0, 0, false);
  EXPECT_EQ(std::make_tuple(g_WorldEditState.m_nBrushW, g_WorldEditState.m_nBrushH), std::make_tuple(200, 150));
  EXPECT_EQ(g_WorldEditState.m_aBrushChip.back(), 2u);

  // A 1 by 1 map takes the pen and the pick.
  g_WorldMap.Resize(1, 1);
  m_view.m_nScrollX = m_view.m_nScrollY = 0;
  ChooseWorldChip(1);
  Click(0, 0);
  Pick(0, 0, 3, 3);
  EXPECT_EQ(std::make_tuple(Cell(0, 0), g_WorldEditState.m_aBrushChip[0]), std::make_tuple(1, 1u));
  EXPECT_EQ(std::make_tuple(g_WorldEditState.m_nBrushW, g_WorldEditState.m_nBrushH), std::make_tuple(1, 1))
      << "the brush stops at the map's edge";
  OpenWorldEdit();
  EXPECT_EQ(g_WorldEditState.m_aBrushChip[0], 0u) << "a window opened anew paints the chip it shows selected";
}

TEST_F(WorldEditTest, APickOutsideTheViewScrollsByTheDragRulesAndEndsOnTheRelease) {
  EXPECT_EQ(DragScrollStep(650, 640, 1), 0);
  EXPECT_EQ(DragScrollStep(650, 640, 8), 1);
  EXPECT_EQ(DragScrollStep(640 + 33, 640, 1), 1) << "far outside, every poll";
  EXPECT_EQ(DragScrollStep(-40, 640, 3), -1);
  EXPECT_EQ(DragScrollStep(300, 640, 8), 0);

  g_WorldMap.Resize(60, 40);
  Mouse(eMapMouse::kRightDown, 1, 1, false, true);
  int scrolled = 0;
  for (int poll = 1; poll <= 16; ++poll) scrolled += WorldFramePoll(m_view, 700, 100, false, false, true, 40, 25, poll);
  EXPECT_EQ(std::make_tuple(scrolled, m_view.m_nScrollX, m_view.m_nCursorX), std::make_tuple(16, 16, 16 + 19));
  WorldFramePoll(m_view, 700, 100, false, true, false, 40, 25, 17);
  EXPECT_EQ(std::make_tuple(g_WorldEditState.m_bPicking, g_WorldEditState.m_nBrushW), std::make_tuple(0, 35));
  // A second press while outside ends the pick without taking it.
  Mouse(eMapMouse::kRightDown, 1, 1, false, true);
  EXPECT_FALSE(WorldFramePoll(m_view, 700, 100, true, false, true, 40, 25, 1));
  EXPECT_EQ(std::make_tuple(g_WorldEditState.m_bPicking, g_WorldEditState.m_nBrushW), std::make_tuple(0, 35));
}

TEST_F(WorldEditTest, UndoKeepsThreeStepsOfCellsAndEventsAndMarksTheMap) {
  cWorldSnapshot snapshot(g_WorldMap);
  g_WorldMap.m_vecEvent = {Template("a", 0), Template("b", 0)};
  g_WorldMap.m_vecEvent[1].m_vecPage.resize(3);
  EXPECT_EQ(snapshot.EstimateBytes(), 4u * 8 * 6 + (64 + 24) + (64 + 24 * 3));
  g_WorldMap.m_vecEvent.clear();

  ChooseWorldChip(1);
  for (int x = 0; x < 5; ++x) Click(x, 0);
  EXPECT_EQ(Steps(), 3);
  g_EditState.m_bWorldModified = 0;
  WorldUndo(), WorldUndo(), WorldUndo(), WorldUndo();
  EXPECT_EQ(std::make_tuple(Cell(1, 0), Cell(2, 0), g_EditState.m_bWorldModified), std::make_tuple(1, 0, 1));
  WorldRedo();
  EXPECT_EQ(Cell(2, 0), 1);

  // Short of memory the history goes and the edit goes on without it.
  SetAvailableMemoryProbe([] { return std::uint64_t{16}; });
  Click(6, 0);
  EXPECT_EQ(std::make_tuple(Steps(), g_WorldEditState.m_History.CanRedo(), Cell(6, 0)), std::make_tuple(0, false, 1));
}

TEST_F(WorldEditTest, ThePalettesKeepTheirStatesAcrossAChange) {
  ChooseWorldChip(2);
  EventPalette(1);
  EXPECT_EQ(std::make_tuple(g_WorldEditState.m_nSelected, g_WorldEditState.m_PutEvent.m_strName),
            std::make_tuple(1, std::string("road")));
  NextWorldPalette();
  EXPECT_EQ(std::make_tuple(g_WorldEditState.m_nPalette, g_WorldEditState.m_nSelected), std::make_tuple(0, 2));
  NextWorldPalette();
  EXPECT_EQ(g_WorldEditState.m_nListSel, 1);
}

TEST_F(WorldEditTest, TheEventMenuCopiesIntoBothClipboardsAndPastesWithANewNumber) {
  EventPalette(0);
  Click(1, 1);
  m_host.menuChoice = IDM_EVENT_COPY;
  Mouse(eMapMouse::kRightDown, 1, 1, false, true);
  Mouse(eMapMouse::kRightUp, 1, 1, false);
  EXPECT_EQ(std::make_tuple(g_WorldEditState.m_bEventClip, m_host.listClip, m_host.menuEnabled[3]),
            std::make_tuple(1, std::string("stage"), false));
  m_host.menuChoice = IDM_EVENT_PASTE;
  Mouse(eMapMouse::kRightDown, 3, 1, false, true);
  Mouse(eMapMouse::kRightUp, 3, 1, false);
  EXPECT_EQ(NumberAt(3, 1), 2);
  m_host.menuChoice = IDM_EVENT_CUT;
  Mouse(eMapMouse::kRightDown, 1, 1, false, true);
  Mouse(eMapMouse::kRightUp, 1, 1, false);
  EXPECT_EQ(std::make_tuple(g_WorldMap.HasEventAt(1, 1), g_WorldMap.m_vecEvent.Count()), std::make_tuple(0, 1));
  m_host.menuChoice = IDM_EVENT_NEW;
  Mouse(eMapMouse::kRightDown, 5, 5, false, true);
  Mouse(eMapMouse::kRightUp, 5, 5, false);
  EXPECT_EQ(std::make_tuple(NumberAt(5, 5), g_WorldMap.EventAt(5, 5)->m_strName), std::make_tuple(1, std::string("edited")));

  // Beyond the map's edge neither puts an event, which would not last.
  const int placed = g_WorldMap.m_vecEvent.Count();
  for (int choice : {IDM_EVENT_PASTE, IDM_EVENT_NEW}) {
    m_host.menuChoice = choice;
    Mouse(eMapMouse::kRightDown, 10, 3, false, true);
    Mouse(eMapMouse::kRightUp, 10, 3, false);
  }
  EXPECT_EQ(g_WorldMap.m_vecEvent.Count(), placed);
}

TEST_F(WorldEditTest, SaveAndCloseStillAsksAndNoReadsBackTheFileJustWritten) {
  ChooseWorldChip(1);
  Click(0, 0);
  ASSERT_EQ(g_EditState.m_bWorldModified, 1);
  m_prompt.answers = {IDNO};
  RunWorldCommand(IDW_SAVE_CLOSE);
  ASSERT_EQ(m_prompt.shown.size(), 1u);
  EXPECT_EQ(m_prompt.shown[0].caption, CP932_TEXT("保存確認"));
  EXPECT_TRUE(m_host.closeAccepted);
  EXPECT_EQ(Cell(0, 0), 1) << "the reload reads what was just saved";

  Click(1, 0);  // a chip after the save goes with "no"
  m_prompt.answers = {IDNO};
  RunWorldCommand(IDW_CLOSE);
  EXPECT_EQ(std::make_tuple(Cell(0, 0), Cell(1, 0)), std::make_tuple(1, 0));
  m_prompt.answers = {IDCANCEL};
  g_EditState.m_bWorldModified = 1;
  RunWorldCommand(IDW_CLOSE);
  EXPECT_FALSE(m_host.closeAccepted);
  RunWorldCommand(IDW_SAVE_KEY);
  EXPECT_EQ(g_EditState.m_bWorldModified, 0);
  RunWorldCommand(IDW_CLOSE);
  EXPECT_TRUE(m_host.closeAccepted) << "an unmodified map closes without the question";
  EXPECT_EQ(m_prompt.shown.size(), 3u);

  // A save that cannot write leaves the map modified, and yes to the question keeps the window.
  std::filesystem::remove(Path("data/database/WorldMap.dat"));
  std::filesystem::create_directory(Path("data/database/WorldMap.dat"));  // a folder where the file goes
  g_EditState.m_bWorldModified = 1;
  RunWorldCommand(IDW_SAVE_KEY);
  EXPECT_EQ(g_EditState.m_bWorldModified, 1);
  m_prompt.answers = {IDYES};
  RunWorldCommand(IDW_CLOSE);
  EXPECT_FALSE(m_host.closeAccepted);
}

TEST_F(WorldEditTest, SettingsOkEmptiesTheHistoryAndTheClearCommandsAskFirst) {
  ChooseWorldChip(1);
  Click(0, 0);
  m_host.settingsOk = false;
  RunWorldCommand(IDW_SETTINGS);
  EXPECT_EQ(Steps(), 1);
  m_host.settingsOk = true;
  g_EditState.m_bWorldModified = 0;
  RunWorldCommand(IDW_SETTINGS);
  EXPECT_EQ(std::make_tuple(Steps(), g_EditState.m_bWorldModified), std::make_tuple(0, 1));

  m_prompt.answers = {IDNO, IDYES};
  RunWorldCommand(IDW_CLEAR_CHIPS);
  EXPECT_EQ(std::make_tuple(Cell(0, 0), Steps()), std::make_tuple(1, 0));
  RunWorldCommand(IDW_CLEAR_CHIPS);
  EXPECT_EQ(std::make_tuple(Cell(0, 0), Steps()), std::make_tuple(0, 1));
  EXPECT_EQ(m_prompt.shown[1].text, CP932_TEXT("全てのマップチップをクリアしますか？"));
  EXPECT_FALSE(RunWorldCommand(IDW_REDO)) << "nothing to redo: refused";
}

}  // namespace
