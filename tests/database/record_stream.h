#pragma once
// Streams of database records for tests: a record written in the layout of an older
// format version, and loading from bytes.

#include <vector>

#include "kernel/record_vector_file.h"

// The record as a program of format `version` would have saved it: nested records too
// follow that version's gates. Values of fields the version lacks are not written.
inline std::vector<unsigned char> StreamAtVersion(cSerial& record, std::uint32_t version) {
  const std::uint32_t current = g_nCurVersion;
  g_nCurVersion = version;
  SerialFilePtr file = OpenSerialWriteBuffer();
  record.Save(file.get());
  g_nCurVersion = current;
  return file->Bytes();
}

inline std::vector<unsigned char> SavedStream(cSerial& record) {
  SerialFilePtr file = OpenSerialWriteBuffer();
  record.Save(file.get());
  return file->Bytes();
}

template <class T>
T LoadedFrom(const std::vector<unsigned char>& bytes) {
  T record;
  record.LoadStream(OpenSerialReadBuffer(bytes));
  return record;
}
