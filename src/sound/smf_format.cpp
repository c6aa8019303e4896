#include "sound/smf_format.h"

#include <algorithm>
#include <cstring>
#include <functional>
#include <queue>
#include <vector>

#include "platform/diagnostics.h"
#include "platform/cp932.h"
#include "platform/file_io.h"
#include "platform/stored_path.h"

namespace {

// An event of a track: its absolute tick, its status and the bytes after the status,
// [from, to) in the file. The end of track that closes the song has no bytes in the file.
struct cSmfEvent {
  std::uint64_t tick;
  unsigned char status;
  std::size_t from, to;
};
constexpr std::size_t kMadeUp = static_cast<std::size_t>(-1);

long Be16(const unsigned char* data, std::size_t size, std::size_t at) {
  return at + 2 <= size ? (data[at] << 8) | data[at + 1] : -1;
}

bool HasTag(const unsigned char* data, std::size_t size, std::size_t at, const char* tag) {
  return at + 4 <= size && std::memcmp(data + at, tag, 4) == 0;
}

// Reads one track from `pos` to its end-of-track event, which is not stored.
bool ReadTrack(const unsigned char* data, std::size_t size, std::size_t& pos, std::vector<cSmfEvent>& events,
               std::uint64_t& lastTick) {
  std::uint64_t tick = 0;
  unsigned char running = 0;
  for (;;) {
    std::uint32_t delta = 0;
    if (!ReadVarLen(data, size, pos, delta) || pos >= size) return false;
    tick += delta;
    unsigned char status = data[pos];
    if (status & 0x80) {
      ++pos;
    } else if (running != 0) {
      status = running;
    } else {
      return false;
    }
    const std::size_t from = pos;
    if (status == 0xFF || status == 0xF0 || status == 0xF7) {
      unsigned char type = 0;
      if (status == 0xFF) {
        if (pos >= size) return false;
        type = data[pos++];
      }
      std::uint32_t length = 0;
      if (!ReadVarLen(data, size, pos, length) || length > size - pos) return false;
      pos += length;
      if (status == 0xFF && type == 0x2F) {
        lastTick = tick;
        return true;
      }
    } else {
      const std::size_t bytes = status >= 0xC0 && status <= 0xDF ? 1 : 2;
      if (bytes > size - pos) return false;
      pos += bytes;
      if (status < 0xF0) running = status;
    }
    events.push_back({tick, status, from, pos});
  }
}

const char* ReportOf(eSmfCheck check) {
  switch (check) {
    case eSmfCheck::kHeaderLength: return CP932_TEXT("Midi %s Init 標準MIDIでない(6)").c_str();
    case eSmfCheck::kFormat2: return CP932_TEXT("Midi %s Init 対応フォーマットが2でない").c_str();
    case eSmfCheck::kFormatAbove2: return CP932_TEXT("Midi %s Init 対応フォーマットが0または1でない").c_str();
    default: return CP932_TEXT("Midi %s Init 標準MIDIでない(4)").c_str();
  }
}

}  // namespace

bool ReadVarLen(const unsigned char* data, std::size_t size, std::size_t& pos, std::uint32_t& value) {
  value = 0;
  for (int i = 0; i < 4; ++i) {
    if (pos >= size) return false;
    const unsigned char byte = data[pos++];
    value = (value << 7) | (byte & 0x7F);
    if (!(byte & 0x80)) return true;
  }
  return true;  // a fifth byte is not read: the form holds four
}

void WriteVarLen(std::uint32_t value, std::string& out) {
  char bytes[4];
  int n = 0;
  do {
    bytes[n++] = static_cast<char>(value & 0x7F);
    value >>= 7;
  } while (value != 0 && n < 4);
  while (n > 1) out += static_cast<char>(bytes[--n] | 0x80);
  out += bytes[0];
}

eSmfCheck NormaliseSmf(const unsigned char* data, std::size_t size, std::string& image) {
  if (!HasTag(data, size, 0, "MThd")) return eSmfCheck::kNoHeader;
  if (Be16(data, size, 4) != 0 || Be16(data, size, 6) != 6) return eSmfCheck::kHeaderLength;
  const long format = Be16(data, size, 8);
  if (format == 2) return eSmfCheck::kFormat2;
  if (format < 0 || format >= 3) return eSmfCheck::kFormatAbove2;
  if (!HasTag(data, size, 14, "MTrk")) return eSmfCheck::kNoTrack;

  // Tracks lie one behind the other: each chunk head is skipped, its length unused.
  const long trackCount = Be16(data, size, 10);
  std::vector<std::vector<cSmfEvent>> tracks(static_cast<std::size_t>(std::max(trackCount, 1L)));
  std::uint64_t songEnd = 0;
  std::size_t pos = 14;
  for (long t = 0; t < trackCount; ++t) {
    std::uint64_t lastTick = 0;
    if (8 > size - pos) return eSmfCheck::kBroken;
    pos += 8;
    if (!ReadTrack(data, size, pos, tracks[static_cast<std::size_t>(t)], lastTick)) return eSmfCheck::kBroken;
    songEnd = std::max(songEnd, lastTick);
  }
  tracks.back().push_back({songEnd, 0xFF, kMadeUp, kMadeUp});

  image.assign("MThd\0\0\0\6\0\0\0\1", 12);
  image += static_cast<char>(data[12]);
  image += static_cast<char>(data[13]);
  image.append("MTrk\0\0\0\0", 8);

  // Earliest tick first; at equal ticks the lower track, and a track keeps its order.
  using cHead = std::pair<std::uint64_t, std::size_t>;  // tick, track
  std::priority_queue<cHead, std::vector<cHead>, std::greater<>> heads;
  std::vector<std::size_t> next(tracks.size(), 0);
  for (std::size_t t = 0; t < tracks.size(); ++t) {
    if (!tracks[t].empty()) heads.push({tracks[t][0].tick, t});
  }
  std::uint64_t previous = 0;
  while (!heads.empty()) {
    const std::size_t t = heads.top().second;
    heads.pop();
    const cSmfEvent& event = tracks[t][next[t]++];
    if (next[t] < tracks[t].size()) heads.push({tracks[t][next[t]].tick, t});
    // A merged delta never exceeds a delta read from the event's own track (for the
    // song's end, the longest track): its predecessor there, or the track's start, comes
    // no later than the event merged before it. So the 4-byte form always holds it.
    WriteVarLen(static_cast<std::uint32_t>(event.tick - previous), image);
    previous = event.tick;
    image += static_cast<char>(event.status);
    if (event.from == kMadeUp) {
      image.append("\x2F\x00", 2);
    } else {
      image.append(reinterpret_cast<const char*>(data + event.from), event.to - event.from);
    }
  }
  const std::size_t length = image.size() - kSmfImageEvents;
  for (int i = 0; i < 4; ++i) image[18 + i] = static_cast<char>(length >> (24 - 8 * i));
  return eSmfCheck::kOk;
}

SmfFormat::SmfFormat(const std::string& path) : m_strName(path) {
  std::vector<unsigned char> file;
  if (!ReadWholeFile(NativePathOf(path), file)) {
    ReportEC(CP932_TEXT("Midi %s Create ファイルが開けません").c_str(), m_strName.c_str());
    return;
  }
  std::string image;
  const eSmfCheck check = NormaliseSmf(file.data(), file.size(), image);
  if (check != eSmfCheck::kOk) {
    ReportEC(ReportOf(check), m_strName.c_str());
    return;
  }
  m_nDataSize = image.size();
  m_pData = std::make_unique<unsigned char[]>(m_nDataSize);
  std::memcpy(m_pData.get(), image.data(), m_nDataSize);
}
