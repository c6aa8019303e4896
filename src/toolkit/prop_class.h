#pragma once
// PROP_CLASS, a property sheet: tabbed pages with OK, Cancel and Apply. Every sheet
// is modeless; g_WndList owns it and deletes it soon after it closes. Pages are
// DLG_CLASS objects of type 2, owned by the sheet. A page's window and controls are
// made when the page is first shown, so a page never shown has none.
//
// The events of a sheet, as the pages see them:
//   set-active  OnSetActive, each time a page comes to the front (its window exists)
//   apply       OnApply of every page that has its window, in tab order: OK and Apply
//   changed     Changed(), from any page's command: lights Apply
//   end         OnDestroy of every page that has its window, when the sheet closes

#include <QPointer>
#include <QString>
#include <vector>

#include "kernel/vector_class.h"

class DLG_CLASS;
class QTabWidget;
class QWidget;

class PROP_CLASS {
 public:
  PROP_CLASS() = default;
  virtual ~PROP_CLASS();
  PROP_CLASS(const PROP_CLASS&) = delete;
  PROP_CLASS& operator=(const PROP_CLASS&) = delete;

  // Takes the page; `title` is its tab's text, UTF-8.
  void AddPage(DLG_CLASS* page, const char* title);
  // Opens the sheet on its first page and registers it. False when it is open.
  bool Create(QWidget* parent, const char* caption);

  // Brings the page of tab `index` to the front, making its window on its first
  // showing.
  void SetCurrentPage(int index);
  DLG_CLASS* CurrentPage() const;
  int CurrentIndex() const;

  // The sheet's three buttons.
  void Ok();
  void Cancel();
  void Apply();
  // Apply of every page that has its window; a sheet adds what its apply does beyond.
  virtual void ApplyPages();
  void Changed();
  bool ApplyEnabled() const;
  // Ends the sheet: each page's OnDestroy, the sheet's OnEnd, then the window goes.
  void Close();
  virtual void OnEnd() {}
  bool IsOpen() const { return m_hWnd != nullptr && !m_bClosed; }

  int m_nType = 0;
  VECTOR_CLASS<DLG_CLASS*> m_vecPage;
  std::vector<QString> m_vecTitle;
  QPointer<QWidget> m_hWnd;
  bool m_bClosed = false;

 private:
  void MakePage(int index);
  QPointer<QTabWidget> m_pTabs;
  std::vector<QPointer<QWidget>> m_vecHolder;  // the tab's own widget, holding the page
  QPointer<QWidget> m_pApply;
};
