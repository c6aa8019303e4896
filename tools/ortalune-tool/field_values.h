#pragma once
// Every value of a describing walk as a flat list of paths and values, such as
// "m_vecSlot[0][2].m_nSkill" and "3": what two readings of the same record are
// compared by. The count of each list, array and vector is an entry of its own, under
// the list's path, as "5 entries". The walk's first record is the root of the paths.

#include <string>
#include <vector>

#include "kernel/field_observer.h"

class cFieldValues : public cFieldObserver {
 public:
  struct cEntry {
    std::string path;
    std::string value;
  };

  const std::vector<cEntry>& Entries() const { return m_entries; }
  void Clear();

  void Number(std::int64_t value) override { Add(std::to_string(value)); }
  void Real(double value) override;
  void Text(std::string_view cp932) override;
  void Numbers(std::span<const std::int32_t> values) override { Values(values); }
  void Numbers(std::span<const std::uint8_t> values) override { Values(values); }
  void Reals(std::span<const double> values) override { Values(values); }
  void BeginList(std::size_t count) override;
  void EndList() override { Close(); }
  void BeginRecord(std::span<const std::string_view> fieldNames) override;
  void EndRecord() override { Close(); }

 private:
  struct cFrame {
    std::size_t nPathLength;  // of the path in front of its items
    bool bList;
    std::size_t nNext;  // the index of the next element, or of the next field's name
    std::span<const std::string_view> names;
  };

  // Puts the next item's label behind the path; gives the length the path had.
  std::size_t Open();
  void Close();
  void Add(std::string value);
  template <class T>
  void Values(std::span<const T> values);

  std::vector<cEntry> m_entries;
  std::vector<cFrame> m_frames;
  std::string m_path;
};

// How a count reads among the values.
std::string EntriesText(std::size_t count);
