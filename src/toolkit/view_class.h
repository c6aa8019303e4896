#pragma once
// VIEW_CLASS, a plain child window that draws: OnPaint draws into the back buffer,
// which then reaches the screen through the one painter of surfaces (PaintSurface),
// and the mouse reaches the window's slots through the one dispatch of WND_CLASS.

#include "media/surface.h"
#include "toolkit/wnd_class.h"

class VIEW_CLASS : public WND_CLASS {
 public:
  VIEW_CLASS() : WND_CLASS(0) {}
  ~VIEW_CLASS() override;
  // Makes the widget as a child of `parent` with a client of w x h logical pixels.
  // With `bGrow` it follows the size its layout gives it, and the back buffer with it.
  bool CreateView(QWidget* parent, int w, int h, bool bGrow = false);
  virtual void OnCreate() {}
  // The client changed size; the back buffer already has the new size.
  virtual void OnSize() {}
  // Repaints: OnPaint into the back buffer, then to the screen.
  void Invalidate();

  // The back buffer, `m_dBackRatio` of its pixels to a logical one: 1 by default, so
  // that a view draws in logical pixels and the painter scales it to the screen.
  cSurface m_Back;
  double m_dBackRatio = 1.0;

 protected:
  // The device pixel ratio of the view's screen, 1 without a window.
  double ScreenRatio() const;
};
