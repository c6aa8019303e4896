// The SMF player's records and its feeding thread, against a fake stream that plays
// buffers when the test says so.

#include "sound/smf_play.h"

#include <cstring>

#include "sound/sound_test_support.h"
#include "support/test_env.h"

namespace {

std::uint32_t Word(const MIDIHDR& header, std::uint32_t at) {
  std::uint32_t value;
  std::memcpy(&value, header.lpData + at, 4);
  return value;
}

// Logs every call; a buffer stays queued until PlayFront plays it.
class cFakeStream final : public cMidiStream {
 public:
  cFakeStream(std::vector<std::string>& log, cFeedQueue& queue) : m_log(log), m_queue(queue) {}
  MMRESULT SetTimeDiv(std::uint32_t division) override { return Log("TimeDiv " + std::to_string(division)); }
  MMRESULT PrepareHeader(MIDIHDR* h) override { return h->dwFlags |= MHDR_PREPARED, 0; }
  MMRESULT UnprepareHeader(MIDIHDR* h) override { return Log("Unprepare " + std::to_string(h->dwUser)); }
  MMRESULT Out(MIDIHDR* h) override {
    h->dwFlags |= MHDR_INQUEUE;
    m_queued.push_back(h);
    return Log("Out " + std::to_string(h->dwUser));
  }
  MMRESULT Restart() override { return Log("Restart"); }
  MMRESULT Stop() override { return Return(), Log("Stop"); }
  MMRESULT Pause() override { return Log("Pause"); }
  MMRESULT Reset() override { return Return(), Log("Reset"); }
  MMRESULT Close() override { return Log("Close"); }

  // The front buffer played to its last record, whose callback the feeder has handled.
  void PlayFront() {
    ASSERT_FALSE(m_queued.empty());
    MIDIHDR* h = m_queued.front();
    m_queued.erase(m_queued.begin());
    for (std::uint32_t at = 0; at < h->dwBytesRecorded;) {
      h->dwOffset = at;
      const std::uint32_t event = Word(*h, at + 8);
      at += event & MEVT_F_LONG ? LongRecordSize(event & 0xFFFFFF) : kRecordHead;
    }
    h->dwFlags &= ~MHDR_INQUEUE;
    m_queue.Post(MM_MOM_POSITIONCB, h);
    m_queue.WaitIdle();
  }
  std::vector<MIDIHDR*> m_queued;

 private:
  MMRESULT Log(const std::string& call) { return m_log.push_back(call), MMSYSERR_NOERROR; }
  void Return() {
    for (MIDIHDR* h : m_queued) h->dwFlags &= ~MHDR_INQUEUE;
    m_queued.clear();
  }
  std::vector<std::string>& m_log;
  cFeedQueue& m_queue;
};

class SmfPlayTest : public ProjectDirTest {
 protected:
  std::unique_ptr<cSmfPlay> Player(const cBytes& file) {
    WriteBytes("song.mid", file);
    auto player = std::make_unique<cSmfPlay>("song.mid", [this](std::unique_ptr<cMidiStream>& s, cFeedQueue& q) {
      auto fake = std::make_unique<cFakeStream>(m_log, q);
      m_stream = fake.get();
      s = std::move(fake);
      return MMSYSERR_NOERROR;
    });
    m_log.clear();
    return player;
  }
  // A song of `notes` note events, 10 ticks apart, then `tail`.
  static cBytes Song(int notes, std::vector<cTimedEvent> tail = {}) {
    std::vector<cTimedEvent> events;
    for (int i = 0; i < notes; ++i) events.push_back({std::uint32_t(10 * i), NoteOn(0, 60, i % 2 ? 0 : 100)});
    for (cTimedEvent& e : tail) events.push_back({e.tick + 10u * notes, e.bytes});
    return Concat({SmfHeader(0, 1, 480), TimedTrack(events, events.empty() ? 0 : events.back().tick)});
  }

  std::vector<std::string> m_log;
  cFakeStream* m_stream = nullptr;
};

using Log = std::vector<std::string>;

TEST_F(SmfPlayTest, FillPacksEachKindOfEventAsItsRecord) {
  const cBytes sysex = Bytes({0xF0, 5, 0x7E, 0x7F, 9, 1, 0xF7});
  auto player = Player(Concat({SmfHeader(0, 1, 480),
                               TimedTrack({{0, Tempo(0x07A120)},
                                           {0, Bytes({0xC3, 5})},
                                           {10, NoteOn(3, 60, 100)},
                                           {500, Bytes({0xFF, 0x03, 2, 'h', 'i'})},  // a name: no record
                                           {520, sysex}},
                                          600)}));
  std::vector<unsigned char> buffer(24000);
  MIDIHDR h{buffer.data(), 24000};
  player->m_nOffset = kSmfImageEvents;
  EXPECT_EQ(player->Fill(h), player->SongEnd() - kSmfImageEvents);
  const std::vector<std::uint32_t> words = {
      0, 0, 0x0107A120,                                     // tempo
      0, 0, 0x000005C3,                                     // two bytes
      10, 0, 0x00643C93,                                    // three bytes
      510, 0, 0x80000006, 0x097F7EF0, 0x0000F701,           // long, padded; carries the name's delta
      80, 0, MEVT_F_CALLBACK | 0x002FFF};                   // the end of the song
  ASSERT_EQ(h.dwBytesRecorded, 4 * words.size());
  for (std::size_t i = 0; i < words.size(); ++i) EXPECT_EQ(Word(h, 4 * i), words[i]) << "word " << i;
}

TEST_F(SmfPlayTest, ABufferCutEndsOnACallbackAndCarriesMetaDeltasOver) {
  auto player = Player(Song(3, {{0, Bytes({0xFF, 0x01, 1, 'x'})}, {480, NoteOn(0, 62)}}));
  std::vector<unsigned char> buffer(36);  // room for three records
  MIDIHDR h{buffer.data(), 36};
  player->m_nOffset = kSmfImageEvents;
  player->m_nOffset += player->Fill(h);
  EXPECT_EQ(h.dwBytesRecorded, 36u);
  EXPECT_EQ(Word(h, 8), 0x00643C90u);
  EXPECT_EQ(Word(h, 32), MEVT_F_CALLBACK | 0x00643C90);  // the last complete record
  player->m_nOffset += player->Fill(h);
  EXPECT_EQ(Word(h, 0), 490u);  // the text's 10 ticks and the note's 480
  EXPECT_EQ(Word(h, 8), 0x00643E90u);
  EXPECT_EQ(Word(h, 20), MEVT_F_CALLBACK | 0x002FFF);
  EXPECT_EQ(player->m_nOffset, player->SongEnd());
}

TEST_F(SmfPlayTest, FeedsTwoBuffersAndRefillsEachAsTheStreamFinishesIt) {
  auto player = Player(Song(5000));  // 60012 bytes of records: three buffers
  EXPECT_EQ(player->m_pHeaders[0].dwFlags & MHDR_INQUEUE, MHDR_INQUEUE);  // queued at construction
  player->Restart(0);
  EXPECT_EQ(m_log, (Log{"Restart", "Out 1"}));
  m_stream->PlayFront();
  EXPECT_EQ(m_log.back(), "Out 0");
  m_stream->PlayFront();  // everything is queued now
  EXPECT_EQ(m_log, (Log{"Restart", "Out 1", "Out 0"}));
  EXPECT_EQ(player->State(), cSmfPlay::kPlaying);
  m_log.clear();
  m_stream->PlayFront();  // the end: rewound, with the first buffer waiting for the next Restart
  EXPECT_EQ(m_log, (Log{"Stop", "Out 1"}));
  EXPECT_EQ(player->State(), cSmfPlay::kStopped);
  EXPECT_EQ(player->m_nOffset, kSmfImageEvents + 2000 * 4);  // the first 2000 events
}

TEST_F(SmfPlayTest, ALoopStartsAgainAtTheEndAndOnlyTheEndRecordEndsTheSong) {
  // The last record of the first buffer is a tempo whose low bytes are those of the end.
  auto player = Player(Song(1999, {{0, Tempo(0x002FFF)}}));
  player->Restart(1);
  m_log.clear();
  m_stream->PlayFront();
  EXPECT_EQ(m_log, Log{});  // not the end: the other buffer holds the rest
  m_stream->PlayFront();
  EXPECT_EQ(m_log, (Log{"Stop", "Out 0", "Restart", "Out 1"}));
  EXPECT_EQ(player->State(), cSmfPlay::kPlaying);
}

TEST_F(SmfPlayTest, DestructionEndsTheThreadBeforeResettingAndClosingTheStream) {
  auto player = Player(Song(3000));
  player->Restart(0);
  m_log.clear();
  player.reset();
  EXPECT_EQ(m_log, (Log{"Reset", "Unprepare 0", "Unprepare 1", "Close"}));

  // A file that doesn't load has no thread and no stream.
  WriteBytes("bad.mid", Bytes({1, 2, 3}));
  m_log.clear();
  { cSmfPlay bad("bad.mid", [](std::unique_ptr<cMidiStream>&, cFeedQueue&) { return MMSYSERR_ALLOCATED; }); }
  EXPECT_EQ(m_log, Log{});
}

}  // namespace
