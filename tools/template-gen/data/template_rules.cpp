// The rule tables of the template's game: elements, compatibility, party variables,
// media rows, animations, help, terrain and the game-wide settings.

#include <array>
#include <iterator>

#include "art/art_layout.h"
#include "data/template_parts.h"
#include "platform/cp932.h"
#include "project/project_globals.h"

namespace TemplateData {

std::string Text(const char* utf8) { return Cp932FromLiteral(utf8); }

namespace {

namespace Art = TemplateArt;

void FillElements() {
  VECTOR_CLASS<cElem>& elems = g_System.m_vecElem;
  elems.assign(1, cElem());  // row 0 means no element
  for (const char* name : {"斬", "突", "打", "炎", "氷", "雷", "聖", "闇"}) elems.emplace_back().m_strName = Text(name);
}

// Each type's rules speak of what its attacks do against another type.
void FillCompatiTypes() {
  struct Rule {
    int target, what, op, value;
  };
  struct Type {
    const char* name;
    std::initializer_list<Rule> rules;
  };
  enum { kHit = 0, kCritical = 1, kDamage = 2 };
  enum { kAdd = 1, kPercent = 6 };
  const Type types[] = {
      {"人型", {}},
      {"獣", {{kHumanoid, kHit, kAdd, 10}}},
      {"不死", {{kHumanoid, kDamage, kPercent, 110}}},
      {"竜", {{kHumanoid, kDamage, kPercent, 120}, {kBeast, kDamage, kPercent, 150}}},
      {"粘体", {{kUndead, kDamage, kPercent, 50}, {kOoze, kCritical, kAdd, -10}}},
  };
  VECTOR_CLASS<cCompatiType>& table = g_Database.m_vecCompatiType;
  table.assign(1, cCompatiType());
  table[0].m_vecInfl.clear();
  for (const Type& type : types) {
    cCompatiType& row = table.emplace_back();
    row.m_strName = Text(type.name);
    row.m_vecInfl.clear();
    for (const Rule& rule : type.rules) {
      cInfl& infl = row.m_vecInfl.emplace_back();
      infl.m_nTarget = rule.target;
      infl.m_nWhat = rule.what;
      infl.m_nOp = rule.op;
      infl.m_nValue = rule.value;
    }
  }
}

void FillPartyValues() {
  struct Row {
    const char* name;
    const char* unit;
    int var, min, max, showParty, showSave;
  };
  const Row rows[] = {
      {"所持金", "Ｇ", kVarMoney, 0, 999999, 1, 1},
      {"難易度", "", kVarDifficulty, 0, 10, 0, 0},
      {"スカウト力", "", kVarScoutPower, 0, 100, 0, 0},
  };
  VECTOR_CLASS<cPtVal>& table = g_Database.m_vecPtVal;
  table.assign(1, cPtVal());
  for (const Row& row : rows) {
    cPtVal& value = table.emplace_back();
    value.m_strName = Text(row.name);
    value.m_strUnit = Text(row.unit);
    value.m_nCommonVar = row.var;
    value.m_nMin = row.min;
    value.m_nMax = row.max;
    value.m_bShowParty = row.showParty;
    value.m_bShowSave = row.showSave;
  }
}

void FillMediaRows() {
  struct BackRow {
    const char* name;
    std::array<int, 3> rgb;
  };
  const BackRow colours[] = {{"草原", {104, 168, 72}}, {"森", {40, 96, 48}},    {"山", {136, 112, 80}},
                             {"水辺", {64, 120, 200}}, {"屋内", {96, 96, 104}}};
  VECTOR_CLASS<cEdBack>& backs = g_Database.m_vecBack;
  backs.assign(1, cEdBack());
  for (const BackRow& colour : colours) {
    cEdBack& back = backs.emplace_back();
    back.m_strName = Text(colour.name);
    back.m_nKind = BACKKIND_COLOR;
    back.m_byRed = static_cast<std::uint8_t>(colour.rgb[0]);
    back.m_byGreen = static_cast<std::uint8_t>(colour.rgb[1]);
    back.m_byBlue = static_cast<std::uint8_t>(colour.rgb[2]);
  }
  cEdBack& world = backs.emplace_back();
  world.m_strName = Text("ワールド");
  world.m_nKind = BACKKIND_IMAGE;
  world.m_strPath = "image\\back\\World.png";

  VECTOR_CLASS<cEdPicture>& pictures = g_Database.m_vecPicture;
  pictures.assign(1, cEdPicture());
  cEdPicture& map = pictures.emplace_back();
  map.m_strName = Text("世界地図");
  map.m_strPath = "image\\back\\World.png";

  // In the order of the sound files the template draws.
  const char* const soundNames[] = {"カーソル", "決定", "キャンセル", "ブザー", "斬撃", "炎", "回復"};
  static_assert(std::size(soundNames) == std::size(Art::kWaveFiles));
  VECTOR_CLASS<cEdSound>& sounds = g_Database.m_vecSound;
  sounds.assign(1, cEdSound());
  for (std::size_t i = 0; i < std::size(soundNames); ++i) {
    cEdSound& sound = sounds.emplace_back();
    sound.m_bSameName = 0;
    sound.m_strName = Text(soundNames[i]);
    sound.m_strPath = std::string("wave\\") + Art::kWaveFiles[i];
  }

  const char* const bgmNames[] = {"フィールド", "バトル"};
  static_assert(std::size(bgmNames) == std::size(Art::kBgmFiles));
  VECTOR_CLASS<cEdBgm>& tunes = g_Database.m_vecBgm;
  tunes.assign(1, cEdBgm());
  for (std::size_t i = 0; i < std::size(bgmNames); ++i) {
    cEdBgm& tune = tunes.emplace_back();
    tune.m_bSameName = 0;
    tune.m_strName = Text(bgmNames[i]);
    tune.m_strPath = std::string("bgm\\") + Art::kBgmFiles[i];
  }
}

void FillAnimations() {
  struct Frame {
    int frame, time, startEffect = 0, moveX = 0;
  };
  struct Pattern {
    const char* name;
    Art::Figure preview;
    std::initializer_list<Frame> frames;
  };
  const Pattern charaPatterns[] = {
      {"攻撃", Art::kSwordsman,
       {{Art::kReadyFrame, 8}, {Art::kAttackFrame, 4, 1, 12}, {Art::kAttackFrame, 10}, {Art::kWalkFrame0, 6, 0, -12}}},
      {"魔法", Art::kMage, {{Art::kReadyFrame, 10}, {Art::kReadyFrame, 12, 1}, {Art::kWalkFrame0, 6}}},
      {"祈り", Art::kPriest, {{Art::kWalkFrame0, 8, 1}, {Art::kReadyFrame, 16}, {Art::kWalkFrame0, 6}}},
      {"射撃", Art::kArcher, {{Art::kReadyFrame, 10}, {Art::kAttackFrame, 6, 1}, {Art::kWalkFrame0, 8}}},
      {"体当たり", Art::kSlime,
       {{Art::kWalkFrame0, 4}, {Art::kWalkFrame1, 4, 1, 24}, {Art::kAttackFrame, 6}, {Art::kWalkFrame0, 8, 0, -24}}},
  };
  VECTOR_CLASS<cCharaAnimPat>& charaAnims = g_Database.m_vecCharaAnimPat;
  charaAnims.assign(1, cCharaAnimPat());
  for (const Pattern& pattern : charaPatterns) {
    cCharaAnimPat& row = charaAnims.emplace_back();
    row.m_strName = Text(pattern.name);
    const Art::Team team = pattern.preview >= Art::kSlime ? Art::kRedTeam : Art::kBlueTeam;
    row.m_sPreview = static_cast<std::int16_t>(Art::CharacterGraphic(team, pattern.preview));
    row.m_vecAnim.clear();
    for (const Frame& frame : pattern.frames) {
      cCharaAnim& anim = row.m_vecAnim.emplace_back();
      anim.m_nFrame = frame.frame;
      anim.m_nTime = frame.time;
      anim.m_bStartEffect = frame.startEffect;
      anim.m_nMoveX = frame.moveX;
    }
  }

  // Every effect row runs through its eight frames; the patterns differ in pace.
  const std::pair<const char*, int> effectPaces[] = {{"標準", 3}, {"速い", 2}, {"ゆっくり", 5}};
  VECTOR_CLASS<cEffectAnimPat>& effectAnims = g_Database.m_vecEffectAnimPat;
  effectAnims.assign(1, cEffectAnimPat());
  for (const auto& [name, time] : effectPaces) {
    cEffectAnimPat& row = effectAnims.emplace_back();
    row.m_strName = Text(name);
    row.m_sPreview = static_cast<std::int16_t>(Art::EffectGraphic(0, Art::kSlashEffect));
    row.m_vecAnim.clear();
    for (int frame = 0; frame < 8; ++frame) {
      cEffectAnim& anim = row.m_vecAnim.emplace_back();
      anim.m_nFrame = frame;
      anim.m_nTime = time;
    }
  }
}

void FillHelp() {
  struct Topic {
    const char* parent;
    const char* title;
    std::initializer_list<const char*> lines;
  };
  const Topic topics[] = {
      {"基本操作", "移動と行動",
       {"キャラを選ぶと移動できる範囲が表示されます。", "移動先を決めたら、行動メニューから", "「戦闘」「待機」などを選びます。"}},
      {"基本操作", "スキル",
       {"スキルはスキル編成メニューで覚えます。", "武器と防具もスキルの一種で、", "「装備」すると効果を発揮します。"}},
      {"戦闘", "地形",
       {"森や砦の上では守備が上がります。", "川や岩山には入れません。", "橋や浅瀬を渡って進みましょう。"}},
      {"戦闘", "属性と相性",
       {"炎・氷・雷などの属性には得手不得手があります。", "スケルトンには聖なる力がよく効きます。"}},
  };
  VECTOR_CLASS<cEdHelp>& help = g_Database.m_vecHelp;
  help.clear();
  for (const Topic& topic : topics) {
    cEdHelp& row = help.emplace_back();
    row.m_strParent = Text(topic.parent);
    row.m_strTitle = Text(topic.title);
    std::string& text = row.m_vecText[0].m_strText;
    for (const char* line : topic.lines) {
      if (!text.empty()) text += "\r\n";
      text += Text(line);
    }
  }
}

// One terrain per map chip, each in the row of its chip, so that maps can be drawn in
// chip numbers.
void FillTerrain() {
  struct Row {
    const char* name;
    Art::MapChip chip;
    int cost;  // 0: cannot be entered
    int defence, resistance, reaction;  // percent
    Back back;
    std::initializer_list<std::pair<Element, int>> rates;
    const char* desc;
  };
  const Row rows[] = {
      {"草原", Art::kGrass, 1, 0, 0, 0, kBackPlains, {}, "見晴らしの良い草原"},
      {"野原", Art::kMeadow, 1, 0, 0, 0, kBackPlains, {}, "草の茂る野原"},
      {"林", Art::kWoods, 2, 10, 0, 10, kBackForest, {{kFire, 110}}, "まばらな木立。守備＋10％"},
      {"森", Art::kForest, 3, 20, 0, 20, kBackForest, {{kFire, 120}}, "深い森。守備＋20％"},
      {"丘", Art::kHills, 2, 10, 0, 0, kBackMountain, {}, "小高い丘。守備＋10％"},
      {"山", Art::kMountain, 4, 30, 10, 0, kBackMountain, {}, "険しい山。守備＋30％"},
      {"岩山", Art::kPeak, 0, 0, 0, 0, kBackMountain, {}, "切り立った岩山。進入不可"},
      {"砂地", Art::kSand, 2, 0, 0, -10, kBackPlains, {}, "足を取られる砂地"},
      {"浅瀬", Art::kShallows, 3, -10, 0, -10, kBackWater, {{kThunder, 120}, {kFire, 80}}, "歩いて渡れる浅瀬"},
      {"川", Art::kWater, 0, 0, 0, 0, kBackWater, {}, "深い川。進入不可"},
      {"沼", Art::kSwamp, 3, -10, 0, -20, kBackWater, {{kThunder, 120}}, "ぬかるんだ沼地"},
      {"橋", Art::kBridge, 1, 0, 0, 0, kBackWater, {}, "川に架かる木の橋"},
      {"道", Art::kDirtRoad, 1, 0, 0, 0, kBackPlains, {}, "踏み固められた道"},
      {"石畳", Art::kStoneRoad, 1, 0, 0, 0, kBackPlains, {}, "石を敷いた街道"},
      {"村", Art::kVillage, 1, 10, 10, 0, kBackPlains, {}, "小さな村。守備＋10％"},
      {"砦", Art::kFort, 1, 30, 20, 0, kBackIndoor, {}, "守りの堅い砦。守備＋30％"},
      {"石壁", Art::kStoneWall, 0, 0, 0, 0, kBackIndoor, {}, "石の壁。進入不可"},
      {"城壁", Art::kCastleWall, 0, 0, 0, 0, kBackIndoor, {}, "城の壁。進入不可"},
      {"石床", Art::kStoneFloor, 1, 0, 0, 0, kBackIndoor, {}, "石の床"},
      {"木床", Art::kWoodFloor, 1, 0, 0, 0, kBackIndoor, {{kFire, 110}}, "木の床"},
      {"絨毯", Art::kCarpet, 1, 0, 0, 0, kBackIndoor, {}, "厚い絨毯"},
      {"階段", Art::kStairs, 1, 0, 0, -10, kBackIndoor, {}, "上り下りの階段"},
      {"扉", Art::kDoor, 1, 10, 0, 0, kBackIndoor, {}, "重い扉"},
      {"柱", Art::kPillar, 0, 0, 0, 0, kBackIndoor, {}, "太い柱。進入不可"},
  };
  static_assert(std::size(rows) == Art::kMapChipCount);
  g_vecLand.assign(Art::kMapChipCount, cLand());
  for (const Row& row : rows) {
    cLand& land = g_vecLand[row.chip];
    land.m_nID = row.chip;
    land.m_strName = Text(row.name);
    land.m_strDesc = Text(row.desc);
    land.m_nGraphic = row.chip;
    land.m_nMoveCost = row.cost > 0 ? row.cost : 1;
    land.m_bNoMove = row.cost == 0 ? 1 : 0;
    land.m_bTraining = row.cost > 0 ? 1 : 0;
    land.m_bPercent = 1;
    land.m_anStatus[3] = row.defence;
    land.m_anStatus[5] = row.resistance;
    land.m_anStatus[7] = row.reaction;
    land.m_nBack = row.back;
    land.FixRefs();  // one rate per element
    for (const auto& [elem, rate] : row.rates) land.m_vecElemRate[elem] = rate;
  }
}

void FillSystem() {
  cSystem& s = g_System;
  s.m_strGameName = Text("辺境の砦物語");

  // Growth: a little random growth and sense on top of the class lines.
  s.m_nGrowMin = 5;
  s.m_nGrowMax = 15;
  s.m_dGrowScout = 0.1;
  s.m_nSenseMin = 0;
  s.m_nSenseMax = 2;
  s.m_nScoutVal = kScoutPower;
  s.m_nGrowTimeMin = -2;
  s.m_nGrowTimeMax = 2;
  s.m_nGrowUnit = 1;
  s.m_nSenseUnit = 1;
  s.m_bRandomChange = 1;
  s.m_nChangeValue = 1;
  s.m_nChangeCount = 10;
  const double rates[kSystemStatusCount] = {5.0, 2.0, 1.0, 1.0, 1.0, 1.0, 1.0, 1.0, 1.0};
  std::copy(std::begin(rates), std::end(rates), s.m_adRate);

  // Experience: 100 makes a level.
  s.m_nExpBase = 20;
  s.m_dExpLevel = 5.0;
  s.m_dExpDifficulty = 0.1;
  s.m_dExpKill = 2.0;
  s.m_nExpMin = 1;
  s.m_nExpMax = 100;

  // Money, all from the one purse.
  s.m_nMoneyVal = kMoney;
  s.m_nHireVal = kMoney;
  s.m_nHireCost = 100;
  s.m_nHireCostLv = 50;
  s.m_nReviveVal = kMoney;
  s.m_nReviveCost = 100;
  s.m_nReviveCostLv = 50;
  s.m_nReleaseVal = kMoney;
  s.m_nReleasePrice = 50;
  s.m_nReleasePriceLv = 25;
  s.m_nSkillSellRate = 50;
  s.m_nDifficultyVal = kDifficulty;

  s.m_byKeyFirst = static_cast<std::uint8_t>(Art::kKeyColour & 0xFF);
  s.m_byKeySecond = static_cast<std::uint8_t>((Art::kKeyColour >> 8) & 0xFF);
  s.m_byKeyThird = static_cast<std::uint8_t>((Art::kKeyColour >> 16) & 0xFF);
  s.m_nFont = 60;  // the proportional Gothic face
  s.m_nPartyBack = kBackPlains;
  const Sound soundOf[kSystemSoundCount] = {
      kSeCursor, kSeDecide, kSeCancel, kSeBuzzer, kSeDecide, kSeCursor, kSeDecide, kSeDecide, kSeDecide,
      kSeDecide, kSeHeal,   kSeCancel, kSeDecide, kSeCursor, kSeSlash,  kSeSlash,  kSeHeal,   kSeDecide};
  for (int row = 0; row < kSystemSoundCount; ++row) {
    s.m_vecSoundFile[static_cast<std::size_t>(row)].m_strText = g_Database.m_vecSound[soundOf[row]].m_strPath;
  }
  s.m_vecBgm = {kBgmFree, kBgmFree, kBgmFree, kBgmBattle, kBgmFree};
  FillElements();
}

}  // namespace

void FillRuleTables() {
  FillCompatiTypes();
  FillPartyValues();
  FillMediaRows();
  FillAnimations();
  FillHelp();
  FillSystem();
  FillTerrain();  // needs the elements
}

}  // namespace TemplateData
