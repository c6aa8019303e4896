#include "editor/form_catalog.h"

#include <string>

#include "editor/dlg_battle_mode.h"
#include "editor/dlg_endcond.h"
#include "editor/dlg_enemy.h"
#include "editor/dlg_enemy_set.h"
#include "editor/dlg_grouppos.h"
#include "editor/dlg_grouppos_set.h"
#include "editor/dlg_moveai.h"
#include "editor/dlg_moveai_template.h"
#include "editor/dlg_stage.h"
#include "editor/dlg_testplay.h"
#include "editor/dlg_worldevent.h"
#include "editor/dlg_worldevent_set.h"
#include "editor/dlg_worldmap_set.h"
#include "forms/database/db_compati_page.h"
#include "forms/database/db_help_page.h"
#include "forms/database/battle_ai_forms.h"
#include "forms/database/learn_skill_form.h"
#include "forms/database/sense_form.h"
#include "forms/database/slot_forms.h"
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
cOrgSlotList g_OrgSlot;
cInfl g_Infl;
cEdHelpText g_HelpText;
VECTOR_CLASS<std::int32_t> g_vecSense{3, 0, 7};
cLearnSkill g_LearnSkill;
cBattleAI g_BattleAI;
cBattleAICond g_BattleAICond;

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
      {"DLG_ORGSLOT", [] { return std::make_unique<DLG_ORGSLOT>(g_OrgSlot, 0); }, [] { return SavedBytes(g_OrgSlot); }},
      {"DLG_INFL", [] { return std::make_unique<DLG_INFL>(g_Infl); }, [] { return SavedBytes(g_Infl); }},
      {"DLG_TEXT", [] { return std::make_unique<DLG_TEXT>(g_HelpText); }, [] { return SavedBytes(g_HelpText); }},
      {"DLG_SENSE", [] { return std::make_unique<DLG_SENSE>(g_vecSense, 0); }, SenseBytes},
      {"DLG_ENEMY", [] { return std::make_unique<DLG_ENEMY>(nullptr, nullptr, nullptr); }, [] { return SavedBytes(g_Stage); }},
      {"DLG_ENEMY_SET", [] { return std::make_unique<DLG_ENEMY_SET>(CatalogEnemy(), nullptr); },
       [] { return SavedBytes(CatalogEnemy()); }},
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
  };
  return catalog;
}
