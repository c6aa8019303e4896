#pragma once
// The measured scale of property-sheet pages for one machine and system font, kept in
// "e_data\SheetSize.dat" so that the measurement runs only when they change.

#include <string>

#include "kernel/serial.h"

class cPropSheetSize : public cSerial {
 public:
  cPropSheetSize() { Reset(); }
  SERIAL_RECORD(cPropSheetSize)

  int Serialize(int op, const cSerial* other, cSerialFile* file, std::uint32_t version) override;

  int m_nOsMajor = 0;
  int m_nOsMinor = 0;
  std::string m_strFontFace;
  int m_nFontWidth = 0;
  int m_nFontHeight = 0;
  double m_dRateX = 0;
  double m_dRateY = 0;
};

constexpr const char* kSheetSizePath = "e_data\\SheetSize.dat";
