// Events of the template: the helpers that build them, the start event, the event and
// action palettes, and the names of the common variables.

#include "art/art_layout.h"
#include "data/template_parts.h"
#include "project/project_globals.h"

namespace TemplateData {

cEventAct Action(int kind, std::initializer_list<std::pair<int, int>> slots, const std::string& text) {
  cEventAct act;
  act.m_nKind = kind;
  SetEventActDefaults(act);
  for (const auto& [slot, value] : slots) act.m_vecInt[static_cast<std::size_t>(slot)] = value;
  if (!act.m_vecStr.empty()) act.m_vecStr[0] = text;
  return act;
}

cEventAct Message(std::initializer_list<const char*> lines) {
  std::string text;
  for (const char* line : lines) {
    if (!text.empty()) text += "\r\n";
    text += Text(line);
  }
  return Action(EACT_MESSAGE, {}, text);
}

cEventPage Page(int graphic, Trigger trigger, std::initializer_list<cEventAct> actions) {
  cEventPage page;
  page.m_nGraphic = graphic;
  page.m_nTiming = trigger.timing;
  page.m_nTargetRange = trigger.range;
  page.m_nTargetChara = trigger.chara;
  page.m_nPosGroup = trigger.posGroup;
  page.m_vecAct.assign(actions.begin(), actions.end());
  return page;
}

cEvent Event(const char* name, int x, int y, std::initializer_list<cEventPage> pages) {
  cEvent event;
  event.m_strName = Text(name);
  event.m_nX = x;
  event.m_nY = y;
  event.m_vecPage.assign(pages.begin(), pages.end());
  return event;
}

namespace {

namespace Art = TemplateArt;

const Trigger kAllyStepsOn{kAfterAllyAction, kOnThisEvent, kAlly};

void FillStartEvent() {
  cEventPage page;
  for (int ally = kAllen; ally <= kRow; ++ally) page.m_vecAct.push_back(Action(EACT_PARTY, {{0, ally}, {1, 1}}));
  page.m_vecAct.push_back(Action(EACT_MONEY, {{0, 500}}));
  page.m_vecAct.push_back(Action(EACT_STOCK, {{0, 0}, {1, kSkHerb}, {2, 5}}));
  for (SkillRow goods : {kSkCopperSword, kSkIronLance, kSkShortBow, kSkOakStaff, kSkLeatherArmour, kSkIronShield, kSkHerb}) {
    page.m_vecAct.push_back(Action(EACT_SHOPGOODS, {{0, 0}, {1, goods}, {2, 1}}));
  }
  g_StartEvent.Clear();
  g_StartEvent.m_strName = Text("ゲーム開始");
  g_StartEvent.m_vecPage.assign(1, page);
}

void FillEventPalette() {
  cEventPage door = Page(Art::kEventDoor, kAllyStepsOn,
                         {Action(EACT_MAPCHIP, {{0, 1}, {3, Art::kStoneFloor}}), Action(EACT_EVENTGRAPHIC, {{0, 0}}),
                          Action(EACT_SOUND, {{0, kSeDecide}})});
  cEventPage reinforcement = Page(0, {kEnemyTurnStart},
                                  {Message({"敵の援軍が現れた！"}), Action(EACT_ENEMYGROUP, {{0, 1}, {1, 1}})});
  reinforcement.m_bTurnCondA = 1;
  reinforcement.m_nTurnABase = 3;
  g_vecEventPlt = {
      cEvent(),
      Event("看板", 0, 0, {Page(Art::kSignpost, kAllyStepsOn, {Message({"ここに案内を書きます。"})})}),
      Event("村人", 0, 0, {Page(Art::kVillager, kAllyStepsOn, {Message({"村人「こんにちは、旅の方。」"})})}),
      Event("扉", 0, 0, {door}),
      Event("制圧地点", 0, 0,
            {Page(Art::kFlag, {kAfterAllyAction, kInGroup, kAlly, 1},
                  {Message({"目的の場所を制圧した！"}), Action(EACT_STAGECLEAR)})}),
      Event("開始メッセージ", 0, 0, {Page(0, {kBeforeStage}, {Message({"敵を全て倒せ！"})})}),
      Event("増援", 0, 0, {reinforcement}),
  };
  g_vecEventPlt[0].m_strName = Text("デフォルト");
}

void FillActionPalette() {
  struct Entry {
    const char* name;
    const char* desc;
    std::initializer_list<cEventAct> actions;
  };
  const Entry entries[] = {
      {"会話", "メッセージを1つ表示する", {Message({"「……」"})}},
      {"アイテム入手", "薬草を1つ手に入れる",
       {Action(EACT_SOUND, {{0, kSeHeal}}), Action(EACT_STOCK, {{0, 0}, {1, kSkHerb}, {2, 1}}),
        Message({"薬草を手に入れた！"})}},
      {"増援", "敵グループ1を出現させる", {Message({"敵の援軍が現れた！"}), Action(EACT_ENEMYGROUP, {{0, 1}, {1, 1}})}},
      {"ステージクリア", "勝利を告げてステージを終える", {Message({"勝利！"}), Action(EACT_STAGECLEAR)}},
      {"戦闘BGM", "ステージのBGMを戦闘曲にする", {Action(EACT_BGM, {{0, 2}, {1, kBgmBattle}})}},
  };
  g_vecEventActPlt.clear();
  for (const Entry& entry : entries) {
    cEventActPlt& row = g_vecEventActPlt.emplace_back();
    row.m_strName = Text(entry.name);
    row.m_strDesc = Text(entry.desc);
    row.m_vecAct.assign(entry.actions.begin(), entry.actions.end());
  }
}

void FillCommonVarNames() {
  g_vecGValInfo.assign(kCommonVarRows, cGValInfo());
  const std::pair<CommonVar, const char*> names[] = {{kVarMoney, "所持金"},
                                                     {kVarDifficulty, "難易度"},
                                                     {kVarScoutPower, "スカウト力"},
                                                     {kVarRound, "周回数"},
                                                     {kVarRoute, "ルート"}};
  for (const auto& [var, name] : names) g_vecGValInfo[var].m_strName = Text(name);
}

}  // namespace

void FillStoredEvents() {
  FillStartEvent();
  FillEventPalette();
  FillActionPalette();
  FillCommonVarNames();
}

}  // namespace TemplateData
