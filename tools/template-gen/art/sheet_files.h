#pragma once
// Canvas to file: the sheet formats the project reads.

#include <filesystem>
#include <string>

#include "art/painter.h"

namespace art {

enum class eSheetKind {
  kOpaque,  // 24-bit PNG; every pixel is shown
  kMasked,  // 32-bit PNG; transparent pixels have alpha 0
  kKeyed,   // 24-bit PNG on the key colour, which an opaque pixel never takes
};

bool SaveSheet(const cCanvas& canvas, eSheetKind kind, const std::filesystem::path& path, std::string& error);

// A 24-bit bottom-up BMP for the editor's tool bars, on the button face grey.
bool SaveToolbarBmp(const cCanvas& canvas, const std::filesystem::path& path, std::string& error);

}  // namespace art
