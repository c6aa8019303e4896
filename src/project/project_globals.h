#pragma once
// The process-wide objects of a project. They are constructed before main runs, so
// every record holds its constructor defaults when the load begins, and live until the
// process ends. All of them are defined in project_globals.cpp, in the order below.

#include "project/edit_config.h"
#include "project/prop_sheet_size.h"
#include "project/system_ini.h"
#include "project/test_play_settings.h"
#include "database/chara_kinds.h"
#include "database/database.h"
#include "database/land.h"
#include "database/move_ai.h"
#include "database/skill_list.h"
#include "event/stored_events.h"
#include "media/surface.h"
#include "project/system.h"
#include "stage/stage.h"
#include "stage/world_map.h"

constexpr int kSheetCount = 38;

extern cEditConfig g_EditConfig;
extern cTestPlay g_TestPlay;
extern cPropSheetSize g_PropSheetSize;
extern INI_VALUES g_Ini;
extern cSurface g_aSheet[kSheetCount];
extern cSystem g_System;
extern cDatabase g_Database;
extern VECTOR_CLASS<cLand> g_vecLand;
extern VECTOR_CLASS<cSkillList> g_vecSkillList;
extern VECTOR_CLASS<cClass> g_vecClass;
extern VECTOR_CLASS<cFriend> g_vecFriend;
extern VECTOR_CLASS<cEnemy> g_vecEnemy;
extern cStage g_Stage;
extern cWorldMap g_WorldMap;
extern VECTOR_CLASS<cMoveAITemplate> g_vecMoveAITemplate;
extern VECTOR_CLASS<cGValInfo> g_vecGValInfo;
extern VECTOR_CLASS<cEvent> g_vecEventPlt;
extern VECTOR_CLASS<cEventActPlt> g_vecEventActPlt;
extern cEvent g_StartEvent;

// Every record of the project back to its constructed state, in the order of
// definition, as before anything was loaded. The editor's own settings stay.
void ResetProjectGlobals();
