#pragma once
// WND_CLASS, the base of every window of the editor, and g_WndList, the registry of
// the modeless dialogs and the sheets. A window object lives over a Qt widget: the
// object exists before its widget and outlives it; m_hWnd is null while there is none.
//
// Every command of a window arrives through SendCommand(id, code), which keeps the
// re-entry flag: while one command is handled, a second is dropped.

#include <QKeySequence>
#include <QPointer>
#include <QRect>
#include <QWidget>
#include <span>
#include <string>
#include <vector>

class QMenu;
class QMouseEvent;
class QShortcut;
class PROP_CLASS;

// Mouse state of a window, in client co-ordinates.
struct cMouseState {
  int x = 0, y = 0;
  bool left = false, right = false;  // held
};

// One accelerator: a key and the command id it sends.
struct cAccel {
  QKeySequence key;
  unsigned id;
};

// Where a window of `size` opens when asked for `pos`: inside `work`. A co-ordinate
// before the work area's edge moves to the edge; a window that would reach past the far
// edge is pulled back by the overflow, but never beyond the near edge.
QPoint PlaceInWorkArea(QPoint pos, QSize size, const QRect& work);
// The top left that centres `size` on `on`.
QPoint CentreOn(const QRect& on, QSize size);

// A context menu opens on the release of the right button, and only after the button
// was seen up while the window was open: a press that opened the window never counts.
class cRightClickEdge {
 public:
  // One look at the buttons. True when the menu is to open now.
  bool Poll(bool rightHeld, bool leftHeld, bool rightReleased, bool current);

 private:
  bool m_bArmed = false;
};

class WND_CLASS {
 public:
  explicit WND_CLASS(int type = 0) : m_nType(type) {}
  virtual ~WND_CLASS();
  WND_CLASS(const WND_CLASS&) = delete;
  WND_CLASS& operator=(const WND_CLASS&) = delete;

  // The one entry of commands: drops a command that arrives while one is handled.
  // True when the command ran.
  bool SendCommand(unsigned id, unsigned code);

  virtual void OnCommand(unsigned id, unsigned code) {}
  virtual void OnMouseMove(int x, int y) {}
  virtual void OnLButtonDown(int x, int y) {}
  virtual void OnRButtonDown(int x, int y) {}
  virtual void OnLButtonDblClk(int x, int y) {}
  virtual void OnRButtonDblClk(int x, int y) {}
  virtual void OnLButtonUp(int x, int y) {}
  virtual void OnRButtonUp(int x, int y) {}
  // A wheel message's 16-bit amount (120 a notch up) and whether Control was held.
  virtual void OnMouseWheel(int amount, bool bCtrl) {}
  virtual void OnPaint() {}

  // Shows `menu` at the mouse and sends the chosen item's id as a command (code 0).
  void TrackMenu(QMenu* menu);
  // Appends a table: each key sends its id as a command (code 1) when this window is
  // current and `target` (or the window itself, for null) has the focus. Modal forms
  // keep the tables but run no accelerators: their lists take the keys through OnKey.
  void AddAccelerators(QWidget* target, std::span<const cAccel> table);
  void Enable(bool bEnable);
  // Active, or for a page, the current page of the active sheet.
  bool IsCurrent() const;

  int m_nType;  // 1 dialog, 2 page of a sheet, 0 any other window
  QPointer<QWidget> m_hWnd;
  QPointer<QWidget> m_hParent;
  PROP_CLASS* m_pSheet = nullptr;  // the sheet of a page
  cMouseState m_Mouse;
  int m_bReady = 0;
  int m_bInCommand = 0;
  int m_nX = -1000, m_nY = -1000;  // last position; -1000 for none
  WND_CLASS* m_pPlaceWnd = nullptr;
  QPointer<QWidget> m_pPlaceCtrl;
  bool m_bCenter = false;

 protected:
  // Accelerator pairs, and the shortcuts made from them while the window exists.
  struct cAccelPair {
    QPointer<QWidget> target;
    std::vector<cAccel> table;
  };
  std::vector<cAccelPair> m_listAccel;
  void InstallAccelerators();
  bool m_bRunAccelerators = true;

 private:
  std::vector<QPointer<QShortcut>> m_vecShortcut;
};

// The one way the mouse reaches a window: the mouse state first, then the slot of the
// event (move, press, release, double click of either button). Co-ordinates are the
// event's, in logical pixels of the widget that received it.
void DispatchMouse(WND_CLASS& wnd, const QMouseEvent* e);

// The registry of the modeless dialogs and the sheets. A modal dialog is in neither
// list: it runs its own loop.
class cWndList {
 public:
  void Add(WND_CLASS* wnd, void* owner = nullptr);
  void Remove(WND_CLASS* wnd);
  // A sheet entry owns its object.
  void AddSheet(PROP_CLASS* sheet);
  void RemoveSheet(PROP_CLASS* sheet);
  void ShowAll(bool bShow);
  void EnableAll(bool bEnable);
  // Deletes the sheets whose window has closed. Runs soon after a sheet closes, not
  // inside the close itself, so that nothing of the sheet runs after its deletion.
  // True when one was deleted.
  bool Pump();
  bool Contains(const WND_CLASS* wnd) const;
  int WindowCount() const { return static_cast<int>(m_vecWnd.size()); }
  int SheetCount() const { return static_cast<int>(m_vecSheet.size()); }

 private:
  struct cEntry {
    WND_CLASS* wnd;
    void* owner;
  };
  std::vector<cEntry> m_vecWnd;
  std::vector<PROP_CLASS*> m_vecSheet;
};

extern cWndList g_WndList;
