#include "kernel/serial_file.h"

#include <cstdio>

#include "kernel/serial.h"
#include "platform/stored_path.h"

namespace fs = std::filesystem;

std::unique_ptr<cSerialFile> cSerialFile::ForReading(std::vector<unsigned char> bytes) {
  std::unique_ptr<cSerialFile> file(new cSerialFile(Mode::Read));
  file->m_bytes = std::move(bytes);
  return file;
}

std::unique_ptr<cSerialFile> cSerialFile::ForWriting() {
  return std::unique_ptr<cSerialFile>(new cSerialFile(Mode::Write));
}

bool cSerialFile::ReadPastEnd() {
  Fail("the data ends early");
  return false;
}

void cSerialFile::Fail(const char* what) {
  if (m_bFailed) return;
  m_bFailed = true;
  char text[160];
  std::snprintf(text, sizeof text, "%s at byte %zu of %zu", what, m_pos, m_bytes.size());
  m_failure = text;
}

namespace {

fs::path NativeOfStored(const char* storedPath) {
  // The literal "err" stands in for a missing name so that the open fails as usual.
  return NativePathOf((storedPath == nullptr || *storedPath == '\0') ? "err" : storedPath);
}

}  // namespace

SerialFilePtr OpenSerialReadBuffer(std::vector<unsigned char> bytes) {
  std::uint32_t version = 0;
  if (bytes.size() < sizeof version) return nullptr;  // no header: as good as no file
  std::memcpy(&version, bytes.data(), sizeof version);
  g_nFileVersion = version;
  if (version > g_nCurVersion) {
    g_bFileTooNew = 1;
    return nullptr;
  }
  g_bFileTooNew = 0;
  SerialFilePtr file = cSerialFile::ForReading(std::move(bytes));
  file->Read(&version, sizeof version);
  return file;
}

SerialFilePtr OpenSerialRead(const fs::path& nativePath) {
  std::vector<unsigned char> bytes;
  if (!ReadWholeFile(nativePath, bytes)) return nullptr;
  return OpenSerialReadBuffer(std::move(bytes));
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
  if (file->GetMode() == cSerialFile::Mode::Write && file->Target().IsOpen()) {
    ok = file->Target().Write(file->Bytes().data(), file->Bytes().size()) && file->Target().Commit();
  }
  file.reset();
  return ok;
}
