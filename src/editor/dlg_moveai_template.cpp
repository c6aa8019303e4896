#include "editor/dlg_moveai_template.h"

#include "database/move_ai_templates.h"
#include "toolkit/list_order.h"

DLG_MOVEAITEMPLATE::DLG_MOVEAITEMPLATE(VECTOR_CLASS<cMoveAITemplate>& templates, bool newMode, QWidget* parent)
    : DLG_CLASS(parent, "移動AIテンプレート"), m_vecTemplates(templates), m_bNewMode(newMode) {
  cListInit<cMoveAITemplate> init;
  init.pSource = &m_vecTemplates;
  init.pWork = &m_vecWork;
  init.pEditRec = &m_Edit;
  init.nMaxRows = kMaxMoveAITemplates;
  init.pfnRowText = [](std::string& out, int, const cMoveAITemplate& t) { out = t.m_strName; };

  cFormTable& F = Table();
  F.List(kIdList, "移動AIテンプレート", m_List, init, kListFirstFree, 12).LabelAbove().Span(3).Row();
  F.Button(kIdUp, "↑");
  F.Button(kIdDown, "↓");
  F.Button(kIdDelete, "削除").Row();
  F.EditStr(kIdName, "名称", &m_Edit.m_strName, WideLine(64)).Span(2).Row();
  F.EditStr(kIdDesc, "説明", &m_Edit.m_strDesc, WideLine(256)).Span(2).Row();
  F.OkCancel();
}

void DLG_MOVEAITEMPLATE::OnReady() {
  m_List.SelectOnly(m_bNewMode ? m_List.RowCount() - 1 : 0, 1);
  UpdateAllExcept(m_List);
  RedrawLists();
}

bool DLG_MOVEAITEMPLATE::OnOk() {
  StoreMoveAITemplates(m_vecTemplates);
  return true;
}

void DLG_MOVEAITEMPLATE::OnFormCommand(unsigned id, unsigned) { OrderButtonCommand(*this, m_List, {kIdUp, kIdDown, kIdDelete}, id); }

int RunMoveAITemplates(VECTOR_CLASS<cMoveAITemplate>& templates, bool newMode, QWidget* parent) {
  DLG_MOVEAITEMPLATE form(templates, newMode, parent);
  return form.DoModal();
}
