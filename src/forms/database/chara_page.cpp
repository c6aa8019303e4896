#include "forms/database/chara_page.h"

#include "database/chara_preview.h"
#include "database/random_names.h"
#include "project/project_globals.h"
#include "project/system_labels.h"

namespace {

void SetComboRows(DLG_CLASS& page, unsigned id, const VECTOR_CLASS<std::string>& rows) {
  if (auto* combo = page.GetCtrl<CTRL_COMBO_CLASS<int>>(id)) combo->SetLabels(rows);
}

}  // namespace

void cCharaControls::DeclareProfile(cFormTable& F, cChara& E) {
  F.EditStr(kName, "名前", &E.m_strName, WideLine(12)).Row();
  F.Check(kRandomName, "ランダムで名前を決定", &E.m_bRandomName).Span(2).Row();
  F.Combo(kNameFile, "ランダム名前リストファイル", &E.m_nNameFile, &g_vecNameFile)
      .LabelAbove()
      .Span(2)
      .EnableBy(kRandomName)
      .Row();
  // A class row of 0 stands for none; the rows start at the first class.
  F.Combo(kClass, "クラス", &E.m_nClass, &m_vecClassNames, nullptr, 1).Row();
  F.EditVal(kLevel, "レベル", &E.m_nLevel, 1, 99, 1, kLevelSpin).Row();
  F.Combo(kCompati, "相性タイプ", &E.m_nCompatiType, &m_vecCompatiNames).Row();
}

void cCharaControls::DeclareGrowth(cFormTable& F, cChara& E) {
  F.Check(kRandomGrowth, "ランダム能力値成長", &E.m_bRandomGrowth).Span(2).Row();
  F.EditVal(kGrowthTime, "成長時期", &E.m_nGrowthTime, -10, 10, 1, kGrowthTimeSpin).DisableBy(kRandomGrowth).Row();
  F.Text("☆（早熟）-10 ～ 10（晩成）、\n0なら一律", 2).Row();
}

void cCharaControls::DeclareStatus(cFormTable& F, cChara& E) {
  F.Group("ステータス");
  F.Skip().Text("初期値").Text("最終値").Text("ゲーム値").Text("参考値").Row();
  for (int s = 0; s < cChara::kStatusCount; ++s) {
    F.EditVal(kInit + s, kSystemStatusLabels[s], &E.m_anInit[s], 0, 999999);
    F.EditVal(kFinal + s, "", &E.m_anFinal[s], 0, 999999);
    F.Label(kGame + s).Label(kReference + s).Row();
  }
  F.Text("※初期値が「0」なら、\nクラスの設定に準ずる", 5).Row();
  F.EndGroup();
}

void cCharaControls::FillNames(DLG_CLASS& page) {
  NumberedNames(m_vecClassNames, g_vecClass, 1);
  NumberedNames(m_vecCompatiNames, g_Database.m_vecCompatiType, 0);
  if (!page.m_hWnd) return;  // before the window stands the boxes take their rows when bound
  SetComboRows(page, kClass, m_vecClassNames);
  SetComboRows(page, kCompati, m_vecCompatiNames);
  SetComboRows(page, kNameFile, g_vecNameFile);
}

void cCharaControls::ShowPreview(DLG_CLASS& page, const cChara& working) {
  if (!page.m_hWnd) return;
  const CHARA_PREVIEW preview = PreviewChara(working);
  for (int s = 0; s < cChara::kStatusCount; ++s) {
    const auto i = static_cast<std::size_t>(s);
    for (auto [id, value] : {std::pair{kGame + s, preview.anGame[i]}, std::pair{kReference + s, preview.anReference[i]}})
      if (auto* label = page.GetCtrl<CTRL_LABEL_CLASS>(id)) label->SetText(preview.bValid ? std::to_string(value) : "");
  }
}
