#pragma once
// Image files made by the tests themselves (PNG through libpng's writer, BMP byte by
// byte) and short ways to read pixels.

#include <png.h>

#include <array>
#include <cstdint>
#include <filesystem>
#include <vector>

#include "media/surface.h"

struct PngFixture {
  int width, height, colorType, bitDepth;
  std::vector<unsigned char> rows;  // as PNG stores them, back to back
  std::vector<png_color> palette = {};
  std::vector<unsigned char> trns = {};  // palette alphas
  bool interlaced = false;
  double gamma = 0;  // 0: no gAMA chunk
};
std::vector<unsigned char> EncodePng(const PngFixture& fixture);
void WritePng(const std::filesystem::path& path, const PngFixture& fixture);

struct BmpFixture {
  int width, height;  // a negative height stores the top row first
  int bitCount;
  std::vector<unsigned char> rows;       // stored rows without padding, in file order
  std::vector<std::uint32_t> palette = {};  // 0xRRGGBB
  std::uint32_t colorsUsed = 0;
  std::uint32_t compression = 0;
  std::vector<std::uint32_t> masks = {};  // bit fields behind the header
  int gapBeforePixels = 0;                // junk between the headers and the pixels
};
std::vector<unsigned char> MakeBmp(const BmpFixture& fixture);

using Bgr = std::array<int, 3>;
Bgr PixelAt(const cSurface& s, int x, int y);
Bgr MaskAt(const cSurface& s, int x, int y);
std::vector<Bgr> RowOf(const cSurface& s, int y);
SHEET_DESC Sheet(const std::string& path, int bMask = 0, int bOptional = 0);
