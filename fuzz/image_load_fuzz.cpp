// Any bytes as a BMP or PNG file: the loaders refuse or load, never crash or read
// outside the data.

#include <cstdio>
#include <string>
#include <unistd.h>

#include "media/surface.h"
#include "platform/prompt.h"

namespace {

class cSilentPrompt : public cPrompt {
 public:
  int MessageBox(void*, const std::string&, const std::string&, unsigned) override { return IDOK; }
  void Beep() override {}
};

const std::string& ScratchPath(const char* extension) {
  static const std::string base = "/tmp/ortalune-fuzz-image-" + std::to_string(::getpid());
  static std::string path;
  path = base + extension;
  return path;
}

void LoadAs(const char* extension, const std::uint8_t* data, std::size_t size, int bMask) {
  const std::string& path = ScratchPath(extension);
  if (std::FILE* f = std::fopen(path.c_str(), "wb")) {
    std::fwrite(data, 1, size, f);
    std::fclose(f);
  }
  SHEET_DESC desc{path, 24, bMask, 0, 0, 0, 0, 0};
  cSurface surface;
  surface.Load(desc);
  cSurface target;
  target.Create(64, 64, 24, 1);
  target.Blit(-3, -3, 100, 100, surface, 0, 0);
  std::remove(path.c_str());
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static cSilentPrompt silent;
  SetPrompt(&silent);
  g_nKeyColor = 0xFF00FF;
  int bMask = size > 0 ? data[size - 1] & 1 : 0;
  LoadAs(".bmp", data, size, bMask);
  LoadAs(".png", data, size, bMask);
  return 0;
}
