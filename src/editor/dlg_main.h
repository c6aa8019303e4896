#pragma once
// DLG_MAIN, the stage editor's main dialog: the map view of the open stage with its
// two scroll bars in cells, and the status line with the cursor cell.

#include <QWidget>
#include <functional>

#include "media/surface.h"
#include "stage/stage_view_draw.h"

class QLabel;
class QScrollBar;

// The picture control of the map: the stage drawn into a back buffer of the view's
// size, copied to the screen on each paint.
class cStageViewWidget : public QWidget {
 public:
  explicit cStageViewWidget(QWidget* parent);
  STAGE_VIEW m_View;
  cSurface m_Buffer;
  // Called after the cursor cell changed.
  std::function<void()> m_onCursor;
  // Called with a wheel message's 16-bit amount and whether Ctrl was held.
  std::function<void(int, bool)> m_onWheel;
  // Called after the view changed size.
  std::function<void()> m_onResize;

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
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

  cStageViewWidget* m_pView;
  QScrollBar* m_pScrollH;
  QScrollBar* m_pScrollV;
  QLabel* m_pStatus;

 private:
  void Scrolled();
  QSize m_Size;
};
