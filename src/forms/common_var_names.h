#pragma once
// The names of the common variables as the forms offer them: one combo row per
// variable, its number in three digits and its name, and the "_" button beside such a
// combo that renames the variable chosen. A rename is saved at once: the names live in
// a file of their own, apart from whatever the form edits.

#include <string>

#include "kernel/vector_class.h"

class DLG_CLASS;

// The variables 1 to 999, made again from the names as they stand: row r is variable
// r + 1, so a combo over them takes the first value 1.
const VECTOR_CLASS<std::string>& CommonVarLabels();
constexpr int kFirstCommonVar = 1;

// Asks for a new name of variable `row` ("変数名の入力", 12 characters) and saves the
// names. Row 0 names no variable and beeps. True when a name was given.
bool RenameCommonVar(DLG_CLASS& form, int row);
