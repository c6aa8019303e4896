#include "forms/database/db_land_page.h"

#include "database/class_rows.h"
#include "forms/database/sheet_preview.h"
#include "forms/database/symbol_reference.h"
#include "forms/database/value_list.h"
#include "forms/graphic_chooser.h"
#include "project/project_globals.h"
#include "project/system_labels.h"
#include "stage/stage_view_draw.h"

namespace {

constexpr int kChipGraphicKind = 2;  // the chooser's map chip mode

}  // namespace

DLG_DBLAND::DLG_DBLAND() : cTablePage(g_vecLand, "地形", {0, 1, 999}) {
  cLand& E = m_Edit;
  cFormTable& F = Table();
  F.Column();
  MainList(kList, "地形", [](const cLand& l) { return l.m_strName; }, 20);

  F.Column();
  F.EditStr(kName, "名称", &E.m_strName, WideLine(8)).Span(2).Row();
  F.EditVal(kMoveCost, "移動コスト", &E.m_nMoveCost, 1, 9, 1, kMoveCostSpin);
  F.Check(kNoMove, "移動不可", &E.m_bNoMove).Row();
  F.Group("グラフィック");
  F.EditVal(kGraphic, "グラフィック", &E.m_nGraphic, 0, 255, 1, kGraphicSpin);
  F.Button(kGraphicList, "一覧").Row();
  F.Picture(kChip, "グラフィック", kMapCellPx, kMapCellPx).Row();
  F.EndGroup();
  F.Combo(kBack, "戦闘時の背景", &E.m_nBack, &m_vecBackNames, &m_vecBackValues).Span(2).Row();
  F.Combo(kSpecial, "特殊効果", &E.m_nSpecial, LANDSPECIAL);
  F.EditVal(kSpecialValue, "", &E.m_nSpecialValue, 0, 999999).Row();
  F.Check(kTraining, "トレーニングで選択可", &E.m_bTraining).Span(2).Row();
  F.EditStr(kDesc, "説明", &E.m_strDesc, WideLine(32)).Span(3).Row();
  F.Combo(kSymbol, "参照：#P", &m_nSymbol, &SymbolNumberLabels());
  F.Picture(kSymbolPreview, "参照：#P", 32, 32).Row();

  F.Column();
  F.Group("能力値修正");
  F.Check(kPercent, "％で指定↓", &E.m_bPercent).Span(2).Row();
  for (int s = 0; s < cLand::kStatusCount; ++s)
    F.EditVal(kStatus + s, kSystemStatusLabels[s], &E.m_anStatus[s], -999999, 999999).Row();
  F.EndGroup();
  F.List(kRates, "属性修正(%)", m_Rates,
         ValueListInit(&E.m_vecElemRate, 1, false, [](int elem, int v) { return ElemValueRowText(elem, v); }),
         kListNoEdit, 6)
      .LabelAbove()
      .Row();
  F.Button(kRateEdit, "編集").Row();
  F.EndColumns();
  FillBackNames();
}

void DLG_DBLAND::FillBackNames() {
  m_vecBackNames.clear();
  m_vecBackValues.clear();
  const VECTOR_CLASS<cEdBack>& backs = g_Database.m_vecBack;
  for (int i = 1; i < backs.Count(); ++i) {
    m_vecBackNames.push_back(backs[i].m_strName);
    m_vecBackValues.push_back(i);
  }
}

void DLG_DBLAND::OnReady() {
  cTablePage::OnReady();
  if (auto* preview = GetCtrl<CTRL_PICTURE_CLASS>(kSymbolPreview)) DrawSymbolPreview(*preview, m_nSymbol);
  UpdateChip();
}

void DLG_DBLAND::OnStale() {
  FillBackNames();
  if (auto* combo = GetCtrl<CTRL_COMBO_CLASS<int>>(kBack)) combo->SetLabels(m_vecBackNames, &m_vecBackValues);
}

void DLG_DBLAND::UpdateChip() {
  auto* chip = GetCtrl<CTRL_PICTURE_CLASS>(kChip);
  const int graphic = Value(kGraphic);
  if (chip == nullptr || graphic == m_nShownChip) return;
  m_nShownChip = graphic;
  ShowChipCell(*chip, g_aSheet[SHEET_MAP_CHIP], graphic);
}

// Runs after every command, once the screen shows the row the command left.
void DLG_DBLAND::OnUpdateEnable() { UpdateChip(); }

void DLG_DBLAND::OnFormCommand(unsigned id, unsigned code) {
  switch (id) {
    case kGraphicList: {
      int graphic = Value(kGraphic);
      if (ChooseGraphic(kChipGraphicKind, &graphic, m_hWnd.data()))
        if (auto* edit = GetCtrl<CTRL_EDITVAL_CLASS<int>>(kGraphic)) edit->SetValue(graphic, true);
      break;
    }
    case kRates:
      if (code != kNotifyDblClk) break;
      [[fallthrough]];
    case kRateEdit:
      if (EditListValue(*this, m_Rates, 0, 999, "属性修正(%)")) m_List.CommitRow();
      break;
    case kSymbol:
      if (auto* preview = GetCtrl<CTRL_PICTURE_CLASS>(kSymbolPreview)) DrawSymbolPreview(*preview, Value(kSymbol));
      break;
    default: break;
  }
  cTablePage::OnFormCommand(id, code);
}
