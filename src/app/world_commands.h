#pragma once
// The world map window's commands: its menu, toolbar and shortcuts as one table, with
// their actions, and the question that closing the window asks.

#include "app/stage_commands.h"

enum : int {
  IDW_SAVE = 40015,
  IDW_SAVE_KEY = 40026,
  IDW_SAVE_CLOSE = 40054,
  IDW_CLOSE = 40055,
  IDW_UNDO = 40060,
  IDW_UNDO_KEY = 40063,
  IDW_REDO = 40061,
  IDW_REDO_KEY = 40064,
  IDW_PALETTE_CHIP = 40052,
  IDW_PALETTE_EVENT = 40050,
  IDW_CLEAR_CHIPS = 40066,
  IDW_CLEAR_EVENTS = 40068,
  IDW_SETTINGS = 40056,
  IDW_TOOL_CHIP = 40109,
  IDW_TOOL_EVENT = 40110,
};

const cCommandSet& WorldCommandSet();
// Runs the command with `id` (or that shortcut id) if it is enabled; false otherwise.
bool RunWorldCommand(int id);

// The world map to "data\database\WorldMap.dat"; the modified flag clears once it is
// written. False when the write failed: the edits are then still to be asked about.
bool SaveWorldMap();

// The question on closing the window while the map may have changed: yes saves, no reads
// the file again (a failed read leaves the edits in memory), cancel keeps the window.
// True when the window may close.
bool AskCloseWorldMap();
