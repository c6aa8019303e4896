#include "platform/stored_path.h"

#include <system_error>
#include <vector>

#include "platform/cp932.h"

namespace fs = std::filesystem;

std::size_t FileNameOffset(std::string_view stored) {
  std::size_t after = 0;
  for (std::size_t i = 0; i < stored.size();) {
    unsigned char c = static_cast<unsigned char>(stored[i]);
    if (IsLeadByte(c) && i + 1 < stored.size()) {
      i += 2;
      continue;
    }
    if (c == '\\' || c == '/') after = i + 1;
    ++i;
  }
  return after;
}

std::string FileNameOf(std::string_view stored) { return std::string(stored.substr(FileNameOffset(stored))); }

std::string DirOf(std::string_view stored) {
  std::size_t offset = FileNameOffset(stored);
  return offset == 0 ? std::string() : std::string(stored.substr(0, offset - 1));
}

namespace {

char FoldAscii(char c) { return (c >= 'A' && c <= 'Z') ? static_cast<char>(c - 'A' + 'a') : c; }

bool EqualIgnoringCase(std::string_view a, std::string_view b) {
  if (a.size() != b.size()) return false;
  for (std::size_t i = 0; i < a.size(); ++i) {
    if (FoldAscii(a[i]) != FoldAscii(b[i])) return false;
  }
  return true;
}

// The entry of `dir` named `name`: the exact one if it exists, else the first whose
// name equals it ignoring ASCII case, else `name` itself.
std::string ResolveComponent(const fs::path& dir, const std::string& name) {
  std::error_code ec;
  if (name == "." || name == ".." || fs::exists(dir / name, ec)) return name;
  for (fs::directory_iterator it(dir.empty() ? fs::path(".") : dir, ec), end; !ec && it != end; it.increment(ec)) {
    std::string entry = it->path().filename().string();
    if (EqualIgnoringCase(entry, name)) return entry;
  }
  return name;
}

std::string g_aliasFrom;
std::string g_aliasTo;

}  // namespace

void SetStoredPathAlias(const std::string& from, const std::string& to) {
  g_aliasFrom = from;
  g_aliasTo = to;
}

fs::path NativePathOf(std::string_view stored, const fs::path& root) {
  std::string text = Cp932ToUtf8Lossy(stored);
  std::vector<std::string> parts;
  std::string part;
  for (char c : text) {
    if (c == '\\' || c == '/') {
      parts.push_back(std::move(part));
      part.clear();
    } else {
      part += c;
    }
  }
  parts.push_back(std::move(part));

  bool absolute = !text.empty() && (text[0] == '/' || text[0] == '\\');
  if (!absolute && !g_aliasFrom.empty() && EqualIgnoringCase(parts.front(), g_aliasFrom)) parts.front() = g_aliasTo;
  fs::path result = absolute ? fs::path("/") : root;
  for (const std::string& component : parts) {
    if (component.empty()) continue;
    result /= ResolveComponent(result, component);
  }
  return result;
}

fs::path NativePathOf(std::string_view stored) {
  std::error_code ec;
  fs::path root = fs::current_path(ec);
  return NativePathOf(stored, ec ? fs::path(".") : root);
}

bool StoredPathOf(const fs::path& native, const fs::path& root, std::string& stored) {
  std::error_code ec;
  fs::path absRoot = fs::absolute(root, ec).lexically_normal();
  fs::path absPath = fs::absolute(native, ec).lexically_normal();
  if (ec) return false;
  fs::path relative = absPath.lexically_relative(absRoot);
  if (relative.empty() || *relative.begin() == "..") return false;
  std::string utf8;
  for (const fs::path& component : relative) {
    if (component == ".") continue;
    if (!utf8.empty()) utf8 += '\\';
    utf8 += component.string();
  }
  return Utf8ToCp932(utf8, stored);
}
