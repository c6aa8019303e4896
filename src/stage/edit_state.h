#pragma once
// What the editor holds about the stage it works on, beside the stage itself: the
// current palette and tool, the brushes, the state of a drag under way, the event
// template and clipboard, and the undo history.

#include <array>
#include <cstdint>
#include <string>

#include "event/event.h"
#include "stage/stage_records.h"
#include "stage/undo_history.h"

// m_nPalette
enum : int { PALETTE_CHIP = 0, PALETTE_ENEMY = 1, PALETTE_EVENT = 2 };
// m_nTool; m_nCursorShape is the tool's number, or CURSOR_PICK while a range is picked.
enum : int { TOOL_PEN = 0, TOOL_LINE = 1, TOOL_RECT = 2, TOOL_FILL = 3 };
constexpr int CURSOR_PICK = 5;
// The columns of a saved palette state.
enum : int {
  PALSTATE_TOOL,
  PALSTATE_CURSOR_SHAPE,
  PALSTATE_SELECTED,
  PALSTATE_LIST_SEL,
  PALSTATE_BRUSH_W,
  PALSTATE_BRUSH_H,
  PALSTATE_COUNT
};

// A drag on the map: idle, the left button held (pen, line or rectangle under way), or
// the right one (a range being picked).
enum class eMapDrag : int { kIdle, kLeft, kRight };

class cEditState {
 public:
  // A brush holds any range of the largest stage, row r and column c at r * 64 + c.
  static constexpr int kBrushSide = 64;
  static constexpr int kPaletteCount = 3;

  // The change and clipboard flags clear; which stage is open, and its path, stay, since
  // the windows are rebuilt around an open stage. Palette 0 becomes current with
  // the pen; the saved states give palette 1 no enemy chosen and palette 2 the first
  // event of g_Stage if it has one. Brushes, selection, tool positions and the history
  // stay.
  void Reset();

  // Whether entry `index` of the chip brush names a terrain record of g_vecLand.
  bool ChipBrushValid(int index) const;

  int m_bStageOpen = 0;        // a stage is open in the editor
  std::string m_strStagePath;  // its stored path; empty while it has no file
  int m_bStageModified = 0;    // the stage may have changed since it was saved
  int m_bEventPltModified = 0;
  int m_bWorldModified = 0;
  int m_nPalette = PALETTE_CHIP;
  int m_nTool = TOOL_PEN;
  int m_nCursorShape = TOOL_PEN;
  std::array<std::uint32_t, kBrushSide * kBrushSide> m_aBrushChip{};  // terrain numbers
  std::array<std::int32_t, kBrushSide * kBrushSide> m_aBrushEnemy{};  // rows of m_vecPutEnemy, or -1
  int m_bEditPlaced = 0;  // the event form edits an event that stands on the map
  int m_bEventClip = 0;   // the event clipboard holds something
  int m_bStartEvent = 0;  // the event form edits the project's start event
  int m_nSelected = 0;    // palette entry chosen; -1 = none
  int m_nListSel = 0;
  int m_nDragX = -1;  // start cell of a right-button pick
  int m_nDragY = -1;
  int m_nBrushW = 1;  // 0 while no entry is chosen
  int m_nBrushH = 1;
  int m_nLineX = 0;  // start cell of the line tool
  int m_nLineY = 0;
  int m_nRectX = 0;  // start cell and size of the rectangle tool
  int m_nRectY = 0;
  int m_nRectW = 0;
  int m_nRectH = 0;
  int m_aPaletteState[kPaletteCount][PALSTATE_COUNT] = {};
  eMapDrag m_eDrag = eMapDrag::kIdle;
  cEvent m_PutEvent;              // the template chosen in the event palette
  cEvent* m_pEditEvent = nullptr;  // the event the event form is to edit
  cPutEnemy* m_pEditEnemy = nullptr;  // the stage's enemy entry the enemy form is to edit
  cEvent m_EventClip;
  cUndoHistory m_History;
};

extern cEditState g_EditState;
