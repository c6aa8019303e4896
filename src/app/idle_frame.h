#pragma once
// The idle frame: the one periodic activity of the main thread, which drives the
// animated previews of the database forms at 20 frames per second. The window layer
// runs it from a timer that exists only while frames are wanted; otherwise the process
// sleeps in its event loop.

#include <cstdint>

constexpr int kIdleFramesPerSecond = 20;
constexpr int kIdleFrameMs = 1000 / kIdleFramesPerSecond;

// Frames run only while an animated preview is on the screen, the application is in
// the foreground and no test play runs.
bool IdleFramesWanted(bool bAnimatedPreview, int bAppActive, int bTestPlay);

// The frames counted in the last whole second.
class cFrameCounter {
 public:
  void Tick(std::uint32_t nowMs);
  int LastSecond() const { return m_nLastSecond; }

 private:
  bool m_bStarted = false;
  std::uint32_t m_nSecondStart = 0;
  int m_nCount = 0;
  int m_nLastSecond = 0;
};

// What the frame drives, installed by the window layer; each may be null.
struct cIdleClients {
  bool (*animatedPreviewShown)() = nullptr;  // an animated preview can be seen
  void (*focusMain)() = nullptr;             // gives the focus back to the editing dialog
  void (*giveFrames)() = nullptr;            // one frame to every preview that can be seen
  void (*previewsChanged)() = nullptr;       // an animated preview came or went
};
extern cIdleClients g_IdleClients;
extern cFrameCounter g_FrameCounter;

// Whether frames are wanted now, from the frame's state and the installed clients.
bool IdleFramesWantedNow();

// An animated preview came to the screen or left it: the frames start or stop at once.
void AnimatedPreviewChanged();

// One frame: the focus request, the frame count, the frames of the dialogs. Nothing
// before the main dialog exists. Always true.
bool IdleFrame();
// Gives the focus back to the editing dialog if that was asked for; a frame does it, and
// so does the window layer once the program is active again, whether or not frames run.
void ServeFocusRequest();
