#include "editor/dlg_stage.h"

#include "database/numbered_rows.h"
#include "platform/cp932.h"
#include "project/project_globals.h"
#include "sound/sound_start.h"
#include "editor/dlg_endcond.h"
#include "toolkit/list_init.h"

namespace {

struct cDescriptionFace {
  const char* title;
  VECTOR_CLASS<cEndCond> cStage::*field;
  eListIdSet ids;
};
// Each list has its own keys and menu, so that they serve side by side.
constexpr cDescriptionFace kDescriptionFaces[DLG_STAGE::kDescriptions] = {
    {"勝利条件の説明", &cStage::m_vecWinCond, kListFirstFree},
    {"敗北条件の説明", &cStage::m_vecLoseCond, kListSecondFree},
    {"その他（特別ルール等）の説明", &cStage::m_vecRuleCond, kListThirdFree},
};
constexpr unsigned kDescriptionIds[DLG_STAGE::kDescriptions] = {DLG_STAGE::kIdWinList, DLG_STAGE::kIdLoseList,
                                                                 DLG_STAGE::kIdRuleList};

}  // namespace

DLG_STAGE::DLG_STAGE(const cStage& source, QWidget* parent)
    : cRecordForm(parent, "ステージの設定", source), m_nWidth(source.m_nWidth), m_nHeight(source.m_nHeight) {
  cStage& s = m_Work;
  m_vecGroupRows = NumberedRows(s.m_vecGroupPos, 1, 2);
  m_vecBackRows = NumberedRows(g_Database.m_vecBack, 1, 3);
  m_vecBgmRows = NumberedRows(g_Database.m_vecBgm, 1, 3);
  m_vecBgmRows.insert(m_vecBgmRows.begin(), CP932_TEXT("なし"));
  m_vecPtValRows = NumberedRows(g_Database.m_vecPtVal, 1, 3);

  cFormTable& F = Table();
  F.Column();  // the settings, with the descriptions in a column beside them
  F.EditStr(kIdName, "ステージ名", &s.m_strName, WideLine(30)).Span(3).Row();
  F.EditVal(kIdWidth, "横幅", &m_nWidth, 1, cStage::kMaxWidth, 1, kIdWidthSpin);
  F.EditVal(kIdHeight, "縦幅", &m_nHeight, 1, cStage::kMaxHeight, 1, kIdHeightSpin).Row();
  F.Combo(kIdStartGroup, "味方の初期位置", &s.m_nStartGroup, &m_vecGroupRows, nullptr, 1).KeepWithoutRow().Span(3).Row();
  F.Combo(kIdBack, "背景", &s.m_nBack, &m_vecBackRows, nullptr, 1).Span(3).Row();
  F.Combo(kIdBgm, "BGM", &s.m_nBgm, &m_vecBgmRows).Span(2);
  F.Button(kIdPlay, "再生").Row();
  F.Check(kIdAllGroups, "最初から全てのグループの敵を出現させる", &s.m_bAllGroups).Span(4).Row();
  F.Combo(kIdRewardVal, "ステージクリア時の報酬", &s.m_nRewardVal, &m_vecPtValRows, nullptr, 1).Span(2);
  F.EditVal(kIdReward, "", &s.m_nReward, 0, 999999, 1, kIdRewardSpin).Named("報酬").Row();
  F.EditVal(kIdTurnCut, "－経過ターン数×", &s.m_nRewardTurnCut, 0, 99999, 1, kIdTurnCutSpin);
  F.Check(kIdTurnPercent, "「経過ターン×□」を％で指定", &s.m_bRewardTurnPercent).Span(2).Row();
  F.EditVal(kIdRepeatRate, "クリア2回目以降の修正(%)", &s.m_nRewardRepeatRate, 0, 999, 1, kIdRepeatRateSpin).Row();
  F.EditVal(kIdExpRate, "獲得EXの修正(%)", &s.m_nExpRate, 0, 999, 1, kIdExpRateSpin);
  F.EditVal(kIdExpCleared, "クリア済みなら(%)", &s.m_nExpClearedRate, 0, 999, 1, kIdExpClearedSpin).Row();
  F.EditVal(kIdGoldRate, "敵の獲得金の修正(%)", &s.m_nGoldRate, 0, 999, 1, kIdGoldRateSpin);
  F.EditVal(kIdGoldCleared, "クリア済みなら(%)", &s.m_nGoldClearedRate, 0, 999, 1, kIdGoldClearedSpin).Row();
  F.Group("文字画像の表示", 4);
  F.Check(kIdShowClear, "CLEAR !　（同時に報酬も表示）", &s.m_bShowClear);
  F.Check(kIdShowGameOver, "GAMEOVER", &s.m_bShowGameOver);
  F.EndGroup().Row();
  // The descriptions stand beside the settings, so that the form fits a small screen.
  F.Column();
  for (int i = 0; i < kDescriptions; ++i) {
    const cDescriptionFace& face = kDescriptionFaces[i];
    cDescription& d = m_aDesc[i];
    d.id = kDescriptionIds[i];
    d.work = &(s.*face.field);
    cListInit<cEndCond> init = NumberedRows<cEndCond>(
        d.work, 0, kMaxLines, [](std::string& out, int, const cEndCond& line) { out = line.m_strText; });
    F.Group(face.title);
    F.List(d.id + kListOffset, "", d.list, init, face.ids, kMaxLines + 1).Span(3).Row();
    F.Button(d.id + kInsertOffset, "挿入");
    F.Button(d.id + kEditOffset, "編集");
    F.Button(d.id + kDeleteOffset, "削除");
    F.EndGroup();
  }
  F.OkCancel();
}

void DLG_STAGE::OnReady() {
  for (cDescription& d : m_aDesc) d.list.SelectOnly(0, 0);
  RedrawLists();
}

// The size reaches the map here; the main window clamps what lies beyond it.
bool DLG_STAGE::OnOk() {
  m_Work.Resize(m_nWidth, m_nHeight);
  return true;
}

void DLG_STAGE::OnFormCommand(unsigned id, unsigned code) {
  if (id == kIdPlay) return Play();
  for (cDescription& d : m_aDesc) {
    if (id < d.id || id > d.id + kDeleteOffset) continue;
    const unsigned which = id - d.id;
    if (which == kInsertOffset) Insert(d);
    else if (which == kEditOffset || (which == kListOffset && code == kNotifyDblClk)) Edit(d);
    else if (which == kDeleteOffset) d.list.Delete(-1, 0);
  }
}

// The new line is the line form's to fill; declined, it goes again.
void DLG_STAGE::Insert(cDescription& d) {
  if (!d.list.Insert()) return;
  const int row = d.list.m_nCurSel;
  if (RunEndCond((*d.work)[row], m_hWnd) == 1) {
    d.list.Redraw();
    return;
  }
  d.list.Delete(row, 1);
  d.list.SelectOnly(row, 0);
  d.list.Redraw();
}

void DLG_STAGE::Edit(cDescription& d) {
  const int row = d.list.GetSel();
  if (d.list.IsReal(row) && RunEndCond((*d.work)[row], m_hWnd) == 1) d.list.Redraw();
}

void DLG_STAGE::Play() {
  const int bgm = Value(kIdBgm);
  if (bgm <= 0 || bgm >= g_Database.m_vecBgm.Count()) return;
  const cEdBgm& row = g_Database.m_vecBgm[bgm];
  g_Music.SetSlot(0, row.m_strPath, row.m_nVolume);
  g_Music.Play(0, 0, 0, 0, 1);
  m_bPlayed = true;
}

// The music "再生" started ends with the form, however it ends.
void DLG_STAGE::OnDestroy() {
  if (m_bPlayed) g_Music.Stop();
  m_bPlayed = false;
}

int RunStageSettings(QWidget* parent) { return EditRecord<DLG_STAGE>(g_Stage, parent); }
