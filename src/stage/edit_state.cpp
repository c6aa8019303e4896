#include "stage/edit_state.h"

#include "project/project_globals.h"

cEditState g_EditState;

void cEditState::Reset() {
  m_bStageModified = m_bEventPltModified = m_bWorldModified = 0;
  m_bEditPlaced = m_bEventClip = 0;
  m_nPalette = PALETTE_CHIP;
  m_nTool = TOOL_PEN;
  m_nCursorShape = TOOL_PEN;
  m_nDragX = m_nDragY = -1;
  m_nBrushW = m_nBrushH = 1;
  m_pEditEvent = nullptr;
  m_pEditEnemy = nullptr;
  m_eDrag = eMapDrag::kIdle;

  const bool hasEvents = !g_Stage.m_vecEvent.empty();
  const int saved[kPaletteCount][PALSTATE_COUNT] = {
      {TOOL_PEN, TOOL_PEN, 0, 0, 1, 1},
      {TOOL_PEN, TOOL_PEN, -1, -1, 0, 0},
      {TOOL_PEN, TOOL_PEN, hasEvents ? 0 : -1, 0, hasEvents ? 1 : 0, hasEvents ? 1 : 0},
  };
  for (int p = 0; p < kPaletteCount; ++p)
    for (int i = 0; i < PALSTATE_COUNT; ++i) m_aPaletteState[p][i] = saved[p][i];
}

bool cEditState::ChipBrushValid(int index) const {
  return index >= 0 && index < static_cast<int>(m_aBrushChip.size()) &&
         m_aBrushChip[static_cast<std::size_t>(index)] < g_vecLand.size();
}
