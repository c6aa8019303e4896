// The game-wide settings: the stream of a new record, what files of every older
// version become, and the invariants kept by Clamp.

#include <gtest/gtest.h>

#include <tuple>

#include <climits>
#include <span>
#include <cmath>
#include <cstring>
#include <string>
#include <vector>

#include "database/db_test_support.h"
#include "platform/cp932.h"
#include "project/project_globals.h"
#include "project/system.h"
#include "project/system_defaults.h"

namespace {

std::string J(const char* utf8) { return Cp932FromLiteral(utf8); }

// Lists as the settings file stores them: a count, then the rows.
cDbStream& Texts(cDbStream& s, const std::vector<std::string>& texts) {
  s.Int(static_cast<std::int32_t>(texts.size()));
  for (const std::string& text : texts) s.Text(text);
  return s;
}
cDbStream& IntList(cDbStream& s, const std::vector<int>& values) {
  s.Int(static_cast<std::int32_t>(values.size()));
  for (int v : values) s.Int(v);
  return s;
}
// Menu rows, the first one switched off so that reading the flag shows.
cDbStream& Menu(cDbStream& s, const std::vector<std::string>& names) {
  s.Int(static_cast<std::int32_t>(names.size()));
  for (std::size_t i = 0; i < names.size(); ++i) s.Text(names[i]).Int(i == 0 ? 0 : 1);
  return s;
}

std::vector<unsigned char> Saved(cSystem& system) {
  SerialFilePtr out = OpenSerialWriteBuffer();
  system.Save(out.get());
  return out->Bytes();
}

int LoadBytes(cSystem& system, std::vector<unsigned char> bytes) {
  return system.LoadStream(OpenSerialReadBuffer(std::move(bytes)));
}

// The rows each version opened in the term list, oldest first.
const struct {
  std::uint32_t below;
  std::vector<std::size_t> rows;
} kTermInsertions[] = {{13, {0}},  {31, {3, 4, 5, 9, 11, 12, 13}}, {43, {38, 39, 40, 41, 42}},
                       {55, {20}}, {72, {44, 45}},                 {76, {22}},
                       {115, {10}}, {117, {3}},                    {125, {2}}};

// The terms a file of `version` holds: the current rows without those opened later.
std::vector<std::string> TermsAt(std::uint32_t version) {
  std::vector<std::string> terms = DefaultSystemTerms();
  for (auto step = std::rbegin(kTermInsertions); step != std::rend(kTermInsertions); ++step) {
    if (version >= step->below) continue;
    for (auto row = step->rows.rbegin(); row != step->rows.rend(); ++row) terms.erase(terms.begin() + *row);
  }
  return terms;
}

std::string SoundName(std::size_t row) { return "se" + std::to_string(row) + ".wav"; }

// Sound rows of `version`: the current ones without the equip sound (opened at 128)
// and the damage sound (opened at 97).
std::vector<std::string> SoundsAt(std::uint32_t version) {
  std::vector<std::string> sounds;
  for (std::size_t row = 0; row < kSystemSoundCount; ++row) {
    if ((row == kSoundSkillEquip && version < 128) || (row == kSoundDamage && version < 97)) continue;
    sounds.push_back(SoundName(row));
  }
  return sounds;
}

// The version below which a migration gives each "System.ini" row its key and default.
constexpr std::uint32_t kIniRowBelow[kSystemIniCount] = {93, 93, 93, 93, 93, 123, 241};

// A settings file of `version`: every field its version holds, each with a value of
// its own, and every list in the rows of that version.
std::vector<unsigned char> SystemFileAt(std::uint32_t v) {
  cDbStream s = cDbStream::File(v);
  s.Int(11).Int(12).Int(13).Double(0.5).Int(0).Int(14).Int(15).Double(0.25).Int(0).Int(0).Int(16);
  if (v >= 70) s.Int(-3).Int(4).Int(5);
  if (v >= 122) s.Int(6);
  if (v >= 70) s.Int(7).Int(8).Int(9);
  for (int i = 0; i < kSystemStatusCount; ++i) s.Double(1.5 + i);
  for (int i = 0; i < kSystemStatusCount; ++i) s.Int(200 + i);
  s.Int(17).Double(0.75);
  if (v >= 89) s.Double(-1.5);
  s.Double(2.5);
  if (v >= 33) s.Int(18).Int(19);
  for (int i = 20; i <= 33; ++i) s.Int(i);
  s.Int(1);
  if (v >= 101) s.Int(1);
  s.Int(30).Int(700).Int(400).Int(100).Int(300).Int(1).Int(12);
  if (v >= 101) s.Int(1).Int(2).Int(3).Int(11).Int(12).Int(13).Int(14);
  s.Double(9).Double(9);
  if (v >= 123) s.Int(0);
  s.Double(5.5).Double(3.5).Double(1.25).Double(0.5).Int(80).Int(120).Int(60).Int(0);
  if (v >= 81) s.Int(0);
  if (v >= 9) s.Int(12345);
  s.Int(34).Int(3).Int(0);
  for (int i = 0; i < kSystemStatusCount; ++i) s.Int(20 + i);
  if (v >= 104) s.Int(35);
  s.Byte(0x10).Byte(0x20).Byte(0x30);
  if (v >= 85) s.Short(180).Short(-100).Short(50);
  s.Text(J("試験"));
  Texts(s, SoundsAt(v));
  IntList(s, v < 92 ? std::vector<int>{1, 2, 3} : std::vector<int>{1, 2, 3, 4, 5});
  if (v >= 23) {
    std::vector<std::uint8_t> loops = {0, 1, 0};
    if (v >= 92) loops = {0, 1, 0, 1, 0};
    s.Int(static_cast<std::int32_t>(loops.size()));
    for (std::uint8_t loop : loops) s.Byte(loop);
  }
  if (v >= 10) s.Int(0);
  if (v >= 90 && v <= 123) s.Int(77);
  if (v >= 125) IntList(s, {1, 0, 1, 0});
  if (v >= 119) s.Int(5);
  if (v >= 91) s.Int(7).Int(1);
  Texts(s, TermsAt(v));
  if (v >= 8) {
    VECTOR_CLASS<cParamInfo> params = DefaultSystemParams();
    int rows = v < 105 ? kSystemStatusCount : kSystemParamCount;
    s.Int(rows);
    for (int row = 0; row < rows; ++row) {
      s.Text(params[row].m_strName).Int(1).Int(3);
      if (v >= 9) s.Int(row == kParamHp ? 9999 : 500 + row);
    }
  }
  if (v >= 11) s.Int(0);
  // The versions that brought the menus, in stream order.
  constexpr std::uint32_t kMenuSince[] = {11, 11, 0, 12, 12, 12, 63, 11, 11, 11, 11, 0, 0, 0, 43, 0};
  std::span<const cDefaultMenu> menus = DefaultSystemMenus();
  for (std::size_t i = 0; i < menus.size(); ++i) {
    if (v < kMenuSince[i]) continue;
    std::vector<std::string> names = menus[i].names;
    if (menus[i].menu == &cSystem::m_vecPartyMenu && v < 212) names.erase(names.begin() + 11);
    if (menus[i].menu == &cSystem::m_vecPartyMenu && v < 63) names[10] = J("旧設定");
    if (menus[i].menu == &cSystem::m_vecTestMenu && v < 72) names.pop_back();
    Menu(s, names);
  }
  s.Int(2).Int(0).Text("").Int(0).Text(J("火"));
  s.Int(1).Int(3).Text(J("剣"));
  if (v >= 70) s.Double(2.5);
  if (v >= 64) s.Int(1).Int(4).Double(-0.5).Double(0.5);
  if (v >= 66) s.Int(2);
  VECTOR_CLASS<cIni> ini = DefaultIniRows();
  s.Int(v < 93 ? 0 : kSystemIniCount);
  for (std::size_t row = 0; row < (v < 93 ? 0 : ini.size()); ++row) {
    bool known = v >= kIniRowBelow[row];
    s.Int(0).Text(known ? ini[row].m_strKey : "").Int(known ? ini[row].m_nDefault + 100 : 0).Text("");
  }
  return s.bytes;
}

// The database lists the settings point into: 5 backgrounds and 10 pieces of music.
class SystemTest : public ::testing::Test {
 protected:
  void SetUp() override {
    g_Database.m_vecBack.resize(5);
    g_Database.m_vecBgm.resize(10);
  }

 private:
  cGlobalsGuard<VECTOR_CLASS<cEdBack>, VECTOR_CLASS<cEdBgm>> m_guard{g_Database.m_vecBack, g_Database.m_vecBgm};
};

template <class T>
T At(const std::vector<unsigned char>& bytes, std::size_t offset) {
  T value{};
  std::memcpy(&value, bytes.data() + offset, sizeof value);
  return value;
}

}  // namespace

TEST_F(SystemTest, ANewRecordWrittenAt290) {
  cSystem system;
  std::vector<unsigned char> bytes = Saved(system);

  // Header and scalars up to the game name: 4 + 152 + 128 + 84 + 108 + 9 bytes.
  constexpr std::size_t kHead = 485;
  // Game name, 18 empty sound files, 5 music rows, 5 loop flags, the forecast flag, its
  // 4 switches, two skill lists, font, pitch.
  constexpr std::size_t kPresentation = 4 + (4 + 18 * 4) + (4 + 5 * 4) + (4 + 5) + 4 + (4 + 4 * 4) + 3 * 4;
  constexpr std::size_t kTerms = 4 + 55 * 5 + 724;                // 724 bytes of CP932 text
  constexpr std::size_t kParams = 4 + 12 * (5 + 12) + 42;          // 42 bytes of names
  constexpr std::size_t kMenus = 16 * 4 + 75 * (5 + 4) + 573;      // 75 commands, 573 bytes of names
  constexpr std::size_t kTail = 4 + 4 + 4 + 4;                     // elements, categories, backgrounds, party back
  constexpr std::size_t kIni = 4 + 7 * (4 + 5 + 4 + 4) + 59;       // 59 bytes of keys
  ASSERT_EQ(bytes.size(), kHead + kPresentation + kTerms + kParams + 4 + kMenus + kTail + kIni);

  // Version, m_bGrowCapped, m_anEnemyRate[0], m_nBattleTime, m_anInitAction, m_anMaxActions[1],
  // m_bShowOrder, m_nDamageRateMax, m_nHpLimit from the HP row, m_anEnemyUp[0], the empty
  // game name, the sound rows and the term rows.
  for (auto [offset, value] : {std::pair{0, 290}, {24, 1}, {156, 100}, {292, 27}, {296, 600}, {300, 500}, {344, 99},
                               {364, 1}, {404, 110}, {420, 999}, {436, 10}, {485, 1}, {489, 18}, {634, 55}})
    EXPECT_EQ(At<std::int32_t>(bytes, offset), value) << offset;
  // m_adActions by the timing formula, and m_dHitSkill.
  for (auto [offset, value] : {std::pair{348, 3.3}, {356, 2.7}, {368, 4.0}}) EXPECT_DOUBLE_EQ(At<double>(bytes, offset), value);

  // Term row 13 is the unit of a stock, behind the count and 13 rows of 225 bytes.
  std::vector<unsigned char> unit = cDbStream().Text(J("コ")).bytes;
  EXPECT_TRUE(std::equal(unit.begin(), unit.end(), bytes.begin() + 634 + 229));

  // The stream ends with the party background row and the seven "System.ini" rows.
  const std::pair<const char*, int> kIniRows[] = {{"WindowMode", 2}, {"Color", 0},   {"VSync", 2},
                                                  {"FrameRate", 60}, {"ShowFps", 2}, {"English", 0},
                                                  {"Midi_DirectMusic", 1}};
  cDbStream tail;
  tail.Int(1).Int(7);
  for (const auto& [key, value] : kIniRows) tail.Int(0).Text(key).Int(value).Text("");
  EXPECT_TRUE(std::equal(tail.bytes.rbegin(), tail.bytes.rend(), bytes.rbegin()));

  // Read back, it is the same record and writes the same bytes.
  cSystem again;
  again.m_nGrowMax = 5;
  ASSERT_EQ(LoadBytes(again, bytes), 1);
  EXPECT_TRUE(Compare(again, system));
  EXPECT_EQ(Saved(again), bytes);
}

TEST_F(SystemTest, EveryOlderVersionLoadsIntoTheCurrentRows) {
  using S = cSystem;
  // Fields that a version brought: the file's value from that version on; before it
  // the value of a new record, or the one a migration gives old files.
  const struct {
    std::uint32_t since;
    double (*get)(const S&);
    double inFile, before;
  } kGated[] = {
      {70, [](const S& s) -> double { return s.m_nGrowTimeMin; }, -3, -2},
      {70, [](const S& s) -> double { return s.m_nGrowUnit; }, 5, 2},
      {122, [](const S& s) -> double { return s.m_nSenseUnit; }, 6, 1},
      {70, [](const S& s) -> double { return s.m_nChangeCount; }, 9, 10},
      {89, [](const S& s) -> double { return s.m_dExpDifficulty; }, -1.5, 0},
      {33, [](const S& s) -> double { return s.m_nExpMin; }, 18, 1},
      {101, [](const S& s) -> double { return s.m_nTurnMode; }, 1, 0},
      {101, [](const S& s) -> double { return s.m_anBaseActions[1]; }, 3, 1},
      {101, [](const S& s) -> double { return s.m_anMaxActions[1]; }, 14, 99},
      // Simple turns count the base actions; timed turns: gains 50 and 150, the
      // defender waiting 6 + 1 units of 30.
      {101, [](const S& s) -> double { return s.m_adActions[0]; }, 2, 2.2},
      {101, [](const S& s) -> double { return s.m_adActions[1]; }, 3, 3.85},
      {123, [](const S& s) -> double { return s.m_bShowOrder; }, 0, 1},
      {81, [](const S& s) -> double { return s.m_bGuardNoEvade; }, 0, 1},
      {9, [](const S& s) -> double { return s.m_nHpLimit; }, 9999, 999},
      {104, [](const S& s) -> double { return s.m_nReserved2; }, 35, 0},
      {85, [](const S& s) -> double { return s.m_shWindowHue; }, 180, 0},
      {10, [](const S& s) -> double { return s.m_bPredict; }, 0, 1},
      {119, [](const S& s) -> double { return s.m_bTwoSkillLists; }, 5, 1},
      {91, [](const S& s) -> double { return s.m_nFont; }, 7, 60},
      {11, [](const S& s) -> double { return s.m_bGameModeImage; }, 0, 1},
      {64, [](const S& s) -> double { return s.m_vecBackUnused.Count(); }, 1, 0},
      {66, [](const S& s) -> double { return s.m_nPartyBack; }, 2, 1},
      {125, [](const S& s) -> double { return s.m_vecPredict[0]; }, 1, 0},
      {63, [](const S& s) -> double { return s.m_vecConfigMenu[0].m_bEnabled; }, 0, 1},
      {11, [](const S& s) -> double { return s.m_vecTitleMenu[0].m_bEnabled; }, 0, 1},
      {12, [](const S& s) -> double { return s.m_vecScoutMenu[0].m_bEnabled; }, 0, 1},
  };
  const VECTOR_CLASS<cIni> ini = DefaultIniRows();

  for (std::uint32_t v = 1; v <= 290; ++v) {
    SCOPED_TRACE("version " + std::to_string(v));
    cSystem system;
    ASSERT_EQ(LoadBytes(system, SystemFileAt(v)), 1);

    for (const auto& gate : kGated) EXPECT_DOUBLE_EQ(gate.get(system), v >= gate.since ? gate.inFile : gate.before);
    // Fields of every version, on both sides of the gates.
    EXPECT_EQ(system.m_nScoutVal, 16);
    EXPECT_EQ(std::tie(system.m_adRate[8], system.m_nSkillSellRate, system.m_nSpeedBase, system.m_anEnemyUp[8]),
              std::make_tuple(9.5, 33, 12, 28));
    EXPECT_EQ(KeyColorOf(system), 0x302010u);
    EXPECT_EQ(system.m_strGameName, J("試験"));

    // Each term in its current row; the old wording of one of them stays.
    std::vector<std::string> terms = DefaultSystemTerms();
    if (v < 31) terms[11] = J("ＡＳキー：キャラの切替");
    ASSERT_EQ(system.m_vecTerm.size(), terms.size());
    for (std::size_t row = 0; row < terms.size(); ++row) EXPECT_EQ(system.m_vecTerm[row].m_strText, terms[row]) << row;

    // Sounds: the rows opened later are empty.
    ASSERT_EQ(system.m_vecSoundFile.size(), std::size_t{kSystemSoundCount});
    for (std::size_t row = 0; row < kSystemSoundCount; ++row) {
      bool opened = (row == kSoundSkillEquip && v < 128) || (row == kSoundDamage && v < 97);
      EXPECT_EQ(system.m_vecSoundFile[row].m_strText, opened ? "" : SoundName(row)) << row;
    }

    // Music: five rows; loops all on before they were stored.
    EXPECT_EQ(system.m_vecBgm, (v < 92 ? VECTOR_CLASS<std::int32_t>{1, 2, 3, 0, 0} : VECTOR_CLASS<std::int32_t>{1, 2, 3, 4, 5}));
    EXPECT_EQ(system.m_vecBgmLoop, (v < 23   ? VECTOR_CLASS<std::uint8_t>{1, 1, 1, 1, 1}
                                    : v < 92 ? VECTOR_CLASS<std::uint8_t>{0, 1, 0, 0, 0}
                                             : VECTOR_CLASS<std::uint8_t>{0, 1, 0, 1, 0}));

    // Status values: twelve rows, the added ones as a new row; digits follow the ceiling.
    ASSERT_EQ(system.m_vecParam.size(), std::size_t{kSystemParamCount});
    EXPECT_EQ(system.m_vecParam[kParamHp].m_nDigits, v >= 9 ? 4 : 3);
    EXPECT_EQ(system.m_vecParam[kParamLevel].m_strName, v >= 8 && v < 105 ? "" : "LV");
    EXPECT_EQ(system.m_vecParam[kParamMove].m_nMax, v < 8 ? 8 : v < 105 ? 999 : 511);

    // Menus: "ヘルプ" opened off, "コンフィグ" renamed, "ゲーム終了" added to the test menu.
    const VECTOR_CLASS<cCmd>& party = system.m_vecPartyMenu;
    ASSERT_EQ(party.size(), 13u);
    EXPECT_EQ(std::tie(party[10].m_strName, party[11].m_strName), std::make_tuple(J("コンフィグ"), J("ヘルプ")));
    EXPECT_EQ(party[11].m_bEnabled, v >= 212 ? 1 : 0);
    EXPECT_EQ(party[12].m_strName, J("ゲーム終了"));
    ASSERT_EQ(system.m_vecTestMenu.size(), 5u);
    EXPECT_EQ(system.m_vecTestMenu[4].m_strName, J("ゲーム終了"));
    EXPECT_EQ(system.m_vecTestMenu[0].m_bEnabled, v >= 43 ? 0 : 1);

    // The tail lines up behind all of it.
    ASSERT_EQ(system.m_vecElem.size(), 2u);
    EXPECT_EQ(system.m_vecElem[1].m_strName, J("火"));
    ASSERT_EQ(system.m_vecCateg.size(), 1u);
    EXPECT_EQ(system.m_vecCateg[0].m_strName, J("剣"));
    ASSERT_EQ(system.m_vecIni.size(), ini.size());
    for (std::size_t row = 0; row < ini.size(); ++row) {
      EXPECT_EQ(system.m_vecIni[row].m_strKey, ini[row].m_strKey) << row;
      EXPECT_EQ(system.m_vecIni[row].m_nDefault, ini[row].m_nDefault + (v >= kIniRowBelow[row] ? 100 : 0)) << row;
    }

    // Written at 290 and read again, nothing moves.
    std::vector<unsigned char> bytes = Saved(system);
    cSystem again;
    ASSERT_EQ(LoadBytes(again, bytes), 1);
    EXPECT_TRUE(Compare(again, system));
  }
}

TEST_F(SystemTest, ClampKeepsTheDerivedValuesAndReferences) {
  cSystem system;
  // Simple turns: the base actions as they stand.
  system.m_nTurnMode = 1;
  system.m_anBaseActions[0] = 2, system.m_anBaseActions[1] = 3;
  system.Clamp();
  EXPECT_EQ(std::tie(system.m_adActions[0], system.m_adActions[1]), std::make_tuple(2.0, 3.0));

  // Timed turns with a speed rate of 0 on either side or both: no division by zero.
  system.m_nTurnMode = 0;
  const struct {
    int speed0, speed1, init0;
    double actions0, actions1;
  } kDegenerate[] = {
      {0, 0, 600, 0.6, 0.5},    // nobody gains; the attacker never acts, the defender never starts
      {0, 100, 600, 0.6, 0.5},  // the defender takes all 200 but waits for the attacker
      {0, 100, 1000, 1.0, 5.7}, // the attacker acts at once: 26 units of 200 for the defender
  };
  for (const auto& c : kDegenerate) {
    system.m_anSpeedRate[0] = c.speed0, system.m_anSpeedRate[1] = c.speed1, system.m_anInitAction[0] = c.init0;
    system.Clamp();
    EXPECT_DOUBLE_EQ(system.m_adActions[0], c.actions0) << c.speed0 << " " << c.speed1 << " " << c.init0;
    EXPECT_DOUBLE_EQ(system.m_adActions[1], c.actions1) << c.speed0 << " " << c.speed1 << " " << c.init0;
  }
  // Without the wait the defender gains from the start.
  system.m_bWaitAttacker = 0, system.m_anSpeedRate[0] = system.m_anSpeedRate[1] = 100, system.m_anInitAction[0] = 600;
  system.Clamp();
  EXPECT_DOUBLE_EQ(system.m_adActions[1], 3.2);

  // The ceiling of HP gives its digits and the HP limit.
  system.m_vecParam[kParamHp].m_nMax = 9999;
  system.m_vecParam[kParamMove].m_nMax = 10;
  system.Clamp();
  EXPECT_EQ(std::tie(system.m_vecParam[kParamHp].m_nDigits, system.m_vecParam[kParamMove].m_nDigits, system.m_nHpLimit),
            std::make_tuple(4, 2, 9999));
  for (auto [value, digits] : {std::pair{0, 1}, {9, 1}, {INT_MAX, 10}, {-999, 3}}) EXPECT_EQ(DecimalDigits(value), digits);

  // References behind the background and music lists (5 and 10 rows).
  system.m_nPartyBack = 4;
  system.m_vecBgm = {9, 10, 0, 11, 3};
  system.Clamp();
  EXPECT_EQ(std::tie(system.m_nPartyBack, system.m_vecBgm), std::make_tuple(4, VECTOR_CLASS<std::int32_t>{9, 0, 0, 0, 3}));
  system.m_nPartyBack = 5;
  system.Clamp();
  EXPECT_EQ(system.m_nPartyBack, 1);

  // A record without status rows keeps its HP limit.
  system.m_vecParam.clear();
  system.m_nHpLimit = 77;
  system.Clamp();
  EXPECT_EQ(system.m_nHpLimit, 77);

  // Saving clamps too.
  cSystem saved;
  saved.m_nBattleTime = 10;
  saved.m_vecBgm[0] = 50;
  Saved(saved);
  EXPECT_DOUBLE_EQ(saved.m_adActions[0], 1.6);
  EXPECT_EQ(saved.m_vecBgm[0], 0);
}
