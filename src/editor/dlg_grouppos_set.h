#pragma once
// DLG_GROUPPOS_SET, one position group on a picture of the map: a click puts a cell
// into the group or takes it out, and the group's cells carry the position mark. The
// name and the centre stand below the picture.

#include <QPoint>

#include "stage/stage_records.h"
#include "stage/stage_view_draw.h"
#include "toolkit/live_instance.h"
#include "toolkit/record_form.h"
#include "toolkit/view_class.h"

class DLG_GROUPPOS_SET;
class QScrollBar;

// The map picture: draws into its back buffer and hands the mouse to the form.
class cGroupPosView : public VIEW_CLASS {
 public:
  explicit cGroupPosView(DLG_GROUPPOS_SET& form) : m_Form(form) {}
  void OnPaint() override;
  void OnMouseMove(int x, int y) override;
  void OnLButtonDown(int x, int y) override;
  void OnSize() override;

 private:
  DLG_GROUPPOS_SET& m_Form;
};

class DLG_GROUPPOS_SET : public cRecordForm<cGroupPos>, public cLiveInstance<DLG_GROUPPOS_SET> {
 public:
  enum : unsigned {
    kIdMap = 1090,
    kIdScrollV = 1091,
    kIdScrollH = 1092,
    kIdName = 1093,
    kIdCenterX = 1094,
    kIdCenterXSpin = 1095,
    kIdCenterY = 1096,
    kIdCenterYSpin = 1097,
    kIdStatus = 1098,
  };
  static constexpr int kWidth = 640, kHeight = 510;

  // Opens at `at`, the main window's place.
  DLG_GROUPPOS_SET(const cGroupPos& source, QWidget* parent, QPoint at);

  // The picture of the map with the group's marks, into the view's buffer.
  void Draw(cSurface& back);
  // The cursor follows the mouse; a press toggles the cell under it.
  void MouseAt(int px, int py, bool press);
  // The bars' ranges and page from the map and the picture's size.
  void UpdateScroll();

  MAP_VIEW m_View;
  cGroupPosView m_Picture{*this};

 protected:
  void OnReady() override;

 private:
  void ShowCursor();
  QScrollBar* m_pScrollH = nullptr;
  QScrollBar* m_pScrollV = nullptr;
};

// The form on `group`, which takes the edits on OK; its result.
int RunGroupPosSet(cGroupPos& group, QWidget* parent, QWidget* main);
