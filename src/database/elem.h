#pragma once
// An element: a one-character name that skills, classes and terrains refer to by row.
// Row 0 of the element table is reserved and means "no element".

#include <cstdint>
#include <string>

#include "kernel/serial.h"

class cElem : public cSerial {
 public:
  cElem() { Reset(); }
  SERIAL_RECORD(cElem)

  int Serialize(int op, const cSerial* other, cSerialFile* file, std::uint32_t version) override;

  int m_nReserved = 0;  // carried along, edited by no form
  std::string m_strName;
};
