// The checks and the normalised image of MIDI files.

#include "sound/smf_format.h"

#include "platform/diagnostics.h"
#include "platform/cp932.h"
#include "sound/sound_test_support.h"
#include "support/test_env.h"

namespace {

class SmfFormatTest : public ProjectDirTest {
 protected:
  void SetUp() override {
    ProjectDirTest::SetUp();
    ReportCreate((m_dir / "report.txt").string());
  }
  // The image of `file`, or its report when it is refused.
  std::string Load(const cBytes& file) {
    WriteBytes("song.mid", file);
    const std::size_t before = FileText("report.txt").size();
    SmfFormat smf("song.mid");
    if (!smf.m_pData) return FileText("report.txt").substr(before);
    return std::string(smf.m_pData.get(), smf.m_pData.get() + smf.SongEnd());
  }
};

const cBytes kTrack = TrackChunk(Bytes({0, 0x90, 60, 100, 0, 0xFF, 0x2F, 0}));

std::string Report(const char* text) { return Cp932FromLiteral((std::string("Midi song.mid Init ") + text + "\r\n").c_str()); }

TEST_F(SmfFormatTest, RefusesAFileWithTheReportOfTheFirstCheckItFails) {
  const struct {
    cBytes file;
    std::string report;
  } cases[] = {
      {Bytes({'R', 'I', 'F', 'F', 0, 0, 0, 6}), Report("標準MIDIでない(4)")},
      {Bytes({'M', 'T', 'h'}), Report("標準MIDIでない(4)")},
      {Concat({Bytes({'M', 'T', 'h', 'd', 0, 0, 0, 7, 0, 2, 0, 1, 0, 96}), kTrack}), Report("標準MIDIでない(6)")},
      {Concat({SmfHeader(2, 1, 96), Bytes({'X', 'T', 'r', 'k'})}), Report("対応フォーマットが2でない")},
      {Concat({SmfHeader(3, 1, 96), kTrack}), Report("対応フォーマットが0または1でない")},
      {Bytes({'M', 'T', 'h', 'd', 0, 0, 0, 6, 0}), Report("対応フォーマットが0または1でない")},
      {Concat({SmfHeader(1, 1, 96), Bytes({'X', 'T', 'r', 'k', 0, 0, 0, 4, 0, 0xFF, 0x2F, 0})}),
       Report("標準MIDIでない(4)")},
      // The chunk structure is taken on trust, but never past the end of the data: a
      // track cut short, a second track that isn't there, running status with nothing
      // to run on.
      {Concat({SmfHeader(0, 1, 96), TrackChunk(Bytes({0, 0x90, 60, 100, 0, 0xFF, 0x2F}))}), Report("標準MIDIでない(4)")},
      {Concat({SmfHeader(1, 2, 96), kTrack}), Report("標準MIDIでない(4)")},
      {Concat({SmfHeader(0, 1, 96), TrackChunk(Bytes({0, 60, 100, 0, 0xFF, 0x2F, 0}))}), Report("標準MIDIでない(4)")},
  };
  for (const auto& c : cases) EXPECT_EQ(Load(c.file), c.report) << testing::PrintToString(c.file);

  std::remove("song.mid");
  SmfFormat missing("song.mid");
  EXPECT_EQ(missing.m_pData, nullptr);
  EXPECT_NE(FileText("report.txt").find(Cp932FromLiteral("Midi song.mid Create ファイルが開けません")), std::string::npos);
}

TEST_F(SmfFormatTest, MergesTracksIntoOneTimeOrderedTrackWithOneEnd) {
  const cBytes track0 = Bytes({0, 0xFF, 0x51, 3, 0x07, 0xA1, 0x20,  // tick 0 tempo
                               0, 0x90, 60, 100,                    // tick 0
                               0x60, 0x80, 60, 0,                   // tick 96
                               0, 0xFF, 0x2F, 0});                  // ends at 96
  const cBytes track1 = Bytes({0, 0x91, 64, 100,                    // tick 0
                               0x30, 64, 0,                         // tick 48, running status
                               0, 0xF0, 5, 0x7E, 0x7F, 9, 1, 0xF7,  // tick 48
                               0x81, 0, 0xFF, 0x2F, 0});            // ends at 176: the song's end
  const cBytes events = Bytes({0, 0xFF, 0x51, 3, 0x07, 0xA1, 0x20, 0, 0x90, 60, 100, 0, 0x91, 64, 100,
                               0x30, 0x91, 64, 0, 0, 0xF0, 5, 0x7E, 0x7F, 9, 1, 0xF7, 0x30, 0x80, 60, 0,
                               0x50, 0xFF, 0x2F, 0});
  const cBytes image = Concat({SmfHeader(0, 1, 0x1E0), TrackChunk(events)});
  EXPECT_EQ(Load(Concat({SmfHeader(1, 2, 0x1E0), TrackChunk(track0), TrackChunk(track1)})),
            std::string(image.begin(), image.end()));
}

TEST_F(SmfFormatTest, KeepsFourByteDeltasAndTheSourceDivision) {
  const cBytes events = Bytes({0xFF, 0xFF, 0xFF, 0x7F, 0x90, 60, 100, 0x81, 0x80, 0x80, 0, 0xFF, 0x2F, 0});
  const cBytes image = Concat({SmfHeader(0, 1, 0xE728), TrackChunk(events)});
  EXPECT_EQ(Load(Concat({SmfHeader(0, 1, 0xE728), TrackChunk(events)})), std::string(image.begin(), image.end()));
}

}  // namespace
