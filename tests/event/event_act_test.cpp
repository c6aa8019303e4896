// Event actions: the migrations of old files, the slot counts and the clamps.

#include <climits>

#include "event/event_test_support.h"

namespace {

using Ints = VECTOR_CLASS<std::int32_t>;
class EventActTest : public EventTest {};

cEventAct AtVersion(cEventAct act, std::uint32_t version) { return LoadedFrom<cEventAct>(StreamAtVersion(act, version)); }

Ints Seq(int from, int count) {
  Ints run;
  for (int i = 0; i < count; ++i) run.push_back(from + i);
  return run;
}

Ints Join(std::initializer_list<Ints> parts) {
  Ints all;
  for (const Ints& part : parts) all.insert(all.end(), part.begin(), part.end());
  return all;
}

}  // namespace

TEST_F(EventActTest, EveryKindHasDefaultsAtItsSlotCount) {
  for (int kind = 0; kind < kEventActKinds; ++kind) {
    EXPECT_EQ(EventActDefaultInts(kind).Count(), EVENT_ACT_INFO[kind].m_nIntCount) << kind;
  }
  cEventAct act = MakeAct(EACT_MESSAGE, {});
  SetEventActDefaults(act);
  EXPECT_EQ(act.m_vecStr.size(), 1u);
  EXPECT_EQ(act.m_vecInt[25], 100);
}

TEST_F(EventActTest, MessageAndPictureSlotsMoveAtTheirGates) {
  // Version 56: the scale arrives at 21 and moves up with the flips, the gap at 9 and
  // the alpha, to 25.
  cEventAct message = MakeAct(EACT_MESSAGE, Seq(1000, 22), {"abc"});
  cEventAct at56 = AtVersion(message, 56);
  EXPECT_EQ(at56.m_vecInt, Join({Seq(1000, 9), {0}, Seq(1009, 11), {0, 0, 255, 1020, 100}}));
  EXPECT_EQ(at56.m_vecStr[0], "abc");
  EXPECT_EQ(AtVersion(message, 62).m_vecInt, Join({Seq(1000, 22), Ints(4, 0)}));
  // Version 58: flips at 9 and 10, alpha 255 at 11, the key toggle at 17.
  cEventAct picture = MakeAct(EACT_PICTURE, Join({{1}, Seq(2001, 13)}));
  EXPECT_EQ(AtVersion(picture, 58).m_vecInt, Join({{1}, Seq(2001, 8), {0, 0, 255}, Seq(2009, 5), {0}}));
}

TEST_F(EventActTest, OldKindNumbersAreRenumbered) {
  struct Case {
    std::uint32_t version;
    int stored, expected;
  } cases[] = {{24, 4, 4},   {24, 5, 6},    {24, 6, 10},   {24, 7, 11},   {25, 5, 5},  {60, 7, 7},  {60, 8, 10},
               {60, 20, 23}, {94, 8, 9},    {102, 20, 20}, {102, 21, 22}, {103, 21, 21},
               {102, 26, 0},  // 27 would have no row
               {290, 26, 26}};
  for (const Case& c : cases) EXPECT_EQ(LoadedFromRaw(MakeAct(c.stored, {}), c.version).m_nKind, c.expected) << c.stored;
}

TEST_F(EventActTest, ShortSlotVectorsOfRenumberedKindsLoseNothing) {
  // Kind 11 of 90 is today's map chip; today's kind 11 has 3 slots, the old one had 4.
  cEventAct chip = LoadedFromRaw(MakeAct(11, {3, 2, 4, 1}), 90);
  EXPECT_EQ(chip.m_nKind, EACT_MAPCHIP);
  EXPECT_EQ(chip.m_vecInt, (Ints{3, 0, 2, 4, 1}));
  // Kind 14 of 90 is today's music, whose loop flag is derived from a single slot.
  cEventAct music = LoadedFromRaw(MakeAct(14, {2}), 90);
  EXPECT_EQ(music.m_nKind, EACT_BGM);
  EXPECT_EQ(music.m_vecInt, (Ints{2, 0, 1}));
  cEventAct message = LoadedFromRaw(MakeAct(EACT_MESSAGE, {3}), 50);
  EXPECT_EQ(message.m_vecInt.size(), 26u);
  EXPECT_EQ(message.m_vecStr.size(), 1u);
}

TEST_F(EventActTest, StatusMapChipAndMusicGates) {
  EXPECT_EQ(LoadedFromRaw(MakeAct(15, Seq(1, 8)), 70).m_vecInt, Ints(16, 0));  // the old status layout starts over
  EXPECT_EQ(LoadedFromRaw(MakeAct(14, {9}), 60).m_nKind, EACT_STATUS);
  cEventAct status = MakeAct(EACT_STATUS, Join({Ints(15, 0), {7}}));
  EXPECT_EQ(LoadedFrom<cEventAct>(SavedStream(status)).m_vecInt[15], 7);  // no form writes it, it stays

  cEventAct chip = MakeAct(EACT_MAPCHIP, {1, 2, 3, 2, 2});
  EXPECT_EQ(AtVersion(chip, 125).m_vecInt, (Ints{1, 0, 2, 3, 2}));
  EXPECT_EQ(AtVersion(chip, 126).m_vecInt, (Ints{1, 2, 3, 2, 2}));
  struct Case {
    int scene, loopBefore;
    std::uint32_t version;
    int loop;
  } cases[] = {{2, 0, 280, 1}, {3, 1, 280, 0}, {0, 1, 280, 0}, {3, 1, 281, 1}};
  for (const Case& c : cases) {
    EXPECT_EQ(AtVersion(MakeAct(EACT_BGM, {c.scene, 1, c.loopBefore}), c.version).m_vecInt[2], c.loop) << c.scene;
  }
}

TEST_F(EventActTest, UnknownKindsBecomeEmptyActionsOfKindZeroAndShortOnesAreSized) {
  for (int kind : {27, 400, -1, INT_MAX}) {
    cEventAct act = LoadedFromRaw(MakeAct(kind, {1, 2, 3}, {"x"}), 20);
    EXPECT_EQ(act.m_nKind, 0) << kind;
    EXPECT_TRUE(act.m_vecInt.empty() && act.m_vecStr.empty());
  }
  cEventAct wait = MakeAct(EACT_WAIT, {});
  EXPECT_EQ(LoadedFromRaw(wait, 290).m_vecInt, Ints{0});
  EXPECT_EQ(SavedStream(wait).size(), 4u + 16u);  // saved at the table's count
}

TEST_F(EventActTest, ReferencesAreClampedAgainstTheTablesOfTheMoment) {
  struct Case {
    int kind;
    std::vector<int> in;
    Ints out;
  } cases[] = {
      {EACT_PICTURE, {9}, {3}}, {EACT_PICTURE, {-1}, {0}}, {EACT_SOUND, {0}, {1}},
      {EACT_BGM, {2, 0, 1}, {2, 0, 1}},  // 0 is the form's "none" and stays
      {EACT_BGM, {2, 7, 1}, {2, 2, 1}}, {EACT_MAPCHIP, {0, 1, 9, -4, 5}, {0, 1, 4, 0, 2}},
      {EACT_FRIENDSHOP, {8, 0}, {2, 0}}, {EACT_PARTY, {0, 1}, {1, 1}},
      {EACT_PUTFRIEND, {5, 1, 0, 25, -1, 0}, {2, 1, 0, 19, 0, 0}}, {EACT_MAPCURSOR, {0, 0, 7, 15}, {0, 1, 7, 14}},
      {EACT_WARP, {0, 20, 14, 1}, {0, 19, 14, 1}}, {EACT_STARTPOS, {5}, {2}},
      {EACT_LEARNSKILL, {5, 1}, {0, 1}}, {EACT_LEARNSKILL, {-1, 2}, {0, 1}}, {EACT_LEARNSKILL, {0, 2}, {0, 2}},
      {EACT_STOCK, {1, 2, 1}, {1, 1, 1}}, {EACT_SHOPGOODS, {1, -3, 1, 1}, {1, -3, 1, 1}},
      {EACT_RANDOMSKILL, {2, 1, 2, 0, 1}, {0, 1, 2, 0, 1}}};
  for (const Case& c : cases) {
    cEventAct act = MakeAct(c.kind, c.in);
    NormalizeEventAct(act);
    act.m_vecInt.resize(c.out.size());  // the slots the case names
    EXPECT_EQ(act.m_vecInt, c.out) << c.kind;
  }
  g_Stage.m_vecGroupPos.resize(1);  // nothing beyond the unused row 0: lo 1 is above hi 0
  cEventAct start = MakeAct(EACT_STARTPOS, {1});
  NormalizeEventAct(start);
  EXPECT_EQ(start.m_vecInt, Ints{0});
}
