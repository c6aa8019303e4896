#pragma once
// DLG_CLASS, a dialog with a list of typed controls, and the form pattern on it:
//
//   1. A form holds a working copy of the record it edits and one VECTOR_CLASS per
//      control type.
//   2. Its constructor copies the source into the working copy and declares the
//      controls as data (Declare: id, field of the working copy, range, labels).
//   3. Layout() builds the widgets from a compact description (form_layout.h).
//   4. OnInitDialog(): the base, then Bind each vector in the order number edits, text
//      edits, checks, combos, labels, buttons, then lists; UpdateAll, UpdateEnable,
//      m_bReady = 1.
//   5. OnCommand(id, code): the base, then OK (ApplyAll, End(1)), Cancel (End(0)) and
//      the form's buttons; at the end, when ready and FindChanged, UpdateEnable. A form
//      with lists ends with EndListCommand instead.
//   6. The caller constructs the form, runs DoModal and on 1 copies the working copy
//      back. Cancel needs no code: nothing reaches the record before OK.
//
// Every user action on a widget reaches OnCommand with the code the control type
// expects (toolkit/ctrl_types.h); what the program writes into a widget never does.

#include <QPointer>
#include <QScrollArea>
#include <QString>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "media/surface.h"
#include "toolkit/ctrl_class.h"
#include "toolkit/list_command.h"
#include "toolkit/list_ctrl.h"
#include "toolkit/wnd_class.h"

class QDialog;
class QMenu;
class cFormLayout;
class CTRL_SCROLL_CLASS;

// Show flags of DoModal and Create.
enum : int {
  kDlgHideOthers = 2,     // hide the other registered windows while open
  kDlgDisableOthers = 4,  // disable them while open
};
// Scroll flags of SetMetrics.
enum : int { kDlgScrollH = 1, kDlgScrollV = 2 };

// The list control of a form: binds a CTRL_LIST_CLASS<T> to its list widget. The rows
// and the selection go to the widget when the list's revisions move.
class CTRL_LISTVIEW_CLASS : public CTRL_CLASS {
 public:
  CTRL_LISTVIEW_CLASS(cListCtrlBase& list) : CTRL_CLASS(kCtrlList), m_List(list) {}
  ~CTRL_LISTVIEW_CLASS() override;
  bool Bind(DLG_CLASS* owner, const cListIdSet& ids);
  void Update() override;
  void Apply() override;
  void RedrawSel() override;
  void OnKillFocus() override;
  void OnKey(int key, bool bCtrl) override;
  // The widget's selection into the list's box, as the user left it.
  void TakeSelection();
  // Pushes rows and selection to the widget where their revisions moved.
  void Sync();
  // The right-click protocol at a point in global co-ordinates; 1 on a row.
  int HitTest(QPoint global);

  cListCtrlBase& m_List;
  QMenu* m_pMenu = nullptr;  // owned by the widget

 private:
  unsigned m_nRowsRev = ~0u, m_nSelRev = ~0u;
};

class DLG_CLASS : public WND_CLASS, public cListCommandHost {
 public:
  DLG_CLASS(int templateId, QWidget* parent, int type = 1);
  // Placed against `placeCtrl` (a form opened from a list passes that list), centred on it with `center`.
  DLG_CLASS(int templateId, QWidget* parent, QWidget* placeCtrl, bool center);
  ~DLG_CLASS() override;

  // Client size and the limits the user may drag to; zeros leave it to the layout.
  // `scroll` asks for scroll bars (kDlgScrollH, kDlgScrollV).
  void SetMetrics(int w, int h, int minW = 0, int minH = 0, int maxW = 0, int maxH = 0, int scroll = 0);

  // Runs the form modally; the value given to End. 0 at once if a window exists.
  int DoModal(int flags = 0);
  // Modeless. False when a window exists or it cannot be made.
  bool Create(int flags = 0, bool bShow = true);
  // Stores the result, forgets the controls and closes the window.
  void End(int result);

  void UpdateAll();
  void UpdateAllExcept(unsigned id);
  void UpdateAllExcept(cListCtrlBase& list) override;
  void ApplyAll();
  // The id of the control that this command changes the value of, or 0.
  unsigned FindChanged(unsigned id, unsigned code) const;
  void RedrawLists();

  // Slot 15: the enabled state of the controls from their present values.
  void UpdateEnable() override {}

  // Base routing: the control of `id` whose type expects `code` handles it; lists are
  // held from redrawing until the end of the command.
  void OnCommand(unsigned id, unsigned code) override;
  // OK: ApplyAll, End(1); Cancel: End(0). True when `id` was one of them.
  bool EndOnOkCancel(unsigned id);
  // The end of a command of a form with lists, in the order that keeps the edit
  // record, the rows and the controls agreeing.
  void EndListCommand(unsigned id, unsigned code);

  // Spin clicks and slider moves, offered to the controls.
  void Notify(unsigned id, int delta);
  void Scrolled(QWidget* from);
  // A key the form sees while a child has the focus (virtual key code).
  virtual void OnKeyDown(int key, bool bCtrl);
  // The right button released over the form: by default the lists are asked, and the
  // one hit shows its menu.
  virtual void OnContextMenu(QPoint global);
  // The window's close box and Escape.
  virtual void OnClose() { End(0); }
  // Pages of a sheet.
  virtual void OnSetActive() {}
  virtual void OnApply() {}
  // Tells the sheet of a page that something changed.
  void SheetChanged() override;

  // The live form a widget belongs to, or null once the form has let its window go.
  static DLG_CLASS* FromWidget(QObject* w);

  // The widget of `id` in this form, or null.
  QWidget* GetDlgItem(unsigned id) const;
  void RegisterItem(unsigned id, QWidget* w);
  // A bound control by id (and kind), or null after the report.
  template <class C = CTRL_CLASS>
  C* GetCtrl(unsigned id) const;
  void EnableCtrl(unsigned id, bool bEnable);

  // Binds each control of a vector and appends it to m_vecCtrl.
  template <class C>
  void Bind(VECTOR_CLASS<C>& ctrls) {
    for (C& c : ctrls)
      if (c.Bind(this)) m_vecCtrl.push_back(&c);
  }
  // Binds a list with one of the fixed id sets: its keys, its menu and its commands.
  template <class T>
  bool BindList(CTRL_LIST_CLASS<T>& list, const cListInit<T>& init, eListIdSet set = kListFirstFree) {
    if (!list.Bind(init)) return false;
    return BindListView(list, kListIdSets[set]);
  }

  int m_nTemplateId;
  int m_bModeless = 0;
  int m_nShowFlags = 0;
  int m_nResult = 0;
  WND_CLASS* m_lpParentClass = nullptr;
  int m_bUpdating = 0;
  int m_bHoldEsc = 0;  // Escape is swallowed, not passed to the form nor its window
  std::vector<CTRL_CLASS*> m_vecCtrl;
  CTRL_SCROLL_CLASS* m_pScrollH = nullptr;
  CTRL_SCROLL_CLASS* m_pScrollV = nullptr;

 protected:
  // Builds the widgets; called once per window, before OnInitDialog.
  virtual void Layout(cFormLayout& L) {}
  // Slot 14. A form calls the base first.
  virtual void OnInitDialog();
  void ApplyControls() override;

 private:
  friend class cDlgWindow;
  friend class cFormLayout;
  bool BuildWindow(bool modeless);
  void WindowGone();
  void Place();
  void SyncLists();
  std::vector<cListCtrlBase*> Lists() const;
  bool BindListView(cListCtrlBase& list, const cListIdSet& ids);

  std::map<unsigned, QPointer<QWidget>> m_mapItem;
  std::vector<std::unique_ptr<CTRL_LISTVIEW_CLASS>> m_vecListView;
  std::unique_ptr<CTRL_SCROLL_CLASS> m_ScrollH, m_ScrollV;
  QPointer<QScrollArea> m_pScrollArea;
  cRightClickEdge m_RightEdge;
  int m_nW = 0, m_nH = 0, m_nMinW = 0, m_nMinH = 0, m_nMaxW = 0, m_nMaxH = 0, m_nScroll = 0;
  bool m_bShowFlagsApplied = false;
  bool m_bEnded = false;
  void UndoShowFlags();

 public:
  // For the window's event handling.
  cRightClickEdge& RightEdge() { return m_RightEdge; }
  QScrollArea* ScrollArea() const { return m_pScrollArea; }
};

void ReportMissingCtrl(unsigned id);

template <class C>
C* DLG_CLASS::GetCtrl(unsigned id) const {
  for (CTRL_CLASS* c : m_vecCtrl)
    if (c->m_nId == id)
      if (C* typed = dynamic_cast<C*>(c)) return typed;
  ReportMissingCtrl(id);
  return nullptr;
}

// A plain child window that draws: a back buffer the view paints into in OnPaint,
// which is then copied to the screen, and the mouse slots of WND_CLASS.
class VIEW_CLASS : public WND_CLASS {
 public:
  VIEW_CLASS() : WND_CLASS(0) {}
  // Makes the widget as a child of `parent` with a client of w x h.
  bool CreateView(QWidget* parent, int w, int h);
  virtual void OnCreate() {}
  // Repaints: OnPaint into the back buffer, then to the screen.
  void Invalidate();
  cSurface m_Back;
};

// A property sheet: tabbed pages with OK, Cancel and Apply. Every sheet is modeless;
// g_WndList owns it and deletes it after it closes. Pages are DLG_CLASS objects of
// type 2, owned by the sheet.
class PROP_CLASS {
 public:
  PROP_CLASS() = default;
  virtual ~PROP_CLASS();
  PROP_CLASS(const PROP_CLASS&) = delete;
  PROP_CLASS& operator=(const PROP_CLASS&) = delete;

  // Takes the page.
  void AddPage(DLG_CLASS* page, const char* title);
  // Opens the sheet and registers it. False when it is open or cannot be made.
  bool Create(QWidget* parent, const char* caption);
  // Each page's OnApply, as OK and Apply do.
  void ApplyPages();
  void Close();
  void Changed();
  DLG_CLASS* CurrentPage() const;
  bool IsOpen() const { return m_hWnd != nullptr && !m_bClosed; }

  int m_nType = 0;
  VECTOR_CLASS<DLG_CLASS*> m_vecPage;
  std::vector<QString> m_vecTitle;
  QPointer<QWidget> m_hWnd;
  bool m_bClosed = false;
};
