#pragma once
// The pseudo-random source of character generation. It is the process's rand() unless a
// test or a tool puts a seeded source in its place.

#include <functional>

// A value in 0..RAND_MAX-like range, as rand() gives.
int CharaRand();
// Installs `source`; an empty function restores rand().
void SetCharaRandomSource(std::function<int()> source);

// rand() % (hi - lo + 1) + lo, with hi below lo giving lo instead of a division by zero.
int CharaRandBetween(int lo, int hi);
// rand() % n for n above 0; 0 otherwise.
int CharaRandBelow(int n);
// The roll of `percent`: fails at or below 0, else rand() % 1000 + 1 must not exceed
// the truncation of 10 * percent.
bool CharaRollPercent(double percent);
