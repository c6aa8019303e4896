#include "editor/dlg_worldevent_set.h"

#include "event/event_names.h"
#include "event/event_page_rules.h"
#include "forms/common_var_names.h"
#include "forms/database/db_media_pages.h"
#include "platform/cp932.h"
#include "project/project_globals.h"
#include "stage/stage_view_draw.h"
#include "stage/world_edit.h"

namespace {

const char* const kTypeLabels[] = {"ステージ", "道", "壁", ""};
const char* const kGameClearLabels[] = {"しない", "2周目へ突入", "ゲーム終了", ""};

const cMediaPageKind kStageFile{"", "data\\stg", "ステージファイルの選択", "StageFile ( *.stg2 )", "stg2",
                                cMediaPageKind::kNoPlay};

}  // namespace

int WorldEventGraphicRows() { return std::max(1, g_aSheet[SHEET_WORLD_EVENT].m_nHeight / kMapCellPx); }

DLG_WORLDEVENT_SET::DLG_WORLDEVENT_SET(cWorldEvent& target, QWidget* parent)
    : cRecordForm(parent, "イベント", target), m_rTarget(target) {
  RefillVariables();
  for (int g = 0; g < WorldEventGraphicRows(); ++g) m_vecGraphicRows.push_back(std::to_string(g));

  cListInit<cWorldEventPage> pages;
  pages.pSource = &m_Work.m_vecPage;
  pages.pWork = &m_vecPages;
  pages.pEditRec = &m_Page;
  pages.nMinRows = 1;
  pages.nMaxRows = kMaxPages;
  pages.pfnRowText = [](std::string& out, int, const cWorldEventPage& page) {
    out = CP932_TEXT("ステージ番号 ") + std::to_string(page.m_nStageNo);
  };
  cWorldEventPage& P = m_Page;
  auto stage = [this] { return Value(kIdType) == WORLDEVENT_STAGE; };
  auto variation = [this] { return Value(kIdType) == WORLDEVENT_STAGE && Value(kIdVariation) != 0; };

  cFormTable& F = Table();
  F.Column();
  F.EditStr(kIdName, "イベント名", &m_Work.m_strName, WideLine(20)).Span(2).Row();
  F.Button(kIdInsert, "挿入");
  F.Button(kIdDelete, "削除").Row();
  F.List(kIdPages, "ページ", m_Pages, pages, kListFirstFree, 16).LabelAbove().Span(2).FixedPitch(16).Row();
  // The page's controls: labels, fields, and a narrow third column of buttons and notes.
  F.Column();
  F.Group("出現条件", 3);
  F.EditVal(kIdCondStage, "ステージ", &P.m_nCondStage, 0, 999, 1, kIdCondStageSpin);
  F.Text("をクリアする").Row();
  F.Text("※「0」なら常に出現", 3).Row();
  F.Skip();
  F.Combo(kIdCondVar, "", &P.m_nCondVar, &m_vecCondVarRows).Named("コモン変数");
  F.Button(kIdCondVarRename, "_").Named("コモン変数名の変更").Row();
  F.EditVal(kIdCondValue, "が", &P.m_nCondValue, -999999, 999999, 1, kIdCondValueSpin).EnableBy(kIdCondVar);
  F.Combo(kIdCondCmp, "", &P.m_nCondCmp, EVENTCMP).Named("比較").EnableBy(kIdCondVar).Row();
  F.EndGroup().Row();
  F.Combo(kIdGraphic, "グラフィック", &P.m_nGraphic, &m_vecGraphicRows);
  F.Picture(kIdPreview, "プレビュー", kMapCellPx, kMapCellPx).Row();
  F.Combo(kIdType, "イベントタイプ", &P.m_nType, kTypeLabels).Row();
  F.EditStr(kIdStageName, "ステージ名", &P.m_strStageName, WideLine(30)).Span(2).EnableIf(stage).Row();
  F.EditStr(kIdStagePath, "ステージ", &P.m_strStagePath, {.nLimit = 260, .nLineLen = 260, .nMaxLines = 1})
      .EnableIf(stage);
  F.Button(kIdBrowse, "参照").EnableIf(stage).Row();
  F.Check(kIdVariation, "バリエーション", &P.m_bVariation).EnableIf(stage);
  F.Combo(kIdVarNo, "", &P.m_nVarNo, &m_vecVarRows, nullptr, kFirstCommonVar).Named("変更するコモン変数").EnableIf(variation);
  F.Button(kIdVarRename, "_").Named("変更するコモン変数名の変更").EnableIf(variation).Row();
  F.EditVal(kIdVarValue, "＝", &P.m_nVarValue, -999999, 999999, 1, kIdVarValueSpin).EnableIf(variation).Row();
  F.Text("☆ステージ開始前にコモン変数を変更する。\n例えば、コモン変数「ルート」を変えてルートAとルートBを\n"
         "別のステージとして出したいときなどに利用する",
         3)
      .Row();
  F.EditVal(kIdStageNo, "ステージ番号", &P.m_nStageNo, 0, 999, 1, kIdStageNoSpin).EnableIf(stage).Row();
  F.Text("※「0」なら番号なし（常にクリア済み）", 3).Row();
  F.Check(kIdPassable, "クリアしなくても通行可能", &P.m_bPassable).Span(3).EnableIf(stage).Row();
  F.Check(kIdReplay, "クリア後でもプレイ可能", &P.m_bReplay).Span(3).EnableIf(stage).Row();
  F.Combo(kIdGameClear, "ゲームクリア", &P.m_nGameClear, kGameClearLabels).EnableIf(stage).Row();
  F.EndColumns();
  F.OkCancel();
}

// Row 0 of the condition's variables is the absence of a condition.
void DLG_WORLDEVENT_SET::RefillVariables() {
  BuildVarLabels(m_vecVarRows);
  BuildVarLabelsWithNone(m_vecCondVarRows);
}

void DLG_WORLDEVENT_SET::OnReady() {
  m_Pages.SelectOnly(0, 1);
  UpdateAllExcept(m_Pages);
  RedrawLists();
  ShowPreview();
}

bool DLG_WORLDEVENT_SET::OnOk() {
  WorldEventFormConfirmed(m_rTarget, m_Work);
  return true;
}

void DLG_WORLDEVENT_SET::OnFormCommand(unsigned id, unsigned) {
  switch (id) {
    case kIdInsert: m_Pages.Insert(); break;
    case kIdDelete:
      m_Pages.Delete(-1, 0);
      UpdateAllExcept(m_Pages);
      break;
    case kIdBrowse: {
      std::string stored;
      if (!BrowseMediaFile(*this, kStageFile, stored)) break;
      m_Page.m_strStagePath = stored;
      if (CTRL_CLASS* path = GetCtrl(kIdStagePath)) path->Update();
      m_Pages.CommitRow();
      break;
    }
    case kIdCondVarRename:
    case kIdVarRename: {
      const unsigned combo = id == kIdCondVarRename ? kIdCondVar : kIdVarNo;
      if (!RenameCommonVar(*this, Value(combo))) break;
      RefillVariables();
      if (auto* c = GetCtrl<CTRL_COMBO_CLASS<int>>(kIdCondVar)) c->SetLabels(m_vecCondVarRows);
      if (auto* c = GetCtrl<CTRL_COMBO_CLASS<int>>(kIdVarNo)) c->SetLabels(m_vecVarRows);
      break;
    }
    default: break;
  }
}

void DLG_WORLDEVENT_SET::OnUpdateEnable() {
  // A road or a wall has no stage, and so no number, whether the type was just chosen or
  // the page came so from a file.
  if (Value(kIdType) != WORLDEVENT_STAGE && Value(kIdStageNo) != 0) {
    m_Page.m_nStageNo = 0;
    if (CTRL_CLASS* number = GetCtrl(kIdStageNo)) number->Update();
    m_Pages.CommitRow();
  }
  ShowPreview();
}

// The icon as the map shows it: the left column while the page has a stage number.
void DLG_WORLDEVENT_SET::ShowPreview() {
  auto* preview = GetCtrl<CTRL_PICTURE_CLASS>(kIdPreview);
  if (preview == nullptr) return;
  preview->m_Surface.Fill(0);
  BlitSheetCell(preview->m_Surface, 0, 0, g_aSheet[SHEET_WORLD_EVENT], Value(kIdStageNo) > 0 ? 0 : kMapCellPx,
                static_cast<long long>(Value(kIdGraphic)) * kMapCellPx);
  preview->Redraw();
}

int RunWorldEventSet(cWorldEvent& event, QWidget* parent) {
  DLG_WORLDEVENT_SET form(event, parent);
  return form.DoModal();
}
