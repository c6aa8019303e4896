#include "editor/dlg_grouppos_set.h"

#include <QScrollBar>
#include <algorithm>
#include <tuple>

#include "editor/map_scroll.h"
#include "project/project_globals.h"
#include "stage/group_pos_edit.h"

void cGroupPosView::OnPaint() { m_Form.Draw(m_Back); }
void cGroupPosView::OnMouseMove(int x, int y) { m_Form.MouseAt(x, y, false); }
void cGroupPosView::OnLButtonDown(int x, int y) { m_Form.MouseAt(x, y, true); }
void cGroupPosView::OnSize() { m_Form.UpdateScroll(); }

DLG_GROUPPOS_SET::DLG_GROUPPOS_SET(const cGroupPos& source, QWidget* parent, QPoint at)
    : cRecordForm(parent, "位置グループの編集", source) {
  SetMetrics(kWidth, kHeight, kWidth, kHeight, kWidth, kHeight);
  m_nX = at.x(), m_nY = at.y();
  auto bar = [this](Qt::Orientation orientation, QScrollBar** made) {
    return [this, orientation, made](QWidget* parent) -> QWidget* {
      *made = new QScrollBar(orientation, parent);
      QObject::connect(*made, &QScrollBar::valueChanged, *made, [this] {
        m_View.m_nScrollX = m_pScrollH != nullptr ? m_pScrollH->value() : 0;
        m_View.m_nScrollY = m_pScrollV != nullptr ? m_pScrollV->value() : 0;
        m_Picture.Invalidate();
      });
      return *made;
    };
  };
  cFormTable& F = Table();
  F.NoMargins();
  F.View(kIdMap, "マップ", [this](QWidget* parent) {
     m_Picture.CreateView(parent, kWidth, kHeight - 30, true);
     return m_Picture.m_hWnd.data();
   }).Span(8);
  F.View(kIdScrollV, "縦スクロール", bar(Qt::Vertical, &m_pScrollV)).Row();
  F.View(kIdScrollH, "横スクロール", bar(Qt::Horizontal, &m_pScrollH)).Span(8).Row();
  F.EditStr(kIdName, "位置グループ名", &m_Work.m_strName, WideLine(8));
  F.EditVal(kIdCenterX, "中心座標  X", &m_Work.m_nCenterX, 0, std::max(g_Stage.m_nWidth - 1, 0), 1, kIdCenterXSpin);
  F.EditVal(kIdCenterY, "Y", &m_Work.m_nCenterY, 0, std::max(g_Stage.m_nHeight - 1, 0), 1, kIdCenterYSpin);
  F.Label(kIdStatus).Named("座標").Row();
  F.OkCancel();
}

void DLG_GROUPPOS_SET::OnReady() {
  m_View.m_nCursorX = m_View.m_nCursorY = 0;
  UpdateScroll();
  ShowCursor();
}

void DLG_GROUPPOS_SET::UpdateScroll() {
  if (!m_Picture.m_hWnd) return;
  m_View.m_nWidth = m_Picture.m_hWnd->width();
  m_View.m_nHeight = m_Picture.m_hWnd->height();
  for (auto [bar, cells, px] : {std::tuple{m_pScrollH, g_Stage.m_nWidth, m_View.m_nWidth},
                                std::tuple{m_pScrollV, g_Stage.m_nHeight, m_View.m_nHeight}}) {
    if (bar == nullptr) continue;
    const cMapScrollRange range = MapScrollRange(cells, px);
    bar->setRange(0, range.nMax);
    bar->setPageStep(std::max(1, range.nPage));
  }
}

void DLG_GROUPPOS_SET::Draw(cSurface& back) {
  m_View.m_nWidth = back.m_nWidth;
  m_View.m_nHeight = back.m_nHeight;
  DrawGroupPosView(back, m_View, m_Work.m_vecPos);
}

void DLG_GROUPPOS_SET::MouseAt(int px, int py, bool press) {
  int x = 0, y = 0;
  if (!GroupCellAt(m_View, px, py, x, y)) return;
  m_View.m_nCursorX = x, m_View.m_nCursorY = y;
  if (press) {
    ToggleGroupPos(m_Work.m_vecPos, x, y);
    m_Picture.Invalidate();
  }
  ShowCursor();
}

void DLG_GROUPPOS_SET::ShowCursor() {
  if (auto* status = GetCtrl<CTRL_LABEL_CLASS>(kIdStatus)) status->SetText(MapCoordText(m_View.m_nCursorX, m_View.m_nCursorY));
}

int RunGroupPosSet(cGroupPos& group, QWidget* parent, QWidget* main) {
  DLG_GROUPPOS_SET form(group, parent, main != nullptr ? main->pos() : QPoint(-1000, -1000));
  const int result = form.DoModal();
  if (result == 1) group.Copy(form.m_Work);
  return result;
}
