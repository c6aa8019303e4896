#pragma once
// The readable form of a record file: one line a field, "name = value", records and
// lists indented below the line that names them, texts in UTF-8 between quotes. The
// same reports always give the same bytes, so that two versions of a file can be
// compared line by line. A large table gives lines by the ten million: they are put
// together in place in a buffer of their own.

#include <cstdio>
#include <string>
#include <vector>

#include "kernel/field_observer.h"

class cFieldTextWriter : public cFieldObserver {
 public:
  explicit cFieldTextWriter(std::FILE* out);
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
  static constexpr std::size_t kBufferBytes = 1 << 20;
  // Enough beyond the indent for a label and a line of values.
  static constexpr std::size_t kLineRoom = 1024;
  static constexpr std::size_t kValuesALine = 16;

  // The text itself, a record whose fields, or a list whose elements are being written.
  // A frame's own label is its parent's item before the parent's next.
  struct cFrame {
    std::span<const std::string_view> names;  // a record's
    std::size_t nNext = 0;  // the index of the next element, or of the next field's name
    int nIndent = 0;        // of the lines of its items
    bool bList = false;
  };

  // Starts the line of the next item at the current depth, its indent and label, with
  // room for the rest of a line; where the line goes on.
  char* StartItem();
  // Opens the frame of the item whose line StartItem has just begun.
  void Push(bool bList, std::span<const std::string_view> names);
  template <class T>
  void Values(std::span<const T> values);
  // Makes room for `bytes` more, writing out what the buffer holds when it must.
  void Room(std::size_t bytes) {
    if (static_cast<std::size_t>(m_end - m_at) < bytes) MakeRoom(bytes);
  }
  void MakeRoom(std::size_t bytes);

  std::FILE* m_out;
  std::vector<char> m_buffer;
  char* m_at;   // the end of the text in the buffer
  char* m_end;  // and of the buffer
  std::vector<cFrame> m_frames{cFrame{}};
  bool m_bWriteFailed = false;
};
