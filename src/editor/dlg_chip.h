#pragma once
// DLG_CHIP, the chip palette: a floating window beside the main window with the four
// drawing tools, the terrain chips 8 to a row and the chosen entry's number and name.
// The world map's palette is the same window over its own chips, without the tools and
// the wheel (editor/dlg_worldchip.h).

#include <QPoint>
#include <QWidget>
#include <functional>

#include "stage/chip_palette.h"
#include "toolkit/view_class.h"

struct cWndPosInfo;

class QActionGroup;
class QLabel;
class QScrollBar;
class QToolBar;

class cChipView : public VIEW_CLASS {
 public:
  void OnPaint() override;
  void OnLButtonDown(int x, int y) override;
  void OnMouseWheel(int amount, bool bCtrl) override;
  int m_nTop = 0;  // the first row shown
  const cChipPaletteFace* m_pFace = &StageChipFace();
  std::function<void()> m_onChosen;
  std::function<void(int)> m_onWheel;
};

class DLG_CHIP : public QWidget {
 public:
  // The tools' commands, in the order of their pictures.
  static constexpr int kToolCommands[] = {40041, 40047, 40042, 40043};

  // What differs between the stage's palette and the world map's.
  struct cLook {
    const cChipPaletteFace& face;
    bool tools;           // the drawing tools' bar
    bool wheel;           // the wheel scrolls the rows
    cWndPosInfo& stored;  // the place it is kept at in the configuration
    QPoint offset;        // the default place from the owner's top right corner
  };

  // `keys` receives Space and F5, which belong to the main window.
  DLG_CHIP(QWidget* owner, std::function<void(int key)> keys);
  DLG_CHIP(QWidget* owner, std::function<void(int key)> keys, const cLook& look);
  ~DLG_CHIP() override;

  // The height follows the terrain list, within the work area; the bar follows both.
  void Relayout();
  // The chips, the highlight and the status text drawn again.
  void Refresh();

  cChipView m_View;
  QToolBar* m_pToolBar;
  QActionGroup* m_pTools;
  QScrollBar* m_pScroll;
  QLabel* m_pStatus;

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  void UpdateScroll();
  std::function<void(int)> m_Keys;
  cLook m_Look;
  bool m_bPlaced = false;
};
