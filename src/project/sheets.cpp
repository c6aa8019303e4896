#include "project/sheets.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <vector>

#include "platform/diagnostics.h"
#include "platform/cp932.h"
#include "project/project_globals.h"

namespace {

constexpr int kWorldBackSheet = 19;

SHEET_DESC File(const char* path, bool mask, bool optional = false) {
  return SHEET_DESC{path, 24, mask ? 1 : 0, 0, 0, 0, 0, optional ? 1 : 0};
}

SHEET_DESC Blank(int width, int height) { return SHEET_DESC{"E", 24, 1, 0, 0, width, height, 0}; }

std::vector<SHEET_DESC> MakeDescriptors() {
  std::vector<SHEET_DESC> d;
  d.push_back(File("image\\MapChip.*", false));
  d.push_back(File("image\\MapChara.*", true));
  d.push_back(File("image\\Character1.*", false));
  for (int i = 2; i <= 8; ++i) d.push_back(File(("image\\Character" + std::to_string(i) + ".*").c_str(), false, true));
  for (int i = 1; i <= 8; ++i) d.push_back(File(("image\\Character" + std::to_string(i) + "_color.*").c_str(), false, true));
  d.push_back(File("image\\Event.*", true));
  d.push_back(File("image\\WorldBack.*", false));
  d.push_back(File("image\\WorldMapChip.*", false));
  d.push_back(File("image\\WorldEvent.*", true));
  d.push_back(File("image\\Symbol.*", true));
  for (int i = 1; i <= 8; ++i) d.push_back(File(("image\\Effect" + std::to_string(i) + ".*").c_str(), false));
  d.push_back(File("image\\Accessory.*", true));
  for (auto [w, h] : std::array<std::pair<int, int>, 6>{{{768, 480}, {1024, 512}, {512, 512}, {2048, 512}, {960, 48}, {1024, 64}}}) {
    d.push_back(Blank(w, h));
  }
  return d;
}

// Copies a rectangle of the mask plane, clipped to both surfaces of the same depth.
void CopyMaskRect(cSurface& target, int x, int y, int w, int h, const cSurface& source, int sx, int sy) {
  if (!target.HasMask() || !source.HasMask() || target.m_nBits != source.m_nBits) return;
  if (sx < 0) { x -= sx; w += sx; sx = 0; }
  if (sy < 0) { y -= sy; h += sy; sy = 0; }
  if (x < 0) { sx -= x; w += x; x = 0; }
  if (y < 0) { sy -= y; h += y; y = 0; }
  w = std::min({w, source.m_nWidth - sx, target.m_nWidth - x});
  h = std::min({h, source.m_nHeight - sy, target.m_nHeight - y});
  if (w <= 0 || h <= 0) return;
  for (int row = 0; row < h; ++row) {
    std::memcpy(target.MaskPixel(x, y + row), source.MaskPixel(sx, sy + row),
                static_cast<std::size_t>(w) * static_cast<std::size_t>(source.BytesPerPixel()));
  }
}

// Copies a rectangle of both planes; the target was cleared, so no mask is applied. A
// source without a mask (a missing optional sheet) leaves the target as cleared.
void CopyPlanes(cSurface& target, int x, int y, int w, int h, const cSurface& source, int sx, int sy) {
  target.Blit(x, y, w, h, source, sx, sy, 1);
  CopyMaskRect(target, x, y, w, h, source, sx, sy);
}

}  // namespace

std::span<const SHEET_DESC> SheetDescriptors() {
  static const std::vector<SHEET_DESC> descriptors = MakeDescriptors();
  return descriptors;
}

std::string WorldBackImagePath() { return g_WorldMap.m_strBackImage; }

int LoadSheets() {
  auto descriptors = SheetDescriptors();
  for (int i = 0; i < kSheetCount; ++i) {
    SHEET_DESC desc = descriptors[static_cast<std::size_t>(i)];
    cSurface& sheet = g_aSheet[i];
    sheet.Release();
    if (i == kWorldBackSheet) {
      desc.szPath = WorldBackImagePath();
      // No background, or one that cannot be found, is no failure for this sheet.
      if (desc.szPath.empty() || !sheet.Load(desc)) sheet.Release();
      continue;
    }
    if (!sheet.Load(desc)) {
      MSP(CP932_TEXT("%s が読み込めません！").c_str(), desc.szPath.c_str());
      return 0;
    }
  }
  return 1;
}

void FoldSheets() {
  for (int target = 32; target <= 35; ++target) g_aSheet[target].Fill(0);
  // Characters 1 to 8: 48 wide, 960 high, into sheet 32 at 96 per source.
  for (int k = 0; k < 8; ++k) {
    CopyPlanes(g_aSheet[32], 96 * k, 0, 48, 480, g_aSheet[2 + k], 0, 0);
    CopyPlanes(g_aSheet[32], 96 * k + 48, 0, 48, 480, g_aSheet[2 + k], 0, 480);
  }
  // Effects 1 to 8: 64 wide, 1024 high, into sheet 33 at 128 per source.
  for (int k = 0; k < 8; ++k) {
    CopyPlanes(g_aSheet[33], 128 * k, 0, 64, 512, g_aSheet[23 + k], 0, 0);
    CopyPlanes(g_aSheet[33], 128 * k + 64, 0, 64, 512, g_aSheet[23 + k], 0, 512);
  }
  // Map chips: 256 wide, 1024 high, into sheet 34.
  CopyPlanes(g_aSheet[34], 0, 0, 256, 512, g_aSheet[0], 0, 0);
  CopyPlanes(g_aSheet[34], 256, 0, 256, 512, g_aSheet[0], 0, 512);
  // Events: only the left 32 of each 64 pixels, 16 columns, into sheet 35.
  for (int c = 0; c < 16; ++c) {
    CopyPlanes(g_aSheet[35], 64 * c, 0, 32, 512, g_aSheet[18], 64 * c, 0);
    CopyPlanes(g_aSheet[35], 64 * c + 32, 0, 32, 512, g_aSheet[18], 64 * c, 512);
  }
}
