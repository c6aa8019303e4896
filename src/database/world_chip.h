#pragma once
// A world chip: the terrain of the world map, with its picture, name and the flag that
// forbids entering it. Row 0 of the chip table is in use.

#include <cstdint>
#include <string>

#include "kernel/serial.h"

class cWorldChip : public cSerial {
 public:
  cWorldChip() { Reset(); }
  SERIAL_RECORD(cWorldChip)

  int Serialize(int op, const cSerial* other, cSerialFile* file, std::uint32_t version) override;

  int m_nID = 0;
  int m_bNoMove = 0;
  int m_nGraphic = 0;  // chip of "image\WorldMapChip.*", 8 to a row
  std::string m_strName;
  std::string m_strReserved;  // carried along, edited by no form
};
