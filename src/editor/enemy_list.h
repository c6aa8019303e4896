#pragma once
// The enemy palette's list and its commands, apart from its window. The list stands on
// g_Stage.m_vecPutEnemy itself, without a working copy: every command that changes the
// stage makes its undo step first and marks the stage modified, a paste brings its
// entries in off the map, and the selection becomes what the pen puts on the map.

#include <functional>

#include "stage/stage_records.h"
#include "toolkit/list_ctrl.h"

class cEnemyList {
 public:
  enum : unsigned { kIdList = 1010, kIdInsert = 1011, kIdEdit = 1012, kIdDelete = 1013 };

  cEnemyList();
  // The list's binding: over the stage's enemies, at most 999, a blank row at the end.
  cListInit<cPutEnemy> Init();

  // A command of the palette: its buttons, the data count button, the list's selection
  // change and double click, and the list's insert, cut, paste and delete keys and
  // items, which the palette runs itself. False for any other id (copy is the list's).
  bool Command(unsigned id, unsigned code);
  // The list selects `row` alone, as the map's pick asks; the brush stays the pick's.
  void Show(int row);

  CTRL_LIST_CLASS<cPutEnemy> m_List;
  // What the commands ask of the windows: the enemy form on g_EditState.m_pEditEnemy
  // (true on OK, when the form has made its undo step), the new number of entries (true
  // on OK), and the map drawn again.
  std::function<bool()> m_fnEditEntry;
  std::function<bool(int& count)> m_fnAskCount;
  std::function<void()> m_fnMapChanged;

 private:
  void Insert();
  void Edit();
  void Delete();
  void Cut();
  void Paste();
  void DataCount();
  // After a change of the stage: the map, the brush, the modified flag.
  void Changed();
  bool RealRowSelected() const { return m_List.IsReal(m_List.GetSel()); }
};
