// Skills: their bytes, their migrations and what each kind allows.

#include <tuple>

#include "database/skill.h"
#include "database/skill_kind_rules.h"
#include "database/record_stream.h"
#include "project/project_globals.h"
#include "support/test_env.h"

namespace {

void Put32(std::vector<unsigned char>& bytes, std::size_t offset, std::int32_t value) {
  for (int i = 0; i < 4; ++i) bytes[offset + static_cast<std::size_t>(i)] = static_cast<unsigned char>(static_cast<std::uint32_t>(value) >> (8 * i));
}

class SkillTest : public ProjectDirTest {
 protected:
  void SetUp() override {
    ProjectDirTest::SetUp();
    g_Database.m_vecCompatiType.resize(3);
    g_System.m_vecElem.resize(4);
  }
  void TearDown() override {
    g_Database.m_vecCompatiType.clear();
    g_System.m_vecElem.clear();
    ProjectDirTest::TearDown();
  }
};

}  // namespace

TEST_F(SkillTest, ADefaultSkillIs327BytesWithItsDefaultsInPlace) {
  cSkill skill;
  std::vector<unsigned char> expected(4 + 327, 0);
  Put32(expected, 0, 290);
  const std::pair<std::size_t, std::int32_t> defaults[] = {
      {16, 99}, {28, 50}, {36, 1}, {44, 1}, {68, 1}, {108, 100}, {120, 100}, {240, 1}, {244, 1}, {248, 1},
      {252, 200}, {311, 1}, {315, 1}, {319, 1}, {323, 1}};
  for (auto [offset, value] : defaults) Put32(expected, 4 + offset, value);
  expected[4 + 256] = 255;  // opacity, one byte
  EXPECT_EQ(SavedStream(skill), expected);
  EXPECT_EQ(LoadedFrom<cSkill>(expected).m_nScale, 200);
}

TEST_F(SkillTest, MigrationsRunAtTheirVersions) {
  cSkill old;
  old.m_nKind = kSkillMagicWeapon, old.m_nWeaponType = 1, old.m_nScale = 150;
  old.m_nDamageRate = 50, old.m_nLearnRateSenseOld = 3;

  // Below 261 "magic weapon" was armour, and there was no weapon type.
  cSkill at260 = LoadedFrom<cSkill>(StreamAtVersion(old, 260)), at261 = LoadedFrom<cSkill>(StreamAtVersion(old, 261));
  EXPECT_EQ(std::tie(at260.m_nKind, at260.m_nWeaponType), std::make_tuple(int{kSkillArmour}, 0));
  EXPECT_EQ(std::tie(at261.m_nKind, at261.m_nWeaponType), std::make_tuple(int{kSkillMagicWeapon}, 1));

  // The sense bonus became a fraction at 122.
  EXPECT_EQ(LoadedFrom<cSkill>(StreamAtVersion(old, 121)).m_dLearnRateSense, 3.0);
  old.m_dLearnRateSense = 0.5;
  EXPECT_EQ(LoadedFrom<cSkill>(StreamAtVersion(old, 122)).m_dLearnRateSense, 0.5);

  for (auto [version, damage, scale] : {std::tuple{35u, 100, 200}, {36u, 100, 150}, {78u, 100, 150}, {79u, 50, 150}}) {
    cSkill loaded = LoadedFrom<cSkill>(StreamAtVersion(old, version));
    EXPECT_EQ(std::tie(loaded.m_nDamageRate, loaded.m_nScale), std::make_tuple(damage, scale)) << version;
  }
}

TEST_F(SkillTest, DroppedFieldsOfOldFilesAreSkipped) {
  cSkill old;
  old.m_nSound = 7;
  old.m_strReserved = "r";
  // Version 4 holds a text where the sound is now.
  g_strScratch = "old text";
  cSkill at4 = LoadedFrom<cSkill>(StreamAtVersion(old, 4));
  EXPECT_EQ(std::tie(at4.m_nSound, at4.m_strReserved), std::make_tuple(1, "r"));
  // Version 38 holds two more integers behind the colours.
  old.m_nLearnRate = 33;
  EXPECT_EQ(StreamAtVersion(old, 38).size(), StreamAtVersion(old, 39).size() + 8);
  EXPECT_EQ(LoadedFrom<cSkill>(StreamAtVersion(old, 38)).m_nLearnRate, 33);
}

TEST_F(SkillTest, ReferencesBeyondTheirTablesAreRepairedAtLoadAndSave) {
  cSkill skill;
  skill.m_nCompatiType = 3, skill.m_nElem = 3;
  EXPECT_EQ(skill.m_nCompatiType, 3);  // nothing repairs it before a load or save
  std::vector<unsigned char> saved = SavedStream(skill);
  EXPECT_EQ(std::tie(skill.m_nCompatiType, skill.m_nElem), std::make_tuple(0, 3));

  g_System.m_vecElem.resize(2);
  EXPECT_EQ(LoadedFrom<cSkill>(saved).m_nElem, 0);

  // Constructed before anything is loaded, a skill has no tables to refer to.
  g_Database.m_vecCompatiType.clear();
  g_System.m_vecElem.clear();
  cSkill early;
  EXPECT_EQ(early.m_nCompatiType, 0);
}

TEST_F(SkillTest, EachKindSetsItsTargetAndClearsWhatItDoesNotAllow) {
  // One kind of each target; the loop checks that every kind writes its own.
  EXPECT_EQ(std::make_tuple(TargetOfKind(0), TargetOfKind(1), TargetOfKind(4), TargetOfKind(6), TargetOfKind(9)),
            std::make_tuple(1, 1, 2, 3, 0));
  for (int kind = 0; kind < kSkillKindCount; ++kind) {
    cSkill skill;
    skill.m_nKind = kind, skill.m_bUseMapSkill = skill.m_bUseMapStock = skill.m_bUseBattleSkill = 1;
    skill.m_bUseBattleQuick = skill.m_bUseBattleStock = 1;
    skill.m_bSubEffectAPercent = skill.m_bEffectOfWeapon = skill.m_bCompatiOfWeapon = 1;
    SKILL_CONTROL_STATES on = ApplySkillKindRules(skill);
    EXPECT_EQ(skill.m_nTarget, TargetOfKind(kind)) << kind;
    EXPECT_FALSE(on[kCtlTarget]);
    EXPECT_EQ(skill.m_bUseMapSkill, kind == kSkillHeal ? 1 : 0) << kind;
    EXPECT_EQ(on[kCtlUseMapSkill], kind == kSkillHeal) << kind;
    bool equipment = kind >= kSkillPhysicalWeapon;
    EXPECT_EQ(skill.m_bUseBattleSkill, equipment ? 0 : 1) << kind;
    EXPECT_EQ(skill.m_bUseBattleQuick, (equipment || kind == kSkillTime) ? 0 : 1) << kind;
    EXPECT_EQ(skill.m_bSubEffectAPercent, equipment ? 1 : 0) << kind;
    EXPECT_EQ(skill.m_bEffectOfWeapon, equipment ? 0 : 1) << kind;
    EXPECT_EQ(on[kCtlElemValue], kind == kSkillArmour) << kind;
    EXPECT_EQ(on[kCtlResourceType], !equipment) << kind;
  }

  // Armour: the five use flags end up clear.
  cSkill armour;
  armour.m_nKind = kSkillArmour;
  ApplySkillKindRules(armour);
  EXPECT_EQ(armour.m_bUseMapSkill + armour.m_bUseMapStock + armour.m_bUseBattleSkill + armour.m_bUseBattleQuick +
                armour.m_bUseBattleStock,
            0);
}

TEST_F(SkillTest, OwnOrWeaponAndResourceFieldsFollowTheirFlags) {
  cSkill attack;
  // Which of the listed controls are enabled, as a string of 0 and 1.
  auto enabled = [](cSkill& skill, std::initializer_list<int> controls) {
    SKILL_CONTROL_STATES on = ApplySkillKindRules(skill);
    std::string out;
    for (int control : controls) out += on[control] ? '1' : '0';
    return out;
  };
  attack.m_nKind = kSkillPhysicalAttack, attack.m_bCompatiOfWeapon = 1, attack.m_bHitOfWeapon = 1;
  EXPECT_EQ(enabled(attack, {kCtlCompatiType, kCtlElem, kCtlHitRate, kCtlEffectGroup, kCtlCostSP, kCtlUseLimit}), "010110");
  attack.m_nResourceType = 1;
  EXPECT_EQ(enabled(attack, {kCtlCostSP, kCtlUseLimit}), "01");
  attack.m_bUnlimited = 1;
  EXPECT_EQ(enabled(attack, {kCtlUseLimit}), "0");

  cSkill weapon;
  weapon.m_nKind = kSkillPhysicalWeapon, weapon.m_bSortNumber = 1;
  EXPECT_EQ(enabled(weapon, {kCtlCompatiType, kCtlEffectGroup, kCtlSortNumber, kCtlCostSP}), "1110");

  // A kind a damaged file brings changes nothing.
  cSkill odd;
  odd.m_nKind = 12, odd.m_nTarget = 3, odd.m_bUseMapSkill = 1;
  EXPECT_EQ(enabled(odd, {kCtlEffectValue}), "0");
  EXPECT_EQ(std::tie(odd.m_nTarget, odd.m_bUseMapSkill), std::make_tuple(3, 1));
  EXPECT_EQ(TargetOfKind(-1), -1);
}
