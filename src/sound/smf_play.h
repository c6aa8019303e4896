#pragma once
// The SMF player: walks the normalised image into two buffers of stream records and
// keeps the stream supplied from a feeding thread of its own, woken by the stream's
// position callbacks.

#include <memory>
#include <mutex>
#include <thread>
#include <vector>

#include "sound/midi_stream.h"
#include "sound/smf_format.h"

// Opens a stream on the synthesiser device (synth_stream.h).
MMRESULT OpenSynthStream(std::unique_ptr<cMidiStream>& stream, cFeedQueue& queue);

class cSmfPlay : public SmfFormat {
 public:
  enum : int { kStopped = 0, kPlaying = 1, kPaused = 2 };

  explicit cSmfPlay(const std::string& path, const MIDI_STREAM_OPEN& open = OpenSynthStream);
  ~cSmfPlay() override;

  void Restart(int bLoop);
  void StopPlay(int bPause);
  // Fills and queues the next buffer unless the song is all queued or that buffer is
  // still in the stream.
  void FillNext();
  // Turns the image from m_nOffset into records in `header`'s buffer until it is full
  // or the song ends; the result is the number of image bytes consumed.
  std::size_t Fill(MIDIHDR& header);
  int State();

  // The feeding thread's message queue, which the stream posts to.
  cFeedQueue m_queue;
  std::unique_ptr<cMidiStream> m_hStream;
  MIDIHDR m_pHeaders[2];
  std::vector<unsigned char> m_aBuffer[2];
  int m_nNext = 0;
  const int m_nBuffers = 2;
  const int m_nBufferBytes = 24000;
  std::size_t m_nOffset = kSmfImageEvents;
  int m_nState = kStopped;
  int m_bLoop = 0;

 private:
  void Feed();
  void OnPosition(MIDIHDR* header);
  // Reports a failed stream call as "Midi <file> <what> <reason>".
  void Check(const char* what, MMRESULT result);
  MMRESULT Call(MMRESULT (cMidiStream::*call)());

  // Held across each test of the shared fields and the stream call that follows it.
  std::recursive_mutex m_lock;
  std::thread m_hThread;
};
