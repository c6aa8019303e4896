#pragma once
// The MIDI stream device: plays queued records into the synthesiser, timed in frames of
// the mixer's output, so that each event sounds where its ticks put it whatever the
// size of the blocks the device is pulled in.

#include <atomic>
#include <deque>
#include <memory>
#include <mutex>

#include "sound/midi_stream.h"
#include "sound/mixer.h"
#include "sound/synth.h"

class cSynthStream final : public cMidiStream, public cMixSource {
 public:
  // With no synthesiser the stream keeps its time and its callbacks in silence.
  cSynthStream(cMixer& mixer, std::shared_ptr<cSynth> synth, cFeedQueue& queue);
  ~cSynthStream() override;

  MMRESULT SetTimeDiv(std::uint32_t division) override;
  MMRESULT PrepareHeader(MIDIHDR* header) override;
  MMRESULT UnprepareHeader(MIDIHDR* header) override;
  MMRESULT Out(MIDIHDR* header) override;
  MMRESULT Restart() override;
  MMRESULT Stop() override;
  MMRESULT Pause() override;
  MMRESULT Reset() override;
  MMRESULT Close() override;

  void Mix(float* out, int frames) override;

 private:
  double FramesPerTick() const;
  // The output frame at which the front record is played.
  std::int64_t DueFrame() const;
  // Plays the front record; true when it asked for a callback.
  bool Dispatch();
  void FinishFront();
  void ReturnBuffers();
  void Render(float* out, int frames);

  cMixer& m_mixer;
  std::shared_ptr<cSynth> m_pSynth;
  cFeedQueue& m_queue;
  std::mutex m_lock;
  std::deque<MIDIHDR*> m_queued;
  std::uint32_t m_nPos = 0;  // play position in the front buffer
  bool m_bPlaying = false;
  bool m_bRewound = true;  // the clock starts afresh at the next Restart
  bool m_bClosed = false;
  std::atomic<bool> m_bInMixer = false;
  std::uint32_t m_nDivision = 96;
  std::uint32_t m_nTempo = 500000;  // microseconds a quarter note
  std::int64_t m_nNow = 0;          // frames played
  std::int64_t m_nRendered = 0;     // frames mixed, playing or not
  std::int64_t m_nStopped = -1;     // m_nRendered at the last Stop
  std::int64_t m_nDispatched = -2;  // m_nRendered at the last record played
  double m_dLast = 0;               // when the last record fell due, in frames played
  bool m_bDue = false;              // m_dDue holds the front record's time
  double m_dDue = 0;
};
