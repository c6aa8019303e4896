#pragma once
// A small Standard MIDI File writer: tracks of timed events, written as format 1.

#include <cstdint>
#include <string>
#include <vector>

namespace art {

class cSmfTrack {
 public:
  void Name(const std::string& name);
  void Tempo(std::uint32_t tick, double bpm);
  void TimeSignature(std::uint32_t tick, int numerator, int denominatorPower);
  void Program(std::uint32_t tick, int channel, int program);
  void Control(std::uint32_t tick, int channel, int controller, int value);
  void Note(std::uint32_t tick, int channel, int key, int velocity, std::uint32_t length);
  // The track chunk, events in time order (note offs before note ons at one tick), with
  // its end of track at `end` or after the last event.
  std::string Chunk(std::uint32_t end) const;

 private:
  struct cEvent {
    std::uint32_t tick;
    int order;  // at one tick: meta and set-up first, then note offs, then note ons
    std::string bytes;
  };
  std::vector<cEvent> m_vecEvents;
};

// Header and tracks; `division` is ticks per quarter note.
std::string WriteSmf(int division, const std::vector<cSmfTrack>& tracks, std::uint32_t end);

}  // namespace art
