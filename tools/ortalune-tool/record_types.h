#pragma once
// The record files that ortalune-tool knows, by type name and by file name. Each row
// reads a file into a freshly constructed record (or vector of records) and writes it
// back at the current version.

#include <filesystem>
#include <span>
#include <string>
#include <string_view>

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
};

std::span<const cRecordFileType> RecordFileTypes();

// The row for `typeName` (ignoring case), or null.
const cRecordFileType* FindRecordTypeByName(std::string_view typeName);
// The row whose file name or extension matches the name of `path` (ignoring case), or null.
const cRecordFileType* FindRecordTypeForFile(const std::filesystem::path& path);
