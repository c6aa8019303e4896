#pragma once
// What a skill's kind allows: which fields of the skill form are enabled, and which
// flags the kind clears. The skill page only applies the result.

#include <array>

#include "database/skill.h"

enum eSkillControl : int {
  kCtlResourceType,
  kCtlCostSP,
  kCtlUseLimit,
  kCtlUnlimited,
  kCtlWeaponType,
  kCtlUseBattleSkill,
  kCtlUseBattleStock,
  kCtlUseBattleQuick,
  kCtlUseMapSkill,
  kCtlUseMapStock,
  kCtlEffectValue,
  kCtlNoStatusEffect,
  kCtlDamageRate,
  kCtlCompatiType,
  kCtlCompatiOfWeapon,
  kCtlElem,
  kCtlElemOfWeapon,
  kCtlElemValue,
  kCtlHitRate,
  kCtlHitOfWeapon,
  kCtlCriticalRate,
  kCtlCriticalAddWeapon,
  kCtlSubEffectA,
  kCtlSubEffectB,
  kCtlSubEffectAPercent,
  kCtlSubEffectBPercent,
  kCtlVanishFromStock,
  kCtlEffectOfWeapon,
  kCtlEffectGroup,  // effect, its list button, animations, colours, scale, sound
  kCtlSortNumber,
  kCtlTarget,       // derived from the kind, never chosen by hand
  kSkillControlCount,
};

using SKILL_CONTROL_STATES = std::array<bool, kSkillControlCount>;

// The target a kind gives: 1 (the opponent) for attacks, 2 for time, 3 for terrain,
// 0 (oneself) for the rest; -1 for a kind outside the table.
int TargetOfKind(int kind);

// Sets the target from the kind, clears the flags the kind does not allow, and tells
// which controls are enabled. A kind outside the table (a damaged file) changes nothing
// and enables nothing but the sort number, which follows its own flag.
SKILL_CONTROL_STATES ApplySkillKindRules(cSkill& skill);
