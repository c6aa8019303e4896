#include "database/skill_kind_rules.h"

namespace {

// One row of the rules: the controls it governs, the flag it may clear, and its cell
// for each kind 0 to 9. Cells: '1' on, '0' off, 'C' off and the flag cleared, 'W' own
// or weapon (on unless the take-from-weapon flag is set), 'R' by the resource type.
struct cKindRow {
  std::array<eSkillControl, 4> controls;
  int count;
  int cSkill::*flag;          // cleared by 'C'; null where a row has no flag of its own
  int cSkill::*weaponFlag;    // for 'W'
  const char* cells;          // kinds 0..9
};

constexpr int cSkill::*kNone = nullptr;

const cKindRow kRows[] = {
    {{kCtlResourceType, kCtlCostSP, kCtlUseLimit, kCtlUnlimited}, 4, kNone, kNone, "RRRRRRR000"},
    {{kCtlWeaponType}, 1, kNone, kNone, "1111111000"},
    {{kCtlUseBattleSkill}, 1, &cSkill::m_bUseBattleSkill, kNone, "1111111CCC"},
    {{kCtlUseBattleStock}, 1, &cSkill::m_bUseBattleStock, kNone, "1111111CCC"},
    {{kCtlUseBattleQuick}, 1, &cSkill::m_bUseBattleQuick, kNone, "1111C11CCC"},
    {{kCtlUseMapSkill}, 1, &cSkill::m_bUseMapSkill, kNone, "CC1CCCCCCC"},
    {{kCtlUseMapStock}, 1, &cSkill::m_bUseMapStock, kNone, "CC1CCCCCCC"},
    {{kCtlEffectValue}, 1, kNone, kNone, "1111101110"},
    {{kCtlNoStatusEffect, kCtlDamageRate}, 2, kNone, kNone, "1111000000"},
    {{kCtlCompatiType}, 1, kNone, &cSkill::m_bCompatiOfWeapon, "WW00000110"},
    {{kCtlCompatiOfWeapon}, 1, &cSkill::m_bCompatiOfWeapon, kNone, "11CCC0CCCC"},
    {{kCtlElem}, 1, kNone, &cSkill::m_bElemOfWeapon, "WWWW0W0111"},
    {{kCtlElemOfWeapon}, 1, &cSkill::m_bElemOfWeapon, kNone, "1111C1CCCC"},
    {{kCtlElemValue}, 1, kNone, kNone, "0000000001"},
    {{kCtlHitRate}, 1, kNone, &cSkill::m_bHitOfWeapon, "WWWW1W1110"},
    {{kCtlHitOfWeapon}, 1, &cSkill::m_bHitOfWeapon, kNone, "1111C1CCCC"},
    {{kCtlCriticalRate}, 1, kNone, kNone, "1111010110"},
    {{kCtlCriticalAddWeapon}, 1, &cSkill::m_bCriticalAddWeapon, kNone, "1111C1CCCC"},
    {{kCtlSubEffectA}, 1, kNone, kNone, "1111010111"},
    {{kCtlSubEffectB}, 1, kNone, kNone, "1111111000"},
    {{kCtlSubEffectAPercent}, 1, &cSkill::m_bSubEffectAPercent, kNone, "CCCCCCC111"},
    {{kCtlSubEffectBPercent}, 1, kNone, kNone, "1111111000"},
    {{kCtlVanishFromStock}, 1, kNone, kNone, "1111111000"},
    {{kCtlEffectOfWeapon}, 1, &cSkill::m_bEffectOfWeapon, kNone, "1111111CCC"},
    {{kCtlEffectGroup}, 1, kNone, &cSkill::m_bEffectOfWeapon, "WWWWWWW110"},
};

constexpr int kTargetOfKind[kSkillKindCount] = {1, 1, 0, 0, 2, 0, 3, 0, 0, 0};

}  // namespace

int TargetOfKind(int kind) { return (kind >= 0 && kind < kSkillKindCount) ? kTargetOfKind[kind] : -1; }

SKILL_CONTROL_STATES ApplySkillKindRules(cSkill& skill) {
  SKILL_CONTROL_STATES enabled{};
  const int kind = skill.m_nKind;
  if (kind >= 0 && kind < kSkillKindCount) {
    skill.m_nTarget = kTargetOfKind[kind];
    // Clear first: whether a field is its own or the weapon's reads the flags after it.
    for (const cKindRow& row : kRows) {
      if (row.cells[kind] == 'C' && row.flag != nullptr) skill.*row.flag = 0;
    }
    for (const cKindRow& row : kRows) {
      char cell = row.cells[kind];
      for (int i = 0; i < row.count; ++i) {
        eSkillControl control = row.controls[static_cast<std::size_t>(i)];
        switch (cell) {
          case '1': enabled[control] = true; break;
          case 'W': enabled[control] = !(skill.*row.weaponFlag); break;
          case 'R':
            if (control == kCtlResourceType) enabled[control] = true;
            if (control == kCtlCostSP) enabled[control] = skill.m_nResourceType == 0;
            if (control == kCtlUnlimited) enabled[control] = skill.m_nResourceType == 1;
            if (control == kCtlUseLimit) enabled[control] = skill.m_nResourceType == 1 && !skill.m_bUnlimited;
            break;
          default: break;
        }
      }
    }
  }
  enabled[kCtlSortNumber] = skill.m_bSortNumber != 0;
  enabled[kCtlTarget] = false;
  return enabled;
}
