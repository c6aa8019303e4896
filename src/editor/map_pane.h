#pragma once
// What stands around a map view in its window, the same for the stage and the world
// map: the view with two scroll bars in cells and the status line below, the bars'
// ranges from the map's size and the view's, and the wheel on the bars.

#include "stage/stage_view_draw.h"

class QLabel;
class QScrollBar;
class QWidget;
class VIEW_CLASS;

class cMapPane {
 public:
  // Lays out `view` (already made in `owner`) with the bars and the status line; a
  // move of a bar scrolls `state` and draws the view again.
  void Build(QWidget* owner, VIEW_CLASS& view, MAP_VIEW& state);
  // The bars' ranges for a map of `cells` by `rows` in the view's present size.
  void SetMapSize(int cells, int rows);
  // One wheel message: without Ctrl the horizontal bar, with Ctrl the vertical one.
  void Wheel(int amount, bool ctrl);

  QScrollBar* m_pScrollH = nullptr;
  QScrollBar* m_pScrollV = nullptr;
  QLabel* m_pStatus = nullptr;

 private:
  void Scrolled();
  VIEW_CLASS* m_pView = nullptr;
  MAP_VIEW* m_pState = nullptr;
};
