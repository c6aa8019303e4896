#pragma once
// Whole-file reading and atomic replacement of files.

#include <cstddef>
#include <filesystem>
#include <string>
#include <vector>

// Reads a regular file completely. False when it cannot be opened or read; `out` is
// then left as it was.
bool ReadWholeFile(const std::filesystem::path& path, std::vector<unsigned char>& out);

// A regular file read front to back in pieces, for readers that need not hold it whole.
class cFileReader {
 public:
  cFileReader() = default;
  ~cFileReader();
  cFileReader(const cFileReader&) = delete;
  cFileReader& operator=(const cFileReader&) = delete;

  // False when the file cannot be opened or is not a regular file.
  bool Open(const std::filesystem::path& path);
  // The size when it was opened.
  std::size_t Size() const { return m_size; }
  // Reads up to `size` bytes: how many were read, 0 at the end of the file, -1 on an
  // error.
  long long ReadSome(void* data, std::size_t size);

 private:
  int m_fd = -1;
  std::size_t m_size = 0;
};

// A file written beside its target under a temporary name and renamed over the target
// on Commit, so that a failed or interrupted save never leaves a truncated file.
class cAtomicFile {
 public:
  cAtomicFile() = default;
  ~cAtomicFile();
  cAtomicFile(const cAtomicFile&) = delete;
  cAtomicFile& operator=(const cAtomicFile&) = delete;

  // Creates the temporary file in the target's directory. False when the directory
  // does not exist or cannot be written.
  bool Create(const std::filesystem::path& target);
  bool Write(const void* data, std::size_t size);
  // Flushes to the disk and renames over the target. False, and the temporary file is
  // removed, when any step failed.
  bool Commit();
  // Removes the temporary file; the target stays as it was.
  void Abort();

  bool IsOpen() const { return m_fd >= 0; }

 private:
  int m_fd = -1;
  bool m_bWriteFailed = false;
  std::filesystem::path m_target;
  std::string m_tempPath;
};

// Create, Write and Commit in one call.
bool WriteFileAtomic(const std::filesystem::path& target, const void* data, std::size_t size);
