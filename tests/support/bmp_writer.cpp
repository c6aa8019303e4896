#include "support/bmp_writer.h"

#include <fstream>

#include "media/bmp_writer.h"

void WriteBmp24(const std::filesystem::path& path, int width, int height,
                const std::function<std::uint32_t(int x, int y)>& colourAt) {
  const std::vector<unsigned char> out = EncodeBmp24(width, height, colourAt);
  std::ofstream(path, std::ios::binary).write(reinterpret_cast<const char*>(out.data()), static_cast<std::streamsize>(out.size()));
}
