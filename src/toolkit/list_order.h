#pragma once
// The three buttons beside a list whose entries the user puts in order: "↑" and "↓"
// swap the selected entry with its neighbour, the selection going with it, and "削除"
// removes the selection and shows the entry that takes its place.

class DLG_CLASS;
class cListCtrlBase;

struct cOrderButtons {
  unsigned up, down, del;
};

// Runs the button `id`; false when it is none of them.
bool OrderButtonCommand(DLG_CLASS& form, cListCtrlBase& list, const cOrderButtons& buttons, unsigned id);
