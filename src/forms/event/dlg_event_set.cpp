#include "forms/event/dlg_event_set.h"

#include <QMenu>
#include <cstdio>

#include "database/numbered_rows.h"
#include "event/event_names.h"
#include "event/event_page_rules.h"
#include "event/event_summary.h"
#include "forms/common_var_names.h"
#include "forms/event/action_palette.h"
#include "forms/event/dlg_eventact.h"
#include "forms/event/dlg_eventactplt.h"
#include "forms/graphic_chooser.h"
#include "platform/cp932.h"
#include "platform/diagnostics.h"
#include "platform/prompt.h"
#include "project/project_files.h"
#include "project/project_globals.h"
#include "stage/map_edit.h"
#include "stage/stage_view_draw.h"
#include "toolkit/ctrl_types.h"
#include "toolkit/list_init.h"

namespace {

constexpr int kGraphicMax = 511;
constexpr int kGraphicKindEvent = 3;  // the event sheet of the graphic chooser
constexpr int kCondMax = 999999;

}  // namespace

DLG_EVENT_SET::DLG_EVENT_SET(cEvent& target, eEventTarget kind, QWidget* parent)
    : DLG_CLASS(parent, "イベント"), m_Target(target), m_bStartEvent(kind == eEventTarget::kStart) {
  m_Event = target;
  BuildVarLabelsWithNone(m_vecVarLabels);
  m_vecGroupLabels = NumberedRows(g_Stage.m_vecGroupPos, 1, 3);
  BuildNumberedLabels(m_vecFriendLabels, eNamedTable::Friend, 1, "条件なし");
  m_ActList.LeaveToForm(kListInsert);

  // The copy is the working vector: OK writes it back whole.
  cListInit<cEventPage> pages = NumberedRows<cEventPage>(
      &m_Event.m_vecPage, 1, 999, [](std::string& out, int row, const cEventPage& page) { EventPageRowText(out, row, page); });
  pages.pEditRec = &m_PageEdit;

  cListInit<cEventAct> acts;
  acts.bMulti = 1;
  acts.pWork = &m_PageEdit.m_vecAct;
  acts.nMaxRows = 999;
  acts.bBlankRow = 1;
  acts.pfnRowText = [](std::string& out, int row, const cEventAct& act) { EventActRowText(out, row, act); };

  auto notStart = [this] { return !m_bStartEvent; };
  cFormTable& F = Table();
  F.Column();
  F.Group("ページ");
  F.List(kIdPageList, "", m_PageList, pages, kListFirstFree, 6).Span(3).EnableIf(notStart).Row();
  F.Button(kIdPageInsert, "挿入").EnableIf(notStart);
  F.Button(kIdPageDelete, "削除").EnableIf(notStart).Row();
  F.EndGroup();
  F.Group("グラフィック");
  F.EditVal(kIdGraphic, "グラフィック", &m_PageEdit.m_nGraphic, 0, kGraphicMax, 1, kIdGraphicSpin).EnableIf(notStart);
  F.Button(kIdGraphicList, "一覧").EnableIf(notStart);
  F.Picture(kIdPreview, "グラフィック", 32, 32).Row();
  F.EndGroup();
  F.Group("アクション");
  F.List(kIdActList, "", m_ActList, acts, kListSecondFree, 14).Span(3).FixedPitch(32).Row();
  F.Button(kIdActInsert, "挿入");
  F.Button(kIdActEdit, "編集");
  F.Button(kIdActDelete, "削除").Row();
  F.EndGroup();

  F.Column();
  F.EditStr(kIdName, "イベント名", &m_Event.m_strName, WideLine(40)).Span(3).EnableIf(notStart);
  F.Check(kIdHeld, "キャラにこのイベントを所持させる", &m_Event.m_bHeldByChara).Span(3).EnableIf(notStart).Row();
  DeclarePageControls(F);
  F.OkCancel();
}

// The page's conditions, each enabled by the rule of the values on the screen; in the
// start event none of them is in force.
void DLG_EVENT_SET::DeclarePageControls(cFormTable& F) {
  cEventPage& P = m_PageEdit;
  auto when = [this](bool cEventPageEnable::*field) {
    return [this, field] {
      if (m_bStartEvent) return false;
      cEventPage screen;
      screen.m_bTurnCondA = Value(kIdTurnA);
      screen.m_bTurnCondB = Value(kIdTurnB);
      screen.m_bEventVarCond = Value(kIdEventVar);
      screen.m_nCommonVar = Value(kIdCommonVar);
      screen.m_nTiming = Value(kIdTiming);
      screen.m_nTargetRange = Value(kIdRange);
      screen.m_nTargetChara = Value(kIdChara);
      screen.m_bEnemyGroupCond = Value(kIdEnemyGroupCheck);
      screen.m_bEnemyIdCond = Value(kIdEnemyIdCheck);
      return EventPageEnable(screen).*field;
    };
  };
  auto notStart = [this] { return !m_bStartEvent; };

  F.Group("出現条件（全ての条件を満たすと出現）");
  F.Check(kIdTurnA, "ターン数条件A", &P.m_bTurnCondA).EnableIf(notStart);
  F.EditVal(kIdTurnABase, "", &P.m_nTurnABase, 0, 999, 1, kIdTurnABaseSpin).Named("ターン数条件A").EnableIf(when(&cEventPageEnable::turnA));
  F.Label(kIdPlus, "＋").EnableIf(when(&cEventPageEnable::turnA));
  F.EditVal(kIdTurnAStep, "", &P.m_nTurnAStep, 0, 999, 1, kIdTurnAStepSpin).Named("ターン数条件A の倍数").EnableIf(when(&cEventPageEnable::turnA));
  F.Label(kIdMultiple, "の倍数").EnableIf(when(&cEventPageEnable::turnA)).Row();
  F.Check(kIdTurnB, "ターン数条件B", &P.m_bTurnCondB).EnableIf(notStart);
  F.EditVal(kIdTurnBMin, "", &P.m_nTurnBMin, 0, 999, 1, kIdTurnBMinSpin).Named("ターン数条件B").EnableIf(when(&cEventPageEnable::turnB));
  F.Label(kIdTilde, "～").EnableIf(when(&cEventPageEnable::turnB));
  F.EditVal(kIdTurnBMax, "", &P.m_nTurnBMax, 0, 999, 1, kIdTurnBMaxSpin).Named("ターン数条件B まで").EnableIf(when(&cEventPageEnable::turnB)).Row();
  F.Check(kIdEventVar, "イベント変数条件", &P.m_bEventVarCond).EnableIf(notStart);
  F.EditVal(kIdEventVarValue, "", &P.m_nEventVarValue, -kCondMax, kCondMax, 1, kIdEventVarValueSpin).Named("イベント変数条件").EnableIf(when(&cEventPageEnable::eventVar));
  F.Combo(kIdEventVarCmp, "", &P.m_nEventVarCmp, EVENTCMP).Named("イベント変数の比較").Span(2).EnableIf(when(&cEventPageEnable::eventVar)).Row();
  F.Combo(kIdCommonVar, "コモン変数", &P.m_nCommonVar, &m_vecVarLabels).KeepWithoutRow().Span(3).EnableIf(notStart);
  F.Button(kIdRename, "_").Named("変数名の変更").EnableIf(notStart).Row();
  F.EditVal(kIdCommonVarValue, "が", &P.m_nCommonVarValue, -kCondMax, kCondMax, 1, kIdCommonVarValueSpin).EnableIf(when(&cEventPageEnable::commonVar));
  F.Combo(kIdCommonVarCmp, "", &P.m_nCommonVarCmp, EVENTCMP).Named("コモン変数の比較").Span(2).EnableIf(when(&cEventPageEnable::commonVar)).Row();
  F.Check(kIdFirstTry, "ステージ初挑戦時のみ出現", &P.m_bFirstTryOnly).Span(4).EnableIf(notStart).Row();
  F.EndGroup();

  F.Group("発生条件");
  F.Combo(kIdTiming, "タイミング", &P.m_nTiming, EVENTTIMING).Span(4).EnableIf(notStart).Row();
  F.EditStr(kIdCommand, "特殊コマンド名", &P.m_strCommand, WideLine(4)).EnableIf(when(&cEventPageEnable::command)).Row();
  F.Combo(kIdRange, "対象", &P.m_nTargetRange, EVENTTARGETRANGE).EnableIf(notStart);
  F.Combo(kIdChara, "に", &P.m_nTargetChara, EVENTTARGETCHARA).EnableIf(when(&cEventPageEnable::targetChara));
  F.Combo(kIdExist, "が", &P.m_nTargetExist, EVENTTARGETEXIST).EnableIf(when(&cEventPageEnable::targetChara));
  F.Text("発生").Row();
  F.Combo(kIdPosGroup, "位置グループ", &P.m_nPosGroup, &m_vecGroupLabels, nullptr, 1).KeepWithoutRow().Span(4).EnableIf(when(&cEventPageEnable::posGroup)).Row();
  F.Combo(kIdFriend, "味方条件", &P.m_nFriendCond, &m_vecFriendLabels).KeepWithoutRow().Span(4).EnableIf(when(&cEventPageEnable::friendCond)).Row();
  F.Text("敵条件");
  F.Check(kIdEnemyGroupCheck, "グループ", &P.m_bEnemyGroupCond).EnableIf(when(&cEventPageEnable::enemyGroupCheck));
  F.EditVal(kIdEnemyGroup, "", &P.m_nEnemyGroup, 1, 100, 1, kIdEnemyGroupSpin).Named("敵条件 グループ").EnableIf(when(&cEventPageEnable::enemyGroup));
  F.Check(kIdEnemyIdCheck, "キャラID", &P.m_bEnemyIdCond).EnableIf(when(&cEventPageEnable::enemyIdCheck));
  F.EditVal(kIdEnemyId, "", &P.m_nEnemyId, 1, 999, 1, kIdEnemyIdSpin).Named("敵条件 キャラID").EnableIf(when(&cEventPageEnable::enemyId)).Row();
  F.Check(kIdChain, "同タイミングの前（上）のページのイベント終了後に続けて実行", &P.m_bChainPrev).Span(5).EnableIf(notStart).Row();
  F.EndGroup();
}

void DLG_EVENT_SET::OnReady() {
  BuildPaletteMenu();
  m_PageList.Select(0, 1);
  m_ActList.Select(0, 1);
  UpdateAllExcept(m_PageList);
  UpdateEnable();
  RebuildPaletteMenu();
  RedrawLists();
}

void DLG_EVENT_SET::UpdateAllExcept(unsigned id) {
  // A command of the action list changed the edit record's actions: the page row takes them.
  if (id == kIdActList) m_PageList.CommitRow();
  DLG_CLASS::UpdateAllExcept(id);
}

void DLG_EVENT_SET::OnUpdateEnable() { DrawPreview(); }

// The cell the graphic edit holds at this moment, drawn whole, or nothing for 0.
void DLG_EVENT_SET::DrawPreview() {
  auto* picture = GetCtrl<CTRL_PICTURE_CLASS>(kIdPreview);
  if (picture == nullptr) return;
  const int graphic = Value(kIdGraphic);
  if (graphic == m_nPreviewGraphic) return;
  m_nPreviewGraphic = graphic;
  picture->m_Surface.Fill(0);
  cCellRect cell{};
  if (EventGraphicCell(graphic, cell)) picture->m_Surface.Blit(0, 0, cell.w, cell.h, g_aSheet[SHEET_EVENT], cell.x, cell.y);
  picture->Redraw();
}

bool DLG_EVENT_SET::OnOk() {
  m_PageList.CommitRow();
  if (m_bStartEvent) {
    m_Target = m_Event;
    kStartEventFile.save(kStartEventFile.path);
    return true;
  }
  // The undo step holds the stage as it stood before the event took the edits.
  PushUndo();
  m_Target = m_Event;
  return true;
}

void DLG_EVENT_SET::OnFormCommand(unsigned id, unsigned code) {
  switch (id) {
    case kIdActList:
      if (code == kNotifyDblClk) EditAction();
      return;
    case kIdActEdit: EditAction(); return;
    case kIdActInsert:
    case kIdActInsertKey:
    case kIdActInsertMenu: InsertAction(); return;
    case kIdActDelete:
      if (m_ActList.Delete(-1, 0)) m_PageList.CommitRow();
      return;
    case kIdPageInsert:
      m_PageList.Insert();
      UpdateAllExcept(m_PageList);
      return;
    case kIdPageDelete:
      m_PageList.Delete(-1, 0);
      UpdateAllExcept(m_PageList);
      return;
    case kIdGraphicList: ChooseGraphic(); return;
    case kIdRename: RenameCommonVar(); return;
    case IDM_ACTPLT_NEW: SaveToNewEntry(); return;
    case IDM_ACTPLT_SORT: SortPalette(); return;
    default: break;
  }
  if (const int entry = PalettePasteEntry(id); entry >= 0) PasteFromPalette(entry);
  if (const int entry = PaletteOverwriteEntry(id); entry >= 0) OverwriteEntry(entry);
}

void DLG_EVENT_SET::EditAction() {
  m_bNewAct = 0;
  const int row = m_ActList.GetSel();
  if (!m_ActList.IsReal(row)) return;
  if (RunEventActChooser(m_PageEdit.m_vecAct[row], false, m_bStartEvent, m_hWnd, ActListWidget()) != 1) return;
  m_ActList.Redraw();
  m_ActList.RedrawSel();
  m_PageList.CommitRow();
}

// The new action stands at the selection while the chooser runs; declined, it goes, and
// the list is as it was. Confirmed, the selection moves past it, where the next one goes.
void DLG_EVENT_SET::InsertAction() {
  m_bNewAct = 1;
  if (!m_ActList.Insert()) return;
  const int row = m_ActList.m_nCurSel;
  const int result = RunEventActChooser(m_PageEdit.m_vecAct[row], true, m_bStartEvent, m_hWnd, ActListWidget());
  m_bNewAct = 0;
  if (result != 1) {
    m_ActList.Delete(row, 1);
    m_ActList.SelectOnly(row, 0);
    m_ActList.Redraw();
    m_ActList.RedrawSel();
    return;
  }
  m_ActList.SelectOnly(row + 1, 0);
  m_ActList.Redraw();
  m_PageList.CommitRow();
}

void DLG_EVENT_SET::ChooseGraphic() {
  int graphic = Value(kIdGraphic);
  if (!::ChooseGraphic(kGraphicKindEvent, &graphic, m_hWnd.data())) return;
  if (auto* edit = GetCtrl<CTRL_EDITVAL_CLASS<int>>(kIdGraphic)) edit->SetValue(graphic, true);
}

void DLG_EVENT_SET::RenameCommonVar() {
  if (!::RenameCommonVar(*this, Value(kIdCommonVar))) return;
  BuildVarLabelsWithNone(m_vecVarLabels);
  if (auto* combo = GetCtrl<CTRL_COMBO_CLASS<int>>(kIdCommonVar)) combo->SetLabels(m_vecVarLabels);
}

// --- the action palette ---

void DLG_EVENT_SET::BuildPaletteMenu() {
  auto* view = GetCtrl<CTRL_LISTVIEW_CLASS>(kIdActList);
  if (view == nullptr || view->m_pMenu == nullptr) return;
  QMenu* menu = view->m_pMenu;
  menu->addSeparator();
  m_pPasteMenu = menu->addMenu(QStringLiteral("アクションパレットから貼り付け"));
  QMenu* save = menu->addMenu(QStringLiteral("アクションパレットへ保存"));
  save->addAction(QStringLiteral("新規保存"))->setData(IDM_ACTPLT_NEW);
  m_pOverwriteMenu = save->addMenu(QStringLiteral("上書き保存"));
  menu->addAction(QStringLiteral("アクションパレットの並べ替え"))->setData(IDM_ACTPLT_SORT);
  // What the menu holds before the palette is read into it.
  for (QMenu* sub : {m_pPasteMenu.data(), m_pOverwriteMenu.data()}) sub->addAction(QStringLiteral("（未登録）"));
}

void DLG_EVENT_SET::RebuildPaletteMenu() {
  if (m_pPasteMenu == nullptr) {
    MSP("err_Menu_Paste");
    return;
  }
  if (m_pOverwriteMenu == nullptr) {
    MSP("err_Menu_Save_2");
    return;
  }
  for (QMenu* sub : {m_pPasteMenu.data(), m_pOverwriteMenu.data()}) {
    sub->clear();
    const unsigned first = sub == m_pPasteMenu ? IDM_ACTPLT_PASTE : IDM_ACTPLT_OVERWRITE;
    for (int i = 0; i < g_vecEventActPlt.Count(); ++i) {
      QAction* row = sub->addAction(QString::fromStdString(Cp932ToUtf8Lossy(PaletteMenuRowText(i, g_vecEventActPlt[i]))));
      row->setData(first + static_cast<unsigned>(i));
    }
  }
}

void DLG_EVENT_SET::PasteFromPalette(int entry) {
  if (entry >= g_vecEventActPlt.Count()) return;
  const VECTOR_CLASS<cEventAct>& acts = g_vecEventActPlt[entry].m_vecAct;
  if (m_ActList.Paste(m_bStartEvent ? StartEventActs(acts) : acts)) m_PageList.CommitRow();
}

void DLG_EVENT_SET::SaveToNewEntry() {
  if (g_vecEventActPlt.Count() >= kActionPaletteMax) {
    char text[64];
    std::snprintf(text, sizeof text, "%d", kActionPaletteMax);
    ErrorBox(text + CP932_TEXT("個までしか保存できません！"));
    return;
  }
  VECTOR_CLASS<cEventAct> acts;
  if (!m_ActList.CopyTo(acts)) return;
  m_vecPaletteWork = g_vecEventActPlt;
  m_vecPaletteWork.emplace_back();
  m_vecPaletteWork.back().m_vecAct = acts;
  RunEventActPalette(m_vecPaletteWork, m_vecPaletteWork.Count() - 1, m_hWnd);
  RebuildPaletteMenu();
}

void DLG_EVENT_SET::OverwriteEntry(int entry) {
  if (entry >= g_vecEventActPlt.Count()) return;
  VECTOR_CLASS<cEventAct> acts;
  if (!m_ActList.CopyTo(acts)) return;
  const std::string text =
      CP932_TEXT("「") + g_vecEventActPlt[entry].m_strName + CP932_TEXT("」を上書きします。\nよろしいですか？\n");
  if (MesBox(m_hWnd.data(), text, CP932_TEXT("アクションパレットの上書き保存"), MB_YESNO) != IDYES) return;
  g_vecEventActPlt[entry].m_vecAct = acts;
  kEventActPltFile.save(kEventActPltFile.path);
}

void DLG_EVENT_SET::SortPalette() {
  m_vecPaletteWork = g_vecEventActPlt;
  RunEventActPalette(m_vecPaletteWork, 0, m_hWnd);
  RebuildPaletteMenu();
}

int RunEventSet(cEvent& event, eEventTarget kind, QWidget* parent) {
  DLG_EVENT_SET form(event, kind, parent);
  return form.DoModal(kDlgDisableOthers);
}
