#pragma once
// The settings of a test play, kept in "e_data\Testplay.dat". Apart from how the game
// program is found, they are for the game program only.

#include <string>

#include "kernel/serial.h"

class cTestPlay : public cSerial {
 public:
  cTestPlay() { Init(); }
  SERIAL_RECORD(cTestPlay)

  void Init();
  int Serialize(int op, const cSerial* other, cSerialFile* file, std::uint32_t version) override;

  int m_bAutoFind;
  std::string m_strGamePath;
  int m_bNoRandomGrowth;
  int m_bNoRandomSense;
  int m_nRandomSkill;
  int m_nSkillLevel;
  int m_nTraining;
};

constexpr const char* kTestPlayPath = "e_data\\Testplay.dat";
