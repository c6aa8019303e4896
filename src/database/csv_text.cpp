#include "database/csv_text.h"

#include <algorithm>

#include "platform/cp932.h"

namespace {

constexpr unsigned char kWideSpaceLead = 0x81;
constexpr unsigned char kWideSpaceTrail = 0x40;

// Bytes of the character at `i`: 2 for a double-byte character, else 1.
std::size_t CharWidth(std::string_view s, std::size_t i) {
  return IsLeadByte(static_cast<unsigned char>(s[i])) && i + 1 < s.size() ? 2 : 1;
}

bool IsSpaceChar(std::string_view s, std::size_t i, std::size_t width) {
  if (width == 1) return s[i] == ' ';
  return static_cast<unsigned char>(s[i]) == kWideSpaceLead && static_cast<unsigned char>(s[i + 1]) == kWideSpaceTrail;
}

// Walks by characters, so that a trail byte 0x40 behind a lead byte 0x81 that is itself
// the trail of another character is never taken for a full-width space.
std::string_view TrimSpaces(std::string_view cell) {
  std::size_t begin = 0;
  std::size_t end = 0;
  bool leading = true;
  for (std::size_t i = 0; i < cell.size();) {
    std::size_t width = CharWidth(cell, i);
    bool space = IsSpaceChar(cell, i, width);
    i += width;
    if (space && leading) begin = i;
    if (!space) {
      leading = false;
      end = i;
    }
  }
  return end > begin ? cell.substr(begin, end - begin) : std::string_view();
}

}  // namespace

void TokenizeCsvLine(std::string_view line, CSV_ROW& row) {
  std::size_t pos = 0;
  for (;;) {
    std::size_t stop;
    if (pos < line.size() && line[pos] == '"') {
      std::string cell;
      for (++pos; pos < line.size(); ++pos) {
        if (line[pos] != '"') {
          cell += line[pos];
        } else if (pos + 1 < line.size() && line[pos + 1] == '"') {
          cell += '"';
          ++pos;
        } else {
          ++pos;
          break;
        }
      }
      stop = std::min(line.find(',', pos), line.size());
      cell.append(line.substr(pos, stop - pos));
      row.emplace_back(TrimSpaces(cell));
    } else {
      stop = std::min(line.find(',', pos), line.size());
      row.emplace_back(TrimSpaces(line.substr(pos, stop - pos)));
    }
    if (stop >= line.size()) return;
    pos = stop + 1;  // behind a comma there is always one more cell, if only an empty one
  }
}

void TokenizeCsv(std::string_view text, CSV_GRID& grid) {
  grid.clear();
  std::size_t pos = 0;
  while (pos < text.size()) {
    std::size_t end = std::min(text.find('\n', pos), text.size());
    const std::size_t cells = grid.empty() ? 1 : grid.back().size();
    grid.emplace_back().reserve(cells);  // rows of a file tend to have the same width
    TokenizeCsvLine(text.substr(pos, end - pos), grid.back());
    pos = end + 1;
  }
}

std::string JoinCsv(const CSV_GRID& grid) {
  std::string text;
  for (const CSV_ROW& row : grid) {
    for (std::size_t c = 0; c < row.size(); ++c) {
      if (c > 0) text += ',';
      text += row[c];
    }
    text += '\n';
  }
  return text;
}
