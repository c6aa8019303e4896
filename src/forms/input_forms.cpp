#include "forms/input_forms.h"

#include <QLineEdit>

#include "platform/cp932.h"

cInputForm::cInputForm(QWidget* parent, const std::string& title, QWidget* placeCtrl, bool bCenter)
    : DLG_CLASS(parent, "", placeCtrl, bCenter) {
  SetTitle(Cp932ToUtf8Lossy(title));
}

void cInputForm::OnReady() {
  if (auto* edit = qobject_cast<QLineEdit*>(GetDlgItem(kIdInput))) {
    edit->setFocus();
    edit->selectAll();  // the first key typed replaces the contents
  }
}

DLG_INPUT::DLG_INPUT(QWidget* parent, int* pValue, int nMin, int nMax, const std::string& title, QWidget* placeCtrl,
                     bool bCenter)
    : cInputForm(parent, title, placeCtrl, bCenter) {
  Table().EditVal(kIdInput, "", pValue, nMin, nMax, 1, kIdInputSpin).Row().OkCancel();
}

// A wide field keeps to `limit` characters through its line length. A narrow one has
// no line length of its own; the box reads no more bytes than its limit, so the limit
// is the field's size and the text gets no byte more than the caller allows.
DLG_INPUT_STR::DLG_INPUT_STR(QWidget* parent, std::string* pStr, int limit, bool bWide, const std::string& title,
                             QWidget* placeCtrl, bool bCenter)
    : cInputForm(parent, title, placeCtrl, bCenter) {
  Table()
      .EditStr(kIdInput, "", pStr,
               {.nLimit = bWide ? limit + 1 : limit, .nLineLen = bWide ? limit : 0, .nMaxLines = 1, .bWide = bWide ? 1 : 0})
      .Row()
      .OkCancel();
}

namespace {

QWidget* ParentOf(WND_CLASS* owner, QWidget* parent) {
  if (parent == nullptr && owner != nullptr) return owner->m_hWnd;
  return parent;
}

template <class Form, class... Args>
int RunInput(WND_CLASS* owner, QWidget* parent, Args&&... args) {
  Form form(ParentOf(owner, parent), std::forward<Args>(args)...);
  form.m_lpParentClass = owner;
  return form.DoModal();
}

}  // namespace

int InputValue(WND_CLASS* owner, QWidget* parent, int* pValue, int min, int max, const std::string& title,
               QWidget* placeCtrl, bool bCenter) {
  if (pValue == nullptr) return 0;
  return RunInput<DLG_INPUT>(owner, parent, pValue, min, max, title, placeCtrl, bCenter);
}

int InputText(WND_CLASS* owner, QWidget* parent, std::string* pStr, int limit, bool bWide, const std::string& title,
              QWidget* placeCtrl, bool bCenter) {
  if (pStr == nullptr) return 0;
  return RunInput<DLG_INPUT_STR>(owner, parent, pStr, limit, bWide, title, placeCtrl, bCenter);
}
