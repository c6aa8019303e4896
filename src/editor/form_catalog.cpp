#include "editor/form_catalog.h"

#include <string>

#include "editor/dlg_battle_mode.h"
#include "editor/dlg_endcond.h"
#include "editor/dlg_enemy.h"
#include "editor/dlg_enemy_set.h"
#include "editor/dlg_event.h"
#include "editor/dlg_grouppos.h"
#include "editor/dlg_grouppos_set.h"
#include "editor/dlg_moveai.h"
#include "editor/dlg_moveai_template.h"
#include "editor/dlg_stage.h"
#include "editor/dlg_testplay.h"
#include "forms/database/db_anim_pages.h"
#include "forms/database/categ_form.h"
#include "editor/dlg_worldevent.h"
#include "editor/dlg_worldevent_set.h"
#include "editor/dlg_worldmap_set.h"
#include "forms/database/db_compati_page.h"
#include "forms/database/db_help_page.h"
#include "forms/database/battle_ai_forms.h"
#include "forms/database/learn_skill_form.h"
#include "forms/database/sense_form.h"
#include "forms/event/event_act_form_base.h"
#include "forms/database/slot_forms.h"
#include "forms/event/dlg_event_set.h"
#include "forms/event/dlg_eventact.h"
#include "forms/event/dlg_eventactplt.h"
#include "forms/database/db_system_pages.h"
#include "forms/graphic_chooser.h"
#include "forms/input_forms.h"
#include "kernel/serial_file.h"
#include "platform/cp932.h"
#include "project/project_globals.h"

namespace {

std::vector<unsigned char> SavedBytes(cSerial& record) {
  SerialFilePtr file = OpenSerialWriteBuffer();
  record.Save(file.get());
  return file->Bytes();
}

// The fields the input forms and the chooser write into stand for a caller's.
int g_nAskedValue = 7;
std::string g_strAskedText = "abc";

std::vector<unsigned char> AskedBytes() {
  std::vector<unsigned char> bytes(g_strAskedText.begin(), g_strAskedText.end());
  for (int shift = 0; shift < 32; shift += 8) bytes.push_back(static_cast<unsigned char>(g_nAskedValue >> shift));
  return bytes;
}

// The records the sub-forms of the database pages edit stand for a page's row.
cSlot g_Slot;
cCateg g_Categ;
cOrgSlotList g_OrgSlot;
cInfl g_Infl;
cEdHelpText g_HelpText;
VECTOR_CLASS<std::int32_t> g_vecSense{3, 0, 7};
cLearnSkill g_LearnSkill;
cBattleAI g_BattleAI;
cBattleAICond g_BattleAICond;
cElem g_Elem;
cCharaAnim g_CharaFrame;
cEffectAnim g_EffectFrame;

std::vector<unsigned char> SenseBytes() {
  std::vector<unsigned char> bytes;
  for (std::int32_t v : g_vecSense) bytes.push_back(static_cast<unsigned char>(v));
  return bytes;
}
// Records of the stage forms that stand for the entry, line or group of a caller: an
// enemy with two move rules, one of them under a condition, and a group with marks.
cPutEnemy& CatalogEnemy() {
  static cPutEnemy entry = [] {
    cPutEnemy e;
    e.m_vecMoveAI.emplace_back();
    e.m_vecMoveAI.back().m_nGoal = 7;
    e.m_vecMoveAI.back().m_nAction = 1;
    e.m_vecMoveAI.emplace_back();
    e.m_vecMoveAI.back().m_nGoal = 10;
    e.m_vecMoveAI.back().m_bStatusCond = 1;
    return e;
  }();
  return entry;
}
cGroupPos& CatalogGroup() {
  static cGroupPos group = [] {
    cGroupPos g;
    g.m_vecPos = {{1, 1}, {2, 1}, {3, 2}};
    return g;
  }();
  return group;
}
cMoveAI g_CatalogRule;
cEndCond g_CatalogLine;
VECTOR_CLASS<cMoveAITemplate> g_vecCatalogTemplates(1);
// A world event with a stage page and a road page.
cWorldEvent& CatalogWorldEvent() {
  static cWorldEvent event = [] {
    cWorldEvent e;
    e.m_vecPage[0].m_nStageNo = 3;
    e.m_vecPage.emplace_back();
    e.m_vecPage.back().m_nType = WORLDEVENT_ROAD;
    return e;
  }();
  return event;
}

// One action of each kind with a form, as a new one stands: the forms of the actions.
std::vector<cFormCatalogEntry> WithEventActForms(std::vector<cFormCatalogEntry> all) {
  static std::vector<cEventAct> acts(kEventActKinds);
  for (int kind = 0; kind < kEventActKinds; ++kind) {
    const cActKindForm* kindForm = ActKindFormOf(kind);
    if (kindForm == nullptr) continue;
    cEventAct& act = acts[static_cast<std::size_t>(kind)];
    act.m_nKind = kind;
    SetEventActDefaults(act);
    all.push_back({kindForm->name, [&act] { return std::unique_ptr<DLG_CLASS>(MakeEventActForm(act, false, nullptr)); },
                   [&act] { return SavedBytes(act); }});
  }
  return all;
}

// An event of two pages whose first page runs several actions, a new action under the
// chooser, and a palette of two entries, for the event forms.
cEvent& CatalogEvent() {
  static cEvent event = [] {
    cEvent e;
    e.m_strName = CP932_TEXT("宝箱");
    cEventPage& page = e.m_vecPage[0];
    page.m_nGraphic = 3;
    page.m_bTurnCondA = 1;
    page.m_nTurnAStep = 2;
    for (int kind : {EACT_MESSAGE, EACT_WAIT, EACT_COMMONVAR, EACT_MONEY, EACT_STAGECLEAR}) {
      cEventAct act;
      act.m_nKind = kind;
      SetEventActDefaults(act);
      page.m_vecAct.push_back(act);
    }
    page.m_vecAct[0].m_vecStr[0] = CP932_TEXT("宝箱を開けた！");
    e.m_vecPage.emplace_back();
    return e;
  }();
  return event;
}
cEventAct g_CatalogAct;
VECTOR_CLASS<cEventActPlt>& CatalogActPalette() {
  static VECTOR_CLASS<cEventActPlt> palette = [] {
    VECTOR_CLASS<cEventActPlt> p(2);
    p[0].m_strName = CP932_TEXT("会話");
    p[0].m_vecAct = CatalogEvent().m_vecPage[0].m_vecAct;
    p[1].m_strName = CP932_TEXT("待つ");
    return p;
  }();
  return palette;
}
template <class T>
std::vector<unsigned char> VectorBytes(VECTOR_CLASS<T>& rows) {
  std::vector<unsigned char> bytes;
  for (T& row : rows) {
    const std::vector<unsigned char> one = SavedBytes(row);
    bytes.insert(bytes.end(), one.begin(), one.end());
  }
  return bytes;
}

template <class Form, class... Args>
std::function<std::unique_ptr<DLG_CLASS>()> Make(Args... args) {
  return [=] { return std::unique_ptr<DLG_CLASS>(new Form(args...)); };
}

}  // namespace

const std::vector<cFormCatalogEntry>& FormCatalog() {
  static const std::vector<cFormCatalogEntry> catalog = {
      {"DLG_TESTPLAY", Make<DLG_TESTPLAY>(nullptr), [] { return SavedBytes(g_TestPlay); }},
      {"DLG_BATTLEMODE", Make<DLG_BATTLEMODE>(), [] { return SavedBytes(g_System); }},
      {"DLG_INPUT",
       [] {
         return std::make_unique<DLG_INPUT>(nullptr, &g_nAskedValue, 0, 999, CP932_TEXT("データ数"), nullptr, false);
       },
       AskedBytes},
      {"DLG_INPUT_STR",
       [] {
         return std::make_unique<DLG_INPUT_STR>(nullptr, &g_strAskedText, 12, true, CP932_TEXT("変数名の入力"), nullptr,
                                                false);
       },
       AskedBytes},
      {"DLG_SELECTGRAPHIC", [] { return std::make_unique<DLG_SELECTGRAPHIC>(2, &g_nAskedValue, nullptr); }, AskedBytes},
      {"DLG_SLOT", [] { return std::make_unique<DLG_SLOT>(g_Slot, 0); }, [] { return SavedBytes(g_Slot); }},
      {"DLG_CATEG", [] { return std::make_unique<DLG_CATEG>(g_Categ); }, [] { return SavedBytes(g_Categ); }},
      {"DLG_ORGSLOT", [] { return std::make_unique<DLG_ORGSLOT>(g_OrgSlot, 0); }, [] { return SavedBytes(g_OrgSlot); }},
      {"DLG_INFL", [] { return std::make_unique<DLG_INFL>(g_Infl); }, [] { return SavedBytes(g_Infl); }},
      {"DLG_TEXT", [] { return std::make_unique<DLG_TEXT>(g_HelpText); }, [] { return SavedBytes(g_HelpText); }},
      {"DLG_SENSE", [] { return std::make_unique<DLG_SENSE>(g_vecSense, 0); }, SenseBytes},
      {"DLG_ENEMY", [] { return std::make_unique<DLG_ENEMY>(nullptr, nullptr, nullptr); }, [] { return SavedBytes(g_Stage); }},
      {"DLG_ENEMY_SET", [] { return std::make_unique<DLG_ENEMY_SET>(CatalogEnemy(), nullptr); },
       [] { return SavedBytes(CatalogEnemy()); }},
      {"DLG_EVENT", [] { return std::make_unique<DLG_EVENT>(nullptr, nullptr, nullptr); },
       [] { return VectorBytes(g_vecEventPlt); }},
      {"DLG_EVENT_SET", [] { return std::make_unique<DLG_EVENT_SET>(CatalogEvent(), eEventTarget::kStage, nullptr); },
       [] { return SavedBytes(CatalogEvent()); }},
      {"DLG_EVENTACT", [] { return std::make_unique<DLG_EVENTACT>(g_CatalogAct, true, false, nullptr, nullptr); },
       [] { return SavedBytes(g_CatalogAct); }},
      {"DLG_EVENTACTPLT", [] { return std::make_unique<DLG_EVENTACTPLT>(CatalogActPalette(), 0, nullptr); },
       [] { return VectorBytes(CatalogActPalette()); }},
      {"DLG_MOVEAI", [] { return std::make_unique<DLG_MOVEAI>(g_CatalogRule, nullptr); },
       [] { return SavedBytes(g_CatalogRule); }},
      {"DLG_MOVEAITEMPLATE",
       [] { return std::make_unique<DLG_MOVEAITEMPLATE>(g_vecCatalogTemplates, true, nullptr); },
       [] { return SavedBytes(g_vecCatalogTemplates[0]); }},
      {"DLG_GROUPPOS", [] { return std::make_unique<DLG_GROUPPOS>(nullptr, nullptr); }, [] { return SavedBytes(g_Stage); }},
      {"DLG_GROUPPOS_SET", [] { return std::make_unique<DLG_GROUPPOS_SET>(CatalogGroup(), nullptr, QPoint(-1000, -1000)); },
       [] { return SavedBytes(CatalogGroup()); }},
      {"DLG_STAGE", [] { return std::make_unique<DLG_STAGE>(g_Stage, nullptr); }, [] { return SavedBytes(g_Stage); }},
      {"DLG_ENDCOND", [] { return std::make_unique<DLG_ENDCOND>(g_CatalogLine, nullptr); },
       [] { return SavedBytes(g_CatalogLine); }},
      {"DLG_LEARNSKILL", [] { return std::make_unique<DLG_LEARNSKILL>(g_LearnSkill); },
       [] { return SavedBytes(g_LearnSkill); }},
      {"DLG_BATTLEAI", [] { return std::make_unique<DLG_BATTLEAI>(g_BattleAI); }, [] { return SavedBytes(g_BattleAI); }},
      {"DLG_WORLDEVENT", [] { return std::make_unique<DLG_WORLDEVENT>(nullptr, nullptr); },
       [] { return SavedBytes(g_WorldMap); }},
      {"DLG_WORLDEVENT_SET", [] { return std::make_unique<DLG_WORLDEVENT_SET>(CatalogWorldEvent(), nullptr); },
       [] { return SavedBytes(CatalogWorldEvent()); }},
      {"DLG_WORLDMAP_SET", [] { return std::make_unique<DLG_WORLDMAP_SET>(g_WorldMap, nullptr); },
       [] { return SavedBytes(g_WorldMap); }},
      {"DLG_BATTLEAI_COND", [] { return std::make_unique<DLG_BATTLEAI_COND>(g_BattleAICond); },
       [] { return SavedBytes(g_BattleAICond); }},
      {"DLG_ELEM", [] { return std::make_unique<DLG_ELEM>(g_Elem); }, [] { return SavedBytes(g_Elem); }},
      {"DLG_DB_CHARAANIM_ANIM", [] { return std::make_unique<DLG_DB_CHARAANIM_ANIM>(g_CharaFrame, 1); },
       [] { return SavedBytes(g_CharaFrame); }},
      {"DLG_DB_EFFECTANIM_ANIM", [] { return std::make_unique<DLG_DB_EFFECTANIM_ANIM>(g_EffectFrame, 1); },
       [] { return SavedBytes(g_EffectFrame); }},
  };
  static const std::vector<cFormCatalogEntry> withActions = WithEventActForms(catalog);
  return withActions;
}
