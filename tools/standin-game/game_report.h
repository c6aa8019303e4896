#pragma once
// What the stand-in reads: the project in the current directory, through the
// editor's own project load, and the stage the editor names when asked.

#include <string>
#include <vector>

struct cGameReport {
  bool bLoaded = false;            // the project and the stage, if one was named, loaded
  std::vector<std::string> lines;  // UTF-8, for the window or the terminal
};

cGameReport ReadGame();
