#pragma once
// Label tables: the text of each stored value as the forms show it, indexed by the
// value and ending with an empty entry, which is how a selection box finds the end.
// The labels are UTF-8 for the widgets; LabelText gives the CP932 form for texts that
// are built into record text.

#include <string>

// Number of labels ahead of the empty entry.
int LabelCount(const char* const* table);
// The label of `value`; "" when the table has no such value.
const char* LabelOf(const char* const* table, int value);
// The label of `value` as CP932; empty when the table has no such value.
std::string LabelText(const char* const* table, int value);
