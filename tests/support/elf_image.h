#pragma once
// Small ELF files made to measure: a header, optional filler, one named section and
// the section name table, with the section headers at the end as linkers put them.
// They are not programs that run.

#include <cstddef>
#include <string>
#include <vector>

struct cElfImage {
  bool b64 = true;
  bool bBigEndian = false;
  std::string section = ".ortalune";              // empty: no section besides the name table
  std::string contents = std::string("GAME", 5);  // with its NUL
  std::size_t filler = 0;                         // bytes between the header and the sections
};

std::vector<unsigned char> ElfBytes(const cElfImage& image);

// Where the file header keeps the section headers' offset and count, for damaging them.
std::size_t ElfShoffAt(bool b64);
std::size_t ElfShnumAt(bool b64);
