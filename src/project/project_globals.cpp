#include "project/project_globals.h"

// The order of definition is the order of construction. None of these constructors
// reads another table, so the order only matters once records that do join.
cEditConfig g_EditConfig;
cTestPlay g_TestPlay;
cPropSheetSize g_PropSheetSize;
INI_VALUES g_Ini;
cSurface g_aSheet[kSheetCount];
