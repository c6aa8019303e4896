#include "stage/stage_form_results.h"

#include "project/project_globals.h"
#include "stage/edit_state.h"
#include "stage/map_cursor.h"
#include "stage/map_edit.h"

void StageSettingsConfirmed() {
  g_Stage.Clamp();
  g_Cursor.KeepWithin(g_Stage.m_nWidth, g_Stage.m_nHeight);
  ClearHistory();
  MapEditHost().RefreshPalette();
  g_EditState.m_bStageModified = 1;
}

void PositionGroupsConfirmed() {
  g_Stage.Clamp();
  g_EditState.m_bStageModified = 1;
}
