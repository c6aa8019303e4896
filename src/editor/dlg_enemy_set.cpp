#include "editor/dlg_enemy_set.h"

#include "database/ai_summary.h"
#include "database/move_ai_templates.h"
#include "database/numbered_rows.h"
#include "editor/dlg_moveai.h"
#include "editor/dlg_moveai_template.h"
#include "platform/cp932.h"
#include "project/project_globals.h"
#include "stage/edit_state.h"
#include "stage/enemy_palette.h"
#include "stage/map_edit.h"

DLG_ENEMY_SET::DLG_ENEMY_SET(const cPutEnemy& source, QWidget* parent) : cRecordForm(parent, "敵", source) {
  m_vecEnemyRows = NumberedRows(g_vecEnemy, 1, 3);
  m_vecEnemyRows.insert(m_vecEnemyRows.begin(), CP932_TEXT("未設定"));
  m_vecTemplateRows = NameRows(g_vecMoveAITemplate);
  m_nTemplate = m_vecTemplateRows.empty() ? -1 : 0;

  cListInit<cMoveAI> rules;
  rules.pSource = &m_Work.m_vecMoveAI;
  rules.pWork = &m_vecRules;
  rules.nMaxRows = kMaxMoveRules;
  rules.bBlankRow = 1;
  rules.pfnRowText = [](std::string& out, int, const cMoveAI& rule) { out = SummaryMoveAI(rule); };

  cFormTable& F = Table();
  F.Check(kIdGroup, "グループ", &m_Work.m_bGroup);
  F.EditVal(kIdGroupNum, "", &m_Work.m_nGroup, 1, 100, 1, kIdGroupSpin).EnableBy(kIdGroup).Named("グループ");
  F.Check(kIdCharaId, "キャラID", &m_Work.m_bCharaId);
  F.EditVal(kIdCharaNum, "", &m_Work.m_nCharaId, 1, 999, 1, kIdCharaSpin).EnableBy(kIdCharaId).Named("キャラID").Row();
  F.Combo(kIdEnemy, "データ", &m_Work.m_nEnemy, &m_vecEnemyRows).Span(3).Row();
  F.Group("移動AI");
  F.List(kIdRules, "", m_RuleList, rules, kListFirstFree, 10).Span(3).Row();
  F.Button(kIdInsert, "挿入");
  F.Button(kIdEdit, "編集");
  F.Button(kIdDelete, "削除").Row();
  F.Combo(kIdTemplate, "テンプレート", &m_nTemplate, &m_vecTemplateRows).Span(2).Row();
  F.Button(kIdLoad, "↓選択したテンプレートを読込").Span(3).Row();
  F.Button(kIdOverwrite, "↑現在の設定を選択したテンプレートに上書き保存").Span(3).Row();
  F.Button(kIdNew, "↑現在の設定をテンプレートとして新規保存").Span(3).Row();
  F.Button(kIdOrder, "並び替え");
  F.EndGroup();
  F.OkCancel();
}

// The undo step holds the stage as it was before the edit: the caller writes after it.
bool DLG_ENEMY_SET::OnOk() {
  PushUndo();
  return true;
}

void DLG_ENEMY_SET::OnFormCommand(unsigned id, unsigned code) {
  switch (id) {
    case kIdInsert: InsertRule(); break;
    case kIdEdit:
      if (m_RuleList.IsReal(m_RuleList.GetSel())) EditRule(m_RuleList.GetSel());
      break;
    case kIdDelete: m_RuleList.Delete(-1, 0); break;
    case kIdRules:
      if (code == kNotifyDblClk && m_RuleList.IsReal(m_RuleList.GetSel())) EditRule(m_RuleList.GetSel());
      break;
    case kIdLoad:
      if (LoadMoveAITemplate(Value(kIdTemplate), m_vecRules)) RulesReplaced();
      break;
    case kIdOverwrite: OverwriteMoveAITemplate(Value(kIdTemplate), m_vecRules); break;
    case kIdNew: NewTemplate(); break;
    case kIdOrder: OrderTemplates(); break;
    default: break;
  }
}

// The new line is the move rule form's to fill; declined, it goes again.
void DLG_ENEMY_SET::InsertRule() {
  if (!m_RuleList.Insert()) return;
  const int row = m_RuleList.m_nCurSel;
  if (EditRule(row)) return;
  m_RuleList.Delete(row, 0);
  m_RuleList.SelectOnly(row, 0);
  m_RuleList.Redraw();
}

bool DLG_ENEMY_SET::EditRule(int row) {
  if (RunMoveAI(m_vecRules[row], m_hWnd) != 1) return false;
  m_RuleList.Redraw();
  return true;
}

void DLG_ENEMY_SET::RulesReplaced() {
  m_RuleList.SelectOnly(m_vecRules.empty() ? -1 : 0, 0);
  m_RuleList.Redraw();
}

void DLG_ENEMY_SET::NewTemplate() {
  VECTOR_CLASS<cMoveAITemplate> copy;
  if (!StartMoveAITemplate(m_vecRules, copy)) return;
  RunMoveAITemplates(copy, true, m_hWnd);
  RefillTemplates();
}

void DLG_ENEMY_SET::OrderTemplates() {
  VECTOR_CLASS<cMoveAITemplate> copy = g_vecMoveAITemplate;
  RunMoveAITemplates(copy, false, m_hWnd);
  RefillTemplates();
}

void DLG_ENEMY_SET::RefillTemplates() {
  m_vecTemplateRows = NameRows(g_vecMoveAITemplate);
  if (auto* combo = GetCtrl<CTRL_COMBO_CLASS<int>>(kIdTemplate)) combo->SetLabels(m_vecTemplateRows);
}

int RunEnemySet(QWidget* parent) {
  cPutEnemy* entry = g_EditState.m_pEditEnemy;
  if (entry == nullptr) return 0;
  DLG_ENEMY_SET form(*entry, parent);
  const int result = form.DoModal(kDlgDisableOthers);
  if (result == 1) entry->Copy(form.m_Work);
  return result;
}
