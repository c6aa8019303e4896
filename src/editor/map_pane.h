#pragma once
// What stands around a map view in its window, the same for the stage and the world
// map: the view with two scroll bars in cells and the status line below, the bars'
// ranges from the map's size and the view's, and the wheel on the bars.

#include <functional>

#include "stage/map_edit.h"
#include "stage/stage_view_draw.h"
#include "toolkit/view_class.h"

class QLabel;
class QScrollBar;
class QWidget;

// The picture control of a map: its buttons go to the editor's engine through Mouse,
// the wheel and a change of size to the window around it.
class cMapViewCtrl : public VIEW_CLASS {
 public:
  void OnLButtonDown(int x, int y) override { Mouse(eMapMouse::kLeftDown, x, y); }
  void OnLButtonUp(int x, int y) override { Mouse(eMapMouse::kLeftUp, x, y); }
  void OnRButtonDown(int x, int y) override { Mouse(eMapMouse::kRightDown, x, y); }
  void OnRButtonUp(int x, int y) override { Mouse(eMapMouse::kRightUp, x, y); }
  void OnMouseWheel(int amount, bool bCtrl) override {
    if (m_onWheel) m_onWheel(amount, bCtrl);
  }
  void OnSize() override {
    if (m_onResize) m_onResize();
  }

  MAP_VIEW m_View;
  std::function<void()> m_onCursor;  // after a mouse message that moved or edited
  std::function<void(int, bool)> m_onWheel;
  std::function<void()> m_onResize;  // after the view changed size

 protected:
  virtual void Mouse(eMapMouse msg, int x, int y) = 0;
};

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
