#pragma once
// The frame of the process: its state between start-up and exit, the order of the
// start-up and of the exit, and what the start asks of the window layer.

#include <cstdint>
#include <span>
#include <string>

class DLG_MAIN;

extern DLG_MAIN* g_pDlgMain;      // the stage editor's dialog; null until the main window built it
extern int g_bStartupDone;        // set by the last step of a successful start-up
extern int g_bAppActive;          // the application is in the foreground
extern int bTestPlay;             // the game program runs for a test play
extern int g_bFocusRequest;       // the focus must go back to the editing dialog at the next frame
extern std::string g_strStartDir;  // the current directory at start-up (native)

// What the start-up and the process entry need of the window layer. The defaults are
// those of the editor; tests replace the windows and the sound device.
class cAppShell {
 public:
  virtual ~cAppShell() = default;
  // The battle mode dialog of a fresh project; 0 ends the start.
  virtual int BattleModeDialog() = 0;
  // VIEW_MAIN with DLG_MAIN inside, shown; 0 when it could not be made.
  virtual int CreateMainWindow() = 0;
  // Runs the event loop until the main window is gone; its result ends the process.
  virtual int RunLoop() = 0;
  // The sound fronts; the editor opens the audio device.
  virtual void StartSound(int bMidiDirectMusic);
  // Told of each start-up step as it begins.
  virtual void OnStartStep(const char* name) {}
};

struct cStartUpRun {
  cAppShell& shell;
  int bFresh = 0;  // the data was just copied from the default tree
};

struct cStartStep {
  const char* name;
  bool (*run)(cStartUpRun& run);  // false ends the start-up
};

// The start-up in its order. The timer resolution and the common controls of the home
// platform have no counterpart here; property-sheet pages are laid out by Qt, so no
// sheet rate is measured.
std::span<const cStartStep> StartUpSteps();

// Runs the steps in order in the current directory, the project's root. False when one
// of them ended the start; the message, if any, was shown by then.
bool StartUp(cAppShell& shell);

// The way out: the configuration (only after a complete start-up), the names of the
// common variables (always), the sound fronts.
void ShutDown();

// The process from the logs to the end of the loop: 0 when it ended before the loop.
int RunEditorProcess(cAppShell& shell);
