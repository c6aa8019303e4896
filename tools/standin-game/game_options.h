#pragma once
// The stand-in's options. A test play starts it without arguments, so when it has none
// it takes them from the environment variable ORTALUNE_STANDIN_OPTIONS (words
// separated by spaces), which it inherits from the editor.

#include <span>
#include <string>
#include <vector>

struct cGameOptions {
  int nSeconds = -1;         // ends by itself after this many seconds; -1: when closed, or at once without a window
  bool bWindow = true;       // shows its window when there is a display
  bool bEndMessage = true;   // false plays an old game program that never tells the editor
  bool bHelp = false;
  std::string error;         // what was wrong with the options
};

std::vector<std::string> GameArguments(int argc, char** argv);
cGameOptions ParseGameOptions(std::span<const std::string> args);

constexpr const char* kGameUsage =
    "usage: standin-game [--seconds N] [--no-window] [--no-end-message]\n"
    "  --seconds N        end after N seconds (without a window the default is at once)\n"
    "  --no-window        print what was read even where a display exists\n"
    "  --no-end-message   end without telling the editor, as an old game program would\n"
    "Started without arguments, the options come from ORTALUNE_STANDIN_OPTIONS.\n";
