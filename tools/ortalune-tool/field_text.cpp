#include "field_text.h"

#include <charconv>

#include "platform/cp932.h"

void cFieldTextWriter::Line(std::string_view text) {
  m_buffer += text;
  EndLine();
}

bool cFieldTextWriter::Flush() {
  if (!m_buffer.empty() && std::fwrite(m_buffer.data(), 1, m_buffer.size(), m_out) != m_buffer.size()) {
    m_bWriteFailed = true;
  }
  m_buffer.clear();
  if (std::fflush(m_out) != 0) m_bWriteFailed = true;
  return !m_bWriteFailed;
}

namespace {

// A walk with more reports than names would be a defect of the kernel; the line says so
// rather than read past the names.
constexpr std::string_view kNoName = "(unnamed)";

std::string_view NameAt(std::span<const std::string_view> names, std::size_t index) {
  return index < names.size() ? names[index] : kNoName;
}

}  // namespace

std::string cFieldTextWriter::Where() const {
  std::string where;
  auto add = [&where](std::string_view label) {
    if (label.empty()) return;
    if (label.front() != '[' && !where.empty()) where += '.';
    where += label;
  };
  for (const cFrame& frame : m_frames) add(frame.label);
  const cFrame& top = m_frames.back();
  add(top.bList ? "[" + std::to_string(top.nNext) + "]" : std::string(NameAt(top.names, top.nNext)));
  return where;
}

void cFieldTextWriter::StartItem() {
  cFrame& top = m_frames.back();
  m_buffer.append(static_cast<std::size_t>(top.nIndent), ' ');
  m_labelStart = m_buffer.size();
  if (top.bList) {
    m_buffer += '[';
    AppendValue(top.nNext++);
    m_buffer += ']';
  } else {
    m_buffer += NameAt(top.names, top.nNext++);
  }
}

void cFieldTextWriter::Push(bool bList, std::span<const std::string_view> names) {
  cFrame frame;
  frame.label = m_buffer.substr(m_labelStart);
  frame.bList = bList;
  frame.nIndent = m_frames.back().nIndent + 2;
  frame.names = names;
  m_frames.push_back(std::move(frame));
}

void cFieldTextWriter::EndLine() {
  m_buffer += '\n';
  if (m_buffer.size() >= kFlushBytes) Flush();
}

template <class T>
void cFieldTextWriter::AppendValue(T value) {
  char text[32];
  auto [end, error] = std::to_chars(text, text + sizeof text, value);
  m_buffer.append(text, end);
}

void cFieldTextWriter::Number(std::int64_t value) {
  StartItem();
  m_buffer += " = ";
  AppendValue(value);
  EndLine();
}

void cFieldTextWriter::Real(double value) {
  StartItem();
  m_buffer += " = ";
  AppendValue(value);
  EndLine();
}

void cFieldTextWriter::Text(std::string_view cp932) {
  StartItem();
  m_buffer += " = ";
  m_buffer += Cp932QuotedUtf8(cp932);
  EndLine();
}

// Short ones on the line of their name; long ones, such as a map, below it in lines of
// a fixed number of values, each led by the index of its first, so that a change shows
// as the change of one line.
template <class T>
void cFieldTextWriter::Values(std::span<const T> values) {
  using Shown = std::conditional_t<std::is_floating_point_v<T>, double, std::int64_t>;
  const int indent = m_frames.back().nIndent;
  StartItem();
  m_buffer += " = [";
  if (values.size() <= kValuesALine) {
    for (std::size_t i = 0; i < values.size(); ++i) {
      if (i > 0) m_buffer += ' ';
      AppendValue(static_cast<Shown>(values[i]));
    }
    m_buffer += ']';
    EndLine();
    return;
  }
  AppendValue(values.size());
  m_buffer += " values]";
  EndLine();
  for (std::size_t first = 0; first < values.size(); first += kValuesALine) {
    m_buffer.append(static_cast<std::size_t>(indent + 2), ' ');
    m_buffer += '[';
    AppendValue(first);
    m_buffer += ']';
    for (std::size_t i = first; i < values.size() && i < first + kValuesALine; ++i) {
      m_buffer += ' ';
      AppendValue(static_cast<Shown>(values[i]));
    }
    EndLine();
  }
}

// The record of a file of one record, and the rows of a file of a list, stand at the
// left margin below the text's first lines.
void cFieldTextWriter::BeginList(std::size_t count) {
  if (m_frames.size() == 1) {
    AppendValue(count);
    m_buffer += " records";
    EndLine();
    m_frames.emplace_back().bList = true;
    return;
  }
  StartItem();
  Push(true, {});
  m_buffer += " (";
  AppendValue(count);
  m_buffer += ')';
  EndLine();
}

void cFieldTextWriter::BeginRecord(std::span<const std::string_view> fieldNames) {
  if (m_frames.size() == 1) {
    m_frames.emplace_back().names = fieldNames;
    return;
  }
  StartItem();
  Push(false, fieldNames);
  EndLine();
}
