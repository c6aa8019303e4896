#include "project/system.h"

#include <cmath>

#include "database/table_rows.h"
#include "kernel/serial_fields.h"
#include "project/project_globals.h"

int cSystem::Serialize(int op, const cSerial* other, cSerialFile* file, std::uint32_t version) {
  const auto* o = SerialOther<cSystem>(other);
  const std::int32_t* scratch = o != nullptr ? &g_nScratchInt : nullptr;

  SERIAL_FIELD(SerialInt(op, m_nReserved1, OTHER(m_nReserved1), file));
  SERIAL_FIELD(SerialInt(op, m_nGrowMin, OTHER(m_nGrowMin), file));
  SERIAL_FIELD(SerialInt(op, m_nGrowMax, OTHER(m_nGrowMax), file));
  SERIAL_FIELD(SerialDouble(op, m_dGrowScout, OTHER(m_dGrowScout), file));
  SERIAL_FIELD(SerialInt(op, m_bGrowCapped, OTHER(m_bGrowCapped), file));
  SERIAL_FIELD(SerialInt(op, m_nSenseMin, OTHER(m_nSenseMin), file));
  SERIAL_FIELD(SerialInt(op, m_nSenseMax, OTHER(m_nSenseMax), file));
  SERIAL_FIELD(SerialDouble(op, m_dSenseScout, OTHER(m_dSenseScout), file));
  SERIAL_FIELD(SerialInt(op, m_bSenseCapped, OTHER(m_bSenseCapped), file));
  SERIAL_FIELD(SerialInt(op, m_bScout, OTHER(m_bScout), file));
  SERIAL_FIELD(SerialInt(op, m_nScoutVal, OTHER(m_nScoutVal), file));
  if (version >= 70) {
    SERIAL_FIELD(SerialInt(op, m_nGrowTimeMin, OTHER(m_nGrowTimeMin), file));
    SERIAL_FIELD(SerialInt(op, m_nGrowTimeMax, OTHER(m_nGrowTimeMax), file));
    SERIAL_FIELD(SerialInt(op, m_nGrowUnit, OTHER(m_nGrowUnit), file));
  }
  if (version >= 122) SERIAL_FIELD(SerialInt(op, m_nSenseUnit, OTHER(m_nSenseUnit), file));
  if (version >= 70) {
    SERIAL_FIELD(SerialInt(op, m_bRandomChange, OTHER(m_bRandomChange), file));
    SERIAL_FIELD(SerialInt(op, m_nChangeValue, OTHER(m_nChangeValue), file));
    SERIAL_FIELD(SerialInt(op, m_nChangeCount, OTHER(m_nChangeCount), file));
  }
  SERIAL_FIELD(SerialDoubleArray(op, m_adRate, o ? o->m_adRate : nullptr, kSystemStatusCount, file));

  SERIAL_FIELD(SerialIntArray(op, m_anEnemyRate, o ? o->m_anEnemyRate : nullptr, kSystemStatusCount, file));
  SERIAL_FIELD(SerialInt(op, m_nExpBase, OTHER(m_nExpBase), file));
  SERIAL_FIELD(SerialDouble(op, m_dExpLevel, OTHER(m_dExpLevel), file));
  if (version >= 89) SERIAL_FIELD(SerialDouble(op, m_dExpDifficulty, OTHER(m_dExpDifficulty), file));
  SERIAL_FIELD(SerialDouble(op, m_dExpKill, OTHER(m_dExpKill), file));
  if (version >= 33) {
    SERIAL_FIELD(SerialInt(op, m_nExpMin, OTHER(m_nExpMin), file));
    SERIAL_FIELD(SerialInt(op, m_nExpMax, OTHER(m_nExpMax), file));
  }
  SERIAL_FIELD(SerialInt(op, m_bActAgain, OTHER(m_bActAgain), file));
  SERIAL_FIELD(SerialInt(op, m_bAutoTurnEnd, OTHER(m_bAutoTurnEnd), file));
  SERIAL_FIELD(SerialInt(op, m_nMoneyVal, OTHER(m_nMoneyVal), file));
  SERIAL_FIELD(SerialInt(op, m_nHireVal, OTHER(m_nHireVal), file));
  SERIAL_FIELD(SerialInt(op, m_nHireCost, OTHER(m_nHireCost), file));
  SERIAL_FIELD(SerialInt(op, m_nHireCostLv, OTHER(m_nHireCostLv), file));
  SERIAL_FIELD(SerialInt(op, m_bReviveAfterStage, OTHER(m_bReviveAfterStage), file));
  SERIAL_FIELD(SerialInt(op, m_nReviveVal, OTHER(m_nReviveVal), file));
  SERIAL_FIELD(SerialInt(op, m_nReviveCost, OTHER(m_nReviveCost), file));
  SERIAL_FIELD(SerialInt(op, m_nReviveCostLv, OTHER(m_nReviveCostLv), file));
  SERIAL_FIELD(SerialInt(op, m_nReleaseVal, OTHER(m_nReleaseVal), file));
  SERIAL_FIELD(SerialInt(op, m_nReleasePrice, OTHER(m_nReleasePrice), file));
  SERIAL_FIELD(SerialInt(op, m_nReleasePriceLv, OTHER(m_nReleasePriceLv), file));
  SERIAL_FIELD(SerialInt(op, m_nSkillSellRate, OTHER(m_nSkillSellRate), file));

  SERIAL_FIELD(SerialInt(op, m_nBattleMode, OTHER(m_nBattleMode), file));
  if (version >= 101) SERIAL_FIELD(SerialInt(op, m_nTurnMode, OTHER(m_nTurnMode), file));
  SERIAL_FIELD(SerialInt(op, m_nBattleTime, OTHER(m_nBattleTime), file));
  SERIAL_FIELD(SerialIntArray(op, m_anInitAction, o ? o->m_anInitAction : nullptr, 2, file));
  SERIAL_FIELD(SerialIntArray(op, m_anSpeedRate, o ? o->m_anSpeedRate : nullptr, 2, file));
  SERIAL_FIELD(SerialInt(op, m_bWaitAttacker, OTHER(m_bWaitAttacker), file));
  SERIAL_FIELD(SerialInt(op, m_nSpeedBase, OTHER(m_nSpeedBase), file));
  if (version >= 101) {
    SERIAL_FIELD(SerialInt(op, m_nOrderType, OTHER(m_nOrderType), file));
    SERIAL_FIELD(SerialIntArray(op, m_anBaseActions, o ? o->m_anBaseActions : nullptr, 2, file));
    SERIAL_FIELD(SerialIntArray(op, m_anSpeedGap, o ? o->m_anSpeedGap : nullptr, 2, file));
    SERIAL_FIELD(SerialIntArray(op, m_anMaxActions, o ? o->m_anMaxActions : nullptr, 2, file));
  }
  SERIAL_FIELD(SerialDoubleArray(op, m_adActions, o ? o->m_adActions : nullptr, 2, file));
  if (version >= 123) SERIAL_FIELD(SerialInt(op, m_bShowOrder, OTHER(m_bShowOrder), file));

  SERIAL_FIELD(SerialDouble(op, m_dHitSkill, OTHER(m_dHitSkill), file));
  SERIAL_FIELD(SerialDouble(op, m_dCritSkill, OTHER(m_dCritSkill), file));
  SERIAL_FIELD(SerialDouble(op, m_dDamageAttack, OTHER(m_dDamageAttack), file));
  SERIAL_FIELD(SerialDouble(op, m_dDamageDefense, OTHER(m_dDamageDefense), file));
  SERIAL_FIELD(SerialInt(op, m_nDamageRateMin, OTHER(m_nDamageRateMin), file));
  SERIAL_FIELD(SerialInt(op, m_nDamageRateMax, OTHER(m_nDamageRateMax), file));
  SERIAL_FIELD(SerialInt(op, m_nHealRate, OTHER(m_nHealRate), file));
  SERIAL_FIELD(SerialInt(op, m_bMissKeepsCost, OTHER(m_bMissKeepsCost), file));
  if (version >= 81) SERIAL_FIELD(SerialInt(op, m_bGuardNoEvade, OTHER(m_bGuardNoEvade), file));
  if (version >= 9) SERIAL_FIELD(SerialInt(op, m_nHpLimit, OTHER(m_nHpLimit), file));
  SERIAL_FIELD(SerialInt(op, m_nDifficultyVal, OTHER(m_nDifficultyVal), file));
  SERIAL_FIELD(SerialInt(op, m_nDifficulty, OTHER(m_nDifficulty), file));
  SERIAL_FIELD(SerialInt(op, m_bEnemyUpPercent, OTHER(m_bEnemyUpPercent), file));
  SERIAL_FIELD(SerialIntArray(op, m_anEnemyUp, o ? o->m_anEnemyUp : nullptr, kSystemStatusCount, file));
  if (version >= 104) SERIAL_FIELD(SerialInt(op, m_nReserved2, OTHER(m_nReserved2), file));

  SERIAL_FIELD(SerialByte(op, m_byKeyFirst, OTHER(m_byKeyFirst), file));
  SERIAL_FIELD(SerialByte(op, m_byKeySecond, OTHER(m_byKeySecond), file));
  SERIAL_FIELD(SerialByte(op, m_byKeyThird, OTHER(m_byKeyThird), file));
  if (version >= 85) {
    SERIAL_FIELD(SerialShort(op, m_shWindowHue, OTHER(m_shWindowHue), file));
    SERIAL_FIELD(SerialShort(op, m_shWindowLight, OTHER(m_shWindowLight), file));
    SERIAL_FIELD(SerialShort(op, m_shWindowAlpha, OTHER(m_shWindowAlpha), file));
  }
  SERIAL_FIELD(SerialString(op, m_strGameName, OTHER(m_strGameName), file));
  SERIAL_FIELD(SerialRecordVector(op, m_vecSoundFile, OTHER(m_vecSoundFile), file));
  SERIAL_FIELD(SerialIntVector(op, m_vecBgm, OTHER(m_vecBgm), file));
  if (version >= 23) SERIAL_FIELD(SerialByteVector(op, m_vecBgmLoop, OTHER(m_vecBgmLoop), file));
  if (version >= 10) SERIAL_FIELD(SerialInt(op, m_bPredict, OTHER(m_bPredict), file));
  // The forecast was one number before it became four switches.
  if (version >= 90 && version <= 123) SERIAL_FIELD(SerialInt(op, g_nScratchInt, scratch, file));
  if (version >= 125) SERIAL_FIELD(SerialIntVector(op, m_vecPredict, OTHER(m_vecPredict), file));
  if (version >= 119) SERIAL_FIELD(SerialInt(op, m_bTwoSkillLists, OTHER(m_bTwoSkillLists), file));
  if (version >= 91) {
    SERIAL_FIELD(SerialInt(op, m_nFont, OTHER(m_nFont), file));
    SERIAL_FIELD(SerialInt(op, m_bEvenPitch, OTHER(m_bEvenPitch), file));
  }
  SERIAL_FIELD(SerialRecordVector(op, m_vecTerm, OTHER(m_vecTerm), file));
  if (version >= 8) SERIAL_FIELD(SerialRecordVector(op, m_vecParam, OTHER(m_vecParam), file));
  if (version >= 11) SERIAL_FIELD(SerialInt(op, m_bGameModeImage, OTHER(m_bGameModeImage), file));

  // The menus, each from the version that brought it.
  if (version >= 11) SERIAL_FIELD(SerialRecordVector(op, m_vecTitleMenu, OTHER(m_vecTitleMenu), file));
  if (version >= 11) SERIAL_FIELD(SerialRecordVector(op, m_vecOptionMenu, OTHER(m_vecOptionMenu), file));
  SERIAL_FIELD(SerialRecordVector(op, m_vecPartyMenu, OTHER(m_vecPartyMenu), file));
  if (version >= 12) SERIAL_FIELD(SerialRecordVector(op, m_vecScoutMenu, OTHER(m_vecScoutMenu), file));
  if (version >= 12) SERIAL_FIELD(SerialRecordVector(op, m_vecReviveMenu, OTHER(m_vecReviveMenu), file));
  if (version >= 12) SERIAL_FIELD(SerialRecordVector(op, m_vecReleaseMenu, OTHER(m_vecReleaseMenu), file));
  if (version >= 63) SERIAL_FIELD(SerialRecordVector(op, m_vecConfigMenu, OTHER(m_vecConfigMenu), file));
  if (version >= 11) SERIAL_FIELD(SerialRecordVector(op, m_vecShopMenu, OTHER(m_vecShopMenu), file));
  if (version >= 11) SERIAL_FIELD(SerialRecordVector(op, m_vecTrainingMenu, OTHER(m_vecTrainingMenu), file));
  if (version >= 11) SERIAL_FIELD(SerialRecordVector(op, m_vecTrainSideMenu, OTHER(m_vecTrainSideMenu), file));
  if (version >= 11) SERIAL_FIELD(SerialRecordVector(op, m_vecTrainEntryMenu, OTHER(m_vecTrainEntryMenu), file));
  SERIAL_FIELD(SerialRecordVector(op, m_vecPrepareMenu, OTHER(m_vecPrepareMenu), file));
  SERIAL_FIELD(SerialRecordVector(op, m_vecActionMenu, OTHER(m_vecActionMenu), file));
  SERIAL_FIELD(SerialRecordVector(op, m_vecStageMenu, OTHER(m_vecStageMenu), file));
  if (version >= 43) SERIAL_FIELD(SerialRecordVector(op, m_vecTestMenu, OTHER(m_vecTestMenu), file));
  SERIAL_FIELD(SerialRecordVector(op, m_vecBattleMenu, OTHER(m_vecBattleMenu), file));

  SERIAL_FIELD(SerialRecordVector(op, m_vecElem, OTHER(m_vecElem), file));
  SERIAL_FIELD(SerialRecordVector(op, m_vecCateg, OTHER(m_vecCateg), file));
  if (version >= 64) SERIAL_FIELD(SerialRecordVector(op, m_vecBackUnused, OTHER(m_vecBackUnused), file));
  if (version >= 66) SERIAL_FIELD(SerialInt(op, m_nPartyBack, OTHER(m_nPartyBack), file));
  SERIAL_FIELD(SerialRecordVector(op, m_vecIni, OTHER(m_vecIni), file));
  return 1;
}

int cSystem::Load(cSerialFile* file) {
  if (!cSerial::Load(file)) return 0;
  Migrate(g_nFileVersion);
  Clamp();
  return 1;
}

int cSystem::Save(cSerialFile* file) {
  Clamp();
  return cSerial::Save(file);
}

void cSystem::Clamp() {
  ClampDerived();
  if (m_nPartyBack >= BackRows()) m_nPartyBack = 1;
  const int musicRows = g_Database.m_vecBgm.Count();
  for (std::int32_t& bgm : m_vecBgm) {
    if (bgm >= musicRows) bgm = 0;
  }
}

void cSystem::ClampDerived() {
  ComputeReferenceActions(*this, m_adActions);
  for (cParamInfo& param : m_vecParam) param.DeriveDigits();
  if (!m_vecParam.empty()) m_nHpLimit = m_vecParam[kParamHp].m_nMax;
}

void ComputeReferenceActions(const cSystem& system, double out[2]) {
  if (system.m_nTurnMode == 1) {
    for (int side = 0; side < 2; ++side) out[side] = system.m_anBaseActions[side];
    return;
  }
  // Each side gains its share of 200 action points per unit of time and acts at 1000.
  const double time = system.m_nBattleTime;
  const double a = system.m_anSpeedRate[kSideAttacker] * 1000.0 / 100;
  const double b = system.m_anSpeedRate[kSideDefender] * 1000.0 / 100;
  // Two speed rates of 0 give neither side a share rather than a division by zero.
  const double gain0 = a + b != 0 ? std::trunc(a / (a + b) * 200) : 0;
  const double gain1 = a + b != 0 ? std::trunc(200 * (b / (a + b))) : 0;
  double defenderTime = time;
  if (system.m_bWaitAttacker) {
    // The defender gains nothing until the attacker has acted once. An attacker that
    // gains nothing acts at once or never, rather than after a division by zero.
    const double init0 = system.m_anInitAction[kSideAttacker];
    if (gain0 != 0) {
      defenderTime = time - std::trunc((1000 - init0) / gain0 + 0.99999999999) - 1;
    } else {
      defenderTime = init0 >= 1000 ? time - 1 : 0;
    }
  }
  out[kSideAttacker] = (gain0 * time + system.m_anInitAction[kSideAttacker]) / 1000;
  out[kSideDefender] = (defenderTime * gain1 + system.m_anInitAction[kSideDefender]) / 1000;
}

std::uint32_t KeyColorOf(const cSystem& system) {
  return static_cast<std::uint32_t>(system.m_byKeyFirst) | static_cast<std::uint32_t>(system.m_byKeySecond) << 8 |
         static_cast<std::uint32_t>(system.m_byKeyThird) << 16;
}
