#pragma once
// An event of a stage (also the start event and the templates of the event palette):
// a stack of pages, each saying when it appears, when it fires and what it does.

#include <cstdint>
#include <string>

#include "event/event_act.h"
#include "kernel/serial.h"
#include "kernel/vector_class.h"

class cEventPage : public cSerial {
 public:
  cEventPage();
  SERIAL_RECORD(cEventPage)

  int Serialize(int op, const cSerial* other, cSerialFile* file, std::uint32_t version) override;
  int Load(cSerialFile* file) override;
  int Save(cSerialFile* file) override;

  int m_nGraphic;  // cell of the event sheet; 0 = none
  int m_bTurnCondA;
  int m_nTurnABase;  // turn condition A: base + a multiple of the step
  int m_nTurnAStep;
  int m_bTurnCondB;
  int m_nTurnBMin;
  int m_nTurnBMax;
  int m_bEventVarCond;
  int m_nEventVarValue;
  int m_nEventVarCmp;  // EVENTCMP
  int m_nCommonVar;    // 0 = no common variable condition
  int m_nCommonVarValue;
  int m_nCommonVarCmp;  // EVENTCMP
  int m_bFirstTryOnly;
  int m_nTargetRange;  // EVENTTARGETRANGE
  int m_nTargetChara;  // EVENTTARGETCHARA
  int m_nTargetExist;  // EVENTTARGETEXIST
  int m_nFriendCond;   // allied character; 0 = no condition
  int m_nPosGroup;     // position group of the stage
  int m_bEnemyGroupCond;
  int m_nEnemyGroup;
  int m_bEnemyIdCond;
  int m_nEnemyId;
  int m_nTiming;  // EVENTTIMING
  std::string m_strCommand;  // special command name of the command timings
  int m_bChainPrev;
  VECTOR_CLASS<cEventAct> m_vecAct;
};

// The references of a page that point beyond their tables become 0: the position
// group against the current stage, the allied condition against the allies.
void NormalizeEventPage(cEventPage& page);

class cEvent : public cSerial {
 public:
  cEvent() { Clear(); }
  SERIAL_RECORD(cEvent)

  // An empty event: zeros and one default page.
  void Clear();

  int Serialize(int op, const cSerial* other, cSerialFile* file, std::uint32_t version) override;

  int m_nX;
  int m_nY;
  int m_bHeldByChara;  // a character holds the event: the "holder" of the page conditions
  int m_nReserved1;
  int m_nReserved2;
  int m_nReserved3;
  std::string m_strName;
  VECTOR_CLASS<cEventPage> m_vecPage;
};
