#pragma once
// The stage editor's engine: the mouse on the map turned into cells, the four drawing
// tools, the pick of a range into the brush, the palettes' state, the undo steps and the
// clear commands. It works on g_Stage and g_EditState; the windows only hand it the
// mouse's pixel position and buttons, and do for it what cMapEditHost asks.

#include "stage/stage_view_draw.h"

class cEvent;

// What the engine asks of the windows around it. The default does nothing, as a run
// without windows needs.
class cMapEditHost {
 public:
  virtual ~cMapEditHost() = default;
  // Mouse messages act only while the main window is the active window.
  virtual bool MainIsActive() const { return true; }
  virtual void FocusMain() {}
  // Redraw what an edit of the map may have changed: the chip palette, the enemy list.
  virtual void RefreshPalette() {}
  // The enabled state of undo and redo, and the marks of the current palette.
  virtual void UpdateCommands() {}
  // The window of palette `palette` stands; the other two are gone.
  virtual void ShowPalette(int palette) {}
  // The enemy list selects `row` alone, or nothing for -1.
  virtual void SelectEnemyRow(int row) {}
  // The pen moved the entry of the enemy list's selected row.
  virtual void EnemyRowMoved() {}
  // The enemy form on the list's row `row` (the right double click).
  virtual void EditEnemyRow(int row) {}
  // The event form on `event`, which stands on the map when `placed`. True when the
  // user confirmed it; the form then made the undo step itself.
  virtual bool EditEvent(cEvent& event, bool placed) { return false; }
  // All windows of the program, during a question.
  virtual void EnableAllWindows(bool enable) {}

  // The main window and its palette go; a new main window is built from the edit state.
  virtual void DestroyMain() {}
  virtual void BuildMain() {}
  virtual void UpdateTitle() {}
  virtual void WaitCursor(bool wait) {}
  // The form a command opens (stage settings, database, ...). False while the program
  // has no such form: the command then beeps.
  virtual bool RunForm(int command) { return false; }
  // The event context menu at the pointer, its items enabled as `enabled` says (the
  // commands of kEventMenu, in order); the command chosen, or 0 when dismissed.
  virtual int PopupEventMenu(const bool* enabled) { return 0; }
};

// The host in use; a silent one until the windows install theirs (not owned).
cMapEditHost& MapEditHost();
void SetMapEditHost(cMapEditHost* host);

// A mouse message in the map view: pixels relative to the view, which lie outside it
// while a button is held, and the buttons held after the message.
enum class eMapMouse { kLeftDown, kMove, kLeftUp, kRightDown, kRightUp, kRightDoubleClick };
struct cMapMouseEvent {
  eMapMouse msg;
  int px, py;
  bool left, right;
};

// The cursor cell for a pixel (g_Cursor's top frame, and the view's cursor). Inside the
// view a pixel beyond the map leaves the cursor where it was; outside it, during a drag,
// the pixel is taken to the view's edge and the cell to the map's.
void MoveMapCursor(MAP_VIEW& view, int px, int py);

// The whole dispatch of a mouse message while a stage is open: the cursor, then, in the
// active main window, the modified flag on a left press, the current tool, and the pick
// (or, for a right double click, the enemy edit shortcut); a press takes the focus.
void StageMouse(MAP_VIEW& view, const cMapMouseEvent& e);

// The undo engine over g_Stage, with the depth of the editor's configuration.
void PushUndo();
void Undo();
void Redo();
void ClearHistory();

// Stores the current palette's tool, selection and brush and loads those of `palette`,
// which becomes current; its window comes up if a stage is open.
void ChangePalette(int palette);
// The next palette, from 2 back to 0.
void NextPalette();

// "全てのマップチップをクリア", "全ての敵をクリア", "全てのイベントをクリア": each asks,
// and on yes makes an undo step, clears and marks the stage modified. True on yes.
enum class eClearKind { kChips, kEnemies, kEvents };
bool ClearPlacedData(eClearKind kind);

// The brush entry at row r, column c.
constexpr int BrushIndex(int r, int c) { return r * 64 + c; }
