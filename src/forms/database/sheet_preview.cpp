#include "forms/database/sheet_preview.h"

#include "stage/stage_view_draw.h"
#include "toolkit/ctrls.h"

void ShowChipCell(CTRL_PICTURE_CLASS& picture, const cSurface& sheet, int graphic) {
  picture.m_Surface.Fill(0);
  if (graphic >= 0)
    BlitSheetCell(picture.m_Surface, 0, 0, sheet, (graphic % 8) * kMapCellPx,
                  (graphic / 8) * static_cast<long long>(kMapCellPx));
  picture.Redraw();
}
