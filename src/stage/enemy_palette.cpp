#include "stage/enemy_palette.h"

#include <cstdio>

#include "platform/cp932.h"
#include "project/project_globals.h"
#include "stage/edit_state.h"

std::string PutEnemyRowText(const cPutEnemy& entry) {
  const bool placed = entry.m_nX != -1;
  char text[256];
  if (entry.m_nEnemy <= 0 || entry.m_nEnemy >= g_vecEnemy.Count()) {
    if (placed) std::snprintf(text, sizeof text, "(%d,%d) ", entry.m_nX, entry.m_nY);
    else std::snprintf(text, sizeof text, "(--,--) ");
    return text + CP932_TEXT("未設定");
  }
  const cEnemy& enemy = g_vecEnemy[entry.m_nEnemy];
  const std::string group = entry.m_bGroup ? std::to_string(entry.m_nGroup) : "-";
  const std::string where = placed ? "(" + std::to_string(entry.m_nX) + "," + std::to_string(entry.m_nY) + ")" : "(--,--)";
  // %-8s pads by bytes, so a double-byte name takes two of them a character.
  std::snprintf(text, sizeof text, " %s %d-%-8s LV%d ", where.c_str(), entry.m_nEnemy, enemy.m_strName.c_str(),
                enemy.m_nLevel);
  return CP932_TEXT("グ") + group + text;
}

void ChooseEnemyRow(int row) {
  cEditState& es = g_EditState;
  es.m_nListSel = row;
  if (row < 0 || row >= g_Stage.m_vecPutEnemy.Count()) {
    es.m_nSelected = -1;
    es.m_nBrushW = es.m_nBrushH = 0;
    return;
  }
  es.m_nSelected = es.m_aBrushEnemy[0] = row;
  es.m_nBrushW = es.m_nBrushH = 1;
}

void UnplaceEnemies(VECTOR_CLASS<cPutEnemy>& entries) {
  for (cPutEnemy& entry : entries) entry.m_nX = entry.m_nY = -1;
}
