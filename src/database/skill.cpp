#include "database/skill.h"

#include "kernel/serial_fields.h"
#include "database/table_rows.h"

void cSkill::SetDefault() {
  Reset();
  FixRefs();
  m_nStockMax = 99;
  m_nUseLimit = 50;
  m_bVanishFromStock = 1;
  m_nNeedSense = 1;
  m_bUseBattleSkill = 1;
  m_nHitRate = 100;
  m_nDamageRate = 100;
  m_nEffect = 1;
  m_nCharaAnim = 1;
  m_nEffectAnim = 1;
  m_nScale = 200;
  m_byAlpha = 255;
  m_nSound = 1;
}

void cSkill::FixRefs() {
  if (m_nCompatiType >= CompatiTypeRows()) m_nCompatiType = 0;
  if (m_nElem >= ElementRows()) m_nElem = 0;
}

int cSkill::Serialize(int op, const cSerial* other, cSerialFile* file, std::uint32_t version) {
  const auto* o = SerialOther<cSkill>(other);
  const std::int32_t* scratchInt = o != nullptr ? &g_nScratchInt : nullptr;
  SERIAL_FIELD(SerialInt(op, m_nGroup, OTHER(m_nGroup), file));
  SERIAL_FIELD(SerialInt(op, m_nID, OTHER(m_nID), file));
  if (version >= 109) SERIAL_FIELD(SerialInt(op, m_bNotUsed, OTHER(m_bNotUsed), file));
  SERIAL_FIELD(SerialInt(op, m_nPrice, OTHER(m_nPrice), file));
  SERIAL_FIELD(SerialInt(op, m_nStockMax, OTHER(m_nStockMax), file));
  SERIAL_FIELD(SerialInt(op, m_nResourceType, OTHER(m_nResourceType), file));
  SERIAL_FIELD(SerialInt(op, m_nCostSP, OTHER(m_nCostSP), file));
  SERIAL_FIELD(SerialInt(op, m_nUseLimit, OTHER(m_nUseLimit), file));
  SERIAL_FIELD(SerialInt(op, m_bUnlimited, OTHER(m_bUnlimited), file));
  SERIAL_FIELD(SerialInt(op, m_bVanishFromStock, OTHER(m_bVanishFromStock), file));
  SERIAL_FIELD(SerialInt(op, m_nCateg, OTHER(m_nCateg), file));
  SERIAL_FIELD(SerialInt(op, m_nNeedSense, OTHER(m_nNeedSense), file));
  SERIAL_FIELD(SerialInt(op, m_nLearnClass, OTHER(m_nLearnClass), file));
  if (version >= 30) SERIAL_FIELD(SerialInt(op, m_bNoForget, OTHER(m_bNoForget), file));
  SERIAL_FIELD(SerialInt(op, m_nKind, OTHER(m_nKind), file));
  SERIAL_FIELD(SerialInt(op, m_bUseMapSkill, OTHER(m_bUseMapSkill), file));
  SERIAL_FIELD(SerialInt(op, m_bUseMapStock, OTHER(m_bUseMapStock), file));
  SERIAL_FIELD(SerialInt(op, m_bUseBattleSkill, OTHER(m_bUseBattleSkill), file));
  SERIAL_FIELD(SerialInt(op, m_bUseBattleQuick, OTHER(m_bUseBattleQuick), file));
  SERIAL_FIELD(SerialInt(op, m_bUseBattleStock, OTHER(m_bUseBattleStock), file));
  SERIAL_FIELD(SerialInt(op, m_nTarget, OTHER(m_nTarget), file));
  if (version >= 261) SERIAL_FIELD(SerialInt(op, m_nWeaponType, OTHER(m_nWeaponType), file));
  if (version >= 99) {
    SERIAL_FIELD(SerialInt(op, m_nCompatiType, OTHER(m_nCompatiType), file));
    SERIAL_FIELD(SerialInt(op, m_bCompatiOfWeapon, OTHER(m_bCompatiOfWeapon), file));
  }
  SERIAL_FIELD(SerialInt(op, m_nElem, OTHER(m_nElem), file));
  if (version >= 18) {
    SERIAL_FIELD(SerialInt(op, m_nElemValue, OTHER(m_nElemValue), file));
    SERIAL_FIELD(SerialInt(op, m_bElemOfWeapon, OTHER(m_bElemOfWeapon), file));
  }
  SERIAL_FIELD(SerialInt(op, m_nHitRate, OTHER(m_nHitRate), file));
  if (version >= 17) SERIAL_FIELD(SerialInt(op, m_bHitOfWeapon, OTHER(m_bHitOfWeapon), file));
  SERIAL_FIELD(SerialInt(op, m_nEffectValue, OTHER(m_nEffectValue), file));
  if (version >= 79) SERIAL_FIELD(SerialInt(op, m_nDamageRate, OTHER(m_nDamageRate), file));
  SERIAL_FIELD(SerialInt(op, m_nCriticalRate, OTHER(m_nCriticalRate), file));
  SERIAL_FIELD(SerialInt(op, m_bCriticalAddWeapon, OTHER(m_bCriticalAddWeapon), file));
  SERIAL_FIELD(SerialInt(op, m_bNoStatusEffect, OTHER(m_bNoStatusEffect), file));
  SERIAL_FIELD(SerialIntArray(op, m_anSubEffectA, o ? o->m_anSubEffectA : nullptr, kStatusCount, file));
  SERIAL_FIELD(SerialInt(op, m_bSubEffectAPercent, OTHER(m_bSubEffectAPercent), file));
  if (version >= 80) {
    SERIAL_FIELD(SerialIntArray(op, m_anSubEffectB, o ? o->m_anSubEffectB : nullptr, kStatusCount, file));
    SERIAL_FIELD(SerialInt(op, m_bSubEffectBPercent, OTHER(m_bSubEffectBPercent), file));
  }
  SERIAL_FIELD(SerialInt(op, m_nSpecialEffect, OTHER(m_nSpecialEffect), file));
  SERIAL_FIELD(SerialInt(op, m_nSpecialEffectValue, OTHER(m_nSpecialEffectValue), file));
  if (version >= 102) {
    SERIAL_FIELD(SerialInt(op, m_bSortNumber, OTHER(m_bSortNumber), file));
    SERIAL_FIELD(SerialDouble(op, m_dSortNumber, OTHER(m_dSortNumber), file));
  }
  if (version >= 17) SERIAL_FIELD(SerialInt(op, m_bEffectOfWeapon, OTHER(m_bEffectOfWeapon), file));
  SERIAL_FIELD(SerialInt(op, m_nEffect, OTHER(m_nEffect), file));
  if (version >= 14) {
    SERIAL_FIELD(SerialInt(op, m_nCharaAnim, OTHER(m_nCharaAnim), file));
    SERIAL_FIELD(SerialInt(op, m_nEffectAnim, OTHER(m_nEffectAnim), file));
  }
  if (version >= 36) SERIAL_FIELD(SerialInt(op, m_nScale, OTHER(m_nScale), file));
  SERIAL_FIELD(SerialByte(op, m_byAlpha, OTHER(m_byAlpha), file));
  if (version >= 38) {
    SERIAL_FIELD(SerialShort(op, m_sHue, OTHER(m_sHue), file));
    SERIAL_FIELD(SerialShort(op, m_sSaturation, OTHER(m_sSaturation), file));
    SERIAL_FIELD(SerialShort(op, m_sValue, OTHER(m_sValue), file));
  }
  if (version < 39) {
    SERIAL_FIELD(SerialInt(op, g_nScratchInt, scratchInt, file));
    SERIAL_FIELD(SerialInt(op, g_nScratchInt, scratchInt, file));
  }
  SERIAL_FIELD(SerialInt(op, m_nLearnRate, OTHER(m_nLearnRate), file));
  SERIAL_FIELD(SerialInt(op, m_nLearnRateSenseOld, OTHER(m_nLearnRateSenseOld), file));
  if (version >= 122) SERIAL_FIELD(SerialDouble(op, m_dLearnRateSense, OTHER(m_dLearnRateSense), file));
  SERIAL_FIELD(SerialInt(op, m_nLearnLvMin, OTHER(m_nLearnLvMin), file));
  SERIAL_FIELD(SerialInt(op, m_nLearnLvMax, OTHER(m_nLearnLvMax), file));
  SERIAL_FIELD(SerialInt(op, m_nReserved, OTHER(m_nReserved), file));
  SERIAL_FIELD(SerialDouble(op, m_dLearnLvSense, OTHER(m_dLearnLvSense), file));
  if (version >= 103) {
    SERIAL_FIELD(SerialInt(op, m_nRankMin, OTHER(m_nRankMin), file));
    SERIAL_FIELD(SerialInt(op, m_nRankMax, OTHER(m_nRankMax), file));
    SERIAL_FIELD(SerialInt(op, m_nRarity, OTHER(m_nRarity), file));
  }
  SERIAL_FIELD(SerialString(op, m_strName, OTHER(m_strName), file));
  SERIAL_FIELD(SerialString(op, m_strDesc, OTHER(m_strDesc), file));
  if (version < 5) SERIAL_FIELD(SerialString(op, g_strScratch, o != nullptr ? &g_strScratch : nullptr, file));
  if (version >= 5) SERIAL_FIELD(SerialInt(op, m_nSound, OTHER(m_nSound), file));
  SERIAL_FIELD(SerialString(op, m_strReserved, OTHER(m_strReserved), file));
  return 1;
}

int cSkill::Load(cSerialFile* file) {
  if (!cSerial::Load(file)) return 0;
  if (g_nFileVersion < 36) m_nScale = 200;
  if (g_nFileVersion < 79) m_nDamageRate = 100;
  if (g_nFileVersion < 122) m_dLearnRateSense = static_cast<double>(m_nLearnRateSenseOld);
  if (g_nFileVersion < 261) {
    // "Magic weapon" was inserted at 8, moving armour to 9.
    if (m_nKind == kSkillMagicWeapon) m_nKind = kSkillArmour;
    m_nWeaponType = 0;
  }
  FixRefs();
  return 1;
}

int cSkill::Save(cSerialFile* file) {
  FixRefs();
  return cSerial::Save(file);
}
