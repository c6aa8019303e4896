// The event stores of a project: common variable names, the palette, the labels.

#include "event/event_names.h"
#include "event/event_test_support.h"
#include "project/project_files.h"

namespace {

class StoredEventsTest : public EventTest {};

}  // namespace

TEST_F(StoredEventsTest, CommonVariableNamesAlwaysHave1000Rows) {
  VECTOR_CLASS<cGValInfo> five(5);
  five[4].m_strName = CP932_TEXT("鍵");
  std::filesystem::create_directories("data");
  ASSERT_EQ(SaveVector(five, kGValInfoPath), 1);
  ASSERT_EQ(kGValInfoFile.load(kGValInfoPath), 1);
  ASSERT_EQ(g_vecGValInfo.size(), 1000u);
  EXPECT_EQ(g_vecGValInfo[4].m_strName, CP932_TEXT("鍵"));
  ASSERT_EQ(kGValInfoFile.save(kGValInfoPath), 1);
  ASSERT_EQ(LoadVector(five, kGValInfoPath), 1);
  EXPECT_EQ(five.size(), 1000u);
}

TEST_F(StoredEventsTest, VariableLabelsAreNumberedFromOneOrHeadedByNone) {
  g_vecGValInfo[7].m_strName = CP932_TEXT("勇者");
  VECTOR_CLASS<std::string> labels;
  BuildVarLabels(labels);
  ASSERT_EQ(labels.size(), 999u);
  EXPECT_EQ(labels[6], CP932_TEXT("007 勇者"));  // row r is variable r + 1
  EXPECT_EQ(labels[11], "012 ");
  BuildVarLabelsWithNone(labels);
  ASSERT_EQ(labels.size(), 1000u);
  EXPECT_EQ(std::tie(labels[0], labels[5]), std::make_tuple(CP932_TEXT("コモン変数条件なし"), CP932_TEXT("005 所持数")));
  g_vecGValInfo.clear();  // before the names are loaded the rows still stand
  BuildVarLabels(labels);
  EXPECT_EQ(labels.size(), 999u);
  BuildNumberedLabels(labels, eNamedTable::Bgm, 1, "なし");
  EXPECT_EQ(labels, (VECTOR_CLASS<std::string>{CP932_TEXT("なし"), "001 ", CP932_TEXT("002 戦い")}));
}

TEST_F(StoredEventsTest, AMissingPaletteFallsBackToOneDefaultEvent) {
  VECTOR_CLASS<cEvent> palette;
  UseFallbackEventPalette(palette);
  ASSERT_EQ(palette.size(), 1u);
  EXPECT_EQ(palette[0].m_strName, CP932_TEXT("デフォルト"));
  std::filesystem::create_directories("data/plt");
  for (auto [events, expected] : {std::pair{0, 1}, {2, 2}}) {  // an empty fallback file keeps the default
    VECTOR_CLASS<cEvent> fallback(static_cast<std::size_t>(events));
    ASSERT_EQ(SaveVector(fallback, kDefaultEventPltPath), 1);
    UseFallbackEventPalette(palette);
    EXPECT_EQ(palette.Count(), expected);
  }
}
