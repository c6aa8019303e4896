#pragma once
// What the world map window holds about its editing: the counterpart of g_EditState with
// one tool, two palettes and a brush as large as the largest world map.

#include <array>
#include <cstdint>

#include "stage/edit_state.h"
#include "stage/undo_history.h"
#include "stage/world_event.h"

// m_nPalette of the world map
enum : int { WORLD_PALETTE_CHIP = 0, WORLD_PALETTE_EVENT = 1 };
// m_nCursorShape of the world map: the brush, or the range of a pick under way.
enum : int { WORLD_CURSOR_BRUSH = 0, WORLD_CURSOR_PICK = 1 };

class cWorldEditState {
 public:
  // Row r and column c at r * 200 + c.
  static constexpr int kBrushW = 200;
  static constexpr int kBrushH = 150;
  static constexpr int kPaletteCount = 2;
  // The world map keeps three steps, whatever the stage editor is configured to keep.
  static constexpr int kUndoDepth = 3;

  // Chips current with entry 0 and a brush of 1 by 1, no pick; the saved state of the
  // event palette chooses template 0 when g_WorldMap has placed events, and nothing
  // otherwise. m_PutEvent becomes a copy of template 0. The history empties.
  void Reset();

  int m_nPalette = WORLD_PALETTE_CHIP;
  int m_nTool = 0;  // always the pen
  int m_nCursorShape = WORLD_CURSOR_BRUSH;
  std::array<std::uint32_t, kBrushW * kBrushH> m_aBrushChip{};  // rows of m_vecChip
  cWorldEvent m_PutEvent;  // the template chosen in the event palette
  cWorldEvent* m_pEditEvent = nullptr;  // the event under the context menu
  int m_bEventClip = 0;
  cWorldEvent m_EventClip;
  int m_nSelected = 0;
  int m_nListSel = 0;
  int m_nDragX = -1;  // start cell of a pick
  int m_nDragY = -1;
  int m_nBrushW = 1;
  int m_nBrushH = 1;
  int m_bPicking = 0;  // a pick is under way
  int m_aPaletteState[kPaletteCount][PALSTATE_COUNT] = {};
  eMapDrag m_eDrag = eMapDrag::kIdle;  // kLeft while a stroke of the pen runs
  cUndoHistory m_History;  // a step holds the cells and the placed events
};

extern cWorldEditState g_WorldEditState;
