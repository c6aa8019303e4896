#include "database/csv_file.h"

#include <vector>

#include "platform/file_io.h"

int WriteCsv(const std::filesystem::path& path, const CSV_GRID& grid) {
  std::string text = JoinCsv(grid);
  std::string bytes;
  bytes.reserve(text.size() + text.size() / 32);
  for (char c : text) {
    if (c == '\n') bytes += '\r';
    bytes += c;
  }
  return WriteFileAtomic(path, bytes.data(), bytes.size()) ? 1 : 0;
}

int ReadCsv(const std::filesystem::path& path, CSV_GRID& grid) {
  std::vector<unsigned char> bytes;
  if (!ReadWholeFile(path, bytes)) return 0;
  std::string text(bytes.begin(), bytes.end());
  // CR LF reads as "\n"; a lone CR stays.
  std::size_t out = 0;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text[i] != '\r' || i + 1 >= text.size() || text[i + 1] != '\n') text[out++] = text[i];
  }
  text.resize(out);
  TokenizeCsv(text, grid);
  return 1;
}
