#pragma once
// How one image sheet is found and prepared. The project store keeps a table of these
// and hands each entry to cSurface::Load.

#include <string>

struct SHEET_DESC {
  std::string szPath;  // stored CP932 path such as "image\\MapChip.*"; "E" makes a blank sheet
  int nBits;           // depth of the surface: 8, 24 or 32
  int bMask;           // build a transparency mask plane
  int nFlipW;          // cell size for in-place mirroring; 0 for none
  int nFlipH;
  int nWidth;          // size of a blank sheet; unused for files
  int nHeight;
  int bOptional;       // a missing file leaves the surface empty and is no error
};
