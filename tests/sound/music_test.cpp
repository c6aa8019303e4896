// The music and wave fronts: how slots take their files, what Play does when a file
// fails, and how the wave entries play.

#include "sound/music.h"

#include <cstring>
#include <tuple>

#include "platform/diagnostics.h"
#include "platform/cp932.h"
#include "sound/music_render.h"
#include "sound/sound.h"
#include "sound/sound_engine.h"
#include "sound/sound_test_support.h"
#include "support/test_env.h"

namespace {

class MusicTest : public ProjectDirTest {
 protected:
  void SetUp() override {
    ProjectDirTest::SetUp();
    ResetRows();
  }
  void ResetRows() {
    m_ogg = {"bgm\\Free.ogg", 100};
    m_mid = {"bgm\\Free.mid", 100};
  }
  MUSIC_ROW m_ogg{}, m_mid{};
  cMusic m_music;
};

const cBytes kSong = Concat({SmfHeader(0, 1, 480), TimedTrack({{0, NoteOn(0, 60)}}, 48000)});

TEST_F(MusicTest, SetSlotSortsAPathByItsExtension) {
  ASSERT_EQ(m_music.Init(1, &m_ogg, &m_mid, 1, 0), 1);
  const struct {
    const char* path;
    int result, kind;
    const char *ogg, *mid;
    int oggVolume, midVolume;
  } cases[] = {
      {"bgm\\a.mid", 1, MUSIC_MID, "bgm\\Free.ogg", "bgm\\a.mid", 100, 70},
      {"bgm\\b.MID", 1, MUSIC_MID, "bgm\\Free.ogg", "bgm\\b.mid", 100, 70},
      {"bgm\\c.OGG", 1, MUSIC_OGG, "bgm\\c.OGG", "bgm\\Free.mid", 70, 100},
      {"bgm\\d.Mid", 0, MUSIC_NONE, "bgm\\d.Mid", "bgm\\d.Mid", 70, 70},
      {"bgm.v2\\e", 0, MUSIC_NONE, "", "", 0, 0},
  };
  for (const auto& c : cases) {
    ResetRows();
    EXPECT_EQ(m_music.SetSlot(0, c.path, 70), c.result) << c.path;
    EXPECT_EQ(m_music.m_vecKind[0], c.kind) << c.path;
    EXPECT_STREQ(m_ogg.szPath, c.ogg);
    EXPECT_STREQ(m_mid.szPath, c.mid);
    EXPECT_EQ(m_ogg.nVolume, c.oggVolume) << c.path;
    EXPECT_EQ(m_mid.nVolume, c.midVolume) << c.path;
  }
  EXPECT_EQ(m_music.SetSlot(1, "bgm\\a.mid", 70), 0);  // no such slot
}

TEST_F(MusicTest, AFailedPlayLeavesNoCurrentSlotAndTheCurrentSlotPlaysOnUnlessForced) {
  WriteBytes("bad.mid", Bytes({'M', 'T', 'h', 'd'}));
  WriteBytes("ok.mid", kSong);
  ASSERT_EQ(m_music.Init(1, &m_ogg, &m_mid, 1, 0), 1);
  m_music.SetSlot(0, "bad.mid", 100);
  EXPECT_EQ(m_music.Play(0, 0, 0, 0, 1), 0);
  EXPECT_EQ(std::tie(m_music.m_nCurrent, m_music.m_vecPlaying[0]), std::make_tuple(-1, int{MUSIC_NONE}));

  m_music.SetSlot(0, "ok.mid", 100);
  EXPECT_EQ(m_music.Play(0, 0, 0, 0, 0), 1);  // goes through without force
  ASSERT_EQ(m_music.m_vecPlaying[0], MUSIC_MID);
  m_music.m_vecSmf[0]->StopPlay(1);
  EXPECT_EQ(m_music.Play(0, 0, 0, 0, 0), 1);
  EXPECT_EQ(m_music.m_vecSmf[0]->State(), cSmfPlay::kPaused);  // left alone
  EXPECT_EQ(m_music.Play(0, 0, 0, 0, 1), 1);
  EXPECT_EQ(m_music.m_vecSmf[0]->State(), cSmfPlay::kPlaying);  // a new player
  m_music.Stop();
  EXPECT_EQ(std::make_tuple(m_music.m_vecSmf[0]->State(), m_music.m_nCurrent), std::make_tuple(cSmfPlay::kStopped, 0));
}

TEST_F(MusicTest, AnUnknownKindTriesOggThenMidiAndEachSideStopsTheOther) {
  WriteOgg("tune.dat", 44100, 44100, 441, 0.5);
  WriteBytes("ok.mid", kSong);
  ASSERT_EQ(m_music.Init(1, &m_ogg, &m_mid, 1, 0), 1);
  EXPECT_EQ(m_music.SetSlot(0, "tune.dat", 100), 0);
  EXPECT_EQ(m_music.Play(0, 0, 0, 0, 1), 1);
  EXPECT_EQ(std::make_tuple(m_music.m_vecPlaying[0], m_music.IsPlaying(0)), std::make_tuple(int{MUSIC_OGG}, 1));
  m_music.SetSlot(0, "ok.mid", 100);
  EXPECT_EQ(m_music.Play(0, 0, 0, 0, 1), 1);
  EXPECT_EQ(std::make_tuple(m_music.m_vecPlaying[0], m_music.m_vecVox.m_vecPlayer[0]->IsPlaying()),
            std::make_tuple(int{MUSIC_MID}, 0));
  // The mid row of an unknown kind must still end in "mid" for the MIDI side.
  WriteBytes("song.dat", kSong);
  m_music.SetSlot(0, "song.dat", 100);
  EXPECT_EQ(m_music.Play(0, 0, 0, 0, 1), 0);
  EXPECT_EQ(m_music.m_vecSmf[0], nullptr);
}

TEST_F(MusicTest, WithoutTheOggLibraryInitFailsAndSlotsRefuseWhileDisabledSucceeds) {
  cMusic never;
  EXPECT_EQ(never.SetSlot(0, "a.mid", 100), 1);
  EXPECT_EQ(never.Play(0, 0, 0, 0, 1), 1);

  SetVoxLibrary(nullptr);
  EXPECT_EQ(m_music.Init(1, &m_ogg, &m_mid, 1, 0), 0);
  SetVoxLibrary(&CreateVox);
  ASSERT_EQ(m_prompt.shown.size(), 1u);
  EXPECT_EQ(m_prompt.shown[0].text, CP932_TEXT("oggの初期化に失敗！"));
  EXPECT_EQ(m_music.SetSlot(0, "a.mid", 100), 0);
  EXPECT_EQ(m_music.Play(0, 0, 0, 0, 1), 0);
  m_music.Release();
  EXPECT_EQ(m_music.Play(0, 0, 0, 0, 1), 1);
}

TEST_F(MusicTest, WithoutASoundfontMidiKeepsItsTimeInSilenceAndTheLogSaysSoOnce) {
  ReportCreate((m_dir / "report.txt").string());
  const char* chosen = std::getenv("ORTALUNE_SOUNDFONT");
  const std::string previous = chosen ? chosen : "";
  setenv("ORTALUNE_SOUNDFONT", "none.sf2", 1);
  OpenSoundEngine(true);
  chosen ? setenv("ORTALUNE_SOUNDFONT", previous.c_str(), 1) : unsetenv("ORTALUNE_SOUNDFONT");
  WriteBytes("ok.mid", Concat({SmfHeader(0, 1, 480), TimedTrack({{0, NoteOn(0, 60)}}, 240)}));  // a quarter second
  ASSERT_EQ(m_music.Init(1, &m_ogg, &m_mid, 1, 0), 1);
  m_music.SetSlot(0, "ok.mid", 100);
  EXPECT_EQ(m_music.Play(0, 0, 0, 0, 1), 1);
  EXPECT_EQ(Peak(PullMixer(kSoundRate / 5), 0, kSoundRate / 5), 0.0f);
  EXPECT_EQ(m_music.IsPlaying(0), 1);
  PullMixer(kSoundRate / 10);
  EXPECT_EQ(m_music.IsPlaying(0), 0);
  m_music.Release();
  CloseSoundEngine();
  const std::string log = FileText("report.txt");
  EXPECT_EQ(log, "Sound: no soundfont (none.sf2); MIDI music plays in silence. ORTALUNE_SOUNDFONT may name an .sf2 or "
                 ".sf3 file\r\n");
}

}  // namespace

namespace {

using SoundTest = ProjectDirTest;

TEST_F(SoundTest, AnEntryPlaysAWaveFromItsPositionOrAMidiFileAndRefusesOtherFiles) {
  std::vector<std::int16_t> ramp;
  for (int i = 0; i < 1000; ++i) ramp.insert(ramp.end(), {std::int16_t(16 * i), std::int16_t(16 * i)});
  ASSERT_TRUE(WriteWavFile("beep.wav", ramp));
  WriteBytes("song.mid", kSong);
  cSound sound;
  sound.Init();
  const char* const list[] = {"wave\\missing.wav", "beep.wav", nullptr};
  ASSERT_TRUE(sound.Open(kWaveAudio, list));
  EXPECT_EQ(sound.m_vecEntry[0].wDeviceID, 0u);  // the others still open
  EXPECT_NE(sound.m_vecEntry[1].wDeviceID, 0u);

  EXPECT_EQ(sound.PlayFile(nullptr, 1, "beep.wav", 10), 1);  // from 10 ms: frame 441
  std::vector<float> out = PullMixer(1000);
  EXPECT_FLOAT_EQ(out[0], 16 * 441 / 32768.0f);
  EXPECT_EQ(out[2 * (1000 - 441)], 0.0f);
  EXPECT_EQ(sound.IsPlaying(), 0);

  EXPECT_EQ(sound.PlayFile(nullptr, 1, "song.MID", 0), 1);  // the sequencer, with the file's "mid"
  ASSERT_EQ(sound.IsPlaying(), 1);
  sound.StopEntry(0);
  EXPECT_EQ(sound.IsPlaying(), 0);
  for (const char* path : {"beep", "beep.ogg", "missing.wav"}) EXPECT_EQ(sound.PlayFile(nullptr, 1, path, 0), 0) << path;
  sound.CloseAll();
  EXPECT_EQ(sound.m_nEntries, 0);
}

}  // namespace
