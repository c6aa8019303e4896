// PNG sheets through libpng, fed from memory so that a file that ends early is an error
// reported by libpng, never a read past the data.

#include <png.h>

#include <csetjmp>
#include <cstring>

#include "media/surface.h"
#include "platform/cp932.h"
#include "platform/file_io.h"
#include "platform/stored_path.h"

namespace {

struct PngMemory {
  const unsigned char* data;
  std::size_t size;
  std::size_t pos;
};

void ReadFromMemory(png_structp png, png_bytep out, std::size_t length) {
  auto* memory = static_cast<PngMemory*>(png_get_io_ptr(png));
  if (length > memory->size - memory->pos) png_error(png, "unexpected end of file");
  std::memcpy(out, memory->data + memory->pos, length);
  memory->pos += length;
}

// Errors return to the frame that armed setjmp; libpng's own printing is not wanted.
[[noreturn]] void OnPngError(png_structp png, png_const_charp) { png_longjmp(png, 1); }
void OnPngWarning(png_structp, png_const_charp) {}

// Everything the decoding frames share. Plain data only: the frames that call setjmp
// hold no object with a destructor, since a long jump would skip it.
struct PngDecode {
  png_structp png;
  png_infop info;
  PngMemory memory;
  png_uint_32 width;
  png_uint_32 height;
  int channels;
  int bitDepth;
  int passes;
};

using RowSink = void (*)(void* context, png_uint_32 y, const unsigned char* row);

// Header, transforms and gamma. 0 when libpng reported an error.
int PngStart(PngDecode* d) {
  if (setjmp(png_jmpbuf(d->png))) return 0;
  png_set_read_fn(d->png, &d->memory, ReadFromMemory);
  png_read_info(d->png, d->info);
  png_set_strip_16(d->png);
  png_set_gray_to_rgb(d->png);
  png_set_expand(d->png);
  png_set_bgr(d->png);
  double fileGamma = 0;
  if (!png_get_gAMA(d->png, d->info, &fileGamma)) fileGamma = 0.45455;
  png_set_gamma(d->png, 2.2, fileGamma);
  d->passes = png_set_interlace_handling(d->png);
  png_read_update_info(d->png, d->info);
  d->width = png_get_image_width(d->png, d->info);
  d->height = png_get_image_height(d->png, d->info);
  d->channels = png_get_channels(d->png, d->info);
  d->bitDepth = png_get_bit_depth(d->png, d->info);
  return 1;
}

// The whole image into `rows` (every pass of an interlaced file), then the end chunks.
int PngReadImage(PngDecode* d, png_bytepp rows) {
  if (setjmp(png_jmpbuf(d->png))) return 0;
  png_read_image(d->png, rows);
  png_read_end(d->png, d->info);
  return 1;
}

// A non-interlaced image row by row through one buffer, each row handed to `sink`.
int PngReadRows(PngDecode* d, png_bytep row, RowSink sink, void* context) {
  if (setjmp(png_jmpbuf(d->png))) return 0;
  for (png_uint_32 y = 0; y < d->height; ++y) {
    png_read_row(d->png, row, nullptr);
    sink(context, y, row);
  }
  png_read_end(d->png, d->info);
  return 1;
}

// 32-bit data onto a 24-bit surface: alpha 0 becomes 0, 0, 0, the transparent colour
// of an alpha sheet; opaque pure black becomes blue 1 so that it is not taken for it.
void DropAlpha(const unsigned char* s, unsigned char* d, png_uint_32 n) {
  for (png_uint_32 i = 0; i < n; ++i, s += 4, d += 3) {
    unsigned char b = s[0], g = s[1], r = s[2];
    if (s[3] == 0) {
      b = g = r = 0;
    } else if ((b | g | r) == 0) {
      b = 1;
    }
    d[0] = b;
    d[1] = g;
    d[2] = r;
  }
}

struct AlphaTarget {
  unsigned char* base;
  std::size_t stride;
  png_uint_32 width;
};

void DropAlphaSink(void* context, png_uint_32 y, const unsigned char* row) {
  auto* target = static_cast<AlphaTarget*>(context);
  DropAlpha(row, target->base + y * target->stride, target->width);
}

void DiscardSink(void*, png_uint_32, const unsigned char*) {}

}  // namespace

int cSurface::LoadPng(const std::string& path, const SHEET_DESC& desc, int bReport) {
  std::vector<unsigned char> file;
  if (!ReadWholeFile(NativePathOf(path), file)) {
    if (bReport) MSP(CP932_TEXT("%s が読み込めません！").c_str(), path.c_str());
    return 0;
  }
  if (file.size() < 8 || png_sig_cmp(file.data(), 0, 8) != 0) {
    MSP(CP932_TEXT("%s はpngファイルではありません！").c_str(), path.c_str());
    return 0;
  }

  PngDecode d{};
  d.memory = PngMemory{file.data(), file.size(), 0};
  d.png = png_create_read_struct(PNG_LIBPNG_VER_STRING, nullptr, OnPngError, OnPngWarning);
  if (d.png) d.info = png_create_info_struct(d.png);
  auto fail = [&]() {
    png_destroy_read_struct(d.png ? &d.png : nullptr, d.info ? &d.info : nullptr, nullptr);
    Release();
    MSP(CP932_TEXT("%s が読み込めません！\nファイルが不正、もしくは対応していない形式です。").c_str(), path.c_str());
    return 0;
  };
  if (!d.info || !PngStart(&d)) return fail();

  // The transforms leave three or four channels of 8 bits.
  int depth = d.channels * d.bitDepth;
  if (depth != 24 && depth != 32) {
    png_destroy_read_struct(&d.png, &d.info, nullptr);
    MSP(CP932_TEXT("%s (%dbit)の読み込みに失敗しました！\n8bit,24bit,32bit以外のカラーには対応していません。").c_str(),
        path.c_str(), depth);
    return 0;
  }
  if (!Create(static_cast<int>(d.width), static_cast<int>(d.height), desc.nBits, desc.bMask)) {
    png_destroy_read_struct(&d.png, &d.info, nullptr);
    MSP(CP932_TEXT("%s の作成に失敗しました！").c_str(), path.c_str());
    return 0;
  }
  m_bAlpha = depth == 32;

  const std::size_t rowBytes = static_cast<std::size_t>(d.width) * static_cast<std::size_t>(depth / 8);
  const bool interlaced = d.passes > 1;
  std::vector<png_bytep> rows;
  std::vector<unsigned char> scratch;
  int ok = 0;
  if (m_nBits == 24 && depth == 24) {
    // Rows straight into the surface.
    rows.resize(d.height);
    for (png_uint_32 y = 0; y < d.height; ++y) rows[y] = m_vecBits.data() + y * rowBytes;
    ok = PngReadImage(&d, rows.data());
  } else if (interlaced) {
    // Every pass revisits all rows, so the whole image is held before it is converted.
    scratch.resize(rowBytes * d.height);
    rows.resize(d.height);
    for (png_uint_32 y = 0; y < d.height; ++y) rows[y] = scratch.data() + y * rowBytes;
    ok = PngReadImage(&d, rows.data());
    if (ok && m_nBits == 24) {
      for (png_uint_32 y = 0; y < d.height; ++y) DropAlpha(rows[y], Pixel(0, static_cast<int>(y)), d.width);
    }
  } else {
    scratch.resize(rowBytes);
    AlphaTarget target{m_vecBits.data(), static_cast<std::size_t>(Stride()), d.width};
    ok = m_nBits == 24 ? PngReadRows(&d, scratch.data(), DropAlphaSink, &target)
                       : PngReadRows(&d, scratch.data(), DiscardSink, nullptr);
  }
  if (!ok) return fail();
  png_destroy_read_struct(&d.png, &d.info, nullptr);

  // Only 24-bit sheets take the pixels; other depths keep their white plane.
  if (m_nBits != 24) ECMSP("%s", CP932_TEXT("24bitDIB以外は未対応").c_str());
  return 1;
}
