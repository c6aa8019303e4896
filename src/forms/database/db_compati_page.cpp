#include "forms/database/db_compati_page.h"

#include "project/project_globals.h"

DLG_INFL::DLG_INFL(const cInfl& source, QWidget* parent) : cRecordForm(parent, "相性", source) {
  // The applied table names the types, from row 1.
  const VECTOR_CLASS<cCompatiType>& types = g_Database.m_vecCompatiType;
  for (int i = 1; i < types.Count(); ++i) {
    m_vecTypeNames.push_back(types[i].m_strName);
    m_vecTypeValues.push_back(i);
  }
  // The form reads as a sentence: the type, "に対して", what, how and by how much.
  cFormTable& F = Table();
  F.Combo(kTarget, "", &m_Work.m_nTarget, &m_vecTypeNames, &m_vecTypeValues).Named("相性タイプ");
  F.Text("に対して").Row();
  F.Combo(kWhat, "", &m_Work.m_nWhat, INFLWHAT).Named("対象");
  F.Combo(kOp, "", &m_Work.m_nOp, INFLOP).Named("演算").Row();
  F.EditVal(kValue, "", &m_Work.m_nValue, -999999, 999999).Named("値").Row();
  F.OkCancel();
}

DLG_DBSKILLTYPE::DLG_DBSKILLTYPE() : cTablePage(g_Database.m_vecCompatiType, "相性タイプ", {1, 1, 999}) {
  cCompatiType& E = m_Edit;
  cListInit<cInfl> rules;
  rules.bMulti = 1;
  rules.pWork = &E.m_vecInfl;
  rules.bBlankRow = 1;
  rules.pfnRowText = [](std::string& out, int, const cInfl& infl) { out = SummaryInfl(infl); };

  cFormTable& F = Table();
  F.Column();
  MainList(kList, "相性タイプ", [](const cCompatiType& t) { return t.m_strName; }, 20);
  F.Column();
  F.EditStr(kName, "名称", &E.m_strName, WideLine(6)).Span(3).Row();
  F.List(kRules, "相性", m_Rules, rules, kListSecondFree, 14).LabelAbove().Span(3).Row();
  F.Button(kInsert, "挿入").Button(kEdit, "編集").Button(kDelete, "削除").Row();
  F.EndColumns();
}

void DLG_DBSKILLTYPE::EditRule(bool inserted) {
  const int row = m_Rules.GetSel();
  if (!m_Rules.IsReal(row)) return;
  if (EditRecord<DLG_INFL>(m_Edit.m_vecInfl[row], m_hWnd.data()) != 1) {
    if (inserted) m_Rules.Delete(row, 0);
    return;
  }
  m_Rules.Redraw();
  m_List.CommitRow();
}

void DLG_DBSKILLTYPE::OnFormCommand(unsigned id, unsigned code) {
  switch (id) {
    case kInsert:
      if (m_Rules.Insert()) EditRule(true);
      break;
    case kEdit: EditRule(false); break;
    case kRules:
      if (code == kNotifyDblClk) EditRule(false);
      break;
    case kDelete:
      m_Rules.Delete(-1, 0);
      m_List.CommitRow();
      break;
    default: break;
  }
  cTablePage::OnFormCommand(id, code);
}
