#include "stage/world_edit.h"

#include <algorithm>

#include "platform/cp932.h"
#include "platform/diagnostics.h"
#include "project/project_globals.h"
#include "stage/event_menu.h"
#include "stage/map_brush.h"
#include "stage/map_cursor.h"
#include "stage/stage_snapshot.h"

namespace {

cWorldEditHost g_SilentHost;
cWorldEditHost* g_pHost = &g_SilentHost;
// The world map's own cursor stack, so that the stage's cursor is as it was on return.
cCursorStack g_WorldCursor;

cWorldEditState& ES() { return g_WorldEditState; }
int CursorX() { return g_WorldCursor.Top().nX; }
int CursorY() { return g_WorldCursor.Top().nY; }
void MarkModified() { g_EditState.m_bWorldModified = 1; }

cWorldSnapshot& Snapshot() {
  static cWorldSnapshot snapshot(g_WorldMap);
  return snapshot;
}

cEventPenRules PenRules() {
  return {g_EditConfig.m_bWorldEditIfPlaced != 0, g_EditConfig.m_bWorldEditBeforePut != 0};
}

// Stage pages of a copy about to be placed take the lowest free number, the event it
// replaces not counted.
void Number(cWorldEvent& event, const cWorldEvent* replaced) {
  if (g_EditConfig.m_bAutoStageNo) g_WorldMap.AssignStageNumbers(event, replaced);
}

// --- the pen ---

void StampChip(int x, int y, int r, int c) {
  const std::uint32_t chip = ES().m_aBrushChip[static_cast<std::size_t>(WorldBrushIndex(r, c))];
  if (chip < g_WorldMap.m_vecChip.size()) g_WorldMap.m_vecMap[g_WorldMap.CellIndex(x, y)] = static_cast<int>(chip);
}

void StampEvent(int x, int y) {
  cWorldEditState& es = ES();
  if (es.m_nSelected == -1) return;
  PenPlaceEvent(g_WorldMap, es.m_PutEvent, x, y, PenRules(), Number,
                [](cWorldEvent& event, bool) { return g_pHost->EditEvent(event); });
}

void PenStamp() {
  const cWorldEditState& es = ES();
  WalkBrush(CursorX(), CursorY(), es.m_nBrushW, es.m_nBrushH, g_WorldMap.m_nWidth, g_WorldMap.m_nHeight,
            cWorldEditState::kBrushW, cWorldEditState::kBrushH, [&](int x, int y, int r, int c) {
              if (es.m_nPalette == WORLD_PALETTE_CHIP) StampChip(x, y, r, c);
              else StampEvent(x, y);
            });
  g_pHost->Redraw();
}

// Every press makes its step, the chip palette's even with a brush that names no chip;
// in the event palette the form's OK makes it where a form will open.
void PenPress() {
  const cWorldEditState& es = ES();
  if (es.m_nPalette == WORLD_PALETTE_CHIP ||
      !EventFormMakesStep(PenRules(), g_WorldMap.HasEventAt(CursorX(), CursorY())))
    WorldPushUndo();
  ES().m_eDrag = eMapDrag::kLeft;
  PenStamp();
}

void Pen(const cMapMouseEvent& e, bool cellChanged) {
  cWorldEditState& es = ES();
  switch (e.msg) {
    case eMapMouse::kLeftDown: PenPress(); break;
    case eMapMouse::kMove:
      if (es.m_eDrag != eMapDrag::kLeft) break;
      // A release that went elsewhere, to a form the pen opened, ends the stroke.
      if (!e.left) es.m_eDrag = eMapDrag::kIdle;
      else if (cellChanged) PenStamp();
      break;
    case eMapMouse::kLeftUp: es.m_eDrag = eMapDrag::kIdle; break;
    default: break;
  }
}

// --- the pick ---

void FinishPick() {
  cWorldEditState& es = ES();
  cCellRect rect = PickedRect(es.m_nDragX, es.m_nDragY, CursorX(), CursorY());
  // The brush stops at the map's edge: a cell beyond it would leave an earlier pick's
  // chip in the brush, for the pen to paint.
  rect.w = std::max(0, std::min(rect.w, g_WorldMap.m_nWidth - rect.x));
  rect.h = std::max(0, std::min(rect.h, g_WorldMap.m_nHeight - rect.y));
  es.m_nBrushW = std::min(rect.w, +cWorldEditState::kBrushW);
  es.m_nBrushH = std::min(rect.h, +cWorldEditState::kBrushH);
  WalkBrush(rect.x, rect.y, rect.w, rect.h, g_WorldMap.m_nWidth, g_WorldMap.m_nHeight, cWorldEditState::kBrushW,
            cWorldEditState::kBrushH, [&](int x, int y, int r, int c) {
              es.m_aBrushChip[static_cast<std::size_t>(WorldBrushIndex(r, c))] =
                  static_cast<std::uint32_t>(g_WorldMap.m_vecMap[g_WorldMap.CellIndex(x, y)]);
            });
  es.m_nCursorShape = es.m_nTool;
  es.m_bPicking = 0;
  g_pHost->Redraw();
}

void Pick(const cMapMouseEvent& e) {
  cWorldEditState& es = ES();
  if (e.msg == eMapMouse::kRightDown) {
    es.m_nDragX = CursorX();
    es.m_nDragY = CursorY();
    es.m_nCursorShape = WORLD_CURSOR_PICK;
    es.m_bPicking = 1;
    es.m_nSelected = -1;
  } else if (e.msg == eMapMouse::kRightUp && es.m_bPicking) {
    FinishPick();
  }
}

// --- the event menu ---

void EditMenuEvent() {
  if (ES().m_pEditEvent != nullptr) g_pHost->EditEvent(*ES().m_pEditEvent);
}

// The clipboard flag is set even where no event stands, so that an earlier content
// stays pasteable.
void CopyMenuEvent(bool cut) {
  cWorldEditState& es = ES();
  es.m_bEventClip = 1;
  if (es.m_pEditEvent == nullptr) return;
  if (cut) WorldPushUndo();
  es.m_EventClip = *es.m_pEditEvent;
  g_pHost->ToListClipboard(es.m_EventClip);
  if (!cut) return;
  g_WorldMap.RemoveEvent(es.m_pEditEvent);
  es.m_pEditEvent = nullptr;
  MarkModified();
}

// The map's menu can open over the view beyond the map's edge; an event put there would
// vanish at the next save.
bool CursorOnMap() { return g_WorldMap.HasCell(CursorX(), CursorY()); }

void PasteMenuEvent() {
  cWorldEditState& es = ES();
  if (!es.m_bEventClip || !CursorOnMap()) return;
  WorldPushUndo();
  cWorldEvent copy = es.m_EventClip;
  Number(copy, g_WorldMap.EventAt(CursorX(), CursorY()));
  g_WorldMap.PutEvent(copy, CursorX(), CursorY());
  MarkModified();
}

void NewMenuEvent() {
  if (!CursorOnMap()) return;
  cWorldEvent temp;
  Number(temp, g_WorldMap.EventAt(CursorX(), CursorY()));
  temp.m_nX = CursorX();
  temp.m_nY = CursorY();
  if (!g_pHost->EditEvent(temp)) return;
  g_WorldMap.PutEvent(temp, temp.m_nX, temp.m_nY);
  MarkModified();
}

void DeleteMenuEvent() {
  if (ES().m_pEditEvent == nullptr) return;
  WorldPushUndo();
  g_WorldMap.RemoveEventsAt(CursorX(), CursorY());
  ES().m_pEditEvent = nullptr;
  MarkModified();
}

void StepHistory(bool redo) {
  cUndoHistory& history = ES().m_History;
  if (!(redo ? history.CanRedo() : history.CanUndo())) return;
  if (redo) history.Redo(Snapshot(), cWorldEditState::kUndoDepth);
  else history.Undo(Snapshot(), cWorldEditState::kUndoDepth);
  g_pHost->UpdateCommands();
  g_pHost->Redraw();
  MarkModified();
}

}  // namespace

cWorldEditHost& WorldEditHost() { return *g_pHost; }
void SetWorldEditHost(cWorldEditHost* host) { g_pHost = host != nullptr ? host : &g_SilentHost; }

void OpenWorldEdit() {
  ES().Reset();
  g_WorldCursor.Reset();
  g_EditState.m_bWorldModified = 0;
}

void MoveWorldCursor(MAP_VIEW& view, int px, int py) {
  const cViewCell cell = ViewCellAt(view, px, py);
  g_WorldCursor.Top() = {cell.x, cell.y, cell.px, cell.py};
  view.m_nCursorX = cell.x;
  view.m_nCursorY = cell.y;
}

void WorldMouse(MAP_VIEW& view, const cMapMouseEvent& e) {
  const cCursorFrame before = g_WorldCursor.Top();
  MoveWorldCursor(view, e.px, e.py);
  const bool cellChanged = g_WorldCursor.Top().nX != before.nX || g_WorldCursor.Top().nY != before.nY;
  const bool press = e.msg == eMapMouse::kLeftDown || e.msg == eMapMouse::kRightDown;
  if (press) MarkModified();
  if (g_pHost->WindowIsActive()) {
    Pen(e, cellChanged);
    if (ES().m_nPalette == WORLD_PALETTE_CHIP) Pick(e);
    // The event palette's menu opens as the right button comes up alone.
    else if (e.msg == eMapMouse::kRightUp && !e.left) WorldEventContextMenu();
  }
  if (press) g_pHost->FocusWindow();
  view.m_bLeftDown = ES().m_eDrag == eMapDrag::kLeft ? 1 : 0;
}

bool WorldFramePoll(MAP_VIEW& view, int px, int py, bool rightPressed, bool rightReleased, bool rightHeld,
                    int maxScrollX, int maxScrollY, int poll) {
  cWorldEditState& es = ES();
  if (!es.m_bPicking) return false;
  MoveWorldCursor(view, px, py);
  if (es.m_nCursorShape != WORLD_CURSOR_PICK) return false;
  if (rightPressed) {
    es.m_bPicking = 0;
    es.m_nCursorShape = es.m_nTool;
    return false;
  }
  if (rightReleased) {
    FinishPick();
    return false;
  }
  if (!rightHeld) return false;
  const int sx = std::clamp(view.m_nScrollX + DragScrollStep(px, view.m_nWidth, poll), 0, std::max(maxScrollX, 0));
  const int sy = std::clamp(view.m_nScrollY + DragScrollStep(py, view.m_nHeight, poll), 0, std::max(maxScrollY, 0));
  if (sx == view.m_nScrollX && sy == view.m_nScrollY) return false;
  view.m_nScrollX = sx;
  view.m_nScrollY = sy;
  MoveWorldCursor(view, px, py);
  g_pHost->Redraw();
  return true;
}

void WorldPushUndo() {
  ES().m_History.PushUndo(Snapshot(), cWorldEditState::kUndoDepth);
  g_pHost->UpdateCommands();
}
void WorldUndo() { StepHistory(false); }
void WorldRedo() { StepHistory(true); }
void WorldClearHistory() {
  ES().m_History.Clear();
  g_pHost->UpdateCommands();
}

void ChangeWorldPalette(int palette) {
  if (palette < 0 || palette >= cWorldEditState::kPaletteCount) return;
  SwapPaletteState(ES(), palette);
  g_pHost->UpdateCommands();
  g_pHost->ShowPalette(palette);
}

void NextWorldPalette() { ChangeWorldPalette((ES().m_nPalette + 1) % cWorldEditState::kPaletteCount); }

void ChooseWorldChip(int n) {
  cWorldEditState& es = ES();
  es.m_nSelected = n;
  es.m_aBrushChip[0] = static_cast<std::uint32_t>(n);
  es.m_nBrushW = es.m_nBrushH = 1;
}

void SelectWorldTemplate(int row) {
  cWorldEditState& es = ES();
  es.m_nListSel = row;
  const bool real = row >= 0 && row < g_WorldMap.m_vecEventPlt.Count();
  es.m_nSelected = real ? row : -1;
  if (real) es.m_PutEvent = g_WorldMap.m_vecEventPlt[row];
  es.m_nBrushW = es.m_nBrushH = real ? 1 : 0;
}

void ChooseWorldTemplate(int row) {
  SelectWorldTemplate(row);
  MarkModified();
}

bool ClearWorldData(bool chips) {
  g_pHost->EnableAllWindows(false);
  const int answer = MesBox(nullptr,
                            chips ? CP932_TEXT("全てのマップチップをクリアしますか？")
                                  : CP932_TEXT("全てのイベントをクリアしますか？"),
                            CP932_TEXT("データクリアの確認"), MB_YESNO);
  g_pHost->EnableAllWindows(true);
  if (answer != IDYES) return false;
  WorldPushUndo();
  if (chips) g_WorldMap.ClearMap();
  else g_WorldMap.m_vecEvent.clear();
  MarkModified();
  g_pHost->Redraw();
  return true;
}

std::array<bool, 6> WorldEventMenuEnabling() {
  const bool event = ES().m_pEditEvent != nullptr;
  return {event, event, event, ES().m_bEventClip != 0, true, event};
}

void WorldEventContextMenu() {
  cWorldEditState& es = ES();
  es.m_pEditEvent = g_WorldMap.EventAt(CursorX(), CursorY());
  g_WorldCursor.Push();
  const std::array<bool, 6> enabled = WorldEventMenuEnabling();
  RunWorldEventMenuItem(g_pHost->PopupEventMenu(enabled.data()));
  g_WorldCursor.Pop();
  es.m_pEditEvent = nullptr;
  g_pHost->Redraw();
}

void RunWorldEventMenuItem(int id) {
  switch (id) {
    case IDM_EVENT_EDIT: EditMenuEvent(); break;
    case IDM_EVENT_CUT: CopyMenuEvent(true); break;
    case IDM_EVENT_COPY: CopyMenuEvent(false); break;
    case IDM_EVENT_PASTE: PasteMenuEvent(); break;
    case IDM_EVENT_NEW: NewMenuEvent(); break;
    case IDM_EVENT_DELETE: DeleteMenuEvent(); break;
    default: break;
  }
}

void WorldEventFormConfirmed(cWorldEvent& target, const cWorldEvent& work) {
  WorldPushUndo();
  target = work;
  MarkModified();
}
