#pragma once
// The event palette's list and its commands, apart from its window. The list stands on
// g_vecEventPlt itself: the templates are the palette, and the file is written by the
// stage's save commands while m_bEventPltModified says it may differ. The selected
// template is what the pen puts on the map.

#include <functional>

#include "event/event.h"
#include "toolkit/list_ctrl.h"

class cEventPalette {
 public:
  enum : unsigned {
    kIdList = 1241,
    kIdEditIfPlaced = 1242,
    kIdEditBeforePut = 1243,
    kIdInsert = 1244,
    kIdEdit = 1245,
    kIdDelete = 1246,
  };

  cEventPalette();
  // The list's binding: the templates, 1 to 999, numbered, a blank row at the end.
  cListInit<cEvent> Init();

  // A command of the palette: its buttons, the data count button, the list's selection
  // change and double click, its insert key and item, and the list's other key and menu
  // commands, which it runs with their effect on the map's clipboard. False for any
  // other id.
  bool Command(unsigned id, unsigned code);
  // The selection is what the pen puts on the map: the edit state takes it.
  void SyncPaletteSelection();

  CTRL_LIST_CLASS<cEvent> m_List;
  // What the commands ask of the windows: the event form on a template (true on OK),
  // the new number of templates (true on OK).
  std::function<bool(cEvent& event)> m_fnEditEvent;
  std::function<bool(int& count)> m_fnAskCount;

 private:
  void Insert();
  void Edit();
  bool RunForm(int row);
  void Delete();
  void DataCount();
  bool RealRowSelected() const { return m_List.IsReal(m_List.GetSel()); }
};
