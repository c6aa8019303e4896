#pragma once
// The stage editor's commands: one table that the menu, the toolbar and the shortcuts
// are built from, with each command's text, shortcut, enabling rule and action. The
// decisions live here, apart from any window; the windows do what cMapEditHost asks.

#include <span>
#include <string>

enum : int {
  IDM_NEW = 40017,
  IDM_OPEN = 40018,
  IDM_OPEN_KEY = 40062,
  IDM_CLOSE = 40055,
  IDM_SAVE = 40015,
  IDM_SAVE_KEY = 40026,
  IDM_SAVE_AS = 40016,
  IDM_SAVE_PALETTE = 40134,
  IDM_DEFAULT_STAGE = 40087,
  IDM_UNDO = 40060,
  IDM_UNDO_KEY = 40063,
  IDM_REDO = 40061,
  IDM_REDO_KEY = 40064,
  IDM_PALETTE_CHIP = 40052,
  IDM_PALETTE_ENEMY = 40051,
  IDM_PALETTE_EVENT = 40050,
  IDM_CLEAR_CHIPS = 40066,
  IDM_CLEAR_ENEMIES = 40067,
  IDM_CLEAR_EVENTS = 40068,
  IDM_STAGE_SETTINGS = 40115,
  IDM_POSITION_GROUPS = 40116,
  IDM_DATABASE = 40118,
  IDM_START_EVENT = 40120,
  IDM_WORLD_MAP = 40119,
  IDM_TEST_PLAY = 40049,
  IDM_TEST_PLAY_KEY = 40108,
  IDM_TEST_PLAY_SETTINGS = 40136,
  // the toolbar's own commands
  IDT_PALETTE_CHIP = 40003,
  IDT_PALETTE_ENEMY = 40004,
  IDT_PALETTE_EVENT = 40005,
  IDT_TEST_PLAY = 40006,
};

enum class eCommandEnable { kAlways, kStageOpen, kUndo, kRedo };

struct cStageCommand {
  int id;
  const char* menuText;  // UTF-8 with "&" before the access key; null: toolbar only
  const char* toolText;  // the toolbar button's text; null: menu only
  const char* shortcut;  // key sequences separated by ";", or null
  int shortcutId;        // the command id the shortcut sends, or 0
  eCommandEnable enable;
  int palette;           // checked (menu) or pressed (toolbar) while current; -1: neither
  void (*run)(int id);
};

std::span<const cStageCommand> StageCommands();
// The command with `id` or with it as shortcut id; null for an unknown id.
const cStageCommand* FindStageCommand(int id);

// The menu bar: a kMenu row opens a menu of the bar, kSub a submenu of the current menu,
// kEndSub closes it; kItem rows name commands of the table.
enum class eMenuRow { kMenu, kSub, kEndSub, kItem };
struct cMenuRow {
  eMenuRow kind;
  const char* text;  // kMenu and kSub
  int id;            // kItem
};
std::span<const cMenuRow> StageMenu();
// The toolbar's commands in order, 0 for a separator.
std::span<const int> StageToolbar();

bool CommandEnabled(const cStageCommand& command);
bool CommandChecked(const cStageCommand& command);

// A window's whole command table: what its menu bar and toolbar are built from, and how
// its enabling and marks are read. The stage editor has one, the world map another.
struct cCommandSet {
  std::span<const cStageCommand> commands;
  std::span<const cMenuRow> menu;
  std::span<const int> toolbar;
  bool (*enabled)(const cStageCommand&);
  bool (*checked)(const cStageCommand&);
  // The command with `id` or with it as shortcut id; null for an unknown id.
  const cStageCommand* Find(int id) const;
};
const cCommandSet& StageCommandSet();
// Runs the command with `id` (or that shortcut id) if it is enabled; false otherwise.
bool RunStageCommand(int id);

// Saves the stage: over its file with `bOverwrite` when it has one, otherwise to a file
// chosen in the save dialog. 1 when saved.
int SaveStage(bool bOverwrite);
// The event palette to its file; its modified flag clears when that worked.
int SaveEventPalette();

// The questions on leaving the main window: the stage, then the event palette, each
// saved on yes. 0 when the user cancelled, or a yes did not save, and the window stays.
int AskSave();

// The main window built again around the edit state, with its palette.
void RebuildMain();
