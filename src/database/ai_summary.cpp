#include "database/ai_summary.h"

#include "database/ai_labels.h"
#include "database/battle_ai.h"
#include "database/label_table.h"
#include "database/move_ai.h"
#include "database/skill_acquisition.h"
#include "platform/cp932.h"
#include "project/project_globals.h"

namespace {

std::string SkillName(int list, int skill) {
  const cSkill* found = FindSkill(list, skill);
  return found != nullptr ? found->m_strName : std::string();
}

// The one-character name of the skill's category.
std::string CategName(int list, int skill) {
  const cSkill* found = FindSkill(list, skill);
  if (found == nullptr) return {};
  const VECTOR_CLASS<cCateg>& categs = g_vecSkillList[static_cast<std::size_t>(list)].m_vecCateg;
  int categ = found->m_nCateg;
  return categ >= 0 && categ < categs.Count() ? categs[static_cast<std::size_t>(categ)].m_strName : std::string();
}

}  // namespace

std::string SummaryBattleAI(const cBattleAI& ai) {
  std::string priority = CP932_TEXT(" (優先") + std::to_string(ai.m_nPriorityLv) + "-" +
                         std::to_string(ai.m_nPriorityVal) + ")";
  if (ai.m_nAction == kAIAttack) return CP932_TEXT("攻撃") + priority;
  if (ai.m_nAction != kAISkill && ai.m_nAction != kAIQuick) return {};
  return LabelText(kAIActionLabels, ai.m_nAction) + " " + CategName(ai.m_nList, ai.m_nSkill) + "-" +
         SkillName(ai.m_nList, ai.m_nSkill) + priority;
}

std::string SummaryBattleAICond(const cBattleAICond& cond) {
  return LabelText(kAIWhoLabels, cond.m_nWho) + CP932_TEXT(" の ") + LabelText(kAIWhatLabels, cond.m_nWhat) +
         CP932_TEXT(" が ") + std::to_string(cond.m_nValue) + (cond.m_bPercent ? CP932_TEXT("％ ") : std::string(" ")) +
         LabelText(kAIOpLabels, cond.m_nOp);
}

std::string SummaryMoveAI(const cMoveAI& rule) {
  if (rule.m_nAction < kMoveWait || rule.m_nAction > kMoveHeal) return {};
  std::string text = LabelText(kMoveRangeLabels, rule.m_nRange) + CP932_TEXT(" で ") +
                     LabelText(kMoveGoalLabels, rule.m_nGoal) + CP932_TEXT(" に ") +
                     LabelText(kMoveActionLabels, rule.m_nAction);
  if (rule.m_nAction == kMoveHeal) text += "(" + SkillName(rule.m_nList, rule.m_nSkill) + ")";
  if (rule.HasCond()) text += CP932_TEXT("   ※条件あり");
  return text;
}
