#pragma once
// The usual list over a vector of records: several rows selected at once, each row
// numbered, and a blank row at the end to insert at. A form adds its source, edit
// record or first row where it has them.

#include <functional>
#include <string>
#include <type_traits>

#include "toolkit/list_ctrl.h"

template <class T>
cListInit<T> NumberedRows(VECTOR_CLASS<T>* work, int minRows, int maxRows,
                          std::type_identity_t<std::function<void(std::string&, int, const T&)>> rowText) {
  cListInit<T> init;
  init.bMulti = 1;
  init.pWork = work;
  init.bRowNumbers = 1;
  init.nMinRows = minRows;
  init.nMaxRows = maxRows;
  init.bBlankRow = 1;
  init.pfnRowText = std::move(rowText);
  return init;
}
