#pragma once
// Pictures of the editor for a display-less run: with ORTALUNE_SCREENSHOT set to a PNG
// path, the main window is grabbed once it is shown; with ORTALUNE_SCREENSHOT_FORMS set
// to a folder, every form of the catalog is opened in turn, grabbed into that folder
// as NAME.png and cancelled. Then the editor ends as if closed.

// Arms the grabs when asked for; false when no picture was asked for.
bool ScheduleScreenshots();
