#pragma once
// Help topics of the game, each with pages of text. Unlike the other media tables the
// help table uses its row 0.

#include <cstdint>
#include <string>

#include "kernel/serial.h"
#include "kernel/vector_class.h"

constexpr const char* kHelpPath = "data\\database\\Help.dat";

// One page of a topic; "#P" and a number show a symbol.
class cEdHelpText final : public cSerial {
 public:
  cEdHelpText() { Reset(); }
  SERIAL_RECORD(cEdHelpText)

  int Serialize(int op, const cSerial* other, cSerialFile* file, std::uint32_t version) override;

  std::string m_strText;
};

class cEdHelp final : public cSerial {
 public:
  cEdHelp() {
    Reset();
    m_vecText.resize(1);
  }
  SERIAL_RECORD(cEdHelp)

  int Serialize(int op, const cSerial* other, cSerialFile* file, std::uint32_t version) override;

  std::string m_strParent;  // heading of the group
  std::string m_strTitle;   // heading of the topic, the row text of the list
  VECTOR_CLASS<cEdHelpText> m_vecText;
};
