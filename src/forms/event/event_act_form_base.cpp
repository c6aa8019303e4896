#include "forms/event/event_act_form_base.h"

#include <QComboBox>
#include <QLayout>

#include "database/numbered_rows.h"
#include "event/event_names.h"
#include "event/event_page_rules.h"
#include "forms/common_var_names.h"
#include "forms/database/symbol_reference.h"
#include "forms/graphic_chooser.h"
#include "platform/cp932.h"
#include "platform/diagnostics.h"
#include "project/project_globals.h"
#include "sound/sound_start.h"
#include "stage/stage_view_draw.h"

namespace {

constexpr int kEventGraphicKind = 3;  // the chooser's folded sheet of event graphics
constexpr int kFormSoundEntry = 4;    // the sound front's entry the forms play through

// The value of a reference combo's first row.
int FirstValueOf(eActList list) {
  switch (list) {
    case eActList::kPicture:
    case eActList::kSound:
    case eActList::kFriend:
    case eActList::kGroupPos:
    case eActList::kCommonVar: return 1;
    default: return 0;
  }
}

void BuildRows(eActList list, VECTOR_CLASS<std::string>& out) {
  switch (list) {
    case eActList::kPicture: BuildNumberedLabels(out, eNamedTable::Picture, 1); break;
    case eActList::kSound: BuildNumberedLabels(out, eNamedTable::Sound, 1); break;
    case eActList::kBgm: BuildNumberedLabels(out, eNamedTable::Bgm, 1, "なし"); break;
    case eActList::kLand: BuildNumberedLabels(out, eNamedTable::Land, 0); break;
    case eActList::kSkillList: BuildNumberedLabels(out, eNamedTable::SkillList, 0); break;
    case eActList::kFriend: BuildNumberedLabels(out, eNamedTable::Friend, 1); break;
    case eActList::kGroupPos: out = NumberedRows(g_Stage.m_vecGroupPos, 1, 3); break;
    case eActList::kCommonVar: BuildVarLabels(out); break;
    case eActList::kStatus:
      out.clear();
      for (int s = 0; s < kStatusInfoCount; ++s) out.push_back(StatusName(s));
      break;
    case eActList::kCount: break;
  }
}

bool IsSlotCtrl(eActCtrl type) {
  switch (type) {
    case eActCtrl::kEdit:
    case eActCtrl::kCheck:
    case eActCtrl::kEnum:
    case eActCtrl::kRef:
    case eActCtrl::kSkillList:
    case eActCtrl::kSkill: return true;
    default: return false;
  }
}

// The slot whose rule enables an entry: the text's helpers go with the text.
int RuleSlotOf(const cActCtrl& c) {
  switch (c.type) {
    case eActCtrl::kText:
    case eActCtrl::kSymbolHelp:
    case eActCtrl::kVarHelp: return kTextSlot;
    default: return c.slot;
  }
}

}  // namespace

void ResizeEventActSlots(cEventAct& act) {
  const cEventActInfo& info = EventActInfoOf(act.m_nKind);
  act.m_vecInt.resize(static_cast<std::size_t>(info.m_nIntCount), 0);
  act.m_vecStr.resize(static_cast<std::size_t>(info.m_nStrCount));
}

DLG_EACT_BASE::DLG_EACT_BASE(const cActKindForm& kindForm, const cEventAct& act, bool bStartEvent, QWidget* owner)
    : cRecordForm(owner, kindForm.title, act, owner, owner != nullptr), m_Kind(kindForm), m_bStartEvent(bStartEvent) {
  // The controls point into the slots: they must stand at their count before that.
  ResizeEventActSlots(m_Work);
  cFormTable& F = Table();
  for (const cActCtrl& c : kindForm.ctrls) Declare(F, c);
  F.OkCancel();
  for (const cActCtrl& c : kindForm.ctrls)
    if (c.type == eActCtrl::kSkillList) m_pSkill->FillLists(*this, m_Work.m_vecInt[c.slot]);
}

DLG_EACT_BASE::~DLG_EACT_BASE() = default;

void DLG_EACT_BASE::Declare(cFormTable& F, const cActCtrl& c) {
  const unsigned id = SlotId(c.slot);
  int* slot = IsSlotCtrl(c.type) ? &m_Work.m_vecInt[c.slot] : nullptr;
  const auto rows = [this](eActList list) -> VECTOR_CLASS<std::string>& {
    VECTOR_CLASS<std::string>& r = m_aRows[static_cast<std::size_t>(list)];
    if (r.empty()) BuildRows(list, r);
    return r;
  };
  switch (c.type) {
    case eActCtrl::kEdit: F.EditVal(id, c.label, slot, c.min, c.max, 1, SpinId(c.slot)); break;
    case eActCtrl::kCheck: F.Check(id, c.label, slot); break;
    case eActCtrl::kEnum: F.Combo(id, c.label, slot, c.labels); break;
    case eActCtrl::kRef: F.Combo(id, c.label, slot, &rows(c.list), nullptr, FirstValueOf(c.list)); break;
    case eActCtrl::kSkillList: {
      unsigned skillId = id + 1;
      for (const cActCtrl& s : m_Kind.ctrls)
        if (s.type == eActCtrl::kSkill) skillId = SlotId(s.slot);
      m_pSkill = std::make_unique<cSkillPair>(id, skillId, true);
      m_pSkill->DeclareList(F, c.label, slot);
      break;
    }
    case eActCtrl::kSkill: m_pSkill->DeclareSkill(F, c.label, slot); break;
    case eActCtrl::kText:
      F.EditStr(kText, c.label, &m_Work.m_vecStr[0],
                {.nLimit = c.min * c.max * 2, .nLineLen = c.max, .nMaxLines = c.min, .bWide = 1})
          .Lines(c.lines)
          .LabelAbove()
          .FixedPitch(c.max * 2);  // a line of the game's width is a line of the box
      break;
    case eActCtrl::kRename: F.Button(RenameId(c.slot), c.label).Named(c.name ? c.name : "変数名の入力"); return;
    case eActCtrl::kPlay: F.Button(kPlay, c.label).Named("BGMの再生"); return;
    case eActCtrl::kGraphic:
      F.Button(kGraphicList, c.label).Named("グラフィックの一覧");
      F.Picture(kGraphicPreview, "グラフィック", 32, 32);
      return;
    case eActCtrl::kSymbolHelp:
      F.Combo(kSymbolCombo, c.label, &m_nSymbol, &SymbolNumberLabels());
      F.Picture(kSymbolPreview, c.label, 16, 16);
      return;
    case eActCtrl::kVarHelp:
      F.Combo(kVarHelpCombo, c.label, &m_nHelpVar, &rows(eActList::kCommonVar), nullptr, 1);
      F.Button(kVarHelpRename, "_").Named("変数名の入力");
      return;
    case eActCtrl::kNote: F.Text(c.label, c.span); return;
    case eActCtrl::kRow: F.Row(); return;
    case eActCtrl::kGroup: F.Group(c.label); return;
    case eActCtrl::kEndGroup: F.EndGroup(); return;
    case eActCtrl::kColumn: F.Column(); return;
    case eActCtrl::kEndColumns: F.EndColumns(); return;
  }
  if (c.span != 1) F.Span(c.span);
  if (c.name != nullptr) F.Named(c.name);
}

std::vector<unsigned> DLG_EACT_BASE::IdsOf(const cActCtrl& c) const {
  if (IsSlotCtrl(c.type)) return {SlotId(c.slot)};
  switch (c.type) {
    case eActCtrl::kText: return {kText};
    case eActCtrl::kRename: return {RenameId(c.slot)};
    case eActCtrl::kPlay: return {kPlay};
    case eActCtrl::kGraphic: return {kGraphicList, kGraphicPreview};
    case eActCtrl::kSymbolHelp: return {kSymbolCombo, kSymbolPreview};
    case eActCtrl::kVarHelp: return {kVarHelpCombo, kVarHelpRename};
    default: return {};
  }
}

cActSlots DLG_EACT_BASE::ScreenSlots() {
  cActSlots I = m_Work.m_vecInt;
  for (const cActCtrl& c : m_Kind.ctrls)
    if (IsSlotCtrl(c.type)) I[c.slot] = Value(SlotId(c.slot));
  return I;
}

void DLG_EACT_BASE::OnReady() {
  // The window took its size before the combos had their rows; it takes it again, with
  // the combos as wide as their rows, so that no row is cut.
  if (!m_hWnd) return;
  for (QComboBox* combo : m_hWnd->findChildren<QComboBox*>()) {
    combo->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    combo->updateGeometry();
  }
  for (QLayout* layout : m_hWnd->findChildren<QLayout*>()) layout->invalidate();
  m_hWnd->adjustSize();
  if (auto* preview = GetDlgItem(kSymbolPreview) ? GetCtrl<CTRL_PICTURE_CLASS>(kSymbolPreview) : nullptr)
    DrawSymbolPreview(*preview, m_nSymbol);
}

// After every change, on what the screen shows: the kind's rule, the ranges that
// follow the status and the graphic's preview.
void DLG_EACT_BASE::OnUpdateEnable() {
  const cActSlots I = ScreenSlots();
  for (const cActCtrl& c : m_Kind.ctrls) {
    const bool on = m_Kind.applies == nullptr || m_Kind.applies(RuleSlotOf(c), I);
    for (unsigned id : IdsOf(c)) EnableCtrl(id, on);
    if (c.type == eActCtrl::kGraphic) ShowGraphic(I[c.slot]);
  }
  FollowStatus(I);
}

void DLG_EACT_BASE::FollowStatus(const cActSlots& I) {
  constexpr int kLeftSide = 0, kLeftStatus = 4;
  if (m_Kind.kind != EACT_STATUS) return;
  const int status = I[kLeftSide] == 0 && I[kLeftStatus] >= 0 && I[kLeftStatus] < kStatusInfoCount ? I[kLeftStatus] : -1;
  if (status == m_nRangeStatus) return;
  m_nRangeStatus = status;
  for (const cActCtrl& c : m_Kind.ctrls) {
    if ((c.flags & kActStatusRange) == 0) continue;
    auto* edit = GetCtrl<CTRL_EDITVAL_CLASS<int>>(SlotId(c.slot));
    if (edit == nullptr) continue;
    const int lo = status >= 0 ? g_aStatusInfo[status].min : c.min;
    const int hi = status >= 0 ? g_aStatusInfo[status].max : c.max;
    const int shown = edit->GetValue();
    edit->m_Rules.Setup(kValInt, lo, hi, 1);
    edit->SetValue(shown, true);
  }
}

void DLG_EACT_BASE::ShowGraphic(int graphic) {
  auto* preview = GetCtrl<CTRL_PICTURE_CLASS>(kGraphicPreview);
  if (preview == nullptr || graphic == m_nShownGraphic || preview->m_Surface.IsEmpty()) return;
  m_nShownGraphic = graphic;
  preview->m_Surface.Fill(0);
  cCellRect cell;
  if (EventGraphicCell(graphic, cell)) BlitSheetCell(preview->m_Surface, 0, 0, g_aSheet[SHEET_EVENT], cell.x, cell.y);
  preview->Redraw();
}

void DLG_EACT_BASE::OnFormCommand(unsigned id, unsigned code) {
  if (m_pSkill != nullptr) m_pSkill->OnCommand(*this, id, code);
  if (id == kSymbolCombo) {
    if (auto* preview = GetCtrl<CTRL_PICTURE_CLASS>(kSymbolPreview)) DrawSymbolPreview(*preview, Value(kSymbolCombo));
  } else if (id == kVarHelpRename) {
    if (RenameCommonVar(*this, Value(kVarHelpCombo))) RefreshVarNames();
  } else if (id >= kRenameBase && id < kRenameBase + 100) {
    if (RenameCommonVar(*this, Value(SlotId(static_cast<int>(id - kRenameBase))))) RefreshVarNames();
  } else if (id == kGraphicList) {
    for (const cActCtrl& c : m_Kind.ctrls) {
      if (c.type != eActCtrl::kGraphic) continue;
      int graphic = Value(SlotId(c.slot));
      if (ChooseGraphic(kEventGraphicKind, &graphic, m_hWnd.data()))
        if (auto* edit = GetCtrl<CTRL_EDITVAL_CLASS<int>>(SlotId(c.slot))) edit->SetValue(graphic, true);
    }
  }
  for (const cActCtrl& c : m_Kind.ctrls) {
    if (c.type == eActCtrl::kPlay && id == kPlay) PlayMusic(Value(SlotId(c.slot)));
    if ((c.flags & kActPlaysSound) != 0 && id == SlotId(c.slot) && code == kNotifySelChange && m_bReady)
      PlaySound(Value(id));
  }
}

void DLG_EACT_BASE::RefreshVarNames() {
  VECTOR_CLASS<std::string>& names = m_aRows[static_cast<std::size_t>(eActList::kCommonVar)];
  BuildVarLabels(names);
  for (const cActCtrl& c : m_Kind.ctrls) {
    unsigned id = 0;
    if (c.type == eActCtrl::kRef && c.list == eActList::kCommonVar) id = SlotId(c.slot);
    if (c.type == eActCtrl::kVarHelp) id = kVarHelpCombo;
    if (id == 0) continue;
    if (auto* combo = GetCtrl<CTRL_COMBO_CLASS<int>>(id)) combo->SetLabels(names);
  }
}

// A row without a file plays nothing and says nothing; one whose file will not play
// says so, and the form stays open.
void DLG_EACT_BASE::PlaySound(int row) {
  if (row <= 0 || row >= g_Database.m_vecSound.Count() || g_Database.m_vecSound[row].m_strPath.empty()) return;
  m_bPlayedSound = true;
  if (!g_Sound.PlayFile(nullptr, kFormSoundEntry, g_Database.m_vecSound[row].m_strPath, 0))
    ErrorBox(CP932_TEXT("読み込み失敗！"));
}

void DLG_EACT_BASE::PlayMusic(int row) {
  if (row <= 0 || row >= g_Database.m_vecBgm.Count() || g_Database.m_vecBgm[row].m_strPath.empty()) return;
  const cEdBgm& bgm = g_Database.m_vecBgm[row];
  m_bPlayedMusic = true;
  if (!g_Music.SetSlot(0, bgm.m_strPath, bgm.m_nVolume) || !g_Music.Play(0, 0, 0, 0, 1))
    ErrorBox(CP932_TEXT("読み込み失敗！"));
}

// What the form started playing ends with it, however it ends.
void DLG_EACT_BASE::OnDestroy() {
  if (m_bPlayedMusic) g_Music.Stop();
  if (m_bPlayedSound) g_Sound.StopEntry(0);
  m_bPlayedMusic = m_bPlayedSound = false;
}

// The start event runs before any stage; what the kind cannot do there is refused, and
// the form stays open for the author to change it.
bool DLG_EACT_BASE::OnOk() {
  if (!m_bStartEvent || m_Kind.startEventRefusal == nullptr) return true;
  const char* refusal = m_Kind.startEventRefusal(m_Work.m_vecInt);
  if (refusal == nullptr) return true;
  ErrorBox(Cp932FromLiteral(refusal));
  return false;
}

std::unique_ptr<DLG_EACT_BASE> MakeEventActForm(const cEventAct& act, bool bStartEvent, QWidget* owner) {
  const cActKindForm* kindForm = ActKindFormOf(act.m_nKind);
  if (kindForm == nullptr) return nullptr;
  return std::make_unique<DLG_EACT_BASE>(*kindForm, act, bStartEvent, owner);
}
