#pragma once
// The game-wide rule book of a project: growth and scouting, experience and money,
// battle timing, hit and damage formulas, system sounds and music, status values, the
// words of every game menu and message, and the keys of "System.ini". One instance,
// g_System, kept in "data\database\System.dat"; the game program reads the same file.

#include <cstdint>
#include <string>

#include "database/elem.h"
#include "database/skill_list.h"
#include "kernel/serial.h"
#include "kernel/vector_class.h"
#include "project/ini_row.h"
#include "project/system_records.h"

constexpr const char* kSystemPath = "data\\database\\System.dat";

enum : int {
  kSystemStatusCount = 9,  // HP, SP, attack, defence, magic, resistance, skill, reaction, agility
  kSystemTermCount = 55,
  kSystemSoundCount = 18,
  kSystemBgmCount = 5,
  kSystemPredictCount = 4,
  kSystemParamCount = 12,
  kSystemIniCount = 7,
};

// Rows of m_vecSoundFile.
enum eSystemSound : int {
  kSoundCursor,
  kSoundDecide,
  kSoundCancel,
  kSoundError,
  kSoundMenu,
  kSoundSwitchList,
  kSoundSkillSwap,
  kSoundSkillEquip,
  kSoundSkillTrade,
  kSoundHire,
  kSoundRevive,
  kSoundRelease,
  kSoundSave,
  kSoundMessage,
  kSoundDamage,
  kSoundCriticalDamage,
  kSoundHeal,
  kSoundStageClear,
};

// Rows of m_vecBgm and m_vecBgmLoop.
enum eSystemBgm : int { kBgmTitle, kBgmWorldMap, kBgmStage, kBgmBattle, kBgmOption };

// Rows of m_vecParam past the nine status values.
enum eSystemParam : int { kParamHp = 0, kParamLevel = 9, kParamExp = 10, kParamMove = 11 };

// Sides of the two-element battle arrays.
enum eBattleSide : int { kSideAttacker = 0, kSideDefender = 1 };

class cSystem : public cSerial {
 public:
  cSystem() { SetDefault(); }
  SERIAL_RECORD(cSystem)

  // Zeros, then the settings of a new project, clamped.
  void SetDefault();

  int Serialize(int op, const cSerial* other, cSerialFile* file, std::uint32_t version) override;
  int Load(cSerialFile* file) override;
  int Save(cSerialFile* file) override;

  // The invariants: the reference action counts, the digits of each status ceiling,
  // the HP limit, and the references into the background and music lists of
  // g_Database as they stand now.
  void Clamp();
  // The invariants that need no other table.
  void ClampDerived();

  // Growth and scouting.
  int m_nReserved1;
  int m_nGrowMin;
  int m_nGrowMax;
  double m_dGrowScout;
  int m_bGrowCapped;
  int m_nSenseMin;
  int m_nSenseMax;
  double m_dSenseScout;
  int m_bSenseCapped;
  int m_bScout;
  int m_nScoutVal;
  int m_nGrowTimeMin;
  int m_nGrowTimeMax;
  int m_nGrowUnit;
  int m_nSenseUnit;
  int m_bRandomChange;
  int m_nChangeValue;
  int m_nChangeCount;
  double m_adRate[kSystemStatusCount];

  // Enemies, experience, money.
  int m_anEnemyRate[kSystemStatusCount];
  int m_nExpBase;
  double m_dExpLevel;
  double m_dExpDifficulty;
  double m_dExpKill;
  int m_nExpMin;
  int m_nExpMax;
  int m_bActAgain;
  int m_bAutoTurnEnd;
  int m_nMoneyVal;
  int m_nHireVal;
  int m_nHireCost;
  int m_nHireCostLv;
  int m_bReviveAfterStage;
  int m_nReviveVal;
  int m_nReviveCost;
  int m_nReviveCostLv;
  int m_nReleaseVal;
  int m_nReleasePrice;
  int m_nReleasePriceLv;
  int m_nSkillSellRate;

  // Battle timing; the arrays are by eBattleSide.
  int m_nBattleMode;
  int m_nTurnMode;  // 0 by battle time, 1 by action counts
  int m_nBattleTime;
  int m_anInitAction[2];
  int m_anSpeedRate[2];
  int m_bWaitAttacker;
  int m_nSpeedBase;
  int m_nOrderType;
  int m_anBaseActions[2];
  int m_anSpeedGap[2];
  int m_anMaxActions[2];
  double m_adActions[2];  // derived by Clamp, shown for reference
  int m_bShowOrder;

  // Hit and damage.
  double m_dHitSkill;
  double m_dCritSkill;
  double m_dDamageAttack;
  double m_dDamageDefense;
  int m_nDamageRateMin;
  int m_nDamageRateMax;
  int m_nHealRate;
  int m_bMissKeepsCost;
  int m_bGuardNoEvade;
  int m_nHpLimit;  // copy of the HP ceiling, kept by Clamp
  int m_nDifficultyVal;
  int m_nDifficulty;
  int m_bEnemyUpPercent;
  int m_anEnemyUp[kSystemStatusCount];
  int m_nReserved2;

  // Presentation.
  std::uint8_t m_byKeyFirst;  // transparent colour, red
  std::uint8_t m_byKeySecond;
  std::uint8_t m_byKeyThird;
  std::int16_t m_shWindowHue;
  std::int16_t m_shWindowLight;
  std::int16_t m_shWindowAlpha;
  std::string m_strGameName;
  VECTOR_CLASS<cTextRow> m_vecSoundFile;  // by eSystemSound, file names below "wave\"
  VECTOR_CLASS<std::int32_t> m_vecBgm;    // by eSystemBgm, rows of the music list
  VECTOR_CLASS<std::uint8_t> m_vecBgmLoop;
  int m_bPredict;
  VECTOR_CLASS<std::int32_t> m_vecPredict;
  int m_bTwoSkillLists;
  int m_nFont;  // row of kSystemFontFaces
  int m_bEvenPitch;
  VECTOR_CLASS<cTextRow> m_vecTerm;
  VECTOR_CLASS<cParamInfo> m_vecParam;
  int m_bGameModeImage;

  // Menus of the game, in stream order.
  VECTOR_CLASS<cCmd> m_vecTitleMenu;
  VECTOR_CLASS<cCmd> m_vecOptionMenu;
  VECTOR_CLASS<cCmd> m_vecPartyMenu;
  VECTOR_CLASS<cCmd> m_vecScoutMenu;
  VECTOR_CLASS<cCmd> m_vecReviveMenu;
  VECTOR_CLASS<cCmd> m_vecReleaseMenu;
  VECTOR_CLASS<cCmd> m_vecConfigMenu;
  VECTOR_CLASS<cCmd> m_vecShopMenu;
  VECTOR_CLASS<cCmd> m_vecTrainingMenu;
  VECTOR_CLASS<cCmd> m_vecTrainSideMenu;
  VECTOR_CLASS<cCmd> m_vecTrainEntryMenu;
  VECTOR_CLASS<cCmd> m_vecPrepareMenu;
  VECTOR_CLASS<cCmd> m_vecActionMenu;
  VECTOR_CLASS<cCmd> m_vecStageMenu;
  VECTOR_CLASS<cCmd> m_vecTestMenu;
  VECTOR_CLASS<cCmd> m_vecBattleMenu;

  // The tail.
  VECTOR_CLASS<cElem> m_vecElem;  // row 0 reserved
  VECTOR_CLASS<cCateg> m_vecCateg;
  VECTOR_CLASS<cEdBack_Unused> m_vecBackUnused;
  int m_nPartyBack;  // row of the background list
  VECTOR_CLASS<cIni> m_vecIni;

 private:
  // Brings the lists of a file older than the current format into the current rows.
  void Migrate(std::uint32_t fileVersion);
};

// The transparent colour of the image sheets, 0xBBGGRR: the first key byte is the
// lowest.
std::uint32_t KeyColorOf(const cSystem& system);

// The reference action counts of the two sides for the given settings: the base action
// counts in the simple turn mode, else the battle timing formula.
void ComputeReferenceActions(const cSystem& system, double out[2]);
