#pragma once
// The lists of numbers of the database forms (a resistance per element, a sense per
// category): a double click or "編集" asks for the selected entry's number.

#include <cstdint>

#include "toolkit/dlg_class.h"

// Asks for the value of the selected row of `list`, which shows `values`, within
// min..max under `caption` (UTF-8). True when the user confirmed a number, which is
// then in the vector and in the row's text. Nothing for no row or the blank row.
bool EditListValue(DLG_CLASS& form, CTRL_LIST_CLASS<std::int32_t>& list, int min, int max, const char* caption);

// Declares a list of numbers that follows another table: rows from `firstRow`, each
// shown by `rowText(element index, value)`, no editing commands of its own.
template <class RowText>
cListInit<std::int32_t> ValueListInit(VECTOR_CLASS<std::int32_t>* values, int firstRow, bool rowNumbers,
                                      RowText rowText) {
  cListInit<std::int32_t> init;
  init.bMulti = 1;
  init.pWork = values;
  init.nFirstRow = firstRow;
  init.bRowNumbers = rowNumbers ? 1 : 0;
  init.bBlankRow = 1;
  init.nMinRows = 0;
  init.pfnRowText = [rowText](std::string& out, int e, const std::int32_t& v) { out = rowText(e, v); };
  return init;
}
