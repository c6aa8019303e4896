#pragma once
// A terrain: what a map cell is. It sets the cost of entering, may forbid it, changes
// the status values and element rates of whoever stands on it, and names the battle
// background. Row 0 of the terrain table is in use.

#include <cstdint>
#include <string>

#include "kernel/serial.h"
#include "kernel/vector_class.h"

constexpr const char* kLandPath = "data\\database\\Land.dat";

// m_nSpecial
inline constexpr const char* LANDSPECIAL[] = {"なし", "戦闘時間の修正(%)", ""};
enum : int { LANDSPECIAL_NONE = 0, LANDSPECIAL_BATTLE_TIME = 1 };

class cLand : public cSerial {
 public:
  static constexpr int kStatusCount = 9;  // in the order of STATUS9
  static constexpr int kDefaultElemRate = 100;

  cLand() { SetDefault(); }
  SERIAL_RECORD(cLand)

  int Serialize(int op, const cSerial* other, cSerialFile* file, std::uint32_t version) override;
  int Load(cSerialFile* file) override;
  int Save(cSerialFile* file) override;

  // Keeps the move cost at 1 or more, the background inside its table and one rate per
  // row of the element table; new rates are 100, surplus ones are cut.
  void FixRefs();
  void SetDefault();

  int m_nID = 0;
  int m_nMoveCost = 1;
  int m_bNoMove = 0;
  int m_nGraphic = 0;  // chip of "image\MapChip.*"
  int m_bPercent = 0;  // m_anStatus are percentages
  int m_anStatus[kStatusCount] = {};
  VECTOR_CLASS<std::int32_t> m_vecElemRate;  // one per element row, entry 0 for the reserved row
  int m_nSpecial = 0;
  int m_nSpecialValue = 0;
  int m_bTraining = 1;
  std::string m_strName;
  std::string m_strDesc;
  int m_nBack = 1;  // row of the background table
};
