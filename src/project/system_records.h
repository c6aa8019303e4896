#pragma once
// The small row records of the game-wide settings: a menu command, a line of text (a
// term or a sound's file name), a status value, and the unused background range. Skill
// lists use the same menu command record for their own menus.

#include <cstdint>
#include <string>

#include "kernel/serial.h"

// One command of a game menu: its words and whether the game offers it.
class cCmd : public cSerial {
 public:
  cCmd() {
    Reset();
    m_bEnabled = 1;
  }
  SERIAL_RECORD(cCmd)
  int Serialize(int op, const cSerial* other, cSerialFile* file, std::uint32_t version) override;

  std::string m_strName;
  int m_bEnabled;
};

// A list row that is a text and nothing else.
class cTextRow : public cSerial {
 public:
  cTextRow() { Reset(); }
  explicit cTextRow(const std::string& text) : m_strText(text) {}
  SERIAL_RECORD(cTextRow)
  int Serialize(int op, const cSerial* other, cSerialFile* file, std::uint32_t version) override;

  std::string m_strText;
};

// One status value of the game: its name, whether it is shown, and its ceiling.
class cParamInfo : public cSerial {
 public:
  cParamInfo() {
    Reset();
    m_bShow = 1;
    m_nDigits = 3;
    m_nMax = 999;
  }
  SERIAL_RECORD(cParamInfo)
  int Serialize(int op, const cSerial* other, cSerialFile* file, std::uint32_t version) override;

  // The number of decimal digits of m_nMax, which the game reserves on screen.
  void DeriveDigits();

  std::string m_strName;
  int m_bShow;
  int m_nDigits;  // derived from m_nMax
  int m_nMax;
};

// A row of a background list the settings once carried; stored and restored only.
class cEdBack_Unused : public cSerial {
 public:
  cEdBack_Unused() {
    Reset();
    m_nValue = 1;
    m_dMin = -0.1;
    m_dMax = 0.1;
  }
  SERIAL_RECORD(cEdBack_Unused)
  int Serialize(int op, const cSerial* other, cSerialFile* file, std::uint32_t version) override;

  int m_nValue;
  double m_dMin;
  double m_dMax;
};

// The number of decimal digits of `value`, counted by at most ten divisions by ten.
int DecimalDigits(int value);
