// The stage editor's engine driven as the map view drives it: pixel positions and
// buttons in, cells, brushes and undo steps out.

#include <gtest/gtest.h>

#include <algorithm>
#include <tuple>

#include "platform/cp932.h"
#include "project/project_globals.h"
#include "stage/edit_state.h"
#include "stage/map_cursor.h"
#include "stage/map_edit.h"
#include "stage/stage_form_results.h"
#include "support/test_env.h"

namespace {

class cRecordingHost : public cMapEditHost {
 public:
  bool MainIsActive() const override { return active; }
  void SelectEnemyRow(int row) override { selectedRow = row; }
  void EditEnemyRow(int row) override { editedRow = row; }
  void ShowPalette(int palette) override { shown = palette; }
  bool active = true;
  int selectedRow = -2, editedRow = -2, shown = -1;
};

class MapEditTest : public ProjectDirTest {
 protected:
  void SetUp() override {
    ProjectDirTest::SetUp();
    ResetProjectGlobals();
    g_vecLand.resize(5);
    g_Stage.Resize(6, 4);
    g_EditState = cEditState{};
    g_EditState.Reset();
    g_EditState.m_bStageOpen = 1;
    g_EditConfig.m_nUndoDepth = 3;
    g_EditConfig.m_bEditIfPlaced = g_EditConfig.m_bEditBeforePut = 0;
    g_Cursor.Reset();
    SetMapEditHost(&m_host);
    m_view.m_nWidth = 640;
    m_view.m_nHeight = 480;
  }
  void TearDown() override {
    SetMapEditHost(nullptr);
    SetAvailableMemoryProbe(nullptr);
    g_EditState = cEditState{};
    ProjectDirTest::TearDown();
  }
  void Mouse(eMapMouse msg, int px, int py, bool left, bool right = false) {
    StageMouse(m_view, {msg, px, py, left, right});
  }
  // Cell positions, at a pixel inside the cell.
  void Press(int x, int y) { Mouse(eMapMouse::kLeftDown, x * 32 + 5, y * 32 + 5, true); }
  void Drag(int x, int y) { Mouse(eMapMouse::kMove, x * 32 + 5, y * 32 + 5, true); }
  void Release(int x, int y) { Mouse(eMapMouse::kLeftUp, x * 32 + 5, y * 32 + 5, false); }
  void Stroke(int x, int y) {
    Press(x, y);
    Release(x, y);
  }
  void PickPx(int x0, int y0, int px, int py) {
    Mouse(eMapMouse::kRightDown, x0 * 32 + 5, y0 * 32 + 5, false, true);
    Mouse(eMapMouse::kMove, px, py, false, true);
    Mouse(eMapMouse::kRightUp, px, py, false, false);
  }
  void Pick(int x0, int y0, int x1, int y1) { PickPx(x0, y0, x1 * 32 + 5, y1 * 32 + 5); }
  void ChipBrush(int w, int h, std::initializer_list<std::uint32_t> rowMajor) {
    cEditState& es = g_EditState;
    es.m_nBrushW = w, es.m_nBrushH = h;
    int i = 0;
    for (std::uint32_t v : rowMajor) {
      es.m_aBrushChip[static_cast<std::size_t>(BrushIndex(i / w, i % w))] = v;
      ++i;
    }
  }
  void Tool(int tool) { g_EditState.m_nTool = g_EditState.m_nCursorShape = tool; }
  int Cell(int x, int y) const { return g_Stage.m_vecMap[g_Stage.CellIndex(x, y)]; }
  // The map as rows of digits, for whole-map expectations.
  std::vector<std::string> Rows() const {
    std::vector<std::string> rows;
    for (int y = 0; y < g_Stage.m_nHeight; ++y) {
      std::string row;
      for (int x = 0; x < g_Stage.m_nWidth; ++x) row += static_cast<char>('0' + Cell(x, y));
      rows.push_back(row);
    }
    return rows;
  }
  void PlaceEnemies(int count) {
    g_Stage.m_vecPutEnemy.resize(count);
    for (int i = 0; i < count; ++i) g_Stage.m_vecPutEnemy[i].m_nX = i, g_Stage.m_vecPutEnemy[i].m_nY = 0;
  }

  cRecordingHost m_host;
  MAP_VIEW m_view;
};

TEST_F(MapEditTest, ThePenStampsTheBrushClippedAtTheMapsEdgeAndSkipsEntriesWithoutTerrain) {
  ChipBrush(3, 2, {1, 2, 3, 4, 9, 4});  // 9 names no terrain
  Press(4, 3);
  Release(4, 3);
  EXPECT_EQ(Rows(), (std::vector<std::string>{"000000", "000000", "000000", "000012"}));
  Stroke(0, 0);
  EXPECT_EQ(Rows()[0], "123000");
  EXPECT_EQ(Rows()[1], "404000") << "the invalid entry leaves its cell alone";

  // A dragged pen stamps at every cell it reaches.
  ChipBrush(1, 1, {2});
  Press(0, 2);
  Drag(1, 2);
  Drag(2, 2);
  Release(2, 2);
  EXPECT_EQ(Rows()[2], "222000");
}

TEST_F(MapEditTest, EveryLeftPressMarksTheStageAndARefusedBrushMakesNoStep) {
  ChipBrush(1, 1, {7});  // beyond the terrain table, as a click past the last chip gives
  for (int tool : {TOOL_PEN, TOOL_LINE, TOOL_RECT, TOOL_FILL}) {
    Tool(tool);
    g_EditState.m_bStageModified = 0;
    Stroke(1, 1);
    EXPECT_EQ(g_EditState.m_bStageModified, 1) << tool;
  }
  EXPECT_EQ(Rows(), (std::vector<std::string>(4, "000000")));
  EXPECT_FALSE(g_EditState.m_History.CanUndo());

  // Only while the main window is active do presses act at all.
  m_host.active = false;
  g_EditState.m_bStageModified = 0;
  ChipBrush(1, 1, {1});
  Stroke(0, 0);
  EXPECT_EQ(std::make_tuple(g_EditState.m_bStageModified, Cell(0, 0)), std::make_tuple(0, 0));
}

TEST_F(MapEditTest, ARightDragPicksTheRangeIntoTheBrushUpToTheMapsEdge) {
  g_Stage.m_vecMap[g_Stage.CellIndex(2, 1)] = 3;
  g_Stage.m_vecMap[g_Stage.CellIndex(5, 3)] = 4;
  g_EditState.m_nSelected = 3;
  Pick(2, 1, 2, 1);
  EXPECT_EQ(std::make_tuple(g_EditState.m_nBrushW, g_EditState.m_nBrushH, g_EditState.m_aBrushChip[0],
                            g_EditState.m_nSelected, g_EditState.m_nCursorShape),
            std::make_tuple(1, 1, 3u, -1, TOOL_PEN));

  // Released far beyond the view: the range runs to the map's last cell.
  PickPx(4, 2, 5000, 5000);
  EXPECT_EQ(std::make_tuple(g_EditState.m_nBrushW, g_EditState.m_nBrushH), std::make_tuple(2, 2));
  EXPECT_EQ(g_EditState.m_aBrushChip[static_cast<std::size_t>(BrushIndex(1, 1))], 4u);
  Stroke(0, 0);
  EXPECT_EQ(Cell(1, 1), 4);
}

TEST_F(MapEditTest, TheLineStartsWithBrushEntryZeroAtThePressCellAndALineToItselfStampsItsCellTwice) {
  Tool(TOOL_LINE);
  ChipBrush(3, 1, {1, 2, 3});
  Press(5, 0);
  Drag(3, 0);
  Drag(0, 0);
  Release(0, 0);
  EXPECT_EQ(Rows()[0], "321321");
  // A line to itself stamps its cell in two rounds: entry 0, then entry 1 as the last.
  Stroke(2, 2);
  EXPECT_EQ(Rows()[2], "002000");
}

TEST_F(MapEditTest, TheFillLaysTheBrushAroundTheClickedCellAndStopsAtTheArea) {
  Tool(TOOL_FILL);
  for (int y = 0; y < 4; ++y) g_Stage.m_vecMap[g_Stage.CellIndex(3, y)] = 4;  // a wall
  ChipBrush(2, 1, {1, 2});
  Stroke(1, 1);
  EXPECT_EQ(Rows(), (std::vector<std::string>(4, "212400")));

  // A brush of the target value changes nothing and ends.
  ChipBrush(1, 1, {0});
  Stroke(5, 0);
  EXPECT_EQ(Rows()[0], "212400");

  // A whole 64 by 64 map fills.
  g_Stage.Resize(64, 64);
  g_Stage.ClearMap();
  ChipBrush(1, 1, {3});
  Stroke(0, 0);
  EXPECT_EQ(std::count(g_Stage.m_vecMap.begin(), g_Stage.m_vecMap.end(), 3), 64 * 64);
}

TEST_F(MapEditTest, ARectangleDraggedUpAndLeftCoversTheWholeDrag) {
  Tool(TOOL_RECT);
  ChipBrush(1, 1, {2});
  Press(4, 3);
  Drag(1, 1);
  Release(1, 1);
  EXPECT_EQ(Rows(), (std::vector<std::string>{"000000", "022220", "022220", "022220"}));
}

TEST_F(MapEditTest, ACellKeptFromBeforeTheMapShrankIsBroughtOntoIt) {
  Tool(TOOL_FILL);
  ChipBrush(1, 1, {3});
  Drag(5, 3);  // the cursor on the last cell
  g_Stage.Resize(2, 2);
  StageSettingsConfirmed();
  EXPECT_EQ(std::make_pair(g_Cursor.Top().nX, g_Cursor.Top().nY), std::make_pair(1, 1));
  // A press beyond the map keeps the cell, and the fill stays on the map.
  g_Cursor.Top() = {5, 3, 0, 0};
  Press(5, 3);
  EXPECT_EQ(Rows(), (std::vector<std::string>{"33", "33"}));
}

TEST_F(MapEditTest, UndoKeepsThreeStepsAndRedoIsEmptiedOnlyByANewStep) {
  ChipBrush(1, 1, {1});
  for (int x = 0; x < 4; ++x) Stroke(x, 0);
  EXPECT_EQ(g_EditState.m_History.UndoCount(), 3);
  for (int i = 0; i < 3; ++i) Undo();
  EXPECT_FALSE(g_EditState.m_History.CanUndo());
  EXPECT_EQ(Rows()[0], "100000") << "the first stroke is beyond the depth";

  Redo();
  EXPECT_EQ(Rows()[0], "110000");
  EXPECT_TRUE(g_EditState.m_History.CanUndo()) << "a redo is itself undoable";
  Undo();
  EXPECT_EQ(Rows()[0], "100000");
  Stroke(5, 3);
  EXPECT_FALSE(g_EditState.m_History.CanRedo());
  EXPECT_EQ(g_EditState.m_bStageModified, 1);

  // When memory is short the whole history goes, and the edit goes on.
  SetAvailableMemoryProbe([] { return std::uint64_t{10}; });
  Stroke(5, 2);
  EXPECT_EQ(std::make_tuple(g_EditState.m_History.CanUndo(), g_EditState.m_History.CanRedo(), Cell(5, 2)),
            std::make_tuple(false, false, 1));
  // A machine that does not say how much it has keeps the history.
  SetAvailableMemoryProbe([] { return std::uint64_t{0}; });
  Stroke(4, 2);
  EXPECT_TRUE(g_EditState.m_History.CanUndo());
}

TEST_F(MapEditTest, EnemiesMoveWithThePenAndADisplacedOneLeavesTheMapKeepingItsRow) {
  g_EditState.m_nPalette = PALETTE_ENEMY;
  PlaceEnemies(3);
  g_EditState.m_nBrushW = g_EditState.m_nBrushH = 0;  // no list row chosen
  Stroke(1, 0);
  EXPECT_EQ(g_Stage.m_vecPutEnemy[1].m_nX, 1) << "an empty brush changes nothing";
  EXPECT_EQ(g_EditState.m_History.UndoCount(), 1) << "though the press made a step";

  Pick(0, 0, 0, 0);
  EXPECT_EQ(m_host.selectedRow, 0);
  Stroke(2, 0);
  EXPECT_EQ(std::make_tuple(g_Stage.m_vecPutEnemy[0].m_nX, g_Stage.m_vecPutEnemy[2].m_nX, g_Stage.m_vecPutEnemy[2].m_nY),
            std::make_tuple(2, -1, 0));

  Mouse(eMapMouse::kRightDoubleClick, 2 * 32 + 5, 5, false);
  EXPECT_EQ(m_host.editedRow, 0);
  Pick(0, 0, 1, 0);
  EXPECT_EQ(m_host.selectedRow, -1) << "a range selects no row";
}

TEST_F(MapEditTest, PaletteTwoWithoutATemplateMakesAStepAndPlacesNothing) {
  g_EditState.m_nPalette = PALETTE_EVENT;
  g_EditState.m_nSelected = -1;
  Stroke(1, 1);
  EXPECT_EQ(g_EditState.m_History.UndoCount(), 1);
  EXPECT_TRUE(g_Stage.m_vecEvent.empty());
  g_EditState.m_nSelected = 0;
  Stroke(1, 1);
  ASSERT_EQ(g_Stage.m_vecEvent.size(), 1u);
  EXPECT_EQ(std::make_tuple(g_Stage.m_vecEvent[0].m_nX, g_Stage.m_vecEvent[0].m_nY), std::make_tuple(1, 1));
}

TEST_F(MapEditTest, EachPaletteKeepsItsOwnToolSelectionAndBrush) {
  Tool(TOOL_RECT);
  ChipBrush(2, 2, {1, 1, 1, 1});
  ChangePalette(PALETTE_ENEMY);
  EXPECT_EQ(std::make_tuple(g_EditState.m_nTool, g_EditState.m_nSelected, g_EditState.m_nBrushW, m_host.shown),
            std::make_tuple(TOOL_PEN, -1, 0, PALETTE_ENEMY));
  NextPalette();
  NextPalette();
  EXPECT_EQ(std::make_tuple(g_EditState.m_nPalette, g_EditState.m_nTool, g_EditState.m_nBrushW),
            std::make_tuple(PALETTE_CHIP, TOOL_RECT, 2));
}

TEST_F(MapEditTest, ClearingAsksFirstAndOnlyYesMakesAStep) {
  ChipBrush(1, 1, {2});
  Stroke(0, 0);
  ClearHistory();
  m_prompt.answers = {IDNO, IDYES};
  EXPECT_FALSE(ClearPlacedData(eClearKind::kChips));
  EXPECT_FALSE(g_EditState.m_History.CanUndo());
  EXPECT_TRUE(ClearPlacedData(eClearKind::kChips));
  EXPECT_EQ(std::make_tuple(Cell(0, 0), g_EditState.m_History.UndoCount()), std::make_tuple(0, 1));
  ASSERT_EQ(m_prompt.shown.size(), 2u);
  EXPECT_EQ(m_prompt.shown[0].caption, CP932_TEXT("データクリアの確認"));
}

TEST(MapCursor, AMenusFrameIsPoppedWithItsValuesStayingOnTop) {
  cCursorStack stack;
  stack.Top() = {3, 4, 96, 128};
  stack.Push();
  stack.Top() = {5, 6, 160, 192};  // the command moved it
  stack.Pop();
  EXPECT_EQ(std::make_tuple(stack.Depth(), stack.Top().nX, stack.Top().nY), std::make_tuple(1, 5, 6));
  stack.Pop();  // a stray pop leaves the last frame
  EXPECT_EQ(stack.Depth(), 1);
}

}  // namespace
