#include "media/png_writer.h"

#include <png.h>

#include <csetjmp>
#include <vector>

#include "platform/file_io.h"

namespace {

void AppendToString(png_structp png, png_bytep data, png_size_t length) {
  auto* out = static_cast<std::string*>(png_get_io_ptr(png));
  out->append(reinterpret_cast<const char*>(data), length);
}

void NoFlush(png_structp) {}

// libpng reports through a long jump; the message is kept for the caller.
void KeepError(png_structp png, png_const_charp message) {
  *static_cast<std::string*>(png_get_error_ptr(png)) = message;
  png_longjmp(png, 1);
}

void IgnoreWarning(png_structp, png_const_charp) {}

}  // namespace

std::string EncodePng(const cSurface& surface, std::string& error) {
  if (surface.IsEmpty() || (surface.m_nBits != 24 && surface.m_nBits != 32)) {
    error = "only 24-bit and 32-bit surfaces can be written as PNG";
    return {};
  }
  const bool alpha = surface.m_nBits == 32;
  const int channels = alpha ? 4 : 3;
  std::vector<png_byte> row(static_cast<std::size_t>(surface.m_nWidth) * static_cast<std::size_t>(channels));
  std::string out;
  png_structp png = png_create_write_struct(PNG_LIBPNG_VER_STRING, &error, KeepError, IgnoreWarning);
  png_infop info = png ? png_create_info_struct(png) : nullptr;
  if (png == nullptr || info == nullptr) {
    png_destroy_write_struct(&png, &info);
    error = "out of memory";
    return {};
  }
  if (setjmp(png_jmpbuf(png))) {
    png_destroy_write_struct(&png, &info);
    return {};
  }
  png_set_write_fn(png, &out, AppendToString, NoFlush);
  png_set_IHDR(png, info, static_cast<png_uint_32>(surface.m_nWidth), static_cast<png_uint_32>(surface.m_nHeight), 8,
               alpha ? PNG_COLOR_TYPE_RGBA : PNG_COLOR_TYPE_RGB, PNG_INTERLACE_NONE, PNG_COMPRESSION_TYPE_DEFAULT,
               PNG_FILTER_TYPE_DEFAULT);
  png_write_info(png, info);
  const int bytes = surface.BytesPerPixel();
  for (int y = 0; y < surface.m_nHeight; ++y) {
    const unsigned char* source = surface.Pixel(0, y);
    png_byte* target = row.data();
    for (int x = 0; x < surface.m_nWidth; ++x, source += bytes, target += channels) {
      // The surface holds blue, green, red (, alpha); the file red first.
      target[0] = source[2];
      target[1] = source[1];
      target[2] = source[0];
      if (alpha) target[3] = source[3];
    }
    png_write_row(png, row.data());
  }
  png_write_end(png, info);
  png_destroy_write_struct(&png, &info);
  return out;
}

bool SavePng(const cSurface& surface, const std::filesystem::path& path, std::string& error) {
  std::string bytes = EncodePng(surface, error);
  if (bytes.empty()) return false;
  if (!WriteFileAtomic(path, bytes.data(), bytes.size())) {
    error = "cannot write " + path.string();
    return false;
  }
  return true;
}
