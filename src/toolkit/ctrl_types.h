#pragma once
// Control type numbers and the notifications that the form's command routing reads.
// The Qt side raises the same codes for the same user actions, so that forms route
// and count changes the one way.

#include <cstdint>

enum eCtrlType : int {
  kCtrlLabel = 0,
  kCtrlButton = 1,
  kCtrlEditVal = 2,
  kCtrlEditStr = 3,
  kCtrlPicture = 4,
  kCtrlCheck = 5,
  kCtrlCombo = 7,
  kCtrlList = 8,
  kCtrlSpin = 9,
  kCtrlSlider = 10,
  kCtrlScroll = 11,
};

// Notification codes, the high word of a command.
enum : unsigned {
  kNotifyClicked = 0,
  kNotifyEditUpdate = 0x400,     // the text of an edit changed
  kNotifyEditKillFocus = 0x200,  // an edit lost the focus
  kNotifySelChange = 1,          // combo or list selection moved
  kNotifyDblClk = 2,             // a row of a list was double-clicked
  kNotifyListKillFocus = 5,
};

// Fixed control ids of every form.
enum : std::uint16_t {
  kIdOk = 1006,
  kIdCancel = 1007,
  kIdFocusSink = 1075,
  kIdListCount = 11071,  // the list's row count button
};

// True when a command with `code` from a control of `type` is a change of its value,
// the test by which a form decides to re-run its enabling rules.
bool IsValueChange(int type, unsigned code);

// True for the keys that a form sees while one of its child controls has the focus:
// Space, the arrow keys, Delete and F1 to F8 (virtual key codes).
bool FormSeesKey(int key);
