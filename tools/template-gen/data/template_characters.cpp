// The skills, classes, allies and enemies of the template's game, and the move AI
// templates its enemies use.

#include <algorithm>
#include <iterator>

#include "art/art_layout.h"
#include "data/template_parts.h"
#include "database/ai_labels.h"
#include "database/skill_kind_rules.h"
#include "project/project_globals.h"

namespace TemplateData {

namespace {

namespace Art = TemplateArt;

constexpr int kList = 0;  // the one skill list
constexpr int kStatus = cClass::kStatusCount;

void FillSkillList() {
  cSkillList& list = g_vecSkillList.emplace_back();
  list.m_strName = Text("スキル");
  list.m_nMoneyVal = kMoney;
  list.m_bSymbolSense = 1;
  list.m_vecCateg.clear();
  const std::pair<const char*, Art::Symbol> categories[] = {
      {"剣", Art::kSwordSymbol}, {"槍", Art::kSpearSymbol}, {"弓", Art::kBowSymbol},     {"魔", Art::kBookSymbol},
      {"聖", Art::kLightSymbol}, {"技", Art::kDaggerSymbol}, {"獣", Art::kFistSymbol}, {"防", Art::kShieldSymbol}};
  for (const auto& [name, symbol] : categories) {
    cCateg& categ = list.m_vecCateg.emplace_back();
    categ.m_nSymbol = symbol;
    categ.m_strName = Text(name);
  }

  struct Def {
    const char* name;
    int kind;
    Category categ;
    int elem, power, sp, hit, crit, price;
    Art::EffectMotif effect;  // in its natural colours
    CharaAnim anim;
    Sound sound;
    const char* desc;
  };
  enum { kPhys = kSkillPhysicalAttack, kMagic = kSkillMagicAttack, kHeal = kSkillHeal, kCut = kSkillDamageCut };
  enum { kSupport = kSkillSupport, kWeapon = kSkillPhysicalWeapon, kStaffW = kSkillMagicWeapon, kArmour = kSkillArmour };
  const Def defs[] = {
      {"斬りつけ", kPhys, kCatSword, kSlash, 10, 0, 95, 5, 0, Art::kSlashEffect, kAnimStrike, kSeSlash, "剣で斬りつける。"},
      {"突き", kPhys, kCatLance, kPierce, 10, 0, 95, 5, 0, Art::kThrustEffect, kAnimStrike, kSeSlash, "槍で突く。"},
      {"射撃", kPhys, kCatBow, kPierce, 9, 0, 90, 5, 0, Art::kArrowEffect, kAnimShoot, kSeSlash, "弓で射る。"},
      {"殴打", kPhys, kCatTech, kBlunt, 6, 0, 90, 2, 0, Art::kImpactEffect, kAnimStrike, kSeSlash, "杖で殴る。"},
      {"噛みつき", kPhys, kCatBeast, kPierce, 10, 0, 95, 8, 0, Art::kThrustEffect, kAnimCharge, kSeSlash, "鋭い牙で噛みつく。"},
      {"体当たり", kPhys, kCatBeast, kBlunt, 8, 0, 95, 3, 0, Art::kImpactEffect, kAnimCharge, kSeSlash, "全身でぶつかる。"},
      {"強斬り", kPhys, kCatSword, kSlash, 20, 4, 90, 10, 200, Art::kSlashEffect, kAnimStrike, kSeSlash, "力をこめて斬る。"},
      {"突撃", kPhys, kCatLance, kPierce, 22, 5, 85, 5, 200, Art::kThrustEffect, kAnimCharge, kSeSlash, "勢いをつけて突進する。"},
      {"二段射ち", kPhys, kCatBow, kPierce, 16, 4, 85, 10, 200, Art::kArrowEffect, kAnimShoot, kSeSlash, "素早く二本の矢を射る。"},
      {"ファイア", kMagic, kCatMagic, kFire, 18, 4, 100, 0, 300, Art::kFireEffect, kAnimCast, kSeFire, "炎で敵を焼く。"},
      {"ブリザード", kMagic, kCatMagic, kIce, 22, 6, 95, 0, 400, Art::kIceEffect, kAnimCast, kSeFire, "吹雪で敵を凍らせる。"},
      {"サンダー", kMagic, kCatMagic, kThunder, 26, 8, 90, 0, 500, Art::kThunderEffect, kAnimCast, kSeFire, "雷を落とす。"},
      {"ホーリー", kMagic, kCatHoly, kHoly, 24, 8, 100, 0, 500, Art::kHolyEffect, kAnimPray, kSeFire, "聖なる光で不死の者を討つ。"},
      {"ダーク", kMagic, kCatMagic, kDark, 20, 6, 95, 0, 0, Art::kDarkEffect, kAnimCast, kSeFire, "闇の力で敵を蝕む。"},
      {"ヒール", kHeal, kCatHoly, 0, 25, 4, 100, 0, 200, Art::kHealEffect, kAnimPray, kSeHeal, "味方のHPを回復する。"},
      {"ハイヒール", kHeal, kCatHoly, 0, 60, 10, 100, 0, 600, Art::kHealEffect, kAnimPray, kSeHeal, "味方のHPを大きく回復する。"},
      {"疾風", kSupport, kCatTech, 0, 0, 3, 100, 0, 200, Art::kWindEffect, kAnimPray, kSeDecide, "敏捷を高める。"},
      {"防御", kCut, kCatGuard, 0, 50, 0, 100, 0, 0, Art::kBarrierEffect, kAnimPray, kSeDecide, "身を守り、ダメージを減らす。"},
      {"火炎の息", kMagic, kCatBeast, kFire, 30, 5, 100, 0, 0, Art::kFireEffect, kAnimCharge, kSeFire, "灼熱の炎を吐く。"},
      {"薬草", kHeal, kCatTech, 0, 30, 0, 100, 0, 20, Art::kHealEffect, kAnimPray, kSeHeal, "HPを少し回復する薬草。"},
      {"銅の剣", kWeapon, kCatSword, kSlash, 5, 0, 95, 5, 100, Art::kSlashEffect, kAnimStrike, kSeSlash, "銅で打った剣。"},
      {"鉄の槍", kWeapon, kCatLance, kPierce, 7, 0, 90, 5, 150, Art::kThrustEffect, kAnimStrike, kSeSlash, "鉄の穂先の槍。"},
      {"短弓", kWeapon, kCatBow, kPierce, 5, 0, 95, 5, 120, Art::kArrowEffect, kAnimShoot, kSeSlash, "扱いやすい小さな弓。"},
      {"樫の杖", kStaffW, kCatMagic, kBlunt, 4, 0, 100, 0, 100, Art::kImpactEffect, kAnimCast, kSeSlash, "魔力を宿す樫の杖。"},
      {"革の鎧", kArmour, kCatGuard, 0, 0, 0, 100, 0, 80, Art::kBarrierEffect, kAnimStrike, kSeDecide, "なめし革の鎧。守備＋4"},
      {"鉄の盾", kArmour, kCatGuard, 0, 0, 0, 100, 0, 150, Art::kBarrierEffect, kAnimStrike, kSeDecide, "鉄の盾。守備＋6"},
  };
  static_assert(std::size(defs) + 1 == kSkillRows);

  list.m_vecSkill.assign(1, cSkill());
  for (const Def& def : defs) {
    cSkill& skill = list.m_vecSkill.emplace_back();
    skill.m_nID = list.m_vecSkill.Count() - 1;
    skill.m_strName = Text(def.name);
    skill.m_strDesc = Text(def.desc);
    skill.m_nKind = def.kind;
    skill.m_nCateg = def.categ;
    skill.m_nElem = def.elem;
    skill.m_nEffectValue = def.power;
    skill.m_nCostSP = def.sp;
    skill.m_nHitRate = def.hit;
    skill.m_nCriticalRate = def.crit;
    skill.m_nPrice = def.price;
    skill.m_nEffect = Art::EffectGraphic(0, def.effect);
    skill.m_nCharaAnim = def.anim;
    skill.m_nEffectAnim = kEffectNormal;
    skill.m_nSound = def.sound;
    skill.m_nRankMin = skill.m_nRankMax = def.price > 0 ? 1 + def.price / 200 : 0;
    skill.m_nRarity = def.price > 0 ? 50 : 0;
  }
  auto skill = [&list](SkillRow row) -> cSkill& { return list.m_vecSkill[row]; };
  for (SkillRow heal : {kSkHeal, kSkHighHeal}) skill(heal).m_bUseMapSkill = 1;
  skill(kSkGuard).m_bUseBattleQuick = 1;
  skill(kSkGale).m_anSubEffectA[8] = 10;
  skill(kSkLeatherArmour).m_anSubEffectA[3] = 4;
  skill(kSkIronShield).m_anSubEffectA[3] = 6;
  // The herb is an item: bought, kept in the stock and used from there.
  cSkill& herb = skill(kSkHerb);
  herb.m_bUseMapStock = herb.m_bUseBattleStock = 1;
  herb.m_bUseBattleSkill = 0;
  // What a hired hand may pick up on the way.
  struct Learn {
    SkillRow row;
    int rate, lvMin, lvMax;
  };
  for (const Learn& learn : {Learn{kSkHeavyCut, 30, 3, 8}, Learn{kSkCharge, 20, 4, 10}, Learn{kSkDoubleShot, 20, 4, 10},
                             Learn{kSkGale, 20, 2, 6}, Learn{kSkFire, 10, 3, 8}, Learn{kSkHeal, 10, 3, 8}}) {
    skill(learn.row).m_nLearnRate = learn.rate;
    skill(learn.row).m_dLearnRateSense = 5.0;
    skill(learn.row).m_nLearnLvMin = learn.lvMin;
    skill(learn.row).m_nLearnLvMax = learn.lvMax;
  }
  for (cSkill& row : list.m_vecSkill) ApplySkillKindRules(row);
}

void FillClasses() {
  struct Def {
    const char* name;
    Art::Figure figure;
    int move, fly, levelMax;
    int init[kStatus], final[kStatus];  // HP SP attack defence magic resistance skill reaction agility
    SkillRow attack;
    std::initializer_list<std::pair<Category, int>> sense;
    std::initializer_list<std::pair<Element, int>> resist;
  };
  const Def defs[] = {
      {"剣士", Art::kSwordsman, 5, 0, 30, {30, 10, 12, 8, 3, 5, 10, 8, 9}, {300, 80, 150, 100, 40, 60, 120, 100, 110},
       kSkCut, {{kCatSword, 3}, {kCatTech, 1}, {kCatGuard, 1}}, {}},
      {"騎士", Art::kKnight, 4, 0, 30, {36, 6, 11, 12, 2, 6, 8, 6, 6}, {380, 60, 140, 160, 30, 70, 100, 80, 80},
       kSkThrust, {{kCatLance, 3}, {kCatSword, 1}, {kCatGuard, 2}}, {{kSlash, 90}, {kPierce, 90}}},
      {"弓兵", Art::kArcher, 5, 0, 30, {26, 8, 10, 6, 4, 6, 12, 10, 10}, {260, 70, 130, 80, 50, 70, 150, 120, 120},
       kSkShot, {{kCatBow, 3}, {kCatTech, 1}, {kCatGuard, 1}}, {}},
      {"魔術師", Art::kMage, 4, 0, 30, {22, 20, 4, 4, 14, 10, 8, 8, 8}, {220, 200, 50, 50, 180, 140, 100, 100, 100},
       kSkStaff, {{kCatMagic, 3}, {kCatTech, 1}}, {{kFire, 90}, {kIce, 90}, {kThunder, 90}}},
      {"僧侶", Art::kPriest, 4, 0, 30, {24, 18, 5, 5, 11, 14, 8, 8, 7}, {240, 180, 60, 60, 140, 170, 100, 100, 90},
       kSkStaff, {{kCatHoly, 3}, {kCatMagic, 1}, {kCatTech, 1}}, {{kHoly, 50}, {kDark, 120}}},
      {"盗賊", Art::kThief, 6, 0, 30, {26, 8, 9, 6, 3, 6, 12, 14, 14}, {260, 60, 110, 70, 40, 60, 140, 160, 170},
       kSkCut, {{kCatTech, 3}, {kCatSword, 1}, {kCatBow, 1}}, {}},
      {"スライム", Art::kSlime, 3, 0, 50, {18, 0, 6, 4, 2, 4, 4, 4, 4}, {180, 0, 60, 40, 20, 40, 40, 40, 40},
       kSkTackle, {{kCatBeast, 1}}, {{kBlunt, 50}, {kFire, 150}, {kIce, 80}}},
      {"ウルフ", Art::kWolf, 6, 0, 50, {22, 0, 9, 5, 1, 3, 8, 10, 12}, {220, 0, 110, 60, 10, 30, 90, 120, 140},
       kSkBite, {{kCatBeast, 2}}, {{kFire, 120}}},
      {"ゴブリン", Art::kGoblin, 4, 0, 50, {26, 4, 10, 6, 2, 4, 7, 6, 7}, {260, 40, 120, 70, 20, 40, 80, 70, 80},
       kSkCut, {{kCatSword, 1}}, {}},
      {"スケルトン", Art::kSkeleton, 4, 0, 50, {30, 10, 11, 8, 6, 6, 8, 5, 5}, {300, 100, 130, 100, 80, 80, 90, 60, 60},
       kSkCut, {{kCatSword, 1}, {kCatMagic, 2}}, {{kSlash, 80}, {kPierce, 50}, {kBlunt, 150}, {kHoly, 200}, {kDark, 0}}},
      {"ドラゴン", Art::kDragon, 5, 1, 50, {120, 40, 24, 18, 16, 16, 14, 10, 10},
       {900, 300, 300, 250, 250, 250, 200, 150, 150}, kSkBite, {{kCatBeast, 3}}, {{kFire, 0}, {kIce, 150}}},
  };
  g_vecClass.assign(1, cClass());
  for (const Def& def : defs) {
    cClass& row = g_vecClass.emplace_back();
    row.m_nID = g_vecClass.Count() - 1;
    row.m_strName = Text(def.name);
    const Art::Team team = def.figure >= Art::kSlime ? Art::kRedTeam : Art::kBlueTeam;
    row.m_nGraphic = Art::CharacterGraphic(team, def.figure);
    row.m_nMove = def.move;
    row.m_bFly = def.fly;
    row.m_nLevelMax = def.levelMax;
    std::copy(std::begin(def.init), std::end(def.init), row.m_anInit);
    std::copy(std::begin(def.final), std::end(def.final), row.m_anFinal);
    row.m_nAtkList = kList;
    row.m_nAtkSkill = def.attack;
    for (const auto& [categ, sense] : def.sense) row.m_vecvecSense[kList][categ] = sense;
    for (const auto& [elem, resist] : def.resist) row.m_vecElemResist[elem] = resist;
  }
}

void FillAllies() {
  struct Def {
    const char* name;
    ClassRow cls;
    std::initializer_list<std::pair<SkillRow, int>> learn;  // skill, level
  };
  const Def defs[] = {
      {"アレン", kClSwordsman, {{kSkCopperSword, 1}, {kSkLeatherArmour, 1}, {kSkHeavyCut, 5}}},
      {"ベルク", kClKnight, {{kSkIronLance, 1}, {kSkIronShield, 1}, {kSkGuard, 3}, {kSkCharge, 5}}},
      {"シーナ", kClArcher, {{kSkShortBow, 1}, {kSkDoubleShot, 5}}},
      {"ミルファ", kClMage, {{kSkOakStaff, 1}, {kSkFire, 1}, {kSkBlizzard, 6}, {kSkThunder, 12}}},
      {"セシル", kClPriest, {{kSkOakStaff, 1}, {kSkHeal, 1}, {kSkHoly, 6}, {kSkHighHeal, 10}}},
      {"ロウ", kClThief, {{kSkCopperSword, 1}, {kSkGale, 3}}},
  };
  g_vecFriend.assign(1, cFriend());
  for (const Def& def : defs) {
    cFriend& ally = g_vecFriend.emplace_back();
    ally.m_nID = g_vecFriend.Count() - 1;
    ally.m_strName = Text(def.name);
    ally.m_bRandomName = 0;
    ally.m_bRandomSkill = 0;
    ally.m_nClass = def.cls;
    ally.m_nCompatiType = kHumanoid;
    ally.m_bInShop = 0;  // they join through the start event
    ally.m_bAnyTimes = 0;
    for (const auto& [row, level] : def.learn) {
      cLearnSkill& learn = ally.m_vecLearnSkill.emplace_back();
      learn.m_nList = kList;
      learn.m_nSkill = row;
      learn.m_nLevel = level;
    }
  }
  // A hand for hire, named and grown at random each time.
  cFriend& hand = g_vecFriend.emplace_back();
  hand.m_nID = kMercenary;
  hand.m_strName = Text("傭兵");
  hand.m_nNameFile = 0;
  hand.m_nClass = kClSwordsman;
  hand.m_nCompatiType = kHumanoid;
  hand.m_bRandomSense = 1;
  for (cFriend& ally : g_vecFriend) ally.FixRefs();
}

cBattleAI BattleAction(int action, SkillRow row, int level, int value) {
  cBattleAI ai;
  ai.m_nAction = action;
  ai.m_nList = kList;
  ai.m_nSkill = row;
  ai.m_nPriorityLv = level;
  ai.m_nPriorityVal = value;
  return ai;
}

void FillEnemies() {
  struct Def {
    const char* name;
    ClassRow cls;
    int level, money;
    CompatiType type;
    const char* desc;
  };
  const Def defs[] = {
      {"スライム", kClSlime, 1, 10, kOoze, "ぷるぷるした粘体の魔物。\r\n打撃は効きにくいが、炎に弱い。"},
      {"ウルフ", kClWolf, 2, 12, kBeast, "群れで狩りをする狼。\r\n足が速く、森を駆け抜ける。"},
      {"ゴブリン", kClGoblin, 3, 20, kHumanoid, "砦に住み着いた小鬼。\r\n錆びた剣を振り回す。"},
      {"スケルトン", kClSkeleton, 5, 40, kUndead, "動く骸骨。闇の魔法を使う。\r\n聖なる力と打撃に弱い。"},
      {"ドラゴン", kClDragon, 10, 200, kDragonKind, "山に眠る竜。\r\n炎の息は全てを焼き尽くす。"},
  };
  g_vecEnemy.assign(1, cEnemy());
  for (const Def& def : defs) {
    cEnemy& enemy = g_vecEnemy.emplace_back();
    enemy.m_nID = g_vecEnemy.Count() - 1;
    enemy.m_strName = Text(def.name);
    enemy.m_strDesc = Text(def.desc);
    enemy.m_bRandomName = 0;
    enemy.m_nClass = def.cls;
    enemy.m_nLevel = def.level;
    enemy.m_nCompatiType = def.type;
    enemy.m_nMoneyVal = kMoney;
    enemy.m_nMoney = def.money;
    enemy.m_vecBattleAI = {BattleAction(kAIAttack, kSkCut, 1, 10)};
    enemy.m_vecMoveAI = MoveRules(kAiRush);
  }
  cEnemy& skeleton = g_vecEnemy[kEnSkeleton];
  cBattleAI& dark = skeleton.m_vecBattleAI.emplace_back(BattleAction(kAISkill, kSkDark, 2, 5));
  cBattleAICond& enoughSp = dark.m_vecCond.emplace_back();
  enoughSp.m_nWhat = 1;  // own SP
  enoughSp.m_nValue = 6;
  enoughSp.m_nOp = 2;  // at least
  skeleton.m_vecMoveAI = MoveRules(kAiGuardPost);
  g_vecEnemy[kEnDragon].m_vecBattleAI.push_back(BattleAction(kAISkill, kSkFlameBreath, 1, 10));
  for (cEnemy& enemy : g_vecEnemy) enemy.FixRefs();
}

cMoveAI Rule(int range, int goal, int action, int skill = 0) {
  cMoveAI rule;
  rule.m_nRange = range;
  rule.m_nGoal = goal;
  rule.m_nAction = action;
  rule.m_nList = kList;
  rule.m_nSkill = skill;
  return rule;
}

// MOVERANGE: 0 whole map, 1 within reach, 2 self and the four neighbours.
// MOVEGOAL: 0 nearest ally, 8 weakest enemy, 9 oneself.
struct MoveTemplateDef {
  const char* name;
  const char* desc;
  std::initializer_list<cMoveAI> rules;
};

const MoveTemplateDef& MoveTemplateOf(MoveTemplate which) {
  static const MoveTemplateDef defs[] = {
      {"突撃", "マップのどこにいても、最も近い味方へ向かって戦う。", {Rule(0, 0, kMoveBattle)}},
      {"待ち伏せ", "行動範囲に味方が入るまで動かない。", {Rule(1, 0, kMoveBattle), Rule(0, 9, kMoveWait)}},
      {"回復役", "弱った仲間を回復し、手が空けば戦う。",
       {Rule(1, 8, kMoveHeal, kSkHeal), Rule(1, 0, kMoveBattle), Rule(0, 9, kMoveWait)}},
      {"拠点防衛", "持ち場を離れず、隣に来た味方とだけ戦う。", {Rule(2, 0, kMoveBattle), Rule(0, 9, kMoveWait)}},
  };
  return defs[which];
}

void FillMoveTemplates() {
  g_vecMoveAITemplate.clear();
  for (MoveTemplate which : {kAiRush, kAiAmbush, kAiHealer, kAiGuardPost}) {
    const MoveTemplateDef& def = MoveTemplateOf(which);
    cMoveAITemplate& row = g_vecMoveAITemplate.emplace_back();
    row.m_strName = Text(def.name);
    row.m_strDesc = Text(def.desc);
    row.m_vecMoveAI = MoveRules(which);
  }
}

}  // namespace

VECTOR_CLASS<cMoveAI> MoveRules(MoveTemplate which) {
  const MoveTemplateDef& def = MoveTemplateOf(which);
  return VECTOR_CLASS<cMoveAI>(def.rules.begin(), def.rules.end());
}

void FillCharacters() {
  FillSkillList();
  FillClasses();
  FillAllies();
  FillEnemies();
  FillMoveTemplates();
}

}  // namespace TemplateData
