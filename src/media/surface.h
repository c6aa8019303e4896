#pragma once
// The surface: a pixel buffer the program addresses directly and draws into, with an
// optional second plane, a black-and-white mask, so that transparency needs only two
// raster passes (AND with the mask, then OR with the colour plane).
//
// Layout: top-down rows with no gap between them; a pixel of a 24-bit surface is
// blue, green, red, of a 32-bit surface blue, green, red, alpha, of an 8-bit surface
// an index into the fixed palette of SurfacePalette(). The mask plane, when present,
// has the layout of the colour plane. Drawing colours are 0xBBGGRR (red in the low
// byte). Everything here is main-thread only.

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "platform/diagnostics.h"
#include "media/sheet_desc.h"

// The transparent colour of masked sheets, set once per project load before the first
// sheet is read. Byte 0 is compared with a pixel's blue byte, byte 1 with its green
// byte, byte 2 with its red byte; the bytes above are zero.
extern std::uint32_t g_nKeyColor;

// Pen styles of SetPen. The broken styles repeat, in pixels from the start of each
// line: dash 18 on 6 off; dot 3 on 3 off; dash-dot 9-6-3-6; dash-dot-dot 9-3-3-3-3-3.
// A pen wider than 1 pixel is always solid.
enum : int {
  kPenSolid = 0,
  kPenDash = 1,
  kPenDot = 2,
  kPenDashDot = 3,
  kPenDashDotDot = 4,
  kPenNull = 5,
  kPenInsideFrame = 6,
};

// Background modes: an opaque background paints the gaps of broken pens and the cell
// behind text in the background colour (white).
enum : int { kBkTransparent = 1, kBkOpaque = 2 };

// A font as SetFont describes it; face is CP932.
struct SURFACE_FONT {
  std::string szFace;
  int nWidth = 0;
  int nHeight = 0;
};
using HSURFFONT = const SURFACE_FONT*;

// The 256 entries of 8-bit surfaces, 4 bytes each: blue, green, red, 0. Entry 0 is
// black and entry 255 white.
const unsigned char* SurfacePalette();

class cSurface {
 public:
  // Allocates the planes: colour plane white, mask plane (with bMask) black. A full
  // surface is released first. The flip arguments are taken for the descriptor's sake
  // and not used here. 0 for a depth other than 8, 24 or 32, a size below 1, or planes
  // too large to hold.
  int Create(int w, int h, int bits, int bMask, int flipW = 0, int flipH = 0);
  // By descriptor: "E" for a blank sheet, extension "*" for png, then bmp; then the
  // cells are mirrored and the mask is built. 1 on success, 0 after a message.
  int Load(const SHEET_DESC& desc);
  // `path` is a stored CP932 path. bReport 0 keeps a missing file silent; any other
  // failure shows its message. A failed load leaves the surface empty.
  int LoadPng(const std::string& path, const SHEET_DESC& desc, int bReport);
  int LoadBmp(const std::string& path, const SHEET_DESC& desc, int bReport);
  // Frees both planes; the surface is empty and may be created or loaded again.
  void Release();
  bool IsEmpty() const { return m_vecBits.empty(); }
  bool HasMask() const { return !m_vecMaskBits.empty(); }

  // Fills go through the pen: FillRows selects a solid pen of width 1 in the colour and
  // leaves it selected, drawing rows 0 to rows - 1 from x1 up to but not including x2.
  void Fill(std::uint32_t colour);
  void FillBytes(const unsigned char rgb[3]);  // rgb[0] is the high byte of the colour
  void FillRows(int x1, int x2, int rows, std::uint32_t colour);

  // Copies w x h pixels from (sx, sy) of `source` to (x, y), clipped to both surfaces.
  // With a source mask and bNoMask 0: destination AND mask, then OR colour; otherwise a
  // plain copy. Nothing happens when either surface is empty.
  void Blit(int x, int y, int w, int h, const cSurface& source, int sx, int sy, int bNoMask = 0);
  // The same with nearest-neighbour scaling. An extent covers the pixels from its
  // origin to origin + extent, end excluded, whichever its sign; the picture is mirrored
  // along an axis whose two extents differ in sign, so StretchBlit(x + w, y, -w, h, s,
  // sx, sy, w, h) mirrors left to right into x .. x + w - 1.
  void StretchBlit(int x, int y, int w, int h, const cSurface& source, int sx, int sy, int sw, int sh,
                   int bNoMask = 0);

  // Lines with the current pen, end point not drawn.
  void Line(int x1, int y1, int x2, int y2);
  // The closed outline of the w x h rectangle at (x, y): four lines through its corner
  // pixels (x, y), (x + w - 1, y), (x + w - 1, y + h - 1), (x, y + h - 1).
  void Frame(int x, int y, int w, int h);
  // Replaces the current pen, keeping the one before for ReleasePen. Style kPenDot also
  // makes the background transparent. 0 for an unknown style.
  int SetPen(int style, int width, std::uint32_t colour);
  void ReleasePen();
  // w / cellW + 1 vertical lines from x in steps of cellW and one more at x + w - 1,
  // each from y to y + h; the same across. Nothing with a cell size of 0.
  void Grid(int x, int y, int w, int h, int cellW, int cellH, std::uint32_t colour);

  // Text goes through the text adapter (a Japanese font). SetFont keeps the
  // description for later Text calls and returns it.
  HSURFFONT SetFont(const std::string& face, int width, int height);
  // CP932 text in the colour with the background mode, one piece per line feed, pieces
  // 20 pixels apart, (x, y) being the top left of the first line.
  void Text(int x, int y, const std::string& text, std::uint32_t colour, int bkMode);
  // Formats at most 1024 bytes and draws them white on a transparent background.
  void Printf(int x, int y, const char* format, ...) ORTALUNE_PRINTF(4, 5);

  int BytesPerPixel() const { return m_nBits / 8; }
  int Stride() const { return m_nWidth * BytesPerPixel(); }
  // First byte of pixel (x, y); the caller keeps the point inside the surface.
  unsigned char* Pixel(int x, int y) { return m_vecBits.data() + Offset(x, y); }
  const unsigned char* Pixel(int x, int y) const { return m_vecBits.data() + Offset(x, y); }
  unsigned char* MaskPixel(int x, int y) { return m_vecMaskBits.data() + Offset(x, y); }
  const unsigned char* MaskPixel(int x, int y) const { return m_vecMaskBits.data() + Offset(x, y); }

  struct PEN {
    int nStyle = kPenSolid;
    int nWidth = 1;
    std::uint32_t colour = 0;
  };

  int m_nWidth = 0;
  int m_nHeight = 0;
  int m_nBits = 0;
  int m_bAlpha = 0;  // the source file was a PNG with an alpha channel
  std::vector<unsigned char> m_vecBits;
  std::vector<unsigned char> m_vecMaskBits;  // empty when there is no mask plane

  // Drawing state of the colour plane; Create resets all but the font.
  PEN m_pen;
  PEN m_oldPen;
  int m_nBkMode = kBkOpaque;
  std::uint32_t m_nBkColor = 0xFFFFFF;
  std::uint32_t m_nTextColor = 0;
  std::optional<SURFACE_FONT> m_font;

 private:
  std::size_t Offset(int x, int y) const {
    return (static_cast<std::size_t>(y) * static_cast<std::size_t>(m_nWidth) + static_cast<std::size_t>(x)) *
           static_cast<std::size_t>(BytesPerPixel());
  }
  void MirrorCells(int cellW, int cellH);
  void BuildMask(const std::string& path);
  void CleanColourPlane();
  void DrawLine(long long x1, long long y1, long long x2, long long y2);
};
