#pragma once
// The typed controls of a form: number edit (with its spin), check, combo, slider (with
// its mirroring number edit), label, button, picture, scroll bar and text edit. Each
// holds its init record in m_Init, which the form's control table fills (see
// toolkit/form_table.h), and binds in the form's OnInitDialog.

#include <QPointer>
#include <string>

#include "media/surface.h"
#include "toolkit/combo_rules.h"
#include "toolkit/ctrl_class.h"
#include "toolkit/editstr_rules.h"
#include "toolkit/editval_rules.h"
#include "toolkit/slider_rules.h"

class QScrollBar;

// The text of a widget as an edit box, and back. A widget that is no text box reads as
// empty. False when a character has no CP932 form (the box then holds a stand-in).
// Writing never notifies the form.
bool ReadEditBox(const QWidget* w, cEditBox& box);
void WriteEditBox(QWidget* w, const cEditBox& box);

// The spin owned by a number edit; its clicks reach the form as notifications.
class CTRL_SPIN_CLASS : public CTRL_CLASS {
 public:
  CTRL_SPIN_CLASS() : CTRL_CLASS(kCtrlSpin) {}
  bool BindSpin(DLG_CLASS* owner, unsigned id);
};

// The number edit apart from the field's type.
class cEditValCtrl : public CTRL_CLASS {
 public:
  cEditValCtrl() : CTRL_CLASS(kCtrlEditVal) {}
  void Enable(bool bEnable) override;
  void OnChange() override;
  void OnKillFocus() override;
  int OnNotify(unsigned id, int delta) override;

  CTRL_SPIN_CLASS m_Spin;

 protected:
  bool BindBox(DLG_CLASS* owner, unsigned id, unsigned spinId);
  // The box takes the room of the widest value of its range.
  void FitRange(double nMin, double nMax, int places);
  virtual cEditValCore& Core() = 0;
  cEditBox Box() const;
  void Show(const cEditBox& box) { WriteEditBox(m_hWnd, box); }
};

template <class T>
class CTRL_EDITVAL_CLASS : public cEditValCtrl {
 public:
  using InitType = cEditValInit<T>;

  bool Bind(DLG_CLASS* owner) override {
    if (!BindBox(owner, m_Init.nId, m_Init.nSpinId)) return false;
    FitRange(static_cast<double>(m_Init.nMin), static_cast<double>(m_Init.nMax),
             PlacesOfStep(static_cast<double>(m_Init.nStep)));
    cEditBox box = Box();
    m_Rules.Bind(m_Init, box);
    Show(box);
    return true;
  }
  void Update() override {
    cEditBox box = Box();
    m_Rules.Update(box);
    Show(box);
  }
  void Apply() override { m_Rules.Apply(Box(), OwnerUpdating()); }
  T GetValue() { return m_Rules.Value(Box()); }
  int ScreenValue() override { return static_cast<int>(GetValue()); }
  void SetValue(T v, bool bForce) {
    cEditBox box = Box();
    m_Rules.SetValue(static_cast<double>(v), bForce, box);
    Show(box);
  }

  InitType m_Init;
  cEditValRules<T> m_Rules;

 protected:
  cEditValCore& Core() override { return m_Rules; }
};

template <class T>
struct cCheckInit {
  std::uint16_t nId = 0;
  T* pData = nullptr;
};

// The state of a check box widget; a widget of another kind reads as off.
bool CheckWidgetChecked(const QWidget* w);
void SetCheckWidget(QWidget* w, bool on);
bool BindCheckWidget(CTRL_CLASS& ctrl, DLG_CLASS* owner, unsigned id);

template <class T>
class CTRL_CHECK_CLASS : public CTRL_CLASS {
 public:
  using InitType = cCheckInit<T>;
  CTRL_CHECK_CLASS() : CTRL_CLASS(kCtrlCheck) {}
  bool Bind(DLG_CLASS* owner) override { return BindCheckWidget(*this, owner, m_Init.nId); }
  void Update() override { SetCheckWidget(m_hWnd, *m_Init.pData != 0); }
  void Apply() override {
    if (!OwnerUpdating()) *m_Init.pData = static_cast<T>(Checked() ? 1 : 0);
  }
  int ScreenValue() override { return Checked() ? 1 : 0; }
  bool Checked() const { return CheckWidgetChecked(m_hWnd); }
  void SetChecked(bool on) { SetCheckWidget(m_hWnd, on); }
  InitType m_Init;
};

// The combo box; its field is an int.
template <class T = int>
class CTRL_COMBO_CLASS;

template <>
class CTRL_COMBO_CLASS<int> : public CTRL_CLASS {
 public:
  using InitType = cComboInit;
  CTRL_COMBO_CLASS() : CTRL_CLASS(kCtrlCombo) {}
  bool Bind(DLG_CLASS* owner) override;
  void Update() override;
  void Apply() override;
  int ScreenValue() override { return GetValue(); }
  // The value of the selected row; -1 when nothing fits.
  int GetValue() const;
  // Replaces the rows, keeping the value where it can.
  void SetLabels(const char* const* labels, const VECTOR_CLASS<int>* pValues = nullptr);
  void SetLabels(const VECTOR_CLASS<std::string>& labels, const VECTOR_CLASS<int>* pValues = nullptr);

  InitType m_Init;
  cComboRules m_Rules;

 private:
  int CurRow() const;
  void Fill(int row);
  // The rows the widget holds, so that a refill with the same rows only selects.
  std::vector<std::string> m_vecShown;
};

// The slider apart from the field's type.
class cSliderCtrl : public CTRL_CLASS {
 public:
  cSliderCtrl() : CTRL_CLASS(kCtrlSlider) {}
  void Enable(bool bEnable) override;
  int OnScroll(QWidget* from) override;

 protected:
  bool BindSlider(DLG_CLASS* owner, unsigned id, unsigned editId, std::pair<int, int> range, int page, int step);
  // Position to the widget and the mirror, then the form hears of it as of a move.
  void Show(int pos, const cEditBox& mirror);
  virtual void Scrolled(int pos, cEditBox& mirror) = 0;
  QPointer<QWidget> m_hEdit;  // the mirror
};

template <class T>
class CTRL_SLIDER_CLASS : public cSliderCtrl {
 public:
  using InitType = cSliderInit<T>;
  bool Bind(DLG_CLASS* owner) override {
    if (!BindSlider(owner, m_Init.nId, m_Init.nEditId, {SliderRangeValue(m_Init.nMin), SliderRangeValue(m_Init.nMax)},
                    static_cast<int>(m_Init.nPage), static_cast<int>(m_Init.nStep)))
      return false;
    cEditBox mirror;
    m_Rules.Bind(m_Init, mirror);
    Show(m_Rules.Position(), mirror);
    return true;
  }
  void Update() override {
    cEditBox mirror;
    m_Rules.Update(mirror);
    Show(m_Rules.Position(), mirror);
  }
  void Apply() override { m_Rules.Apply(OwnerUpdating()); }
  int ScreenValue() override { return m_Rules.Position(); }

  InitType m_Init;
  cSliderRules<T> m_Rules;

 protected:
  void Scrolled(int pos, cEditBox& mirror) override { m_Rules.OnScroll(pos, mirror); }
};

struct cIdInit {
  std::uint16_t nId = 0;
};

class CTRL_LABEL_CLASS : public CTRL_CLASS {
 public:
  using InitType = cIdInit;
  CTRL_LABEL_CLASS() : CTRL_CLASS(kCtrlLabel) {}
  bool Bind(DLG_CLASS* owner) override;
  // CP932 text.
  void SetText(const std::string& text);
  InitType m_Init;
};

// A button holds no value: its press reaches the form's OnCommand and counts as a change.
class CTRL_BUTTON_CLASS : public CTRL_CLASS {
 public:
  using InitType = cIdInit;
  CTRL_BUTTON_CLASS() : CTRL_CLASS(kCtrlButton) {}
  bool Bind(DLG_CLASS* owner) override;
  InitType m_Init;
};

struct cPictureInit {
  std::uint16_t nId = 0;
  int nWidth = 0, nHeight = 0;  // both non-zero: the control takes this size
  int nX = -1, nY = -1;         // a place in the form, -1 for none
};

// A picture owns a surface of its size: the form draws into it, then calls Redraw.
class CTRL_PICTURE_CLASS : public CTRL_CLASS {
 public:
  using InitType = cPictureInit;
  CTRL_PICTURE_CLASS() : CTRL_CLASS(kCtrlPicture) {}
  bool Bind(DLG_CLASS* owner) override;
  void Redraw();
  InitType m_Init;
  cSurface m_Surface;
};

// A scroll bar of a form; `AddPos` answers what the bar made of the new position.
class CTRL_SCROLL_CLASS : public CTRL_CLASS {
 public:
  CTRL_SCROLL_CLASS() : CTRL_CLASS(kCtrlScroll) {}
  void BindBar(DLG_CLASS* owner, QScrollBar* bar);
  int GetPos() const;
  void SetPos(int n);
  int AddPos(int n);
  // Moves by a scroll action; true when the position changed.
  bool Scroll(int action);
  QScrollBar* Bar() const;
};

// The text edit: a one-line field or a multi-line text box, kept within its line
// length and line count while the user types.
class CTRL_EDITSTR_CLASS : public CTRL_CLASS {
 public:
  using InitType = cEditStrInit;
  CTRL_EDITSTR_CLASS() : CTRL_CLASS(kCtrlEditStr) {}
  bool Bind(DLG_CLASS* owner) override;
  void Update() override;
  void Apply() override;
  void OnChange() override;
  // The program sets the text (CP932); what does not fit is trimmed.
  void SetText(const std::string& text);

  InitType m_Init;
  cEditStrRules m_Rules;
};
