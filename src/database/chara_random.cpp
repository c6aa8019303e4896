#include "database/chara_random.h"

#include <cstdlib>
#include <utility>

namespace {

std::function<int()>& Source() {
  static std::function<int()> source;
  return source;
}

}  // namespace

int CharaRand() {
  const int value = Source() ? Source()() : std::rand();
  return value < 0 ? -(value + 1) : value;  // a source must never give a negative remainder
}

void SetCharaRandomSource(std::function<int()> source) { Source() = std::move(source); }

int CharaRandBelow(int n) { return n > 0 ? CharaRand() % n : 0; }

int CharaRandBetween(int lo, int hi) {
  if (hi < lo) return lo;
  return static_cast<int>(static_cast<long long>(CharaRand()) % (static_cast<long long>(hi) - lo + 1) + lo);
}

bool CharaRollPercent(double percent) {
  if (!(percent > 0)) return false;
  return CharaRand() % 1000 + 1 <= static_cast<long long>(10 * percent);
}
