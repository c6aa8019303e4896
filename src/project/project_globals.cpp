#include "project/project_globals.h"

// The order of definition is the order of construction: the system settings and the
// database come before the tables whose records repair references into them.
cEditConfig g_EditConfig;
cTestPlay g_TestPlay;
cPropSheetSize g_PropSheetSize;
INI_VALUES g_Ini;
cSurface g_aSheet[kSheetCount];
cSystem g_System;  // before the tables whose constructors read it
cDatabase g_Database;
VECTOR_CLASS<cLand> g_vecLand;
VECTOR_CLASS<cSkillList> g_vecSkillList;
VECTOR_CLASS<cClass> g_vecClass;  // before the characters, which repair against it
VECTOR_CLASS<cFriend> g_vecFriend;
VECTOR_CLASS<cEnemy> g_vecEnemy;
// Before the events, whose pages repair their position group against the stage.
cStage g_Stage;
cWorldMap g_WorldMap;
VECTOR_CLASS<cMoveAITemplate> g_vecMoveAITemplate;
// The event stores come after every table that events refer to.
VECTOR_CLASS<cGValInfo> g_vecGValInfo;
VECTOR_CLASS<cEvent> g_vecEventPlt;
VECTOR_CLASS<cEventActPlt> g_vecEventActPlt;
cEvent g_StartEvent;

void ResetProjectGlobals() {
  g_System = cSystem();
  g_Database = cDatabase();
  g_vecLand.clear();
  g_vecSkillList.clear();
  g_vecClass.clear();
  g_vecFriend.clear();
  g_vecEnemy.clear();
  g_Stage = cStage();
  g_WorldMap = cWorldMap();
  g_vecMoveAITemplate.clear();
  g_vecGValInfo.clear();
  g_vecEventPlt.clear();
  g_vecEventActPlt.clear();
  g_StartEvent = cEvent();
}
