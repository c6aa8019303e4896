#pragma once
// The choice of the battle mode, shown once: on the start that made the project's data
// from the default tree. OK is its only way on; it writes the settings file.

#include "toolkit/ctrls.h"
#include "toolkit/dlg_class.h"

class DLG_BATTLEMODE : public DLG_CLASS {
 public:
  enum : unsigned { kIdMode = 1001 };
  static constexpr int kTemplateId = 233;

  DLG_BATTLEMODE();
  ~DLG_BATTLEMODE() override;
  void OnCommand(unsigned id, unsigned code) override;

  int m_nMode;
  VECTOR_CLASS<cComboCtrl> m_vecCombo;

 protected:
  void Layout(cFormLayout& L) override;
  void OnInitDialog() override;
};

extern DLG_BATTLEMODE* g_pDlgBattleMode;

// The dialog, modal; its result (1 after OK).
int RunBattleModeDialog();
