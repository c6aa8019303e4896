#include "database/skill_labels.h"

const char* const kSkillResourceLabels[] = {"SPを消費", "回数を制限", ""};
const char* const kSkillKindLabels[] = {"物理攻撃", "魔法攻撃", "回復", "ダメージ軽減", "時間", "補助", "地形",
                                        "物理武器（使用不可）", "魔法武器（使用不可）", "防具（使用不可）", ""};
const char* const kSkillTargetLabels[] = {"自分", "相手", "時間", "地形", ""};
const char* const kSkillWeaponLabels[] = {"物理武器", "魔法武器", ""};
