#pragma once
// The animated previews on the screen: each gets one call per idle frame while it is
// registered, and the idle frames run only while at least one is. A form registers its
// preview when the preview stands and takes it out when the form goes.

#include <functional>

class cAnimatedPreview {
 public:
  // `frame` runs once per idle frame while the preview is shown.
  explicit cAnimatedPreview(std::function<void()> frame) : m_fnFrame(std::move(frame)) {}
  ~cAnimatedPreview() { Hide(); }
  cAnimatedPreview(const cAnimatedPreview&) = delete;
  cAnimatedPreview& operator=(const cAnimatedPreview&) = delete;

  void Show();
  void Hide();
  bool Shown() const { return m_bShown; }
  void Frame() { m_fnFrame(); }

 private:
  std::function<void()> m_fnFrame;
  bool m_bShown = false;
};

// The number of previews registered now.
int AnimatedPreviewCount();
