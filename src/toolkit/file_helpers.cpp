#include "toolkit/file_helpers.h"

#include <QDir>
#include <algorithm>
#include <filesystem>

#include "platform/cp932.h"
#include "platform/stored_path.h"

namespace {

bool Ask(QWidget* owner, const cFileAsk& ask, std::vector<std::string>& out) {
  out.clear();
  return CurrentPrompt().ChooseFiles(owner, ask, out) && !out.empty();
}

// Offset of the last "." of the file name part, or npos.
std::size_t ExtDot(const std::string& path) {
  const std::size_t name = FileNameOffset(path);
  const std::size_t dot = path.rfind('.');
  return dot == std::string::npos || dot < name ? std::string::npos : dot;
}

bool EqualNoCase(std::string_view a, std::string_view b) {
  return a.size() == b.size() && std::equal(a.begin(), a.end(), b.begin(), [](char x, char y) {
           auto low = [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; };
           return low(x) == low(y);
         });
}

}  // namespace

bool OpenFileDialog(QWidget* owner, std::string& path, const std::string& initialDir, const std::string& title,
                    const std::string& filter, const std::string& defaultExt, bool bMulti,
                    VECTOR_CLASS<std::string>* outFiles) {
  std::vector<std::string> files;
  if (!Ask(owner, {false, bMulti, initialDir, title, filter, defaultExt, {}}, files)) return false;
  path = files.front();
  if (outFiles != nullptr) outFiles->insert(outFiles->end(), files.begin(), files.end());
  return true;
}

bool SaveFileDialog(QWidget* owner, std::string& path, const std::string& initialDir, const std::string& title,
                    const std::string& filter, const std::string& defaultExt, bool bKeep) {
  if (!bKeep) path.clear();
  std::vector<std::string> files;
  if (!Ask(owner, {true, false, initialDir, title, filter, defaultExt, path}, files)) return false;
  path = files.front();
  return true;
}

bool MakeRelative(std::string& path) {
  if (path.empty()) return false;
  const std::filesystem::path p(path);
  if (p.is_relative()) return true;
  std::error_code ec;
  const std::filesystem::path rel = std::filesystem::relative(p, std::filesystem::current_path(ec), ec);
  if (ec || rel.empty()) return false;
  path = rel.string();
  return true;
}

std::string MakeAbsolute(const std::string& path) {
  const std::filesystem::path p(path);
  if (p.is_absolute()) return path;
  std::error_code ec;
  return (std::filesystem::current_path(ec) / p).lexically_normal().string();
}

bool ChangeExt(std::string& out, const std::string& path, const char* ext) {
  const std::size_t dot = ExtDot(path);
  if (dot == std::string::npos) return false;
  out = ext != nullptr ? path.substr(0, dot + 1) + ext : path.substr(0, dot);
  return true;
}

bool HasExt(const std::string& path, const char* ext) {
  const std::size_t dot = ExtDot(path);
  return dot != std::string::npos && ext != nullptr && EqualNoCase(std::string_view(path).substr(dot + 1), ext);
}

void ListFiles(VECTOR_CLASS<std::string>& out, const std::string& dir, const char* ext) {
  std::error_code ec;
  std::vector<std::string> names;
  for (const auto& entry : std::filesystem::directory_iterator(NativePathOf(dir), ec)) {
    if (!entry.is_regular_file(ec)) continue;
    std::string name;
    if (!Utf8ToCp932(entry.path().filename().string(), name) || !HasExt(name, ext)) continue;
    names.push_back(std::move(name));
  }
  std::sort(names.begin(), names.end());
  for (const std::string& name : names) out.push_back(dir + "\\" + name);
}
