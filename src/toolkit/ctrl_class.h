#pragma once
// CTRL_CLASS, the base of the typed controls: one control of a form tied to one field
// of the form's working copy. The form declares each control's init record in its
// constructor; binding finds the widget by id; Update moves the field to the screen
// and Apply the screen to the field. The rules of each type live in the display-free
// *_rules.h files; these classes only carry values between them and the widgets.

#include <QPointer>
#include <QRect>
#include <QWidget>
#include <cstdint>
#include <initializer_list>

#include "kernel/vector_class.h"
#include "toolkit/ctrl_types.h"

class DLG_CLASS;

class CTRL_CLASS {
 public:
  explicit CTRL_CLASS(int type) : m_nCtrlType(type) {}
  virtual ~CTRL_CLASS() = default;

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

  // Common binding: the owner, the widget of `id` and its place in the form. False,
  // after the report "コントロールID 【%u】 が見つかりません！", when the form has no
  // widget of that id or of another kind than `T`.
  template <class T>
  T* BindWidget(DLG_CLASS* owner, unsigned id);

  QPointer<QWidget> m_hWnd;
  DLG_CLASS* m_pOwner = nullptr;
  int m_nCtrlType;
  std::uint16_t m_nId = 0;
  QRect m_rcPlace;      // the widget's rectangle in the form, at binding
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

// Fills a form's control vector from init records, one element per record. The vector
// is sized here and never changes size afterwards: the form's control list points into
// it.
template <class C>
void Declare(VECTOR_CLASS<C>& ctrls, std::initializer_list<typename C::InitType> inits) {
  ctrls.clear();
  ctrls.resize(inits.size());
  std::size_t i = 0;
  for (const auto& init : inits) ctrls[i++].m_Init = init;
}
