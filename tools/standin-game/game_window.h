#pragma once
// The stand-in's window: what it read, until the player closes it or the time given
// by --seconds has passed.

#include "game_report.h"

// Whether a window can be shown here: a display is named and Qt is not told to draw
// off the screen.
bool DisplayAvailable();

// Returns when the window is gone.
void RunGameWindow(int argc, char** argv, const cGameReport& report, int nSeconds);
