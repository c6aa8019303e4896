// A named section read out of ELF files of either class and byte order, at the cost
// of their headers: large programs are not read whole, and files that are no ELF
// files or are damaged cost no more than their first bytes.

#include <gtest/gtest.h>

#include <filesystem>
#include <functional>

#include "platform/elf_section.h"
#include "support/elf_image.h"
#include "support/test_env.h"

namespace fs = std::filesystem;

namespace {

using ElfSectionTest = ProjectDirTest;

cElfSection ReadMark(const fs::path& path) { return ReadElfSection(path, ".ortalune", 16); }

TEST_F(ElfSectionTest, FindsTheSectionInEitherClassAndByteOrderAndNothingOfAnotherName) {
  for (bool b64 : {true, false}) {
    for (bool big : {false, true}) {
      WriteBytes("prog", ElfBytes({.b64 = b64, .bBigEndian = big}));
      cElfSection found = ReadMark("prog");
      EXPECT_TRUE(found.bFound) << b64 << big;
      EXPECT_EQ(found.contents, std::string("GAME", 5)) << b64 << big;
    }
  }
  WriteBytes("prog", ElfBytes({.section = ".ortalunex"}));
  EXPECT_FALSE(ReadMark("prog").bFound) << "a longer name is another name";
  WriteBytes("prog", ElfBytes({.section = ""}));
  EXPECT_FALSE(ReadMark("prog").bFound);
  WriteBytes("prog", ElfBytes({.contents = std::string(100, 'x')}));
  EXPECT_EQ(ReadMark("prog").contents.size(), 16u) << "no more than asked for";
}

TEST_F(ElfSectionTest, AProgramOfMegabytesCostsItsHeadersOnly) {
  WriteBytes("big", ElfBytes({.filler = 8 << 20}));
  ASSERT_GT(fs::file_size("big"), 8u << 20);
  cElfSection found = ReadMark("big");
  EXPECT_TRUE(found.bFound);
  EXPECT_LT(found.nBytesRead, 512u);
}

TEST_F(ElfSectionTest, NoElfFileOrADamagedOneCostsNoMoreThanItsHeader) {
  const std::vector<unsigned char> good = ElfBytes({.filler = 1 << 20});
  auto patched = [&](std::size_t at, std::initializer_list<int> bytes) {
    std::vector<unsigned char> out = good;
    for (int b : bytes) out[at++] = static_cast<unsigned char>(b);
    return out;
  };
  struct Case {
    const char* what;
    std::vector<unsigned char> bytes;
  } cases[] = {
      {"megabytes of text", std::vector<unsigned char>(4 << 20, 'a')},
      {"a script", {'#', '!', '/', 'b', 'i', 'n', '/', 's', 'h', '\n'}},
      {"nothing", {}},
      {"cut inside the section headers", std::vector<unsigned char>(good.begin(), good.end() - 10)},
      {"cut after the header", std::vector<unsigned char>(good.begin(), good.begin() + 64)},
      {"headers beyond the end", patched(ElfShoffAt(true), {0xFF, 0xFF, 0xFF, 0x7F})},
      {"an unknown class", patched(4, {7})},
      {"sixty thousand sections", patched(ElfShnumAt(true), {0x60, 0xEA})},
  };
  for (const Case& c : cases) {
    WriteBytes("file", c.bytes);
    cElfSection found = ReadMark("file");
    EXPECT_FALSE(found.bFound) << c.what;
    EXPECT_LE(found.nBytesRead, 64u) << c.what;
  }
  fs::create_directory("folder");
  EXPECT_FALSE(ReadMark("folder").bFound);
  EXPECT_FALSE(ReadMark("missing").bFound);
}

}  // namespace
