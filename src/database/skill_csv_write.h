#pragma once
// Writing a skill table as a grid of cells: nine rows for people and the reader's
// checks, then one row per skill. Row 0 of the table is reserved and not written.

#include <string>

#include "database/csv_text.h"
#include "database/skill_csv_columns.h"

// Rows 0 to 8: two lines of advice, the type cell "データタイプ" with `typeName` below
// it, the hint, limit and header rows. Then for each skill from row 1 its number and one
// cell per column. A text holding a comma is put in double quotes; a quote inside it is
// not doubled, so a text that starts with a quote does not come back as it was.
void SkillsToGrid(CSV_GRID& grid, const VECTOR_CLASS<cSkill>& skills, const VECTOR_CLASS<cCsvColumn>& columns,
                  const std::string& typeName);

// The cell of one column of `skill`.
std::string CsvCellOf(const cCsvColumn& column, const cSkill& skill);
