#include "toolkit/list_order.h"

#include "toolkit/dlg_class.h"

bool OrderButtonCommand(DLG_CLASS& form, cListCtrlBase& list, const cOrderButtons& buttons, unsigned id) {
  if (id == buttons.up) list.MoveRow(-1);
  else if (id == buttons.down) list.MoveRow(1);
  else if (id == buttons.del) {
    list.Delete(-1, 0);
    form.UpdateAllExcept(list);
  } else {
    return false;
  }
  return true;
}
