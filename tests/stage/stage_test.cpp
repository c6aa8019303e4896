// The stage record: its file in both list orders, the size rules, resize and clamp,
// the events on the map, and where g_Stage comes from.

#include <cstring>
#include <filesystem>

#include "platform/cp932.h"
#include "stage/stage_open.h"
#include "stage/stage_test_support.h"

namespace {

std::int32_t IntAt(const std::vector<unsigned char>& bytes, std::size_t offset) {
  std::int32_t value = 0;
  std::memcpy(&value, bytes.data() + offset, sizeof value);
  return value;
}

void PutIntAt(std::vector<unsigned char>& bytes, std::size_t offset, std::int32_t value) {
  std::memcpy(bytes.data() + offset, &value, sizeof value);
}

int& Cell(cStage& stage, int x, int y) { return stage.m_vecMap[static_cast<std::size_t>((y << stage.m_nShift) + x)]; }

template <class Event>
Event Named(const char* name, int x = 0, int y = 0) {
  Event event;
  event.m_strName = name, event.m_nX = x, event.m_nY = y;
  return event;
}

}  // namespace

TEST_F(StageTest, TheBuiltInStageIs2073Bytes) {
  ASSERT_EQ(g_Stage.SaveFile("s.stg2"), 1);
  std::vector<unsigned char> bytes = FileBytes("s.stg2");
  ASSERT_EQ(bytes.size(), 2073u);
  // Version, then width, height, stride and shift; the map count behind the 20 fields.
  for (auto [offset, value] : {std::pair{0, 290}, {4, 20}, {8, 15}, {12, 32}, {16, 5}, {93, 480}})
    EXPECT_EQ(IntAt(bytes, offset), value) << offset;
  EXPECT_EQ(g_Stage.m_vecGroupPos.size(), 2u);
}

TEST_F(StageTest, AVersion60FileListsEnemiesFirstAndIsSavedWithGroupsFirst) {
  cPutEnemy enemy;
  enemy.m_nEnemy = 1, enemy.m_nX = 2, enemy.m_nY = 1, enemy.m_nGroup = 3, enemy.m_bGroup = 1;
  cGroupPos hidden, group;
  group.m_strName = "g", group.m_nCenterX = 3, group.m_vecPos = {{1, 2}, {3, 0}};
  cEvent event = Named<cEvent>("placed", 3, 2), old = Named<cEvent>("oldlist");
  cEndCond win;
  win.m_strText = "win";
  cDbStream file = cDbStream::File(60).Int(4).Int(3).Int(8).Int(3).Int(1).Int(500).Int(40).Int(90).Int(45).Text("old");
  file.Int(1).Int(0).Int(24).Ints(5, 0).Int(4).Ints(3, 0).Int(2).Ints(14, 0);  // terrain 2 at (1, 1), 4 in padding
  file.Int(1).Append(Body(enemy, 60)).Int(1).Append(Body(event, 60)).Int(1).Append(Body(old, 60));
  file.Int(2).Append(Body(hidden, 60)).Append(Body(group, 60)).Int(1).Append(Body(win, 60)).Int(0).Int(0);

  // Fields a file of 60 lacks keep what the stage held.
  g_Stage.m_bShowClear = 0, g_Stage.m_nGoldRate = 77, g_Stage.m_nBack = 2, g_Stage.m_nRewardTurnCut = 12;
  WriteBytes("old.stg2", file.bytes);
  ASSERT_EQ(g_Stage.LoadFile("old.stg2"), 1) << g_strLastSerialFailure;
  EXPECT_EQ(std::tie(g_Stage.m_nWidth, g_Stage.m_nStartGroup, g_Stage.m_nReward, g_Stage.m_nBgm, g_Stage.m_bAllGroups),
            std::make_tuple(4, 1, 500, 1, 0));
  EXPECT_EQ(std::tie(g_Stage.m_bShowClear, g_Stage.m_nGoldRate, g_Stage.m_nBack, g_Stage.m_nRewardTurnCut),
            std::make_tuple(0, 77, 2, 12));
  EXPECT_EQ(std::tie(Cell(g_Stage, 1, 1), g_Stage.m_vecMap[5], g_Stage.m_vecPutEnemy.at(0).m_nX), std::make_tuple(2, 4, 2));
  EXPECT_EQ(std::tie(g_Stage.m_vecEvent.at(0).m_strName, g_Stage.m_vecOldEvent.at(0).m_strName),
            std::make_tuple("placed", "oldlist"));
  EXPECT_EQ(std::tie(g_Stage.m_vecGroupPos.at(1).m_vecPos, g_Stage.m_vecWinCond.at(0).m_strText),
            std::make_tuple(VECTOR_CLASS<cMapPos>{{1, 2}, {3, 0}}, "win"));

  cStage loaded = g_Stage;
  ASSERT_EQ(g_Stage.SaveFile("new.stg2"), 1);
  std::vector<unsigned char> saved = FileBytes("new.stg2");
  EXPECT_EQ(IntAt(saved, 0), 290);
  EXPECT_EQ(IntAt(saved, 188), 2);  // behind the map come the two groups, not the one enemy
  EXPECT_EQ(std::search(saved.begin(), saved.end(), old.m_strName.begin(), old.m_strName.end()), saved.end());
  g_Stage.Init();
  ASSERT_EQ(g_Stage.LoadFile("new.stg2"), 1);
  EXPECT_TRUE(Compare(g_Stage, loaded) && g_Stage.m_vecOldEvent.empty());
}

TEST_F(StageTest, StridesFollowEachMapsRuleAndCellsKeepTheirPlace) {
  for (auto [width, stageStride, worldStride] : {std::tuple{1, 2, 1}, {2, 4, 2}, {3, 4, 4}, {20, 32, 32},
                                                 {31, 32, 32}, {32, 64, 32}, {64, 128, 64}, {200, 0, 256}}) {
    if (stageStride != 0) {
      g_Stage.Resize(width, 3);
      EXPECT_EQ(std::tie(g_Stage.m_nStride, g_Stage.m_vecMap), std::make_tuple(stageStride, VECTOR_CLASS<int>(stageStride * 3)))
          << width;
    }
    g_WorldMap.Resize(width, 3);
    EXPECT_EQ(std::make_tuple(g_WorldMap.m_nStride, g_WorldMap.m_vecMap.size()),
              std::make_tuple(worldStride, static_cast<std::size_t>(worldStride) * 3u))
        << width;
  }

  g_Stage.Resize(20, 15);
  for (int y = 0; y < 15; ++y)
    for (int x = 0; x < 20; ++x) Cell(g_Stage, x, y) = 1 + x + 20 * y;
  g_Stage.Resize(32, 15);
  for (int y = 0; y < 15; ++y)
    for (int x = 0; x < 64; ++x) ASSERT_EQ(Cell(g_Stage, x, y), x < 20 ? 1 + x + 20 * y : 0) << x << "," << y;
  // Shrinking loses what falls outside; growing back brings none of it.
  g_Stage.Resize(10, 4);
  g_Stage.Resize(20, 15);
  EXPECT_EQ(std::tie(Cell(g_Stage, 9, 3), Cell(g_Stage, 10, 3), Cell(g_Stage, 9, 4)), std::make_tuple(70, 0, 0));
  // Sizes beyond the map's range are held to it.
  g_Stage.Resize(0, 100);
  EXPECT_EQ(std::tie(g_Stage.m_nWidth, g_Stage.m_nHeight), std::make_tuple(1, 64));
}

TEST_F(StageTest, ClampAfterShrinkingRepairsInItsOrder) {
  cStage& s = g_Stage;
  Cell(s, 9, 7) = 7;  // beyond the five terrains
  Cell(s, 3, 3) = 4;
  s.m_vecEvent = {Named<cEvent>("edge", 9, 0), Named<cEvent>("right", 10, 0), Named<cEvent>("below", 0, 8)};
  s.m_vecPutEnemy.resize(3);
  s.m_vecPutEnemy[0].m_nX = 15, s.m_vecPutEnemy[0].m_nY = 3, s.m_vecPutEnemy[0].m_nEnemy = 5;
  s.m_vecPutEnemy[2].m_nX = 9, s.m_vecPutEnemy[2].m_nY = 7;
  s.m_vecGroupPos.resize(3);
  s.m_vecGroupPos[1].m_vecPos = {{9, 7}, {10, 1}, {2, 8}, {0, 0}};
  s.m_vecGroupPos[1].m_nCenterX = 12, s.m_vecGroupPos[1].m_nCenterY = 7;
  s.m_vecWinCond.resize(2);
  s.m_vecWinCond[0].m_nFocusGroup = 3, s.m_vecWinCond[0].m_nFocusX = 25, s.m_vecWinCond[0].m_nFocusY = 7;
  s.m_vecWinCond[0].m_nShowGroup = 3;
  s.m_vecWinCond[1].m_nFocusGroup = 2, s.m_vecWinCond[1].m_nShowGroup = 2;
  s.m_nStartGroup = 3, s.m_nRewardVal = 3, s.m_nBack = 3, s.m_nBgm = 2;

  s.Resize(10, 8);
  Cell(s, 12, 2) = 9;  // padding
  s.Clamp();
  EXPECT_EQ(std::tie(Cell(s, 9, 7), Cell(s, 3, 3), Cell(s, 12, 2)), std::make_tuple(0, 4, 9));
  ASSERT_EQ(s.m_vecEvent.size(), 1u);
  EXPECT_EQ(s.m_vecEvent[0].m_strName, "edge");
  std::vector<std::tuple<int, int, int>> enemies;
  for (const cPutEnemy& e : s.m_vecPutEnemy) enemies.emplace_back(e.m_nEnemy, e.m_nX, e.m_nY);
  EXPECT_EQ(enemies, (std::vector<std::tuple<int, int, int>>{{0, -1, -1}, {0, -1, -1}, {0, 9, 7}}));
  EXPECT_EQ(s.m_vecGroupPos[1].m_vecPos, (VECTOR_CLASS<cMapPos>{{9, 7}, {0, 0}}));
  EXPECT_EQ(std::tie(s.m_vecGroupPos[1].m_nCenterX, s.m_vecGroupPos[1].m_nCenterY), std::make_tuple(0, 7));
  const cEndCond &a = s.m_vecWinCond[0], &b = s.m_vecWinCond[1];
  EXPECT_EQ(std::tie(a.m_nFocusGroup, a.m_nFocusX, a.m_nFocusY, a.m_nShowGroup), std::make_tuple(1, 9, 7, 0));
  EXPECT_EQ(std::tie(b.m_nFocusGroup, b.m_nShowGroup), std::make_tuple(2, 2));
  EXPECT_EQ(std::tie(s.m_nStartGroup, s.m_nRewardVal, s.m_nBack, s.m_nBgm), std::make_tuple(0, 1, 1, 0));
}

TEST_F(StageTest, AFileWhoseSizesDisagreeIsRefusedAndTheStageStays) {
  ASSERT_EQ(g_Stage.SaveFile("good.stg2"), 1);
  const std::vector<unsigned char> good = FileBytes("good.stg2");
  g_Stage.m_strName = "before";
  g_Stage.m_vecPutEnemy.resize(1);
  const cStage before = g_Stage;
  struct Case {
    int width, height, stride, shift, loads;
  } cases[] = {{31, 15, 32, 5, 1},  {0, 15, 32, 5, 0},  {65, 15, 128, 7, 0}, {32, 15, 32, 5, 0},
               {20, 15, 32, 6, 0},  {20, 15, 16, 5, 0}, {20, 16, 32, 5, 0},  {20, 14, 32, 5, 0}};
  for (const Case& c : cases) {
    std::vector<unsigned char> bytes = good;
    for (auto [offset, value] : {std::pair{4, c.width}, {8, c.height}, {12, c.stride}, {16, c.shift}})
      PutIntAt(bytes, offset, value);
    WriteBytes("bad.stg2", bytes);
    g_strLastSerialFailure.clear();
    EXPECT_EQ(g_Stage.LoadFile("bad.stg2"), c.loads) << c.width << "x" << c.height << " /" << c.stride;
    if (c.loads) {
      g_Stage = before;
      continue;
    }
    EXPECT_TRUE(Compare(g_Stage, before) && g_Stage.m_vecPutEnemy.size() == 1u) << c.width;
    EXPECT_NE(g_strLastSerialFailure.find("stage file refused"), std::string::npos) << g_strLastSerialFailure;
  }
}

TEST_F(StageTest, OneEventPerCellOnBothMaps) {
  auto check = [](auto& map) {
    using Event = std::decay_t<decltype(map.m_vecEvent[0])>;
    auto names = [&] {
      std::vector<std::string> out;
      for (const Event& e : map.m_vecEvent) out.push_back(e.m_strName + "@" + std::to_string(e.m_nX) + std::to_string(e.m_nY));
      return out;
    };
    Event a = Named<Event>("a"), b = Named<Event>("b"), c = Named<Event>("c");
    map.PutEvent(a, 1, 1);
    map.PutEvent(b, 2, 2);
    map.PutEvent(c, 1, 1);  // replaces a; the new one goes to the end
    EXPECT_EQ(names(), (std::vector<std::string>{"b@22", "c@11"}));
    EXPECT_EQ(std::tie(c.m_nX, c.m_nY, map.EventAt(1, 1)->m_strName), std::make_tuple(1, 1, "c"));
    EXPECT_TRUE(map.EventAt(3, 3) == nullptr && map.HasEventAt(2, 2) == 1);
    // An element of the list put on an occupied cell: the removal shifts it away.
    map.PutEvent(map.m_vecEvent[1], 2, 2);
    EXPECT_EQ(names(), (std::vector<std::string>{"c@11", "c@22"}));
    EXPECT_EQ(map.RemoveEvent(&c), 0);  // not an element of the list
    EXPECT_EQ(map.RemoveEvent(&map.m_vecEvent[0]), 1);
    for (int removed : {1, 0}) EXPECT_EQ(map.RemoveEventsAt(2, 2), removed);
    map.m_vecMap[3] = 5;
    map.ClearMap();
    EXPECT_EQ(map.m_vecMap, VECTOR_CLASS<int>(map.m_vecMap.size(), 0));
  };
  check(g_Stage);
  check(g_WorldMap);
}

TEST_F(StageTest, WhereTheStageComesFrom) {
  // No default file: the built-in stage, clamped, with the message; a stage without a file is open.
  g_EditConfig.m_strDefaultStage = "data\\stg\\Default.stg2";
  g_Stage.m_strName = "kept";
  EXPECT_EQ(LoadDefaultStage(), 0);
  EXPECT_EQ(g_Stage.m_strName, "kept");
  EXPECT_EQ(NewStageFromDefault(), 1);
  EXPECT_EQ(std::tie(g_Stage.m_nWidth, g_Stage.m_nHeight, g_Stage.m_strName), std::make_tuple(20, 15, CP932_TEXT("ステージ")));
  ASSERT_EQ(m_prompt.shown.size(), 1u);
  EXPECT_EQ(m_prompt.shown[0].text, CP932_TEXT("デフォルトステージ data\\stg\\Default.stg2 の読み込みに失敗しました！"));
  EXPECT_EQ(std::tie(g_EditState.m_bStageOpen, g_EditState.m_strStagePath), std::make_tuple(1, std::string()));

  std::filesystem::create_directories("data/stg");
  g_Stage.m_strName = "default";
  ASSERT_EQ(g_Stage.SaveFile("data\\stg\\Default.stg2"), 1);
  for (auto [path, loaded, name] : {std::tuple{"data\\stg\\Default.stg2", 1, "default"}, {"", 0, "default"},
                                    {"data\\stg\\Missing.stg2", 0, CP932_TEXT("ステージ").c_str()}}) {
    EXPECT_EQ(LoadLastStage(path), loaded) << path;
    EXPECT_EQ(std::tie(g_EditState.m_bStageOpen, g_EditState.m_strStagePath, g_Stage.m_strName),
              std::make_tuple(loaded, std::string(loaded ? path : ""), std::string(name)))
        << path;
  }
  EXPECT_EQ(m_prompt.shown.size(), 1u);
}

TEST_F(StageTest, PathsAreMadeRelativeWhereTheyCanBe) {
  const std::filesystem::path cwd = std::filesystem::current_path();
  for (auto [path, result, made] : {std::tuple{cwd.string() + "/data/stg/a.stg2", 1, "data\\stg\\a.stg2"},
                                    {cwd.parent_path().string() + "/other/b.stg2", 1, "..\\other\\b.stg2"},
                                    {"data\\stg\\c.stg2", 1, "data\\stg\\c.stg2"},
                                    {"D:\\stages\\d.stg2", 0, "D:\\stages\\d.stg2"}}) {
    EXPECT_EQ(MakeRelativePath(path), result) << made;
    EXPECT_EQ(path, made);
  }
}
