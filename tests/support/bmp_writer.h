#pragma once
// Writes plain 24-bit bitmap files for tests, bottom-up with padded rows, as a paint
// program does.

#include <cstdint>
#include <filesystem>
#include <functional>

// `colourAt` gives 0xBBGGRR for each pixel.
void WriteBmp24(const std::filesystem::path& path, int width, int height,
                const std::function<std::uint32_t(int x, int y)>& colourAt);
