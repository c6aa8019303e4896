#include "platform/cp932.h"

#include <algorithm>
#include <cerrno>
#include <iconv.h>

namespace {

// One descriptor per direction and thread: iconv descriptors carry shift state and are
// not to be shared, and opening one per call is slow. The music thread logs too.
class cIconv {
 public:
  cIconv(const char* to, const char* from) : m_cd(iconv_open(to, from)) {}
  ~cIconv() {
    if (m_cd != reinterpret_cast<iconv_t>(-1)) iconv_close(m_cd);
  }
  cIconv(const cIconv&) = delete;
  cIconv& operator=(const cIconv&) = delete;

  // Converts `in`; on an invalid or unconvertible sequence calls onBad(in, out) which
  // either consumes input (returns true) or gives up (returns false).
  template <class OnBad>
  bool Convert(std::string_view in, std::string& out, OnBad onBad) {
    out.clear();
    if (m_cd == reinterpret_cast<iconv_t>(-1)) return false;
    iconv(m_cd, nullptr, nullptr, nullptr, nullptr);
    char* src = const_cast<char*>(in.data());
    std::size_t srcLeft = in.size();
    char buffer[512];
    while (srcLeft > 0) {
      char* dst = buffer;
      std::size_t dstLeft = sizeof buffer;
      std::size_t r = iconv(m_cd, &src, &srcLeft, &dst, &dstLeft);
      out.append(buffer, dst - buffer);
      if (r != static_cast<std::size_t>(-1)) continue;
      if (errno == E2BIG) continue;
      // EILSEQ or EINVAL (a sequence cut off at the end).
      std::string_view rest(src, srcLeft);
      std::size_t consumed = 0;
      if (!onBad(rest, out, consumed)) return false;
      src += consumed;
      srcLeft -= consumed;
    }
    char* dst = buffer;
    std::size_t dstLeft = sizeof buffer;
    iconv(m_cd, nullptr, nullptr, &dst, &dstLeft);
    out.append(buffer, dst - buffer);
    return true;
  }

 private:
  iconv_t m_cd;
};

cIconv& FromCp932() {
  thread_local cIconv cd("UTF-8", "CP932");
  return cd;
}

cIconv& ToCp932() {
  thread_local cIconv cd("CP932", "UTF-8");
  return cd;
}

bool IsTrailByte(unsigned char c) { return c >= 0x40 && c <= 0xFC && c != 0x7F; }

bool NeedsEscape(unsigned char c) { return c < 0x20 || c == '"' || c == '\\' || c == 0x7F; }

void AppendEscaped(std::string& out, unsigned char c) {
  switch (c) {
    case '"': out += "\\\""; return;
    case '\\': out += "\\\\"; return;
    case '\n': out += "\\n"; return;
    case '\r': out += "\\r"; return;
    case '\t': out += "\\t"; return;
    default: break;
  }
  static constexpr char kHex[] = "0123456789ABCDEF";
  out += "\\x";
  out += kHex[c >> 4];
  out += kHex[c & 15];
}

// The end of the run from `at` in which no byte needs an escape. A double-byte pair is
// kept whole: its trail byte may be 0x5C, which is no backslash there.
std::size_t EndOfPlainRun(std::string_view text, std::size_t at) {
  while (at < text.size()) {
    const auto c = static_cast<unsigned char>(text[at]);
    if (IsLeadByte(c) && at + 1 < text.size() && IsTrailByte(static_cast<unsigned char>(text[at + 1]))) {
      at += 2;
    } else if (c < 0x80 && NeedsEscape(c)) {
      break;
    } else {
      ++at;
    }
  }
  return at;
}

std::size_t Utf8SequenceLength(unsigned char c) {
  if (c < 0x80) return 1;
  if ((c & 0xE0) == 0xC0) return 2;
  if ((c & 0xF0) == 0xE0) return 3;
  if ((c & 0xF8) == 0xF0) return 4;
  return 1;
}

}  // namespace

std::size_t Cp932CharCount(std::string_view text) {
  std::size_t count = 0;
  for (std::size_t i = 0; i < text.size(); ++count) {
    i += (IsLeadByte(static_cast<unsigned char>(text[i])) && i + 1 < text.size()) ? 2 : 1;
  }
  return count;
}

std::size_t Cp932FitBytes(std::string_view text, std::size_t maxBytes) {
  std::size_t i = 0;
  while (i < text.size()) {
    std::size_t step = (IsLeadByte(static_cast<unsigned char>(text[i])) && i + 1 < text.size()) ? 2 : 1;
    if (i + step > maxBytes) break;
    i += step;
  }
  return i;
}

bool Cp932ToUtf8(std::string_view cp932, std::string& out) {
  std::string result;
  auto refuse = [](std::string_view, std::string&, std::size_t&) { return false; };
  if (!FromCp932().Convert(cp932, result, refuse)) return false;
  out = std::move(result);
  return true;
}

bool Utf8ToCp932(std::string_view utf8, std::string& out) {
  std::string result;
  auto refuse = [](std::string_view, std::string&, std::size_t&) { return false; };
  if (!ToCp932().Convert(utf8, result, refuse)) return false;
  out = std::move(result);
  return true;
}

std::string Cp932ToUtf8Lossy(std::string_view cp932) {
  std::string result;
  FromCp932().Convert(cp932, result, [](std::string_view, std::string& out, std::size_t& consumed) {
    out += "\xEF\xBF\xBD";
    consumed = 1;
    return true;
  });
  return result;
}

std::string Utf8ToCp932Lossy(std::string_view utf8) {
  std::string result;
  ToCp932().Convert(utf8, result, [](std::string_view rest, std::string& out, std::size_t& consumed) {
    out += '?';
    consumed = std::min(rest.size(), Utf8SequenceLength(static_cast<unsigned char>(rest[0])));
    return true;
  });
  return result;
}

std::string Cp932QuotedUtf8(std::string_view cp932) {
  std::string out = "\"";
  std::string decoded;
  auto escapeUndecodable = [](std::string_view rest, std::string& to, std::size_t& consumed) {
    const auto lead = static_cast<unsigned char>(rest[0]);
    consumed = IsLeadByte(lead) && rest.size() > 1 && IsTrailByte(static_cast<unsigned char>(rest[1])) ? 2 : 1;
    for (std::size_t i = 0; i < consumed; ++i) AppendEscaped(to, static_cast<unsigned char>(rest[i]));
    return true;
  };
  for (std::size_t at = 0; at < cp932.size();) {
    const std::size_t end = EndOfPlainRun(cp932, at);
    if (end > at) {
      FromCp932().Convert(cp932.substr(at, end - at), decoded, escapeUndecodable);
      out += decoded;
      at = end;
    }
    if (at < cp932.size()) AppendEscaped(out, static_cast<unsigned char>(cp932[at++]));
  }
  out += '"';
  return out;
}

std::string Cp932FromLiteral(const char* utf8) { return Utf8ToCp932Lossy(utf8); }
