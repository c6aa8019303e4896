#pragma once
// The number edit's rules: what a typed character may be, how the text reads as a
// value, and what the box shows while the user types, on a spin click and when the box
// loses the focus. Every number in every form goes through these rules.
//
// The Qt side keeps one rules object per box and calls, with the box's text:
//   Bind        when the form binds its controls (shows the field);
//   OnChange    after each edit of the user (the text may come back rewritten);
//   OnKillFocus when the box loses the focus (the text is normalised);
//   OnSpin      on each click of the companion spin (+1 up, -1 down);
//   Update, Apply as the form's UpdateAll and ApplyAll ask.
// Typed characters pass EditValCharPasses; committed input-method text goes through
// EditValImeChars first.

#include <cstdint>
#include <string>
#include <string_view>
#include <type_traits>

#include "toolkit/edit_box.h"

// The kind of value behind a box, from the field's type.
enum eValKind : int {
  kValChar,
  kValUChar,
  kValShort,
  kValUShort,
  kValInt,
  kValUInt,
  kValFloat,
  kValDouble,
};

template <class T>
constexpr eValKind ValKindOf() {
  if constexpr (std::is_same_v<T, unsigned char>) return kValUChar;
  else if constexpr (std::is_same_v<T, signed char> || std::is_same_v<T, char>) return kValChar;
  else if constexpr (std::is_same_v<T, short>) return kValShort;
  else if constexpr (std::is_same_v<T, unsigned short>) return kValUShort;
  else if constexpr (std::is_same_v<T, int>) return kValInt;
  else if constexpr (std::is_same_v<T, unsigned int>) return kValUInt;
  else if constexpr (std::is_same_v<T, float>) return kValFloat;
  else {
    static_assert(std::is_same_v<T, double>, "a number edit holds a char, short, int, float or double");
    return kValDouble;
  }
}

// Decimal places a box shows: the step's fractional digits, up to 10. 1 gives 0,
// 0.5 gives 1, 0.25 gives 2.
int PlacesOfStep(double step);

// The longest text a box of this range shows, for the room it takes on the screen: the
// longer of the two bounds with the places shown, at most 12 characters.
std::string EditValWidestText(double nMin, double nMax, int places);

// True when a typed character code may enter the box: digits, "-", ".", backspace and
// the control codes 1 to 39. Everything else vanishes without a beep.
bool EditValCharPasses(unsigned code);

// The characters that committed input-method text (CP932) types into a box: the
// full-width digits, minus and full stop become their ASCII forms; anything else is
// dropped.
std::string EditValImeChars(std::string_view cp932);

// The typed-independent part of the rules; values travel as double, which holds every
// value of the integer kinds exactly.
class cEditValCore {
 public:
  void Setup(eValKind kind, double nMin, double nMax, double nStep);

  // The value that the text reads as. Keeps the empty flag and the pending text: the
  // exact text to keep while the user is part way through a number ("-", "-0", "1.").
  double GetValue(const cEditBox& box);
  // Clamps `v` to the range and writes the text, unless the box is empty.
  void SetValue(double v, bool bForce, cEditBox& box);

  // After a user's edit: re-reads and rewrites the text, keeping the selection. The
  // field is not written. True when the text changed.
  bool OnChange(cEditBox& box);
  // Leaving a box normalises its text: an empty box shows 0 (or the minimum when that
  // is above 0), any other shows its value in full.
  void OnKillFocus(cEditBox& box);
  // A spin click counts from the value in the box, or from 0 or the minimum when it is
  // empty.
  void OnSpin(int delta, cEditBox& box);
  // Shows `field` afresh, dropping what the user was part way through.
  void Show(double field, cEditBox& box);
  // The value that Apply stores: the text's value, clamped to the range.
  double ReadClamped(const cEditBox& box);

  int Places() const { return m_nPlaces; }
  bool IsEmpty() const { return m_bEmpty; }
  const std::string& Pending() const { return m_strPending; }

 private:
  double Clamp(double v) const;
  double EmptyValue() const { return m_dMin < 1 ? 0 : m_dMin; }

  eValKind m_nKind = kValInt;
  double m_dMin = 0, m_dMax = 0, m_dStep = 1;
  int m_nPlaces = 0;
  bool m_bFractional = false;
  bool m_bEmpty = false;
  std::string m_strPending;
};

// What a form declares for a number edit.
template <class T>
struct cEditValInit {
  std::uint16_t nId = 0;
  T* pData = nullptr;
  T nMin{}, nMax{};
  std::uint16_t nSpinId = 0;  // 0: no spin
  T nStep = 1;                // its decimal places are the places shown
};

template <class T>
class cEditValRules : public cEditValCore {
 public:
  void Bind(const cEditValInit<T>& init, cEditBox& box) {
    m_Init = init;
    Setup(ValKindOf<T>(), static_cast<double>(init.nMin), static_cast<double>(init.nMax),
          static_cast<double>(init.nStep));
    Show(static_cast<double>(*init.pData), box);
  }
  void Update(cEditBox& box) { Show(static_cast<double>(*m_Init.pData), box); }
  // `ownerUpdating`: the form is moving fields to the screen; nothing is written back.
  void Apply(const cEditBox& box, bool ownerUpdating) {
    if (!ownerUpdating) *m_Init.pData = static_cast<T>(ReadClamped(box));
  }
  T Value(const cEditBox& box) { return static_cast<T>(GetValue(box)); }
  const cEditValInit<T>& Init() const { return m_Init; }

 private:
  cEditValInit<T> m_Init;
};
