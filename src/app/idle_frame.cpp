#include "app/idle_frame.h"

#include "app/app_frame.h"
#include "platform/clock.h"

cIdleClients g_IdleClients;
cFrameCounter g_FrameCounter;

bool IdleFramesWanted(bool bAnimatedPreview, int bAppActive, int bTestPlay) {
  return bAnimatedPreview && bAppActive != 0 && bTestPlay == 0;
}

void cFrameCounter::Tick(std::uint32_t nowMs) {
  if (!m_bStarted) {
    m_bStarted = true;
    m_nSecondStart = nowMs;
  }
  ++m_nCount;
  if (nowMs - m_nSecondStart >= 1000) {  // unsigned: the clock may wrap
    m_nLastSecond = m_nCount;
    m_nCount = 0;
    m_nSecondStart = nowMs;
  }
}

bool IdleFramesWantedNow() {
  bool preview = g_IdleClients.animatedPreviewShown != nullptr && g_IdleClients.animatedPreviewShown();
  return IdleFramesWanted(preview, g_bAppActive, bTestPlay);
}

void AnimatedPreviewChanged() {
  if (g_IdleClients.previewsChanged != nullptr) g_IdleClients.previewsChanged();
}

void ServeFocusRequest() {
  if (g_pDlgMain == nullptr || !g_bFocusRequest) return;
  g_bFocusRequest = 0;
  if (g_IdleClients.focusMain != nullptr) g_IdleClients.focusMain();
}

bool IdleFrame() {
  if (g_pDlgMain == nullptr) return true;
  ServeFocusRequest();
  g_FrameCounter.Tick(GetTickMs());
  if (g_IdleClients.giveFrames != nullptr) g_IdleClients.giveFrames();
  return true;
}
