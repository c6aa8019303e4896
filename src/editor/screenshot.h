#pragma once
// Pictures of the editor for a display-less run: with ORTALUNE_SCREENSHOT set to a PNG
// path, the main window is grabbed once it is shown, and with ORTALUNE_SCREENSHOT_TESTPLAY
// also the test play settings form; then the editor ends as if closed.

// Arms the grabs when asked for; false when no picture was asked for.
bool ScheduleScreenshots();
