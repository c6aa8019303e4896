#include "field_values.h"

#include <charconv>

#include "platform/cp932.h"

std::string EntriesText(std::size_t count) { return std::to_string(count) + (count == 1 ? " entry" : " entries"); }

void cFieldValues::Clear() {
  m_entries.clear();
  m_frames.clear();
  m_path.clear();
}

std::size_t cFieldValues::Open() {
  const std::size_t length = m_path.size();
  cFrame& top = m_frames.back();
  const std::size_t index = top.nNext++;
  if (top.bList) {
    m_path += '[' + std::to_string(index) + ']';
  } else {
    if (!m_path.empty()) m_path += '.';
    m_path += index < top.names.size() ? top.names[index] : std::string_view("(unnamed)");
  }
  return length;
}

void cFieldValues::Close() {
  m_path.resize(m_frames.back().nPathLength);
  m_frames.pop_back();
}

void cFieldValues::Add(std::string value) {
  const std::size_t length = Open();
  m_entries.push_back({m_path, std::move(value)});
  m_path.resize(length);
}

void cFieldValues::Real(double value) {
  char text[32];
  auto [end, error] = std::to_chars(text, text + sizeof text, value);
  Add(std::string(text, end));
}

void cFieldValues::Text(std::string_view cp932) { Add(Cp932QuotedUtf8(cp932)); }

template <class T>
void cFieldValues::Values(std::span<const T> values) {
  BeginList(values.size());
  for (T value : values) {
    if constexpr (std::is_floating_point_v<T>) {
      Real(value);
    } else {
      Number(value);
    }
  }
  EndList();
}

void cFieldValues::BeginList(std::size_t count) {
  const std::size_t length = Open();
  m_entries.push_back({m_path, EntriesText(count)});
  m_frames.push_back({length, true, 0, {}});
}

void cFieldValues::BeginRecord(std::span<const std::string_view> fieldNames) {
  const std::size_t length = m_frames.empty() ? 0 : Open();
  m_frames.push_back({length, false, 0, fieldNames});
}
