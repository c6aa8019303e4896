#pragma once
// DLG_INPUT and DLG_INPUT_STR: a number or a line of text asked for on its own, in a
// small modal form with a title, one edit, OK and Cancel. The edit is bound to the
// caller's field itself: only OK writes it.

#include <string>

#include "toolkit/dlg_class.h"

// What the two forms share: the title (CP932), the one edit 1077, selected when the
// form opens so that typing replaces it, and OK and Cancel.
class cInputForm : public DLG_CLASS {
 public:
  enum : unsigned { kIdInput = 1077, kIdInputSpin = 1078 };
  cInputForm(QWidget* parent, const std::string& title, QWidget* placeCtrl, bool bCenter);

 protected:
  void OnReady() override;
};

class DLG_INPUT : public cInputForm {
 public:
  DLG_INPUT(QWidget* parent, int* pValue, int nMin, int nMax, const std::string& title, QWidget* placeCtrl,
            bool bCenter);
};

class DLG_INPUT_STR : public cInputForm {
 public:
  // `limit` counts characters as the game sees them with `bWide`, else bytes.
  DLG_INPUT_STR(QWidget* parent, std::string* pStr, int limit, bool bWide, const std::string& title,
                QWidget* placeCtrl, bool bCenter);
};

// Run the forms modally over `parent` (or the owner's window); 1 on OK, when the field
// holds the input, 0 on Cancel or close with the field untouched. The title is CP932.
int InputValue(WND_CLASS* owner, QWidget* parent, int* pValue, int min, int max, const std::string& title = {},
               QWidget* placeCtrl = nullptr, bool bCenter = false);
int InputText(WND_CLASS* owner, QWidget* parent, std::string* pStr, int limit, bool bWide,
              const std::string& title = {}, QWidget* placeCtrl = nullptr, bool bCenter = false);
