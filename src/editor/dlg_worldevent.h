#pragma once
// DLG_WORLDEVENT, the world map's event palette: the three checks of how the pen places
// events, and the list of the palette's templates, edited in place in the world map. A
// copy or cut in the list also fills the map's event clipboard, so that what was copied
// here can be pasted on the map.

#include <functional>

#include "editor/palette_window.h"
#include "stage/world_event.h"
#include "toolkit/list_ctrl.h"
#include "toolkit/live_instance.h"

class DLG_WORLDEVENT : public cPaletteWindow, public cLiveInstance<DLG_WORLDEVENT> {
 public:
  enum : unsigned {
    kIdEditIfPlaced = 1360,
    kIdEditBeforePut,
    kIdAutoStageNo,
    kIdList,
    kIdInsert,
    kIdEdit,
    kIdDelete,
  };
  static constexpr int kMaxTemplates = 99;

  // `owner` is the world map window, which the palette opens beside; `keys` receives
  // Space (a Qt key code), which belongs to it.
  DLG_WORLDEVENT(QWidget* owner, std::function<void(int key)> keys);
  ~DLG_WORLDEVENT() override;

  // A copy or cut on the map: the event goes to the list's clipboard too.
  void TakeIntoClipboard(const cWorldEvent& event);

  CTRL_LIST_CLASS<cWorldEvent> m_List;

 protected:
  void OnReady() override;
  void OnFormCommand(unsigned id, unsigned code) override;
  // The place goes to the configuration, which is saved.
  void OnDestroy() override;

 private:
  void Insert();
  void Edit();
  void Copy(bool cut);
  void DataCount();
};
