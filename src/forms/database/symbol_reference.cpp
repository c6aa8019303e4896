#include "forms/database/symbol_reference.h"

#include <algorithm>

#include "project/project_globals.h"
#include "toolkit/ctrls.h"

namespace {

constexpr int kCell = 16;

int SymbolsPerRow() { return g_aSheet[kSymbolSheet].m_nWidth / kCell; }
int SymbolCount() { return SymbolsPerRow() * (g_aSheet[kSymbolSheet].m_nHeight / kCell); }

}  // namespace

const VECTOR_CLASS<std::string>& SymbolNumberLabels() {
  static VECTOR_CLASS<std::string> labels;
  const int count = std::max(SymbolCount(), 1);
  if (labels.Count() != count) {
    labels.clear();
    for (int n = 0; n < count; ++n) labels.push_back(std::to_string(n));
  }
  return labels;
}

void DrawSymbolPreview(CTRL_PICTURE_CLASS& picture, int n) {
  cSurface& out = picture.m_Surface;
  if (out.IsEmpty()) return;
  out.Fill(0);
  const int perRow = SymbolsPerRow();
  if (n >= 0 && perRow > 0 && n < SymbolCount())
    out.StretchBlit(0, 0, out.m_nWidth, out.m_nHeight, g_aSheet[kSymbolSheet], (n % perRow) * kCell,
                    (n / perRow) * kCell, kCell, kCell);
  picture.Redraw();
}
