#include "project/system_ini.h"

#include <algorithm>
#include <climits>
#include <cstdlib>
#include <string>
#include <vector>

#include "platform/file_io.h"

namespace {

constexpr int kMaxLines = 10000;
// Longer keys and values are cut: no row needs more.
constexpr std::size_t kMaxKey = 255;
constexpr std::size_t kMaxValue = 255;

// atoi without its undefined overflow: the value saturates.
int AtoiSaturating(const std::string& text) {
  long long value = std::strtoll(text.c_str(), nullptr, 10);
  return static_cast<int>(std::clamp<long long>(value, INT_MIN, INT_MAX));
}

}  // namespace

int* IniMemberOfRow(INI_VALUES& ini, std::size_t row) {
  int* members[] = {&ini.m_nWindowMode, &ini.m_nColor,   &ini.m_nVSync,          &ini.m_nFrameRate,
                    &ini.m_nShowFps,    &ini.m_nEnglish, &ini.m_nMidiDirectMusic};
  return row < std::size(members) ? members[row] : nullptr;
}

void IniSetDefaults(INI_VALUES& ini, const VECTOR_CLASS<cIni>& rows) {
  ini.m_bDefaulted = 1;
  for (std::size_t row = 0; row < rows.size(); ++row) {
    if (int* member = IniMemberOfRow(ini, row)) *member = rows[row].m_nDefault;
  }
}

int IniRead(const std::filesystem::path& path, INI_VALUES& ini, const VECTOR_CLASS<cIni>& rows) {
  std::vector<unsigned char> bytes;
  if (!ReadWholeFile(path, bytes)) return 0;
  std::size_t pos = 0;
  for (int line = 0; line < kMaxLines; ++line) {
    // The key: up to "=" or the end of the line, without CR, blanks and tabs.
    std::string key;
    bool hasValue = false;
    for (;;) {
      if (pos == bytes.size()) return 0;  // the file ended before "Exit"
      char c = static_cast<char>(bytes[pos++]);
      if (c == '\0') return 1;
      if (c == '=') {
        hasValue = true;
        break;
      }
      if (c == '\n') break;
      if (c == '\r' || c == ' ' || c == '\t') continue;
      if (key.size() < kMaxKey) key += c;
    }
    if (!hasValue) {
      if (key == "Exit") return 1;
      continue;
    }
    // The value: up to a blank, tab, "/", the end of the line or NUL. Whatever follows a
    // blank or "/" is read as the next line's key.
    std::string value;
    while (pos < bytes.size()) {
      char c = static_cast<char>(bytes[pos]);
      if (c == ' ' || c == '\t' || c == '/' || c == '\0') break;
      ++pos;
      if (c == '\n') break;
      if (value.size() < kMaxValue) value += c;
    }
    for (std::size_t row = 0; row < rows.size(); ++row) {
      if (rows[row].m_strKey != key) continue;
      if (int* member = IniMemberOfRow(ini, row)) *member = AtoiSaturating(value);
      break;
    }
  }
  return 1;
}

void LoadSystemIni(const std::filesystem::path& path, INI_VALUES& ini, const VECTOR_CLASS<cIni>& rows) {
  IniSetDefaults(ini, rows);
  if (!IniRead(path, ini, rows)) IniSetDefaults(ini, rows);
}
