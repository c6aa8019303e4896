#pragma once
// The one mixer every sound plays into: sources add their frames (stereo, interleaved,
// float) into each block that the audio device or an offline writer pulls.

#include <atomic>
#include <cstdint>
#include <functional>
#include <mutex>
#include <vector>

constexpr int kSoundRate = 44100;

class cMixSource {
 public:
  virtual ~cMixSource() = default;
  // Adds `frames` stereo frames into `out`. Runs under the mixer's lock.
  virtual void Mix(float* out, int frames) = 0;
};

class cMixer {
 public:
  void Add(cMixSource* source);
  // Returns once the source is out of any block being mixed.
  void Remove(cMixSource* source);
  // Mixes the next `frames` frames, clipped to [-1, 1].
  void Pull(float* out, int frames);
  void PullS16(std::int16_t* out, int frames);

  // True while nobody pulls in real time (no device, or a file writer): streams then
  // wait for their feeders at each callback, so a render runs in exact virtual time.
  bool IsOffline() const { return m_bOffline; }
  void SetOffline(bool bOffline) { m_bOffline = bOffline; }

  // Runs once, outside the mixer's lock, when the next source joins: the audio device
  // opens when something first plays, not before.
  void SetFirstSourceHook(std::function<void()> hook) {
    std::lock_guard lock(m_hookLock);
    m_sourceHook = std::move(hook);
  }

 private:
  std::mutex m_hookLock;
  std::function<void()> m_sourceHook;
  std::mutex m_lock;
  std::vector<cMixSource*> m_sources;
  std::atomic<bool> m_bOffline = true;
};
