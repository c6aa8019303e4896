#pragma once
// DLG_WORLDMAP_SET, the world map's settings: its size, the party's start, the rearmost
// background and the image in front of it. The form works on a copy of the map; OK
// resizes the copy, loads the chosen image into the world map's background sheet, and
// the copy becomes the world map.

#include <string>

#include "stage/world_map.h"
#include "toolkit/live_instance.h"
#include "toolkit/record_form.h"

class DLG_WORLDMAP_SET : public cRecordForm<cWorldMap>, public cLiveInstance<DLG_WORLDMAP_SET> {
 public:
  enum : unsigned {
    kIdWidth = 1340,
    kIdWidthSpin,
    kIdHeight,
    kIdHeightSpin,
    kIdStartX,
    kIdStartXSpin,
    kIdStartY,
    kIdStartYSpin,
    kIdBack,
    kIdUseImage,
    kIdBackImage,
    kIdBrowse,
  };

  DLG_WORLDMAP_SET(const cWorldMap& source, QWidget* parent);

  int m_nWidth, m_nHeight;

 protected:
  void OnReady() override;
  bool OnOk() override;
  void OnFormCommand(unsigned id, unsigned code) override;

 private:
  VECTOR_CLASS<std::string> m_vecBackRows;
};

// The form on g_WorldMap, modal; 1 after OK, when the world map holds the new settings
// and size and has yet to be clamped.
int RunWorldMapSettings(QWidget* parent);
