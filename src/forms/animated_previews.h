#pragma once
// The animated previews on the screen: each gets one call per idle frame while it is
// registered and live, and the idle frames run only while at least one is. A form
// registers its preview when the preview stands and takes it out when the form goes; a
// preview that stands on a page of a sheet is live only while that page is in front.

#include <functional>

class cAnimatedPreview {
 public:
  // `frame` runs once per idle frame while the preview is live; `live`, when given,
  // says whether a registered preview can be seen now.
  explicit cAnimatedPreview(std::function<void()> frame, std::function<bool()> live = {})
      : m_fnFrame(std::move(frame)), m_fnLive(std::move(live)) {}
  ~cAnimatedPreview() { Hide(); }
  cAnimatedPreview(const cAnimatedPreview&) = delete;
  cAnimatedPreview& operator=(const cAnimatedPreview&) = delete;

  void Show();
  void Hide();
  bool Shown() const { return m_bShown; }
  bool Live() const { return m_bShown && (!m_fnLive || m_fnLive()); }
  void Frame() { m_fnFrame(); }

 private:
  std::function<void()> m_fnFrame;
  std::function<bool()> m_fnLive;
  bool m_bShown = false;
};

// The number of previews registered now.
int AnimatedPreviewCount();

// The idle frame's view of them: whether any is live, and one frame to each live one.
bool AnyAnimatedPreviewLive();
void GiveAnimatedPreviewFrames();
