#pragma once
// The world map: the project's one overview map of world chips, with the events placed
// on it and the templates of its event palette. Held in "data\database\WorldMap.dat".

#include <bit>
#include <cstdint>
#include <string>

#include "database/world_chip.h"
#include "kernel/serial.h"
#include "kernel/vector_class.h"
#include "stage/map_cells.h"
#include "stage/world_event.h"

constexpr const char* kWorldMapPath = "data\\database\\WorldMap.dat";

class cWorldMap : public cSerial, public cMapCells<cWorldMap, cWorldEvent> {
 public:
  static constexpr int kMaxWidth = 200;
  static constexpr int kMaxHeight = 150;
  static constexpr int kMaxStageNo = 999;
  // The stride is the smallest power of two that holds the width, so it can equal it.
  static int ShiftFor(int width) { return static_cast<int>(std::bit_width(static_cast<unsigned>(width - 1))); }
  // A file may hold any power of two that holds the width.
  static bool ShiftFits(int width, int shift) { return (1 << shift) >= width; }

  cWorldMap() { Init(); }
  SERIAL_RECORD(cWorldMap)

  // A 20 by 15 map named "ワールド", start at (9, 7), no chips, no events and one
  // palette template named "デフォルト".
  void Init();

  int Serialize(int op, const cSerial* other, cSerialFile* file, std::uint32_t version) override;
  // Refuses a file whose sizes cannot address its cells; files before 98 get the ten
  // default chips; then clamps.
  int Load(cSerialFile* file) override;
  int Save(cSerialFile* file) override;

  // Start position, cells, events and background, in that order.
  void Clamp();

  // The lowest stage number from 1 to 999 that no stage page of the placed events uses,
  // the event `exclude` not counted; 0 when all are taken.
  int NextStageNumber(const cWorldEvent* exclude) const;
  // Every stage page of `event` gets NextStageNumber(exclude).
  void AssignStageNumbers(cWorldEvent& event, const cWorldEvent* exclude) const;

  int m_nWidth;
  int m_nHeight;
  int m_nStride;
  int m_nShift;
  VECTOR_CLASS<cWorldChip> m_vecChip;
  VECTOR_CLASS<int> m_vecMap;  // chip rows
  VECTOR_CLASS<cWorldEvent> m_vecEvent;
  VECTOR_CLASS<cWorldEvent> m_vecEventPlt;  // palette templates
  int m_nStartX;
  int m_nStartY;
  int m_nBack;  // rearmost background
  int m_bUseImage;
  std::string m_strName;
  std::string m_strBackImage;  // stored path of the image in front of the background
};
