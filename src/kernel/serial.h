#pragma once
// The record base. Every persistent object walks its own fields, in one fixed order,
// in one function, Serialize; that walk resets, copies, compares, reads, writes and
// normalises. A file is a 4-byte version and then the raw field stream.

#include <cstdint>
#include <filesystem>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "kernel/serial_file.h"

enum : int {
  SERIAL_INIT = 0,
  SERIAL_COPY = 1,
  SERIAL_COMPARE = 2,
  SERIAL_READ = 3,
  SERIAL_WRITE = 4,
  SERIAL_NORMALIZE = 5,
  // Reads the field as SERIAL_READ does and reports it to the file's observer
  // (kernel/field_observer.h): the readable form of a file. Versions come from the file
  // itself; no Load override, migration or clamp runs.
  SERIAL_DESCRIBE = 6,
  // Touches nothing: each field function answers 2 at once, and the walk's line hands
  // over the field's name (see SERIAL_FIELD). Which fields a walk visits depends on the
  // version alone, so this gives the names of a describing walk's reports, in order.
  SERIAL_NAME = 7,
};

constexpr std::uint32_t kCurrentFormatVersion = 290;

extern std::uint32_t g_nCurVersion;   // the format this program writes
extern std::uint32_t g_nFileVersion;  // version of the file opened last; stays after close
extern int g_bFileTooNew;             // the last open found a version above g_nCurVersion
extern int g_bNormalizeOnLoad;        // every Load is followed by a normalising walk
// Receivers of fields that old files hold and the current format dropped; never read.
extern std::int32_t g_nScratchInt;
extern std::uint8_t g_byScratchByte;
extern std::string g_strScratch;
// What went wrong in the last load that failed on the file's content, for reports.
extern std::string g_strLastSerialFailure;

class cSerial {
 public:
  virtual ~cSerial() = default;

  virtual int Serialize(int op, const cSerial* other, cSerialFile* file, std::uint32_t version) { return 1; }
  // Reads the record from `file`. Overrides call the base first and return 0 at once
  // when it does, then migrate on g_nFileVersion and clamp.
  virtual int Load(cSerialFile* file);
  // Writes the record. Overrides clamp first, then call the base.
  virtual int Save(cSerialFile* file);
  // The end of the base Load, after the read walk: 0 when the file failed, else the
  // normalising walk when it is asked for.
  int FinishLoad(cSerialFile* file) {
    if (file->Failed()) return 0;
    if (g_bNormalizeOnLoad) Normalize();
    return 1;
  }

  // A copy of every member, of the record's own class; and the assignment back. A load
  // that fails on the file's content restores the record from such a copy.
  virtual std::unique_ptr<cSerial> CloneRecord() const = 0;
  virtual void AssignRecord(const cSerial& from) = 0;

  void Reset() { Serialize(SERIAL_INIT, nullptr, nullptr, g_nCurVersion); }
  void Copy(const cSerial& other) { Serialize(SERIAL_COPY, &other, nullptr, g_nCurVersion); }
  void Normalize() { Serialize(SERIAL_NORMALIZE, nullptr, nullptr, g_nCurVersion); }

  // 1 when the file was read whole; 0 when it could not be opened, is of a higher
  // version, or its content ends early or holds an impossible count. On 0 the record
  // holds what it held before.
  int LoadFile(const char* storedPath);
  int LoadFile(const std::filesystem::path& nativePath);
  int LoadStream(SerialFilePtr file);
  // 1 when the file was written whole; on 0 an old file stays as it was.
  int SaveFile(const char* storedPath);
  int SaveFile(const std::filesystem::path& nativePath);
};

// 1 when the two records are equal in every field of the walk.
int Compare(const cSerial& a, const cSerial& b);

// Declares the copy operations of a record class; every concrete record names itself.
#define SERIAL_RECORD(Class)                                                                     \
  std::unique_ptr<cSerial> CloneRecord() const override { return std::make_unique<Class>(*this); } \
  void AssignRecord(const cSerial& from) override { *this = dynamic_cast<const Class&>(from); }

// Inside Serialize: `o` is `other` cast to the class; OTHER(m) is o's member m or null.
template <class T>
const T* SerialOther(const cSerial* other) {
  return dynamic_cast<const T*>(other);
}
#define OTHER(member) (o != nullptr ? &o->member : nullptr)

// The member a line of a walk visits: the first name in it that starts with "m_", or
// with "g_" for the receiver of a field that the format dropped. Empty for the call of
// a base class's walk, whose own lines name its fields.
constexpr std::string_view SerialFieldName(std::string_view line) {
  auto inName = [](char c) { return c == '_' || (c >= '0' && c <= '9') || (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z'); };
  for (std::size_t i = 0; i + 1 < line.size(); ++i) {
    if ((line[i] != 'm' && line[i] != 'g') || line[i + 1] != '_' || (i > 0 && inName(line[i - 1]))) continue;
    std::size_t end = i;
    while (end < line.size() && inName(line[end])) ++end;
    return line.substr(i, end - i);
  }
  return {};
}
constexpr bool SerialLineNamesItsField(std::string_view line) {
  return !SerialFieldName(line).empty() || line.find("::Serialize(") != std::string_view::npos;
}
// The names of the fields that the walk of `record` visits at `version`, in order.
std::vector<std::string_view> SerialFieldNames(cSerial& record, std::uint32_t version);
// Takes the name of a field while SerialFieldNames walks.
void SerialTakeFieldName(std::string_view name);

// Visits one field and ends the walk with 0 when the field says so (a difference
// while comparing, a file that ends while reading). A field answers 2 only to
// SERIAL_NAME, and the line then hands over its name, taken from the line's own text so
// that the readable form of a file names what the walk really visits. Reading and
// writing pay nothing for it: their test of the answer is the one they always made.
#define SERIAL_FIELD(call)                                                                       \
  do {                                                                                           \
    static_assert(SerialLineNamesItsField(#call), "a walk line visits a member named m_ or g_"); \
    if (const int visited_ = (call); visited_ != 1) [[unlikely]] {                               \
      if (visited_ == 0) return 0;                                                               \
      /* Out of line, so that not even the name's address is made ready on the way. */          \
      []() __attribute__((cold, noinline)) {                                                     \
        constexpr std::string_view kName = SerialFieldName(#call);                               \
        if constexpr (!kName.empty()) SerialTakeFieldName(kName);                                \
      }();                                                                                       \
    }                                                                                            \
  } while (0)
