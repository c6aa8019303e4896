#pragma once
// The field functions of the record walk. Each handles one kind of field for all eight
// operations and returns 1, or 0 on a difference while comparing or on a file that
// cannot deliver the field while reading or describing, or 2 at once when the walk asks
// for the names of its fields. Integers and doubles are stored little-endian exactly as
// they lie in memory; counts are u32 in front of elements. Describing reads a field
// exactly as reading does, and then reports what it read.

#include <bit>
#include <algorithm>
#include <cstdint>
#include <cstring>
#include <map>
#include <span>
#include <string>
#include <type_traits>

#include "kernel/field_observer.h"
#include "kernel/serial.h"
#include "kernel/vector_class.h"

static_assert(std::endian::native == std::endian::little, "record files are little-endian as memory is");
static_assert(sizeof(int) == 4 && sizeof(double) == 8, "record fields assume 32-bit int and 64-bit double");

namespace serial_detail {

// What a describing walk reports of plain values.
inline void ReportValues(cSerialFile* file, std::span<const std::int32_t> values) { file->Observer()->Numbers(values); }
inline void ReportValues(cSerialFile* file, std::span<const std::uint8_t> values) { file->Observer()->Numbers(values); }
inline void ReportValues(cSerialFile* file, std::span<const double> values) { file->Observer()->Reals(values); }
// Pairs of two 32-bit values, such as positions: a list of two-number elements.
template <class Pair>
void ReportValues(cSerialFile* file, std::span<const Pair> pairs) {
  static_assert(sizeof(Pair) == 2 * sizeof(std::int32_t) && std::is_trivially_copyable_v<Pair>);
  cFieldObserver& observer = *file->Observer();
  observer.BeginList(pairs.size());
  for (const Pair& pair : pairs) {
    std::int32_t halves[2];
    std::memcpy(halves, &pair, sizeof halves);
    observer.Numbers(std::span<const std::int32_t>(halves));
  }
  observer.EndList();
}

// The operations of a scalar field that run once per record and action: resetting,
// copying, comparing, normalising; and describing, once per field of a readable file.
template <class T>
[[gnu::noinline]] int ScalarRest(int op, T& field, const T* other, cSerialFile* file) {
  switch (op) {
    case SERIAL_INIT: field = T{}; return 1;
    case SERIAL_COPY: if (other != nullptr) field = *other; return 1;
    case SERIAL_COMPARE: return other == nullptr || field == *other;
    case SERIAL_NAME: return 2;
    case SERIAL_DESCRIBE:
      if (!file->ReadValue(field)) return 0;
      if constexpr (std::is_floating_point_v<T>) {
        file->Observer()->Real(field);
      } else {
        file->Observer()->Number(field);
      }
      return 1;
    default: return 1;
  }
}

// Reading and writing are inlined into every walk: they are a handful of instructions,
// and the places of every character alone run them tens of millions of times in a large
// project.
template <class T>
[[gnu::always_inline]] inline int Scalar(int op, T& field, const T* other, cSerialFile* file) {
  if (op == SERIAL_READ) return file->ReadValue(field);
  if (op == SERIAL_WRITE) {
    file->WriteValue(field);
    return 1;
  }
  return ScalarRest(op, field, other, file);
}

// Describing stands out of line, so that the reading and writing beside it are
// compiled as they were before there was any describing.
template <class T>
[[gnu::noinline]] int DescribePlainArray(T* field, std::size_t n, cSerialFile* file) {
  if (!file->Read(field, n * sizeof(T))) return 0;
  ReportValues(file, std::span<const T>(field, n));
  return 1;
}

template <class T>
int PlainArray(int op, T* field, const T* other, int count, cSerialFile* file) {
  std::size_t n = count > 0 ? static_cast<std::size_t>(count) : 0;
  switch (op) {
    case SERIAL_INIT: for (std::size_t i = 0; i < n; ++i) field[i] = T{}; return 1;
    case SERIAL_COPY: if (other != nullptr) for (std::size_t i = 0; i < n; ++i) field[i] = other[i]; return 1;
    case SERIAL_COMPARE:
      if (other != nullptr) for (std::size_t i = 0; i < n; ++i) if (!(field[i] == other[i])) return 0;
      return 1;
    case SERIAL_READ: return file->Read(field, n * sizeof(T));
    case SERIAL_WRITE: file->Write(field, n * sizeof(T)); return 1;
    case SERIAL_DESCRIBE: return DescribePlainArray(field, n, file);
    case SERIAL_NAME: return 2;
    default: return 1;
  }
}

// Reads a stored element count. A count that the rest of the file cannot hold, at
// `minBytesEach` bytes an element, fails the file, so that nothing is allocated beyond
// what the file could describe.
bool FailCountTooLarge(cSerialFile* file);  // always false
[[gnu::always_inline]] inline bool ReadCount(cSerialFile* file, std::size_t minBytesEach, std::uint32_t& count) {
  if (!file->ReadValue(count)) return false;
  // Counts are 32-bit and element sizes small: the product cannot overflow, and it
  // spares a division on every vector of every record. Most counts are 0 and need no
  // test at all.
  if (count != 0 && static_cast<std::uint64_t>(count) * minBytesEach > file->Remaining()) {
    return FailCountTooLarge(file);
  }
  return true;
}
inline void WriteCount(cSerialFile* file, std::size_t count) { file->WriteValue(static_cast<std::uint32_t>(count)); }

template <class T>
int PlainVector(int op, VECTOR_CLASS<T>& field, const VECTOR_CLASS<T>* other, cSerialFile* file);

template <class T>
[[gnu::noinline]] int DescribePlainVector(VECTOR_CLASS<T>& field, cSerialFile* file) {
  if (!PlainVector<T>(SERIAL_READ, field, nullptr, file)) return 0;
  ReportValues(file, std::span<const T>(field.data(), field.size()));
  return 1;
}

// A vector of plain elements stored back to back: integers, bytes, pairs.
template <class T>
int PlainVector(int op, VECTOR_CLASS<T>& field, const VECTOR_CLASS<T>* other, cSerialFile* file) {
  static_assert(std::is_trivially_copyable_v<T>);
  switch (op) {
    case SERIAL_INIT: field.clear(); return 1;
    case SERIAL_COPY: if (other != nullptr) field.assign(other->begin(), other->end()); return 1;
    case SERIAL_COMPARE:
      if (other == nullptr) return 1;
      return field.size() == other->size() &&
             (field.empty() || std::memcmp(field.data(), other->data(), field.size() * sizeof(T)) == 0);
    case SERIAL_READ: {
      std::uint32_t n = 0;
      if (!ReadCount(file, sizeof(T), n)) return 0;
      field.clear();
      field.resize(n);
      return file->Read(field.data(), n * sizeof(T));
    }
    case SERIAL_WRITE:
      WriteCount(file, field.size());
      file->Write(field.data(), field.size() * sizeof(T));
      return 1;
    case SERIAL_DESCRIBE: return DescribePlainVector(field, file);
    case SERIAL_NAME: return 2;
    default: return 1;
  }
}

}  // namespace serial_detail

[[gnu::always_inline]] inline int SerialInt(int op, std::int32_t& f, const std::int32_t* o, cSerialFile* file) { return serial_detail::Scalar(op, f, o, file); }
[[gnu::always_inline]] inline int SerialInt(int op, std::uint32_t& f, const std::uint32_t* o, cSerialFile* file) { return serial_detail::Scalar(op, f, o, file); }
[[gnu::always_inline]] inline int SerialShort(int op, std::int16_t& f, const std::int16_t* o, cSerialFile* file) { return serial_detail::Scalar(op, f, o, file); }
[[gnu::always_inline]] inline int SerialShort(int op, std::uint16_t& f, const std::uint16_t* o, cSerialFile* file) { return serial_detail::Scalar(op, f, o, file); }
[[gnu::always_inline]] inline int SerialByte(int op, std::int8_t& f, const std::int8_t* o, cSerialFile* file) { return serial_detail::Scalar(op, f, o, file); }
[[gnu::always_inline]] inline int SerialByte(int op, std::uint8_t& f, const std::uint8_t* o, cSerialFile* file) { return serial_detail::Scalar(op, f, o, file); }
// Equality of doubles is `==`: +0.0 equals -0.0 and a NaN equals nothing.
[[gnu::always_inline]] inline int SerialDouble(int op, double& f, const double* o, cSerialFile* file) { return serial_detail::Scalar(op, f, o, file); }

// Fixed arrays: count elements in one piece, no count stored.
inline int SerialIntArray(int op, std::int32_t* f, const std::int32_t* o, int count, cSerialFile* file) {
  return serial_detail::PlainArray(op, f, o, count, file);
}
inline int SerialDoubleArray(int op, double* f, const double* o, int count, cSerialFile* file) {
  return serial_detail::PlainArray(op, f, o, count, file);
}

// Text: u32 length counting the NUL, then the bytes and the NUL; an empty text is the
// length 1 alone. A write stops at the first NUL; normalising removes every CR.
int SerialString(int op, std::string& f, const std::string* o, cSerialFile* file);

inline int SerialIntVector(int op, VECTOR_CLASS<std::int32_t>& f, const VECTOR_CLASS<std::int32_t>* o, cSerialFile* file) {
  return serial_detail::PlainVector(op, f, o, file);
}
inline int SerialByteVector(int op, VECTOR_CLASS<std::uint8_t>& f, const VECTOR_CLASS<std::uint8_t>* o, cSerialFile* file) {
  return serial_detail::PlainVector(op, f, o, file);
}
// Elements of 8 bytes, such as a pair of two 32-bit coordinates.
template <class T>
int SerialPairVector(int op, VECTOR_CLASS<T>& f, const VECTOR_CLASS<std::type_identity_t<T>>* o, cSerialFile* file) {
  static_assert(sizeof(T) == 8, "pair elements are 8 bytes on disk");
  return serial_detail::PlainVector(op, f, o, file);
}

int SerialVectorVector(int op, VECTOR_CLASS<VECTOR_CLASS<std::int32_t>>& f,
                       const VECTOR_CLASS<VECTOR_CLASS<std::int32_t>>* o, cSerialFile* file);
int SerialVectorArray(int op, VECTOR_CLASS<std::int32_t>* f, const VECTOR_CLASS<std::int32_t>* o, int count,
                      cSerialFile* file);
int SerialStringVector(int op, VECTOR_CLASS<std::string>& f, const VECTOR_CLASS<std::string>* o, cSerialFile* file);

// Load and Save of a record held by value, in a field, an array or a vector, and so of
// exactly its declared class T: the calls go straight to T's own functions rather than
// through the virtual table, which counts with the millions of places of a large
// project. A class that keeps the base Load or Save gets its walk called directly.
template <class T>
int LoadHeldRecord(T& record, cSerialFile* file) {
  if constexpr (std::is_same_v<decltype(&T::Load), int (cSerial::*)(cSerialFile*)>) {
    record.T::Serialize(SERIAL_READ, nullptr, file, g_nFileVersion);
    return record.FinishLoad(file);
  } else {
    return record.T::Load(file);
  }
}

template <class T>
int SaveHeldRecord(T& record, cSerialFile* file) {
  if constexpr (std::is_same_v<decltype(&T::Save), int (cSerial::*)(cSerialFile*)>) {
    record.T::Serialize(SERIAL_WRITE, nullptr, file, g_nCurVersion);
    return 1;
  } else {
    return record.T::Save(file);
  }
}

// The names of the fields of class T at a version, in the order of its walk. They are
// the same for every record of the class, and asked for once.
template <class T>
std::span<const std::string_view> FieldNamesOf(T& record, std::uint32_t version) {
  static const std::vector<std::string_view>* last = nullptr;
  static std::uint32_t lastVersion = 0;
  if (last != nullptr && version == lastVersion) return *last;
  static std::map<std::uint32_t, std::vector<std::string_view>> byVersion;
  auto it = byVersion.find(version);
  if (it == byVersion.end()) it = byVersion.emplace(version, SerialFieldNames(record, version)).first;
  last = &it->second;
  lastVersion = version;
  return *last;
}

// Describing a record held by value: its own walk alone, at the version of the file,
// with neither the migrations nor the clamps of its Load, so that what is reported is
// what the file holds.
template <class T>
[[gnu::noinline]] int DescribeHeldRecord(T& record, cSerialFile* file) {
  file->Observer()->BeginRecord(FieldNamesOf(record, file->Version()));
  if (!record.T::Serialize(SERIAL_DESCRIBE, nullptr, file, file->Version())) return 0;
  file->Observer()->EndRecord();
  return 1;
}

// A nested record: its own Load and Save stream, so its migrations and clamps run.
template <class T>
int SerialRecord(int op, T& f, const std::type_identity_t<T>* o, cSerialFile* file) {
  switch (op) {
    case SERIAL_INIT: f.Reset(); return 1;
    case SERIAL_COPY: if (o != nullptr) f.Copy(*o); return 1;
    case SERIAL_COMPARE: return o == nullptr || Compare(f, *o);
    case SERIAL_READ: return LoadHeldRecord(f, file);
    case SERIAL_WRITE: SaveHeldRecord(f, file); return 1;
    case SERIAL_NORMALIZE: f.Normalize(); return 1;
    case SERIAL_DESCRIBE: return DescribeHeldRecord(f, file);
    case SERIAL_NAME: return 2;
    default: return 1;
  }
}

template <class T>
int SerialRecordArray(int op, T* f, const std::type_identity_t<T>* o, int count, cSerialFile* file) {
  if (op >= SERIAL_DESCRIBE) {
    if (op == SERIAL_NAME) return 2;
    file->Observer()->BeginList(static_cast<std::size_t>(count));
  }
  for (int i = 0; i < count; ++i) {
    if (!SerialRecord<T>(op, f[i], o != nullptr ? &o[i] : nullptr, file)) return 0;
  }
  if (op == SERIAL_DESCRIBE) file->Observer()->EndList();
  return 1;
}

// The record each element of a vector being read starts from: a freshly constructed T,
// or, where T provides `static T ReadingDefault()`, those defaults without the derived
// tables that every file replaces and the record's load sizes anew, so that they are
// not built and copied once per element only to be thrown away.
template <class T>
T ReadingPrototype() {
  if constexpr (requires { T::ReadingDefault(); }) {
    return T::ReadingDefault();
  } else {
    return T();
  }
}

// Reading erases the vector and fills it with copies of the prototype, so each element
// starts from the constructor's defaults, and loads each in order.
template <class T>
[[gnu::noinline]] int ReadRecordElements(VECTOR_CLASS<T>& f, std::uint32_t n, cSerialFile* file) {
  const T prototype = ReadingPrototype<T>();
  f.reserve(std::min<std::uint32_t>(n, 4096));  // a damaged count fails at its first short record
  for (std::uint32_t i = 0; i < n; ++i) {
    f.push_back(prototype);
    if (!LoadHeldRecord(f.back(), file)) return 0;
  }
  return 1;
}

// Most nested vectors are empty, such as the conditions of every place of every
// character: those cost the count and nothing more.
template <class T>
int ReadRecordVector(VECTOR_CLASS<T>& f, cSerialFile* file) {
  std::uint32_t n = 0;
  // Every record stores at least one byte, which bounds the count by the file's size.
  if (!serial_detail::ReadCount(file, 1, n)) return 0;
  f.clear();
  return n == 0 ? 1 : ReadRecordElements(f, n, file);
}

// Describing a vector of records holds one element at a time, whatever the count: a
// list that is only reported need not stand in memory.
template <class T>
[[gnu::noinline]] int DescribeRecordVector(cSerialFile* file) {
  std::uint32_t n = 0;
  if (!serial_detail::ReadCount(file, 1, n)) return 0;
  file->Observer()->BeginList(n);
  if (n > 0) {
    T element = ReadingPrototype<T>();
    for (std::uint32_t i = 0; i < n; ++i) {
      if (!DescribeHeldRecord(element, file)) return 0;
    }
  }
  file->Observer()->EndList();
  return 1;
}

template <class T>
int SerialRecordVector(int op, VECTOR_CLASS<T>& f, const VECTOR_CLASS<std::type_identity_t<T>>* o, cSerialFile* file) {
  switch (op) {
    case SERIAL_INIT: f.clear(); return 1;
    case SERIAL_COPY:
      if (o == nullptr) return 1;
      f.resize(o->size());
      for (std::size_t i = 0; i < f.size(); ++i) f[i].Copy((*o)[i]);
      return 1;
    case SERIAL_COMPARE:
      if (o == nullptr) return 1;
      if (f.size() != o->size()) return 0;
      for (std::size_t i = 0; i < f.size(); ++i) {
        if (!Compare(f[i], (*o)[i])) return 0;
      }
      return 1;
    case SERIAL_READ: return ReadRecordVector(f, file);
    case SERIAL_WRITE:
      serial_detail::WriteCount(file, f.size());
      for (T& element : f) SaveHeldRecord(element, file);
      return 1;
    case SERIAL_NORMALIZE:
      for (T& element : f) element.Normalize();
      return 1;
    case SERIAL_DESCRIBE: return DescribeRecordVector<T>(file);
    case SERIAL_NAME: return 2;
    default: return 1;
  }
}

// A vector of record vectors: the outer count, then each inner vector as above.
template <class T>
[[gnu::noinline]] int DescribeRecordVectorVector(cSerialFile* file) {
  std::uint32_t n = 0;
  if (!serial_detail::ReadCount(file, sizeof(std::uint32_t), n)) return 0;
  file->Observer()->BeginList(n);
  for (std::uint32_t i = 0; i < n; ++i) {
    if (!DescribeRecordVector<T>(file)) return 0;
  }
  file->Observer()->EndList();
  return 1;
}

template <class T>
int SerialRecordVectorVector(int op, VECTOR_CLASS<VECTOR_CLASS<T>>& f,
                             const VECTOR_CLASS<VECTOR_CLASS<std::type_identity_t<T>>>* o, cSerialFile* file) {
  switch (op) {
    case SERIAL_DESCRIBE: return DescribeRecordVectorVector<T>(file);
    case SERIAL_NAME: return 2;
    case SERIAL_INIT: f.clear(); return 1;
    case SERIAL_READ: {
      std::uint32_t n = 0;
      if (!serial_detail::ReadCount(file, sizeof(std::uint32_t), n)) return 0;
      f.clear();
      f.resize(n);
      break;
    }
    case SERIAL_WRITE: serial_detail::WriteCount(file, f.size()); break;
    case SERIAL_COPY:
      if (o == nullptr) return 1;
      f.resize(o->size());
      break;
    case SERIAL_COMPARE:
      if (o != nullptr && f.size() != o->size()) return 0;
      break;
    default: break;
  }
  for (std::size_t i = 0; i < f.size(); ++i) {
    if (!SerialRecordVector<T>(op, f[i], o != nullptr ? &(*o)[i] : nullptr, file)) return 0;
  }
  return 1;
}
