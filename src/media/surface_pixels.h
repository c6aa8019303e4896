#pragma once
// Pixel conversions shared by the surface's own files. Not for use outside media.

#include <cstddef>
#include <cstdint>

namespace surface_pixels {

// The nearest palette entry of an 8-bit surface (squared distance, lowest index wins).
unsigned char NearestIndex(unsigned char b, unsigned char g, unsigned char r);

// The bytes a drawing colour (0xBBGGRR) takes in a surface of `bits`: blue, green, red
// and alpha 255, or one palette index.
void ColourBytes(std::uint32_t colour, int bits, unsigned char out[4]);

// Converts n pixels between depths; pixels that gain an alpha byte get 255.
void ConvertPixels(const unsigned char* src, int srcBits, unsigned char* dst, int dstBits, std::size_t n);

// Writes one pixel of `bpp` bytes n times from `dst` on.
void FillPixels(unsigned char* dst, const unsigned char* pixel, int bpp, std::size_t n);

}  // namespace surface_pixels
