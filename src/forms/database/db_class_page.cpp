#include "forms/database/db_class_page.h"

#include "database/class_rows.h"
#include "forms/database/sense_form.h"
#include "forms/database/slot_forms.h"
#include "forms/database/value_list.h"
#include "forms/graphic_chooser.h"
#include "platform/cp932.h"
#include "project/project_globals.h"
#include "project/sheet_tint.h"
#include "project/system_labels.h"

namespace {

constexpr int kPreviewSide = 48;

template <class T>
cListInit<T> SubListInit(VECTOR_CLASS<T>* rows, int firstRow, std::function<std::string(int, T&)> text) {
  cListInit<T> init;
  init.bMulti = 1;
  init.pWork = rows;
  init.nFirstRow = firstRow;
  init.bBlankRow = 1;
  init.pfnRowText = [text](std::string& out, int e, const T& r) { out = text(e, const_cast<T&>(r)); };
  return init;
}

}  // namespace

DLG_DBCLASS::DLG_DBCLASS() : cTablePage(g_vecClass, "クラス", {1, 1, 999}) {
  cClass& E = m_Edit;
  cFormTable& F = Table();
  F.Column();
  MainList(kList, "クラス", [](const cClass& c) { return c.m_strName; }, 20);

  F.Column();
  F.EditStr(kName, "クラス名", &E.m_strName, WideLine(12)).Span(2).Row();
  F.Group("グラフィック");
  F.EditVal(kGraphic, "グラフィック", &E.m_nGraphic, 1, 159, 1, kGraphicSpin);
  F.Button(kGraphicList, "一覧").Row();
  F.Picture(kPreview, "グラフィック", kPreviewSide, kPreviewSide).Row();
  F.EditVal<std::int16_t>(kHue, "色相", &E.m_sHue, -359, 359, 1, kHueSpin);
  F.Text("☆0が原色").Row();
  F.EditVal<std::int16_t>(kSat, "彩度", &E.m_sSaturation, -255, 255, 1, kSatSpin).Row();
  F.EditVal<std::int16_t>(kVal, "明度", &E.m_sValue, -255, 255, 1, kValSpin).Row();
  F.EditVal(kScale, "拡大率(%)", &E.m_nScale, 1, 900, 1, kScaleSpin).Row();
  F.EndGroup();
  F.EditVal(kMove, "移動力", &E.m_nMove, 0, 8, 1, kMoveSpin);
  F.Check(kFly, "飛行", &E.m_bFly).Row();
  F.EditVal(kExRate, "EX修正(%)", &E.m_nExRate, 0, 999, 1, kExRateSpin).Row();
  F.EditVal(kLevelMax, "限界レベル", &E.m_nLevelMax, 1, 99, 1, kLevelMaxSpin).Row();

  F.Column();
  F.Group("ステータス");
  F.Skip().Text("初期値").Text("最終値").Row();
  for (int s = 0; s < cClass::kStatusCount; ++s) {
    F.EditVal(kInit + s, kSystemStatusLabels[s], &E.m_anInit[s], 0, 999999);
    F.EditVal(kFinal + s, "", &E.m_anFinal[s], 0, 999999).Row();
  }
  F.Text("※最終値が「0」なら、\n初期値と同じ（成長しない）。\nさらにランダム能力値成長の\n対象外となる", 3).Row();
  F.EndGroup();
  F.Group("通常攻撃");
  m_Attack.DeclareList(F, "通常攻撃", &E.m_nAtkList).DisableBy(kNoAttack).Row();
  m_Attack.DeclareSkill(F, "", &E.m_nAtkSkill).Span(2).DisableBy(kNoAttack).Row();
  F.Check(kNoAttack, "通常攻撃なし\n（オート戦闘のみ有効）", &E.m_bNoAttack).Span(2).Row();
  F.EndGroup();

  F.Column();
  F.List(kSense, "センス（スキルの覚えやすさ）", m_Sense,
         SubListInit<VECTOR_CLASS<std::int32_t>>(&E.m_vecvecSense, 0,
                                                 [](int list, VECTOR_CLASS<std::int32_t>& v) { return SenseRowText(list, v); }),
         kListNoEdit, 5)
      .LabelAbove()
      .Row();
  F.Button(kSenseEdit, "編集").Row();
  F.List(kResist, "属性耐性(%)", m_Resist,
         ValueListInit(&E.m_vecElemResist, 1, false, [](int elem, int v) { return ElemValueRowText(elem, v); }),
         kListNoEdit, 5)
      .LabelAbove()
      .Row();
  F.Button(kResistEdit, "編集").Row();
  F.List(kOrgSlot, "スロット", m_OrgSlot,
         SubListInit<cOrgSlotList>(&E.m_vecOrgSlot, 0, [](int list, cOrgSlotList& s) { return OrgSlotRowText(list, s); }),
         kListNoEdit, 5)
      .LabelAbove()
      .Row();
  F.Button(kOrgSlotEdit, "編集").Row();
  F.Text("※スキルグループの設定で\n「スロット数とカテゴリーの制限有り」に\nしないと反映されない").Row();
  F.EndColumns();

  m_Attack.FillLists(*this, E.m_nAtkList);
}

void DLG_DBCLASS::OnReady() {
  cTablePage::OnReady();
  UpdatePreview();
}

void DLG_DBCLASS::OnSetActive() {
  cTablePage::OnSetActive();
  UpdatePreview();
}

void DLG_DBCLASS::OnStale() { m_Attack.FillLists(*this, m_Edit.m_nAtkList); }

void DLG_DBCLASS::UpdatePreview() {
  auto* picture = GetCtrl<CTRL_PICTURE_CLASS>(kPreview);
  if (picture == nullptr) return;
  const std::array<int, 4> key{Value(kGraphic), Value(kHue), Value(kSat), Value(kVal)};
  if (key == m_aPreviewKey) return;
  m_aPreviewKey = key;
  TintCharacter(key[0], key[1], key[2], key[3]);
  picture->m_Surface.Fill(0);
  picture->m_Surface.Blit(0, 0, kPreviewSide, kPreviewSide, g_aSheet[kCharaTintSheet], 0, 0);
  picture->Redraw();
}

void DLG_DBCLASS::SubListChanged(cListCtrlBase& list) {
  list.Redraw();
  m_List.CommitRow();
}

void DLG_DBCLASS::EditSense() {
  const int list = m_Sense.GetSel();
  if (!m_Sense.IsReal(list)) return;
  if (EditRecord<DLG_SENSE>(m_Edit.m_vecvecSense[list], list, m_hWnd.data()) == 1) SubListChanged(m_Sense);
}

void DLG_DBCLASS::EditOrgSlot() {
  const int list = m_OrgSlot.GetSel();
  if (!m_OrgSlot.IsReal(list)) return;
  if (EditRecord<DLG_ORGSLOT>(m_Edit.m_vecOrgSlot[list], list, m_hWnd.data()) == 1) SubListChanged(m_OrgSlot);
}

void DLG_DBCLASS::OnFormCommand(unsigned id, unsigned code) {
  const bool open = id == kSenseEdit || id == kResistEdit || id == kOrgSlotEdit || code == kNotifyDblClk;
  switch (open ? id : 0) {
    case kSense:
    case kSenseEdit: EditSense(); break;
    case kResist:
    case kResistEdit:
      if (EditListValue(*this, m_Resist, 0, 999, "属性耐性")) SubListChanged(m_Resist);
      break;
    case kOrgSlot:
    case kOrgSlotEdit: EditOrgSlot(); break;
    default: break;
  }
  switch (id) {
    case kGraphicList: {
      int graphic = Value(kGraphic);
      if (ChooseGraphic(0, &graphic, m_hWnd.data()))
        if (auto* edit = GetCtrl<CTRL_EDITVAL_CLASS<int>>(kGraphic)) edit->SetValue(graphic, true);
      break;
    }
    default: break;
  }
  m_Attack.OnCommand(*this, id, code);
  cTablePage::OnFormCommand(id, code);
}

void DLG_DBCLASS::UpdateAllExcept(unsigned id) {
  // Another row: its list's skills first, so that the skill box finds its value.
  m_Attack.FillSkills(*this, m_Edit.m_nAtkList);
  cTablePage::UpdateAllExcept(id);
}

// Runs after every command, once the screen shows what the command made of the row.
void DLG_DBCLASS::OnUpdateEnable() { UpdatePreview(); }
