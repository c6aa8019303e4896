#pragma once
// CTRL_CLASS, the base of the typed controls: one control of a form tied to one field
// of the form's working copy. The form's control table (toolkit/form_table.h) makes
// each control with its init record; binding finds the widget by id; Update moves the
// field to the screen and Apply the screen to the field. The rules of each type live in the display-free
// *_rules.h files; these classes only carry values between them and the widgets.

#include <QPointer>
#include <QWidget>
#include <cstdint>

#include "toolkit/ctrl_types.h"

class DLG_CLASS;

class CTRL_CLASS {
 public:
  explicit CTRL_CLASS(int type) : m_nCtrlType(type) {}
  virtual ~CTRL_CLASS() = default;

  // Finds the widget of the init record's id in `owner` and takes it over. False, after
  // the report, when the form has none of that id and kind.
  virtual bool Bind(DLG_CLASS* owner) { return false; }
  virtual void Enable(bool bEnable);
  virtual void Update() {}
  virtual void Apply() {}
  virtual void OnChange() {}
  // A spin click: `id` is the spin's, `delta` +1 up, -1 down. Non-zero when taken.
  virtual int OnNotify(unsigned id, int delta) { return 0; }
  // A slider or scroll bar moved; `from` is its widget. Every control sees it.
  virtual int OnScroll(QWidget* from) { return 0; }
  virtual void RedrawSel() {}
  virtual void OnKillFocus() {}
  // A key in a modal form (a virtual key code) with the state of Control.
  virtual void OnKey(int key, bool bCtrl) {}
  // The value the control shows now, as the enabling rules read it: a check's state, a
  // combo's value, a number box's number; 0 for controls that hold none.
  virtual int ScreenValue() { return 0; }

  // Common binding: the owner, the widget of `id` and its place in the form. False,
  // after the report "コントロールID 【%u】 が見つかりません！", when the form has no
  // widget of that id or of another kind than `T`.
  template <class T>
  T* BindWidget(DLG_CLASS* owner, unsigned id);

  QPointer<QWidget> m_hWnd;
  DLG_CLASS* m_pOwner = nullptr;
  int m_nCtrlType;
  std::uint16_t m_nId = 0;
  bool m_bBusy = false;  // the control rewrites its own text

 protected:
  bool OwnerUpdating() const;
  QWidget* FindWidget(DLG_CLASS* owner, unsigned id);
  static void ReportMissing(unsigned id);
};

template <class T>
T* CTRL_CLASS::BindWidget(DLG_CLASS* owner, unsigned id) {
  QWidget* w = FindWidget(owner, id);
  T* typed = dynamic_cast<T*>(w);
  if (w != nullptr && typed == nullptr) {
    ReportMissing(id);
    m_hWnd = nullptr;
  }
  return typed;
}
