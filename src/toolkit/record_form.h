#pragma once
// A form over one record: the working copy its controls are bound to, taken from the
// source when the form is made. Nothing reaches the source before the caller copies
// the working copy back, which EditRecord does on OK.

#include <utility>

#include "toolkit/dlg_class.h"
#include "toolkit/list_ctrl.h"

template <class R>
class cRecordForm : public DLG_CLASS {
 public:
  using Record = R;
  cRecordForm(QWidget* parent, const char* title, const R& source) : DLG_CLASS(parent, title) {
    ListCopyRecord(m_Work, source);
  }
  // Opened from a list: placed beside `placeCtrl`, or centred on it.
  cRecordForm(QWidget* parent, const char* title, const R& source, QWidget* placeCtrl, bool center)
      : DLG_CLASS(parent, title, placeCtrl, center) {
    ListCopyRecord(m_Work, source);
  }

  R m_Work;
};

// Runs `Form` (made from `record` and `args`) modally; on OK the record takes the
// form's working copy. The form's result.
template <class Form, class R, class... Args>
int EditRecord(R& record, Args&&... args) {
  Form form(record, std::forward<Args>(args)...);
  const int result = form.DoModal();
  if (result == 1) ListCopyRecord(record, form.m_Work);
  return result;
}
