#include "forms/event/dlg_eventactplt.h"

#include "forms/event/action_palette.h"
#include "project/project_files.h"
#include "project/project_globals.h"
#include "toolkit/list_order.h"
#include "toolkit/list_init.h"

DLG_EVENTACTPLT::DLG_EVENTACTPLT(VECTOR_CLASS<cEventActPlt>& palette, int sel, QWidget* parent)
    : DLG_CLASS(parent, "イベントアクションパレット"), m_vecPalette(palette), m_nFirstSel(sel) {
  cListInit<cEventActPlt> init = NumberedRows<cEventActPlt>(
      &m_vecPalette, 0, kActionPaletteMax, [](std::string& out, int, const cEventActPlt& entry) { out = entry.m_strName; });
  init.pEditRec = &m_Edit;

  cFormTable& F = Table();
  F.List(kIdList, "アクションパレット", m_List, init, kListFirstFree, 14).LabelAbove().Span(3).Row();
  F.Button(kIdUp, "↑");
  F.Button(kIdDown, "↓");
  F.Button(kIdDelete, "削除").Row();
  F.EditStr(kIdName, "名称", &m_Edit.m_strName, WideLine(64)).Span(2).Row();
  F.EditStr(kIdDesc, "説明", &m_Edit.m_strDesc, WideLine(256)).Span(2).Row();
  F.Label(kIdContents).Named("内容").Span(3).Row();
  F.OkCancel();
}

void DLG_EVENTACTPLT::OnReady() {
  m_List.SelectOnly(m_nFirstSel, 1);
  UpdateAllExcept(m_List);
  UpdateEnable();
  RedrawLists();
}

bool DLG_EVENTACTPLT::OnOk() {
  g_vecEventActPlt = m_vecPalette;
  kEventActPltFile.save(kEventActPltFile.path);
  return true;
}

void DLG_EVENTACTPLT::OnFormCommand(unsigned id, unsigned) { OrderButtonCommand(*this, m_List, {kIdUp, kIdDown, kIdDelete}, id); }

void DLG_EVENTACTPLT::OnUpdateEnable() {
  if (auto* label = GetCtrl<CTRL_LABEL_CLASS>(kIdContents)) label->SetText(PaletteContentsText(m_Edit));
}

int RunEventActPalette(VECTOR_CLASS<cEventActPlt>& palette, int sel, QWidget* parent) {
  DLG_EVENTACTPLT form(palette, sel, parent);
  return form.DoModal();
}
