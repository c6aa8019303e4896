#include "forms/database/db_enemy_page.h"

#include "database/ai_summary.h"
#include "forms/database/battle_ai_forms.h"
#include "project/project_globals.h"

DLG_DBENEMY::DLG_DBENEMY() : cCharaPage(g_vecEnemy, "敵キャラ") {
  cEnemy& E = m_Edit;
  cFormTable& F = Table();
  DeclareLeading(kList, "敵キャラ");
  F.Check(kFixEX, "獲得EXを固定 →", &E.m_bFixEX);
  F.EditVal(kFixEXValue, "", &E.m_nFixEX, 0, 9999).Named("獲得EXを固定").EnableBy(kFixEX).Row();
  F.Group("撃破時の獲得金");
  // The party variable that the money goes to, from its first row, and the amount.
  F.Combo(kMoneyVal, "", &E.m_nMoneyVal, &m_vecMoneyNames, nullptr, 1);
  F.EditVal(kMoney, "", &E.m_nMoney, 0, 999999).Row();
  F.EndGroup();
  F.EditStr(kDesc, "説明", &E.m_strDesc, {.nLineLen = 38, .nMaxLines = 4, .bWide = 1}).LabelAbove().Span(2).Row();

  F.Column();
  m_Chara.DeclareStatus(F, E);
  m_AI.Declare(F, "戦闘AI", &E.m_vecBattleAI, 0, 99, [](const cBattleAI& ai) { return SummaryBattleAI(ai); },
               kListSecondFree, 6);
  F.EndColumns();

  FillMoneyNames();
}

void DLG_DBENEMY::FillMoneyNames() {
  NumberedNames(m_vecMoneyNames, g_Database.m_vecPtVal, 1);
  if (!m_hWnd) return;
  if (auto* combo = GetCtrl<CTRL_COMBO_CLASS<int>>(kMoneyVal)) combo->SetLabels(m_vecMoneyNames);
}

void DLG_DBENEMY::OnReady() {
  cCharaPage::OnReady();
  m_AI.OnReady();
}

void DLG_DBENEMY::OnStale() {
  cCharaPage::OnStale();
  FillMoneyNames();
}

void DLG_DBENEMY::OnFormCommand(unsigned id, unsigned code) {
  const auto edit = [this](cBattleAI& ai) { return EditRecord<DLG_BATTLEAI>(ai, m_hWnd.data()); };
  if (m_AI.OnCommand(id, code, edit)) m_List.CommitRow();
  cCharaPage::OnFormCommand(id, code);
}
