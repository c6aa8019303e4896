#include "database/table_rows.h"

#include "project/project_globals.h"

int ElementRows() { return g_System.m_vecElem.Count(); }
int CompatiTypeRows() { return g_Database.m_vecCompatiType.Count(); }
int BackRows() { return g_Database.m_vecBack.Count(); }
