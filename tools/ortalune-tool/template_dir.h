#pragma once
// Where the project template lies: $ORTALUNE_TEMPLATE when set, else
// share/ortalune/template beside the program's own bin directory, which is where both
// the build tree and an installation put it.

#include <filesystem>

std::filesystem::path ProjectTemplateDir();
