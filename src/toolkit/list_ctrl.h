#pragma once
// CTRL_LIST_CLASS<T>: a VECTOR_CLASS<T> of records shown as a list of one-line rows,
// with the editing commands of toolkit/list_ctrl_base.h. One instantiation per listed
// record type; they differ in nothing but T. Row text comes from the form.

#include <functional>
#include <optional>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

#include "kernel/serial.h"
#include "kernel/vector_class.h"
#include "toolkit/list_ctrl_base.h"

// A record reset to nothing (a record's Reset; any other type's value-initialisation).
template <class T>
void ListResetRecord(T& r) {
  if constexpr (std::is_base_of_v<cSerial, T>) r.Reset();
  else r = T();
}
// A record set to its defaults, by its own routine where it has one.
template <class T>
void ListDefaultRecord(T& r) {
  if constexpr (requires { r.SetDefault(); }) r.SetDefault();
  else r = T();
}
template <class T>
void ListCopyRecord(T& to, const T& from) {
  if constexpr (std::is_base_of_v<cSerial, T>) to.Copy(from);
  else to = from;
}

template <class T>
struct cListInit {
  std::uint16_t nId = 0;
  int bMulti = 0;
  VECTOR_CLASS<T>* pSource = nullptr;
  VECTOR_CLASS<T>* pWork = nullptr;
  T* pEditRec = nullptr;  // may be null
  int bRowNumbers = 0;
  int nMinRows = 0;
  int nMaxRows = 999;
  int nFirstRow = 0;  // leading elements that are not shown
  int bBlankRow = 0;
  int bAllowNoSel = 0;
  // (out text, element index, element); the text is CP932.
  std::function<void(std::string&, int, const T&)> pfnRowText{};
};

template <class T>
class CTRL_LIST_CLASS : public cListCtrlBase {
 public:
  // A list without a working vector stays dead: it takes no rows.
  int Bind(const cListInit<T>& init) {
    m_pSource = init.pSource;
    m_pWork = init.pWork;
    m_pEditRec = init.pEditRec;
    m_pfnRowText = init.pfnRowText;
    if (m_pWork != nullptr && m_pSource != nullptr && m_pWork != m_pSource) *m_pWork = *m_pSource;
    return BindRows({init.nId, init.bMulti, init.bRowNumbers, init.nMinRows, init.nMaxRows,
                     init.nFirstRow, init.bBlankRow, init.bAllowNoSel});
  }

  int Copy() override {
    VECTOR_CLASS<T> rows;
    if (!CopyTo(rows)) return 0;  // a refused copy keeps the clipboard
    m_vecClip = std::move(rows);
    return 1;
  }
  // The selected rows, in row order, into `to`, which is emptied first.
  int CopyTo(VECTOR_CLASS<T>& to) {
    to.clear();
    std::vector<int> rows;
    if (!RowsToCopy(rows)) return 0;
    for (int r : rows) to.push_back((*m_pWork)[r + m_nFirstRow]);
    return 1;
  }
  // Inserts `from` before the selected row, in its order.
  int Paste(const VECTOR_CLASS<T>& from) {
    const int row = PasteRow();
    if (row < 0) return 0;
    const VECTOR_CLASS<T> block = from;  // `from` may be the working vector itself
    m_pWork->insert(m_pWork->begin() + row + m_nFirstRow, block.begin(), block.end());
    PasteDone(row, block.Count());
    return 1;
  }
  int PasteClip() override { return Paste(m_vecClip); }

  void Update() override {
    if (m_pWork == nullptr) return;
    if (m_pSource != nullptr && m_pWork != m_pSource) *m_pWork = *m_pSource;
    FitFlags();
    if (HasEditRec() && m_nCurSel >= ShownRows()) Select(RowCount() - 1, 1);
    Redraw();
  }
  void Apply(bool ownerUpdating) override {
    if (!ownerUpdating && m_pWork != nullptr && m_pSource != nullptr && m_pWork != m_pSource) *m_pSource = *m_pWork;
  }

  VECTOR_CLASS<T>* m_pSource = nullptr;
  VECTOR_CLASS<T>* m_pWork = nullptr;
  T* m_pEditRec = nullptr;
  VECTOR_CLASS<T> m_vecClip;
  // The record the blank row stands for, made when first needed: a default character
  // builds the places of every skill list.
  std::optional<T> m_Default;
  std::function<void(std::string&, int, const T&)> m_pfnRowText;

 protected:
  int Size() const override { return m_pWork != nullptr ? m_pWork->Count() : 0; }
  bool HasEditRec() const override { return m_pEditRec != nullptr && m_pWork != nullptr; }
  void EditTakes(int e) override { ListCopyRecord(*m_pEditRec, (*m_pWork)[e]); }
  void EditTakesDefault() override {
    if (!m_Default) m_Default.emplace();
    ListCopyRecord(*m_pEditRec, *m_Default);
  }
  void EditReset() override { ListResetRecord(*m_pEditRec); }
  void ElementTakesEdit(int e) override { ListCopyRecord((*m_pWork)[e], *m_pEditRec); }
  // A dead list (no vector) takes no rows.
  bool InsertDefault(int e) override {
    if (m_pWork == nullptr) return false;
    m_pWork->insert(m_pWork->begin() + e, T());
    return true;
  }
  void Erase(int e) override {
    if (m_pWork != nullptr) m_pWork->erase(m_pWork->begin() + e);
  }
  void ResetElement(int e) override {
    if (m_pWork != nullptr) ListDefaultRecord((*m_pWork)[e]);
  }
  void ResizeElements(int size) override {
    if (m_pWork == nullptr) return;
    // New rows are copies of one default record, which share what a character's
    // default builds.
    if (size > m_pWork->Count()) m_pWork->resize(static_cast<std::size_t>(size), T());
    else m_pWork->resize(static_cast<std::size_t>(size));
  }
  void SwapElements(int a, int b) override {
    if (m_pWork != nullptr) std::swap((*m_pWork)[a], (*m_pWork)[b]);
  }
  void RowText(std::string& out, int e) const override {
    out.clear();
    if (m_pfnRowText) m_pfnRowText(out, e, (*m_pWork)[e]);
  }
};
