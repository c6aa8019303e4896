#pragma once
// The one-line texts of AI records in their lists, in CP932. Names come from the skill
// lists as they are at the moment of the call.

#include <string>

class cBattleAI;
class cBattleAICond;
class cMoveAI;

// "攻撃 (優先1-10)", "スキル 剣-斬撃 (優先2-50)": for skills and quick actions the
// category's one-character name and the skill's name. Empty for an unknown action.
std::string SummaryBattleAI(const cBattleAI& ai);
// "自分 の HP が 50％ 以下".
std::string SummaryBattleAICond(const cBattleAICond& cond);
// "行動範囲内 で 最も近い敵 に 戦闘", healing with the skill's name in brackets, and a
// note when any condition is on. Empty for an unknown action.
std::string SummaryMoveAI(const cMoveAI& rule);
