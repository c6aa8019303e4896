#include "database/ai_labels.h"

const char* const kAIActionLabels[] = {"攻撃", "スキル", "クイック", ""};

const char* const kAIWhoLabels[] = {"自分", "相手", ""};

const char* const kAIWhatLabels[] = {"HP",   "SP",   "攻撃",   "守備",   "魔力",         "抵抗", "技能",
                                     "反応", "敏捷", "クラス", "レベル", "ターン", "残りターン数", "時間",
                                     "地形", ""};

const char* const kAIOpLabels[] = {"である", "でない", "以上",         "以下",
                                   "より上", "より下", "の倍数である", "の倍数でない", ""};

const char* const kMoveRangeLabels[] = {"マップ全範囲内", "行動範囲内", "自分＋隣4マス内", ""};

// "味方" are the rows of the ally table and "敵" those of the enemy table, whoever acts.
const char* const kMoveGoalLabels[] = {"最も近い味方",
                                       "最も効果的な味方（物理攻撃計算）",
                                       "最も効果的な味方（魔法攻撃計算）",
                                       "最も効果的な味方（物理と魔法）",
                                       "最もHPが低い味方",
                                       "リーダーの味方",
                                       "味方の誰か（ランダム）",
                                       "最も近い敵",
                                       "最も弱っている敵",
                                       "自分自身",
                                       "最も近い目的地",
                                       ""};

const char* const kMoveActionLabels[] = {"待機", "戦闘", "回復", ""};

const char* const kMoveStatusLabels[] = {"HP", "SP", ""};

const char* const kMoveCondTypeLabels[] = {"全ての条件が真なら成立", "1つ以上の条件が真なら成立", ""};
