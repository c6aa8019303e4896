#pragma once
// The slider's rules, with the number edit that mirrors it. A moved slider shows its
// position in the mirror and announces itself to the form like a command, so the form
// reacts (preview, enabling) in its ordinary way.
//
// The Qt side sets the widget from Range() and Position(), calls OnScroll with the new
// position when the user moves it and then sends the slider's command to the form; the
// mirror's box takes the text the rules give it.

#include <cstdint>
#include <utility>

#include "toolkit/editval_rules.h"

template <class T>
struct cSliderInit {
  std::uint16_t nId = 0;
  T* pData = nullptr;
  T nMin{}, nMax{};  // the range travels as two 16-bit halves
  T nPage = 1;
  T nStep = 1;
  std::uint16_t nEditId = 0;  // the mirroring number edit; 0 for none
};

// A range value as the slider takes it: held at the 16-bit limits.
inline int SliderRangeValue(long long v) { return v < -32768 ? -32768 : v > 32767 ? 32767 : static_cast<int>(v); }

template <class T>
class cSliderRules {
 public:
  void Bind(const cSliderInit<T>& init, cEditBox& mirror) {
    m_Init = init;
    if (init.nEditId != 0) m_Mirror.Bind({init.nEditId, init.pData, init.nMin, init.nMax, 0, 1}, mirror);
    Update(mirror);
  }
  std::pair<int, int> Range() const { return {SliderRangeValue(m_Init.nMin), SliderRangeValue(m_Init.nMax)}; }
  int Position() const { return m_nPos; }

  // Field to slider and mirror. The form is then told, as for a move.
  void Update(cEditBox& mirror) {
    SetPos(static_cast<long long>(*m_Init.pData));
    Show(mirror);
  }
  void Apply(bool ownerUpdating) {
    if (!ownerUpdating) *m_Init.pData = static_cast<T>(m_nPos);
  }
  // The user moved the slider to `pos`.
  void OnScroll(int pos, cEditBox& mirror) {
    SetPos(pos);
    Show(mirror);
  }
  // The mirror over the same field: it shows the position; the slider alone stores.
  cEditValRules<T>& Mirror() { return m_Mirror; }

 private:
  void SetPos(long long v) {
    auto [lo, hi] = Range();
    m_nPos = static_cast<int>(v < lo ? lo : v > hi ? hi : v);
  }
  void Show(cEditBox& mirror) {
    if (m_Init.nEditId != 0) m_Mirror.Show(m_nPos, mirror);
  }

  cSliderInit<T> m_Init;
  int m_nPos = 0;
  cEditValRules<T> m_Mirror;
};
