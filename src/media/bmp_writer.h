#pragma once
// Plain 24-bit bitmap files, bottom-up with rows padded to 4 bytes, as a paint program
// writes them: the form the editor's tool bar pictures take.

#include <cstdint>
#include <functional>
#include <vector>

// The bytes of a width x height bitmap; `colourAt` gives 0xBBGGRR for each pixel.
std::vector<unsigned char> EncodeBmp24(int width, int height, const std::function<std::uint32_t(int x, int y)>& colourAt);
