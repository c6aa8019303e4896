#include "art/smf_writer.h"

#include <algorithm>
#include <cmath>

#include "sound/smf_format.h"

namespace art {
namespace {

void Be(std::string& out, std::uint32_t value, int bytes) {
  for (int i = bytes - 1; i >= 0; --i) out.push_back(static_cast<char>(value >> (8 * i) & 0xFF));
}

std::string Bytes(std::initializer_list<int> values) {
  std::string out;
  for (int v : values) out.push_back(static_cast<char>(v & 0xFF));
  return out;
}

std::string Meta(int type, const std::string& data) {
  std::string out = Bytes({0xFF, type});
  WriteVarLen(static_cast<std::uint32_t>(data.size()), out);
  return out + data;
}

}  // namespace

void cSmfTrack::Name(const std::string& name) { m_vecEvents.push_back({0, 0, Meta(0x03, name)}); }

void cSmfTrack::Tempo(std::uint32_t tick, double bpm) {
  std::string micros;
  Be(micros, static_cast<std::uint32_t>(std::lround(60000000.0 / bpm)), 3);
  m_vecEvents.push_back({tick, 0, Meta(0x51, micros)});
}

void cSmfTrack::TimeSignature(std::uint32_t tick, int numerator, int denominatorPower) {
  m_vecEvents.push_back({tick, 0, Meta(0x58, Bytes({numerator, denominatorPower, 24, 8}))});
}

void cSmfTrack::Program(std::uint32_t tick, int channel, int program) {
  m_vecEvents.push_back({tick, 0, Bytes({0xC0 | channel, program})});
}

void cSmfTrack::Control(std::uint32_t tick, int channel, int controller, int value) {
  m_vecEvents.push_back({tick, 0, Bytes({0xB0 | channel, controller, value})});
}

void cSmfTrack::Note(std::uint32_t tick, int channel, int key, int velocity, std::uint32_t length) {
  key = std::clamp(key, 0, 127);
  m_vecEvents.push_back({tick, 2, Bytes({0x90 | channel, key, std::clamp(velocity, 1, 127)})});
  m_vecEvents.push_back({tick + std::max<std::uint32_t>(1, length), 1, Bytes({0x80 | channel, key, 0x40})});
}

std::string cSmfTrack::Chunk(std::uint32_t end) const {
  std::vector<cEvent> events = m_vecEvents;
  std::stable_sort(events.begin(), events.end(),
                   [](const cEvent& a, const cEvent& b) { return a.tick != b.tick ? a.tick < b.tick : a.order < b.order; });
  std::string body;
  std::uint32_t now = 0;
  for (const cEvent& e : events) {
    WriteVarLen(e.tick - now, body);
    body += e.bytes;
    now = e.tick;
  }
  WriteVarLen(std::max(end, now) - now, body);
  body += Bytes({0xFF, 0x2F, 0x00});
  std::string chunk = "MTrk";
  Be(chunk, static_cast<std::uint32_t>(body.size()), 4);
  return chunk + body;
}

std::string WriteSmf(int division, const std::vector<cSmfTrack>& tracks, std::uint32_t end) {
  std::string out = "MThd";
  Be(out, 6, 4);
  Be(out, 1, 2);
  Be(out, static_cast<std::uint32_t>(tracks.size()), 2);
  Be(out, static_cast<std::uint32_t>(division), 2);
  for (const cSmfTrack& t : tracks) out += t.Chunk(end);
  return out;
}

}  // namespace art
