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
