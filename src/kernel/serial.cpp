#include "kernel/serial.h"

#include <utility>

std::uint32_t g_nCurVersion = kCurrentFormatVersion;
std::uint32_t g_nFileVersion = 0;
int g_bFileTooNew = 0;
int g_bNormalizeOnLoad = 0;
std::int32_t g_nScratchInt = 0;
std::uint8_t g_byScratchByte = 0;
std::string g_strScratch;
std::string g_strLastSerialFailure;

int cSerial::Load(cSerialFile* file) {
  Serialize(SERIAL_READ, nullptr, file, g_nFileVersion);
  return FinishLoad(file);
}

int cSerial::Save(cSerialFile* file) {
  Serialize(SERIAL_WRITE, nullptr, file, g_nCurVersion);
  return 1;
}

namespace {

std::vector<std::string_view>* g_pTakenFieldNames = nullptr;

}  // namespace

std::vector<std::string_view> SerialFieldNames(cSerial& record, std::uint32_t version) {
  std::vector<std::string_view> names;
  std::vector<std::string_view>* outer = std::exchange(g_pTakenFieldNames, &names);
  record.Serialize(SERIAL_NAME, nullptr, nullptr, version);
  g_pTakenFieldNames = outer;
  return names;
}

void SerialTakeFieldName(std::string_view name) {
  if (g_pTakenFieldNames != nullptr) g_pTakenFieldNames->push_back(name);
}

int Compare(const cSerial& a, const cSerial& b) {
  return const_cast<cSerial&>(a).Serialize(SERIAL_COMPARE, &b, nullptr, g_nCurVersion);
}

int cSerial::LoadStream(SerialFilePtr file) {
  if (!file) return 0;
  std::unique_ptr<cSerial> before = CloneRecord();
  bool ok = Load(file.get()) && !file->Failed();
  if (!ok) {
    g_strLastSerialFailure = file->FailureText();
    AssignRecord(*before);
  }
  CloseSerialFile(file);
  return ok ? 1 : 0;
}

int cSerial::LoadFile(const char* storedPath) { return LoadStream(OpenSerialRead(storedPath)); }
int cSerial::LoadFile(const std::filesystem::path& nativePath) { return LoadStream(OpenSerialRead(nativePath)); }

namespace {

int SaveTo(cSerial& record, SerialFilePtr& file) {
  record.Save(file.get());
  return CloseSerialFile(file) ? 1 : 0;
}

}  // namespace

int cSerial::SaveFile(const char* storedPath) {
  SerialFilePtr file;
  return OpenSerialWrite(file, storedPath) ? SaveTo(*this, file) : 0;
}

int cSerial::SaveFile(const std::filesystem::path& nativePath) {
  SerialFilePtr file;
  return OpenSerialWrite(file, nativePath) ? SaveTo(*this, file) : 0;
}
