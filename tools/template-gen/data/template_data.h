#pragma once
// The template's records: the "default" data tree, the editor's own start files and
// "System.ini".

#include <filesystem>
#include <string>

// Writes "default\" (the pristine data tree), "e_data\" and "System.ini" under `root`.
// False with `error` set when a file cannot be written.
bool WriteTemplateData(const std::filesystem::path& root, std::string& error);
