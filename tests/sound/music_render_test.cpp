// Music rendered offline through the mixer, in virtual time: where notes sound, and how
// ogg files loop and take their volume.

#include "sound/music.h"
#include "sound/smf_play.h"
#include "sound/sound_engine.h"
#include "sound/sound_test_support.h"
#include "support/test_env.h"

namespace {

class MusicRenderTest : public ProjectDirTest {
 protected:
  static void SetUpTestSuite() { OpenSoundEngine(true); }
  static void TearDownTestSuite() { CloseSoundEngine(); }
  void SetUp() override {
    ProjectDirTest::SetUp();
    m_synth = SoundSynth();
    if (m_synth) m_synth->m_pLog = &m_messages;
  }
  void TearDown() override {
    if (m_synth) m_synth->m_pLog = nullptr;
    ProjectDirTest::TearDown();
  }
  void NeedSynth() {
    if (!m_synth) GTEST_SKIP() << "no soundfont";
  }
  // The frames, after `start`, of every note-on the synthesiser took.
  std::vector<long> NoteOns(std::int64_t start) const {
    std::vector<long> frames;
    for (const cSynthMessage& m : m_messages) {
      if ((m.message & 0xF0) == 0x90 && (m.message >> 16) != 0) frames.push_back(long(m.frame - start));
    }
    return frames;
  }
  static void ExpectOnsets(const std::vector<long>& frames, const std::vector<double>& seconds) {
    ASSERT_EQ(frames.size(), seconds.size());
    for (std::size_t i = 0; i < frames.size(); ++i) {
      EXPECT_NEAR(frames[i], seconds[i] * kSoundRate, cSynth::kBlock / 2) << "note " << i;
    }
  }

  std::shared_ptr<cSynth> m_synth;
  std::vector<cSynthMessage> m_messages;
};

TEST_F(MusicRenderTest, ANoteIsSilentBeforeItsTickAndSoundsFromItWithinOneSynthBlock) {
  NeedSynth();
  // A note's first sound, and the note-on's frame, both in frames of the synthesiser.
  auto render = [this](std::uint32_t tick, std::int64_t& noteOn) {
    WriteBytes("note.mid", Concat({SmfHeader(0, 1, 480),
                                   TimedTrack({{0, Bytes({0xC0, 0})}, {tick, NoteOn(0, 69, 127)}}, tick + 480)}));
    cSmfPlay play("note.mid");
    m_messages.clear();
    const std::int64_t start = m_synth->NextBlock();  // where a song's clock starts
    play.Restart(0);
    const std::vector<float> out = PullMixer(int(tick * kSoundRate / 960 + kSoundRate / 4), 1000);
    noteOn = m_messages.back().frame;
    EXPECT_GT(Peak(out, FirstSound(out), FirstSound(out) + kSoundRate / 10), 0.01f);
    return start + FirstSound(out);
  };
  std::int64_t soonOn = 0, lateOn = 0;
  const std::int64_t latency = render(0, soonOn) - soonOn;  // the soundfont's own, the same for every note
  const std::int64_t start = m_synth->NextBlock();  // where a song's clock starts
  const std::int64_t sound = render(960, lateOn);  // 960 ticks at 120 beats a minute: one second
  EXPECT_EQ(sound - lateOn, latency);
  EXPECT_NEAR(double(lateOn - start), kSoundRate, cSynth::kBlock / 2);  // pulled in blocks of 1000 frames
}

TEST_F(MusicRenderTest, TempoChangesMoveTheOnsetsAfterThem) {
  NeedSynth();
  WriteBytes("tempo.mid", Concat({SmfHeader(1, 2, 96),
                                  TimedTrack({{0, Tempo(500000)}, {96, Tempo(250000)}, {192, Tempo(1000000)}}, 192),
                                  TimedTrack({{0, NoteOn(0, 60)}, {96, NoteOn(0, 62)}, {192, NoteOn(0, 64)},
                                              {288, NoteOn(0, 65)}},
                                             400)}));
  cSmfPlay play("tempo.mid");
  const std::int64_t start = m_synth->NextBlock();  // where a song's clock starts
  play.Restart(0);
  PullMixer(2 * kSoundRate, 512);
  ExpectOnsets(NoteOns(start), {0, 0.5, 0.75, 1.75});
  EXPECT_EQ(play.State(), cSmfPlay::kPlaying);  // the end is at 2.92 s
  PullMixer(kSoundRate);
  EXPECT_EQ(play.State(), cSmfPlay::kStopped);
}

TEST_F(MusicRenderTest, OggLoopsWithoutAGapAtItsOwnRateOrAnother) {
  for (int rate : {kSoundRate, 22050}) {
    WriteOgg("tone.ogg", rate, rate / 2, 441, 0.5);
    cVox* vox = CreateVox();
    ASSERT_EQ(vox->Load("tone.ogg"), 1);
    vox->SetLoop(2);
    vox->Play();
    const std::vector<float> out = PullMixer(2 * kSoundRate);
    const long length = 3 * kSoundRate / 2;
    for (long at = 0; at + 64 <= length - 2; at += 32) {
      ASSERT_GT(Peak(out, at, at + 64), 0.4f) << "gap at frame " << at << ", rate " << rate;
    }
    EXPECT_LT(Peak(out, length + 2, 2 * kSoundRate), 1e-6f) << rate;
    EXPECT_EQ(vox->IsPlaying(), 0);
    vox->Delete();
  }
}

TEST_F(MusicRenderTest, TheSlotVolumeScalesAnOggAndEachPlayStartsAtFullVolume) {
  WriteOgg("tone.ogg", kSoundRate, kSoundRate, 441, 0.5);
  MUSIC_ROW ogg{}, mid{};
  cMusic music;
  ASSERT_EQ(music.Init(1, &ogg, &mid, 1, 0), 1);
  for (int volume : {50, 100, 20}) {
    ASSERT_EQ(music.SetSlot(0, "tone.ogg", volume), 1);
    ASSERT_EQ(music.Play(0, 0, 0, 0, 1), 1);
    EXPECT_NEAR(Peak(PullMixer(kSoundRate / 4), 0, kSoundRate / 4), 0.5 * volume / 100, 0.03) << volume;
  }
  music.Stop();
  EXPECT_EQ(music.IsPlaying(0), 0);
}

}  // namespace

namespace {
class cSilentSource : public cMixSource {
 public:
  void Mix(float*, int) override {}
};
}  // namespace

// The device opens when the first sound joins the mixer: the hook runs once, after the
// source is in, and may itself add sources without a deadlock.
TEST(MixerTest, TheFirstSourceHookRunsOnceAfterTheSourceJoins) {
  cMixer mixer;
  cSilentSource first, second, third;
  int calls = 0;
  mixer.SetFirstSourceHook([&] {
    ++calls;
    mixer.Add(&third);
    std::vector<float> block(8);
    mixer.Pull(block.data(), 4);  // the mixer's lock is free
  });
  mixer.Add(&first);
  mixer.Add(&second);
  EXPECT_EQ(calls, 1);
  mixer.Remove(&first);
  mixer.Remove(&second);
  mixer.Remove(&third);
}
