#pragma once
// What the editor holds about the stage it works on, beside the stage itself.

#include <string>

class cEditState {
 public:
  int m_bStageOpen = 0;        // a stage is open in the editor
  std::string m_strStagePath;  // its stored path; empty while it has no file
};

extern cEditState g_EditState;
