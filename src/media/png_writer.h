#pragma once
// Writes a surface as a PNG file: the colour plane only, as 8-bit RGB, or RGBA where
// the surface holds alpha. The file is written whole or not at all.

#include <filesystem>
#include <string>

#include "media/surface.h"

// Encodes `surface` into PNG bytes. An empty surface or an 8-bit one gives an empty
// result and sets `error`.
std::string EncodePng(const cSurface& surface, std::string& error);

// EncodePng, then an atomic write to `path`. False with `error` set on any failure;
// an existing file is then left as it was.
bool SavePng(const cSurface& surface, const std::filesystem::path& path, std::string& error);
