#pragma once
// Random names: a character with a random name takes it in the game from one of the
// numbered text files in "data\random_name". The editor only lists the files, as the
// entries of the name file box; it never opens them.

#include <string>
#include <string_view>
#include <vector>

#include "kernel/vector_class.h"

// The entries, "000 title", built once at start-up. Entry i is the file numbered i.
extern VECTOR_CLASS<std::string> g_vecNameFile;

// Fills `list` from the "*.txt" files of the folder. Numbering runs from 000 without a
// gap in sorted order; the first file that breaks it ends the list. When nothing is
// left the one entry "！ファイルが不正です" stands in.
void BuildNameFileList(VECTOR_CLASS<std::string>& list);

// The same over file names already found (CP932, any order).
void BuildNameFileListFrom(VECTOR_CLASS<std::string>& list, std::vector<std::string> fileNames);

// The order the platform sorts names in: letters compared without case first, and
// symbols before digits before letters; lower case goes first only between names that
// differ in case alone. Negative, 0 or positive.
int CompareNameOrder(std::string_view a, std::string_view b);
