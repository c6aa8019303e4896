#pragma once
// Where the template's pictures and sounds stand, so that the template's records can
// name them: chip numbers of the map chip sheets, graphic numbers of the character,
// event and world event sheets, and the file names of the sounds and tunes.

namespace TemplateArt {

// "image\MapChip.png": chip n at ((n mod 8) * 32, (n div 8) * 32). A terrain row's
// graphic is one of these.
enum MapChip : int {
  kGrass = 0, kMeadow = 1, kWoods = 2, kForest = 3, kHills = 4, kMountain = 5, kPeak = 6, kSand = 7,
  kShallows = 8, kWater = 9, kSwamp = 10, kBridge = 11, kDirtRoad = 12, kStoneRoad = 13, kVillage = 14, kFort = 15,
  kStoneWall = 16, kCastleWall = 17, kStoneFloor = 18, kWoodFloor = 19, kCarpet = 20, kStairs = 21, kDoor = 22,
  kPillar = 23,
  kMapChipCount = 24,
};

// Character graphics g (class graphic, map character): sheet "Character<g div 20 + 1>",
// row g mod 20. The sheet picks the team colour, the row the figure; g = 0 is no graphic.
enum Team : int { kBlueTeam = 0, kRedTeam = 1, kGreenTeam = 2, kYellowTeam = 3, kTeamCount = 4 };
enum Figure : int {
  kSwordsman = 1, kKnight = 2, kArcher = 3, kMage = 4, kPriest = 5, kThief = 6, kLancer = 7,
  kSlime = 8, kWolf = 9, kGoblin = 10, kSkeleton = 11, kDragon = 12, kBat = 13, kGolem = 14,
  kFigureCount = 15,
};
constexpr int CharacterGraphic(Team team, Figure figure) { return team * 20 + figure; }
// The eight frames of a character row, and of the two map frames in "image\MapChara"
// (x - 32 is the step frame).
enum CharaFrame : int {
  kWalkFrame0 = 0, kWalkFrame1 = 1, kWalkFrame2 = 2, kWalkFrame3 = 3,  // a step cycle, bobbing
  kReadyFrame = 4, kAttackFrame = 5,  // weapon drawn back, then the blow
  kHurtFrame = 6, kDownFrame = 7,     // flinching, then fallen
  kCharaFrameCount = 8,
};

// The transparent colour of the template's sheets: the system record's default, black.
// Character and effect sheets stand on it; no drawn pixel takes it.
constexpr unsigned kKeyColour = 0x000000;

// "image\Event.png": graphic g at ((g div 32) * 64, (g mod 32) * 32). An event page's
// graphic 0 stands for "no picture", so the cell of 0 stays empty.
enum EventGraphic : int {
  kChest = 1, kOpenChest = 2, kSignpost = 3, kEventDoor = 4, kVillager = 5, kEventStairs = 6, kCrystal = 7,
  kFlag = 8, kEventGraphicCount = 9,
};

// Effect graphics n: sheet "Effect<n div 16 + 1>", row n mod 16, 8 frames. Each sheet
// holds the same motifs in its own colours (the first in their natural ones); n = 0 is
// no graphic, so the first sheet's row 0 stays empty.
enum EffectMotif : int {
  kSparkEffect = 0, kSlashEffect = 1, kThrustEffect = 2, kArrowEffect = 3, kImpactEffect = 4, kFireEffect = 5,
  kIceEffect = 6, kThunderEffect = 7, kWindEffect = 8, kEarthEffect = 9, kHealEffect = 10, kHolyEffect = 11,
  kDarkEffect = 12, kPoisonEffect = 13, kExplosionEffect = 14, kBarrierEffect = 15, kEffectMotifCount = 16,
};
constexpr int EffectGraphic(int colourVariant, EffectMotif motif) { return colourVariant * 16 + motif; }
constexpr int kEffectVariantCount = 8;

// "image\Symbol.png": symbol n at ((n mod 16) * 16, (n div 16) * 16), 16 by 16.
enum Symbol : int {
  kSwordSymbol = 0, kSpearSymbol = 1, kBowSymbol = 2, kStaffSymbol = 3, kAxeSymbol = 4, kDaggerSymbol = 5,
  kFireSymbol = 6, kIceSymbol = 7, kThunderSymbol = 8, kWindSymbol = 9, kEarthSymbol = 10, kLightSymbol = 11,
  kDarkSymbol = 12, kHealSymbol = 13, kShieldSymbol = 14, kArmorSymbol = 15,
  kPotionSymbol = 16, kRingSymbol = 17, kBookSymbol = 18, kKeySymbol = 19, kCoinSymbol = 20, kStarSymbol = 21,
  kHeartSymbol = 22, kSkullSymbol = 23, kPoisonSymbol = 24, kSleepSymbol = 25, kUpSymbol = 26, kDownSymbol = 27,
  kBootSymbol = 28, kEyeSymbol = 29, kGemSymbol = 30, kFistSymbol = 31, kSymbolCount = 32,
};

// "image\WorldMapChip.png": chip n at ((n mod 8) * 32, (n div 8) * 32).
enum WorldChip : int {
  kPlains = 0, kWorldForest = 1, kWorldMountain = 2, kSea = 3, kCoast = 4, kDesert = 5, kWorldRoad = 6,
  kRiver = 7, kWorldChipCount = 8,
};

// "image\WorldEvent.png": row g, x 0 for a place with a stage, 32 without.
enum WorldEventGraphic : int { kTown = 0, kCastle = 1, kCave = 2, kTower = 3, kShrine = 4, kWorldEventGraphicCount = 5 };

// Sheet sizes the template draws; the heights of the tall sheets are what the folds of
// the project load expect.
struct SheetSize {
  int width;
  int height;
};
constexpr SheetSize kMapChipSize{256, 1024};
constexpr SheetSize kMapCharaSize{512, 640};
constexpr SheetSize kCharacterSize{384, 960};  // 8 frames of 48 by 48, 20 rows
constexpr SheetSize kEventSize{1024, 1024};
constexpr SheetSize kWorldMapChipSize{256, 1024};
constexpr SheetSize kWorldEventSize{64, 512};
constexpr SheetSize kSymbolSize{256, 64};       // 16 by 16 symbols, 16 to a row
constexpr SheetSize kEffectSize{512, 1024};     // 8 frames of 64 by 64, 16 rows
constexpr SheetSize kAccessorySize{128, 128};
constexpr SheetSize kWorldBackSize{640, 480};   // "image\back\World.png", behind the world map

// Sounds ("wave\") and tunes ("bgm\"), as the sound and music tables name them.
inline constexpr const char* kWaveFiles[] = {"Cursor.wav", "Decide.wav", "Cancel.wav", "Buzzer.wav",
                                             "Slash.wav",  "Fire.wav",   "Heal.wav"};
inline constexpr const char* kBgmFiles[] = {"Free.mid", "Battle.mid"};

}  // namespace TemplateArt
