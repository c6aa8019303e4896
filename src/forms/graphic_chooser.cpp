#include "forms/graphic_chooser.h"

#include <algorithm>

#include "project/project_globals.h"

namespace {

constexpr cGraphicKind kKinds[] = {
    {32, 768, 480, 48, 48},
    {33, 1024, 512, 64, 64},
    {34, 512, 512, 32, 32},
    {35, 1024, 512, 32, 32},
};

constexpr std::uint32_t kFrameColour = 0xFFFFFF;

}  // namespace

const cGraphicKind* GraphicKindOf(int kind) {
  return kind >= 0 && kind < static_cast<int>(std::size(kKinds)) ? &kKinds[kind] : nullptr;
}

int GraphicValueAt(int kind, int px, int py) {
  const cGraphicKind* k = GraphicKindOf(kind);
  if (k == nullptr) return -1;
  const int col = std::clamp(px, 0, k->nWidth - 1) / k->nCellW;
  const int row = std::clamp(py, 0, k->nHeight - 1) / k->nCellH;
  switch (kind) {
    // The folded sheets number their cells down each column of the files they came from.
    case 0: return col * 10 + row;
    case 1: return col * 8 + row;
    case 3: return col * 16 + row;
    // The chip sheet is the two halves of one 256-wide file: the right half goes on
    // from 128.
    default: return col % 8 + row * 8 + (col >= 8 ? 128 : 0);
  }
}

void cGraphicSheetView::OnPaint() { m_Form.Draw(m_Back); }
void cGraphicSheetView::OnMouseMove(int x, int y) { m_Form.OnMouseMove(x, y); }
void cGraphicSheetView::OnLButtonDown(int x, int y) { m_Form.OnLButtonDown(x, y); }

DLG_SELECTGRAPHIC::DLG_SELECTGRAPHIC(int kind, int* pValue, QWidget* owner)
    : DLG_CLASS(owner, "一覧"), m_nKind(kind), m_pValue(pValue) {
  const cGraphicKind& k = Kind();
  SetMetrics(k.nWidth, k.nHeight, k.nWidth, k.nHeight, k.nWidth, k.nHeight);
  Table().NoMargins().View(kIdSheet, "一覧", [this](QWidget* parent) {
    m_View.CreateView(parent, Kind().nWidth, Kind().nHeight);
    m_View.m_hWnd->setFixedSize(Kind().nWidth, Kind().nHeight);
    return m_View.m_hWnd.data();
  });
}

void DLG_SELECTGRAPHIC::Draw(cSurface& back) const {
  const cGraphicKind& k = Kind();
  back.Fill(0);
  back.Blit(0, 0, k.nWidth, k.nHeight, g_aSheet[k.nSheet], 0, 0, 1);
  if (m_nValue < 0) return;
  const int x = std::clamp(m_ptMouse.x(), 0, k.nWidth - 1) / k.nCellW * k.nCellW;
  const int y = std::clamp(m_ptMouse.y(), 0, k.nHeight - 1) / k.nCellH * k.nCellH;
  back.SetPen(kPenSolid, 2, kFrameColour);
  back.Frame(x, y, k.nCellW, k.nCellH);
  back.ReleasePen();
}

void DLG_SELECTGRAPHIC::OnMouseMove(int x, int y) {
  m_ptMouse = QPoint(x, y);
  const int value = GraphicValueAt(m_nKind, x, y);
  if (value == m_nValue) return;
  m_nValue = value;
  m_View.Invalidate();
}

void DLG_SELECTGRAPHIC::OnLButtonDown(int x, int y) {
  if (m_pValue != nullptr) *m_pValue = GraphicValueAt(m_nKind, x, y);
  End(1);
}

int ChooseGraphic(int kind, int* pValue, QWidget* owner) {
  if (GraphicKindOf(kind) == nullptr || pValue == nullptr) return 0;
  DLG_SELECTGRAPHIC form(kind, pValue, owner);
  return form.DoModal();
}
