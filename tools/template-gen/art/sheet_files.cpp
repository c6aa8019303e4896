#include "art/sheet_files.h"

#include <cstdint>
#include <vector>

#include "art/art_layout.h"
#include "media/bmp_writer.h"
#include "media/png_writer.h"
#include "platform/file_io.h"

namespace art {

bool SaveSheet(const cCanvas& canvas, eSheetKind kind, const std::filesystem::path& path, std::string& error) {
  cSurface surface;
  const bool alpha = kind == eSheetKind::kMasked;
  if (!surface.Create(canvas.Width(), canvas.Height(), alpha ? 32 : 24, 0)) {
    error = "cannot create a surface for " + path.string();
    return false;
  }
  const std::uint32_t key = TemplateArt::kKeyColour;
  for (int y = 0; y < canvas.Height(); ++y) {
    unsigned char* p = surface.Pixel(0, y);
    for (int x = 0; x < canvas.Width(); ++x, p += surface.BytesPerPixel()) {
      std::uint32_t v = canvas.Raw(x, y);
      const bool opaque = (v >> 24) != 0;
      v &= 0xFFFFFF;
      if (kind == eSheetKind::kKeyed) {
        if (!opaque) v = key;
        else if (v == key) v ^= 1;  // one step of blue away from the key
      }
      p[0] = static_cast<unsigned char>(v);
      p[1] = static_cast<unsigned char>(v >> 8);
      p[2] = static_cast<unsigned char>(v >> 16);
      if (alpha) p[3] = opaque ? 255 : 0;
    }
  }
  return SavePng(surface, path, error);
}

bool SaveToolbarBmp(const cCanvas& canvas, const std::filesystem::path& path, std::string& error) {
  const std::vector<unsigned char> file = EncodeBmp24(canvas.Width(), canvas.Height(), [&](int x, int y) {
    if (!canvas.Opaque(x, y)) return std::uint32_t{0xC0C0C0};  // the button face
    const std::uint32_t rgb = canvas.Raw(x, y);
    return (rgb & 0xFF) << 16 | (rgb & 0xFF00) | (rgb >> 16 & 0xFF);
  });
  if (!WriteFileAtomic(path, file.data(), file.size())) {
    error = "cannot write " + path.string();
    return false;
  }
  return true;
}

}  // namespace art
