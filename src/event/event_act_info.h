#pragma once
// The kinds of event action: one table row per kind with the slot counts the game
// program expects, the labels of the values the slots hold, and the slots of a new
// action of each kind.

#include <array>
#include <string>

#include "kernel/vector_class.h"

enum : int { kEventActKinds = 27 };

enum eEventActKind : int {
  EACT_NONE = 0,
  EACT_MESSAGE = 1,
  EACT_PICTURE = 2,
  EACT_WAIT = 3,
  EACT_MAPCURSOR = 4,
  EACT_WARP = 5,
  EACT_ENEMYGROUP = 6,
  EACT_COPYENEMY = 7,
  EACT_PUTFRIEND = 8,
  EACT_STARTPOS = 9,
  EACT_EVENTVAR = 10,
  EACT_COMMONVAR = 11,
  EACT_MAPCHIP = 12,
  EACT_EVENTGRAPHIC = 13,
  EACT_SOUND = 14,
  EACT_BGM = 15,
  EACT_STATUS = 16,
  EACT_MONEY = 17,
  EACT_LEARNSKILL = 18,
  EACT_STOCK = 19,
  EACT_SHOPGOODS = 20,
  EACT_RANDOMSKILL = 21,
  EACT_FRIENDSHOP = 22,
  EACT_PARTY = 23,
  EACT_STAGECLEAR = 24,
  EACT_GAMEOVER = 25,
  EACT_RETREAT = 26,
};

struct cEventActInfo {
  const char* label;  // UTF-8; the button of the chooser and the head of a list row
  int m_nIntCount;
  int m_nStrCount;
  int m_bStartEventOk;  // the kind may stand in the start event
};

extern const std::array<cEventActInfo, kEventActKinds> EVENT_ACT_INFO;

// The row of `kind`; the empty row 0 for a kind the table does not have.
const cEventActInfo& EventActInfoOf(int kind);
// The label of `kind` as CP932; empty for a kind the table does not have.
const std::string& EventActLabelText(int kind);

// The integer slots a new action of `kind` starts with, at the table's count.
VECTOR_CLASS<int> EventActDefaultInts(int kind);

// A status that kind 16 reads and writes, with the range of its values.
struct cStatusInfo {
  const char* name;
  int min;
  int max;
  int reserved1;
  int reserved2;
};
inline constexpr cStatusInfo g_aStatusInfo[] = {{"HP", -999999, 999999, 0, 1}, {"SP", -999999, 999999, 0, 1}};
inline constexpr int kStatusInfoCount = 2;

// Values shared by several kinds.
inline constexpr const char* SCREENPOS[] = {"中心", "左", "右", "下", "左下", "右下", "上", "左上", "右上",
                                            "画面座標で指定", "ステージ座標で指定", ""};
inline constexpr const char* DISPLAYTIME[] = {"進行キーが押されるまで表示", "ステージ終了まで表示", "時間で指定", ""};
inline constexpr const char* ACTOPERATOR[] = {"＝", "＋", "－", "×", "÷", "÷ X の余り", "X ％", ""};
inline constexpr const char* VARCLASS[] = {"コモン変数", "イベント変数", ""};

// Values of single kinds.
inline constexpr const char* MSGWINWIDTH[] = {"テキストに合わせる", "固定　※縦は4行", ""};
inline constexpr const char* MSGPICPOS[] = {"メッセージの上",   "メッセージの左上", "メッセージの右上",
                                            "メッセージの下",   "メッセージの左下", "メッセージの右下",
                                            "メッセージの左",   "メッセージの右",   "画面座標で指定", ""};
inline constexpr const char* CURSORTARGET[] = {"このイベント", "リーダー", "位置グループで指定", "ステージ座標で指定", ""};
inline constexpr const char* WARPTARGET[] = {"イベント発生条件の対象", "リーダー", ""};
inline constexpr const char* GROUPSWITCH[] = {"OFF", "ON", ""};
inline constexpr const char* CHIPAREA[] = {"マップ全範囲内",   "このイベントの位置", "このイベントの上", "このイベントの下",
                                           "このイベントの左", "このイベントの右",   "位置グループ内",   ""};
inline constexpr const char* CHIPWHICH[] = {"全て", "一部", ""};
inline constexpr const char* BGMSCENE[] = {"タイトル", "ワールドマップ", "ステージ", "戦闘", "オプション", ""};
inline constexpr const char* STATUSLEFT[] = {"ステータス", "変数", ""};
inline constexpr const char* STATUSRIGHT[] = {"定数", "乱数", "ステータス", "変数", ""};
inline constexpr const char* STATUSCHARA[] = {"キャラ", ""};
inline constexpr const char* RANDOMSKILLMODE[] = {"ストックを獲得", "在庫を増加", ""};
