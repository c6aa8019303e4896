#pragma once
// Pictures of the editor for a display-less run: with ORTALUNE_SCREENSHOT set to a PNG
// path, the main window is grabbed once it is shown; with ORTALUNE_SCREENSHOT_FORMS set
// to a folder, every form of the catalog is opened in turn, grabbed into that folder
// as NAME.png and cancelled; with ORTALUNE_SCREENSHOT_TESTPLAY set to a PNG path, a
// test play is started as F5 starts it, the screen is grabbed while the game program
// shows itself, and its end message is awaited. Then the editor ends as if closed.

// Arms the grabs when asked for; false when no picture was asked for.
bool ScheduleScreenshots();
