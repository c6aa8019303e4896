#pragma once
// Move AI: what a character does on the map, as rules in priority order. Rules live
// on placed enemies, in enemy rows and in the project's saved rule sets (templates).

#include <cstdint>
#include <string>

#include "kernel/serial.h"
#include "kernel/vector_class.h"

// The one goal that heads for a position group, m_nGroup.
enum eMoveGoal : int { kGoalNearestDestination = 10 };

// One rule: "in range, towards goal, do action", optionally under conditions.
class cMoveAI : public cSerial {
 public:
  cMoveAI() {
    Reset();
    m_nReserved = 1;
  }
  SERIAL_RECORD(cMoveAI)

  // Any of the four conditions is on; the master switch m_bCond is not asked.
  bool HasCond() const;
  // A list beyond the skill lists becomes 0, a skill beyond that list's skills 0, a
  // destination outside the current stage's position groups 0.
  void FixRefs();

  int Serialize(int op, const cSerial* other, cSerialFile* file, std::uint32_t version) override;
  int Load(cSerialFile* file) override;
  int Save(cSerialFile* file) override;

  int m_nRange;   // kMoveRangeLabels
  int m_nGoal;    // kMoveGoalLabels
  int m_nAction;  // eMoveAction
  int m_nList;
  int m_nSkill;
  int m_nGroup;   // position group of the stage, the destination of kGoalNearestDestination
  int m_bCond;
  int m_bFriendInRange;
  int m_bLatch;
  int m_bStatusCond;
  int m_nStatus;  // kMoveStatusLabels
  int m_nStatusValue;
  int m_bStatusPercent;
  int m_nStatusOp;  // kAIOpLabels
  int m_bValCond;
  int m_nVal;       // common variable
  int m_nValValue;
  int m_nValOp;     // kAIOpLabels
  int m_bMovedCond;
  int m_nCondType;  // kMoveCondTypeLabels
  int m_nReserved;
  // The game's memory that a latched rule has held once: copied with the rule, never
  // stored or compared.
  int m_bLatched;
};

// A named, saved set of rules.
class cMoveAITemplate : public cSerial {
 public:
  cMoveAITemplate() { Reset(); }
  SERIAL_RECORD(cMoveAITemplate)
  int Serialize(int op, const cSerial* other, cSerialFile* file, std::uint32_t version) override;

  std::string m_strName;
  std::string m_strDesc;
  VECTOR_CLASS<cMoveAI> m_vecMoveAI;
};
