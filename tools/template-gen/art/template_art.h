#pragma once
// The template's pictures and sounds, all drawn and synthesised here.

#include <filesystem>
#include <string>

// Writes "image\", "image\back\", "e_image\", "wave\" and "bgm\" under `root`. False
// with `error` set when a file cannot be written.
bool WriteTemplateMedia(const std::filesystem::path& root, std::string& error);
