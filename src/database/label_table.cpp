#include "database/label_table.h"

#include "platform/cp932.h"

int LabelCount(const char* const* table) {
  int count = 0;
  while (*table[count] != '\0') ++count;
  return count;
}

const char* LabelOf(const char* const* table, int value) {
  if (value < 0 || value >= LabelCount(table)) return "";
  return table[value];
}

std::string LabelText(const char* const* table, int value) { return Cp932FromLiteral(LabelOf(table, value)); }
