#include "kernel/serial_file.h"

#include <algorithm>
#include <cstdio>

#include "kernel/serial.h"
#include "platform/stored_path.h"

namespace fs = std::filesystem;

namespace {

// The piece of a disk file read at a time, and the piece a stream bound to a disk file
// hands over at a time: large enough that the calls cost nothing against the copying,
// small enough to stay in the processor's cache while the records are read from it.
constexpr std::size_t kPieceBytes = 256 * 1024;
constexpr std::size_t kFirstMemoryBytes = 4096;

}  // namespace

std::unique_ptr<cSerialFile> cSerialFile::ForReading(std::vector<unsigned char> bytes) {
  std::unique_ptr<cSerialFile> file(new cSerialFile(Mode::Read));
  file->m_bytes = std::move(bytes);
  file->m_total = file->m_bytes.size();
  file->StartPiece(file->m_total);
  file->KeepHead();
  return file;
}

std::unique_ptr<cSerialFile> cSerialFile::ForReading(std::unique_ptr<cFileReader> source) {
  std::unique_ptr<cSerialFile> file(new cSerialFile(Mode::Read));
  file->m_total = source->Size();
  file->m_bytes.resize(std::min(file->m_total, kPieceBytes));
  file->m_source = std::move(source);
  file->StartPiece(0);
  if (file->m_total > 0 && !file->Refill()) return file;
  file->KeepHead();
  return file;
}

std::unique_ptr<cSerialFile> cSerialFile::ForWriting() {
  return std::unique_ptr<cSerialFile>(new cSerialFile(Mode::Write));
}

void cSerialFile::StartPiece(std::size_t valid) {
  m_readAt = m_bytes.data();
  m_readEnd = m_readAt + valid;
}

void cSerialFile::SetWriteRoom(std::size_t used) {
  m_writeAt = m_bytes.data() + used;
  m_writeEnd = m_bytes.data() + m_bytes.size();
}

void cSerialFile::KeepHead() {
  m_headSize = std::min(static_cast<std::size_t>(m_readEnd - m_readAt), kHeadBytes);
  if (m_headSize > 0) std::memcpy(m_head, m_bytes.data(), m_headSize);
}

bool cSerialFile::PeekHead(std::size_t offset, void* data, std::size_t size) const {
  if (offset > m_headSize || size > m_headSize - offset) return false;
  std::memcpy(data, m_head + offset, size);
  return true;
}

bool cSerialFile::ReadAcross(void* data, std::size_t size) {
  if (m_bFailed || size > Remaining()) return ReadPastEnd();
  unsigned char* out = static_cast<unsigned char*>(data);
  for (;;) {
    const std::size_t take = std::min(size, static_cast<std::size_t>(m_readEnd - m_readAt));
    if (take > 0) std::memcpy(out, m_readAt, take);
    m_readAt += take;
    out += take;
    size -= take;
    if (size == 0) return true;
    if (!Refill()) return false;
  }
}

// Moves the piece on to the bytes after it. Only a stream over a file gets here with
// bytes remaining; the file may have become shorter since it was opened.
bool cSerialFile::Refill() {
  if (!m_source) return ReadPastEnd();
  m_base = Position();
  StartPiece(0);
  const std::size_t want = std::min(m_bytes.size(), m_total - m_base);
  std::size_t filled = 0;
  while (filled < want) {
    const long long n = m_source->ReadSome(m_bytes.data() + filled, want - filled);
    if (n <= 0) {
      Fail(n < 0 ? "the file could not be read" : "the file became shorter while it was read");
      return false;
    }
    filled += static_cast<std::size_t>(n);
  }
  StartPiece(filled);
  return true;
}

bool cSerialFile::ReadPastEnd() {
  Fail("the data ends early");
  return false;
}

void cSerialFile::Fail(const char* what) {
  if (m_bFailed) return;
  m_bFailed = true;
  m_readEnd = m_readAt;  // every later read takes the slow side, which sees the failure
  char text[160];
  std::snprintf(text, sizeof text, "%s at byte %zu of %zu", what, m_mode == Mode::Read ? Position() : Written(),
                m_mode == Mode::Read ? m_total : Written());
  m_failure = text;
}

void cSerialFile::MakeRoom(std::size_t size) {
  const std::size_t used = static_cast<std::size_t>(m_writeAt - m_bytes.data());
  if (m_target.IsOpen()) {
    if (used > 0) m_target.Write(m_bytes.data(), used);  // a failure is kept and ends the commit
    m_base += used;
    m_bytes.resize(std::max({size, kPieceBytes, m_bytes.size()}));
    SetWriteRoom(0);
    return;
  }
  m_bytes.resize(std::max({used + size, 2 * m_bytes.size(), kFirstMemoryBytes}));
  SetWriteRoom(used);
}

bool cSerialFile::CommitToTarget() {
  if (!m_target.IsOpen()) return false;
  const std::size_t used = static_cast<std::size_t>(m_writeAt - m_bytes.data());
  const bool written = m_target.Write(m_bytes.data(), used);
  m_base += used;
  SetWriteRoom(0);
  return m_target.Commit() && written;
}

namespace {

fs::path NativeOfStored(const char* storedPath) {
  // The literal "err" stands in for a missing name so that the open fails as usual.
  return NativePathOf((storedPath == nullptr || *storedPath == '\0') ? "err" : storedPath);
}


// Reads the version header of a stream just opened: null when there is none or it is
// above the version this program writes.
SerialFilePtr StartReading(SerialFilePtr file) {
  std::uint32_t version = 0;
  if (!file->PeekHead(0, &version, sizeof version)) return nullptr;  // no header: as good as no file
  g_nFileVersion = version;
  file->SetVersion(version);
  if (version > g_nCurVersion) {
    g_bFileTooNew = 1;
    return nullptr;
  }
  g_bFileTooNew = 0;
  file->Read(&version, sizeof version);
  return file;
}

}  // namespace

SerialFilePtr OpenSerialReadBuffer(std::vector<unsigned char> bytes) {
  return StartReading(cSerialFile::ForReading(std::move(bytes)));
}

SerialFilePtr OpenSerialRead(const fs::path& nativePath) {
  auto source = std::make_unique<cFileReader>();
  if (!source->Open(nativePath)) return nullptr;
  SerialFilePtr file = cSerialFile::ForReading(std::move(source));
  if (file->Failed()) return nullptr;  // unreadable from its first byte: as good as no file
  return StartReading(std::move(file));
}

SerialFilePtr OpenSerialRead(const char* storedPath) { return OpenSerialRead(NativeOfStored(storedPath)); }

SerialFilePtr OpenSerialWriteBuffer() {
  SerialFilePtr file = cSerialFile::ForWriting();
  file->WriteValue(g_nCurVersion);
  return file;
}

bool OpenSerialWrite(SerialFilePtr& file, const fs::path& nativePath) {
  SerialFilePtr created = OpenSerialWriteBuffer();
  if (!created->Target().Create(nativePath)) return false;
  file = std::move(created);
  return true;
}

bool OpenSerialWrite(SerialFilePtr& file, const char* storedPath) {
  return OpenSerialWrite(file, NativeOfStored(storedPath));
}

bool CloseSerialFile(SerialFilePtr& file) {
  if (!file) return false;
  bool ok = true;
  if (file->GetMode() == cSerialFile::Mode::Write && file->Target().IsOpen()) ok = file->CommitToTarget();
  file.reset();
  return ok;
}
