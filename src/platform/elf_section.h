#pragma once
// One named section of an ELF file, read without loading or running the file: the
// file header, the section headers, their names and the section itself are read where
// they lie, so that a large program costs a few kilobytes and anything that is not an
// ELF file, or is damaged, costs no more than its header.

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>

struct cElfSection {
  bool bFound = false;
  std::string contents;         // at most the `maxBytes` asked for
  std::uint64_t nBytesRead = 0;  // what the search read of the file, all told
};

// Section `name` of the file at `path`, both classes and both byte orders. Not found
// when the file cannot be opened, is no ELF file, a header points outside the file,
// or no section has that name; a section without contents in the file is found empty.
cElfSection ReadElfSection(const std::filesystem::path& path, std::string_view name, std::size_t maxBytes);
