#pragma once
// DLG_SELECTGRAPHIC, the chooser behind the "一覧" buttons: a whole folded sheet on
// screen, the cell under the mouse framed, and a left click picks that cell's number.

#include <QPoint>

#include "toolkit/dlg_class.h"
#include "toolkit/view_class.h"

// One kind of picture: its sheet in g_aSheet, the client size that shows the sheet
// and the size of a cell.
struct cGraphicKind {
  int nSheet;
  int nWidth, nHeight;
  int nCellW, nCellH;
};

// Kinds 0 characters, 1 effects, 2 map chips, 3 events; null for any other.
const cGraphicKind* GraphicKindOf(int kind);

// The picture number of the cell at client pixel (px, py), in the kind's own
// numbering. A point outside the client counts as the nearest pixel inside. -1 for an
// unknown kind.
int GraphicValueAt(int kind, int px, int py);

class DLG_SELECTGRAPHIC;

// The sheet's view: draws into its back buffer and hands the mouse to the form.
class cGraphicSheetView : public VIEW_CLASS {
 public:
  explicit cGraphicSheetView(DLG_SELECTGRAPHIC& form) : m_Form(form) {}
  void OnPaint() override;
  void OnMouseMove(int x, int y) override;
  void OnLButtonDown(int x, int y) override;

 private:
  DLG_SELECTGRAPHIC& m_Form;
};

class DLG_SELECTGRAPHIC : public DLG_CLASS {
 public:
  enum : unsigned { kIdSheet = 1400 };
  // `kind` must be one GraphicKindOf knows.
  DLG_SELECTGRAPHIC(int kind, int* pValue, QWidget* owner);

  void OnMouseMove(int x, int y) override;
  void OnLButtonDown(int x, int y) override;
  // The sheet with the frame around the cell under the mouse, into the view's buffer.
  void Draw(cSurface& back) const;

  int m_nKind;
  int* m_pValue;
  int m_nValue = -1;              // under the mouse; -1 before the mouse came in
  QPoint m_ptMouse{-1000, -1000};  // client co-ordinates
  cGraphicSheetView m_View{*this};

 private:
  const cGraphicKind& Kind() const { return *GraphicKindOf(m_nKind); }
};

// Opens the chooser for `kind` over `owner`. 1 when a picture was clicked, its number
// then in *pValue; 0 when the window was closed (or the kind is unknown), *pValue as it
// was.
int ChooseGraphic(int kind, int* pValue, QWidget* owner);
