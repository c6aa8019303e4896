#pragma once
// A list of records inside the record a form edits, each element edited in a modal
// form of its own:
//
//   "編集", a double click   the form on the selected element; OK writes it back
//   "挿入", its key and menu  a default element at the selection, and the form on it;
//                            Cancel takes the element out again
//   "削除"                    the selected elements go
//
// Nothing reaches the element before the form's OK. The owner hears of every change
// through the result of OnCommand and carries it on (a page commits its row).

#include <functional>

#include "toolkit/dlg_class.h"

struct cSubFormIds {
  unsigned list, edit, insert, remove;
};

template <class T>
class cSubFormList {
 public:
  // Runs the element's form; 1 on OK.
  using EditFn = std::function<int(T& element)>;

  explicit cSubFormList(cSubFormIds ids) : m_Ids(ids) {}

  // The list over `rows` (minRows..maxRows, a blank row at the end, each row `rowText`
  // of its element), labelled above, and its three buttons below.
  template <class RowText>
  void Declare(cFormTable& F, const char* label, VECTOR_CLASS<T>* rows, int minRows, int maxRows, RowText rowText,
               eListIdSet set, int shownRows) {
    cListInit<T> init;
    init.bMulti = 1;
    init.pWork = rows;
    init.nMinRows = minRows;
    init.nMaxRows = maxRows;
    init.bBlankRow = 1;
    init.pfnRowText = [rowText](std::string& out, int, const T& r) { out = rowText(r); };
    F.List(m_Ids.list, label, m_List, init, set, shownRows).LabelAbove().Span(3).Row();
    F.Button(m_Ids.edit, "編集").Button(m_Ids.insert, "挿入").Button(m_Ids.remove, "削除").Row();
  }

  // Once bound: the list's own insert (key and menu) comes to OnCommand instead, so
  // that an inserted element is always edited.
  void OnReady() {
    m_nInsertKey = m_List.m_aKeyCmd[kListInsert];
    m_nInsertMenu = m_List.m_aMenuCmd[kListInsert];
    m_List.m_aKeyCmd[kListInsert] = m_List.m_aMenuCmd[kListInsert] = 0;
  }

  // The owner's command; true when it changed the list.
  bool OnCommand(unsigned id, unsigned code, const EditFn& edit) {
    if (id == m_Ids.edit || (id == m_Ids.list && code == kNotifyDblClk)) return EditSelected(edit);
    if (id == m_Ids.insert || (id != 0 && (id == m_nInsertKey || id == m_nInsertMenu))) return InsertAndEdit(edit);
    if (id == m_Ids.remove) return m_List.Delete(-1, 0) != 0;
    return false;
  }

  CTRL_LIST_CLASS<T> m_List;

 private:
  T& Element(int row) { return (*m_List.m_pWork)[row + m_List.m_nFirstRow]; }

  bool EditSelected(const EditFn& edit) {
    const int row = m_List.GetSel();
    if (!m_List.IsReal(row) || edit(Element(row)) != 1) return false;
    m_List.Redraw();
    return true;
  }

  bool InsertAndEdit(const EditFn& edit) {
    if (!m_List.Insert()) return false;  // at the limit: the list beeped
    if (edit(Element(m_List.m_nCurSel)) == 1) {
      m_List.Redraw();
      return true;
    }
    m_List.Delete(-1, 1);  // the new element, which is the selection
    return false;
  }

  cSubFormIds m_Ids;
  unsigned m_nInsertKey = 0, m_nInsertMenu = 0;
};
