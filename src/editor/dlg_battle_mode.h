#pragma once
// The choice of the battle mode, shown once: on the start that made the project's data
// from the default tree. OK is its only way on; it writes the settings file.

#include "toolkit/dlg_class.h"
#include "toolkit/live_instance.h"

class DLG_BATTLEMODE : public DLG_CLASS, public cLiveInstance<DLG_BATTLEMODE> {
 public:
  enum : unsigned { kIdMode = 1001 };

  DLG_BATTLEMODE();
  int m_nMode;

 protected:
  void OnReady() override;
  bool OnOk() override;
};

// The dialog, modal; its result (1 after OK).
int RunBattleModeDialog();
