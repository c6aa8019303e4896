#include "media/bmp_writer.h"

namespace {

void Put(std::vector<unsigned char>& out, std::uint32_t value, int bytes) {
  for (int i = 0; i < bytes; ++i) out.push_back(static_cast<unsigned char>(value >> (8 * i)));
}

}  // namespace

std::vector<unsigned char> EncodeBmp24(int width, int height, const std::function<std::uint32_t(int x, int y)>& colourAt) {
  const std::uint32_t rowBytes = (static_cast<std::uint32_t>(width) * 3 + 3) & ~3u;
  const std::uint32_t imageBytes = rowBytes * static_cast<std::uint32_t>(height);
  std::vector<unsigned char> out;
  Put(out, 0x4D42, 2);  // "BM"
  Put(out, 54 + imageBytes, 4);
  Put(out, 0, 4);
  Put(out, 54, 4);  // pixels right behind the two headers
  Put(out, 40, 4);
  Put(out, static_cast<std::uint32_t>(width), 4);
  Put(out, static_cast<std::uint32_t>(height), 4);  // positive: bottom-up
  Put(out, 1, 2);
  Put(out, 24, 2);
  Put(out, 0, 4);  // uncompressed
  Put(out, imageBytes, 4);
  Put(out, 2835, 4);  // 72 dots per inch
  Put(out, 2835, 4);
  Put(out, 0, 4);
  Put(out, 0, 4);
  for (int y = height - 1; y >= 0; --y) {
    const std::size_t start = out.size();
    for (int x = 0; x < width; ++x) {
      const std::uint32_t c = colourAt(x, y);
      out.push_back(static_cast<unsigned char>(c >> 16));  // blue
      out.push_back(static_cast<unsigned char>(c >> 8));   // green
      out.push_back(static_cast<unsigned char>(c));        // red
    }
    while ((out.size() - start) % 4 != 0) out.push_back(0);
  }
  return out;
}
