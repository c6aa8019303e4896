#include "toolkit/ctrl_types.h"

bool IsValueChange(int type, unsigned code) {
  switch (type) {
    case kCtrlButton: return code == kNotifyClicked;
    case kCtrlEditVal:
    case kCtrlEditStr: return code == kNotifyEditUpdate;
    case kCtrlCheck:
    case kCtrlSlider: return true;
    case kCtrlCombo: return code == kNotifySelChange;
    default: return false;
  }
}

bool FormSeesKey(int key) {
  return key == 32 || (key >= 37 && key <= 40) || key == 46 || (key >= 112 && key <= 119);
}
