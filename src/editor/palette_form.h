#pragma once
// A palette made as a form: a tool window beside its owner, kept open while its palette
// is current (Escape and the close box leave it), at the place the author left it or
// beside the owner's right edge 10 pixels down, and handing Space and F5, which belong
// to the owner, to `keys` once the key has been handled (a change of palette takes
// the palette away). The enemy palette and the world map's event palette are such.

#include <functional>

#include "toolkit/dlg_class.h"

class cWndPosInfo;

// A palette ends its form in its own destructor (End(0)), while its controls, which
// the window's last messages still reach, are alive.
class cPaletteForm : public DLG_CLASS {
 public:
  cPaletteForm(QWidget* owner, const char* title, std::function<void(int key)> keys, cWndPosInfo& stored);

 protected:
  void OnInitDialog() override;
  void OnKeyDown(int key, bool bCtrl) override;
  void OnClose() override {}
  // The place goes to the configuration.
  void OnDestroy() override;

 private:
  std::function<void(int)> m_fnKeys;
  cWndPosInfo& m_Stored;
};
