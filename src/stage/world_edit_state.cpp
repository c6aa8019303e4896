#include "stage/world_edit_state.h"

#include "project/project_globals.h"

cWorldEditState g_WorldEditState;

void cWorldEditState::Reset() {
  m_nPalette = WORLD_PALETTE_CHIP;
  m_nTool = 0;
  m_nCursorShape = WORLD_CURSOR_BRUSH;
  m_nSelected = m_nListSel = 0;
  m_nDragX = m_nDragY = -1;
  m_nBrushW = m_nBrushH = 1;
  m_aBrushChip.fill(0);  // chip 0 is the one shown selected; no earlier pick stays behind
  m_bPicking = 0;
  m_pEditEvent = nullptr;
  m_eDrag = eMapDrag::kIdle;
  m_History.Clear();
  m_PutEvent = g_WorldMap.m_vecEventPlt.empty() ? cWorldEvent() : g_WorldMap.m_vecEventPlt[0];

  const int chosen = g_WorldMap.m_vecEvent.empty() ? -1 : 0, brush = chosen < 0 ? 0 : 1;
  const int saved[kPaletteCount][PALSTATE_COUNT] = {
      {0, WORLD_CURSOR_BRUSH, 0, 0, 1, 1},
      {0, WORLD_CURSOR_BRUSH, chosen, chosen, brush, brush},
  };
  for (int p = 0; p < kPaletteCount; ++p)
    for (int i = 0; i < PALSTATE_COUNT; ++i) m_aPaletteState[p][i] = saved[p][i];
}
