#pragma once
// The chip previews of the terrain and world chip pages: cell g of a sheet of 32 by 32
// chips, 8 to a row, shown in a picture of the form.

class CTRL_PICTURE_CLASS;
class cSurface;

void ShowChipCell(CTRL_PICTURE_CLASS& picture, const cSurface& sheet, int graphic);
