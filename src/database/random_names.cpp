#include "database/random_names.h"

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <system_error>
#include <utility>

#include "platform/cp932.h"
#include "platform/stored_path.h"

namespace fs = std::filesystem;

VECTOR_CLASS<std::string> g_vecNameFile;

namespace {

constexpr const char* kNameFolder = "data\\random_name";

unsigned char Fold(unsigned char c) { return (c >= 'A' && c <= 'Z') ? static_cast<unsigned char>(c - 'A' + 'a') : c; }

// Sort weight of a byte, case left out: symbols, digits, letters, then the bytes of
// double-byte text.
int Weight(unsigned char c) {
  c = Fold(c);
  int group = c >= 0x80 ? 3 : (c >= 'a' && c <= 'z') ? 2 : (c >= '0' && c <= '9') ? 1 : 0;
  return group * 256 + c;
}

bool EndsWithTxt(const std::string& name) {
  static constexpr std::string_view kExt = ".txt";
  if (name.size() < kExt.size()) return false;
  for (std::size_t i = 0; i < kExt.size(); ++i) {
    if (Fold(static_cast<unsigned char>(name[name.size() - kExt.size() + i])) != kExt[i]) return false;
  }
  return true;
}

std::string Numbered(const char* format, std::size_t number, const std::string& rest = {}) {
  char buffer[32];
  std::snprintf(buffer, sizeof buffer, format, static_cast<int>(number));
  return buffer + rest;
}

}  // namespace

int CompareNameOrder(std::string_view a, std::string_view b) {
  std::size_t n = std::min(a.size(), b.size());
  for (std::size_t i = 0; i < n; ++i) {
    int wa = Weight(static_cast<unsigned char>(a[i])), wb = Weight(static_cast<unsigned char>(b[i]));
    if (wa != wb) return wa < wb ? -1 : 1;
  }
  if (a.size() != b.size()) return a.size() < b.size() ? -1 : 1;
  for (std::size_t i = 0; i < n; ++i) {
    if (a[i] != b[i]) return a[i] > b[i] ? -1 : 1;  // equal but for case: lower case first
  }
  return 0;
}

void BuildNameFileListFrom(VECTOR_CLASS<std::string>& list, std::vector<std::string> fileNames) {
  list.clear();
  // An exchange sort, as the names have always been ordered; the lists are short.
  for (std::size_t i = 0; i < fileNames.size(); ++i) {
    for (std::size_t j = i + 1; j < fileNames.size(); ++j) {
      if (CompareNameOrder(fileNames[i], fileNames[j]) > 0) std::swap(fileNames[i], fileNames[j]);
    }
  }
  for (std::size_t i = 0; i < fileNames.size(); ++i) {
    const std::string& name = fileNames[i];
    std::string prefix = Numbered("RandomName%.3d_", i);
    if (name.compare(0, prefix.size(), prefix) != 0) break;
    std::string title = name.substr(prefix.size());
    std::size_t dot = title.rfind('.');
    if (dot != std::string::npos) title.erase(dot);
    list.push_back(Numbered("%.3d ", i, title));
  }
  if (list.empty()) list.push_back(CP932_TEXT("！ファイルが不正です"));
}

void BuildNameFileList(VECTOR_CLASS<std::string>& list) {
  std::vector<std::string> names;
  std::error_code ec;
  for (fs::directory_iterator it(NativePathOf(kNameFolder), ec), end; !ec && it != end; it.increment(ec)) {
    std::error_code typeError;
    if (!it->is_regular_file(typeError)) continue;
    std::string name;
    // A name without a CP932 form could not be named by the game either.
    if (!Utf8ToCp932(it->path().filename().string(), name) || !EndsWithTxt(name)) continue;
    names.push_back(std::move(name));
  }
  BuildNameFileListFrom(list, std::move(names));
}
