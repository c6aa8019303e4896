#pragma once
// The rows that the move rule form offers in its combos, from the project's tables and
// the current stage as they stand, in CP932, each with the value it stores.

#include <string>

#include "kernel/vector_class.h"

struct cValueRows {
  VECTOR_CLASS<std::string> rows;
  VECTOR_CLASS<int> values;
};

// A move rule's position groups can be destinations only while they hold fewer
// positions than this.
constexpr int kMaxDestinationPositions = 5;

// The healing skills (kind 2) of skill list `list`, "%d %s" with the number in the list;
// each stores its number. None for a list out of range.
cValueRows HealSkillRows(int list);
// The position groups of g_Stage from number 1 that can be destinations, "%d %s".
cValueRows DestinationRows();
