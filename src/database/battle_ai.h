#pragma once
// Battle AI of an enemy: the actions it may take in a fight, each with the conditions
// under which it becomes a candidate and the weights that choose among candidates.

#include <cstdint>

#include "kernel/serial.h"
#include "kernel/vector_class.h"

// One condition: "who's what compares with value".
class cBattleAICond : public cSerial {
 public:
  cBattleAICond() { Reset(); }
  SERIAL_RECORD(cBattleAICond)
  int Serialize(int op, const cSerial* other, cSerialFile* file, std::uint32_t version) override;

  int m_nWho;    // kAIWhoLabels
  int m_nWhat;   // kAIWhatLabels
  int m_nValue;  // 0..999999
  int m_nOp;     // kAIOpLabels
  int m_bPercent;
};

// One possible action. Its owner, the enemy, runs FixRefs.
class cBattleAI : public cSerial {
 public:
  cBattleAI() { SetDefault(); }
  SERIAL_RECORD(cBattleAI)

  void SetDefault();
  // For skill and quick actions: a list beyond the skill lists becomes 0, then a skill
  // beyond that list's skills becomes 0. A plain attack keeps whatever it holds.
  void FixRefs();

  int Serialize(int op, const cSerial* other, cSerialFile* file, std::uint32_t version) override;

  int m_nAction;  // eAIAction
  int m_nList;
  int m_nReserved;
  int m_nSkill;
  int m_nPriorityLv;   // 1..9
  int m_nPriorityVal;  // 0..100
  int m_bNoEvaluate;
  VECTOR_CLASS<cBattleAICond> m_vecCond;  // all must hold
};
