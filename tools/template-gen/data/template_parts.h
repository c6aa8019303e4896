#pragma once
// The pieces of the template's game. Each fills some of the project's globals and may
// read the tables filled before it, in the order WriteTemplateData calls them; the rows
// that records of other pieces refer to are named here.

#include <initializer_list>
#include <span>
#include <string>
#include <utility>

#include "event/event.h"
#include "kernel/vector_class.h"
#include "stage/stage.h"

namespace TemplateData {

// CP932 bytes of a UTF-8 text, for tables of Japanese names.
std::string Text(const char* utf8);

// Rows of the tables with a reserved row 0, as other records name them.
enum Element : int { kSlash = 1, kPierce, kBlunt, kFire, kIce, kThunder, kHoly, kDark };
enum CompatiType : int { kHumanoid = 1, kBeast, kUndead, kDragonKind, kOoze };
enum PartyVal : int { kMoney = 1, kDifficulty, kScoutPower };
enum CommonVar : int { kVarMoney = 1, kVarDifficulty, kVarScoutPower, kVarRound, kVarRoute };
enum Back : int { kBackPlains = 1, kBackForest, kBackMountain, kBackWater, kBackIndoor, kBackWorld };
enum Sound : int { kSeCursor = 1, kSeDecide, kSeCancel, kSeBuzzer, kSeSlash, kSeFire, kSeHeal };
enum Bgm : int { kBgmFree = 1, kBgmBattle };
enum CharaAnim : int { kAnimStrike = 1, kAnimCast, kAnimPray, kAnimShoot, kAnimCharge };
enum EffectAnim : int { kEffectNormal = 1, kEffectQuick, kEffectSlow };

// The one skill list and its categories (row 0 in use).
enum Category : int { kCatSword, kCatLance, kCatBow, kCatMagic, kCatHoly, kCatTech, kCatBeast, kCatGuard };
enum SkillRow : int {
  kSkCut = 1, kSkThrust, kSkShot, kSkStaff, kSkBite, kSkTackle, kSkHeavyCut, kSkCharge, kSkDoubleShot, kSkFire,
  kSkBlizzard, kSkThunder, kSkHoly, kSkDark, kSkHeal, kSkHighHeal, kSkGale, kSkGuard, kSkFlameBreath, kSkHerb,
  kSkCopperSword, kSkIronLance, kSkShortBow, kSkOakStaff, kSkLeatherArmour, kSkIronShield, kSkillRows,
};

enum ClassRow : int {
  kClSwordsman = 1, kClKnight, kClArcher, kClMage, kClPriest, kClThief,
  kClSlime, kClWolf, kClGoblin, kClSkeleton, kClDragon,
};
enum AllyRow : int { kAllen = 1, kBerg, kSina, kMilfa, kCecil, kRow, kMercenary };
enum EnemyRow : int { kEnSlime = 1, kEnWolf, kEnGoblin, kEnSkeleton, kEnDragon };
enum MoveTemplate : int { kAiRush, kAiAmbush, kAiHealer, kAiGuardPost };

// Rule tables: elements, compatibility types, party variables, media, animations,
// help, terrain and the game-wide settings.
void FillRuleTables();
// The skill list, classes, allies, enemies and the move AI templates.
void FillCharacters();
// The start event, the two palettes and the names of the common variables.
void FillStoredEvents();
// The world map with its chips and the place of the sample stage.
void FillWorldMap();
// The sample stage: map, enemies, position groups, descriptions and events.
cStage SampleStage();

// The rules of a move AI template, for enemies of the stages.
VECTOR_CLASS<cMoveAI> MoveRules(MoveTemplate which);

// When a page fires: its timing, and who must stand where.
enum Timing : int { kAfterAllyAction = 2, kEnemyTurnStart = 4, kBeforeStage = 21 };
enum TargetRange : int { kAnywhere = 0, kOnThisEvent = 2, kInGroup = 3 };
enum TargetChara : int { kAnyChara = 0, kAlly = 1 };
struct Trigger {
  Timing timing;
  TargetRange range = kAnywhere;
  TargetChara chara = kAnyChara;
  int posGroup = 1;
};
cEventPage Page(int graphic, Trigger trigger, std::initializer_list<cEventAct> actions);
cEvent Event(const char* name, int x, int y, std::initializer_list<cEventPage> pages);

// An action of `kind` as its form makes a new one, with the given integer slots
// changed and, for kinds with a text, the text.
cEventAct Action(int kind, std::initializer_list<std::pair<int, int>> slots = {}, const std::string& text = {});
// A message action; lines are joined with CR LF.
cEventAct Message(std::initializer_list<const char*> lines);

// Map cells from rows of letters: rows[y][x] looked up in `legend` as pairs of a letter
// and a value. Cells are addressed with `shift` as in every map.
void PaintCells(VECTOR_CLASS<int>& cells, int shift, std::span<const char* const> rows,
                std::initializer_list<std::pair<char, int>> legend);

}  // namespace TemplateData
