#include "kernel/serial_fields.h"

#include <algorithm>

namespace serial_detail {

bool FailCountTooLarge(cSerialFile* file) {
  file->Fail("a count larger than the rest of the data");
  return false;
}

}  // namespace serial_detail

namespace {

int ReadString(std::string& f, cSerialFile* file) {
  std::uint32_t length = 0;
  if (!file->ReadValue(length)) return 0;
  if (length == 0) {
    // Every writer stores at least the NUL; a 0 means the data is not a text field.
    file->Fail("a text length of 0");
    return 0;
  }
  if (length == 1) {
    f.clear();
    return 1;
  }
  if (length > file->Remaining()) {
    file->Fail("a text longer than the rest of the data");
    return 0;
  }
  std::string buffer(length, '\0');
  if (!file->Read(buffer.data(), length)) return 0;
  buffer.resize(std::strlen(buffer.c_str()));
  f = std::move(buffer);
  return 1;
}

void WriteString(const std::string& f, cSerialFile* file) {
  std::uint32_t length = static_cast<std::uint32_t>(std::strlen(f.c_str()));
  std::uint32_t stored = length + 1;
  file->WriteValue(stored);
  if (stored != 1) {
    file->Write(f.data(), length);
    file->WriteValue('\0');
  }
}

// Out of line, as the describing of every field: the reading beside it stays as it was.
[[gnu::noinline]] int DescribeString(std::string& f, cSerialFile* file) {
  if (!SerialString(SERIAL_READ, f, nullptr, file)) return 0;
  file->Observer()->Text(f);
  return 1;
}

}  // namespace

int SerialString(int op, std::string& f, const std::string* o, cSerialFile* file) {
  switch (op) {
    case SERIAL_INIT: f.clear(); return 1;
    case SERIAL_COPY: if (o != nullptr) f = *o; return 1;
    case SERIAL_COMPARE: return o == nullptr || std::strcmp(f.c_str(), o->c_str()) == 0;
    case SERIAL_READ: return ReadString(f, file);
    case SERIAL_WRITE: WriteString(f, file); return 1;
    case SERIAL_NORMALIZE: f.erase(std::remove(f.begin(), f.end(), '\r'), f.end()); return 1;
    case SERIAL_DESCRIBE: return DescribeString(f, file);
    case SERIAL_NAME: return 2;
    default: return 1;
  }
}

namespace {

// A vector of elements that are themselves walked by a field function: count, then
// each element. `minBytesEach` is the smallest stored size of one element.
template <class T, class ElementFn>
int NestedVector(int op, VECTOR_CLASS<T>& f, const VECTOR_CLASS<T>* o, cSerialFile* file,
                 std::size_t minBytesEach, ElementFn element) {
  switch (op) {
    case SERIAL_INIT: f.clear(); return 1;
    case SERIAL_COPY: if (o != nullptr) f.assign(o->begin(), o->end()); return 1;
    case SERIAL_COMPARE:
      if (o == nullptr) return 1;
      if (f.size() != o->size()) return 0;
      for (std::size_t i = 0; i < f.size(); ++i) {
        if (!element(op, f[i], &(*o)[i], file)) return 0;
      }
      return 1;
    case SERIAL_READ:
    case SERIAL_DESCRIBE: {
      std::uint32_t n = 0;
      if (!serial_detail::ReadCount(file, minBytesEach, n)) return 0;
      f.clear();
      f.resize(n);
      if (op == SERIAL_DESCRIBE) file->Observer()->BeginList(n);
      for (T& e : f) {
        if (!element(op, e, nullptr, file)) return 0;
      }
      if (op == SERIAL_DESCRIBE) file->Observer()->EndList();
      return 1;
    }
    case SERIAL_WRITE:
      serial_detail::WriteCount(file, f.size());
      for (T& e : f) element(op, e, nullptr, file);
      return 1;
    case SERIAL_NORMALIZE:
      for (T& e : f) element(op, e, nullptr, file);
      return 1;
    case SERIAL_NAME: return 2;
    default: return 1;
  }
}

}  // namespace

int SerialVectorVector(int op, VECTOR_CLASS<VECTOR_CLASS<std::int32_t>>& f,
                       const VECTOR_CLASS<VECTOR_CLASS<std::int32_t>>* o, cSerialFile* file) {
  return NestedVector(op, f, o, file, sizeof(std::uint32_t), SerialIntVector);
}

int SerialVectorArray(int op, VECTOR_CLASS<std::int32_t>* f, const VECTOR_CLASS<std::int32_t>* o, int count,
                      cSerialFile* file) {
  if (op >= SERIAL_DESCRIBE) {
    if (op == SERIAL_NAME) return 2;
    file->Observer()->BeginList(static_cast<std::size_t>(count));
  }
  for (int i = 0; i < count; ++i) {
    if (!SerialIntVector(op, f[i], o != nullptr ? &o[i] : nullptr, file)) return 0;
  }
  if (op == SERIAL_DESCRIBE) file->Observer()->EndList();
  return 1;
}

int SerialStringVector(int op, VECTOR_CLASS<std::string>& f, const VECTOR_CLASS<std::string>* o, cSerialFile* file) {
  return NestedVector(op, f, o, file, sizeof(std::uint32_t), SerialString);
}
