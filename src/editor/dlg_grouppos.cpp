#include "editor/dlg_grouppos.h"

#include "editor/dlg_grouppos_set.h"
#include "forms/input_forms.h"
#include "platform/cp932.h"
#include "project/project_globals.h"
#include "stage/group_pos_edit.h"
#include "toolkit/list_init.h"

DLG_GROUPPOS::DLG_GROUPPOS(QWidget* parent, QWidget* main) : DLG_CLASS(parent, "位置グループの設定"), m_pMain(main) {
  if (g_Stage.m_vecGroupPos.Count() < 2) g_Stage.m_vecGroupPos.resize(2);

  cListInit<cGroupPos> init = NumberedRows<cGroupPos>(
      &m_vecWork, 1, kMaxGroupRows, [](std::string& out, int, const cGroupPos& group) { out = GroupPosRowText(group); });
  init.pSource = &g_Stage.m_vecGroupPos;
  init.nFirstRow = 1;

  cFormTable& F = Table();
  F.Group("位置グループ");
  F.List(kIdList, "", m_List, init, kListFirstFixed, 16).Span(4).FixedPitch(34).Row();
  F.Button(kIdNew, "新規");
  F.Button(kIdEdit, "編集");
  F.Button(kIdClear, "ｸﾘｱ");
  F.Button(kIdListCount, "ﾃﾞｰﾀ数");
  F.EndGroup();
  F.OkCancel();
}

void DLG_GROUPPOS::OnFormCommand(unsigned id, unsigned code) {
  switch (id) {
    case kIdNew: m_List.Append(); break;
    case kIdEdit: Edit(); break;
    case kIdClear: m_List.Clear(); break;
    case kIdListCount: DataCount(); break;
    case kIdList:
      if (code == kNotifyDblClk) Edit();
      break;
    default: break;
  }
}

void DLG_GROUPPOS::Edit() {
  const int row = m_List.GetSel();
  if (!m_List.IsReal(row)) return;
  if (RunGroupPosSet(m_vecWork[row + m_List.m_nFirstRow], m_hWnd, m_pMain) == 1) m_List.Redraw();
}

void DLG_GROUPPOS::DataCount() {
  int count = m_List.RowCount();
  if (InputValue(this, nullptr, &count, 1, kMaxGroupRows, CP932_TEXT("データ数")) == 1) m_List.Resize(count);
}

int RunPositionGroups(QWidget* main) {
  DLG_GROUPPOS form(main, main);
  return form.DoModal();
}
