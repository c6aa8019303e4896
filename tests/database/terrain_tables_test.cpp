// Terrain, elements, compatibility types and world chips: their bytes, their gates and
// the repair of their references.

#include <tuple>

#include "database/compati_type.h"
#include "database/elem.h"
#include "database/land.h"
#include "database/world_chip.h"
#include "database/db_test_support.h"
#include "platform/cp932.h"

namespace {

// The stream of one terrain after its version header, as a file of `version` holds it.
cDbStream LandBody(std::uint32_t version, std::int32_t moveCost, std::vector<std::int32_t> rates, std::int32_t back) {
  cDbStream s;
  s.Int(4).Int(moveCost).Int(1).Int(17).Int(1);
  for (int i = 0; i < cLand::kStatusCount; ++i) s.Int(i * 10 - 40);
  if (version >= 94) {
    s.Int(static_cast<std::int32_t>(rates.size()));
    for (std::int32_t rate : rates) s.Int(rate);
  }
  s.Int(1).Int(150).Int(0).Text("swamp").Text("slow going");
  if (version < 66) s.Text("old");
  if (version >= 66) s.Int(back);
  return s;
}

cDbStream OneLand(std::uint32_t version, std::int32_t moveCost, std::vector<std::int32_t> rates, std::int32_t back) {
  return cDbStream::File(version).Int(1).Append(LandBody(version, moveCost, std::move(rates), back));
}

cInfl Rule(int target, int what = 0, int op = 0, int value = 0) {
  cInfl infl;
  infl.m_nTarget = target, infl.m_nWhat = what, infl.m_nOp = op, infl.m_nValue = value;
  return infl;
}

std::vector<int> Targets(const cCompatiType& type) {
  std::vector<int> targets;
  for (const cInfl& infl : type.m_vecInfl) targets.push_back(infl.m_nTarget);
  return targets;
}

}  // namespace

using TerrainTablesTest = DatabaseTest;

TEST_F(TerrainTablesTest, DefaultRecordsAt290) {
  // Three element rows and two backgrounds: one rate of 100 per element row.
  VECTOR_CLASS<cLand> lands(1);
  EXPECT_EQ(SavedVector(lands), cDbStream::File(290)
                                    .Int(1)
                                    .Ints(1, 0).Int(1).Ints(3, 0).Ints(9, 0)
                                    .Int(3).Ints(3, 100)
                                    .Ints(2, 0).Int(1).Text("").Text("").Int(1)
                                    .bytes);

  cElem elem;
  EXPECT_EQ(SavedRecord(elem), Bytes({0x22, 0x01, 0, 0, 0, 0, 0, 0, 1, 0, 0, 0}));
  cWorldChip chip;
  EXPECT_EQ(SavedRecord(chip), cDbStream::File(290).Ints(3, 0).Text("").Text("").bytes);
  cInfl infl;
  EXPECT_EQ(SavedRecord(infl), Bytes({0x22, 0x01, 0, 0, 1, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0}));

  // A new type has one rule against type 1, which a table of two rows keeps.
  SetTables(3, 2, 2);
  VECTOR_CLASS<cCompatiType> types(1);
  EXPECT_EQ(SavedVector(types), cDbStream::File(290).Int(1).Text("").Int(1).Int(1).Ints(3, 0).bytes);
}

TEST_F(TerrainTablesTest, LandGatesAtRatesAndBackground) {
  // 93 has no rates: each terrain gets one 100 per element. 94 has them.
  for (std::uint32_t version : {65u, 66u, 93u, 94u}) {
    SCOPED_TRACE(version);
    VECTOR_CLASS<cLand> lands;
    ASSERT_EQ(LoadBytes(lands, OneLand(version, 3, {100, 80, 120}, 0)), 1) << version;
    const cLand& land = lands[0];
    EXPECT_EQ(std::tie(land.m_nMoveCost, land.m_nGraphic, land.m_anStatus[8], land.m_nSpecialValue, land.m_strDesc),
              std::make_tuple(3, 17, 40, 150, "slow going"));
    const std::vector<std::int32_t> rates(land.m_vecElemRate.begin(), land.m_vecElemRate.end());
    EXPECT_EQ(rates, (version >= 94 ? std::vector<std::int32_t>{100, 80, 120} : std::vector<std::int32_t>{100, 100, 100}));
    // Before 66 the background is not stored and keeps its default; from 66 a stored 0
    // is a row of the table and stays.
    EXPECT_EQ(land.m_nBack, version >= 66 ? 0 : 1);

    // Saved, the old text is gone and the fields stand in the current order.
    EXPECT_EQ(SavedVector(lands), OneLand(290, 3, rates, land.m_nBack).bytes);
  }
}

TEST_F(TerrainTablesTest, LandRatesFollowTheElementTable) {
  SetTables(5, 2, 1);
  VECTOR_CLASS<cLand> lands;
  ASSERT_EQ(LoadBytes(lands, OneLand(290, 2, {100, 10, 20, 30, 40}, 1)), 1);
  cLand& land = lands[0];

  SetTables(7, 2, 1);
  land.FixRefs();
  EXPECT_EQ(land.m_vecElemRate, (VECTOR_CLASS<std::int32_t>{100, 10, 20, 30, 40, 100, 100}));
  SetTables(3, 2, 1);
  land.FixRefs();
  EXPECT_EQ(land.m_vecElemRate, (VECTOR_CLASS<std::int32_t>{100, 10, 20}));

  // The cut rates do not come back.
  SetTables(5, 2, 1);
  EXPECT_EQ(SavedVector(lands), OneLand(290, 2, {100, 10, 20, 100, 100}, 1).bytes);

  // With no element table at all the terrain has no rates.
  SetTables(0, 2, 1);
  EXPECT_TRUE(cLand().m_vecElemRate.empty());
}

TEST_F(TerrainTablesTest, LandMoveCostAndBackgroundRepair) {
  SetTables(3, 4, 1);
  VECTOR_CLASS<cLand> lands;
  cDbStream file = cDbStream::File(290).Int(5);
  for (std::int32_t back : {0, 3, 4, 9, -1}) file.Append(LandBody(290, back == 0 ? 0 : -5, {100, 100, 100}, back));
  ASSERT_EQ(LoadBytes(lands, file), 1);

  std::vector<int> backs, costs;
  for (const cLand& land : lands) {
    backs.push_back(land.m_nBack);
    costs.push_back(land.m_nMoveCost);
  }
  // 0 and the last row stay; a row at or beyond the count, or before row 0, becomes 1.
  EXPECT_EQ(backs, (std::vector<int>{0, 3, 1, 1, 1}));
  EXPECT_EQ(costs, (std::vector<int>{1, 1, 1, 1, 1}));

  // SetDefault never leaves 0, even where the table is empty, and resets every rate.
  SetTables(3, 0, 1);
  lands[0].m_vecElemRate.assign({1, 2, 3});
  lands[0].SetDefault();
  EXPECT_EQ(std::tie(lands[0].m_nBack, lands[0].m_vecElemRate), std::make_tuple(1, VECTOR_CLASS<std::int32_t>{100, 100, 100}));
}

TEST_F(TerrainTablesTest, RulesBeyondTheTableAreRemovedWithoutSkipping) {
  SetTables(3, 2, 10);
  cCompatiType type;
  // Bad rules side by side: removing one must not skip the next that moves up.
  type.m_vecInfl.assign({Rule(10), Rule(11), Rule(9), Rule(12), Rule(10), Rule(3), Rule(-1)});
  type.FixRefs();
  EXPECT_EQ(Targets(type), (std::vector<int>{9, 3}));

  // Shrinking and growing the table again does not bring removed rules back.
  SetTables(3, 2, 5);
  type.FixRefs();
  EXPECT_EQ(Targets(type), (std::vector<int>{3}));
  SetTables(3, 2, 10);
  type.FixRefs();
  EXPECT_EQ(Targets(type), (std::vector<int>{3}));

  // A type without rules stays without; only SetDefault adds one.
  type.m_vecInfl.clear();
  VECTOR_CLASS<cCompatiType> types = {type};
  std::vector<unsigned char> saved = SavedVector(types);
  EXPECT_EQ(saved, cDbStream::File(290).Int(1).Text("").Int(0).bytes);
  ASSERT_EQ(LoadBytes(types, cDbStream{saved}), 1);
  EXPECT_TRUE(types[0].m_vecInfl.empty());
  types[0].SetDefault();
  EXPECT_EQ(Targets(types[0]), (std::vector<int>{1}));
}

TEST_F(TerrainTablesTest, ATableBeingReadIsCheckedAgainstItself) {
  // As at start-up g_Database holds one row; the file holds three types, each with
  // rules against rows 2 and 3: the rules against 2 stay, those against 3 go.
  auto types = cDbStream::File(290).Int(3);
  for (int i = 0; i < 3; ++i) {
    types.Text("t").Int(2).Int(2).Int(0).Int(0).Int(0).Int(3).Int(0).Int(0).Int(0);
  }
  WriteBytes("types.dat", types.bytes);
  ASSERT_EQ(LoadVector(g_Database.m_vecCompatiType, "types.dat"), 1);
  ASSERT_EQ(g_Database.m_vecCompatiType.size(), 3u);
  for (const cCompatiType& type : g_Database.m_vecCompatiType) EXPECT_EQ(Targets(type), (std::vector<int>{2}));

  // Saving checks against the table in memory.
  g_Database.m_vecCompatiType.resize(2);
  ASSERT_EQ(SaveVector(g_Database.m_vecCompatiType, "types.dat"), 1);
  EXPECT_EQ(Targets(g_Database.m_vecCompatiType[1]), (std::vector<int>{}));
}

TEST_F(TerrainTablesTest, RuleSummaries) {
  SetTables(3, 2, 3);
  g_Database.m_vecCompatiType[2].m_strName = CP932_TEXT("竜");
  EXPECT_EQ(SummaryInfl(Rule(2, 2, 3, 150)), CP932_TEXT("竜 に対して ダメージ × 150"));
  EXPECT_EQ(SummaryInfl(Rule(1, 0, 5, -7)), CP932_TEXT(" に対して 命中率 ÷ X の余り -7"));
  // Out of range everywhere: empty pieces, no stray index.
  EXPECT_EQ(SummaryInfl(Rule(3, 3, 7, 0)), CP932_TEXT(" に対して   0"));

  // A form's working copy names the target itself.
  VECTOR_CLASS<cCompatiType> copy(4);
  copy[3].m_strName = CP932_TEXT("鬼");
  EXPECT_EQ(SummaryInfl(Rule(3, 1, 6, 50), copy), CP932_TEXT("鬼 に対して 必殺率 X ％ 50"));
}
