#pragma once
// Events of the world map: a cell that holds a stage, a road or a wall, in pages that
// say when each applies and which stage file it opens.

#include <cstdint>
#include <string>

#include "kernel/serial.h"
#include "kernel/vector_class.h"

// m_nType
enum : int { WORLDEVENT_STAGE = 0, WORLDEVENT_ROAD = 1, WORLDEVENT_WALL = 2 };

class cWorldEventPage : public cSerial {
 public:
  cWorldEventPage() {
    Reset();
    m_nVarNo = 1;
  }
  SERIAL_RECORD(cWorldEventPage)

  int Serialize(int op, const cSerial* other, cSerialFile* file, std::uint32_t version) override;
  // Stage paths of files before 106 take the extension "stg2"; stage names of files
  // before 107 are empty.
  int Load(cSerialFile* file) override;

  int m_nType;        // WORLDEVENT_
  int m_nGraphic;     // row of the world event sheet
  int m_nStageNo;     // 0 = no number, always counted as cleared
  int m_bPassable;    // passable before the stage is cleared
  int m_bReplay;      // playable again after it is cleared
  int m_nGameClear;   // 0 nothing, 1 second round, 2 end of the game
  int m_nCondStage;   // appears once this stage number is cleared; 0 = always
  int m_nCondVar;     // common variable of the condition; 0 = none
  int m_nCondValue;
  int m_nCondCmp;     // comparison code of the event conditions
  int m_bVariation;   // sets a common variable before the stage starts
  int m_nVarNo;
  int m_nVarValue;
  std::string m_strStageName;
  std::string m_strStagePath;  // stored path of the stage file
};

class cWorldEvent : public cSerial {
 public:
  cWorldEvent() {
    Reset();
    m_vecPage.push_back(cWorldEventPage());
  }
  SERIAL_RECORD(cWorldEvent)

  int Serialize(int op, const cSerial* other, cSerialFile* file, std::uint32_t version) override;

  int m_nX;
  int m_nY;
  std::string m_strName;
  VECTOR_CLASS<cWorldEventPage> m_vecPage;
};
