#include <gtest/gtest.h>

#include <tuple>

#include "media/media_fixtures.h"
#include "project/project_globals.h"
#include "stage/stage_view_draw.h"
#include "stage/world_edit_state.h"
#include "stage/world_view_draw.h"

namespace {

constexpr Bgr kBlack{0, 0, 0}, kWhite{255, 255, 255}, kMark{0, 255, 255}, kCursor{255, 0, 128}, kPick{128, 0, 255};
using Expected = std::vector<std::tuple<int, int, Bgr>>;  // x, y, colour

// Every 32 x 32 cell of a sheet in its own colour: blue = tag, green and red = cell.
Bgr CellColour(int tag, int cx, int cy) { return {tag, 10 + cx, 10 + cy}; }

// clearRows -1: no mask; otherwise a mask with the top rows of each cell transparent.
void MakeSheet(int index, int w, int h, int tag, int clearRows = -1) {
  cSurface& s = g_aSheet[index];
  s.Create(w, h, 24, clearRows >= 0);
  for (int y = 0; y < h; ++y)
    for (int x = 0; x < w; ++x)
      for (int i = 0; i < 3; ++i) {
        bool clear = y % 32 < clearRows;
        s.Pixel(x, y)[i] = clear ? 0 : static_cast<unsigned char>(CellColour(tag, x / 32, y / 32)[i]);
        if (clearRows >= 0) s.MaskPixel(x, y)[i] = clear ? 255 : 0;
      }
}

cSurface Buffer(int w, int h, std::uint32_t colour = 0x0000FF) {
  cSurface b;
  b.Create(w, h, 24, 0);
  b.Fill(colour);
  return b;
}

void ExpectPixels(const cSurface& b, const Expected& expected, const std::string& what = "") {
  for (auto [x, y, colour] : expected) EXPECT_EQ(PixelAt(b, x, y), colour) << what << " at " << x << "," << y;
}

// Chip i is terrain i; enemy row 1 has a class with map graphic 1 (whose top 8 rows
// are transparent), row 2 has no class. A 3 by 2 stage is open.
class MapViewDrawTest : public ::testing::Test {
 protected:
  void SetUp() override {
    MakeSheet(SHEET_MAP_CHIP, 256, 64, 1);
    MakeSheet(SHEET_MAP_CHARA, 64, 64, 2, 8);
    MakeSheet(SHEET_EVENT, 64, 64, 3, 0);
    MakeSheet(SHEET_ACCESSORY, 32, 96, 4, 0);
    g_vecLand.resize(3);
    for (int i = 0; i < 3; ++i) g_vecLand[i].m_nGraphic = i;
    g_vecClass.resize(3);
    g_vecClass[1].m_nGraphic = 1;
    g_vecEnemy.resize(3);
    g_vecEnemy[2].m_nClass = 0;
    g_Stage.Resize(3, 2);
    g_EditState.m_bStageOpen = 1;
  }
  void TearDown() override {
    ResetProjectGlobals();
    g_EditState = cEditState();
    g_WorldEditState = cWorldEditState();
    for (cSurface& s : g_aSheet) s.Release();
  }
  static void SetCell(int x, int y, int terrain) { g_Stage.m_vecMap[(y << g_Stage.m_nShift) + x] = terrain; }
  static void PutEnemy(int row, int x, int y) {
    cPutEnemy e;
    e.m_nEnemy = row, e.m_nX = x, e.m_nY = y;
    g_Stage.m_vecPutEnemy.push_back(e);
  }
  static void PutEvent(int graphic, int x, int y) {
    cEvent ev;
    ev.m_vecPage[0].m_nGraphic = graphic;
    g_Stage.PutEvent(ev, x, y);
  }
  static STAGE_VIEW View(int w, int h, bool cursor = false) {
    STAGE_VIEW v;
    v.m_nWidth = w, v.m_nHeight = h, v.m_bCursor = cursor;
    return v;
  }
};

TEST_F(MapViewDrawTest, StageLayersChipsEnemiesEventsStartsAndGrid) {
  for (int x = 0; x < 3; ++x) SetCell(x, 0, 1), SetCell(x, 1, 1);
  PutEnemy(1, 1, 0);
  PutEvent(1, 1, 0);  // event sheet cell (0, 32), marked at (47, 1) to (62, 16)
  g_Stage.m_vecGroupPos[1].m_vecPos.push_back({2, 1});
  g_Stage.m_nStartGroup = 1;
  cSurface b = Buffer(160, 96);
  EXPECT_EQ(DrawStageView(b, View(160, 96)), 1);
  const Bgr chip = CellColour(1, 1, 0), enemy = CellColour(2, 1, 1);
  ExpectPixels(b, {{5, 5, chip}, {37, 3, chip}, {37, 12, enemy}, {45, 12, enemy}, {52, 9, CellColour(3, 0, 1)},
                   {47, 5, kMark}, {62, 9, kMark}, {50, 1, kMark}, {50, 16, kMark}, {70, 40, CellColour(4, 0, 2)},
                   {32, 10, kWhite}, {10, 32, kWhite}, {159, 50, kWhite}, {50, 95, kWhite}, {128, 5, kWhite},
                   {100, 5, kBlack}, {5, 70, kBlack}});
  EXPECT_EQ(MapCoordText(3, 12), std::string("\x8d\xc0\x95\x57 (3,12)"));

  MakeSheet(SHEET_MAP_CHIP, 256, 64, 1, 8);
  b.Fill(0x0000FF);
  DrawStageView(b, View(160, 96));
  ExpectPixels(b, {{5, 3, kBlack}, {5, 12, chip}}, "a masked chip over black");

  g_EditState.m_bStageOpen = 0;
  b.Fill(0x0000FF);
  EXPECT_EQ(DrawStageView(b, View(160, 96)), 0);
  ExpectPixels(b, {{5, 5, kBlack}, {32, 10, kBlack}}, "no stage");
}

TEST_F(MapViewDrawTest, StageViewVisitsOnlyTheCellsInViewFromTheScrollPosition) {
  g_Stage.Resize(6, 4);
  for (int y = 0; y < 4; ++y)
    for (int x = 0; x < 6; ++x) SetCell(x, y, (x + y) % 3);
  PutEnemy(1, 4, 1);  // beyond the view's columns
  STAGE_VIEW v = View(50, 40);  // cells (1, 1) to (2, 2), the second ones partly
  v.m_nScrollX = v.m_nScrollY = 1;
  cSurface b = Buffer(160, 128);
  DrawStageView(b, v);
  ExpectPixels(b, {{5, 5, CellColour(1, 2, 0)}, {45, 5, CellColour(1, 0, 0)}, {60, 45, CellColour(1, 1, 0)},
                   {70, 5, kBlack}, {100, 20, kBlack}, {49, 20, kWhite}});
}

TEST_F(MapViewDrawTest, ReferencesToNothingDrawNothing) {
  g_vecLand[2].m_nGraphic = 999;  // past the chip sheet
  SetCell(0, 0, 2), SetCell(1, 0, 7), SetCell(2, 0, -1);
  for (int x = 0; x < 3; ++x) SetCell(x, 1, 7);
  PutEnemy(9, 0, 1);  // past the enemy table
  PutEnemy(2, 1, 1);  // no class
  PutEvent(500, 2, 1);
  PutEvent(-3, 0, 0);
  g_Stage.m_nStartGroup = 7;
  cSurface b = Buffer(96, 64);
  DrawStageView(b, View(96, 64));
  Expected black;
  for (int cx = 0; cx < 3; ++cx)
    for (int cy = 0; cy < 2; ++cy) black.push_back({cx * 32 + 5, cy * 32 + 20, kBlack});
  ExpectPixels(b, black);
  ExpectPixels(b, {{84, 41, kBlack}, {79, 41, kMark}}, "an event without its picture is still marked");

  SetCell(0, 0, 1);
  for (int sheet : {SHEET_MAP_CHIP, SHEET_MAP_CHARA, SHEET_EVENT, SHEET_ACCESSORY}) g_aSheet[sheet].Release();
  DrawStageView(b, View(96, 64));
  ExpectPixels(b, {{5, 20, kBlack}}, "empty sheets");
}

TEST_F(MapViewDrawTest, EachCursorShapeAndPreview) {
  const Bgr t0 = CellColour(1, 0, 0), t1 = CellColour(1, 1, 0), t2 = CellColour(1, 2, 0);
  // Cursor at (1, 1) of a 4 by 3 stage of terrain 0; brush row 0 holds terrains 1, 2.
  const std::vector<std::tuple<const char*, int, bool, Expected>> cases = {
      {"brush 2 x 1", TOOL_PEN, false, {{80, 32, kCursor}, {95, 50, kCursor}, {32, 63, kCursor}, {96, 40, kCursor}, {98, 40, t0}}},
      {"line, button up", TOOL_LINE, false, {{63, 50, kCursor}, {66, 50, t0}}},
      {"rectangle, button up", TOOL_RECT, false, {{63, 50, kCursor}, {66, 50, t0}}},
      {"fill", TOOL_FILL, true, {{63, 50, kCursor}, {66, 50, t0}}},
      // From (3, 0): cells (3, 0), (2, 0) with entries 0, 1, then (1, 1) with 0.
      {"line preview", TOOL_LINE, true,
       {{112, 16, t1}, {80, 16, t2}, {48, 48, t1}, {20, 16, t0}, {20, 48, t0}, {64, 20, kCursor}, {33, 33, kCursor}}},
      // From (3, 2), 3 x 2: the column counter runs on into the second row.
      {"rectangle preview", TOOL_RECT, true,
       {{48, 48, t1}, {80, 48, t2}, {112, 48, t1}, {48, 80, t2}, {80, 80, t1}, {112, 80, t2}, {40, 32, kCursor},
        {127, 70, kCursor}, {20, 48, t0}}},
      {"pick from (3, 2)", CURSOR_PICK, false, {{40, 32, kPick}, {127, 70, kPick}, {48, 48, t0}}},
  };
  g_Stage.Resize(4, 3);
  cEditState& es = g_EditState;
  es.m_aBrushChip[0] = 1, es.m_aBrushChip[1] = 2, es.m_nBrushW = 2, es.m_nBrushH = 1;
  es.m_nLineX = 3, es.m_nLineY = 0;
  es.m_nRectX = es.m_nDragX = 3, es.m_nRectY = es.m_nDragY = 2, es.m_nRectW = 3, es.m_nRectH = 2;
  STAGE_VIEW v = View(128, 96, true);
  v.m_nCursorX = v.m_nCursorY = 1;
  for (const auto& [name, shape, leftDown, expected] : cases) {
    es.m_nCursorShape = shape;
    v.m_bLeftDown = leftDown;
    cSurface b = Buffer(128, 96);
    DrawStageView(b, v);
    ExpectPixels(b, expected, name);
  }
  es.m_nCursorShape = TOOL_PEN;
  cSurface b = Buffer(128, 96);
  DrawStageView(b, View(128, 96, false));
  ExpectPixels(b, {{40, 33, t0}}, "a picture of the map has no cursor");
}

TEST_F(MapViewDrawTest, WorldViewDrawsOverTheBackImageWithStageNumbers) {
  MakeSheet(SHEET_WORLD_BACK, 256, 128, 5);
  MakeSheet(SHEET_WORLD_CHIP, 256, 32, 6);
  MakeSheet(SHEET_WORLD_EVENT, 64, 64, 7, 0);
  cWorldMap& map = g_WorldMap;
  map.Resize(4, 1);
  map.m_vecChip.resize(2);
  map.m_vecChip[1].m_nGraphic = 3;
  map.m_vecMap.assign(map.m_vecMap.size(), 1);
  map.m_vecMap[1] = 9;  // no such chip
  map.m_bUseImage = 1;
  for (auto [x, type, number] : {std::tuple{0, WORLDEVENT_STAGE, 7}, {1, WORLDEVENT_STAGE, 123}, {2, WORLDEVENT_ROAD, 5},
                                 {3, WORLDEVENT_STAGE, 0}}) {
    cWorldEvent ev;
    ev.m_vecPage[0].m_nType = type, ev.m_vecPage[0].m_nStageNo = number, ev.m_vecPage[0].m_nGraphic = 1;
    map.PutEvent(ev, x, 0);
  }
  WORLD_VIEW v;
  v.m_nWidth = 128, v.m_nHeight = 64, v.m_nScrollX = 1, v.m_nCursorX = 2, v.m_nCursorY = 1;
  cSurface b = Buffer(128, 64, 0x00FF00);
  DrawWorldView(b, v);
  // Back image from (32, 0) where no chip stands; numbered icons from the left column.
  ExpectPixels(b, {{5, 20, CellColour(5, 1, 0)}, {40, 25, CellColour(6, 3, 0)}, {100, 20, CellColour(5, 4, 0)},
                   {20, 40, CellColour(5, 1, 1)}, {52, 9, CellColour(7, 0, 1)}, {84, 9, CellColour(7, 1, 1)},
                   {40, 32, kCursor}, {63, 40, kCursor}});
  auto inkFrom = [&](int px) {  // the leftmost white on the mark of a cell
    for (int x = px + 1; x < px + 32; ++x)
      for (int y = 2; y < 24; ++y)
        if (PixelAt(b, x, y) == kWhite) return x - px;
    return -1;
  };
  EXPECT_EQ(inkFrom(32), -1) << "a road shows no number";

  map.m_bUseImage = 0;
  v.m_nScrollX = 0;
  b.Fill(0x00FF00);
  DrawWorldView(b, v);
  ExpectPixels(b, {{20, 40, {0, 255, 0}}, {17, 14, CellColour(7, 0, 1)}}, "not cleared");
  EXPECT_GE(inkFrom(0), 19);
  EXPECT_LE(inkFrom(0), 22);
  EXPECT_GE(inkFrom(32), 7);
  EXPECT_LE(inkFrom(32), 10);

  g_WorldEditState.m_nCursorShape = WORLD_CURSOR_PICK;
  g_WorldEditState.m_nDragX = g_WorldEditState.m_nDragY = 0;
  for (int picking : {0, 1}) {
    g_WorldEditState.m_bPicking = picking;
    DrawWorldView(b, v);
    EXPECT_EQ(PixelAt(b, 40, 0), picking ? kPick : kWhite);
  }
}

}  // namespace
