#pragma once
// DLG_ENEMY, the enemy palette: a floating window beside the main window while palette
// 1 is current, with the list of the stage's enemies in byte-aligned rows and the
// buttons "挿入", "編集", "削除" and "ﾃﾞｰﾀ数". The list's commands are cEnemyList's.

#include <functional>

#include "editor/enemy_list.h"
#include "editor/palette_form.h"
#include "toolkit/live_instance.h"

class DLG_ENEMY : public cPaletteForm, public cLiveInstance<DLG_ENEMY> {
 public:
  // `owner` is the main window, which the palette opens beside; `keys` receives Space
  // and F5 (Qt key codes), which belong to it; `mapChanged` draws the map again.
  DLG_ENEMY(QWidget* owner, std::function<void(int key)> keys, std::function<void()> mapChanged);
  ~DLG_ENEMY() override;

  // The rows again, after the map, an undo or a clear changed the entries.
  void Refresh();
  // The map's pick selected `row` alone (-1 for none).
  void ShowRow(int row);
  // The map's right double click: the row is selected and the enemy form opens on it.
  void EditRow(int row);

  cEnemyList m_Enemies;

 protected:
  void OnReady() override;
  void OnFormCommand(unsigned id, unsigned code) override;
};
