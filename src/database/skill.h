#pragma once
// A skill: everything a character can do or carry, weapons and armour included. It
// lives in the skill table of one skill list, whose row 0 is reserved.

#include <cstdint>
#include <string>

#include "kernel/serial.h"

enum : int { kStatusCount = 9 };  // HP, SP, attack, defence, magic, resistance, skill, reaction, agility

enum eSkillKind : int {
  kSkillPhysicalAttack = 0,
  kSkillMagicAttack = 1,
  kSkillHeal = 2,
  kSkillDamageCut = 3,
  kSkillTime = 4,
  kSkillSupport = 5,
  kSkillTerrain = 6,
  kSkillPhysicalWeapon = 7,
  kSkillMagicWeapon = 8,
  kSkillArmour = 9,
  kSkillKindCount = 10,
};

class cSkill : public cSerial {
 public:
  cSkill() { SetDefault(); }
  SERIAL_RECORD(cSkill)

  // Zeros, repaired references, then the defaults of a new skill.
  void SetDefault();
  // References beyond the compatibility type and element tables become 0.
  void FixRefs();

  int Serialize(int op, const cSerial* other, cSerialFile* file, std::uint32_t version) override;
  int Load(cSerialFile* file) override;
  int Save(cSerialFile* file) override;

  int m_nGroup;
  int m_nID;
  int m_bNotUsed;
  int m_nPrice;
  int m_nStockMax;
  int m_nResourceType;
  int m_nCostSP;
  int m_nUseLimit;
  int m_bUnlimited;
  int m_bVanishFromStock;
  int m_nCateg;
  int m_nNeedSense;
  int m_nLearnClass;
  int m_bNoForget;
  int m_nKind;
  int m_bUseMapSkill;
  int m_bUseMapStock;
  int m_bUseBattleSkill;
  int m_bUseBattleQuick;
  int m_bUseBattleStock;
  int m_nTarget;
  int m_nWeaponType;
  int m_nCompatiType;
  int m_bCompatiOfWeapon;
  int m_nElem;
  int m_nElemValue;
  int m_bElemOfWeapon;
  int m_nHitRate;
  int m_bHitOfWeapon;
  int m_nEffectValue;
  int m_nDamageRate;
  int m_nCriticalRate;
  int m_bCriticalAddWeapon;
  int m_bNoStatusEffect;
  int m_anSubEffectA[kStatusCount];
  int m_bSubEffectAPercent;
  int m_anSubEffectB[kStatusCount];
  int m_bSubEffectBPercent;
  int m_nSpecialEffect;
  int m_nSpecialEffectValue;
  int m_bSortNumber;
  double m_dSortNumber;
  int m_bEffectOfWeapon;
  int m_nEffect;
  int m_nCharaAnim;
  int m_nEffectAnim;
  int m_nScale;
  std::uint8_t m_byAlpha;
  std::int16_t m_sHue;
  std::int16_t m_sSaturation;
  std::int16_t m_sValue;
  int m_nLearnRate;
  int m_nLearnRateSenseOld;  // the sense bonus before it became a fraction; still streamed
  double m_dLearnRateSense;
  int m_nLearnLvMin;
  int m_nLearnLvMax;
  int m_nReserved;
  double m_dLearnLvSense;
  int m_nRankMin;
  int m_nRankMax;
  int m_nRarity;
  std::string m_strName;
  std::string m_strDesc;
  int m_nSound;
  std::string m_strReserved;
};
