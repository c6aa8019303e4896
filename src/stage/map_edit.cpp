#include "stage/map_edit.h"

#include <algorithm>
#include <cstdlib>
#include <memory>
#include <new>
#include <vector>

#include "platform/cp932.h"
#include "platform/diagnostics.h"
#include "project/project_globals.h"
#include "stage/edit_state.h"
#include "stage/event_menu.h"
#include "stage/line_walk.h"
#include "stage/map_brush.h"
#include "stage/map_cursor.h"
#include "stage/stage_snapshot.h"

namespace {

cMapEditHost g_SilentHost;
cMapEditHost* g_pHost = &g_SilentHost;

cEditState& ES() { return g_EditState; }

cStageSnapshot& Snapshot() {
  static cStageSnapshot snapshot(g_Stage);
  return snapshot;
}

int Depth() { return cUndoHistory::DepthOf(g_EditConfig.m_nUndoDepth); }

int& CellRef(int x, int y) { return g_Stage.m_vecMap[g_Stage.CellIndex(x, y)]; }
int CursorX() { return g_Cursor.Top().nX; }
int CursorY() { return g_Cursor.Top().nY; }

// A tool in palette 0 does not start while the brush's first entry names no terrain.
bool ChipBrushRefused() { return ES().m_nPalette == PALETTE_CHIP && !ES().ChipBrushValid(0); }

// --- what a cell becomes ---

void StampChip(int x, int y, int index) {
  if (ES().ChipBrushValid(index)) CellRef(x, y) = static_cast<int>(ES().m_aBrushChip[static_cast<std::size_t>(index)]);
}

// An enemy list entry exists once: stamping it moves it, and whatever stood on the
// cell leaves the map keeping its row.
void StampEnemy(int x, int y, int index) {
  VECTOR_CLASS<cPutEnemy>& enemies = g_Stage.m_vecPutEnemy;
  for (cPutEnemy& e : enemies)
    if (e.m_nX == x && e.m_nY == y) e.m_nX = -1;
  const int entry = ES().m_aBrushEnemy[static_cast<std::size_t>(index)];
  if (entry < 0 || entry >= enemies.Count()) return;
  enemies[entry].m_nX = x;
  enemies[entry].m_nY = y;
  g_pHost->EnemyRowMoved();
}

// Palette 2: the template goes onto the cell, through the event form where the editor's
// configuration asks for it.
void StampEvent(int x, int y) {
  cEditState& es = ES();
  if (es.m_nSelected == -1) return;
  const cEventPenRules rules{g_EditConfig.m_bEditIfPlaced != 0, g_EditConfig.m_bEditBeforePut != 0};
  PenPlaceEvent(g_Stage, es.m_PutEvent, x, y, rules, [](cEvent&, cEvent*) {}, [&](cEvent& event, bool placed) {
    es.m_bEditPlaced = placed ? 1 : 0;
    es.m_pEditEvent = &event;
    const bool confirmed = g_pHost->EditEvent(event, placed);
    es.m_pEditEvent = nullptr;
    return confirmed;
  });
}

// --- the tools ---

void PenStamp() {
  const cEditState& es = ES();
  WalkBrush(CursorX(), CursorY(), es.m_nBrushW, es.m_nBrushH, g_Stage.m_nWidth, g_Stage.m_nHeight,
            cEditState::kBrushSide, cEditState::kBrushSide, [&](int x, int y, int r, int c) {
              switch (es.m_nPalette) {
                case PALETTE_CHIP: StampChip(x, y, BrushIndex(r, c)); break;
                case PALETTE_ENEMY: StampEnemy(x, y, BrushIndex(r, c)); break;
                default: StampEvent(x, y); break;
              }
            });
  g_pHost->RefreshPalette();
}

bool PenPress() {
  if (ChipBrushRefused()) return false;
  const cEditState& es = ES();
  // An event the form will edit, or place, makes its step when the form is confirmed.
  const cEventPenRules rules{g_EditConfig.m_bEditIfPlaced != 0, g_EditConfig.m_bEditBeforePut != 0};
  const bool formSteps =
      es.m_nPalette == PALETTE_EVENT && EventFormMakesStep(rules, g_Stage.HasEventAt(CursorX(), CursorY()));
  if (!formSteps) PushUndo();
  PenStamp();
  return true;
}

bool LinePress() {
  if (ChipBrushRefused()) return false;
  ES().m_nLineX = CursorX();
  ES().m_nLineY = CursorY();
  PushUndo();
  return true;
}

void LineRelease() {
  const cEditState& es = ES();
  WalkLine(es.m_nLineX, es.m_nLineY, CursorX(), CursorY(), es.m_nBrushW, [&](int x, int y, int i) {
    if (g_Stage.HasCell(x, y) && es.m_nPalette == PALETTE_CHIP) StampChip(x, y, i);
  });
  g_pHost->RefreshPalette();
}

void RectMove() {
  ES().m_nRectW = std::abs(CursorX() - ES().m_nRectX) + 1;
  ES().m_nRectH = std::abs(CursorY() - ES().m_nRectY) + 1;
}

bool RectPress() {
  if (ChipBrushRefused()) return false;
  ES().m_nRectX = CursorX();
  ES().m_nRectY = CursorY();
  PushUndo();
  RectMove();
  return true;
}

void RectRelease() {
  cEditState& es = ES();
  RectMove();  // the size from the start to the cursor, before the start becomes the corner
  es.m_nRectX = std::min(es.m_nRectX, CursorX());
  es.m_nRectY = std::min(es.m_nRectY, CursorY());
  WalkRect(es.m_nRectX, es.m_nRectY, es.m_nRectW, es.m_nRectH, g_Stage.m_nWidth, g_Stage.m_nHeight, es.m_nBrushW,
           es.m_nBrushH, cEditState::kBrushSide, [&](int x, int y, int i) {
             if (es.m_nPalette == PALETTE_CHIP) StampChip(x, y, i);
           });
  g_pHost->RefreshPalette();
}

// The fill lays the brush out around the clicked cell, entry 0 there, and runs the
// pattern on through the area of the clicked value: each cell visits its left, right,
// upper and lower neighbour in that order, depth first. An explicit stack keeps that
// order without the deep recursion; the marks keep a brush that holds the target from
// running in circles.
void Fill(int startX, int startY) {
  cEditState& es = ES();
  if (!g_Stage.HasCell(startX, startY)) return;
  const std::size_t cells = g_Stage.m_vecMap.size();
  std::unique_ptr<unsigned char[]> marks(new (std::nothrow) unsigned char[cells]());
  if (marks == nullptr) {
    ReportOutOfMemory();
    return;
  }
  const int target = CellRef(startX, startY);
  const int brushW = std::max(es.m_nBrushW, 1), brushH = std::max(es.m_nBrushH, 1);
  struct cFrame {
    int x, y, bx, by, depth, next;
  };
  std::vector<cFrame> stack;
  auto enter = [&](int x, int y, int bx, int by, int depth) {
    const std::size_t at = g_Stage.CellIndex(x, y);
    if (marks[at] || g_Stage.m_vecMap[at] != target || depth >= 5000) return;
    g_Stage.m_vecMap[at] = static_cast<int>(es.m_aBrushChip[static_cast<std::size_t>(BrushIndex(by, bx))]);
    marks[at] = 1;
    stack.push_back({x, y, bx, by, depth, 0});
  };
  enter(startX, startY, 0, 0, 0);
  while (!stack.empty()) {
    const cFrame f = stack.back();
    if (f.next == 4) {
      stack.pop_back();
      continue;
    }
    ++stack.back().next;
    switch (f.next) {
      case 0: if (f.x > 0) enter(f.x - 1, f.y, f.bx == 0 ? brushW - 1 : f.bx - 1, f.by, f.depth + 1); break;
      case 1: if (f.x + 1 < g_Stage.m_nWidth) enter(f.x + 1, f.y, f.bx + 1 >= brushW ? 0 : f.bx + 1, f.by, f.depth + 1); break;
      case 2: if (f.y > 0) enter(f.x, f.y - 1, f.bx, f.by == 0 ? brushH - 1 : f.by - 1, f.depth + 1); break;
      default: if (f.y + 1 < g_Stage.m_nHeight) enter(f.x, f.y + 1, f.bx, f.by + 1 >= brushH ? 0 : f.by + 1, f.depth + 1); break;
    }
  }
}

bool FillPress() {
  if (ChipBrushRefused()) return false;
  PushUndo();
  Fill(CursorX(), CursorY());
  g_pHost->RefreshPalette();
  return false;  // the fill is done with the press; nothing follows it
}

// How a press, a move of the cursor to another cell and a release of the left button
// work, tool by tool. A press that does not start its tool leaves the rest undone.
struct cMapTool {
  bool (*press)();
  void (*move)();
  void (*release)();
};
constexpr cMapTool kTools[] = {
    {PenPress, PenStamp, nullptr},     // TOOL_PEN
    {LinePress, nullptr, LineRelease},  // TOOL_LINE
    {RectPress, RectMove, RectRelease},  // TOOL_RECT
    {FillPress, nullptr, nullptr},      // TOOL_FILL
};

void RunTool(const cMapMouseEvent& e, bool cellChanged) {
  cEditState& es = ES();
  if (es.m_nTool < 0 || es.m_nTool >= static_cast<int>(std::size(kTools))) return;
  const cMapTool& tool = kTools[es.m_nTool];
  switch (e.msg) {
    case eMapMouse::kLeftDown:
      es.m_eDrag = tool.press() ? eMapDrag::kLeft : eMapDrag::kIdle;
      break;
    case eMapMouse::kMove:
      if (es.m_eDrag != eMapDrag::kLeft) break;
      // A release that went elsewhere, to a form the pen opened, ends the stroke.
      if (!e.left) es.m_eDrag = eMapDrag::kIdle;
      else if (cellChanged && tool.move != nullptr) tool.move();
      break;
    case eMapMouse::kLeftUp:
      if (es.m_eDrag != eMapDrag::kLeft) break;
      es.m_eDrag = eMapDrag::kIdle;
      if (tool.release != nullptr) tool.release();
      break;
    default: break;
  }
}

// --- the pick ---

void PickRange() {
  cEditState& es = ES();
  const cCellRect rect = PickedRect(es.m_nDragX, es.m_nDragY, CursorX(), CursorY());
  es.m_nBrushW = rect.w;
  es.m_nBrushH = rect.h;
  int enemyRow = -1;
  WalkBrush(rect.x, rect.y, rect.w, rect.h, g_Stage.m_nWidth, g_Stage.m_nHeight, cEditState::kBrushSide,
            cEditState::kBrushSide, [&](int x, int y, int r, int c) {
              const auto at = static_cast<std::size_t>(BrushIndex(r, c));
              if (es.m_nPalette == PALETTE_CHIP) {
                es.m_aBrushChip[at] = static_cast<std::uint32_t>(CellRef(x, y));
                return;
              }
              es.m_aBrushEnemy[at] = -1;
              const VECTOR_CLASS<cPutEnemy>& enemies = g_Stage.m_vecPutEnemy;
              for (int i = 0; i < enemies.Count(); ++i)
                if (enemies[i].m_nX == x && enemies[i].m_nY == y) {
                  es.m_aBrushEnemy[at] = i;
                  break;
                }
              enemyRow = es.m_aBrushEnemy[at];
            });
  // One cell holding an enemy selects its row; any other pick leaves none selected.
  if (es.m_nPalette == PALETTE_ENEMY) {
    if (es.m_nBrushW != 1 || es.m_nBrushH != 1) enemyRow = -1;
    es.m_nListSel = enemyRow;
    g_pHost->SelectEnemyRow(enemyRow);
  }
}

void Pick(const cMapMouseEvent& e) {
  cEditState& es = ES();
  switch (e.msg) {
    case eMapMouse::kRightDown:
      es.m_nDragX = CursorX();
      es.m_nDragY = CursorY();
      es.m_nCursorShape = CURSOR_PICK;
      es.m_nSelected = -1;
      es.m_eDrag = eMapDrag::kRight;
      break;
    case eMapMouse::kRightUp:
      if (es.m_eDrag != eMapDrag::kRight) break;
      es.m_eDrag = eMapDrag::kIdle;
      PickRange();
      es.m_nCursorShape = es.m_nTool;
      break;
    case eMapMouse::kMove:
      // A release that went elsewhere ends the pick without taking the range.
      if (es.m_eDrag == eMapDrag::kRight && !e.right) {
        es.m_eDrag = eMapDrag::kIdle;
        es.m_nCursorShape = es.m_nTool;
      }
      break;
    default: break;
  }
}

// The right double click on a single enemy opens its form from the enemy list.
void EnemyEditShortcut() {
  const cEditState& es = ES();
  if (es.m_nPalette != PALETTE_ENEMY || !g_Stage.HasCell(CursorX(), CursorY()) || es.m_nBrushW != 1 || es.m_nBrushH != 1) return;
  const int row = es.m_aBrushEnemy[0];
  if (row < 0) return;
  g_pHost->SelectEnemyRow(row);
  g_pHost->EditEnemyRow(row);
}

}  // namespace

cMapEditHost& MapEditHost() { return *g_pHost; }
void SetMapEditHost(cMapEditHost* host) { g_pHost = host != nullptr ? host : &g_SilentHost; }

void MoveMapCursor(MAP_VIEW& view, int px, int py) {
  const cViewCell cell = ViewCellAt(view, px, py);
  g_Cursor.KeepWithin(g_Stage.m_nWidth, g_Stage.m_nHeight);
  if (cell.inside && (cell.x >= g_Stage.m_nWidth || cell.y >= g_Stage.m_nHeight)) {
    view.m_nCursorX = g_Cursor.Top().nX;  // the cell kept, on the map as it stands now
    view.m_nCursorY = g_Cursor.Top().nY;
    return;
  }
  const int x = std::min(cell.x, g_Stage.m_nWidth - 1), y = std::min(cell.y, g_Stage.m_nHeight - 1);
  g_Cursor.Top() = {x, y, cell.px, cell.py};
  view.m_nCursorX = x;
  view.m_nCursorY = y;
}

void StageMouse(MAP_VIEW& view, const cMapMouseEvent& e) {
  cEditState& es = ES();
  if (!es.m_bStageOpen) return;
  const cCursorFrame before = g_Cursor.Top();
  MoveMapCursor(view, e.px, e.py);
  const bool cellChanged = g_Cursor.Top().nX != before.nX || g_Cursor.Top().nY != before.nY;
  if (g_pHost->MainIsActive()) {
    if (e.msg == eMapMouse::kLeftDown) es.m_bStageModified = 1;
    RunTool(e, cellChanged);
    if (e.msg == eMapMouse::kRightDoubleClick) EnemyEditShortcut();
    else if (es.m_nPalette == PALETTE_CHIP || es.m_nPalette == PALETTE_ENEMY) Pick(e);
    // The event palette's menu opens as the right button comes up alone.
    else if (e.msg == eMapMouse::kRightUp && !e.left) EventContextMenu();
  }
  if (e.msg == eMapMouse::kLeftDown || e.msg == eMapMouse::kRightDown) g_pHost->FocusMain();
  view.m_bLeftDown = es.m_eDrag == eMapDrag::kLeft ? 1 : 0;
}

void PushUndo() {
  ES().m_History.PushUndo(Snapshot(), Depth());
  g_pHost->UpdateCommands();
}

namespace {

// A step back or forward marks the stage, as any edit does.
void StepHistory(bool redo) {
  cUndoHistory& history = ES().m_History;
  if (!(redo ? history.CanRedo() : history.CanUndo())) return;
  if (redo) history.Redo(Snapshot(), Depth());
  else history.Undo(Snapshot(), Depth());
  g_pHost->UpdateCommands();
  g_pHost->RefreshPalette();
  ES().m_bStageModified = 1;
}

}  // namespace

void Undo() { StepHistory(false); }
void Redo() { StepHistory(true); }

void ClearHistory() {
  ES().m_History.Clear();
  g_pHost->UpdateCommands();
}

void ChangePalette(int palette) {
  cEditState& es = ES();
  if (palette < 0 || palette >= cEditState::kPaletteCount) return;
  SwapPaletteState(es, palette);
  es.m_nPalette = palette;
  g_pHost->UpdateCommands();
  if (es.m_bStageOpen) g_pHost->ShowPalette(palette);
}

void NextPalette() { ChangePalette((ES().m_nPalette + 1) % cEditState::kPaletteCount); }

bool ClearPlacedData(eClearKind kind) {
  static const char* const kQuestions[] = {"全てのマップチップをクリアしますか？", "全ての敵をクリアしますか？",
                                           "全てのイベントをクリアしますか？"};
  g_pHost->EnableAllWindows(false);
  const int answer = MesBox(nullptr, Utf8ToCp932Lossy(kQuestions[static_cast<int>(kind)]),
                            CP932_TEXT("データクリアの確認"), MB_YESNO);
  g_pHost->EnableAllWindows(true);
  if (answer != IDYES) return false;
  PushUndo();
  switch (kind) {
    case eClearKind::kChips: g_Stage.ClearMap(); break;
    case eClearKind::kEnemies:
      g_Stage.m_vecPutEnemy.clear();
      g_pHost->RefreshPalette();
      break;
    case eClearKind::kEvents: g_Stage.m_vecEvent.clear(); break;
  }
  ES().m_bStageModified = 1;
  return true;
}
