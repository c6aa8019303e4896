#include "sound/sound.h"

#include <algorithm>
#include <cstring>

#include "platform/diagnostics.h"
#include "platform/cp932.h"
#include "platform/stored_path.h"
#include "sound/music.h"
#include "sound/sdl_audio.h"
#include "sound/sound_engine.h"

cWaveVoice::cWaveVoice() = default;
cWaveVoice::~cWaveVoice() { SoundMixer().Remove(this); }

void cWaveVoice::Start(std::shared_ptr<const std::vector<float>> frames, std::size_t from, bool bFromCurrent) {
  // The voice joins the mixer at its first sound, which is what opens the device.
  if (!m_bInMixer) SoundMixer().Add(this), m_bInMixer = true;
  std::lock_guard lock(m_lock);
  if (!bFromCurrent || frames != m_pFrames) m_nPos = std::min(from, frames ? frames->size() / 2 : 0);
  m_pFrames = std::move(frames);
  m_bPlaying = m_pFrames != nullptr;
}

void cWaveVoice::Halt() {
  std::lock_guard lock(m_lock);
  m_bPlaying = false;
}

void cWaveVoice::Stop() {
  std::lock_guard lock(m_lock);
  m_bPlaying = false;
  m_nPos = 0;
}

bool cWaveVoice::IsPlaying() {
  std::lock_guard lock(m_lock);
  return m_bPlaying;
}

void cWaveVoice::Mix(float* out, int frames) {
  std::lock_guard lock(m_lock);
  if (!m_bPlaying) return;
  const std::size_t total = m_pFrames->size() / 2;
  const std::size_t n = std::min(static_cast<std::size_t>(frames), total - m_nPos);
  const float* from = m_pFrames->data() + 2 * m_nPos;
  for (std::size_t i = 0; i < 2 * n; ++i) out[i] += from[i];
  m_nPos += n;
  if (m_nPos == total) m_bPlaying = false;
}

void cSound::Init() {
  m_bEnabled = 1;
  m_nCurrent = -1;
  if (!m_pVoice) m_pVoice = std::make_unique<cWaveVoice>();
}

bool cSound::OpenEntry(SOUND_ENTRY& entry) {
  if (entry.lpstrDeviceType == kWaveAudio) {
    auto frames = std::make_shared<std::vector<float>>();
    if (!LoadWaveFile(NativePathOf(entry.lpstrElementName), *frames)) return false;
    entry.m_pWave = std::move(frames);
  } else if (entry.lpstrDeviceType == kSequencer) {
    entry.m_pSequence = std::make_unique<cSmfPlay>(entry.lpstrElementName);
    if (!entry.m_pSequence->m_pData) {
      entry.m_pSequence.reset();
      return false;
    }
  } else {
    return false;
  }
  entry.wDeviceID = m_nNextId++;
  return true;
}

bool cSound::CloseEntry(SOUND_ENTRY& entry) {
  if (entry.wDeviceID == 0) return false;
  entry = SOUND_ENTRY{};
  return true;
}

bool cSound::Open(const char* type, const char* const* list) {
  if (!m_bEnabled) return true;
  CloseAll();
  std::size_t count = 0;
  while (list[count] != nullptr) ++count;
  m_vecEntry.resize(count);
  m_nEntries = static_cast<int>(count);
  for (std::size_t i = 0; i < count; ++i) {
    SOUND_ENTRY& entry = m_vecEntry[i];
    entry.lpstrDeviceType = type;
    entry.lpstrElementName = list[i];
    if (!OpenEntry(entry)) entry = SOUND_ENTRY{};  // the others still open
  }
  m_nCurrent = -1;
  return true;
}

bool cSound::ChangeSound(int nEntry, const char* type, const std::string& path) {
  if (!m_bEnabled) return true;
  if (nEntry < 0 || nEntry >= m_nEntries) return false;
  StopEntry(0);
  SOUND_ENTRY& entry = m_vecEntry[static_cast<std::size_t>(nEntry)];
  if (std::strcmp(type, kSequencer) == 0) {
    for (SOUND_ENTRY& other : m_vecEntry) CloseEntry(other);  // the sequencer takes the device alone
  } else if (!CloseEntry(entry)) {
    ECSP(CP932_TEXT("MCI_CLOSE失敗！ %d").c_str(), nEntry);
  }
  entry.lpstrDeviceType = type;
  entry.lpstrElementName = path;
  if (!OpenEntry(entry)) {
    entry = SOUND_ENTRY{};
    ECSP(CP932_TEXT("ChangeSound失敗！ %s").c_str(), path.c_str());
    return false;
  }
  return true;
}

int cSound::PlayFile(void* window, int nEntry, const std::string& path, int position) {
  if (!m_bEnabled) return 1;
  const std::optional<std::string_view> extension = ExtensionOf(path);
  if (!extension) return 0;
  if (*extension == "mid" || *extension == "MID") {
    if (!ChangeSound(nEntry, kSequencer, path.substr(0, path.size() - 3) + "mid")) return 0;
    return PlayEntry(window, nEntry, 1, 0, position);
  }
  if (*extension == "wav" || *extension == "WAV") {
    if (!ChangeSound(nEntry, kWaveAudio, path)) return 0;
    return PlayEntry(window, nEntry, 0, 0, position);
  }
  return 0;
}

void cSound::Halt() {
  if (m_nCurrent < 0) return;
  SOUND_ENTRY& entry = m_vecEntry[static_cast<std::size_t>(m_nCurrent)];
  if (entry.m_pSequence) entry.m_pSequence->StopPlay(1);
  if (m_pVoice) m_pVoice->Halt();
}

int cSound::PlayEntry(void* window, int nEntry, int bNotify, int bFromCurrent, int position) {
  if (!m_bEnabled) return 1;
  if (nEntry < 0 || nEntry >= m_nEntries) return 0;
  SOUND_ENTRY& entry = m_vecEntry[static_cast<std::size_t>(nEntry)];
  if (entry.wDeviceID == 0) return 0;
  Halt();
  entry.dwCallback = bNotify ? reinterpret_cast<std::uintptr_t>(window) : 0;
  if (entry.m_pWave && m_pVoice) {
    const std::size_t from = static_cast<std::size_t>(std::max(position, 0)) * kSoundRate / 1000;
    m_pVoice->Start(entry.m_pWave, from, bFromCurrent != 0);
  } else if (entry.m_pSequence) {
    if (!bFromCurrent) entry.m_pSequence->StopPlay(0);
    entry.m_pSequence->Restart(0);
  }
  m_nCurrent = nEntry;
  return 1;
}

void cSound::StopEntry(int bPause) {
  if (!m_bEnabled || m_nCurrent < 0) return;
  SOUND_ENTRY& entry = m_vecEntry[static_cast<std::size_t>(m_nCurrent)];
  if (bPause) {
    Halt();
  } else {
    if (entry.m_pSequence) entry.m_pSequence->StopPlay(0);
    if (m_pVoice) m_pVoice->Stop();  // and back to the start
    ECSP(CP932_TEXT("Stop成功！ mr = %8x stop =%d").c_str(), 0u, m_nCurrent);
  }
  m_nCurrent = -1;
}

void cSound::CloseAll() {
  if (m_pVoice) m_pVoice->Stop();
  for (SOUND_ENTRY& entry : m_vecEntry) CloseEntry(entry);
  m_vecEntry.clear();
  m_nEntries = 0;
  m_nCurrent = -1;
}

int cSound::IsPlaying() {
  if (m_nCurrent < 0) return 0;
  const SOUND_ENTRY& entry = m_vecEntry[static_cast<std::size_t>(m_nCurrent)];
  if (entry.m_pSequence) return entry.m_pSequence->State() == cSmfPlay::kPlaying;
  return m_pVoice && m_pVoice->IsPlaying() ? 1 : 0;
}
