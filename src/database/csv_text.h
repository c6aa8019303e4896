#pragma once
// The text of a spreadsheet exchange file and its grid of cells. Cells are CP932 bytes;
// the parser needs no knowledge of double-byte characters to find separators, since
// neither a comma nor a double quote can be a trail byte.

#include <string>
#include <string_view>

#include "kernel/vector_class.h"

using CSV_ROW = VECTOR_CLASS<std::string>;
using CSV_GRID = VECTOR_CLASS<CSV_ROW>;

// One row per line ("\n" ends a line; the last line needs none). A cell that starts
// with a double quote is quoted: "" gives one quote, a single quote ends the quoted
// part, and what follows it up to the next comma still belongs to the cell. Each cell
// loses its leading and trailing spaces, ASCII and full-width. An empty line is one
// empty cell; a comma at the end of a line is followed by an empty cell.
void TokenizeCsv(std::string_view text, CSV_GRID& grid);

// The cells of a line, as TokenizeCsv cuts them.
void TokenizeCsvLine(std::string_view line, CSV_ROW& row);

// The cells joined by commas, each row ended by "\n". Cells are taken as they are:
// quoting is the business of whoever fills the grid.
std::string JoinCsv(const CSV_GRID& grid);
