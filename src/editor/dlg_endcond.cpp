#include "editor/dlg_endcond.h"

#include "database/numbered_rows.h"
#include "platform/cp932.h"
#include "project/project_globals.h"

namespace {

const char* const kFocusLabels[] = {"なし", "リーダー", "敵(IDで指定)", "位置グループ", "座標", ""};

}  // namespace

DLG_ENDCOND::DLG_ENDCOND(const cEndCond& source, QWidget* parent) : cRecordForm(parent, "説明", source) {
  m_vecGroupRows = NumberedRows(g_Stage.m_vecGroupPos, 1, 2);
  m_vecShowRows = m_vecGroupRows;
  m_vecShowRows.insert(m_vecShowRows.begin(), CP932_TEXT("表示しない"));

  cFormTable& F = Table();
  F.EditStr(kIdText, "テキスト", &m_Work.m_strText, WideLine(30)).Span(3).Row();
  F.Group("選択した時の処理");
  F.Combo(kIdFocus, "カーソルを合わせる対象", &m_Work.m_nFocus, kFocusLabels).Span(3).Row();
  F.EditVal(kIdChara, "キャラID", &m_Work.m_nFocusChara, 1, 999, 1, kIdCharaSpin).EnableWhen(kIdFocus, kFocusChara).Row();
  // A line that names no group keeps its number rather than taking -1.
  F.Combo(kIdGroup, "位置グループ", &m_Work.m_nFocusGroup, &m_vecGroupRows, nullptr, 1)
      .EnableWhen(kIdFocus, kFocusGroup)
      .KeepWithoutRow()
      .Span(3)
      .Row();
  // Fixed limits, not the map's: the stage's clamp brings them onto the map.
  F.EditVal(kIdX, "X", &m_Work.m_nFocusX, 0, 64, 1, kIdXSpin).EnableWhen(kIdFocus, kFocusCell);
  F.EditVal(kIdY, "Y", &m_Work.m_nFocusY, 0, 64, 1, kIdYSpin).EnableWhen(kIdFocus, kFocusCell).Row();
  F.Combo(kIdShowGroup, "表示する位置グループ", &m_Work.m_nShowGroup, &m_vecShowRows).KeepWithoutRow().Span(3);
  F.EndGroup();
  F.OkCancel();
}

int RunEndCond(cEndCond& line, QWidget* parent) { return EditRecord<DLG_ENDCOND>(line, parent); }
