#include "toolkit/list_ctrl_base.h"

#include <algorithm>
#include <cstdio>

#include "platform/diagnostics.h"
#include "platform/cp932.h"

const cListIdSet kListIdSets[7] = {
    {117, 116, {40030, 40031, 40032, 0, 40069, 0, 40034}, {40027, 40024, 40025, 0, 40070, 0, 40029}},
    {132, 170, {40030, 40031, 40032, 40082, 0, 40083, 0}, {40027, 40024, 40025, 0, 0, 40081, 0}},
    {130, 169, {40040, 40035, 40038, 0, 40071, 0, 40039}, {40075, 40076, 40077, 0, 40078, 0, 40079}},
    {133, 171, {40040, 40035, 40038, 40084, 0, 40085, 0}, {40075, 40076, 40077, 0, 0, 40086, 0}},
    {131, 174, {40101, 40093, 40098, 0, 40094, 0, 40099}, {40088, 40089, 40090, 0, 40091, 0, 40092}},
    {134, 177, {40101, 40093, 40098, 40104, 0, 40100, 0}, {40088, 40089, 40090, 0, 0, 40133, 0}},
    {0, 0, {}, {}},
};

void ListBeep() { CurrentPrompt().Beep(); }

cListCtrlBase::cListCtrlBase() : m_strBlank(64, '-') {
  static const std::uint16_t keys[kListOpCount] = {40030, 40031, 40032, 40082, 40069, 40083, 40034};
  static const std::uint16_t menu[kListOpCount] = {40027, 40024, 40025, 0, 40070, 40081, 40029};
  SetKeyCommands(keys);
  SetMenuCommands(menu);
}

void cListCtrlBase::SetKeyCommands(const std::uint16_t ids[kListOpCount]) { std::copy_n(ids, kListOpCount, m_aKeyCmd); }
void cListCtrlBase::SetMenuCommands(const std::uint16_t ids[kListOpCount]) { std::copy_n(ids, kListOpCount, m_aMenuCmd); }

int cListCtrlBase::RowCount() const { return std::max(0, Size() - m_nFirstRow); }

int cListCtrlBase::BindRows(const cRowsInit& init) {
  m_nId = init.nId;
  m_bMulti = init.bMulti;
  m_bRowNumbers = init.bRowNumbers;
  m_nMinRows = init.nMinRows;
  m_nMaxRows = init.nMaxRows;
  m_nFirstRow = init.nFirstRow;
  m_bBlankRow = init.bBlankRow;
  // A list that may lose its last row and has no blank row to stand on must be able to
  // stand without a selection.
  m_bAllowNoSel = init.bAllowNoSel || (m_nMinRows < 1 && !m_bBlankRow);
  m_Box = cListBox();
  m_Box.multi = m_bMulti != 0;
  m_vecSelFlag.clear();
  m_vecPrevFlag.clear();
  if (m_bMulti && ShownRows() > 0) m_vecSelFlag.resize(ShownRows());
  m_nCurSel = m_nAnchor = m_nPrevSel = -1;
  m_nTopIndex = 0;
  if (Size() > 0) Select(0, 1);
  Redraw();
  RedrawSel();
  return 1;
}

int cListCtrlBase::GetSel() const {
  if (!m_bMulti) return m_Box.Valid(m_Box.curSel) ? m_Box.curSel : -1;
  return m_Box.IsSelected(m_Box.caret) ? m_Box.caret : -1;
}

void cListCtrlBase::FitFlags() {
  if (!m_bMulti) return;
  m_vecSelFlag.resize(ShownRows());
  m_vecPrevFlag.resize(ShownRows());
}

void cListCtrlBase::FlagOnly(int row) {
  std::fill(m_vecSelFlag.begin(), m_vecSelFlag.end(), 0);
  if (row < 0) return;
  if (row >= m_vecSelFlag.Count()) m_vecSelFlag.resize(row + 1);
  m_vecSelFlag[row] = 1;
}

int cListCtrlBase::FirstFlagged() const {
  auto it = std::find_if(m_vecSelFlag.begin(), m_vecSelFlag.end(), [](int f) { return f != 0; });
  return it == m_vecSelFlag.end() ? -1 : static_cast<int>(it - m_vecSelFlag.begin());
}

void cListCtrlBase::Select(int row, int bEdit) {
  m_nCurSel = row < 0 ? (m_bAllowNoSel ? -1 : 0) : row;
  if (m_nCurSel >= ShownRows()) m_nCurSel = -1;
  if (bEdit && IsReal(m_nCurSel) && HasEditRec()) EditTakes(m_nCurSel + m_nFirstRow);
  if (!m_bMulti) {
    m_Box.SetCurSel(m_nCurSel);
    return;
  }
  if (m_nCurSel >= m_vecSelFlag.Count()) m_nCurSel = m_vecSelFlag.Count() - 1;
  if (m_nCurSel >= 0) {
    m_vecSelFlag[m_nCurSel] = 1;
    if (m_Box.Valid(m_nCurSel)) {
      m_Box.sel.resize(m_Box.Count());
      m_Box.sel[m_nCurSel] = 1;
    }
  }
  m_Box.caret = m_Box.anchor = m_nAnchor = m_nCurSel;
}

void cListCtrlBase::SelectOnly(int row, int bEdit) {
  if (m_bMulti) {
    std::fill(m_vecSelFlag.begin(), m_vecSelFlag.end(), 0);
    std::fill(m_Box.sel.begin(), m_Box.sel.end(), 0);
  }
  Select(row, bEdit);
}

void cListCtrlBase::Redraw() {
  int digits = 1;
  for (int n = RowCount(); n >= 10; n /= 10) ++digits;
  m_Box.Reset();
  for (int e = m_nFirstRow; e < Size(); ++e) {
    std::string text;
    RowText(text, e);
    if (m_bRowNumbers) {
      char number[16];
      std::snprintf(number, sizeof number, "%0*d ", digits, e - m_nFirstRow + 1);
      text.insert(0, number);
    }
    m_Box.rows.push_back(std::move(text));
  }
  if (m_bBlankRow) m_Box.rows.push_back(m_strBlank);
  m_Box.SetTopIndex(m_nTopIndex);
  if (!m_bMulti) {
    m_Box.SetCurSel(m_nCurSel);
  } else {
    m_Box.sel.assign(m_Box.Count(), 0);
    for (int i = 0; i < std::min(m_Box.Count(), m_vecSelFlag.Count()); ++i) m_Box.sel[i] = m_vecSelFlag[i];
    m_Box.caret = m_Box.Valid(m_nCurSel) ? m_nCurSel : -1;
    m_Box.anchor = m_Box.Valid(m_nAnchor) ? m_nAnchor : -1;
  }
  ++m_Box.rowsRevision;
}

// At the end of every command. A list that may not stand without a selection comes
// back out of any operation with one.
void cListCtrlBase::RedrawSel() {
  if (!m_bMulti) {
    if (!m_bAllowNoSel) {
      if (m_nCurSel < 0) m_nCurSel = m_nPrevSel;
      if (m_nCurSel < 0 || m_nCurSel >= m_Box.Count()) m_nCurSel = 0;
    }
    m_Box.SetCurSel(m_nCurSel);
  } else {
    if (!m_bAllowNoSel) {
      const bool countChanged = m_vecSelFlag.Count() != m_vecPrevFlag.Count();
      const int n = ShownRows();
      if (m_vecSelFlag.Count() > n) m_vecSelFlag.resize(n);
      if (m_vecPrevFlag.Count() > n) m_vecPrevFlag.resize(n);
      if (FirstFlagged() < 0) {
        if (!countChanged) {
          m_vecSelFlag = m_vecPrevFlag;
          m_nCurSel = m_nPrevSel;
        }
        if (FirstFlagged() < 0) {
          if (m_vecSelFlag.Count() < n) m_vecSelFlag.resize(n);
          m_nCurSel = n > 0 ? 0 : -1;
          FlagOnly(m_nCurSel);
        }
      }
      m_nAnchor = m_nCurSel;
    }
    m_Box.sel.assign(m_Box.Count(), 0);
    for (int i = 0; i < std::min(m_Box.Count(), m_vecSelFlag.Count()); ++i) m_Box.sel[i] = m_vecSelFlag[i];
    m_Box.anchor = m_Box.Valid(m_nAnchor) ? m_nAnchor : -1;
    m_Box.caret = m_Box.Valid(m_nCurSel) ? m_nCurSel : -1;
    m_vecPrevFlag = m_vecSelFlag;
  }
  m_Box.SetTopIndex(m_nTopIndex);
  m_nPrevSel = m_nCurSel;
  m_Box.frozen = false;
  ++m_Box.selRevision;
}

int cListCtrlBase::OnSelChange() {
  m_nTopIndex = m_Box.topIndex;
  if (!m_bMulti) {
    m_nCurSel = GetSel();
  } else {
    m_vecSelFlag.assign(m_Box.Count(), 0);
    for (int i = 0; i < m_Box.Count(); ++i) m_vecSelFlag[i] = m_Box.IsSelected(i) ? 1 : 0;
    m_nCurSel = m_Box.caret;
    m_nAnchor = m_Box.anchor;
    if (HasEditRec() && !m_Box.IsSelected(m_nCurSel)) {
      m_nCurSel = FirstFlagged();
      m_Box.caret = m_Box.anchor = m_nAnchor = m_nCurSel;
    }
  }
  if (m_nCurSel < -1 || m_nCurSel >= ShownRows()) m_nCurSel = -1;
  if (!IsReal(m_nCurSel)) {
    if (HasEditRec()) EditTakesDefault();
    Redraw();
    return 0;
  }
  if (HasEditRec()) EditTakes(m_nCurSel + m_nFirstRow);
  Redraw();
  return 1;
}

int cListCtrlBase::CommitRow() {
  if (!IsReal(m_nCurSel)) return 0;  // the blank row has no element: the change stays in the edit record
  if (HasEditRec()) ElementTakesEdit(m_nCurSel + m_nFirstRow);
  Redraw();
  RedrawSel();
  return 1;
}

int cListCtrlBase::AddRow(int row) {
  // A list without a vector behind it takes no row.
  if (AtMax() || !InsertDefault(row + m_nFirstRow)) {
    ListBeep();
    return 0;
  }
  m_nCurSel = row;
  if (HasEditRec()) EditTakes(row + m_nFirstRow);
  if (m_bMulti) {
    m_vecSelFlag.insert(m_vecSelFlag.begin() + std::min(row, m_vecSelFlag.Count()), 0);
    m_vecPrevFlag.insert(m_vecPrevFlag.begin() + std::min(row, m_vecPrevFlag.Count()), 0);
    FlagOnly(row);
    m_nAnchor = row;
  }
  Redraw();
  RedrawSel();
  return 1;
}

int cListCtrlBase::Append() { return AddRow(RowCount()); }

int cListCtrlBase::Insert() { return AddRow(std::max(GetSel(), 0)); }

int cListCtrlBase::PasteRow() {
  m_nCurSel = GetSel();
  if (m_nCurSel < 0 || AtMax()) {
    ListBeep();
    return -1;
  }
  return m_nCurSel;
}

// The maximum is not tested again after the first element: a paste may overshoot it.
void cListCtrlBase::PasteDone(int row, int count) {
  if (count > 0 && HasEditRec()) EditTakes(row + m_nFirstRow);
  FitFlags();
  Redraw();
  RedrawSel();
}

bool cListCtrlBase::RowsToCopy(std::vector<int>& rows) {
  rows.clear();
  if (!m_bMulti) {
    if (IsReal(GetSel())) rows.push_back(GetSel());
  } else {
    for (int r = 0; r < m_vecSelFlag.Count(); ++r)
      if (m_vecSelFlag[r] && IsReal(r)) rows.push_back(r);
  }
  if (rows.empty()) ListBeep();
  return !rows.empty();
}

int cListCtrlBase::Cut() { return Copy() ? Delete(-1, 0) : 0; }

int cListCtrlBase::Clear() {
  if (!m_bMulti) {
    const int row = GetSel();
    if (IsReal(row)) {
      ResetElement(row + m_nFirstRow);
      if (HasEditRec()) EditTakes(row + m_nFirstRow);
    }
  } else {
    for (int r = 0; r < m_vecSelFlag.Count(); ++r)
      if (m_vecSelFlag[r] && IsReal(r)) ResetElement(r + m_nFirstRow);
    if (IsReal(m_nCurSel) && HasEditRec()) EditTakes(m_nCurSel + m_nFirstRow);
  }
  Redraw();
  RedrawSel();
  return 1;
}

int cListCtrlBase::Delete(int row, int bOnlySel) {
  if (!m_bMulti) {
    m_nCurSel = row >= 0 ? row : GetSel();
    if (!IsReal(m_nCurSel)) {
      Redraw();
      RedrawSel();
      return 1;
    }
    if (AtMin()) {
      ListBeep();
      return 0;
    }
    Erase(m_nCurSel + m_nFirstRow);
    if (m_nCurSel >= RowCount()) {
      m_Box.SetCurSel(--m_nCurSel);
      if (RowCount() == 0) {
        if (HasEditRec()) EditReset();
        m_nCurSel = -1;
      } else if (HasEditRec()) {
        EditTakes(m_nCurSel + m_nFirstRow);
      }
    } else if (HasEditRec()) {
      EditTakes(m_nCurSel + m_nFirstRow);
    }
    Redraw();
    RedrawSel();
    return 1;
  }

  if (AtMin() || m_vecSelFlag.empty()) {
    ListBeep();
    return 0;
  }
  bool erased = false;
  for (int r = 0; r < m_vecSelFlag.Count() && !AtMin();) {
    if ((bOnlySel && r != m_nCurSel) || !IsReal(r) || !m_vecSelFlag[r]) {
      ++r;
      continue;
    }
    Erase(r + m_nFirstRow);
    m_vecSelFlag.erase(m_vecSelFlag.begin() + r);
    erased = true;
    if (r < m_nCurSel) --m_nCurSel;
    if (bOnlySel) break;  // the row that moved up is not the one asked for
  }
  if (!erased) {
    ListBeep();
    return 0;
  }
  if (m_nCurSel > ShownRows() - 1) m_nCurSel = ShownRows() - 1;
  if (HasEditRec()) {
    if (RowCount() == 0) {
      EditReset();
      m_nCurSel = -1;
    } else if (IsBlank(m_nCurSel)) {
      EditReset();
    } else if (IsReal(m_nCurSel)) {
      EditTakes(m_nCurSel + m_nFirstRow);
    }
  }
  FlagOnly(m_nCurSel);
  m_nAnchor = m_nCurSel;
  Redraw();
  RedrawSel();
  return 1;
}

int cListCtrlBase::Resize(int n) {
  if (n < m_nMinRows || n > m_nMaxRows) {
    ListBeep();
    return 0;
  }
  ResizeElements(n + m_nFirstRow);
  FitFlags();
  if (m_nCurSel >= RowCount()) {
    m_nCurSel = 0;
    if (!m_bMulti) m_Box.SetCurSel(0);
    if (RowCount() > 0) {
      if (HasEditRec()) EditTakes(m_nFirstRow);
    } else {
      if (HasEditRec()) EditReset();
      m_nCurSel = -1;
    }
    if (m_bMulti) SelectOnly(m_nCurSel, 0);
  } else if (IsReal(m_nCurSel) && HasEditRec()) {
    EditTakes(m_nCurSel + m_nFirstRow);
  }
  Redraw();
  RedrawSel();
  return 1;
}

int cListCtrlBase::MoveRow(int delta) {
  const int row = GetSel(), to = row + delta;
  if (!IsReal(row) || !IsReal(to)) return 0;
  SwapElements(row + m_nFirstRow, to + m_nFirstRow);
  SelectOnly(to, 0);
  Redraw();
  RedrawSel();
  return 1;
}

int cListCtrlBase::Run(int op) {
  switch (op) {
    case kListCut: return Cut();
    case kListCopy: return Copy();
    case kListPaste: return PasteClip();
    case kListNew: return Append();
    case kListInsert: return Insert();
    case kListClear: return Clear();
    case kListDelete: return Delete(-1, 0);
  }
  return 0;
}

// The focus test lets the same ids serve several lists of a form.
int cListCtrlBase::HandleKeyCommand(unsigned id) {
  if (!m_Box.focus || id == 0) return 0;
  for (int op = 0; op < kListOpCount; ++op)
    if (m_aKeyCmd[op] == id) return (m_nFormOps >> op) & 1 ? 0 : Run(op);
  return 0;
}

int cListCtrlBase::HandleMenuCommand(unsigned id) {
  if (!m_Box.focus || id == 0) return 0;
  for (int op = 0; op < kListOpCount; ++op)
    if (m_aMenuCmd[op] == id) return (m_nFormOps >> op) & 1 ? 0 : Run(op);
  return 0;
}

int cListCtrlBase::OpOf(unsigned id) const {
  for (int op = 0; op < kListOpCount && id != 0; ++op)
    if (m_aKeyCmd[op] == id || m_aMenuCmd[op] == id) return op;
  return -1;
}

std::vector<unsigned> cListCtrlBase::OnKey(int key, bool bCtrl) const {
  std::vector<unsigned> ids;
  // The list's own operations wait for its focus in HandleKeyCommand; one the form runs
  // itself has no such test behind it, so its key counts only while the list has the focus.
  auto add = [&](int op) {
    const bool leftToForm = (m_nFormOps >> op) & 1;
    if (m_aKeyCmd[op] != 0 && (!leftToForm || m_Box.focus)) ids.push_back(m_aKeyCmd[op]);
  };
  if (key == 0x2E) {  // Delete, with or without Control
    add(kListClear);
    add(kListDelete);
  } else if (bCtrl) {
    switch (key) {
      case 'X': add(kListCut); break;
      case 'C': add(kListCopy); break;
      case 'V': add(kListPaste); break;
      case 'I':
        add(kListNew);
        add(kListInsert);
        break;
    }
  }
  return ids;
}

int cListCtrlBase::HitTest(int x, int y, const cListRect& box, bool ownerCurrent) {
  if (!ownerCurrent || x < box.left || x >= box.right || y < box.top || y >= box.bottom) return 0;
  return HitTestRow((y - box.top - 2) / 12 + m_Box.topIndex, true);
}

int cListCtrlBase::HitTestRow(int row, bool ownerCurrent) {
  if (!ownerCurrent || row < 0 || row >= m_Box.Count()) return 0;
  if (m_bMulti) {
    m_Box.caret = m_Box.anchor = m_nAnchor = row;
    FitFlags();
    // A click on a selected row keeps the multi-selection.
    if (row >= m_vecSelFlag.Count() || !m_vecSelFlag[row]) FlagOnly(row);
    m_Box.sel.assign(m_Box.Count(), 0);
    for (int i = 0; i < std::min(m_Box.Count(), m_vecSelFlag.Count()); ++i) m_Box.sel[i] = m_vecSelFlag[i];
  } else {
    m_Box.SetCurSel(row);
  }
  m_nCurSel = row;
  m_Box.focus = true;
  if (HasEditRec()) {
    if (IsReal(row)) EditTakes(row + m_nFirstRow);
    else EditTakesDefault();
  }
  ++m_Box.selRevision;
  return 1;
}

void cListCtrlBase::OnScrolled(int topIndex) {
  m_nTopIndex = topIndex;
  m_Box.topIndex = topIndex;
}

void cListCtrlBase::OnKillFocus() {
  if (!m_bMulti) m_Box.SetCurSel(m_nCurSel);  // keeps the bar on the row
  m_Box.focus = false;
  ++m_Box.selRevision;
}
