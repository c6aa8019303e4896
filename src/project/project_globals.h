#pragma once
// The process-wide objects of a project. They are constructed before main runs, so
// every record holds its constructor defaults when the load begins, and live until the
// process ends. All of them are defined in project_globals.cpp, in the order below.

#include "app/edit_config.h"
#include "app/prop_sheet_size.h"
#include "app/system_ini.h"
#include "app/test_play_settings.h"
#include "database/database.h"
#include "database/land.h"
#include "database/skill_list.h"
#include "media/surface.h"
#include "project/system.h"

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
