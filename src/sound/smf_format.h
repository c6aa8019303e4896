#pragma once
// A Standard MIDI File of format 0 or 1, checked and normalised at load into one image:
// a format 0 file whose single track holds every event of every track in time order,
// each with its own status byte, and exactly one end of track at the end of the song.

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>

// Image layout: the 14-byte header, "MTrk", the big-endian track length, the events.
constexpr std::size_t kSmfImageEvents = 22;

// Variable-length numbers of at most 4 bytes. Reading stops at the end of the data:
// false when the number runs past it.
bool ReadVarLen(const unsigned char* data, std::size_t size, std::size_t& pos, std::uint32_t& value);
// Appends `value` (below 0x10000000) in its shortest form.
void WriteVarLen(std::uint32_t value, std::string& out);

// Why a file was refused; each has its report.
enum class eSmfCheck {
  kOk,
  kNoHeader,      // bytes 0 to 3 are not "MThd"
  kHeaderLength,  // the header length is not 6
  kFormat2,
  kFormatAbove2,
  kNoTrack,       // bytes 14 to 17 are not "MTrk"
  kBroken,        // the tracks run past the end of the data
};

// Checks the file and builds its image (raw bytes in a std::string).
eSmfCheck NormaliseSmf(const unsigned char* data, std::size_t size, std::string& image);

class SmfFormat {
 public:
  // Reads and normalises the file at the stored path `path`; the reports name it.
  explicit SmfFormat(const std::string& path);
  virtual ~SmfFormat() = default;
  SmfFormat(const SmfFormat&) = delete;
  SmfFormat& operator=(const SmfFormat&) = delete;

  // Offset just past the image's single end of track.
  std::size_t SongEnd() const { return m_nDataSize; }

  std::string m_strName;
  std::unique_ptr<unsigned char[]> m_pData;  // the image; null when the file can't be used
  std::size_t m_nDataSize = 0;
};
