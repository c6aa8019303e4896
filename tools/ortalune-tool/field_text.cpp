#include "field_text.h"

#include <charconv>
#include <cstring>

#include "platform/cp932.h"

namespace {

// A walk with more reports than names would be a defect of the kernel; the line says so
// rather than read past the names.
constexpr std::string_view kNoName = "(unnamed)";

std::string_view NameAt(std::span<const std::string_view> names, std::size_t index) {
  return index < names.size() ? names[index] : kNoName;
}

std::string IndexLabel(std::size_t index) { return "[" + std::to_string(index) + "]"; }

// Lines come by the ten million. They are put together through a local cursor, which
// the compiler keeps in a register, and their short pieces go in a few moves of fixed
// size that need no call; the room for them is made once a line.
constexpr std::size_t kIndentSteps = 64;
constexpr char kSpaces[kIndentSteps + 1] = "                                                                ";

[[gnu::always_inline]] inline char* PutIndent(char* at, std::size_t indent) {
  if (indent <= kIndentSteps) {
    std::memcpy(at, kSpaces, kIndentSteps);
  } else {
    std::memset(at, ' ', indent);
  }
  return at + indent;
}

// Two overlapping moves cover anything from 4 to 32 bytes without reading past `text`.
[[gnu::always_inline]] inline char* Put(char* at, std::string_view text) {
  const char* from = text.data();
  const std::size_t n = text.size();
  if (n > 32) {
    std::memcpy(at, from, n);
  } else if (n >= 16) {
    std::memcpy(at, from, 16);
    std::memcpy(at + n - 16, from + n - 16, 16);
  } else if (n >= 8) {
    std::memcpy(at, from, 8);
    std::memcpy(at + n - 8, from + n - 8, 8);
  } else if (n >= 4) {
    std::memcpy(at, from, 4);
    std::memcpy(at + n - 4, from + n - 4, 4);
  } else {
    for (std::size_t i = 0; i < n; ++i) at[i] = from[i];
  }
  return at + n;
}

template <class T>
[[gnu::always_inline]] inline char* PutValue(char* at, T value) {
  if constexpr (std::is_integral_v<T>) {
    if (value >= 0 && value < 10) {  // the most of them in any table
      *at = static_cast<char>('0' + static_cast<int>(value));
      return at + 1;
    }
  }
  return std::to_chars(at, at + 32, value).ptr;
}

template <class T>
char* PutIndex(char* at, T index) {
  *at = '[';
  at = PutValue(at + 1, index);
  *at = ']';
  return at + 1;
}

}  // namespace

cFieldTextWriter::cFieldTextWriter(std::FILE* out)
    : m_out(out), m_buffer(kBufferBytes), m_at(m_buffer.data()), m_end(m_at + m_buffer.size()) {
  m_frames.reserve(64);
}

void cFieldTextWriter::MakeRoom(std::size_t bytes) {
  Flush();
  if (m_buffer.size() < bytes) {
    m_buffer.resize(bytes);
    m_at = m_buffer.data();
    m_end = m_at + m_buffer.size();
  }
}

bool cFieldTextWriter::Flush() {
  const std::size_t size = static_cast<std::size_t>(m_at - m_buffer.data());
  if (size > 0 && std::fwrite(m_buffer.data(), 1, size, m_out) != size) m_bWriteFailed = true;
  m_at = m_buffer.data();
  if (std::fflush(m_out) != 0) m_bWriteFailed = true;
  return !m_bWriteFailed;
}

void cFieldTextWriter::Line(std::string_view text) {
  Room(text.size() + 1);
  char* at = Put(m_at, text);
  *at++ = '\n';
  m_at = at;
}

std::string cFieldTextWriter::Where() const {
  std::string where;
  // Below the text itself and the top record or list: each frame's item before its
  // next, and the innermost frame's next.
  for (std::size_t depth = 2; depth <= m_frames.size(); ++depth) {
    const cFrame& frame = m_frames[depth - 1];
    const std::size_t item = depth < m_frames.size() ? frame.nNext - 1 : frame.nNext;
    if (frame.bList) {
      where += IndexLabel(item);
    } else {
      if (!where.empty()) where += '.';
      where += NameAt(frame.names, item);
    }
  }
  return where;
}

[[gnu::always_inline]] inline char* cFieldTextWriter::StartItem() {
  cFrame& top = m_frames.back();
  const auto indent = static_cast<std::size_t>(top.nIndent);
  Room(indent + kLineRoom);
  char* at = PutIndent(m_at, indent);
  return top.bList ? PutIndex(at, top.nNext++) : Put(at, NameAt(top.names, top.nNext++));
}

void cFieldTextWriter::Push(bool bList, std::span<const std::string_view> names) {
  const int indent = m_frames.back().nIndent + 2;
  m_frames.push_back({names, 0, indent, bList});
}

void cFieldTextWriter::Number(std::int64_t value) {
  char* at = Put(StartItem(), " = ");
  at = PutValue(at, value);
  *at++ = '\n';
  m_at = at;
}

void cFieldTextWriter::Real(double value) {
  char* at = Put(StartItem(), " = ");
  at = PutValue(at, value);
  *at++ = '\n';
  m_at = at;
}

void cFieldTextWriter::Text(std::string_view cp932) {
  const std::string quoted = Cp932QuotedUtf8(cp932);
  m_at = Put(StartItem(), " = ");
  Room(quoted.size() + 1);
  char* at = Put(m_at, quoted);
  *at++ = '\n';
  m_at = at;
}

// Short ones on the line of their name; long ones, such as a map, below it in lines of
// a fixed number of values, each led by the index of its first, so that a change shows
// as the change of one line.
template <class T>
void cFieldTextWriter::Values(std::span<const T> values) {
  using Shown = std::conditional_t<std::is_floating_point_v<T>, double, std::int64_t>;
  const auto indent = static_cast<std::size_t>(m_frames.back().nIndent);
  char* at = Put(StartItem(), " = [");
  if (values.size() <= kValuesALine) {
    for (std::size_t i = 0; i < values.size(); ++i) {
      if (i > 0) *at++ = ' ';
      at = PutValue(at, static_cast<Shown>(values[i]));
    }
    *at++ = ']';
    *at++ = '\n';
    m_at = at;
    return;
  }
  at = Put(PutValue(at, values.size()), " values]\n");
  for (std::size_t first = 0; first < values.size(); first += kValuesALine) {
    m_at = at;
    Room(indent + kLineRoom);
    at = PutIndex(PutIndent(m_at, indent + 2), first);
    for (std::size_t i = first; i < values.size() && i < first + kValuesALine; ++i) {
      *at++ = ' ';
      at = PutValue(at, static_cast<Shown>(values[i]));
    }
    *at++ = '\n';
  }
  m_at = at;
}

// The record of a file of one record, and the rows of a file of a list, stand at the
// left margin below the text's first lines.
void cFieldTextWriter::BeginList(std::size_t count) {
  if (m_frames.size() == 1) {
    Room(kLineRoom);
    m_at = Put(PutValue(m_at, count), " records\n");
    m_frames.emplace_back().bList = true;
    return;
  }
  char* at = Put(StartItem(), " (");
  Push(true, {});
  at = PutValue(at, count);
  *at++ = ')';
  *at++ = '\n';
  m_at = at;
}

void cFieldTextWriter::BeginRecord(std::span<const std::string_view> fieldNames) {
  if (m_frames.size() == 1) {
    m_frames.emplace_back().names = fieldNames;
    return;
  }
  char* at = StartItem();
  Push(false, fieldNames);
  *at++ = '\n';
  m_at = at;
}
