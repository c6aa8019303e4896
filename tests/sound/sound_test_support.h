#pragma once
// MIDI, ogg and WAV files made by the sound tests, and offline pulls of the mixer.

#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

using cBytes = std::vector<unsigned char>;

// An event of a track at an absolute tick.
struct cTimedEvent {
  std::uint32_t tick;
  cBytes bytes;  // status and data, or a meta event from FF
};

cBytes Concat(std::initializer_list<cBytes> parts);
// "MThd" with the header length 6.
cBytes SmfHeader(int format, int tracks, int division);
// "MTrk", the length and the bytes as given.
cBytes TrackChunk(const cBytes& events);
// A track of events in tick order, closed by an end of track at `endTick`.
cBytes TimedTrack(const std::vector<cTimedEvent>& events, std::uint32_t endTick);
cBytes Tempo(std::uint32_t microsecondsPerQuarter);
cBytes NoteOn(int channel, int key, int velocity = 100);

// A mono sine of `frames` frames at `rate`, peak `amplitude`, as Ogg Vorbis.
void WriteOgg(const std::filesystem::path& path, int rate, int frames, double frequency, double amplitude);

// Frames of a 16-bit stereo WAV file's data chunk; -1 when the file is not one.
long WavFrames(const std::filesystem::path& path);

// Pulls the shared mixer for `frames` frames in blocks of `block`.
std::vector<float> PullMixer(int frames, int block = 1000);
// The largest magnitude of the left channel over [from, to).
float Peak(const std::vector<float>& stereo, long from, long to);
// The first frame whose left sample exceeds 1e-4 in magnitude; -1 for none.
long FirstSound(const std::vector<float>& stereo);
