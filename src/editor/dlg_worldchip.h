#pragma once
// DLG_WORLDCHIP, the world map's chip palette: the chip palette over the world map's own
// chips, without the drawing tools and the wheel, placed beside the world map window.

#include "editor/dlg_chip.h"

class DLG_WORLDCHIP : public DLG_CHIP {
 public:
  // `keys` receives Space, which belongs to the world map window.
  DLG_WORLDCHIP(QWidget* owner, std::function<void(int key)> keys);
};
