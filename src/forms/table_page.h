#pragma once
// A page of a sheet over one table of records: its main list over a working copy of
// the table, the edit record that the page's other controls are bound to, and the
// page sequence that every such page shares:
//
//   "新規"      appends a record at the end
//   "ｸﾘｱ"       returns each selected row to its record's defaults
//   "ﾃﾞｰﾀ数"    asks for the row count within the table's limits and resizes
//   a change    reaches the row at once (the list command's end), so a row's name
//               changes in the list while it is typed
//   any command tells the sheet, which lights Apply
//   set-active  takes the selected row into the edit record; a stale page refills
//               its controls and its lists of names from the applied tables
//   commit      numbers the rows and, if the page was ever shown, writes the working
//               copy over the table
//
// A page declares its controls in its constructor like any form, the main list among
// them through MainList, and adds its own rules and buttons.

#include <string>

#include "forms/input_forms.h"
#include "platform/cp932.h"
#include "toolkit/dlg_class.h"

// The rows of a page's table and what its "ﾃﾞｰﾀ数" allows.
struct cTableRows {
  int nFirstRow = 1;  // 1: element 0 is the record a reference of 0 stands for, never shown
  int nMinRows = 1;
  int nMaxRows = 999;
};

// A page of the database sheet, as the sheet's apply sees every page.
class cDatabasePage : public DLG_CLASS {
 public:
  explicit cDatabasePage(const char* title) : DLG_CLASS(nullptr, title) {}
  // The page's edits into its table, where the page has any.
  virtual void CommitPage() = 0;
  // Set by the sheet's apply: the tables behind the names this page shows changed.
  bool m_bStale = false;
};

template <class R>
class cTablePage : public cDatabasePage {
 public:
  enum : unsigned { kIdNew = 11069, kIdClear = 11070, kIdCount = kIdListCount };

  cTablePage(VECTOR_CLASS<R>& table, const char* title, cTableRows rows)
      : cDatabasePage(title), m_Edit(FirstEditRecord(table)), m_pTable(&table), m_Rows(rows) {}

  // Every row's number is its place; then, if the page has been shown, the working
  // copy goes over the table. A page never shown leaves its table alone.
  void CommitPage() override {
    for (int i = 0; i < m_vecWork.Count(); ++i)
      if constexpr (requires(R r) { r.m_nID; }) m_vecWork[i].m_nID = i;
    if (m_bShown) m_List.Apply(false);
  }

  VECTOR_CLASS<R> m_vecWork;
  R m_Edit;
  CTRL_LIST_CLASS<R> m_List;

 protected:
  // Declares the main list, labelled `label`, with the buttons "新規", "ｸﾘｱ" and
  // "ﾃﾞｰﾀ数" below it. Row texts are each record's `rowText`, numbered.
  template <class RowText>
  void MainList(unsigned listId, const char* label, RowText rowText, int shownRows = 16) {
    cListInit<R> init;
    init.bMulti = 1;
    init.pSource = m_pTable;
    init.pWork = &m_vecWork;
    init.pEditRec = &m_Edit;
    init.bRowNumbers = 1;
    init.nMinRows = m_Rows.nMinRows;
    init.nMaxRows = m_Rows.nMaxRows;
    init.nFirstRow = m_Rows.nFirstRow;
    init.bBlankRow = 1;
    init.pfnRowText = [rowText](std::string& out, int, const R& r) { out = rowText(r); };
    Table().List(listId, label, m_List, init, kListFirstFixed, shownRows).LabelAbove().Span(3).Row();
    Table().Button(kIdNew, "新規").Button(kIdClear, "ｸﾘｱ").Button(kIdCount, "ﾃﾞｰﾀ数").Row();
  }

  // A stale page refills what shows names of other tables: combos, lists of names.
  virtual void OnStale() {}

  void OnReady() override { m_bShown = true; }

  // After a command of a list over a vector of the edit record (a move, or a cut,
  // paste or delete by its keys): the row takes the edit record at once, before another
  // selection could drop it, and the main list is left as it is. Its refresh would copy
  // the table over the working copy and lose every edit of the page not yet applied.
  void UpdateAllExcept(unsigned id) override {
    if (id != 0 && id != m_List.m_nId) {
      m_List.CommitRow();
      id = m_List.m_nId;
    }
    cDatabasePage::UpdateAllExcept(id);
  }

  void OnSetActive() override {
    const int sel = m_List.GetSel();
    m_List.Select(m_List.IsReal(sel) ? sel : 0, 1);
    if (m_bStale) {
      m_bStale = false;
      UpdateAll();
      OnStale();
    }
    UpdateAllExcept(m_List.m_nId);
  }

  void OnFormCommand(unsigned id, unsigned code) override {
    int done = 0;
    switch (id) {
      case kIdNew: done = m_List.Append(); break;
      case kIdClear: done = m_List.Clear(); break;
      case kIdCount: {
        int count = m_List.RowCount();
        if (InputValue(this, nullptr, &count, m_Rows.nMinRows, m_Rows.nMaxRows, CP932_TEXT("データ数"))) {
          done = m_List.Resize(count);
        }
        break;
      }
      default: return;
    }
    if (done) UpdateAllExcept(m_List.m_nId);
  }

 private:
  // What the edit record holds until a row is selected. Where a default record builds
  // large tables (a character, the places of every skill list), a copy of the first
  // row shares them instead.
  static R FirstEditRecord(const VECTOR_CLASS<R>& table) {
    if constexpr (requires { R::kDefaultBuildsPlaces; })
      if (!table.empty()) return table.front();
    return R();
  }

  VECTOR_CLASS<R>* m_pTable;
  cTableRows m_Rows;
  bool m_bShown = false;
};
