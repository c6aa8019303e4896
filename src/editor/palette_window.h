#pragma once
// A palette of the stage editor: a tool window beside the main window while its palette
// is current. It opens where the author left it, else beside the main window's right
// edge, 10 pixels down, and keeps its place in the configuration as it goes. Space and
// F5 belong to the main window; Escape and the close box leave it standing.

#include <functional>

#include "project/edit_config.h"
#include "toolkit/dlg_class.h"

class cPaletteWindow : public DLG_CLASS {
 public:
  // `keys` receives Space and F5 (Qt key codes); `place` is the palette's entry in the
  // configuration.
  cPaletteWindow(QWidget* owner, const char* title, cWndPosInfo& place, std::function<void(int key)> keys);

 protected:
  void OnInitDialog() override;
  void OnKeyDown(int key, bool bCtrl) override;
  void OnClose() override {}
  void OnDestroy() override;

  cWndPosInfo& m_Place;

 private:
  std::function<void(int)> m_fnKeys;
};
