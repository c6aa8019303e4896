#pragma once
// The skill's enumerations as the skill form shows them, each table ending in an
// empty entry.

extern const char* const kSkillResourceLabels[];
extern const char* const kSkillKindLabels[];
extern const char* const kSkillTargetLabels[];
extern const char* const kSkillWeaponLabels[];
