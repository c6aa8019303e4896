#pragma once
// The list control's protocol, apart from the record type: selection, the blank row,
// hidden leading elements, row numbers, limits, and the editing commands with their
// refusals. CTRL_LIST_CLASS<T> (toolkit/list_ctrl.h) adds the vectors and the records.
//
// A list works on three copies: the source vector (a field of the record the form
// edits), the working vector (rows are added and removed here) and the edit record
// (every other control of the form is bound to it). Selecting a row copies it to the
// edit record; a change of a control is committed from the edit record to the row;
// the working vector goes back to the source only in Apply, on OK.
//
// How the Qt side drives it:
//   user moved the selection  write the widget's selection into Box(), OnSelChange()
//   key or menu command       the form's dispatch (toolkit/list_command.h)
//   key in a modal form       OnKey(key, ctrl): the command ids to send to the form
//   right click               HitTest or HitTestRow; on 1 send the selection change to
//                             the form, then show the list's menu
//   focus lost                OnKillFocus()
//   scrolled                  OnScrolled(top row)
// After each command it pushes Box() to the widget: the rows when rowsRevision moved,
// the selection when selRevision moved. A refusal beeps through the current prompt.

#include <cstdint>
#include <string>
#include <vector>

#include "toolkit/list_box.h"

// Operations in the order of the command id tables.
enum eListOp : int { kListCut, kListCopy, kListPaste, kListNew, kListInsert, kListClear, kListDelete, kListOpCount };

// One of the fixed sets of ids a list takes: accelerator table, popup menu, and the
// key and menu command ids in operation order (0: the operation has no key or item).
// Free sets serve lists whose rows come and go; fixed sets serve the database tables,
// whose Delete clears a record and whose Ctrl+I adds one at the end.
struct cListIdSet {
  int nAccel;
  int nMenu;
  std::uint16_t aKey[kListOpCount];
  std::uint16_t aMenu[kListOpCount];
};
enum eListIdSet : int {
  kListFirstFree,
  kListFirstFixed,
  kListSecondFree,
  kListSecondFixed,
  kListThirdFree,
  kListThirdFixed,
  // A list whose rows follow another table (one per element, per skill list): no
  // editing command reaches it, since the next repair would undo the edit.
  kListNoEdit,
};
extern const cListIdSet kListIdSets[7];

// A rectangle in the co-ordinates of the point given to HitTest.
struct cListRect {
  int left, top, right, bottom;
};

class cListCtrlBase {
 public:
  cListCtrlBase();
  virtual ~cListCtrlBase() = default;

  void SetKeyCommands(const std::uint16_t ids[kListOpCount]);
  void SetMenuCommands(const std::uint16_t ids[kListOpCount]);
  void SetIdSet(const cListIdSet& set) {
    SetKeyCommands(set.aKey);
    SetMenuCommands(set.aMenu);
  }

  // Rows: elements behind the hidden leading ones; shown rows add the blank row.
  int RowCount() const;
  int ShownRows() const { return RowCount() + m_bBlankRow; }
  bool IsBlank(int row) const { return m_bBlankRow && row == RowCount(); }
  // A row with an element behind it.
  bool IsReal(int row) const { return row >= 0 && row < RowCount(); }

  // The selected row as the box has it; -1 for none.
  int GetSel() const;
  void Select(int row, int bEdit);
  void SelectOnly(int row, int bEdit);
  void Redraw();
  void RedrawSel();
  // The user moved the selection (Box() holds it); 1 when a real row is selected.
  int OnSelChange();
  // Copies the edit record to the selected element; 0 on none or the blank row.
  int CommitRow();

  // Each returns 1 on success, 0 after a refusal.
  int Append();
  int Insert();
  int Cut();
  virtual int Copy() = 0;       // to the list's own clipboard
  virtual int PasteClip() = 0;  // from the list's own clipboard
  int Clear();
  int Delete(int row, int bOnlySel);
  int Resize(int n);
  // Swaps the selected row with the one `delta` rows away, and the selection follows
  // it. 0, with nothing changed, when either row has no element.
  int MoveRow(int delta);

  // Runs the operation of a command id when the box has the focus; its result, or 0
  // for an id that is not the list's or whose operation the form runs itself.
  int HandleKeyCommand(unsigned id);
  int HandleMenuCommand(unsigned id);
  // The operation a key or menu command id stands for in this list; -1 for none.
  int OpOf(unsigned id) const;
  // The form runs `op` itself (an insert that opens a form, a delete that makes an undo
  // step): its key and menu item still send their ids to the form, and the list leaves
  // them alone.
  void LeaveToForm(int op) { m_nFormOps |= 1u << op; }
  // In a modal form, where no accelerators run: the command ids a key stands for,
  // which the form receives as commands. `key` is a virtual key code.
  std::vector<unsigned> OnKey(int key, bool bCtrl) const;
  // The right-click protocol: 1 when the point lands on a row of a current owner. Rows
  // count 12 pixels from 2 pixels below the box's top. HitTestRow serves a toolkit
  // that finds the row itself (-1 for none).
  int HitTest(int x, int y, const cListRect& box, bool ownerCurrent);
  int HitTestRow(int row, bool ownerCurrent);

  virtual void Update() = 0;
  virtual void Apply(bool ownerUpdating) = 0;
  void OnKillFocus();
  // The user scrolled the box; the top row is kept across rebuilds.
  void OnScrolled(int topIndex);
  // Drawing is held from the start of a command until RedrawSel.
  void Freeze() { m_Box.frozen = true; }

  cListBox& Box() { return m_Box; }
  const cListBox& Box() const { return m_Box; }

  std::uint16_t m_nId = 0;
  int m_nCurSel = -1;
  int m_nAnchor = -1;
  VECTOR_CLASS<int> m_vecSelFlag;
  int m_nPrevSel = -1;
  VECTOR_CLASS<int> m_vecPrevFlag;
  int m_nTopIndex = 0;
  int m_bMulti = 0;
  int m_bRowNumbers = 0;
  int m_nMinRows = 0, m_nMaxRows = 0;
  int m_bAllowNoSel = 0;
  int m_nFirstRow = 0;
  int m_bBlankRow = 0;
  std::uint16_t m_aKeyCmd[kListOpCount];
  std::uint16_t m_aMenuCmd[kListOpCount];
  std::string m_strBlank;
  unsigned m_nFormOps = 0;  // a bit per eListOp

 protected:
  struct cRowsInit {
    std::uint16_t nId;
    int bMulti, bRowNumbers, nMinRows, nMaxRows, nFirstRow, bBlankRow, bAllowNoSel;
  };
  // Binding after the vectors are in place; 0 for a list not on a vector.
  int BindRows(const cRowsInit& init);

  // The rows a copy takes, in row order; beeps and returns false when there are none.
  bool RowsToCopy(std::vector<int>& rows);
  // Paste: the row to paste at, or -1 after a refusal (with the beep).
  int PasteRow();
  void PasteDone(int row, int count);
  // Both flag vectors sized to the shown rows.
  void FitFlags();

  // The vector and the records behind the rows, by element index.
  virtual int Size() const = 0;
  virtual bool HasEditRec() const = 0;
  virtual void EditTakes(int element) = 0;
  virtual void EditTakesDefault() = 0;
  virtual void EditReset() = 0;
  virtual void ElementTakesEdit(int element) = 0;
  virtual bool InsertDefault(int element) = 0;
  virtual void Erase(int element) = 0;
  virtual void ResetElement(int element) = 0;
  virtual void ResizeElements(int size) = 0;
  virtual void SwapElements(int a, int b) = 0;
  virtual void RowText(std::string& out, int element) const = 0;

  cListBox m_Box;

 private:
  int Run(int op);
  bool AtMax() const { return Size() >= m_nMaxRows + m_nFirstRow; }
  bool AtMin() const { return Size() <= m_nMinRows + m_nFirstRow; }
  void FlagOnly(int row);
  int FirstFlagged() const;
  int AddRow(int row);
};

// The refusal beep.
void ListBeep();
