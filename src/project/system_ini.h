#pragma once
// "System.ini", the text settings the editor shares with the game program. The editor
// only reads it; of its values the editor itself uses only the MIDI device choice.

#include <filesystem>

#include "kernel/vector_class.h"
#include "project/ini_row.h"

struct INI_VALUES {
  int m_bDefaulted = 0;  // 1 once the defaults were set
  int m_nWindowMode = 0;
  int m_nColor = 0;
  int m_nFrameRate = 0;
  int m_nVSync = 0;
  int m_nShowFps = 0;
  int m_nEnglish = 0;
  int m_nMidiDirectMusic = 0;
};

// The member that row `row` of the settings fills, or null past the seven rows.
int* IniMemberOfRow(INI_VALUES& ini, std::size_t row);

void IniSetDefaults(INI_VALUES& ini, const VECTOR_CLASS<cIni>& rows);

// Reads the file into the members whose row keys it names. 1 when the file was read to
// its "Exit" line, a NUL byte or the limit of lines; 0 when it cannot be opened or ends
// before that, in which case the caller sets the defaults again.
int IniRead(const std::filesystem::path& path, INI_VALUES& ini, const VECTOR_CLASS<cIni>& rows);

// The start-up's order: defaults, the file, and the defaults again when it failed.
void LoadSystemIni(const std::filesystem::path& path, INI_VALUES& ini, const VECTOR_CLASS<cIni>& rows);
