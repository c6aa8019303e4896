#include "sound/smf_play.h"

#include <algorithm>
#include <cstring>

#include "platform/diagnostics.h"

namespace {

void Put32(unsigned char* at, std::uint32_t value) { std::memcpy(at, &value, 4); }
std::uint32_t Get32(const unsigned char* at) {
  std::uint32_t value;
  std::memcpy(&value, at, 4);
  return value;
}

}  // namespace

cSmfPlay::cSmfPlay(const std::string& path, const MIDI_STREAM_OPEN& open) : SmfFormat(path) {
  if (!m_pData) return;
  for (int i = 0; i < m_nBuffers; ++i) {
    m_aBuffer[i].assign(static_cast<std::size_t>(m_nBufferBytes), 0);
    m_pHeaders[i].lpData = m_aBuffer[i].data();
    m_pHeaders[i].dwBufferLength = static_cast<std::uint32_t>(m_nBufferBytes);
    m_pHeaders[i].dwUser = static_cast<std::uintptr_t>(i);
  }
  m_hThread = std::thread([this] { Feed(); });
  const MMRESULT opened = open(m_hStream, m_queue);
  if (opened != MMSYSERR_NOERROR) m_hStream.reset();
  Check("Open", opened);
  const std::uint32_t division = (m_pData[12] << 8) | m_pData[13];
  Check("Property", m_hStream ? m_hStream->SetTimeDiv(division) : MMSYSERR_INVALHANDLE);
  std::lock_guard lock(m_lock);
  m_nOffset = kSmfImageEvents;
  m_nState = kStopped;
  FillNext();
}

cSmfPlay::~cSmfPlay() {
  if (!m_pData) return;
  m_queue.Quit();
  if (m_hThread.joinable()) m_hThread.join();
  Check("Reset", Call(&cMidiStream::Reset));
  for (MIDIHDR& header : m_pHeaders) {
    Check("Unprepare", m_hStream ? m_hStream->UnprepareHeader(&header) : MMSYSERR_INVALHANDLE);
  }
  Check("Close", Call(&cMidiStream::Close));
  m_hStream.reset();
}

void cSmfPlay::Check(const char* what, MMRESULT result) {
  if (result == MMSYSERR_NOERROR) return;
  ReportEC("Midi %s %s %s", m_strName.c_str(), what, StreamErrorText(result).c_str());
}

MMRESULT cSmfPlay::Call(MMRESULT (cMidiStream::*call)()) {
  return m_hStream ? (m_hStream.get()->*call)() : MMSYSERR_INVALHANDLE;
}

int cSmfPlay::State() {
  std::lock_guard lock(m_lock);
  return m_nState;
}

std::size_t cSmfPlay::Fill(MIDIHDR& header) {
  unsigned char* out = header.lpData;
  const std::uint32_t capacity = header.dwBufferLength;
  std::memset(out, 0, capacity);
  const unsigned char* image = m_pData.get();
  const std::size_t end = SongEnd();
  std::uint32_t used = 0;
  std::int64_t last = -1;  // the last complete record
  std::size_t pos = m_nOffset;
  std::size_t consumed = m_nOffset;
  // Deltas of events that make no record go to the next record. They are consumed only
  // with it, so a buffer cut after them carries them into the next buffer.
  std::uint64_t carry = 0;
  bool songEnds = false;
  while (pos < end && !songEnds) {
    std::size_t at = pos;
    std::uint32_t delta = 0;
    if (!ReadVarLen(image, end, at, delta) || at >= end) break;
    const std::uint64_t total = carry + delta;
    const unsigned char status = image[at++];
    std::uint32_t event = 0;
    std::uint32_t size = kRecordHead;
    const unsigned char* longData = nullptr;
    std::uint32_t longBytes = 0;
    if (status == 0xF0 || status == 0xF7 || status == 0xFF) {
      const unsigned char type = status == 0xFF && at < end ? image[at++] : 0;
      std::uint32_t length = 0;
      if (!ReadVarLen(image, end, at, length) || length > end - at) break;
      const unsigned char* data = image + at;
      at += length;
      if (status != 0xFF) {
        longData = data;
        longBytes = length + 1;
        size = LongRecordSize(longBytes);
        event = (MEVT_LONGMSG << 24) | longBytes;
        if (size > capacity || longBytes > 0xFFFFFF) {  // would never fit: dropped like a meta event
          carry = total;
          pos = at;
          continue;
        }
      } else if (type == 0x2F) {
        event = MEVT_F_CALLBACK | kEndOfSongEvent;
        songEnds = true;
      } else if (type == 0x51 && length == 3) {
        event = (MEVT_TEMPO << 24) | (data[0] << 16) | (data[1] << 8) | data[2];
      } else {
        carry = total;
        pos = at;
        continue;
      }
    } else {
      const int bytes = status >= 0xC0 && status <= 0xDF ? 1 : 2;
      if (static_cast<std::size_t>(bytes) > end - at) break;
      event = status | (image[at] << 8) | (bytes == 2 ? image[at + 1] << 16 : 0);
      at += static_cast<std::size_t>(bytes);
    }
    if (size > capacity - used) {
      songEnds = false;
      break;
    }
    Put32(out + used, static_cast<std::uint32_t>(std::min<std::uint64_t>(total, 0xFFFFFFFF)));
    Put32(out + used + 8, event);
    if (longData != nullptr) {
      out[used + kRecordHead] = status;
      std::memcpy(out + used + kRecordHead + 1, longData, longBytes - 1);
    }
    last = used;
    used += size;
    pos = consumed = at;
    carry = 0;
  }
  if (last >= 0) Put32(out + last + 8, Get32(out + last + 8) | MEVT_F_CALLBACK);
  header.dwBytesRecorded = used;
  header.dwFlags = 0;
  header.dwOffset = 0;
  return consumed - m_nOffset;
}

void cSmfPlay::FillNext() {
  std::lock_guard lock(m_lock);
  if (!m_pData || m_nOffset >= SongEnd()) return;
  MIDIHDR& header = m_pHeaders[m_nNext];
  if (header.dwFlags & MHDR_INQUEUE) return;
  m_nOffset += Fill(header);
  Check("Prepare", m_hStream ? m_hStream->PrepareHeader(&header) : MMSYSERR_INVALHANDLE);
  Check("Out", m_hStream ? m_hStream->Out(&header) : MMSYSERR_INVALHANDLE);
  m_nNext = (m_nNext + 1) % m_nBuffers;
}

void cSmfPlay::Restart(int bLoop) {
  std::lock_guard lock(m_lock);
  if (!m_pData) return;
  m_bLoop = bLoop;
  if (m_nState == kPlaying) return;
  Check("Restart", Call(&cMidiStream::Restart));
  const int was = m_nState;
  m_nState = kPlaying;
  if (was != kPaused && m_nOffset != SongEnd()) FillNext();
}

void cSmfPlay::StopPlay(int bPause) {
  std::lock_guard lock(m_lock);
  if (!m_pData) return;
  if (!bPause) {
    Check("Stop", Call(&cMidiStream::Stop));
    m_nState = kStopped;
    m_nOffset = kSmfImageEvents;
    FillNext();  // the song's first buffer waits in the stream for the next Restart
  } else if (m_nState == kPlaying) {
    Check("Pause", Call(&cMidiStream::Pause));
    m_nState = kPaused;
  }
}

void cSmfPlay::Feed() {
  unsigned message = 0;
  void* param = nullptr;
  while (m_queue.Get(message, param) > 0) {
    if (message == MM_MOM_POSITIONCB) OnPosition(static_cast<MIDIHDR*>(param));
  }
}

void cSmfPlay::OnPosition(MIDIHDR* header) {
  std::lock_guard lock(m_lock);
  if (header == nullptr || header->dwOffset + kRecordHead > header->dwBufferLength) return;
  // The whole event, type and all: a tempo or a long event's length may have the same
  // low bytes as the end of the song.
  const std::uint32_t event = Get32(header->lpData + header->dwOffset + 8) & ~MEVT_F_CALLBACK;
  if (event != kEndOfSongEvent) {
    if (m_nOffset != SongEnd()) FillNext();
    return;
  }
  StopPlay(0);
  if (m_bLoop) Restart(1);
}
