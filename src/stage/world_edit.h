#pragma once
// The world map editor's engine: the mouse on the map turned into cells, the pen in both
// palettes, the pick of chips into the brush, the drag-scrolling of a pick that leaves
// the view, the event menu on the map, the undo steps and the clear commands. It works
// on g_WorldMap and g_WorldEditState; the window hands it the pointer and the buttons
// and does for it what cWorldEditHost asks.

#include "stage/map_edit.h"
#include "stage/world_edit_state.h"

// What the engine asks of the world map window. The default does nothing.
class cWorldEditHost {
 public:
  virtual ~cWorldEditHost() = default;
  // Mouse messages edit only while the world map window is the active window.
  virtual bool WindowIsActive() const { return true; }
  virtual void FocusWindow() {}
  // The map and the chip palette drawn again.
  virtual void Redraw() {}
  virtual void UpdateCommands() {}
  // The window of palette `palette` stands, the other one is gone.
  virtual void ShowPalette(int palette) {}
  // DLG_WORLDEVENT_SET on `event`: true on OK, which made the undo step itself.
  virtual bool EditEvent(cWorldEvent& event) { return false; }
  // The event menu at the pointer with its items enabled as `enabled` says (kEventMenu's
  // order); the command chosen, or 0.
  virtual int PopupEventMenu(const bool* enabled) { return 0; }
  // A copy or cut on the map goes to the event palette's list clipboard as well.
  virtual void ToListClipboard(const cWorldEvent& event) {}
  virtual void EnableAllWindows(bool enable) {}

  // What the commands ask: the window closed (with its closing question), the palette
  // windows hidden and disabled or back, DLG_WORLDMAP_SET run (true on OK), and the
  // scroll bars fitted to a map of a new size.
  virtual void CloseWindow() {}
  virtual void ShowPalettes(bool show) {}
  virtual bool RunSettings() { return false; }
  virtual void MapResized() {}
};

cWorldEditHost& WorldEditHost();
void SetWorldEditHost(cWorldEditHost* host);  // null: the silent one

// The state the window opens with: g_WorldEditState reset, the cursor at the origin,
// the world map unmodified.
void OpenWorldEdit();

// The cursor for a pixel of the view: no test against the map, so it may stand beyond
// it; a pixel outside the view is taken to its edge.
void MoveWorldCursor(MAP_VIEW& view, int px, int py);

// A mouse message in the view: the cursor, the modified flag on either press, then, in
// the active window, the pen, and the pick in palette 0 or the event menu in palette 1.
void WorldMouse(MAP_VIEW& view, const cMapMouseEvent& e);

// One poll of the window's frame operation while the pointer is at (px, py) outside the
// view, with the right button's press and release seen in this poll and its state. It
// carries a pick on: ends it on a new press, finishes it on the release, and while the
// button is held scrolls the view (limited to `maxScrollX`, `maxScrollY`) as the drag-
// scrolling does. `poll` counts the polls. True when the view scrolled.
bool WorldFramePoll(MAP_VIEW& view, int px, int py, bool rightPressed, bool rightReleased, bool rightHeld,
                    int maxScrollX, int maxScrollY, int poll);

// The undo engine over g_WorldMap, three steps deep. Undo and redo mark the map modified.
void WorldPushUndo();
void WorldUndo();
void WorldRedo();
void WorldClearHistory();

// Stores the palette state and loads that of `palette`; its window comes up.
void ChangeWorldPalette(int palette);
void NextWorldPalette();

// A click on the chip palette: chip `n` becomes the selection and a brush of one.
void ChooseWorldChip(int n);
// The event palette's list stands on `row`: a real template becomes what the pen puts,
// with a brush of one; anything else leaves the pen nothing.
void SelectWorldTemplate(int row);
// The same as the user's choice of a row, after which the map counts as modified.
void ChooseWorldTemplate(int row);

// "全てのマップチップをクリア" (chips true) or "全てのイベントをクリア": asks, and on
// yes makes a step, clears and marks the map modified. True on yes.
bool ClearWorldData(bool chips);

// The event menu of palette 1 at the cursor: m_pEditEvent the event there, the cursor
// frame pushed, the host's menu, the item chosen run, the frame popped.
void WorldEventContextMenu();
// Which items of kEventMenu are enabled for m_pEditEvent and the clipboard.
std::array<bool, 6> WorldEventMenuEnabling();
// One item on the top cursor frame.
void RunWorldEventMenuItem(int id);

// The OK of DLG_WORLDEVENT_SET: a step, then `target` takes the form's work, and the map
// is marked modified. `target` may be a placed event, a template or one about to be put.
void WorldEventFormConfirmed(cWorldEvent& target, const cWorldEvent& work);

// The brush entry at row r, column c.
constexpr int WorldBrushIndex(int r, int c) { return r * cWorldEditState::kBrushW + c; }
