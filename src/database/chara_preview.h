#pragma once
// The two columns of the ally and enemy pages: what the game makes of the working row
// ("ゲーム値") and what its class alone would give ("参考値"), each computed on copies by
// the game's own generation and levelling, without randomness.

#include <array>

#include "database/chara.h"

struct CHARA_PREVIEW {
  bool bValid = false;  // false while the class row is 0 or past the table
  std::array<int, cChara::kStatusCount> anGame{};
  std::array<int, cChara::kStatusCount> anReference{};
};

CHARA_PREVIEW PreviewChara(const cChara& working);
