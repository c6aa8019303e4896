#pragma once
// Row counts of the tables that records repair their references against, read from
// the project's globals at the moment of the repair (0 before anything is loaded).

int ElementRows();      // g_System.m_vecElem
int CompatiTypeRows();  // g_Database.m_vecCompatiType
int BackRows();         // g_Database.m_vecBack
