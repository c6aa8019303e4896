// Events and pages: old formats, the page's repairs, which fields are in force
// together and where graphics lie.

#include "event/event_page_rules.h"
#include "event/event_test_support.h"

namespace {

class EventPageTest : public EventTest {};

cEventPage FullPage() {
  cEventPage page;
  for (int* field : {&page.m_nGraphic, &page.m_bTurnCondA, &page.m_nTurnABase, &page.m_nTurnAStep, &page.m_nTurnBMax,
                     &page.m_nFriendCond, &page.m_bChainPrev, &page.m_bEnemyGroupCond, &page.m_nEnemyId, &page.m_nTiming})
    *field = 2;
  page.m_vecAct.push_back(MakeAct(EACT_WAIT, {4}));
  return page;
}

}  // namespace

TEST_F(EventPageTest, ADefaultPageIs108BytesAndOldFilesLackTheLaterFields) {
  cEventPage page;
  EXPECT_EQ(SavedStream(page).size(), 4u + 108u);
  EXPECT_EQ(StreamAtVersion(page, 26).size(), 4u + 108u - 44u);
  struct Case {
    std::uint32_t version;
    int cEventPage::*field;
    int expected;
  } cases[] = {{26, &cEventPage::m_bTurnCondA, 0},  {26, &cEventPage::m_nTurnAStep, 0},
               {26, &cEventPage::m_nTurnABase, 2},  {26, &cEventPage::m_nTiming, 2},
               {27, &cEventPage::m_nTurnBMax, 2},   {41, &cEventPage::m_nFriendCond, 0},
               {42, &cEventPage::m_nFriendCond, 2}, {74, &cEventPage::m_bChainPrev, 0},
               {75, &cEventPage::m_bChainPrev, 2},  {113, &cEventPage::m_nEnemyId, 0},
               {113, &cEventPage::m_bEnemyGroupCond, 0}, {114, &cEventPage::m_nEnemyId, 2}};
  for (const Case& c : cases) {
    cEventPage full = FullPage();
    cEventPage loaded = LoadedFrom<cEventPage>(StreamAtVersion(full, c.version));
    EXPECT_EQ(loaded.*c.field, c.expected) << c.version;
    EXPECT_EQ(loaded.m_vecAct.size(), 1u);
  }
}

TEST_F(EventPageTest, ReferencesBeyondTheirTablesBecomeZero) {
  cEventPage page;
  EXPECT_EQ(page.m_nPosGroup, 1);
  for (auto [value, expected] : {std::pair{2, 2}, {3, 0}, {40, 0}, {-1, -1}}) {  // 3 allies, 3 groups
    page.m_nFriendCond = page.m_nPosGroup = value;
    cEventPage loaded = LoadedFrom<cEventPage>(SavedStream(page));
    EXPECT_EQ(std::tie(loaded.m_nFriendCond, loaded.m_nPosGroup), std::make_tuple(expected, expected));
  }
  g_Stage.m_vecGroupPos.resize(1);
  EXPECT_EQ(cEvent().m_vecPage.at(0).m_nPosGroup, 0);  // a new event's one page, clamped as it is made
}

TEST_F(EventPageTest, FieldsInForceFollowTheConditionsAndTheTarget) {
  cEventPage page;
  page.m_nTargetChara = 3;
  page.m_bEnemyGroupCond = 1;
  cEventPageEnable off = EventPageEnable(page);  // target range 0: no target at all
  EXPECT_FALSE(off.targetChara || off.posGroup || off.friendCond || off.enemyGroupCheck || off.enemyGroup);
  EXPECT_FALSE(off.turnA || off.turnB || off.eventVar || off.commonVar || off.command);
  page.m_nTargetRange = 3;
  for (auto [chara, friendCond, enemy] : {std::tuple{0, false, false}, {1, true, false}, {2, false, true},
                                          {3, true, true}, {4, true, false}, {5, true, true}}) {
    page.m_nTargetChara = chara;
    cEventPageEnable e = EventPageEnable(page);
    EXPECT_TRUE(e.targetChara && e.posGroup);
    EXPECT_EQ(e.friendCond, friendCond) << chara;
    EXPECT_EQ(e.enemyGroupCheck && e.enemyIdCheck && e.enemyGroup, enemy) << chara;
    EXPECT_FALSE(e.enemyId);  // its check is not set
  }
  page.m_nTargetRange = 1;
  EXPECT_FALSE(EventPageEnable(page).posGroup);
  for (int timing : {0, 2, 3, 4, 15, 16, 17}) {
    page.m_nTiming = timing;
    EXPECT_EQ(EventPageEnable(page).command, timing == 3 || timing == 16) << timing;
  }
}

TEST_F(EventPageTest, GraphicsRunDownColumnsOf32) {
  for (auto [graphic, x, y] : {std::tuple{1, 0, 32}, {31, 0, 992}, {32, 64, 0}, {33, 64, 32}, {511, 960, 992}}) {
    cCellRect cell{};
    ASSERT_TRUE(EventGraphicCell(graphic, cell));
    EXPECT_EQ(std::pair(cell.x, cell.y), std::pair(x, y)) << graphic;
  }
  cCellRect cell{};
  for (int graphic : {0, 512, -3}) EXPECT_FALSE(EventGraphicCell(graphic, cell)) << graphic;
  cEvent event;
  event.m_vecPage.push_back(FullPage());
  EXPECT_EQ(EventMapGraphic(event), 0);  // the first page's, not a later one's
}
