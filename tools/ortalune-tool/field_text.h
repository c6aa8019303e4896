#pragma once
// The readable form of a record file: one line a field, "name = value", records and
// lists indented below the line that names them, texts in UTF-8 between quotes. The
// same reports always give the same bytes, so that two versions of a file can be
// compared line by line.

#include <cstdio>
#include <string>
#include <vector>

#include "kernel/field_observer.h"

class cFieldTextWriter : public cFieldObserver {
 public:
  explicit cFieldTextWriter(std::FILE* out) : m_out(out) { m_buffer.reserve(kFlushBytes + 4096); }
  ~cFieldTextWriter() override { Flush(); }
  cFieldTextWriter(const cFieldTextWriter&) = delete;
  cFieldTextWriter& operator=(const cFieldTextWriter&) = delete;

  // A line of its own at the left margin, such as the file's version.
  void Line(std::string_view text);
  // False when the output could not be written.
  bool Flush();
  // The field being read now, or the one a walk stopped at: "[3].m_vecSlot[0].m_nSkill".
  std::string Where() const;

  void Number(std::int64_t value) override;
  void Real(double value) override;
  void Text(std::string_view cp932) override;
  void Numbers(std::span<const std::int32_t> values) override { Values(values); }
  void Numbers(std::span<const std::uint8_t> values) override { Values(values); }
  void Reals(std::span<const double> values) override { Values(values); }
  void BeginList(std::size_t count) override;
  void EndList() override { m_frames.pop_back(); }
  void BeginRecord(std::span<const std::string_view> fieldNames) override;
  void EndRecord() override { m_frames.pop_back(); }

 private:
  static constexpr std::size_t kFlushBytes = 1 << 20;
  static constexpr std::size_t kValuesALine = 16;

  // The text itself, a record whose fields, or a list whose elements are being written.
  struct cFrame {
    std::string label;  // how its parent calls it: "m_vecSlot" or "[2]"; empty at the top
    bool bList = false;
    int nIndent = 0;  // of the lines of its items
    std::size_t nNext = 0;  // the index of the next element, or of the next field's name
    std::span<const std::string_view> names;
  };

  // Starts the line of the next item at the current depth: its indent and label.
  void StartItem();
  // Opens the frame of the item whose line StartItem has just begun.
  void Push(bool bList, std::span<const std::string_view> names);
  template <class T>
  void Values(std::span<const T> values);
  template <class T>
  void AppendValue(T value);
  void EndLine();

  std::FILE* m_out;
  std::string m_buffer;
  std::vector<cFrame> m_frames{cFrame{}};
  std::size_t m_labelStart = 0;  // where the label of the line being written starts
  bool m_bWriteFailed = false;
};
