#pragma once
// The wave front: a list of open entries, each a wave file or a MIDI sequence, one of
// them playing at a time. The forms play through the free entry, 4.

#include <cstdint>
#include <memory>
#include <mutex>
#include <string>
#include <vector>

#include "sound/mixer.h"
#include "sound/smf_play.h"

// The device types of an entry.
inline constexpr const char* kWaveAudio = "waveaudio";
inline constexpr const char* kSequencer = "sequencer";

struct SOUND_ENTRY {
  std::uintptr_t dwCallback = 0;  // the window to notify at the end
  unsigned wDeviceID = 0;         // 0 while not open
  std::string lpstrDeviceType;
  std::string lpstrElementName;   // stored path
  std::string lpstrAlias;
  std::shared_ptr<const std::vector<float>> m_pWave;  // wave: stereo frames at the mixer's rate
  std::unique_ptr<cSmfPlay> m_pSequence;             // sequencer
};

// Plays the frames of one wave entry into the mixer.
class cWaveVoice final : public cMixSource {
 public:
  cWaveVoice();
  ~cWaveVoice() override;
  // Plays `frames` from frame `from`; the same frames again go on where they were.
  void Start(std::shared_ptr<const std::vector<float>> frames, std::size_t from, bool bFromCurrent);
  void Halt();  // where it stands
  void Stop();  // and back to the start
  bool IsPlaying();
  void Mix(float* out, int frames) override;

 private:
  std::mutex m_lock;
  std::shared_ptr<const std::vector<float>> m_pFrames;
  std::size_t m_nPos = 0;
  bool m_bPlaying = false;
  bool m_bInMixer = false;  // touched by the main thread only
};

class cSound {
 public:
  void Init();
  // `list` ends with a null. False only when memory runs out.
  bool Open(const char* type, const char* const* list);
  bool ChangeSound(int nEntry, const char* type, const std::string& path);
  // `position` in milliseconds.
  int PlayFile(void* window, int nEntry, const std::string& path, int position);
  int PlayEntry(void* window, int nEntry, int bNotify, int bFromCurrent, int position);
  void StopEntry(int bPause);
  void CloseAll();
  // Whether the current entry still sounds.
  int IsPlaying();

  int m_bEnabled = 0;
  std::vector<SOUND_ENTRY> m_vecEntry;
  int m_nCurrent = -1;
  int m_nEntries = 0;

 private:
  bool OpenEntry(SOUND_ENTRY& entry);
  bool CloseEntry(SOUND_ENTRY& entry);
  void Halt();
  std::unique_ptr<cWaveVoice> m_pVoice;
  unsigned m_nNextId = 1;
};
