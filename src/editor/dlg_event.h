#pragma once
// DLG_EVENT, the event palette: a tool window beside the main window while palette 2
// is current, with the template list, the two checks that say when the pen opens the
// event form, and the buttons "挿入", "編集", "削除" and "ﾃﾞｰﾀ数". The list's commands
// are cEventPalette's.

#include <functional>

#include "editor/event_palette.h"
#include "editor/palette_window.h"
#include "toolkit/live_instance.h"

class DLG_EVENT : public cPaletteWindow, public cLiveInstance<DLG_EVENT> {
 public:
  // `owner` is the main window, which the palette opens beside; `keys` receives Space
  // and F5 (Qt key codes), which belong to it; `mapChanged` draws the map again.
  DLG_EVENT(QWidget* owner, std::function<void(int key)> keys, std::function<void()> mapChanged);
  ~DLG_EVENT() override;

  cEventPalette m_Palette;

 protected:
  void OnReady() override;
  void OnFormCommand(unsigned id, unsigned code) override;

 private:
  std::function<void()> m_fnMapChanged;
};
