// BMP sheets: uncompressed 8, 24 and 32 bits. The whole file is in memory and every
// field is checked against its size before a byte is read, so a damaged file gives the
// failure message and nothing else.

#include <cstdint>
#include <cstring>

#include "media/surface.h"
#include "platform/cp932.h"
#include "platform/file_io.h"
#include "platform/stored_path.h"

namespace {

constexpr std::size_t kFileHeader = 14;
constexpr std::size_t kInfoHeader = 40;
constexpr std::uint32_t kBiRgb = 0;
constexpr std::uint32_t kBiBitfields = 3;

std::uint32_t U16At(const std::vector<unsigned char>& f, std::size_t at) {
  return static_cast<std::uint32_t>(f[at] | f[at + 1] << 8);
}

std::uint32_t U32At(const std::vector<unsigned char>& f, std::size_t at) {
  return static_cast<std::uint32_t>(f[at]) | static_cast<std::uint32_t>(f[at + 1]) << 8 |
         static_cast<std::uint32_t>(f[at + 2]) << 16 | static_cast<std::uint32_t>(f[at + 3]) << 24;
}

// What the headers say, once they passed the checks.
struct BmpLayout {
  int width;
  int rows;
  bool topDown;
  int bitCount;
  std::size_t stride;     // bytes per stored row, padded to 4
  std::size_t dataAt;     // first byte of the pixel data
  std::size_t paletteAt;  // 8 bits only
  std::size_t paletteEntries;
};

// false for anything this reader cannot take safely: a short or inconsistent file,
// compression, unusual bit fields.
bool ParseLayout(const std::vector<unsigned char>& f, int bitCount, BmpLayout& out) {
  const std::size_t size = f.size();
  const std::uint32_t infoSize = U32At(f, 14);
  if (infoSize < kInfoHeader || infoSize > size - kFileHeader) return false;
  const std::int32_t width = static_cast<std::int32_t>(U32At(f, 18));
  const std::int32_t height = static_cast<std::int32_t>(U32At(f, 22));
  const std::uint32_t compression = U32At(f, 30);
  const std::uint32_t colorsUsed = U32At(f, 46);
  if (width <= 0 || height == 0 || height == INT32_MIN) return false;

  std::size_t headersEnd = kFileHeader + infoSize;
  if (compression == kBiBitfields && bitCount == 32) {
    // The three masks follow a 40-byte header, or sit inside a longer one, at the same
    // offset either way. Only the layout of plain 32-bit files is taken.
    if (size < kFileHeader + kInfoHeader + 12) return false;
    if (U32At(f, 54) != 0x00FF0000 || U32At(f, 58) != 0x0000FF00 || U32At(f, 62) != 0x000000FF) return false;
    if (infoSize == kInfoHeader) headersEnd += 12;
  } else if (compression != kBiRgb) {
    return false;
  }

  out.width = width;
  out.rows = height < 0 ? -height : height;
  out.topDown = height < 0;
  out.bitCount = bitCount;
  out.stride = (static_cast<std::size_t>(width) * static_cast<std::size_t>(bitCount) + 31) / 32 * 4;
  out.paletteAt = headersEnd;
  out.paletteEntries = 0;
  std::size_t paletteBytes = static_cast<std::size_t>(colorsUsed) * 4;
  if (bitCount == 8) {
    if (colorsUsed > 256) return false;
    out.paletteEntries = colorsUsed == 0 ? 256 : colorsUsed;
    paletteBytes = out.paletteEntries * 4;
    if (out.paletteAt > size || paletteBytes > size - out.paletteAt) return false;
  }
  const std::uint32_t offBits = U32At(f, 10);
  out.dataAt = offBits != 0 ? offBits : headersEnd + paletteBytes;
  // The last row needs its pixels, not its padding.
  const std::size_t lastRow = static_cast<std::size_t>(width) * static_cast<std::size_t>(bitCount / 8);
  if (out.dataAt > size) return false;
  const std::size_t available = size - out.dataAt;
  if (lastRow > available || (available - lastRow) / out.stride < static_cast<std::size_t>(out.rows - 1)) return false;
  return true;
}

}  // namespace

int cSurface::LoadBmp(const std::string& path, const SHEET_DESC& desc, int bReport) {
  const std::string& cannotRead = CP932_TEXT("%s が読み込めません！");
  std::vector<unsigned char> f;
  if (!ReadWholeFile(NativePathOf(path), f)) {
    if (bReport) MSP(cannotRead.c_str(), path.c_str());
    return 0;
  }
  if (f.size() < 2 || U16At(f, 0) != 19778) {
    MSP(CP932_TEXT("%s はビットマップファイルではありません！").c_str(), path.c_str());
    return 0;
  }
  if (f.size() < kFileHeader + kInfoHeader) {
    MSP(cannotRead.c_str(), path.c_str());
    return 0;
  }
  const int bitCount = static_cast<int>(U16At(f, 28));
  if (bitCount != 8 && bitCount != 24 && bitCount != 32) {
    MSP(CP932_TEXT("%s (%dbit)の読み込みに失敗しました！\n8bit,24bit,32bit以外のカラーには対応していません。").c_str(),
        path.c_str(), bitCount);
    return 0;
  }
  BmpLayout layout{};
  if (!ParseLayout(f, bitCount, layout) || !Create(layout.width, layout.rows, desc.nBits, desc.bMask)) {
    MSP(cannotRead.c_str(), path.c_str());
    return 0;
  }
  if (m_nBits != 24) {
    MSP(CP932_TEXT("24bitDIB以外には未対応！ %s").c_str(), path.c_str());
    return 1;
  }

  unsigned char palette[256][3] = {};
  for (std::size_t i = 0; i < layout.paletteEntries; ++i) std::memcpy(palette[i], &f[layout.paletteAt + i * 4], 3);

  const std::size_t stride = static_cast<std::size_t>(Stride());
  for (int r = 0; r < layout.rows; ++r) {
    // Rows are stored upwards unless the height was negative.
    int y = layout.topDown ? r : layout.rows - 1 - r;
    const unsigned char* s = f.data() + layout.dataAt + static_cast<std::size_t>(r) * layout.stride;
    unsigned char* d = m_vecBits.data() + static_cast<std::size_t>(y) * stride;
    switch (bitCount) {
      case 8:
        for (int x = 0; x < layout.width; ++x, d += 3) std::memcpy(d, palette[s[x]], 3);
        break;
      case 24:
        std::memcpy(d, s, stride);
        break;
      default:
        for (int x = 0; x < layout.width; ++x, s += 4, d += 3) std::memcpy(d, s, 3);
        break;
    }
  }
  return 1;
}
