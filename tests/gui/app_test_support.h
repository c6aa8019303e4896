#pragma once
// A project made from the bundled template in a fresh current directory, with the
// frame's state back to that of a new process.

#include <string>
#include <vector>

#include "app/app_frame.h"
#include "support/test_env.h"

class TemplateProjectTest : public ProjectDirTest {
 protected:
  void SetUp() override;
  void TearDown() override;
};

// A start-up without windows or sound device: it records the steps and what the
// dialog and the window saw.
class cRecordingShell : public cAppShell {
 public:
  int BattleModeDialog() override;
  int CreateMainWindow() override;
  int RunLoop() override { return 0; }
  void StartSound(int bMidiDirectMusic) override;
  void OnStartStep(const char* name) override { steps.push_back(name); }

  std::vector<std::string> steps;
  int dialogs = 0, windows = 0;
  int dialogResult = 1;
  // The state the battle mode dialog found.
  bool iniReadAtDialog = false, soundAtDialog = false;
  bool soundStarted = false;
};
