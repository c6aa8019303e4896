#pragma once
// One key of "System.ini" as the game-wide settings keep it: the key, and the value
// that stands when the file does not give one.

#include <string>

#include "kernel/serial.h"
#include "kernel/vector_class.h"

class cIni : public cSerial {
 public:
  cIni() { Reset(); }
  SERIAL_RECORD(cIni)

  int Serialize(int op, const cSerial* other, cSerialFile* file, std::uint32_t version) override;

  int m_nValue;
  std::string m_strKey;
  int m_nDefault;
  std::string m_strText;
};

// The seven rows of a new project, in row order.
VECTOR_CLASS<cIni> DefaultIniRows();
