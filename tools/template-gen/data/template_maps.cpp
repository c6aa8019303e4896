// The maps of the template: the sample stage and the world map that leads to it.

#include <cstring>
#include <iterator>

#include "art/art_layout.h"
#include "data/template_parts.h"
#include "project/project_globals.h"

namespace TemplateData {

void PaintCells(VECTOR_CLASS<int>& cells, int shift, std::span<const char* const> rows,
                std::initializer_list<std::pair<char, int>> legend) {
  for (std::size_t y = 0; y < rows.size(); ++y) {
    const std::size_t width = std::strlen(rows[y]);
    for (std::size_t x = 0; x < width && x < (std::size_t{1} << shift); ++x) {
      for (const auto& [letter, value] : legend) {
        if (letter == rows[y][x]) cells[(y << shift) + x] = value;
      }
    }
  }
}

namespace {

namespace Art = TemplateArt;

// Terrain rows are chip numbers, so the letters name chips.
const std::initializer_list<std::pair<char, int>> kStageLegend = {
    {'.', Art::kGrass},     {',', Art::kMeadow},   {'w', Art::kWoods},   {'F', Art::kForest},
    {'h', Art::kHills},     {'M', Art::kMountain}, {'^', Art::kPeak},    {'~', Art::kWater},
    {'_', Art::kShallows},  {'x', Art::kSwamp},    {'=', Art::kBridge},  {':', Art::kDirtRoad},
    {'#', Art::kStoneRoad}, {'V', Art::kVillage},  {'T', Art::kFort},    {'S', Art::kStoneWall},
    {'f', Art::kStoneFloor},
};

// A river from north to south with a bridge on the road and a ford further down; a
// village in the north-western woods; a walled fort in the north-east below the hills.
constexpr const char* kSampleRows[] = {
    "FFFFw....~~....hhM^^",  //
    "FFFww....~~..SSSSSM^",  //
    "FFwwV....~~..SfTfSMM",  //
    "Fww......~~..SfffShM",  //
    "ww.......~~..SS#SShM",  //
    "w........~~....#..hh",  //
    ",,.......~~....#...h",  //
    "...::::::==::::#....",  //
    "...:.....~~.........",  //
    ",,.:..w..~~...ww....",  //
    ",..:.hh..~~..hhwF...",  //
    "...:.hhh.~~..hh.FF..",  //
    "...:..h..__...xxx...",  //
    "...:.....~~...xx....",  //
    "...:.....~~.........",  //
};

cGroupPos Group(const char* name, cMapPos centre, std::initializer_list<cMapPos> cells) {
  cGroupPos group;
  group.m_strName = Text(name);
  group.m_nCenterX = centre.x;
  group.m_nCenterY = centre.y;
  group.m_vecPos.assign(cells.begin(), cells.end());
  return group;
}

cEndCond Line(const char* text, int focus, int group = 0, cMapPos cell = {0, 0}) {
  cEndCond line;
  line.m_strText = Text(text);
  line.m_nFocus = focus;
  line.m_nFocusGroup = line.m_nShowGroup = group;
  line.m_nFocusX = cell.x;
  line.m_nFocusY = cell.y;
  return line;
}

enum StageGroup : int { kStartGroup = 1, kFortGroup = 2 };
enum Focus : int { kNoFocus = 0, kLeader = 1, kGroupFocus = 3, kCellFocus = 4 };
constexpr int kDragonGroup = 1;  // the enemy group an event calls up
constexpr cMapPos kDragonCell{18, 5};

VECTOR_CLASS<cPutEnemy> SampleEnemies() {
  struct Put {
    EnemyRow enemy;
    cMapPos cell;
    MoveTemplate ai;
  };
  const Put puts[] = {
      {kEnSlime, {6, 4}, kAiAmbush},     {kEnSlime, {7, 5}, kAiAmbush},      {kEnWolf, {14, 9}, kAiRush},
      {kEnWolf, {16, 10}, kAiRush},      {kEnGoblin, {12, 6}, kAiRush},      {kEnGoblin, {16, 7}, kAiAmbush},
      {kEnGoblin, {15, 5}, kAiGuardPost}, {kEnSkeleton, {15, 2}, kAiGuardPost}, {kEnDragon, kDragonCell, kAiRush},
  };
  VECTOR_CLASS<cPutEnemy> enemies;
  for (const Put& put : puts) {
    cPutEnemy& enemy = enemies.emplace_back();
    enemy.m_nEnemy = put.enemy;
    enemy.m_nX = put.cell.x;
    enemy.m_nY = put.cell.y;
    enemy.m_vecMoveAI = MoveRules(put.ai);
  }
  cPutEnemy& boss = enemies[7];
  boss.m_bCharaId = 1;
  boss.m_nCharaId = 1;
  cPutEnemy& dragon = enemies.back();
  dragon.m_bGroup = 1;
  dragon.m_nGroup = kDragonGroup;
  return enemies;
}

VECTOR_CLASS<cEvent> SampleEvents() {
  const Trigger allyStepsOn{kAfterAllyAction, kOnThisEvent, kAlly};
  cEventPage gift = Page(Art::kVillager, allyStepsOn,
                         {Message({"村人「旅の方、これをお持ち下さい。」"}), Action(EACT_SOUND, {{0, kSeHeal}}),
                          Action(EACT_STOCK, {{0, 0}, {1, kSkHerb}, {2, 3}}), Message({"薬草を3つ手に入れた！"}),
                          Action(EACT_EVENTVAR, {{0, 0}, {1, 1}})});
  gift.m_bEventVarCond = 1;  // the event variable is 0 until the gift is made
  cEventPage thanks = Page(Art::kVillager, allyStepsOn, {Message({"村人「どうかお気をつけて。」"})});
  thanks.m_bEventVarCond = 1;
  thanks.m_nEventVarValue = 1;

  cEventPage dragonWakes = Page(0, {kEnemyTurnStart},
                                {Message({"山の上から竜の咆哮が響いた……！"}), Action(EACT_SOUND, {{0, kSeFire}}),
                                 Action(EACT_MAPCURSOR, {{0, 3}, {2, kDragonCell.x}, {3, kDragonCell.y}}),
                                 Action(EACT_ENEMYGROUP, {{0, kDragonGroup}, {1, 1}})});
  dragonWakes.m_bTurnCondA = 1;
  dragonWakes.m_nTurnABase = 5;

  return {
      Event("作戦開始", 0, 14,
            {Page(0, {kBeforeStage},
                  {Message({"砦を占拠した魔物を追い払え！", "砦の中へ攻め込めば、こちらの勝ちだ。"})})}),
      Event("村", 4, 2, {gift, thanks}),
      Event("看板", 2, 8, {Page(Art::kSignpost, allyStepsOn, {Message({"北東：辺境の砦", "北西：村"})})}),
      Event("砦の制圧", 15, 3,
            {Page(Art::kFlag, {kAfterAllyAction, kInGroup, kAlly, kFortGroup},
                  {Message({"砦を取り戻した！"}), Action(EACT_STAGECLEAR)})}),
      Event("竜の目覚め", 19, 14, {dragonWakes}),
  };
}

}  // namespace

cStage SampleStage() {
  cStage stage;
  stage.m_strName = Text("辺境の砦");
  stage.Resize(20, 15);
  PaintCells(stage.m_vecMap, stage.m_nShift, kSampleRows, kStageLegend);
  stage.m_vecGroupPos = {
      cGroupPos(),
      Group("出撃", {2, 12}, {{1, 12}, {2, 12}, {4, 12}, {1, 13}, {2, 13}, {4, 13}}),
      Group("砦", {15, 2}, {{14, 2}, {15, 2}, {16, 2}, {14, 3}, {15, 3}, {16, 3}}),
  };
  stage.m_nStartGroup = kStartGroup;
  stage.m_vecPutEnemy = SampleEnemies();
  stage.m_vecEvent = SampleEvents();
  stage.m_vecWinCond = {Line("砦を制圧する", kGroupFocus, kFortGroup), Line("敵を全滅させる", kNoFocus)};
  stage.m_vecLoseCond = {Line("リーダーが倒れる", kLeader)};
  stage.m_vecRuleCond = {Line("山に眠る竜に注意", kCellFocus, 0, kDragonCell)};
  stage.m_nRewardVal = kMoney;
  stage.m_nReward = 300;
  stage.m_nRewardTurnCut = 2;
  stage.m_nBack = kBackPlains;
  stage.m_nBgm = kBgmFree;
  stage.m_bAllGroups = 0;  // the dragon waits for its event
  return stage;
}

void FillWorldMap() {
  struct Chip {
    const char* name;
    Art::WorldChip graphic;
    int noMove;
  };
  const Chip chips[] = {{"平原", Art::kPlains, 0},  {"森", Art::kWorldForest, 0}, {"山", Art::kWorldMountain, 1},
                        {"海", Art::kSea, 1},       {"海岸", Art::kCoast, 0},     {"砂漠", Art::kDesert, 0},
                        {"道", Art::kWorldRoad, 0}, {"川", Art::kRiver, 1}};
  static_assert(std::size(chips) == Art::kWorldChipCount);
  cWorldMap& world = g_WorldMap;
  world.Init();
  world.m_strName = Text("辺境地方");
  world.m_vecChip.clear();
  for (const Chip& chip : chips) {
    cWorldChip& row = world.m_vecChip.emplace_back();
    row.m_nID = world.m_vecChip.Count() - 1;
    row.m_strName = Text(chip.name);
    row.m_nGraphic = chip.graphic;
    row.m_bNoMove = chip.noMove;
  }

  // A coast in the west, mountains in the north, a river to cross on the road from the
  // village to the fort, and a desert in the south-east.
  static constexpr const char* kRows[] = {
      "~~~cmmmmmffmmmmmmmmm",  //
      "~~c..mmmfff..wmm.mmm",  //
      "~~c...mff....w...fmm",  //
      "~c...fff.....w..r.fm",  //
      "~c..fff......w..r..f",  //
      "~c...f.......w..r...",  //
      "~c........rrrrrrr...",  //
      "~c........r..w......",  //
      "~c.....f..r..w...dd.",  //
      "~~c...ff..r..w..ddd.",  //
      "~~c..rrrrrr..w.ddddd",  //
      "~~~c.........w.dd.dd",  //
      "~~~~c........w..dddd",  //
      "~~~~~cc.....cwc.cc~~",  //
      "~~~~~~~cccccc~~ccc~~",  //
  };
  PaintCells(world.m_vecMap, world.m_nShift, kRows,
             {{'.', Art::kPlains}, {'f', Art::kWorldForest}, {'m', Art::kWorldMountain}, {'~', Art::kSea},
              {'c', Art::kCoast}, {'d', Art::kDesert}, {'r', Art::kWorldRoad}, {'w', Art::kRiver}});
  world.m_nStartX = 4;
  world.m_nStartY = 10;
  world.m_nBack = kBackWorld;
  world.m_bUseImage = 1;
  world.m_strBackImage = "image\\back\\World.png";

  cWorldEvent village;
  village.m_strName = Text("ハルト村");
  village.m_nX = 4;
  village.m_nY = 10;
  village.m_vecPage[0].m_nType = WORLDEVENT_ROAD;
  village.m_vecPage[0].m_nGraphic = Art::kTown;

  cWorldEvent fort;
  fort.m_strName = Text("辺境の砦");
  fort.m_nX = 16;
  fort.m_nY = 3;
  cWorldEventPage& stage = fort.m_vecPage[0];
  stage.m_nType = WORLDEVENT_STAGE;
  stage.m_nGraphic = Art::kCastle;
  stage.m_nStageNo = 1;
  stage.m_nGameClear = 2;  // the sample game ends with its one stage
  stage.m_strStageName = Text("辺境の砦");
  stage.m_strStagePath = "data\\stg\\Sample.stg2";
  world.m_vecEvent = {village, fort};

  // Palette templates beside the default one.
  const std::pair<const char*, std::pair<int, Art::WorldEventGraphic>> templates[] = {
      {"町", {WORLDEVENT_ROAD, Art::kTown}},
      {"ステージ", {WORLDEVENT_STAGE, Art::kCastle}},
      {"洞窟", {WORLDEVENT_STAGE, Art::kCave}},
      {"塔", {WORLDEVENT_STAGE, Art::kTower}},
  };
  for (const auto& [name, kind] : templates) {
    cWorldEvent& row = world.m_vecEventPlt.emplace_back();
    row.m_strName = Text(name);
    row.m_vecPage[0].m_nType = kind.first;
    row.m_vecPage[0].m_nGraphic = kind.second;
  }
}

}  // namespace TemplateData
