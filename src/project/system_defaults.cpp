// The settings of a new project: the rule values, and the words of the game as its
// tables of terms, menus and status values.

#include <algorithm>
#include <vector>

#include "platform/cp932.h"
#include "project/system.h"
#include "project/system_defaults.h"

namespace {

// Enabled commands with the given names.
VECTOR_CLASS<cCmd> MenuRows(const std::vector<std::string>& names) {
  VECTOR_CLASS<cCmd> rows(names.size());
  for (std::size_t i = 0; i < rows.size(); ++i) rows[i].m_strName = names[i];
  return rows;
}

}  // namespace

const std::vector<std::string>& DefaultSystemTerms() {
  static const std::vector<std::string> kTerms = {
      CP932_TEXT("威力"),
      CP932_TEXT("命中率"),
      CP932_TEXT("必殺率"),
      CP932_TEXT("ダメージ"),
      CP932_TEXT("行動回数"),
      CP932_TEXT("ストック"),
      CP932_TEXT("リザーブ"),
      CP932_TEXT("セーブデータ"),
      CP932_TEXT("Ｃキー：リスト切替"),
      CP932_TEXT("Ｖキー：メインスキルへ"),
      CP932_TEXT("Ｖキー：リザーブスキルへ"),
      CP932_TEXT("ＡＳキー：キャラ切替"),
      CP932_TEXT("Ｆキー：位置交換"),
      CP932_TEXT("コ"),  // the unit of a stock
      CP932_TEXT("完全に復元させないと忘れられません！"),
      CP932_TEXT("このスキルは忘れられません！"),
      CP932_TEXT("ストックが一杯です！"),
      CP932_TEXT("セーブする"),
      CP932_TEXT("やっぱりやめる"),
      CP932_TEXT("終了する"),
      CP932_TEXT("やっぱりやめる"),
      CP932_TEXT("コ持っています"),
      CP932_TEXT("いくつ？"),
      CP932_TEXT("在庫"),
      CP932_TEXT("ランダム"),
      CP932_TEXT("同キャラ対戦はできません！"),
      CP932_TEXT("勝目！"),
      CP932_TEXT("の勝利！"),
      CP932_TEXT("Ｖキー：戦闘終了"),
      CP932_TEXT("ステージに挑む"),
      CP932_TEXT("やっぱりやめる"),
      CP932_TEXT("リーダーがいません！"),
      CP932_TEXT("ターン目"),
      CP932_TEXT("■勝利条件"),
      CP932_TEXT("■敗北条件"),
      CP932_TEXT("■その他"),
      CP932_TEXT("Ｚキー：ターゲットや目的地を表示"),
      CP932_TEXT("開始する"),
      CP932_TEXT("やっぱりやめる"),
      CP932_TEXT("引き返す"),
      CP932_TEXT("やっぱりやめる"),
      CP932_TEXT("終了する"),
      CP932_TEXT("やっぱりやめる"),
      CP932_TEXT("リトライする"),
      CP932_TEXT("やっぱりやめる"),
      CP932_TEXT("クリアする"),
      CP932_TEXT("やっぱりやめる"),
      CP932_TEXT("何ターン目にする？"),
      CP932_TEXT("終了する"),
      CP932_TEXT("やっぱりやめる"),
      CP932_TEXT("移動コスト"),
      CP932_TEXT("移動不可"),
      CP932_TEXT("を倒した！"),
      CP932_TEXT("は死んでしまった……"),
      CP932_TEXT("新しいスキルを覚えた！"),
  };
  return kTerms;
}

std::span<const cDefaultMenu> DefaultSystemMenus() {
  using S = cSystem;
  static const std::vector<cDefaultMenu> kMenus = {
      {&S::m_vecTitleMenu, {CP932_TEXT("初めから"), CP932_TEXT("続きから"), CP932_TEXT("オプション"), CP932_TEXT("ゲーム終了")}},
      {&S::m_vecOptionMenu, {CP932_TEXT("BGM"), CP932_TEXT("SE"), CP932_TEXT("戻る")}},
      {&S::m_vecPartyMenu,
       {CP932_TEXT("ステータス"), CP932_TEXT("ストック"), CP932_TEXT("ショップ"), CP932_TEXT("リーダー"),
        CP932_TEXT("スカウト"), CP932_TEXT("復活"), CP932_TEXT("放出"), CP932_TEXT("セーブ"), CP932_TEXT("移動"),
        CP932_TEXT("トレーニング"), CP932_TEXT("コンフィグ"), CP932_TEXT("ヘルプ"), CP932_TEXT("ゲーム終了")}},
      {&S::m_vecScoutMenu, {CP932_TEXT("スキル"), CP932_TEXT("雇う"), CP932_TEXT("戻る")}},
      {&S::m_vecReviveMenu, {CP932_TEXT("スキル"), CP932_TEXT("復活させる"), CP932_TEXT("戻る")}},
      {&S::m_vecReleaseMenu, {CP932_TEXT("放出する"), CP932_TEXT("戻る")}},
      {&S::m_vecConfigMenu,
       {CP932_TEXT("難易度"), CP932_TEXT("ウィンドウの色"), CP932_TEXT("ウィンドウの明るさ"),
        CP932_TEXT("ウィンドウの透過"), CP932_TEXT("戻る")}},
      {&S::m_vecShopMenu, {CP932_TEXT("買う"), CP932_TEXT("売る"), CP932_TEXT("出る")}},
      {&S::m_vecTrainingMenu,
       {CP932_TEXT("戦闘開始"), CP932_TEXT("エントリー１"), CP932_TEXT("エントリー２"), CP932_TEXT("地形"),
        CP932_TEXT("必要勝利数"), CP932_TEXT("トレーニング終了")}},
      {&S::m_vecTrainSideMenu, {CP932_TEXT("味方"), CP932_TEXT("敵"), CP932_TEXT("スキル"), CP932_TEXT("戻る")}},
      {&S::m_vecTrainEntryMenu, {CP932_TEXT("エントリー"), CP932_TEXT("スキル"), CP932_TEXT("戻る")}},
      {&S::m_vecPrepareMenu,
       {CP932_TEXT("配置"), CP932_TEXT("位置変更"), CP932_TEXT("取り消し"), CP932_TEXT("マップ"), CP932_TEXT("ルール"),
        CP932_TEXT("攻略開始"), CP932_TEXT("引き返す")}},
      {&S::m_vecActionMenu,
       {CP932_TEXT("特殊"), CP932_TEXT("戦闘"), CP932_TEXT("待機"), CP932_TEXT("装備"), CP932_TEXT("スキル"),
        CP932_TEXT("ストック")}},
      {&S::m_vecStageMenu, {CP932_TEXT("サーチ"), CP932_TEXT("ルール"), CP932_TEXT("ストック"), CP932_TEXT("ターン終了")}},
      {&S::m_vecTestMenu,
       {CP932_TEXT("このステージをリトライ"), CP932_TEXT("このステージをクリア"), CP932_TEXT("ターンスキップ"),
        CP932_TEXT("コモン変数の確認"), CP932_TEXT("ゲーム終了")}},
      {&S::m_vecBattleMenu, {CP932_TEXT("攻撃"), CP932_TEXT("スキル"), CP932_TEXT("クイック"), CP932_TEXT("ストック")}},
  };
  return kMenus;
}

VECTOR_CLASS<cParamInfo> DefaultSystemParams() {
  static const std::vector<std::pair<std::string, int>> kParams = {
      {CP932_TEXT("HP"), 999},   {CP932_TEXT("SP"), 999},   {CP932_TEXT("攻撃"), 999}, {CP932_TEXT("守備"), 999},
      {CP932_TEXT("魔力"), 999}, {CP932_TEXT("抵抗"), 999}, {CP932_TEXT("技能"), 999}, {CP932_TEXT("反応"), 999},
      {CP932_TEXT("敏捷"), 999}, {CP932_TEXT("LV"), 99},    {CP932_TEXT("EX"), 99},    {CP932_TEXT("移動力"), 8},
  };
  VECTOR_CLASS<cParamInfo> params(kParams.size());
  for (std::size_t i = 0; i < params.size(); ++i) {
    params[i].m_strName = kParams[i].first;
    params[i].m_nMax = kParams[i].second;
    params[i].DeriveDigits();
  }
  return params;
}

void cSystem::SetDefault() {
  Reset();
  m_bGrowCapped = 1;
  m_bSenseCapped = 1;
  m_bScout = 1;

  std::fill(std::begin(m_anEnemyRate), std::end(m_anEnemyRate), 100);

  m_nBattleTime = 27;
  m_anInitAction[kSideAttacker] = 600;
  m_anInitAction[kSideDefender] = 500;
  for (int side = 0; side < 2; ++side) {
    m_anSpeedRate[side] = 100;
    m_anBaseActions[side] = 1;
    m_anSpeedGap[side] = 10;
    m_anMaxActions[side] = 99;
  }
  m_bWaitAttacker = 1;
  m_nSpeedBase = 10;
  m_bShowOrder = 1;

  m_dHitSkill = 4.0;
  m_dCritSkill = 2.0;
  m_dDamageAttack = 1.0;
  m_dDamageDefense = 1.0;
  m_nDamageRateMin = 90;
  m_nDamageRateMax = 110;
  m_nHealRate = 50;
  m_bMissKeepsCost = 1;
  m_bGuardNoEvade = 1;
  m_bEnemyUpPercent = 1;
  std::fill(std::begin(m_anEnemyUp), std::end(m_anEnemyUp), 10);

  m_vecSoundFile.resize(kSystemSoundCount);
  m_vecBgm.assign(kSystemBgmCount, 0);
  m_vecBgmLoop.assign(kSystemBgmCount, 1);
  m_bPredict = 1;
  m_vecPredict.assign(kSystemPredictCount, 0);
  for (const std::string& term : DefaultSystemTerms()) m_vecTerm.emplace_back(term);
  m_vecParam = DefaultSystemParams();
  m_bGameModeImage = 1;
  for (const cDefaultMenu& menu : DefaultSystemMenus()) this->*menu.menu = MenuRows(menu.names);

  m_nPartyBack = 1;
  m_vecIni = DefaultIniRows();

  // The database lists may not be constructed yet. The two references into them
  // already hold what clamping against empty lists would give.
  ClampDerived();
}
