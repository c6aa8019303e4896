#pragma once
// The texts of the values that battle and move AI records hold, as the forms and the
// list summaries show them. Each table is indexed by the value and ends in "".

// cBattleAI::m_nAction
extern const char* const kAIActionLabels[];
// cBattleAICond::m_nWho, m_nWhat, m_nOp; the comparisons are shared with the event
// conditions.
extern const char* const kAIWhoLabels[];
extern const char* const kAIWhatLabels[];
extern const char* const kAIOpLabels[];
// cMoveAI::m_nRange, m_nGoal, m_nAction, m_nStatus, m_nCondType
extern const char* const kMoveRangeLabels[];
extern const char* const kMoveGoalLabels[];
extern const char* const kMoveActionLabels[];
extern const char* const kMoveStatusLabels[];
extern const char* const kMoveCondTypeLabels[];

enum eAIAction : int { kAIAttack = 0, kAISkill = 1, kAIQuick = 2 };
enum eMoveAction : int { kMoveWait = 0, kMoveBattle = 1, kMoveHeal = 2 };
