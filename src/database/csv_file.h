#pragma once
// Spreadsheet exchange files on disk. They are text files of the home platform: a line
// ends in CR LF in the file and in "\n" in the grid.

#include <filesystem>

#include "database/csv_text.h"

// Writes the joined grid in one piece, replacing any file of that name. 1, or 0 when
// the file cannot be created or written.
int WriteCsv(const std::filesystem::path& path, const CSV_GRID& grid);

// Reads and tokenizes the whole file, however long its lines. 1, or 0 when the file
// cannot be opened; `grid` is then left as it was.
int ReadCsv(const std::filesystem::path& path, CSV_GRID& grid);
