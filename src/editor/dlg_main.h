#pragma once
// DLG_MAIN, the stage editor's main dialog: the map view of the open stage with its
// two scroll bars in cells, the status line with the cursor cell, and the palette of
// the moment. The mouse on the map goes to the editing engine (stage/map_edit.h).

#include <QPointer>
#include <QWidget>
#include <functional>
#include <memory>

#include "editor/map_pane.h"

class DLG_CHIP;
class DLG_ENEMY;
class DLG_EVENT;
class QLabel;
class QScrollBar;

// The picture control of the stage: the stage drawn into the view's back buffer, which
// follows the view's size.
class cStageView : public cMapViewCtrl {
 public:
  void OnPaint() override;
  void OnMouseMove(int x, int y) override;
  void OnRButtonDblClk(int x, int y) override { Mouse(eMapMouse::kRightDoubleClick, x, y); }

 protected:
  void Mouse(eMapMouse msg, int x, int y) override;
};

class DLG_MAIN : public QWidget {
 public:
  // The default client size, and the smallest; the window grows with the frame.
  static constexpr int kWidth = 640, kHeight = 480;
  static constexpr int kMinWidth = 384, kMinHeight = 160;

  explicit DLG_MAIN(QWidget* parent, QSize size);
  ~DLG_MAIN() override;
  QSize sizeHint() const override { return m_Size; }

  // The bars' ranges from the stage and the view's size; the view drawn again.
  void UpdateScrollRanges();
  void Redraw();
  QString StatusText() const;

  // The palette window of `palette` stands, the others are gone. Palettes whose
  // windows the program does not have yet show none.
  void ShowPalette(int palette);
  // What a map edit may have changed in the palette.
  void RefreshPalette();
  void SetPaletteVisible(bool visible);
  bool PaletteVisible() const;
  DLG_CHIP* Chip() const;
  DLG_ENEMY* Enemy() const { return m_pDlgEnemy.get(); }
  DLG_EVENT* Event() const { return m_pDlgEvent.get(); }

  cStageView m_Map;
  QScrollBar* m_pScrollH;
  QScrollBar* m_pScrollV;
  QLabel* m_pStatus;
  // Space and F5, from this window or a palette.
  std::function<void(int key)> m_onKey;

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  cMapPane m_Pane;
  QSize m_Size;
  QPointer<DLG_CHIP> m_pDlgChip;
  std::unique_ptr<DLG_ENEMY> m_pDlgEnemy;
  std::unique_ptr<DLG_EVENT> m_pDlgEvent;
};
