#include "database/table_rows.h"

#include "project/project_globals.h"

int ElementRows() { return g_System.m_vecElem.Count(); }
int CompatiTypeRows() { return g_Database.m_vecCompatiType.Count(); }
int BackRows() { return g_Database.m_vecBack.Count(); }
int PictureRows() { return g_Database.m_vecPicture.Count(); }
int SoundRows() { return g_Database.m_vecSound.Count(); }
int BgmRows() { return g_Database.m_vecBgm.Count(); }
int LandRows() { return g_vecLand.Count(); }
int SkillRowsOf(int list) {
  return list >= 0 && list < g_vecSkillList.Count() ? g_vecSkillList[list].m_vecSkill.Count() : 0;
}
int PtValRows() { return g_Database.m_vecPtVal.Count(); }
int SkillListRows() { return g_vecSkillList.Count(); }
int ClassRows() { return g_vecClass.Count(); }
int FriendRows() { return g_vecFriend.Count(); }
int EnemyRows() { return g_vecEnemy.Count(); }
int GroupPosRows() { return g_Stage.m_vecGroupPos.Count(); }
int StageWidth() { return g_Stage.m_nWidth; }
int StageHeight() { return g_Stage.m_nHeight; }
