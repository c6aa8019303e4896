// ortalune-tool render-music, as an author runs it.

#include "command_table.h"
#include "sound/sound_test_support.h"
#include "sound/synth.h"
#include "support/test_env.h"

namespace {

int Tool(std::vector<std::string> args) {
  testing::internal::CaptureStdout();
  testing::internal::CaptureStderr();
  const int status = RunTool(args);
  testing::internal::GetCapturedStdout();
  testing::internal::GetCapturedStderr();
  return status;
}

using RenderMusicToolTest = ProjectDirTest;

TEST_F(RenderMusicToolTest, RendersAMultiTrackSongForTheLengthOfItsTempoMap) {
  if (FindSoundFont().empty()) GTEST_SKIP() << "no soundfont";
  // 960 ticks at 0.5 s a beat, 480 at 0.3 s, 240 at 1 s: 1.8 s, the end of the longest track.
  std::vector<cTimedEvent> melody, drums;
  for (std::uint32_t tick = 0; tick < 1440; tick += 240) melody.push_back({tick, NoteOn(0, 60 + tick / 240)});
  for (std::uint32_t tick = 0; tick < 1680; tick += 120) drums.push_back({tick, NoteOn(9, 36)});
  WriteBytes("song.mid", Concat({SmfHeader(1, 3, 480),
                                 TimedTrack({{0, Tempo(500000)}, {960, Tempo(300000)}, {1440, Tempo(1000000)}}, 1440),
                                 TimedTrack(melody, 1500), TimedTrack(drums, 1680)}));
  ASSERT_EQ(Tool({"render-music", "song.mid", "song.wav"}), kToolOk);
  EXPECT_NEAR(WavFrames("song.wav"), 1.8 * 44100, 64);
  const cBytes wav = FileBytes("song.wav");
  EXPECT_TRUE(std::any_of(wav.begin() + 44, wav.end(), [](unsigned char b) { return b != 0; }));

  ASSERT_EQ(Tool({"render-music", "song.mid", "short.wav", "--seconds", "0.5"}), kToolOk);
  EXPECT_EQ(WavFrames("short.wav"), 22050);
}

TEST_F(RenderMusicToolTest, ALongPieceRendersToItsEnd) {
  if (FindSoundFont().empty()) GTEST_SKIP() << "no soundfont";
  // A beat a second, 480 ticks a beat: a note at the start and one near the end of 700 s.
  const std::uint32_t end = 700 * 480;
  WriteBytes("long.mid", Concat({SmfHeader(0, 1, 480),
                                 TimedTrack({{0, Tempo(1000000)}, {0, NoteOn(0, 60)}, {end - 480, NoteOn(0, 64)}}, end)}));
  ASSERT_EQ(Tool({"render-music", "long.mid", "long.wav"}), kToolOk);
  EXPECT_NEAR(WavFrames("long.wav"), 700 * 44100, 128);
}

TEST_F(RenderMusicToolTest, RefusesWhatIsNoMusic) {
  WriteBytes("not.mid", Bytes({'R', 'I', 'F', 'F'}));
  EXPECT_EQ(Tool({"render-music", "not.mid"}), kToolUsage);
  EXPECT_EQ(Tool({"render-music", "not.mid", "out.wav", "--seconds", "-1"}), kToolUsage);
  EXPECT_EQ(Tool({"render-music", "missing.ogg", "out.wav"}), kToolFailed);
  EXPECT_EQ(Tool({"render-music", "not.mid", "out.wav"}), kToolFailed);
  EXPECT_FALSE(std::filesystem::exists("out.wav"));
}

}  // namespace
