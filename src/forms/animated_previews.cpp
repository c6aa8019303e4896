#include "forms/animated_previews.h"

#include <algorithm>
#include <vector>

#include "app/idle_frame.h"

namespace {

std::vector<cAnimatedPreview*>& ShownPreviews() {
  static std::vector<cAnimatedPreview*> shown;
  return shown;
}

}  // namespace

void cAnimatedPreview::Show() {
  if (m_bShown) return;
  m_bShown = true;
  ShownPreviews().push_back(this);
  AnimatedPreviewChanged();
}

void cAnimatedPreview::Hide() {
  if (!m_bShown) return;
  m_bShown = false;
  std::erase(ShownPreviews(), this);
  AnimatedPreviewChanged();
}

int AnimatedPreviewCount() { return static_cast<int>(ShownPreviews().size()); }

bool AnyAnimatedPreviewLive() {
  return std::any_of(ShownPreviews().begin(), ShownPreviews().end(), [](const cAnimatedPreview* p) { return p->Live(); });
}

void GiveAnimatedPreviewFrames() {
  // A frame may close a form, and with it a preview: walk a copy.
  const std::vector<cAnimatedPreview*> shown = ShownPreviews();
  for (cAnimatedPreview* preview : shown)
    if (std::find(ShownPreviews().begin(), ShownPreviews().end(), preview) != ShownPreviews().end() && preview->Live())
      preview->Frame();
}
