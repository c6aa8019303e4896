#include "forms/database/db_small_pages.h"

#include "forms/common_var_names.h"
#include "forms/database/sheet_preview.h"
#include "project/project_globals.h"
#include "stage/stage_view_draw.h"

DLG_DB_PTVAL::DLG_DB_PTVAL() : cTablePage(g_Database.m_vecPtVal, "パーティー変数", {1, 1, 999}) {
  cPtVal& E = m_Edit;
  cFormTable& F = Table();
  F.Column();
  MainList(kList, "パーティー変数", [](const cPtVal& v) { return v.m_strName; }, 20);
  F.Column();
  F.EditStr(kName, "名称", &E.m_strName, WideLine(12)).Span(2).Row();
  F.EditStr(kUnit, "単位", &E.m_strUnit, WideLine(1)).Row();
  F.Combo(kCommonVar, "コモン変数", &E.m_nCommonVar, &CommonVarLabels(), nullptr, kFirstCommonVar);
  F.Button(kRename, "_").Row();
  F.Skip().Text("☆パーティー変数の実体").Row();
  F.EditVal(kMin, "下限", &E.m_nMin, -999999, 999999).Row();
  F.EditVal(kMax, "上限", &E.m_nMax, -999999, 999999).Row();
  F.Check(kShowParty, "編成画面下部のウインドウにパーティーのステータスとして表示", &E.m_bShowParty).Span(3).Row();
  F.Check(kShowSave, "ゲームのセーブ・ロード時、セーブデータの情報として表示", &E.m_bShowSave).Span(3).Row();
  F.EndColumns();
}

void DLG_DB_PTVAL::OnFormCommand(unsigned id, unsigned code) {
  if (id == kRename && RenameCommonVar(*this, Value(kCommonVar)))
    if (auto* combo = GetCtrl<CTRL_COMBO_CLASS<int>>(kCommonVar)) combo->SetLabels(CommonVarLabels());
  cTablePage::OnFormCommand(id, code);
}

DLG_DBWORLDCHIP::DLG_DBWORLDCHIP() : cTablePage(g_WorldMap.m_vecChip, "ワールドチップ", {0, 1, 999}) {
  cWorldChip& E = m_Edit;
  cFormTable& F = Table();
  F.Column();
  MainList(kList, "ワールドチップ", [](const cWorldChip& c) { return c.m_strName; }, 20);
  F.Column();
  F.EditStr(kName, "名称", &E.m_strName, WideLine(8)).Row();
  F.Check(kNoMove, "移動不可", &E.m_bNoMove).Span(2).Row();
  F.EditVal(kGraphic, "グラフィック", &E.m_nGraphic, 0, 255, 1, kGraphicSpin).Row();
  F.Picture(kChip, "グラフィック", kMapCellPx, kMapCellPx).Row();
  F.EndColumns();
}

void DLG_DBWORLDCHIP::OnReady() {
  cTablePage::OnReady();
  OnUpdateEnable();
}

// Runs after every command, once the screen shows the row the command left.
void DLG_DBWORLDCHIP::OnUpdateEnable() {
  auto* chip = GetCtrl<CTRL_PICTURE_CLASS>(kChip);
  const int graphic = Value(kGraphic);
  if (chip == nullptr || graphic == m_nShownChip) return;
  m_nShownChip = graphic;
  ShowChipCell(*chip, g_aSheet[SHEET_WORLD_CHIP], graphic);
}
