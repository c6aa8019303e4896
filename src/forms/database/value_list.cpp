#include "forms/database/value_list.h"

#include "forms/input_forms.h"
#include "platform/cp932.h"

bool EditListValue(DLG_CLASS& form, CTRL_LIST_CLASS<std::int32_t>& list, int min, int max, const char* caption) {
  const int row = list.GetSel();
  if (!list.IsReal(row) || list.m_pWork == nullptr) return false;
  std::int32_t& entry = (*list.m_pWork)[row + list.m_nFirstRow];
  int value = entry;
  if (!InputValue(&form, nullptr, &value, min, max, Utf8ToCp932Lossy(caption))) return false;
  entry = value;
  list.Redraw();
  return true;
}
