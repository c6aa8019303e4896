// Planes, loading by descriptor, the mask and the cleaning of transparent pixels.

#include "media/surface.h"

#include <array>
#include <cstring>

#include "media/surface_pixels.h"
#include "platform/cp932.h"
#include "platform/stored_path.h"

std::uint32_t g_nKeyColor = 0;

namespace {

// A plane larger than this is refused: no sheet comes near it, and a corrupt header
// must not make the program allocate gigabytes.
constexpr std::size_t kMaxPlaneBytes = std::size_t{256} << 20;

// Entry 0 black, 1 to 216 a cube of six levels per channel (red slowest), 217 to 254
// a grey ramp between black and white, 255 white. No sheet is 8 bits deep, so these
// values only need to be fixed and reasonable.
std::array<unsigned char, 1024> MakePalette() {
  std::array<unsigned char, 1024> p{};
  for (int i = 0; i < 216; ++i) {
    unsigned char* e = &p[static_cast<std::size_t>(i + 1) * 4];
    e[2] = static_cast<unsigned char>(i / 36 * 51);
    e[1] = static_cast<unsigned char>(i / 6 % 6 * 51);
    e[0] = static_cast<unsigned char>(i % 6 * 51);
  }
  for (int k = 0; k < 38; ++k) {
    unsigned char level = static_cast<unsigned char>((k + 1) * 255 / 39);
    unsigned char* e = &p[static_cast<std::size_t>(217 + k) * 4];
    e[0] = e[1] = e[2] = level;
  }
  p[255 * 4] = p[255 * 4 + 1] = p[255 * 4 + 2] = 255;
  return p;
}

bool EqualsIgnoringAsciiCase(const std::string& a, const char* b) {
  std::size_t n = std::strlen(b);
  if (a.size() != n) return false;
  for (std::size_t i = 0; i < n; ++i) {
    char c = a[i];
    if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
    if (c != b[i]) return false;
  }
  return true;
}

}  // namespace

const unsigned char* SurfacePalette() {
  static const std::array<unsigned char, 1024> palette = MakePalette();
  return palette.data();
}

namespace surface_pixels {

unsigned char NearestIndex(unsigned char b, unsigned char g, unsigned char r) {
  const unsigned char* p = SurfacePalette();
  int best = 0;
  int bestDistance = 1 << 30;
  for (int i = 0; i < 256; ++i, p += 4) {
    int db = p[0] - b, dg = p[1] - g, dr = p[2] - r;
    int d = db * db + dg * dg + dr * dr;
    if (d < bestDistance) {
      bestDistance = d;
      best = i;
    }
  }
  return static_cast<unsigned char>(best);
}

void ColourBytes(std::uint32_t colour, int bits, unsigned char out[4]) {
  unsigned char r = colour & 0xFF, g = (colour >> 8) & 0xFF, b = (colour >> 16) & 0xFF;
  if (bits == 8) {
    out[0] = NearestIndex(b, g, r);
    return;
  }
  out[0] = b;
  out[1] = g;
  out[2] = r;
  out[3] = 255;
}

void ConvertPixels(const unsigned char* src, int srcBits, unsigned char* dst, int dstBits, std::size_t n) {
  const unsigned char* palette = SurfacePalette();
  int sb = srcBits / 8, db = dstBits / 8;
  for (std::size_t i = 0; i < n; ++i, src += sb, dst += db) {
    const unsigned char* bgr = srcBits == 8 ? palette + src[0] * 4 : src;
    if (dstBits == 8) {
      dst[0] = srcBits == 8 ? src[0] : NearestIndex(bgr[0], bgr[1], bgr[2]);
      continue;
    }
    dst[0] = bgr[0];
    dst[1] = bgr[1];
    dst[2] = bgr[2];
    if (dstBits == 32) dst[3] = srcBits == 32 ? src[3] : 255;
  }
}

void FillPixels(unsigned char* dst, const unsigned char* pixel, int bpp, std::size_t n) {
  if (n == 0) return;
  if (bpp == 1) {
    std::memset(dst, pixel[0], n);
    return;
  }
  std::memcpy(dst, pixel, static_cast<std::size_t>(bpp));
  // Doubling copies: the filled part is copied onto what follows it.
  std::size_t done = 1;
  while (done < n) {
    std::size_t take = done < n - done ? done : n - done;
    std::memcpy(dst + done * bpp, dst, take * bpp);
    done += take;
  }
}

}  // namespace surface_pixels

int cSurface::Create(int w, int h, int bits, int bMask, int flipW, int flipH) {
  if (!IsEmpty()) Release();
  if (w <= 0 || h <= 0 || (bits != 8 && bits != 24 && bits != 32)) return 0;
  std::size_t bytes = static_cast<std::size_t>(w) * static_cast<std::size_t>(h) * static_cast<std::size_t>(bits / 8);
  if (bytes > kMaxPlaneBytes) return 0;
  m_vecBits.assign(bytes, 0xFF);
  if (bMask) m_vecMaskBits.assign(bytes, 0);
  m_nWidth = w;
  m_nHeight = h;
  m_nBits = bits;
  // A fresh plane starts with the default drawing state: black solid pen, opaque
  // background. The font is the surface's own and stays.
  m_pen = PEN{};
  m_oldPen = PEN{};
  m_nBkMode = kBkOpaque;
  m_nBkColor = 0xFFFFFF;
  m_nTextColor = 0;
  return 1;
}

void cSurface::Release() {
  std::vector<unsigned char>().swap(m_vecBits);
  std::vector<unsigned char>().swap(m_vecMaskBits);
  m_nWidth = m_nHeight = m_nBits = 0;
  m_bAlpha = 0;
}

int cSurface::Load(const SHEET_DESC& desc) {
  const std::string& path = desc.szPath;
  if (path == "E") {
    if (!Create(desc.nWidth, desc.nHeight, desc.nBits, desc.bMask, desc.nFlipW, desc.nFlipH)) {
      MSP(CP932_TEXT("%s が読み込めません！").c_str(), path.c_str());
      return 0;
    }
    return 1;
  }

  // The extension is what follows the last dot of the file name ('.' is never a trail
  // byte, so a plain search is safe).
  std::size_t nameAt = FileNameOffset(path);
  std::size_t dot = path.rfind('.');
  if (dot != std::string::npos && dot < nameAt) dot = std::string::npos;
  std::string ext = dot == std::string::npos ? std::string() : path.substr(dot + 1);

  if (ext != "*") {
    int ok = EqualsIgnoringAsciiCase(ext, "png") ? LoadPng(path, desc, 1) : LoadBmp(path, desc, 1);
    if (!ok) return 0;
  } else {
    std::string stem = path.substr(0, dot + 1);
    if (!LoadPng(stem + "png", desc, 0) && !LoadBmp(stem + "bmp", desc, 0)) {
      if (desc.bOptional) return 1;
      std::string shown = stem + CP932_TEXT("png(または.bmp)");
      MSP(CP932_TEXT("%s が見つかりません！").c_str(), shown.c_str());
      return 0;
    }
  }

  if (desc.nFlipW || desc.nFlipH) MirrorCells(desc.nFlipW, desc.nFlipH);
  if (desc.bMask) BuildMask(path);
  CleanColourPlane();
  return 1;
}

// Each whole cell is mirrored onto itself; a cell size of 0 means the whole surface in
// that direction, which is then not mirrored.
void cSurface::MirrorCells(int cellW, int cellH) {
  int w = cellW > 0 ? cellW : m_nWidth;
  int h = cellH > 0 ? cellH : m_nHeight;
  bool acrossX = cellW > 0, acrossY = cellH > 0;
  for (int y = 0; y + h <= m_nHeight; y += h) {
    for (int x = 0; x + w <= m_nWidth; x += w) {
      StretchBlit(acrossX ? x + w : x, acrossY ? y + h : y, acrossX ? -w : w, acrossY ? -h : h, *this, x, y, w, h, 1);
    }
  }
}

void cSurface::BuildMask(const std::string& path) {
  if (m_nBits != 24 && m_nBits != 32) {
    MSP(CP932_TEXT("24bitDIB以外には未対応！ %s").c_str(), path.c_str());
    return;
  }
  if (!HasMask()) return;
  const unsigned char kb = g_nKeyColor & 0xFF, kg = (g_nKeyColor >> 8) & 0xFF, kr = (g_nKeyColor >> 16) & 0xFF;
  const std::size_t n = static_cast<std::size_t>(m_nWidth) * static_cast<std::size_t>(m_nHeight);
  unsigned char* c = m_vecBits.data();
  unsigned char* m = m_vecMaskBits.data();

  if (m_nBits == 24) {
    if (m_bAlpha) {
      // The loader left transparent pixels at 0, 0, 0 and moved opaque black to blue 1.
      for (std::size_t i = 0; i < n; ++i, c += 3, m += 3) {
        unsigned char v = (c[0] | c[1] | c[2]) ? 0 : 255;
        m[0] = m[1] = m[2] = v;
      }
    } else {
      // Key pixels become white in the mask and, in the same pass, 0, 0, 0 in the
      // colour plane: the cleaning step that follows would do exactly that.
      for (std::size_t i = 0; i < n; ++i, c += 3, m += 3) {
        bool key = c[0] == kb && c[1] == kg && c[2] == kr;
        unsigned char v = key ? 255 : 0;
        m[0] = m[1] = m[2] = v;
        if (key) c[0] = c[1] = c[2] = 0;
      }
    }
    return;
  }

  for (std::size_t i = 0; i < n; ++i, c += 4, m += 4) {
    bool clear = m_bAlpha ? c[3] == 0 : (c[0] == kb && c[1] == kg && c[2] == kr);
    unsigned char v = clear ? 255 : 0;
    m[0] = m[1] = m[2] = v;
    m[3] = 255;
  }
}

void cSurface::CleanColourPlane() {
  // 24 bits without alpha was cleaned while the mask was built; with alpha the loader
  // already left transparent pixels at zero.
  if (m_nBits != 32) return;
  const unsigned char kb = g_nKeyColor & 0xFF, kg = (g_nKeyColor >> 8) & 0xFF, kr = (g_nKeyColor >> 16) & 0xFF;
  const std::size_t n = static_cast<std::size_t>(m_nWidth) * static_cast<std::size_t>(m_nHeight);
  unsigned char* c = m_vecBits.data();
  for (std::size_t i = 0; i < n; ++i, c += 4) {
    bool clear = m_bAlpha ? c[3] == 0 : (c[0] == kb && c[1] == kg && c[2] == kr);
    if (clear) {
      c[0] = c[1] = c[2] = 0;
      c[3] = 255;
    }
  }
}

void cSurface::Fill(std::uint32_t colour) { FillRows(0, m_nWidth, m_nHeight, colour); }

void cSurface::FillBytes(const unsigned char rgb[3]) {
  Fill(static_cast<std::uint32_t>(rgb[0]) << 16 | static_cast<std::uint32_t>(rgb[1]) << 8 | rgb[2]);
}
