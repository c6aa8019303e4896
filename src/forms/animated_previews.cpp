#include "forms/animated_previews.h"

#include <algorithm>
#include <vector>

#include "app/idle_frame.h"

namespace {

std::vector<cAnimatedPreview*>& ShownPreviews() {
  static std::vector<cAnimatedPreview*> shown;
  return shown;
}

bool AnyShown() { return !ShownPreviews().empty(); }

void GiveFrames() {
  // A frame may close a form, and with it a preview: walk a copy.
  const std::vector<cAnimatedPreview*> shown = ShownPreviews();
  for (cAnimatedPreview* preview : shown)
    if (std::find(ShownPreviews().begin(), ShownPreviews().end(), preview) != ShownPreviews().end()) preview->Frame();
}

void Changed() {
  g_IdleClients.animatedPreviewShown = AnyShown;
  g_IdleClients.giveFrames = GiveFrames;
  if (g_IdleClients.previewsChanged != nullptr) g_IdleClients.previewsChanged();
}

}  // namespace

void cAnimatedPreview::Show() {
  if (m_bShown) return;
  m_bShown = true;
  ShownPreviews().push_back(this);
  Changed();
}

void cAnimatedPreview::Hide() {
  if (!m_bShown) return;
  m_bShown = false;
  std::erase(ShownPreviews(), this);
  Changed();
}

int AnimatedPreviewCount() { return static_cast<int>(ShownPreviews().size()); }
