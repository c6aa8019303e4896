#pragma once
// Reading a grid of cells back into a skill table. Strict about identity (type cell,
// numbering, row count): a file that fails them is refused before anything changes.
// Tolerant about content: columns go by their headers, so they may be reordered or
// left out, and out-of-range values are repaired with a message each.

#include <string>

#include "database/csv_text.h"
#include "database/skill_csv_columns.h"

// 1 when the grid was taken, 0 after the message of the check it failed, with `skills`
// untouched. Number cells are normalised in the grid itself. Fields without a column
// keep their values.
int GridToSkills(VECTOR_CLASS<cSkill>& skills, CSV_GRID& grid, const VECTOR_CLASS<cCsvColumn>& columns,
                 const std::string& typeName);

// Characters of a text as the game shows them: a double-byte character is one, a line
// feed none, and an icon code ("#P" or "#p", digits, an optional period) one.
int CsvTextChars(const std::string& text);
// The first `maxChars` characters of `text`, counted as above.
std::string CsvCutText(const std::string& text, int maxChars);
