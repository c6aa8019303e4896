#include "media/media_fixtures.h"

#include <csetjmp>

#include "support/test_env.h"

namespace {

void AppendBytes(png_structp png, png_bytep data, std::size_t length) {
  auto* out = static_cast<std::vector<unsigned char>*>(png_get_io_ptr(png));
  out->insert(out->end(), data, data + length);
}

// No objects with destructors here: libpng's errors jump back into this frame.
int Encode(const PngFixture* f, std::vector<unsigned char>* out, png_bytepp rows) {
  png_structp png = png_create_write_struct(PNG_LIBPNG_VER_STRING, nullptr, nullptr, nullptr);
  png_infop info = png_create_info_struct(png);
  if (setjmp(png_jmpbuf(png))) {
    png_destroy_write_struct(&png, &info);
    return 0;
  }
  png_set_write_fn(png, out, AppendBytes, nullptr);
  png_set_IHDR(png, info, static_cast<png_uint_32>(f->width), static_cast<png_uint_32>(f->height), f->bitDepth,
               f->colorType, f->interlaced ? PNG_INTERLACE_ADAM7 : PNG_INTERLACE_NONE, PNG_COMPRESSION_TYPE_DEFAULT,
               PNG_FILTER_TYPE_DEFAULT);
  if (!f->palette.empty()) png_set_PLTE(png, info, f->palette.data(), static_cast<int>(f->palette.size()));
  if (!f->trns.empty()) png_set_tRNS(png, info, f->trns.data(), static_cast<int>(f->trns.size()), nullptr);
  if (f->gamma > 0) png_set_gAMA(png, info, f->gamma);
  png_write_info(png, info);
  png_write_image(png, rows);
  png_write_end(png, info);
  png_destroy_write_struct(&png, &info);
  return 1;
}

void Put(std::vector<unsigned char>& b, std::size_t at, std::uint32_t v, int bytes = 4) {
  for (int i = 0; i < bytes; ++i) b[at + i] = (v >> (8 * i)) & 0xFF;
}

}  // namespace

std::vector<unsigned char> EncodePng(const PngFixture& f) {
  std::vector<unsigned char> data = f.rows, out;
  std::vector<png_bytep> rows;
  for (int y = 0; y < f.height; ++y) rows.push_back(data.data() + y * (data.size() / f.height));
  if (!Encode(&f, &out, rows.data())) out.clear();
  return out;
}

void WritePng(const std::filesystem::path& path, const PngFixture& fixture) {
  std::filesystem::create_directories(path.parent_path());
  WriteBytes(path, EncodePng(fixture));
}

std::vector<unsigned char> MakeBmp(const BmpFixture& f) {
  const std::size_t rows = static_cast<std::size_t>(f.height < 0 ? -f.height : f.height);
  const std::size_t rowBytes = (static_cast<std::size_t>(f.width) * f.bitCount + 7) / 8;
  const std::size_t stride = (static_cast<std::size_t>(f.width) * f.bitCount + 31) / 32 * 4;
  std::size_t at = 54;
  const std::size_t dataAt = at + 4 * (f.masks.size() + f.palette.size()) + f.gapBeforePixels;
  std::vector<unsigned char> b(dataAt + stride * rows, 0xA5);  // junk the reader must skip
  b[0] = 'B', b[1] = 'M';
  Put(b, 2, static_cast<std::uint32_t>(b.size()));
  Put(b, 6, 0);
  Put(b, 10, static_cast<std::uint32_t>(dataAt));
  for (std::size_t i = 30; i < 54; i += 4) Put(b, i, 0);
  Put(b, 14, 40);
  Put(b, 18, static_cast<std::uint32_t>(f.width));
  Put(b, 22, static_cast<std::uint32_t>(f.height));
  Put(b, 26, 1, 2);
  Put(b, 28, static_cast<std::uint32_t>(f.bitCount), 2);
  Put(b, 30, f.compression);
  Put(b, 46, f.colorsUsed);
  for (std::uint32_t v : f.masks) Put(b, (at += 4) - 4, v);
  for (std::uint32_t v : f.palette) Put(b, (at += 4) - 4, v);
  for (std::size_t r = 0; r < rows; ++r)
    std::copy_n(&f.rows[r * rowBytes], rowBytes, &b[dataAt + r * stride]);
  return b;
}

Bgr PixelAt(const cSurface& s, int x, int y) {
  const unsigned char* p = s.Pixel(x, y);
  return {p[0], p[1], p[2]};
}

Bgr MaskAt(const cSurface& s, int x, int y) {
  const unsigned char* p = s.MaskPixel(x, y);
  return {p[0], p[1], p[2]};
}

std::vector<Bgr> RowOf(const cSurface& s, int y) {
  std::vector<Bgr> out;
  for (int x = 0; x < s.m_nWidth; ++x) out.push_back(PixelAt(s, x, y));
  return out;
}

SHEET_DESC Sheet(const std::string& path, int bMask, int bOptional) {
  return SHEET_DESC{path, 24, bMask, 0, 0, 0, 0, bOptional};
}
