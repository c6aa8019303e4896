#include "support/elf_image.h"

#include <cstdint>

namespace {

class cElfWriter {
 public:
  cElfWriter(bool b64, bool big) : m_b64(b64), m_bBig(big) {}
  void Put(std::uint64_t value, std::size_t width) {
    for (std::size_t i = 0; i < width; ++i)
      bytes.push_back(static_cast<unsigned char>(value >> (8 * (m_bBig ? width - 1 - i : i))));
  }
  void Addr(std::uint64_t value) { Put(value, m_b64 ? 8 : 4); }
  void Section(std::uint32_t name, std::uint32_t type, std::uint64_t offset, std::uint64_t size) {
    Put(name, 4);
    Put(type, 4);
    Addr(0);  // flags
    Addr(0);  // address
    Addr(offset);
    Addr(size);
    Put(0, 4);  // link
    Put(0, 4);  // info
    Addr(1);    // alignment
    Addr(0);    // entry size
  }
  std::vector<unsigned char> bytes;

 private:
  bool m_b64, m_bBig;
};

}  // namespace

std::size_t ElfShoffAt(bool b64) { return b64 ? 0x28 : 0x20; }
std::size_t ElfShnumAt(bool b64) { return b64 ? 0x3C : 0x30; }

std::vector<unsigned char> ElfBytes(const cElfImage& image) {
  const bool b64 = image.b64;
  const std::size_t headerSize = b64 ? 64 : 52;
  const std::string names = std::string("\0.shstrtab\0", 11) + image.section + '\0';
  const std::size_t contentsAt = headerSize + image.filler;
  const std::size_t namesAt = contentsAt + image.contents.size();
  const std::size_t shoff = namesAt + names.size();
  const std::uint16_t count = image.section.empty() ? 2 : 3;

  cElfWriter w(b64, image.bBigEndian);
  w.bytes = {0x7F, 'E', 'L', 'F', static_cast<unsigned char>(b64 ? 2 : 1),
             static_cast<unsigned char>(image.bBigEndian ? 2 : 1), 1};
  w.bytes.resize(16);
  w.Put(2, 2);              // an executable
  w.Put(b64 ? 62 : 3, 2);   // for the PC
  w.Put(1, 4);
  w.Addr(0);                // entry
  w.Addr(0);                // program headers: none
  w.Addr(shoff);
  w.Put(0, 4);
  w.Put(headerSize, 2);
  w.Put(0, 2);
  w.Put(0, 2);
  w.Put(b64 ? 64 : 40, 2);
  w.Put(count, 2);
  w.Put(1, 2);              // the name table is section 1
  w.bytes.resize(contentsAt);
  w.bytes.insert(w.bytes.end(), image.contents.begin(), image.contents.end());
  w.bytes.insert(w.bytes.end(), names.begin(), names.end());
  w.Section(0, 0, 0, 0);
  w.Section(1, 3, namesAt, names.size());
  if (!image.section.empty()) w.Section(11, 1, contentsAt, image.contents.size());
  return w.bytes;
}
