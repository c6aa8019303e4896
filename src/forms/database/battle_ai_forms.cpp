#include "forms/database/battle_ai_forms.h"

#include "database/ai_labels.h"
#include "database/ai_summary.h"

DLG_BATTLEAI_COND::DLG_BATTLEAI_COND(const cBattleAICond& source, QWidget* parent)
    : cRecordForm(parent, "戦闘AI 条件", source) {
  // It reads as its summary does: who's what is value, compared so.
  cFormTable& F = Table();
  F.Combo(kWho, "", &m_Work.m_nWho, kAIWhoLabels).Text("の");
  F.Combo(kWhat, "", &m_Work.m_nWhat, kAIWhatLabels).Text("が").Row();
  F.EditVal(kValue, "", &m_Work.m_nValue, 0, 999999);
  F.Combo(kOp, "", &m_Work.m_nOp, kAIOpLabels).Span(3).Row();
  F.Check(kPercent, "↑％で指定", &m_Work.m_bPercent).Span(2).Row();
  F.OkCancel();
}

DLG_BATTLEAI::DLG_BATTLEAI(const cBattleAI& source, QWidget* parent) : cRecordForm(parent, "戦闘AI", source) {
  cBattleAI& W = m_Work;
  cFormTable& F = Table();
  F.Combo(kAction, "行動", &W.m_nAction, kAIActionLabels).Row();
  m_Skill.DeclareList(F, "使用スキル", &W.m_nList).EnableBy(kAction);
  m_Skill.DeclareSkill(F, "", &W.m_nSkill).EnableBy(kAction).Row();
  F.EditVal(kPriorityLv, "優先レベル", &W.m_nPriorityLv, 1, 9, 1, kPriorityLvSpin).Row();
  F.EditVal(kPriorityVal, "優先値", &W.m_nPriorityVal, 0, 100, 1, kPriorityValSpin).Row();
  F.Check(kNoEvaluate, "マニュアル戦闘時、移動AIの「最も効果的な味方」の行動対象を決める計算でこの行動を無視する",
          &W.m_bNoEvaluate)
      .Span(3)
      .Row();
  m_Conds.Declare(F, "条件(全条件を満たせば、使用候補になる)", &W.m_vecCond, 0, 99,
                  [](const cBattleAICond& c) { return SummaryBattleAICond(c); }, kListFirstFree, 6);
  F.Text("☆マニュアル戦闘なら、「条件」を満たした最も高い「優先レベル」の行動の中から\n"
         "「優先値」の割合でランダムに行動が決定される",
         3)
      .Row();
  F.Text("※オート戦闘では「通常攻撃」、「クイック」は無効。優先レベル、優先値、条件も無意味。\n"
         "戦闘AIリストで上にある行動ほど優先され、SPや使用回数が無くなるまで同じスキルを使い続ける",
         3)
      .Row();
  F.OkCancel();
  m_Skill.FillLists(*this, W.m_nList);
}

void DLG_BATTLEAI::OnReady() { m_Conds.OnReady(); }

void DLG_BATTLEAI::OnFormCommand(unsigned id, unsigned code) {
  m_Skill.OnCommand(*this, id, code);
  m_Conds.OnCommand(id, code, [this](cBattleAICond& cond) { return EditRecord<DLG_BATTLEAI_COND>(cond, m_hWnd.data()); });
}
