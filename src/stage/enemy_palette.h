#pragma once
// The enemy palette's rules apart from its window: the row text of a stage's enemy
// entry, the row that becomes the pen's brush, and the entries a paste brings in.

#include <string>

#include "kernel/vector_class.h"
#include "stage/stage_records.h"

// A stage holds at most this many enemies, and an enemy this many move rules.
constexpr int kMaxPutEnemies = 999;
constexpr int kMaxMoveRules = 10;

// The entry's row, in CP932: "グ%s (%d,%d) %d-%-8s LV%d " with its group ("-" while it
// belongs to none), position, enemy number, the enemy's name padded to 8 bytes and its
// level; "(--,--)" for an entry off the map; "(x,y) 未設定" without an enemy. An enemy
// number past the enemy table reads as none.
std::string PutEnemyRowText(const cPutEnemy& entry);

// The palette's selection moved to `row` of the enemy list (-1 for none): it is what
// the pen puts on the map, a brush of one entry, or, for no row or the blank row
// behind the entries, an empty brush.
void ChooseEnemyRow(int row);

// Copies of placed entries would stand on the same cell: entries come in from the
// clipboard off the map, keeping everything else.
void UnplaceEnemies(VECTOR_CLASS<cPutEnemy>& entries);
