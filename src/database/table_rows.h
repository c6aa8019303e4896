#pragma once
// Row counts of the tables that records repair their references against, read from
// the project's globals at the moment of the repair (0 before anything is loaded).

int ElementRows();      // g_System.m_vecElem
int CompatiTypeRows();  // g_Database.m_vecCompatiType
int BackRows();         // g_Database.m_vecBack
int PtValRows();        // g_Database.m_vecPtVal, the party variables
int SkillListRows();    // g_vecSkillList
int ClassRows();        // g_vecClass
int FriendRows();       // g_vecFriend, the allies
int EnemyRows();        // g_vecEnemy
int SkillRowsOf(int list);  // the skills of g_vecSkillList[list]; 0 for a list out of range
int GroupPosRows();     // g_Stage.m_vecGroupPos, the position groups of the current stage
int PictureRows();      // g_Database.m_vecPicture
int SoundRows();        // g_Database.m_vecSound
int BgmRows();          // g_Database.m_vecBgm
int LandRows();         // g_vecLand, the terrain records
int StageWidth();       // g_Stage.m_nWidth, the map of the current stage
int StageHeight();      // g_Stage.m_nHeight
