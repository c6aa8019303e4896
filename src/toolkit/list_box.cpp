#include "toolkit/list_box.h"

void cListBox::Reset() {
  rows.clear();
  curSel = -1;
  sel.clear();
  caret = anchor = -1;
  topIndex = 0;
}
