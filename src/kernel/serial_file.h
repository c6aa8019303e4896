#pragma once
// An open record file. Reading works on the whole file read at open, through a cursor
// that never passes the end: a read that would, fails, and so does every read after
// it. Writing collects the stream in memory and puts it on the disk in one atomic step
// when the file is closed.

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include "platform/file_io.h"

class cSerialFile {
 public:
  enum class Mode { Read, Write };

  static std::unique_ptr<cSerialFile> ForReading(std::vector<unsigned char> bytes);
  static std::unique_ptr<cSerialFile> ForWriting();

  Mode GetMode() const { return m_mode; }

  // Reading. False when fewer than `size` bytes remain; the file is then failed.
  bool Read(void* data, std::size_t size) {
    if (m_bFailed || size > m_bytes.size() - m_pos) return ReadPastEnd();
    if (size > 0) std::memcpy(data, m_bytes.data() + m_pos, size);
    m_pos += size;
    return true;
  }
  template <class T>
  bool ReadValue(T& value) {
    if (m_bFailed || sizeof value > m_bytes.size() - m_pos) return ReadPastEnd();
    std::memcpy(&value, m_bytes.data() + m_pos, sizeof value);  // a fixed size: no call
    m_pos += sizeof value;
    return true;
  }
  std::size_t Remaining() const { return m_bFailed ? 0 : m_bytes.size() - m_pos; }
  std::size_t Position() const { return m_pos; }

  // Marks the file as failed, with what went wrong, for the caller's report.
  void Fail(const char* what);
  bool Failed() const { return m_bFailed; }
  const std::string& FailureText() const { return m_failure; }

  // Writing.
  void Write(const void* data, std::size_t size) {
    const unsigned char* p = static_cast<const unsigned char*>(data);
    m_bytes.insert(m_bytes.end(), p, p + size);
  }
  template <class T>
  void WriteValue(const T& value) {
    const std::size_t at = m_bytes.size();
    m_bytes.resize(at + sizeof value);
    std::memcpy(m_bytes.data() + at, &value, sizeof value);
  }

  const std::vector<unsigned char>& Bytes() const { return m_bytes; }
  std::vector<unsigned char>& MutableBytes() { return m_bytes; }

  // The disk file a written stream goes to on close; not set for streams in memory.
  cAtomicFile& Target() { return m_target; }

 private:
  explicit cSerialFile(Mode mode) : m_mode(mode) {}
  // A read that would pass the end fails the file; always false.
  bool ReadPastEnd();

  Mode m_mode;
  std::vector<unsigned char> m_bytes;
  std::size_t m_pos = 0;
  bool m_bFailed = false;
  std::string m_failure;
  cAtomicFile m_target;
};

using SerialFilePtr = std::unique_ptr<cSerialFile>;

// Opens a record file and reads its version header: the file's version goes to
// g_nFileVersion, and g_bFileTooNew says whether it is above g_nCurVersion. Null when
// the file cannot be opened or read, is shorter than its header, or is too new. A null
// or empty stored path opens the name "err", which normally does not exist.
SerialFilePtr OpenSerialRead(const char* storedPath);
SerialFilePtr OpenSerialRead(const std::filesystem::path& nativePath);
// The same on bytes already in memory.
SerialFilePtr OpenSerialReadBuffer(std::vector<unsigned char> bytes);

// Creates the stream of a new file and writes the current version. False when the file
// cannot be created; an existing file then stays untouched.
bool OpenSerialWrite(SerialFilePtr& file, const char* storedPath);
bool OpenSerialWrite(SerialFilePtr& file, const std::filesystem::path& nativePath);
// A stream that stays in memory, with its header.
SerialFilePtr OpenSerialWriteBuffer();

// Closes the file. For a file written to disk this is where the stream replaces the old
// file; false when that failed, and the old file is then untouched.
bool CloseSerialFile(SerialFilePtr& file);
