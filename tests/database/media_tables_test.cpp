// The media and help tables: their bytes, their gates, the frame texts, the name that
// follows a file, and the frame player.

#include <tuple>

#include "database/anim.h"
#include "database/anim_player.h"
#include "database/help.h"
#include "database/media_tables.h"
#include "database/db_test_support.h"
#include "platform/cp932.h"

namespace {

// A character frame at `version`: frame 5, time 10, effect start, moves 3 and -2, warp.
cDbStream CharaFrame(std::uint32_t version) {
  cDbStream s;
  s.Int(5).Int(10).Int(1);
  if (version >= 28) s.Int(3).Int(-2);
  if (version >= 120) s.Int(1);
  return s;
}

// An effect frame at `version`, its warp stored as 0 where it is stored.
cDbStream EffectFrame(std::uint32_t version) {
  cDbStream s;
  s.Int(5).Int(10);
  if (version >= 29) s.Int(3).Int(-2);
  if (version >= 201) s.Int(0);
  return s;
}

template <class Frame>
Frame MakeFrame(int frame, int time, int moveX, int moveY) {
  Frame f;
  f.m_nFrame = frame, f.m_nTime = time, f.m_nMoveX = moveX, f.m_nMoveY = moveY;
  return f;
}

}  // namespace

using MediaTablesTest = DatabaseTest;

TEST_F(MediaTablesTest, DefaultRecordsAt290) {
  const auto head = [] { return cDbStream::File(290).Int(1); };
  VECTOR_CLASS<cEdPicture> pictures(1);
  EXPECT_EQ(SavedVector(pictures), head().Text("").Int(0).Text("").bytes);
  VECTOR_CLASS<cEdSound> sounds(1);
  EXPECT_EQ(SavedVector(sounds), head().Text("").Int(1).Text("").bytes);
  VECTOR_CLASS<cEdBgm> bgms(1);
  EXPECT_EQ(SavedVector(bgms), head().Text("").Int(1).Text("").Int(100).bytes);
  VECTOR_CLASS<cPtVal> vals(1);
  EXPECT_EQ(SavedVector(vals), head().Text("").Text("").Int(1).Int(0).Int(999999).Ints(3, 0).bytes);
  VECTOR_CLASS<cEdHelp> helps(1);
  EXPECT_EQ(SavedVector(helps), head().Text("").Text("").Int(1).Text("").bytes);
  VECTOR_CLASS<cCharaAnimPat> charas(1);
  EXPECT_EQ(SavedVector(charas), head().Text("").Short(0).Int(1).Int(0).Int(1).Ints(4, 0).bytes);
  VECTOR_CLASS<cEffectAnimPat> effects(1);
  EXPECT_EQ(SavedVector(effects), head().Text("").Short(0).Int(1).Int(0).Int(1).Ints(3, 0).bytes);

  // Bytes and doubles between the integers, spelt out.
  VECTOR_CLASS<cEdBack> backs(1);
  backs[0].m_byGreen = 0x7F;
  backs[0].m_dScrollY = -1.5;
  EXPECT_EQ(SavedVector(backs), Bytes({0x22, 0x01, 0, 0, 1, 0, 0, 0,           // header, count
                                       1, 0, 0, 0, 0, 0, 0, 0,                 // name, kind
                                       32, 0, 0, 0, 32, 0, 0, 0, 1, 0, 0, 0,   // chip size, path
                                       0, 0x7F, 0,                             // colour
                                       0, 0, 0, 0, 0, 0, 0, 0,                 // scroll x
                                       0, 0, 0, 0, 0, 0, 0xF8, 0xBF}));        // scroll y
}

TEST_F(MediaTablesTest, PartyValueAndMusicGates) {
  for (std::uint32_t version : {30u, 31u}) {
    cDbStream file = cDbStream::File(version).Int(1).Text("G").Text("P").Int(7).Int(-5).Int(500).Int(1);
    if (version >= 31) file.Int(1);
    file.Int(42);
    VECTOR_CLASS<cPtVal> vals;
    ASSERT_EQ(LoadBytes(vals, file), 1) << version;
    EXPECT_EQ(std::tie(vals[0].m_nCommonVar, vals[0].m_bShowSave, vals[0].m_nReserved),
              std::make_tuple(7, version >= 31 ? 1 : 0, 42)) << version;
    EXPECT_EQ(SavedVector(vals), cDbStream::File(290)
                                     .Int(1).Text("G").Text("P").Int(7).Int(-5).Int(500).Int(1)
                                     .Int(version >= 31 ? 1 : 0).Int(42).bytes)
        << version;
  }

  for (std::uint32_t version : {99u, 100u}) {
    cDbStream file = cDbStream::File(version).Int(1).Text("m").Int(0).Text("bgm\\a.ogg");
    if (version >= 100) file.Int(40);
    VECTOR_CLASS<cEdBgm> bgms;
    ASSERT_EQ(LoadBytes(bgms, file), 1) << version;
    EXPECT_EQ(std::tie(bgms[0].m_strPath, bgms[0].m_nVolume), std::make_tuple("bgm\\a.ogg", version >= 100 ? 40 : 100));
  }
}

TEST_F(MediaTablesTest, AnimationFrameGates) {
  for (std::uint32_t version : {27u, 28u, 119u, 120u}) {
    VECTOR_CLASS<cCharaAnimPat> pats;
    ASSERT_EQ(LoadBytes(pats, cDbStream::File(version).Int(1).Text("a").Short(12).Int(1).Append(CharaFrame(version))), 1)
        << version;
    const cCharaAnim& frame = pats[0].m_vecAnim[0];
    // No warp migration for characters.
    EXPECT_EQ(std::tie(pats[0].m_sPreview, frame.m_bStartEffect, frame.m_nMoveX, frame.m_nMoveY, frame.m_bWarp),
              std::make_tuple(12, 1, version >= 28 ? 3 : 0, version >= 28 ? -2 : 0, version >= 120 ? 1 : 0))
        << version;
  }
  for (std::uint32_t version : {28u, 29u, 200u, 201u}) {
    VECTOR_CLASS<cEffectAnimPat> pats;
    ASSERT_EQ(LoadBytes(pats, cDbStream::File(version).Int(1).Text("a").Short(3).Int(1).Append(EffectFrame(version))), 1)
        << version;
    const cEffectAnim& frame = pats[0].m_vecAnim[0];
    // Effects warped before the flag was stored.
    EXPECT_EQ(std::tie(frame.m_nMoveX, frame.m_bWarp), std::make_tuple(version >= 29 ? 3 : 0, version >= 201 ? 0 : 1))
        << version;
    EXPECT_EQ(SavedVector(pats), cDbStream::File(290)
                                     .Int(1).Text("a").Short(3).Int(1)
                                     .Int(5).Int(10).Int(frame.m_nMoveX).Int(frame.m_nMoveY).Int(version >= 201 ? 0 : 1)
                                     .bytes)
        << version;
  }
}

TEST(FileNames, NameFollowsThePathWhenAsked) {
  cEdBgm bgm;
  bgm.m_strPath = "bgm\\battle.ogg";
  EXPECT_TRUE(SetFileName(bgm));
  EXPECT_EQ(bgm.m_strName, "battle");
  // The trail byte 0x5C of a double-byte character separates nothing.
  bgm.m_strPath = "bgm\\\x83\x5C" "a.b.mid";
  SetFileName(bgm);
  EXPECT_EQ(bgm.m_strName, "\x83\x5C" "a.b");
  // Without an extension the name stays; with the flag off it is the user's.
  bgm.m_strPath = "bgm.dir\\noext";
  SetFileName(bgm);
  EXPECT_EQ(bgm.m_strName, "\x83\x5C" "a.b");
  cEdPicture picture;
  picture.m_strName = "mine";
  picture.m_strPath = "p.png";
  EXPECT_FALSE(SetFileName(picture));
  EXPECT_EQ(picture.m_strName, "mine");
}

TEST(AnimPlayer, PlaysStepsForTheirTicksAndStartsOver) {
  cAnimPlayer player;
  VECTOR_CLASS<cCharaAnim> frames = {MakeFrame<cCharaAnim>(7, 2, 0, 0), MakeFrame<cCharaAnim>(8, 0, 0, 0)};
  player.Reset({AnimPattern(frames)});
  ASSERT_EQ(player.m_vecPattern[0].size(), 3u);
  EXPECT_EQ(player.Current(), 7);
  std::vector<int> shown;
  for (int i = 0; i < 7; ++i) shown.push_back(player.Step());
  // Two ticks of 7, one of 8 (time 0), then over again.
  EXPECT_EQ(shown, (std::vector<int>{7, 7, 8, 7, 7, 8, 7}));
  EXPECT_EQ(player.Current(), 7);

  // One frame of time 1 keeps showing.
  player.Reset({AnimPattern(VECTOR_CLASS<cEffectAnim>{MakeFrame<cEffectAnim>(4, 1, 0, 0)})});
  for (int i = 0; i < 5; ++i) EXPECT_EQ(player.Step(), 4);

  // Reset from its own patterns keeps them and starts over.
  player.Reset(player.m_vecPattern);
  EXPECT_EQ(player.m_vecPattern.size(), 1u);
  EXPECT_EQ(player.m_nTick, 0);
}

TEST(AnimPlayer, NothingToPlayGivesFrameZero) {
  cAnimPlayer player;
  EXPECT_EQ(player.Step(), 0);
  EXPECT_EQ(player.Current(), 0);

  // An empty pattern, one that is only its end mark, and a pattern number beyond the
  // patterns: 0, and no endless walk.
  player.Reset({ANIM_PATTERN{}});
  EXPECT_EQ(player.Step(), 0);
  player.Reset({ANIM_PATTERN{{cAnimPlayer::kEndMark, 0}}});
  for (int i = 0; i < 3; ++i) EXPECT_EQ(player.Step(), 0);
  player.Reset({ANIM_PATTERN{{3, 0}}});
  player.m_nPattern = 1;
  EXPECT_EQ(player.Step(), 0);

  // Without its end mark a pattern starts over past its last step.
  player.Reset({ANIM_PATTERN{{3, 1}, {4, 1}}});
  std::vector<int> shown;
  for (int i = 0; i < 5; ++i) shown.push_back(player.Step());
  EXPECT_EQ(shown, (std::vector<int>{3, 4, 3, 4, 3}));

  // A position moved outside the pattern starts it over.
  player.m_nIndex = 9;
  player.m_nTick = 0;
  EXPECT_EQ(player.Current(), 0);
  EXPECT_EQ(player.Step(), 3);
}
