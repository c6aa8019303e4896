#pragma once
// Files that hold one vector of records: the count and then each record's stream.

#include "kernel/serial_fields.h"

// 1 when the file was read whole. On 0 the vector holds what it held before.
template <class T>
int LoadVector(VECTOR_CLASS<T>& vector, SerialFilePtr file) {
  if (!file) return 0;
  VECTOR_CLASS<T> loaded;
  bool ok = ReadRecordVector(loaded, file.get()) && !file->Failed();
  if (!ok) g_strLastSerialFailure = file->FailureText();
  CloseSerialFile(file);
  if (!ok) return 0;
  if (g_bNormalizeOnLoad) {
    for (T& element : loaded) element.Normalize();
  }
  vector.swap(loaded);
  return 1;
}

template <class T>
int LoadVector(VECTOR_CLASS<T>& vector, const char* storedPath) {
  return LoadVector(vector, OpenSerialRead(storedPath));
}

template <class T>
int LoadVector(VECTOR_CLASS<T>& vector, const std::filesystem::path& nativePath) {
  return LoadVector(vector, OpenSerialRead(nativePath));
}

template <class T>
void WriteRecordVector(VECTOR_CLASS<T>& vector, cSerialFile* file) {
  SerialRecordVector(SERIAL_WRITE, vector, nullptr, file);
}

template <class T>
int SaveVector(VECTOR_CLASS<T>& vector, const char* storedPath) {
  SerialFilePtr file;
  if (!OpenSerialWrite(file, storedPath)) return 0;
  WriteRecordVector(vector, file.get());
  return CloseSerialFile(file) ? 1 : 0;
}

template <class T>
int SaveVector(VECTOR_CLASS<T>& vector, const std::filesystem::path& nativePath) {
  SerialFilePtr file;
  if (!OpenSerialWrite(file, nativePath)) return 0;
  WriteRecordVector(vector, file.get());
  return CloseSerialFile(file) ? 1 : 0;
}
