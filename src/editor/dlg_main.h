#pragma once
// DLG_MAIN, the stage editor's main dialog: the map view of the open stage with its
// two scroll bars in cells, and the status line with the cursor cell.

#include <QWidget>
#include <functional>

#include "stage/stage_view_draw.h"
#include "toolkit/view_class.h"

class QLabel;
class QScrollBar;

// The picture control of the map: the stage drawn into the view's back buffer, which
// follows the view's size.
class cStageView : public VIEW_CLASS {
 public:
  void OnPaint() override;
  void OnMouseMove(int x, int y) override;
  void OnMouseWheel(int amount, bool bCtrl) override;
  void OnSize() override;

  STAGE_VIEW m_View;
  std::function<void()> m_onCursor;        // after the cursor cell changed
  std::function<void(int, bool)> m_onWheel;
  std::function<void()> m_onResize;        // after the view changed size
};

class DLG_MAIN : public QWidget {
 public:
  // The client size of the dialog and its limits.
  static constexpr int kWidth = 640, kHeight = 480;
  static constexpr int kMinWidth = 384, kMinHeight = 160;

  explicit DLG_MAIN(QWidget* parent, QSize size);
  QSize sizeHint() const override { return m_Size; }

  // The bars' ranges from the stage and the view's size; the view drawn again.
  void UpdateScrollRanges();
  void Redraw();
  QString StatusText() const;

  cStageView m_Map;
  QScrollBar* m_pScrollH;
  QScrollBar* m_pScrollV;
  QLabel* m_pStatus;

 private:
  void Scrolled();
  QSize m_Size;
};
