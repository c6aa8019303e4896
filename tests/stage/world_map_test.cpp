// The world map record: its file, the migrations of old maps and pages, and the
// numbering of stages on the map.

#include "platform/cp932.h"
#include "stage/stage_test_support.h"

namespace {

cWorldEvent StageEvent(std::vector<std::pair<int, int>> typeAndNumber) {
  cWorldEvent event;
  event.m_vecPage.clear();
  for (auto [type, number] : typeAndNumber) {
    cWorldEventPage page;
    page.m_nType = type;
    page.m_nStageNo = number;
    event.m_vecPage.push_back(page);
  }
  return event;
}

}  // namespace

TEST_F(StageTest, TheBuiltInWorldMapBytes) {
  ASSERT_EQ(g_WorldMap.SaveFile("w.dat"), 1);
  cDbStream expected = cDbStream::File(290).Int(20).Int(15).Int(32).Int(5).Int(9).Int(7).Int(1).Int(0);
  expected.Text(CP932_TEXT("ワールド")).Text("").Int(0).Int(480).Ints(480, 0).Int(0);
  // One palette template: position, name, one page whose variable is 1.
  expected.Int(1).Int(0).Int(0).Text(CP932_TEXT("デフォルト")).Int(1).Ints(11, 0).Int(1).Int(0).Text("").Text("");
  EXPECT_EQ(FileBytes("w.dat"), expected.bytes);
}

TEST_F(StageTest, OldWorldMapsGetTheirChipsAndKeepWhatTheyLack) {
  g_WorldMap.m_vecChip.resize(3);
  for (std::uint32_t version : {19u, 65u, 97u, 98u}) {
    cWorldMap written = g_WorldMap;
    written.m_nBack = 2;
    std::vector<unsigned char> bytes = StreamAtVersion(written, version);
    g_WorldMap.m_nBack = 0;
    ASSERT_EQ(g_WorldMap.LoadStream(OpenSerialReadBuffer(bytes)), 1) << version;
    // Before 66 the background is not in the file; before 98 the ten fixed chips replace the list.
    EXPECT_EQ(g_WorldMap.m_nBack, version < 66 ? 0 : 2) << version;
    ASSERT_EQ(g_WorldMap.m_vecChip.size(), version < 98 ? 10u : 3u) << version;
    if (version < 98) {
      const cWorldChip &fifth = g_WorldMap.m_vecChip[4], &last = g_WorldMap.m_vecChip[9];
      EXPECT_EQ(std::tie(fifth.m_nGraphic, fifth.m_bNoMove, last.m_nGraphic, last.m_bNoMove), std::make_tuple(4, 1, 9, 0));
    }
    g_WorldMap.m_vecChip.resize(3);
  }
  // A stride the width does not fit is refused.
  std::vector<unsigned char> bytes = StreamAtVersion(g_WorldMap, 290);
  bytes[12] = 16;
  EXPECT_EQ(g_WorldMap.LoadStream(OpenSerialReadBuffer(bytes)), 0);
  EXPECT_NE(g_strLastSerialFailure.find("world map refused"), std::string::npos);
}

TEST_F(StageTest, WorldPagesMigrate) {
  cWorldEventPage page;
  page.m_strStagePath = "stg\\a.b\\one.stg", page.m_strStageName = "name", page.m_bVariation = 1, page.m_nVarNo = 7;
  for (auto [version, path, name, varNo] : {std::tuple{53u, "stg\\a.b\\one.stg2", "", 1}, {105u, "stg\\a.b\\one.stg2", "", 7},
                                            {106u, "stg\\a.b\\one.stg", "", 7}, {107u, "stg\\a.b\\one.stg", "name", 7}}) {
    cWorldEventPage loaded = LoadedFrom<cWorldEventPage>(StreamAtVersion(page, version));
    EXPECT_EQ(std::tie(loaded.m_strStagePath, loaded.m_strStageName, loaded.m_nVarNo),
              std::make_tuple(std::string(path), std::string(name), varNo))
        << version;
  }
  page.m_strStagePath.clear();
  EXPECT_EQ(LoadedFrom<cWorldEventPage>(StreamAtVersion(page, 105)).m_strStagePath, "");
}

TEST_F(StageTest, StageNumbersFillTheLowestGap) {
  g_WorldMap.m_vecEvent = {StageEvent({{0, 1}, {0, 2}}), StageEvent({{0, 4}, {1, 3}, {2, 5}})};
  const cWorldEvent* first = &g_WorldMap.m_vecEvent[0];
  EXPECT_EQ(g_WorldMap.NextStageNumber(nullptr), 3);  // roads and walls with numbers do not count
  EXPECT_EQ(g_WorldMap.NextStageNumber(first), 1);    // nor does the excluded event

  cWorldEvent added = StageEvent({{0, 0}, {2, 9}, {0, 0}});
  g_WorldMap.AssignStageNumbers(added, nullptr);
  EXPECT_EQ(std::vector<int>({added.m_vecPage[0].m_nStageNo, added.m_vecPage[1].m_nStageNo, added.m_vecPage[2].m_nStageNo}),
            std::vector<int>({3, 9, 3}));

  cWorldEvent all;
  for (int n = 1; n <= 999; ++n) all.m_vecPage.push_back(StageEvent({{0, n}}).m_vecPage[0]);
  g_WorldMap.m_vecEvent.push_back(all);
  EXPECT_EQ(g_WorldMap.NextStageNumber(nullptr), 0);
  EXPECT_EQ(g_WorldMap.NextStageNumber(&g_WorldMap.m_vecEvent[2]), 3);
}
