#pragma once
// The two character tables: allies ("Friend.dat") and enemies ("Enemy.dat"). Both have
// the reserved row 0; their records stream the character fields first.

#include "database/battle_ai.h"
#include "database/chara.h"
#include "database/move_ai.h"

constexpr const char* kFriendPath = "data\\database\\Friend.dat";
constexpr const char* kEnemyPath = "data\\database\\Enemy.dat";

// TRAINING, for cEnemy::m_nTraining.
inline constexpr const char* kTrainingLabels[] = {"倒すと闘える", "最初から闘える", "闘えない", ""};

class cFriend : public cChara {
 public:
  cFriend() { cFriend::SetDefault(); }
  SERIAL_RECORD(cFriend)
  static cFriend ReadingDefault() { return RowForReading<cFriend>(); }

  int Serialize(int op, const cSerial* other, cSerialFile* file, std::uint32_t version) override;
  int Load(cSerialFile* file) override;
  int Save(cSerialFile* file) override;
  void SetDefault() override;

  int m_nFriend1;
  int m_nFriend2;
  int m_bInShop;
  int m_bAnyTimes;
  int m_bNoRelease;
  int m_bRegenerate;
};

class cEnemy : public cChara {
 public:
  cEnemy() { cEnemy::SetDefault(); }
  SERIAL_RECORD(cEnemy)
  static cEnemy ReadingDefault() { return RowForReading<cEnemy>(); }

  int Serialize(int op, const cSerial* other, cSerialFile* file, std::uint32_t version) override;
  int Load(cSerialFile* file) override;
  int Save(cSerialFile* file) override;
  void SetDefault() override;
  // The character repairs, then those of each battle action, then the status.
  void FixRefs();

  int m_nReservedE;
  int m_nTraining;
  VECTOR_CLASS<cMoveAI> m_vecMoveAI;
  VECTOR_CLASS<cBattleAI> m_vecBattleAI;
};
