#pragma once
// The MIDI stream the SMF player feeds: buffers of timed records in, position callbacks
// out to the player's feeding thread. The synthesiser device implements it; tests put a
// fake in its place.

#include <condition_variable>
#include <cstdint>
#include <deque>
#include <functional>
#include <memory>
#include <mutex>
#include <string>

// One buffer of records. dwUser holds the buffer's index; dwOffset is where the record
// that raised the last position callback lies.
struct MIDIHDR {
  unsigned char* lpData = nullptr;
  std::uint32_t dwBufferLength = 0;
  std::uint32_t dwBytesRecorded = 0;
  std::uintptr_t dwUser = 0;
  std::uint32_t dwFlags = 0;
  std::uint32_t dwOffset = 0;
};

enum : std::uint32_t { MHDR_DONE = 1, MHDR_PREPARED = 2, MHDR_INQUEUE = 4 };

// A record is delta, stream id and event, 4 bytes each; a long event's bytes follow,
// padded to a multiple of 4. The event's top byte is its type and flags.
constexpr std::uint32_t kRecordHead = 12;
enum : std::uint32_t {
  MEVT_F_LONG = 0x80000000,
  MEVT_F_CALLBACK = 0x40000000,
  MEVT_SHORTMSG = 0x00,
  MEVT_TEMPO = 0x01,
  MEVT_NOP = 0x02,
  MEVT_LONGMSG = 0x80,
};
constexpr std::uint32_t kEndOfSongEvent = 0x002FFF;  // FF 2F 00 as a short event's bytes

constexpr std::uint32_t LongRecordSize(std::uint32_t eventBytes) { return kRecordHead + ((eventBytes + 3) & ~3u); }

// Messages of the feeding thread.
enum : unsigned { WM_APP = 0x8000, MM_MOM_DONE = 969, MM_MOM_POSITIONCB = 970 };

// Results of the stream calls.
using MMRESULT = unsigned;
enum : MMRESULT {
  MMSYSERR_NOERROR = 0,
  MMSYSERR_ALLOCATED = 4,
  MMSYSERR_INVALHANDLE = 5,
  MMSYSERR_INVALPARAM = 11,
  MIDIERR_UNPREPARED = 64,
  MIDIERR_STILLPLAYING = 65,
};
// The text of a result for the reports.
std::string StreamErrorText(MMRESULT result);

// The message queue of a feeding thread.
class cFeedQueue {
 public:
  // False once the queue has quit.
  bool Post(unsigned message, void* param);
  // Waits for the next message; 0 once the queue has quit. A call also tells the queue
  // that the message before it has been handled.
  int Get(unsigned& message, void*& param);
  void Quit();
  // Returns when every message posted so far has been handled, or the queue has quit.
  void WaitIdle();

 private:
  std::mutex m_lock;
  std::condition_variable m_changed;
  std::deque<std::pair<unsigned, void*>> m_messages;
  bool m_bBusy = false;
  bool m_bQuit = false;
};

class cMidiStream {
 public:
  virtual ~cMidiStream() = default;
  // Ticks per quarter note, or an SMPTE division when bit 15 is set.
  virtual MMRESULT SetTimeDiv(std::uint32_t division) = 0;
  virtual MMRESULT PrepareHeader(MIDIHDR* header) = 0;
  virtual MMRESULT UnprepareHeader(MIDIHDR* header) = 0;
  virtual MMRESULT Out(MIDIHDR* header) = 0;
  // A new stream is paused: Restart plays, Pause holds the position, Stop returns every
  // queued buffer and rewinds the stream's clock.
  virtual MMRESULT Restart() = 0;
  virtual MMRESULT Stop() = 0;
  virtual MMRESULT Pause() = 0;
  // Silences every channel and returns every queued buffer.
  virtual MMRESULT Reset() = 0;
  // Leaves the output device as a new stream finds it.
  virtual MMRESULT Close() = 0;
};

// Opens a stream whose position callbacks are posted to `queue`.
using MIDI_STREAM_OPEN = std::function<MMRESULT(std::unique_ptr<cMidiStream>& stream, cFeedQueue& queue)>;
