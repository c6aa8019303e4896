// The forms of the actions that compute: event and common variables, a status, money.

#include "event/event_act_info.h"
#include "forms/event/event_act_layout.h"

namespace {

// What the text variables hold after these actions.
constexpr const char* kChangeVars = "「BEFORE」＝操作前の値\n「AFTER」＝操作後の値\n「CHANGE」＝変化量";
constexpr int kValueMax = 999999;

constexpr cActCtrl kEventVar[] = {
    Enum(0, "イベント変数", ACTOPERATOR), Edit(1, "", -kValueMax, kValueMax).As("値"), NewRow(),
    Note(kChangeVars, 3),
};

constexpr cActCtrl kCommonVar[] = {
    Ref(0, "コモン変数", eActList::kCommonVar).Span(2), Rename(0), NewRow(),
    Enum(1, "", ACTOPERATOR).As("演算"), Edit(2, "", -kValueMax, kValueMax).As("値"), NewRow(),
    Note(kChangeVars, 4),
};

constexpr cActCtrl kStatus[] = {
    Group("左辺"),
    Enum(0, "", STATUSLEFT).As("左辺"), NewRow(),
    Enum(3, "", STATUSCHARA).As("左辺のキャラ"), Ref(4, "の", eActList::kStatus).As("左辺のステータス"), NewRow(),
    Enum(1, "", VARCLASS).As("左辺の変数"), Ref(2, "", eActList::kCommonVar).As("左辺のコモン変数").Span(2),
    Rename(2).As("左辺のコモン変数の名前"),
    EndGroup(), NewRow(),
    Enum(5, "演算", ACTOPERATOR), NewRow(),
    Group("右辺"),
    Enum(6, "", STATUSRIGHT).As("右辺"), NewRow(),
    Edit(7, "定数", -kValueMax, kValueMax).Flags(kActStatusRange), NewRow(),
    Edit(8, "乱数", -kValueMax, kValueMax).Flags(kActStatusRange),
    Edit(9, "～", -kValueMax, kValueMax).Flags(kActStatusRange), NewRow(),
    Enum(12, "", STATUSCHARA).As("右辺のキャラ"), Ref(13, "の", eActList::kStatus).As("右辺のステータス"), NewRow(),
    Enum(10, "", VARCLASS).As("右辺の変数"), Ref(11, "", eActList::kCommonVar).As("右辺のコモン変数").Span(2),
    Rename(11).As("右辺のコモン変数の名前"),
    EndGroup(), NewRow(),
    Check(14, "％で指定"), NewRow(),
    Note("※HPの最小値は1（このアクションでは死なない）\n"
         "※「キャラ」はイベント発生条件の「対象」になる。\n"
         "※初期イベントの場合、キャラのステータスとイベント変数は利用不可",
         4), NewRow(),
    Note(kChangeVars, 4),
};

// Each side shows the parts of what it reads: a character's status or a variable; a
// constant, a random range, a status or a variable.
bool StatusApplies(int s, const cActSlots& I) {
  switch (s) {
    case 1: return I[0] == 1;
    case 2: return I[0] == 1 && I[1] == 0;
    case 3:
    case 4: return I[0] == 0;
    case 7: return I[6] == 0;
    case 8:
    case 9: return I[6] == 1;
    case 10: return I[6] == 3;
    case 11: return I[6] == 3 && I[10] == 0;
    case 12:
    case 13: return I[6] == 2;
    default: return true;
  }
}

// The start event runs before any stage: there is neither a character that the event
// is about nor an event to hold a variable.
const char* StatusStartEventRefusal(const cActSlots& I) {
  constexpr const char* kNoStatus = "初期イベントではキャラのステータスは利用できません！";
  constexpr const char* kNoEventVar = "初期イベントではイベント変数は利用できません！";
  if (I[0] == 0 && I[3] == 0) return kNoStatus;
  if (I[6] == 2 && I[12] == 0) return kNoStatus;
  if (I[0] == 1 && I[1] == 1) return kNoEventVar;
  if (I[6] == 3 && I[10] == 1) return kNoEventVar;
  return nullptr;
}

constexpr cActCtrl kMoney[] = {
    Edit(0, "増減値", -kValueMax, kValueMax), NewRow(),
    Note(kChangeVars, 2),
};

constexpr cActKindForm kForms[] = {
    {EACT_EVENTVAR, "DLG_EACT_CREASEEVENTVAL", "イベント変数の操作", kEventVar},
    {EACT_COMMONVAR, "DLG_EACT_CREASEGVAL", "コモン変数の操作", kCommonVar},
    {EACT_STATUS, "DLG_EACT_STATUS", "ステータスの操作", kStatus, &StatusApplies, &StatusStartEventRefusal},
    {EACT_MONEY, "DLG_EACT_CREASESALT", "所持金の操作", kMoney},
};

}  // namespace

std::span<const cActKindForm> ValueActForms() { return kForms; }
