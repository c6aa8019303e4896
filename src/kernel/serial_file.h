#pragma once
// An open record file. Reading runs through a cursor that never passes the end: a read
// that would, fails, and so does every read after it. A file on disk is read in pieces
// as the cursor reaches them, so that even the largest tables never lie in memory twice.
// Writing collects the stream in pieces too; a stream bound to a disk file hands each
// full piece to the file's temporary copy, which replaces the file in one atomic step
// when the stream is closed.

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include "platform/file_io.h"

class cFieldObserver;

class cSerialFile {
 public:
  enum class Mode { Read, Write };

  // A stream over bytes in memory.
  static std::unique_ptr<cSerialFile> ForReading(std::vector<unsigned char> bytes);
  // A stream over an open file, from its start to the size it had when it was opened.
  static std::unique_ptr<cSerialFile> ForReading(std::unique_ptr<cFileReader> source);
  static std::unique_ptr<cSerialFile> ForWriting();

  Mode GetMode() const { return m_mode; }
  // The version of the header, once it has been read.
  std::uint32_t Version() const { return m_version; }
  void SetVersion(std::uint32_t version) { m_version = version; }
  // Who a describing walk reports to; null for every other stream.
  cFieldObserver* Observer() const { return m_pObserver; }
  void SetObserver(cFieldObserver* observer) { m_pObserver = observer; }

  // Reading. False when fewer than `size` bytes remain; the file is then failed.
  bool Read(void* data, std::size_t size) {
    if (size > static_cast<std::size_t>(m_readEnd - m_readAt)) return ReadAcross(data, size);
    if (size > 0) std::memcpy(data, m_readAt, size);
    m_readAt += size;
    return true;
  }
  template <class T>
  [[gnu::always_inline]] bool ReadValue(T& value) {
    if (sizeof value > static_cast<std::size_t>(m_readEnd - m_readAt)) return ReadAcross(&value, sizeof value);
    std::memcpy(&value, m_readAt, sizeof value);  // a fixed size: no call
    m_readAt += sizeof value;
    return true;
  }
  std::size_t Remaining() const { return m_bFailed ? 0 : m_total - Position(); }
  std::size_t Position() const { return m_base + static_cast<std::size_t>(m_readAt - m_bytes.data()); }
  // Writing: the bytes written so far, handed to the disk file or not.
  std::size_t Written() const { return m_base + static_cast<std::size_t>(m_writeAt - m_bytes.data()); }
  // Copies bytes from the first kHeadBytes of the stream, wherever the cursor is. False
  // when the stream is shorter than offset + size or the range is beyond the head.
  static constexpr std::size_t kHeadBytes = 16;
  bool PeekHead(std::size_t offset, void* data, std::size_t size) const;

  // Marks the file as failed, with what went wrong, for the caller's report.
  void Fail(const char* what);
  bool Failed() const { return m_bFailed; }
  const std::string& FailureText() const { return m_failure; }

  // Writing.
  void Write(const void* data, std::size_t size) {
    if (size > static_cast<std::size_t>(m_writeEnd - m_writeAt)) MakeRoom(size);
    if (size > 0) std::memcpy(m_writeAt, data, size);
    m_writeAt += size;
  }
  template <class T>
  [[gnu::always_inline]] void WriteValue(const T& value) {
    if (sizeof value > static_cast<std::size_t>(m_writeEnd - m_writeAt)) MakeRoom(sizeof value);
    std::memcpy(m_writeAt, &value, sizeof value);  // a fixed size: no call
    m_writeAt += sizeof value;
  }

  // The whole stream of a stream written in memory. A stream bound to a disk file holds
  // only what has not yet been handed to the file.
  std::vector<unsigned char> Bytes() const { return {m_bytes.cbegin(), m_bytes.cbegin() + (m_writeAt - m_bytes.data())}; }

  // The disk file a written stream goes to; not opened for streams in memory.
  cAtomicFile& Target() { return m_target; }
  // Hands what the stream holds to its disk file and commits it. False when any write
  // or the commit failed; the old file is then untouched.
  bool CommitToTarget();

 private:
  explicit cSerialFile(Mode mode) : m_mode(mode) {}
  // The slow side of reading: a read that crosses into the next piece of the file, one
  // that would pass the end, which fails the file, and any read of a failed file.
  bool ReadAcross(void* data, std::size_t size);
  bool ReadPastEnd();
  bool Refill();
  void KeepHead();
  // Makes room for `size` more bytes: a stream bound to a disk file first hands what it
  // holds to the file, a stream in memory grows.
  void MakeRoom(std::size_t size);

  // Points the cursor at the start of the piece, which holds `valid` bytes.
  void StartPiece(std::size_t valid);
  // Where `used` bytes of the room are taken.
  void SetWriteRoom(std::size_t used);

  Mode m_mode;
  std::vector<unsigned char> m_bytes;  // reading: the piece under the cursor; writing: room
  // The cursors are pointers into m_bytes, so that the inlined reads and writes test a
  // single distance. A failed file reads as if its piece had ended at the cursor.
  const unsigned char* m_readAt = nullptr;
  const unsigned char* m_readEnd = nullptr;
  unsigned char* m_writeAt = nullptr;
  unsigned char* m_writeEnd = nullptr;
  std::size_t m_base = 0;  // where m_bytes starts in the stream
  std::size_t m_total = 0;  // reading: the length of the stream
  unsigned char m_head[kHeadBytes] = {};
  std::size_t m_headSize = 0;
  std::unique_ptr<cFileReader> m_source;
  bool m_bFailed = false;
  std::string m_failure;
  cAtomicFile m_target;
  std::uint32_t m_version = 0;
  cFieldObserver* m_pObserver = nullptr;
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
