#pragma once
// What a describing walk (SERIAL_DESCRIBE) tells of a record file: every field as the
// walk reads it, in the walk's order. A record starts with the names of its fields, the
// walk's own, in the order of the reports that follow; the elements of a list have no
// names, they are known by their place.

#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>

class cFieldObserver {
 public:
  virtual ~cFieldObserver() = default;

  virtual void Number(std::int64_t value) = 0;
  virtual void Real(double value) = 0;
  virtual void Text(std::string_view cp932) = 0;
  // A fixed array or a vector of plain values, whole.
  virtual void Numbers(std::span<const std::int32_t> values) = 0;
  virtual void Numbers(std::span<const std::uint8_t> values) = 0;
  virtual void Reals(std::span<const double> values) = 0;

  // A list of `count` elements, each reported in turn before the list ends; the fields
  // of a record, likewise, one report a name. The names last as long as the program. A
  // walk that stops at a damaged field leaves its lists and records open.
  virtual void BeginList(std::size_t count) = 0;
  virtual void EndList() = 0;
  virtual void BeginRecord(std::span<const std::string_view> fieldNames) = 0;
  virtual void EndRecord() = 0;
};
