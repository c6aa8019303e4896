#pragma once
// The painters of the template's sheets, each returning its whole sheet.

#include "art/painter.h"

namespace art {

cCanvas DrawMapChipSheet();
cCanvas DrawWorldMapChipSheet();
cCanvas DrawWorldBack();
cCanvas DrawCharacterSheet(int team);
cCanvas DrawMapCharaSheet();
cCanvas DrawEventSheet();
cCanvas DrawWorldEventSheet();
cCanvas DrawAccessorySheet();
cCanvas DrawSymbolSheet();
cCanvas DrawEffectSheet(int variant);

// Tool bar strips of 16 x 16 images.
enum class eToolbar { kPen, kPalette, kTestPlay, kWorldPalette };
cCanvas DrawToolbar(eToolbar toolbar);

}  // namespace art
