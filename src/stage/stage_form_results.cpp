#include "stage/stage_form_results.h"

#include "project/project_globals.h"
#include "stage/edit_state.h"

void PositionGroupsConfirmed() {
  g_Stage.Clamp();
  g_EditState.m_bStageModified = 1;
}
