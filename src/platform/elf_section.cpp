#include "platform/elf_section.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#include <vector>

namespace fs = std::filesystem;

namespace {

constexpr unsigned char kMagic[4] = {0x7F, 'E', 'L', 'F'};
constexpr std::uint64_t kNoBits = 8;            // a section that takes no room in the file
constexpr std::uint64_t kIndexElsewhere = 0xFFFF;  // the name table's index stands in section 0
// Executables have a few dozen sections with short names; anything far beyond these
// is taken for damage rather than read.
constexpr std::uint64_t kMaxHeaderTable = 1 << 20;
constexpr std::uint64_t kMaxNameTable = 64 * 1024;

// Where the fields lie: in the file header, then in a section header.
struct cElfLayout {
  std::size_t headerSize, addrSize, shoff, shentsize, shnum, shstrndx;
  std::size_t sectionSize, secOffset, secSize, secLink;
};
constexpr cElfLayout kElf32{52, 4, 0x20, 0x2E, 0x30, 0x32, 40, 0x10, 0x14, 0x18};
constexpr cElfLayout kElf64{64, 8, 0x28, 0x3A, 0x3C, 0x3E, 64, 0x18, 0x20, 0x28};

class cElfFile {
 public:
  cElfFile(const fs::path& path, std::uint64_t& bytesRead) : m_bytesRead(bytesRead) {
    m_fd = ::open(path.c_str(), O_RDONLY | O_CLOEXEC);
    struct stat st {};
    if (m_fd >= 0 && ::fstat(m_fd, &st) == 0 && S_ISREG(st.st_mode)) m_size = static_cast<std::uint64_t>(st.st_size);
  }
  ~cElfFile() {
    if (m_fd >= 0) ::close(m_fd);
  }
  cElfFile(const cElfFile&) = delete;
  cElfFile& operator=(const cElfFile&) = delete;

  bool Inside(std::uint64_t offset, std::uint64_t size) const { return offset <= m_size && size <= m_size - offset; }

  // Exactly `size` bytes at `offset`, which must lie inside the file.
  bool Read(std::uint64_t offset, std::size_t size, void* out) {
    if (m_fd < 0 || !Inside(offset, size)) return false;
    auto* to = static_cast<unsigned char*>(out);
    std::size_t done = 0;
    while (done < size) {
      ssize_t n = ::pread(m_fd, to + done, size - done, static_cast<off_t>(offset + done));
      if (n < 0 && errno == EINTR) continue;
      if (n <= 0) return false;
      done += static_cast<std::size_t>(n);
      m_bytesRead += static_cast<std::uint64_t>(n);
    }
    return true;
  }

  std::uint64_t Size() const { return m_size; }

 private:
  int m_fd = -1;
  std::uint64_t m_size = 0;
  std::uint64_t& m_bytesRead;
};

class cFieldReader {
 public:
  explicit cFieldReader(bool bigEndian) : m_bBig(bigEndian) {}
  std::uint64_t operator()(const unsigned char* p, std::size_t width) const {
    std::uint64_t value = 0;
    for (std::size_t i = 0; i < width; ++i) value |= std::uint64_t{p[m_bBig ? width - 1 - i : i]} << (8 * i);
    return value;
  }

 private:
  bool m_bBig;
};

// The section headers as the file header describes them.
struct cSectionTable {
  const cElfLayout* L = nullptr;
  cFieldReader field{false};
  std::vector<unsigned char> bytes;
  std::uint64_t entry = 0, count = 0, names = 0;

  const unsigned char* At(std::uint64_t i) const { return bytes.data() + i * entry; }
  std::uint64_t Type(std::uint64_t i) const { return field(At(i) + 4, 4); }
  std::uint64_t Offset(std::uint64_t i) const { return field(At(i) + L->secOffset, L->addrSize); }
  std::uint64_t Size(std::uint64_t i) const { return field(At(i) + L->secSize, L->addrSize); }
};

// The header's word on the section headers, then the headers themselves; false for
// anything that is no ELF file or points outside this one.
bool ReadSectionTable(cElfFile& file, cSectionTable& table) {
  unsigned char header[64] = {};
  if (file.Size() < kElf32.headerSize || !file.Read(0, std::min<std::uint64_t>(sizeof header, file.Size()), header))
    return false;
  if (std::memcmp(header, kMagic, sizeof kMagic) != 0 || header[4] < 1 || header[4] > 2 || header[5] < 1 ||
      header[5] > 2)
    return false;
  const cElfLayout& L = header[4] == 2 ? kElf64 : kElf32;
  const cFieldReader field(header[5] == 2);
  if (file.Size() < L.headerSize) return false;
  const std::uint64_t shoff = field(header + L.shoff, L.addrSize);
  const std::uint64_t entry = field(header + L.shentsize, 2);
  std::uint64_t count = field(header + L.shnum, 2);
  std::uint64_t names = field(header + L.shstrndx, 2);
  if (shoff == 0 || entry < L.sectionSize) return false;
  // With very many sections the count and the name table's index move to section 0.
  if (count == 0 || names == kIndexElsewhere) {
    std::vector<unsigned char> first(L.sectionSize);
    if (!file.Read(shoff, first.size(), first.data())) return false;
    if (count == 0) count = field(first.data() + L.secSize, L.addrSize);
    if (names == kIndexElsewhere) names = field(first.data() + L.secLink, 4);
  }
  if (names >= count || count > kMaxHeaderTable / entry || !file.Inside(shoff, count * entry)) return false;
  table = {&L, field, std::vector<unsigned char>(count * entry), entry, count, names};
  return file.Read(shoff, table.bytes.size(), table.bytes.data());
}

// The section whose name is `name`, or -1.
std::int64_t FindSection(cElfFile& file, const cSectionTable& table, std::string_view name) {
  const std::uint64_t namesAt = table.Offset(table.names);
  const std::uint64_t namesSize = std::min(table.Size(table.names), kMaxNameTable);
  std::string names(namesSize, '\0');
  if (table.Type(table.names) == kNoBits || !file.Read(namesAt, names.size(), names.data())) return -1;
  const std::string wanted = std::string(name) + '\0';
  for (std::uint64_t i = 0; i < table.count; ++i) {
    const std::uint64_t at = table.field(table.At(i), 4);
    if (at < names.size() && names.compare(at, wanted.size(), wanted) == 0) return static_cast<std::int64_t>(i);
  }
  return -1;
}

}  // namespace

cElfSection ReadElfSection(const fs::path& path, std::string_view name, std::size_t maxBytes) {
  cElfSection result;
  cElfFile file(path, result.nBytesRead);
  cSectionTable table;
  if (!ReadSectionTable(file, table)) return result;
  const std::int64_t found = FindSection(file, table, name);
  if (found < 0) return result;
  if (table.Type(found) == kNoBits) {
    result.bFound = true;
    return result;
  }
  const std::uint64_t size = table.Size(found);
  std::string contents(std::min<std::uint64_t>(size, maxBytes), '\0');
  if (!file.Inside(table.Offset(found), size) || !file.Read(table.Offset(found), contents.size(), contents.data()))
    return result;
  result.bFound = true;
  result.contents = std::move(contents);
  return result;
}
