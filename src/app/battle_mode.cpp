#include "app/battle_mode.h"

#include "project/project_globals.h"

int ApplyBattleMode(int index) {
  g_System.m_nBattleMode = index;
  g_System.m_nTurnMode = index != 0 ? 1 : 0;
  return g_System.SaveFile(kSystemPath);
}
