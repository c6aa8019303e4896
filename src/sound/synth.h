#pragma once
// The General MIDI synthesiser that MIDI streams play into: FluidSynth's synth alone,
// rendered by the caller, with a soundfont.

#include <atomic>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

struct _fluid_synth_t;
struct _fluid_hashtable_t;

// A message as the synthesiser took it, with the frame of its output at which it sounds.
struct cSynthMessage {
  std::int64_t frame;
  std::uint32_t message;  // a short message's bytes from the low byte up; 0xF0 for a system exclusive
};

class cSynth {
 public:
  // Null when the soundfont can't be loaded.
  static std::unique_ptr<cSynth> Load(const std::string& soundFont);
  ~cSynth();

  // Channel messages; system messages, such as the song's own end record, are dropped.
  void ShortMsg(std::uint32_t message);
  // F0, data, F7.
  void SysEx(const unsigned char* data, std::size_t size);
  // Silences every channel at once.
  void SoundOff();
  // Silences every channel and puts programs and controllers back, rendering what was
  // left of the sound into nothing: whatever plays next starts from silence.
  void Clear();
  // Adds `frames` stereo frames. The synthesiser works in blocks of kBlock frames: a
  // message takes effect at the start of the next block, so the device sends messages
  // on block boundaries.
  void Render(float* out, int frames);
  std::int64_t Frames() const { return m_nFrames; }
  // Where a message sent now takes effect.
  std::int64_t NextBlock() const { return (m_nFrames + kBlock - 1) / kBlock * kBlock; }
  static constexpr int kBlock = 64;

  // One stream at a time plays into the synthesiser.
  bool Claim() { return !m_bClaimed.exchange(true); }
  void Unclaim() { m_bClaimed = false; }

  // When set, every message is recorded (tests and benchmarks).
  std::vector<cSynthMessage>* m_pLog = nullptr;

 private:
  cSynth() = default;
  void Discard(int frames);

  _fluid_hashtable_t* m_pSettings = nullptr;
  _fluid_synth_t* m_pSynth = nullptr;
  std::vector<float> m_block;
  std::int64_t m_nFrames = 0;
  std::atomic<bool> m_bClaimed = false;
};

// The soundfont: $ORTALUNE_SOUNDFONT when it is set, otherwise the first of the usual
// places that exists; empty when there is none.
std::string FindSoundFont();
