#pragma once
// Labels of the game-wide settings as the system pages show them, in UTF-8, each table
// in row order and ending in an empty entry; and the font table of m_nFont.

#include "project/system.h"

extern const char* const kSystemStatusLabels[kSystemStatusCount + 1];
extern const char* const kSystemSoundLabels[kSystemSoundCount + 1];
extern const char* const kSystemBgmLabels[kSystemBgmCount + 1];
extern const char* const kSystemPredictLabels[kSystemPredictCount + 1];
extern const char* const kSystemIniLabels[kSystemIniCount + 1];
extern const char* const kBattleModeLabels[3];
extern const char* const kTurnModeLabels[3];
extern const char* const kOrderTypeLabels[3];
// Headings of the sixteen menus, in stream order.
extern const char* const kSystemMenuLabels[17];

// The face names a project can choose for the game's text, by m_nFont.
constexpr int kSystemFontTableSize = 123;
extern const char* const kSystemFontFaces[kSystemFontTableSize];
// The face recommended for the game, and the one old files are given.
constexpr int kRecommendedFont = 60;
