#pragma once
// The record files that ortalune-tool knows, by type name and by file name. Each row
// reads a file into a freshly constructed record (or vector of records) and writes it
// back at the current version, or describes it field by field.

#include <filesystem>
#include <span>
#include <string>
#include <string_view>

class cFieldObserver;
class cSerialFile;

struct cResaveResult {
  bool ok = false;
  std::string message;  // UTF-8, for the terminal
};

struct cRecordFileType {
  const char* typeName;  // as given to --type
  const char* fileName;  // the name the project gives the file; empty for several (stages)
  const char* extension; // or the extension that marks the type, with its dot
  const char* summary;
  cResaveResult (*resave)(const std::filesystem::path& in, const std::filesystem::path& out);
  bool bRows;  // the file holds a row count and rows, else one record
  // Reports every field of one record at the cursor: the file's one record, or one row.
  int (*describeRecord)(cSerialFile& file, cFieldObserver& observer);
};

std::span<const cRecordFileType> RecordFileTypes();

// Reports every field of an open file of `type`, its rows as a list of records (see
// kernel/record_file_describe.h).
int DescribeFile(const cRecordFileType& type, cSerialFile& file, cFieldObserver& observer);

// The row for `typeName` (ignoring case), or null.
const cRecordFileType* FindRecordTypeByName(std::string_view typeName);
// The row whose file name or extension matches the name of `path` (ignoring case), or null.
const cRecordFileType* FindRecordTypeForFile(const std::filesystem::path& path);
// Takes "--type T" or "--type=T" at args[i] into `typeName`, moving i past it; false
// when args[i] is something else.
bool TakeTypeOption(std::span<const std::string> args, std::size_t& i, std::string& typeName);
// The row given by --type, or else by the name of `path`; null after a message that
// names `command`.
const cRecordFileType* RecordTypeOrSay(const std::filesystem::path& path, const std::string& typeName,
                                       const char* command);

// Why `path` could not be opened or read, after a failed open or load: missing, of a
// newer version, or what the reader said.
std::string ReadFailureText(const std::filesystem::path& path);
