#include "sound/midi_stream.h"

std::string StreamErrorText(MMRESULT result) {
  switch (result) {
    case MMSYSERR_NOERROR: return "no error";
    case MMSYSERR_ALLOCATED: return "the synthesiser is in use by another stream";
    case MMSYSERR_INVALHANDLE: return "the stream is not open";
    case MMSYSERR_INVALPARAM: return "a buffer is not valid";
    case MIDIERR_UNPREPARED: return "a buffer is not prepared";
    case MIDIERR_STILLPLAYING: return "a buffer is still queued";
    default: return "error " + std::to_string(result);
  }
}

bool cFeedQueue::Post(unsigned message, void* param) {
  std::lock_guard lock(m_lock);
  if (m_bQuit) return false;
  m_messages.emplace_back(message, param);
  m_changed.notify_all();
  return true;
}

int cFeedQueue::Get(unsigned& message, void*& param) {
  std::unique_lock lock(m_lock);
  m_bBusy = false;
  m_changed.notify_all();
  m_changed.wait(lock, [this] { return m_bQuit || !m_messages.empty(); });
  if (m_bQuit) return 0;
  std::tie(message, param) = m_messages.front();
  m_messages.pop_front();
  m_bBusy = true;
  return 1;
}

void cFeedQueue::Quit() {
  std::lock_guard lock(m_lock);
  m_bQuit = true;
  m_messages.clear();
  m_changed.notify_all();
}

void cFeedQueue::WaitIdle() {
  std::unique_lock lock(m_lock);
  m_changed.wait(lock, [this] { return m_bQuit || (m_messages.empty() && !m_bBusy); });
}
