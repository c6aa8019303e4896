#include "editor/dlg_moveai.h"

#include <QComboBox>

#include "database/ai_labels.h"
#include "database/numbered_rows.h"
#include "forms/input_forms.h"
#include "platform/cp932.h"
#include "project/project_files.h"
#include "project/project_globals.h"
#include "toolkit/list_ctrl_base.h"

DLG_MOVEAI::DLG_MOVEAI(const cMoveAI& source, QWidget* parent) : cRecordForm(parent, "移動AI", source) {
  m_vecListRows = NameRows(g_vecSkillList);
  m_vecVarRows = NumberedRows(g_vecGValInfo, 1, 3);
  m_Skills = HealSkillRows(m_Work.m_nList);
  m_Destinations = DestinationRows();

  cFormTable& F = Table();
  F.Combo(kIdRange, "", &m_Work.m_nRange, kMoveRangeLabels).Named("範囲");
  F.Text("で");
  F.Combo(kIdGoal, "", &m_Work.m_nGoal, kMoveGoalLabels).Named("対象");
  F.Text("に");
  F.Combo(kIdAction, "", &m_Work.m_nAction, kMoveActionLabels).Named("行動").Row();
  F.Combo(kIdList, "使用スキル", &m_Work.m_nList, &m_vecListRows).EnableWhen(kIdAction, kMoveHeal);
  F.Combo(kIdSkill, "", &m_Work.m_nSkill, &m_Skills.rows, &m_Skills.values)
      .EnableWhen(kIdAction, kMoveHeal)
      .Named("スキル")
      .KeepWithoutRow()
      .Span(3)
      .Row();
  F.Skip().Text("※戦闘AIの設定でスキルを習得させていないと使用不可", 5).Row();
  F.Combo(kIdGroup, "目的地", &m_Work.m_nGroup, &m_Destinations.rows, &m_Destinations.values)
      .EnableWhen(kIdGoal, kGoalNearestDestination)
      .KeepWithoutRow()
      .Row();
  F.Skip().Text("※位置データが5点以上のものは設定不可", 5).Row();

  F.Group("実行条件");
  F.Check(kIdCond, "条件あり", &m_Work.m_bCond).Span(6).Row();
  F.Check(kIdMoved, "このキャラが一度でも移動または行動したことがあるなら成立", &m_Work.m_bMovedCond)
      .EnableBy(kIdCond)
      .Span(6)
      .Row();
  F.Check(kIdFriend, "同一グループの行動範囲内に味方がいたら成立", &m_Work.m_bFriendInRange).EnableBy(kIdCond).Span(6).Row();
  F.Check(kIdStatusCond, "ステータス条件", &m_Work.m_bStatusCond).EnableBy(kIdCond);
  F.Combo(kIdStatus, "", &m_Work.m_nStatus, kMoveStatusLabels).EnableBy(kIdCond).EnableBy(kIdStatusCond).Named("ステータス");
  F.EditVal(kIdStatusValue, "が", &m_Work.m_nStatusValue, 0, 999999, 1, kIdStatusSpin)
      .EnableBy(kIdCond)
      .EnableBy(kIdStatusCond);
  F.Check(kIdStatusPercent, "％で指定", &m_Work.m_bStatusPercent).EnableBy(kIdCond).EnableBy(kIdStatusCond);
  F.Combo(kIdStatusOp, "", &m_Work.m_nStatusOp, kAIOpLabels).EnableBy(kIdCond).EnableBy(kIdStatusCond).Named("比較").Row();
  F.Check(kIdValCond, "コモン変数条件", &m_Work.m_bValCond).EnableBy(kIdCond);
  F.Combo(kIdVal, "", &m_Work.m_nVal, &m_vecVarRows, nullptr, 1)
      .EnableBy(kIdCond)
      .EnableBy(kIdValCond)
      .Named("コモン変数")
      .KeepWithoutRow();
  F.Button(kIdRename, "_").EnableBy(kIdCond).EnableBy(kIdValCond).Named("変数名の入力");
  F.EditVal(kIdValValue, "が", &m_Work.m_nValValue, -999999, 999999, 1, kIdValSpin).EnableBy(kIdCond).EnableBy(kIdValCond);
  F.Combo(kIdValOp, "", &m_Work.m_nValOp, kAIOpLabels).EnableBy(kIdCond).EnableBy(kIdValCond).Named("比較").Row();
  F.Combo(kIdCondType, "判定タイプ", &m_Work.m_nCondType, kMoveCondTypeLabels).EnableBy(kIdCond).Span(3).Row();
  F.Check(kIdLatch, "一度でも条件が成立していると、以後無条件で成立", &m_Work.m_bLatch).EnableBy(kIdCond).Span(6);
  F.EndGroup();
  F.Text("※マニュアル戦闘では「物理攻撃計算」と「魔法攻撃計算」を使い分ける必要がある。オート戦闘ではどちらも同じ", 6).Row();
  F.OkCancel();
}

void DLG_MOVEAI::OnFormCommand(unsigned id, unsigned code) {
  if (id == kIdList && code == kNotifySelChange) RefillSkills();
  if (id == kIdRename) RenameVariable();
}

// The skills of the list now chosen; the old skill stays chosen where the new list has
// it, else the first row is.
void DLG_MOVEAI::RefillSkills() {
  auto* combo = GetCtrl<CTRL_COMBO_CLASS<int>>(kIdSkill);
  if (combo == nullptr) return;
  m_Skills = HealSkillRows(Value(kIdList));
  combo->SetLabels(m_Skills.rows, &m_Skills.values);
  if (combo->GetValue() < 0 && !m_Skills.rows.empty())
    if (auto* box = qobject_cast<QComboBox*>(GetDlgItem(kIdSkill))) box->setCurrentIndex(0);
}

// The name goes to the project's list of variable names, which is saved at once.
void DLG_MOVEAI::RenameVariable() {
  const int var = Value(kIdVal);
  if (var < 1 || var >= g_vecGValInfo.Count()) {
    ListBeep();
    return;
  }
  if (InputText(this, nullptr, &g_vecGValInfo[var].m_strName, 12, true, CP932_TEXT("変数名の入力")) != 1) return;
  m_vecVarRows = NumberedRows(g_vecGValInfo, 1, 3);
  if (auto* combo = GetCtrl<CTRL_COMBO_CLASS<int>>(kIdVal)) combo->SetLabels(m_vecVarRows);
  kGValInfoFile.save(kGValInfoFile.path);
}

int RunMoveAI(cMoveAI& rule, QWidget* parent) { return EditRecord<DLG_MOVEAI>(rule, parent); }
