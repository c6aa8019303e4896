#pragma once
// What the values of a page mean on screen: the labels of its enumerations, which of
// its fields are in force together, and where an event's graphic lies on the sheet.

#include "event/event.h"

// m_nTiming, in stored order; the bracket is the timing's place in the turn.
inline constexpr const char* EVENTTIMING[] = {
    "味方のターン開始後(B-1)",           "味方のターン終了前(C-1)",
    "味方の行動終了後(D-1)",             "味方の特殊コマンド使用後(E-1)",
    "敵のターン開始後(B-1)",             "敵のターン終了前(C-1)",
    "敵の行動終了後(D-1)",               "味方または敵のターン開始後(B-2)",
    "味方または敵のターン終了前(C-2)",   "味方または敵の行動終了後(D-2)",
    "戦闘開始前(F-1)",                   "戦闘終了後(G-1)",
    "戦闘で味方が勝利した後(G-4)",       "戦闘で味方が敗北した後(G-4)",
    "戦闘でリーダーが敗北した後(G-3)",   "所持者の行動終了後(D-3)",
    "所持者の特殊コマンド使用後(E-2)",   "所持者の戦闘開始前(F-2)",
    "所持者の戦闘終了後(G-2)",           "所持者の戦闘で味方が勝利した後(G-5)",
    "所持者の戦闘で味方が敗北した後(G-5)", "ステージ開始前(A)",
    "ステージクリア前(H)",               ""};
enum : int { TIMING_FRIEND_COMMAND = 3, TIMING_HOLDER_COMMAND = 16 };  // the timings with a command name

// m_nEventVarCmp, m_nCommonVarCmp
inline constexpr const char* EVENTCMP[] = {"である", "でない", "以上", "以下", "より上", "より下",
                                           "の倍数である", "の倍数でない", ""};
inline constexpr const char* EVENTTARGETRANGE[] = {"条件なし", "マップ全範囲内", "このイベントの位置", "位置グループ内", ""};
inline constexpr const char* EVENTTARGETCHARA[] = {"キャラ", "味方", "敵", "行動中のキャラ", "リーダー", "所持者", ""};
inline constexpr const char* EVENTTARGETEXIST[] = {"いるなら", "いないなら", ""};

// The controls of the page form that are in force for the page's values. A disabled
// field keeps its stored value.
struct cEventPageEnable {
  bool turnA;        // both edits of condition A, "＋" and "の倍数"
  bool turnB;        // both edits of condition B and "～"
  bool eventVar;     // value and comparison of the event variable
  bool commonVar;    // value and comparison of the common variable
  bool command;      // the special command name
  bool targetChara;  // character and presence
  bool posGroup;
  bool friendCond;
  bool enemyGroupCheck;
  bool enemyGroup;
  bool enemyIdCheck;
  bool enemyId;
};

cEventPageEnable EventPageEnable(const cEventPage& page);

// The 32 by 32 source cell of graphic `graphic` in the event sheet: cells run down a
// column of 32, and the next column lies 64 pixels to the right. False for 0, which
// is never drawn, and for numbers that lie outside the sheet's 512 cells.
struct cCellRect {
  int x, y, w, h;
};
bool EventGraphicCell(int graphic, cCellRect& cell);

// The graphic the map shows for an event: that of its first page; 0 without pages.
int EventMapGraphic(const cEvent& event);
