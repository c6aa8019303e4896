#pragma once
// The combo's rules: which rows it shows, which row stands for the field's value and
// which value a row stores. Rows come from a static label table (UTF-8, ending with
// "") or from labels built at run time (CP932, as record names are); the stored value
// is row + nOffset, or pValues[row] when the form gives a value table.
//
// The Qt side fills the widget from Rows(), selects Update()'s row (-1: none), stores
// with Apply(current row) and calls SetLabels when the form replaces the rows.

#include <cstdint>
#include <string>
#include <vector>

#include "kernel/vector_class.h"

struct cComboInit {
  std::uint16_t nId = 0;
  int* pData = nullptr;
  const char* const* pLabels = nullptr;                    // or null
  const VECTOR_CLASS<std::string>* pLabelVector = nullptr;  // used when pLabels is null
  int nOffset = 0;                                          // the value of row 0
  const VECTOR_CLASS<int>* pValues = nullptr;               // if set, value = pValues[row]
  int bKeepWithoutRow = 0;  // no row selected: Apply leaves the field alone
};

class cComboRules {
 public:
  void Bind(const cComboInit& init);

  // The rows as the widget shows them, UTF-8.
  const std::vector<std::string>& Rows() const { return m_vecRows; }
  // The row of `value`; -1 when no row stands for it.
  int RowOfValue(int value) const;
  // The value that row `row` stores; -1 for no row or a row past the value table.
  int ValueOfRow(int row) const;

  // The row to select for the field.
  int Update() const { return RowOfValue(*m_Init.pData); }
  // A box with rows but none selected shows a value that none of them stands for (a
  // name file past the list, a reference the list no longer reaches): the field keeps
  // it, since every Apply of the form would otherwise overwrite it with -1.
  void Apply(int row, bool ownerUpdating) {
    // A value no row shows stays where the box asks for it, or while the box has rows
    // at all (a row the user cannot have chosen); else it becomes the no-row value.
    if (ownerUpdating || (row < 0 && (m_Init.bKeepWithoutRow || !m_vecRows.empty()))) return;
    *m_Init.pData = ValueOfRow(row);
  }
  // Replaces the rows and answers the row to select, keeping the value of row `curRow`
  // where it can: a new value table starts at row 0; without one, a value below the
  // offset takes row 0 and one past the rows the last row. This is how a combo over a
  // database list keeps working when the list has shrunk.
  int SetLabels(const char* const* labels, const VECTOR_CLASS<int>* pValues, int curRow);
  int SetLabels(const VECTOR_CLASS<std::string>& labels, const VECTOR_CLASS<int>* pValues, int curRow);

 private:
  int Reselect(int value, const VECTOR_CLASS<int>* pValues);
  void FillRows(const char* const* labels, const VECTOR_CLASS<std::string>* labelVector);

  cComboInit m_Init;
  std::vector<std::string> m_vecRows;
};
