#pragma once
// A stage: one battle map of the game with its terrain cells, enemies, events,
// position groups, descriptions and settings. The stage being edited is g_Stage; a
// stage file (".stg2") holds the record and nothing else.

#include <bit>
#include <cstdint>
#include <string>

#include "event/event.h"
#include "kernel/serial.h"
#include "kernel/vector_class.h"
#include "stage/map_cells.h"
#include "stage/stage_records.h"

class cStage : public cSerial, public cMapCells<cStage, cEvent> {
 public:
  static constexpr int kMaxWidth = 64;
  static constexpr int kMaxHeight = 64;
  // The stride is the next power of two above the width, always greater than it.
  static int ShiftFor(int width) { return static_cast<int>(std::bit_width(static_cast<unsigned>(width))); }
  static bool ShiftFits(int width, int shift) { return shift == ShiftFor(width); }

  cStage() { Init(); }
  SERIAL_RECORD(cStage)

  // The built-in stage: 20 by 15 cells of terrain 0, two position groups, no enemies
  // or events, and the default settings.
  void Init();

  int Serialize(int op, const cSerial* other, cSerialFile* file, std::uint32_t version) override;
  // Refuses a file whose sizes cannot address its cells; then clamps.
  int Load(cSerialFile* file) override;
  int Save(cSerialFile* file) override;

  // Repairs every reference against the tables of the project and the map's size:
  // groups, party variable, cells, enemies, events, group positions, description
  // lines, background and music, in that order.
  void Clamp();

  int m_nWidth;
  int m_nHeight;
  int m_nStride;
  int m_nShift;
  VECTOR_CLASS<int> m_vecMap;  // terrain rows
  VECTOR_CLASS<cPutEnemy> m_vecPutEnemy;
  VECTOR_CLASS<cEvent> m_vecEvent;
  VECTOR_CLASS<cEvent> m_vecOldEvent;  // read from files before 108, never used or written
  int m_nStartGroup;                   // group where the allies start; 0 = none
  VECTOR_CLASS<cGroupPos> m_vecGroupPos;
  VECTOR_CLASS<cEndCond> m_vecWinCond;
  VECTOR_CLASS<cEndCond> m_vecLoseCond;
  VECTOR_CLASS<cEndCond> m_vecRuleCond;
  int m_nRewardVal;  // party variable the clear reward goes to
  int m_nReward;
  int m_nRewardTurnCut;
  int m_bRewardTurnPercent;
  int m_nRewardRepeatRate;
  int m_nExpRate;
  int m_nExpClearedRate;
  int m_nGoldRate;
  int m_nGoldClearedRate;
  std::string m_strName;
  int m_nBack;  // battle background
  int m_nBgm;   // 0 = none
  int m_bAllGroups;
  int m_bShowClear;
  int m_bShowGameOver;
};
