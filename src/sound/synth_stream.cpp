#include "sound/synth_stream.h"

#include <cmath>
#include <cstring>

#include "sound/smf_play.h"
#include "sound/sound_engine.h"

namespace {

std::uint32_t Get32(const unsigned char* at) {
  std::uint32_t value;
  std::memcpy(&value, at, 4);
  return value;
}

constexpr std::uint32_t kDefaultTempo = 500000;

}  // namespace

MMRESULT OpenSynthStream(std::unique_ptr<cMidiStream>& stream, cFeedQueue& queue) {
  std::shared_ptr<cSynth> synth = SoundSynth();
  if (synth && !synth->Claim()) return MMSYSERR_ALLOCATED;
  stream = std::make_unique<cSynthStream>(SoundMixer(), std::move(synth), queue);
  return MMSYSERR_NOERROR;
}

cSynthStream::cSynthStream(cMixer& mixer, std::shared_ptr<cSynth> synth, cFeedQueue& queue)
    : m_mixer(mixer), m_pSynth(std::move(synth)), m_queue(queue) {}

cSynthStream::~cSynthStream() {
  if (!m_bClosed) Close();
}

MMRESULT cSynthStream::SetTimeDiv(std::uint32_t division) {
  std::lock_guard lock(m_lock);
  m_nDivision = division & 0xFFFF;
  return MMSYSERR_NOERROR;
}

MMRESULT cSynthStream::PrepareHeader(MIDIHDR* header) {
  if (header == nullptr || header->lpData == nullptr || header->dwBufferLength == 0) return MMSYSERR_INVALPARAM;
  std::lock_guard lock(m_lock);
  header->dwFlags |= MHDR_PREPARED;
  return MMSYSERR_NOERROR;
}

MMRESULT cSynthStream::UnprepareHeader(MIDIHDR* header) {
  if (header == nullptr) return MMSYSERR_INVALPARAM;
  std::lock_guard lock(m_lock);
  if (header->dwFlags & MHDR_INQUEUE) return MIDIERR_STILLPLAYING;
  header->dwFlags &= ~MHDR_PREPARED;
  return MMSYSERR_NOERROR;
}

MMRESULT cSynthStream::Out(MIDIHDR* header) {
  if (header == nullptr) return MMSYSERR_INVALPARAM;
  std::lock_guard lock(m_lock);
  if (m_bClosed) return MMSYSERR_INVALHANDLE;
  if (!(header->dwFlags & MHDR_PREPARED)) return MIDIERR_UNPREPARED;
  if (header->dwBytesRecorded > header->dwBufferLength || header->dwBytesRecorded % 4 != 0) {
    return MMSYSERR_INVALPARAM;
  }
  header->dwFlags = (header->dwFlags | MHDR_INQUEUE) & ~MHDR_DONE;
  m_queued.push_back(header);
  return MMSYSERR_NOERROR;
}

MMRESULT cSynthStream::Restart() {
  // The stream joins the mixer when it first plays, which is what opens the device: a
  // stream opened at start-up and never played costs no processor time. Outside the
  // lock, since a block being mixed holds the mixer, then this.
  if (!m_bInMixer.exchange(true)) m_mixer.Add(this);
  std::lock_guard lock(m_lock);
  // A song's clock starts on the synthesiser's next block, but a song stopped by its
  // own last record and started again at once (a loop) goes on from that record's time.
  const bool seamless = m_nRendered == m_nStopped && m_nStopped == m_nDispatched;
  if (m_bRewound && !seamless) {
    m_dLast = static_cast<double>(m_nNow + (m_pSynth ? m_pSynth->NextBlock() - m_pSynth->Frames() : 0));
  }
  m_bRewound = false;
  m_bPlaying = true;
  return MMSYSERR_NOERROR;
}

MMRESULT cSynthStream::Stop() {
  std::lock_guard lock(m_lock);
  m_bPlaying = false;
  ReturnBuffers();
  m_nTempo = kDefaultTempo;
  m_bRewound = true;
  m_nStopped = m_nRendered;
  if (m_pSynth) m_pSynth->SoundOff();
  return MMSYSERR_NOERROR;
}

MMRESULT cSynthStream::Pause() {
  std::lock_guard lock(m_lock);
  if (m_bPlaying && m_pSynth) m_pSynth->SoundOff();
  m_bPlaying = false;
  return MMSYSERR_NOERROR;
}

MMRESULT cSynthStream::Reset() {
  return Stop();
}

MMRESULT cSynthStream::Close() {
  m_mixer.Remove(this);  // before the lock: a block being mixed holds the mixer, then this
  std::lock_guard lock(m_lock);
  m_bPlaying = false;
  ReturnBuffers();
  if (m_pSynth) {
    m_pSynth->Clear();
    m_pSynth->Unclaim();
    m_pSynth.reset();
  }
  m_bClosed = true;
  return MMSYSERR_NOERROR;
}

void cSynthStream::ReturnBuffers() {
  for (MIDIHDR* header : m_queued) header->dwFlags = (header->dwFlags & ~MHDR_INQUEUE) | MHDR_DONE;
  m_queued.clear();
  m_nPos = 0;
  m_bDue = false;
}

void cSynthStream::FinishFront() {
  MIDIHDR* header = m_queued.front();
  m_queued.pop_front();
  header->dwFlags = (header->dwFlags & ~MHDR_INQUEUE) | MHDR_DONE;
  m_nPos = 0;
  m_bDue = false;
}

double cSynthStream::FramesPerTick() const {
  if (m_nDivision & 0x8000) {  // SMPTE: frames a second and ticks a frame
    const int fps = -static_cast<std::int8_t>(m_nDivision >> 8);
    const double ticksPerSecond = (fps == 29 ? 29.97 : fps) * static_cast<double>(m_nDivision & 0xFF);
    return ticksPerSecond > 0 ? kSoundRate / ticksPerSecond : 0.0;
  }
  const std::uint32_t division = m_nDivision == 0 ? 1 : m_nDivision;
  return m_nTempo * 1e-6 * kSoundRate / division;
}

std::int64_t cSynthStream::DueFrame() const {
  // Records play on the block boundary nearest their time, where the synthesiser can
  // start a message; keeping every record there keeps the clock on the boundaries.
  std::int64_t at = static_cast<std::int64_t>(std::ceil(m_dDue - 1e-6));
  if (m_pSynth) {
    const double synthFrame = static_cast<double>(m_pSynth->Frames()) + (m_dDue - static_cast<double>(m_nNow));
    const std::int64_t block = static_cast<std::int64_t>(std::floor(synthFrame / cSynth::kBlock + 0.5));
    at = m_nNow + (block * cSynth::kBlock - m_pSynth->Frames());
  }
  return std::max(at, m_nNow);
}

void cSynthStream::Render(float* out, int frames) {
  if (frames <= 0) return;
  if (m_pSynth) m_pSynth->Render(out, frames);
  if (m_bPlaying) m_nNow += frames;
  m_nRendered += frames;
}

bool cSynthStream::Dispatch() {
  MIDIHDR* header = m_queued.front();
  const std::uint32_t at = m_nPos;
  const std::uint32_t event = Get32(header->lpData + at + 8);
  std::uint32_t size = kRecordHead;
  if (event & MEVT_F_LONG) {
    const std::uint32_t bytes = event & 0xFFFFFF;
    size = LongRecordSize(bytes);
    if (size > header->dwBytesRecorded - at) {
      FinishFront();
      return false;
    }
    if (m_pSynth) m_pSynth->SysEx(header->lpData + at + kRecordHead, bytes);
  } else if ((event >> 24 & 0x3F) == MEVT_SHORTMSG) {
    if (m_pSynth) m_pSynth->ShortMsg(event & 0xFFFFFF);
  } else if ((event >> 24 & 0x3F) == MEVT_TEMPO) {
    m_nTempo = event & 0xFFFFFF;
  }
  // A record that came late (its buffer arrived after its time) moves the clock on.
  const double now = static_cast<double>(m_nNow);
  m_dLast = m_dDue < now - cSynth::kBlock ? now : m_dDue;
  m_bDue = false;
  m_nDispatched = m_nRendered;
  m_nPos += size;
  const bool callback = (event & MEVT_F_CALLBACK) != 0;
  if (callback) header->dwOffset = at;
  if (m_nPos >= header->dwBytesRecorded) FinishFront();
  if (callback) m_queue.Post(MM_MOM_POSITIONCB, header);
  return callback;
}

void cSynthStream::Mix(float* out, int frames) {
  std::unique_lock lock(m_lock);
  int done = 0;
  while (done < frames) {
    int until = frames;
    bool dispatch = false;
    if (m_bPlaying && !m_queued.empty()) {
      const MIDIHDR* header = m_queued.front();
      if (m_nPos + kRecordHead > header->dwBytesRecorded) {
        FinishFront();
        continue;
      }
      if (!m_bDue) {
        m_dDue = m_dLast + Get32(header->lpData + m_nPos) * FramesPerTick();
        m_bDue = true;
      }
      const std::int64_t at = DueFrame();
      if (at - m_nNow < frames - done) {
        until = done + static_cast<int>(at - m_nNow);
        dispatch = true;
      }
    }
    Render(out + 2 * done, until - done);
    done = until;
    if (dispatch && Dispatch() && m_mixer.IsOffline()) {
      // In virtual time the feeder refills before the stream goes on.
      lock.unlock();
      m_queue.WaitIdle();
      lock.lock();
    }
  }
}
