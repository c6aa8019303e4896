#pragma once
// The list box behind a list control, as plain state: its rows, its selection, caret,
// anchor and top row. The list control tells the box after each command; the box is
// the authority only when the user has moved the selection, and then the Qt side
// writes the widget's selection here before it calls OnSelChange. The revisions say
// what to push to the widget: rows after a rebuild, the selection after RedrawSel.

#include <string>

#include "kernel/vector_class.h"

class cListBox {
 public:
  VECTOR_CLASS<std::string> rows;  // CP932
  bool multi = false;
  int curSel = -1;               // single selection
  VECTOR_CLASS<int> sel;         // multi-selection: one flag per row
  int caret = -1, anchor = -1;   // multi-selection
  int topIndex = 0;
  bool focus = false;            // the box has the keyboard focus
  bool frozen = false;           // drawing is held while a command runs
  unsigned rowsRevision = 0;
  unsigned selRevision = 0;

  int Count() const { return rows.Count(); }
  bool Valid(int row) const { return row >= 0 && row < Count(); }
  // Selects `row` alone; a row outside the box clears the selection. Single only.
  void SetCurSel(int row) { curSel = Valid(row) ? row : -1; }
  bool IsSelected(int row) const { return Valid(row) && (multi ? row < sel.Count() && sel[row] : row == curSel); }
  // Empties the box, and its selection with it.
  void Reset();
  void SetTopIndex(int row) { topIndex = row < 0 || Count() == 0 ? 0 : row >= Count() ? Count() - 1 : row; }
};
