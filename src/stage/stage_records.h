#pragma once
// The small records that a stage holds: its enemies, its position groups and the lines
// of its victory, defeat and rule descriptions.

#include <cstdint>
#include <string>

#include "database/move_ai.h"
#include "kernel/serial.h"
#include "kernel/vector_class.h"

// One enemy of a stage, placed on the map or not (-1, -1).
class cPutEnemy : public cSerial {
 public:
  cPutEnemy() {
    Reset();
    m_nX = -1;
    m_nY = -1;
  }
  SERIAL_RECORD(cPutEnemy)

  int Serialize(int op, const cSerial* other, cSerialFile* file, std::uint32_t version) override;
  int Load(cSerialFile* file) override;
  int Save(cSerialFile* file) override;

  // An enemy outside the enemy table becomes 0 ("not set"); each move AI is repaired.
  void Clamp();

  int m_nEnemy;    // row of the enemy table; 0 = not set
  int m_nX;        // -1 = not placed
  int m_nY;
  int m_bGroup;    // belongs to enemy group m_nGroup
  int m_nGroup;
  int m_bCharaId;  // has the character ID m_nCharaId
  int m_nCharaId;
  VECTOR_CLASS<cMoveAI> m_vecMoveAI;
};

// Two 32-bit coordinates, stored back to back.
struct cMapPos {
  std::int32_t x;
  std::int32_t y;
  bool operator==(const cMapPos&) const = default;
};

// A named set of map positions with a centre. Element 0 of a stage's groups is hidden.
class cGroupPos : public cSerial {
 public:
  cGroupPos() { Reset(); }
  SERIAL_RECORD(cGroupPos)

  int Serialize(int op, const cSerial* other, cSerialFile* file, std::uint32_t version) override;
  // Both keep the group inside the map of the current stage.
  int Load(cSerialFile* file) override;
  int Save(cSerialFile* file) override;

  // Positions at or beyond the size go; a centre coordinate beyond it becomes 0.
  void Clamp(int width, int height);

  int m_nCenterX;
  int m_nCenterY;
  std::string m_strName;
  VECTOR_CLASS<cMapPos> m_vecPos;  // in the order they were added
};

// One line of a description list.
class cEndCond : public cSerial {
 public:
  cEndCond() { Reset(); }
  SERIAL_RECORD(cEndCond)

  int Serialize(int op, const cSerial* other, cSerialFile* file, std::uint32_t version) override;

  // Against the stage's group count and map size; run by the stage's clamp.
  void Clamp(int groups, int width, int height);

  int m_nFocus;       // 0 none, 1 leader, 2 enemy by ID, 3 position group, 4 cell
  int m_nFocusChara;  // character ID, for focus 2
  int m_nFocusGroup;  // position group, for focus 3
  int m_nFocusX;      // cell, for focus 4
  int m_nFocusY;
  int m_nShowGroup;   // group shown with the line; 0 = none
  std::string m_strText;
};
