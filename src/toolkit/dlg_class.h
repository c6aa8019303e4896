#pragma once
// DLG_CLASS, a dialog with a table of typed controls, and the form pattern on it:
//
//   1. A form holds a working copy of the record it edits (toolkit/record_form.h).
//   2. Its constructor declares its controls in Table(), one entry each: id, label,
//      the field of the working copy, range or labels, place, enabling rule
//      (toolkit/form_table.h shows a whole form).
//   3. The window is laid out from the table; OnInitDialog binds the table's controls,
//      runs UpdateAll and UpdateEnable, sets m_bReady and calls OnReady.
//   4. OnCommand routes the command to its control, then OK (ApplyAll, OnOk, End(1))
//      or Cancel (End(0)), or else the form's own OnFormCommand; at the end the
//      enabling rules run on a change of value, or, in a form with lists, the list
//      command's end (toolkit/list_command.h).
//   5. The caller constructs the form, runs DoModal and on 1 copies the working copy
//      back. Cancel needs no code: nothing reaches the record before OK.
//
// Every user action on a widget reaches OnCommand with the code the control type
// expects (toolkit/ctrl_types.h); what the program writes into a widget never does.

#include <QPointer>
#include <QScrollArea>
#include <QString>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "media/surface.h"
#include "toolkit/ctrl_class.h"
#include "toolkit/form_table.h"
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
  // `title` is the window's caption, UTF-8.
  explicit DLG_CLASS(QWidget* parent, const char* title = "", int type = 1);
  // Placed against `placeCtrl` (a form opened from a list passes that list), centred on it with `center`.
  DLG_CLASS(QWidget* parent, const char* title, QWidget* placeCtrl, bool center);
  ~DLG_CLASS() override;

  // The form's controls, declared in its constructor.
  cFormTable& Table() { return m_Table; }
  const cFormTable& Table() const { return m_Table; }
  void SetTitle(const std::string& utf8) { m_strTitle = utf8; }
  const std::string& Title() const { return m_strTitle; }

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
  // Fields to the screen but for control `id`; a form whose boxes' rows depend on the
  // record refills them first.
  virtual void UpdateAllExcept(unsigned id);
  void UpdateAllExcept(cListCtrlBase& list) final;
  void ApplyAll();
  // The id of the control that this command changes the value of, or 0.
  unsigned FindChanged(unsigned id, unsigned code) const;
  void RedrawLists();

  // The enabled state of the controls from their present values: the table's rules,
  // then the form's own OnUpdateEnable.
  void UpdateEnable() final;
  // The value a control of the form shows now (CTRL_CLASS::ScreenValue); 0, after the
  // report, for an id the form has not bound.
  int Value(unsigned id);

  // The one path of a command: the control of `id` whose type expects `code` handles
  // it; then OK, Cancel or the form's own OnFormCommand; then the end of the command.
  void OnCommand(unsigned id, unsigned code) override;

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
  // Pages of a sheet: the page comes to the front; the sheet applies.
  virtual void OnSetActive() {}
  virtual void OnApply() {}
  // The window is going, by End or with its sheet.
  virtual void OnDestroy() {}
  // Tells the sheet of a page that something changed.
  void SheetChanged() override;

  // The live form a widget belongs to, or null once the form has let its window go.
  static DLG_CLASS* FromWidget(QObject* w);
  // Runs `fn` once the event loop turns, if the form still has this window then.
  void RunSoon(std::function<void()> fn);

  // The widget of `id` in this form, or null.
  QWidget* GetDlgItem(unsigned id) const;
  void RegisterItem(unsigned id, QWidget* w);
  // A bound control by id (and kind), or null after the report.
  template <class C = CTRL_CLASS>
  C* GetCtrl(unsigned id) const;
  void EnableCtrl(unsigned id, bool bEnable);

  // Binds a list with one of the fixed id sets: its keys, its menu and its commands.
  template <class T>
  bool BindList(CTRL_LIST_CLASS<T>& list, const cListInit<T>& init, eListIdSet set = kListFirstFree) {
    if (!list.Bind(init)) return false;
    return BindListView(list, kListIdSets[set]);
  }

  int m_bModeless = 0;
  int m_nShowFlags = 0;
  int m_nResult = 0;
  WND_CLASS* m_lpParentClass = nullptr;
  int m_bUpdating = 0;
  // Set while OnInitDialog fills the screen for the first time: the lists, which their
  // binding has just filled from their sources, need no second copy.
  bool m_bFirstFill = false;
  int m_bHoldEsc = 0;  // Escape is swallowed, not passed to the form nor its window
  std::vector<CTRL_CLASS*> m_vecCtrl;
  CTRL_SCROLL_CLASS* m_pScrollH = nullptr;
  CTRL_SCROLL_CLASS* m_pScrollV = nullptr;

 protected:
  // The window stands: binds the table, fills the screen, runs the enabling rules, then OnReady.
  virtual void OnInitDialog();
  // What a form adds once its controls are bound and filled: focus, previews.
  virtual void OnReady() {}
  // OK after ApplyAll: what the form does with its edits. False keeps it open.
  virtual bool OnOk() { return true; }
  // A command that is no control's change, OK or Cancel: the form's buttons and menus.
  virtual void OnFormCommand(unsigned id, unsigned code) {}
  // Enabling rules beyond the table's.
  virtual void OnUpdateEnable() {}
  void ApplyControls() override;

 private:
  friend class cDlgWindow;
  friend class cFormLayout;
  bool BuildWindow(bool modeless);
  // What DoModal and Create share: the show flags, the window, its initialisation.
  void OpenWindow(int flags, bool modeless);
  void RouteCommand(unsigned id, unsigned code);
  void FinishCommand(unsigned id, unsigned code);
  void WindowGone();
  void Place();
  void SyncLists();
  std::vector<cListCtrlBase*> Lists() const;
  bool BindListView(cListCtrlBase& list, const cListIdSet& ids);

  cFormTable m_Table;
  std::string m_strTitle;
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

template <class T>
bool cFormTable::BindListOf(DLG_CLASS& form, CTRL_LIST_CLASS<T>& list, const cListInit<T>& init, eListIdSet set) {
  return form.BindList(list, init, set);
}

template <class C>
C* DLG_CLASS::GetCtrl(unsigned id) const {
  for (CTRL_CLASS* c : m_vecCtrl)
    if (c->m_nId == id)
      if (C* typed = dynamic_cast<C*>(c)) return typed;
  ReportMissingCtrl(id);
  return nullptr;
}
