#include "event/event_summary.h"

#include <climits>
#include <vector>

#include "database/label_table.h"
#include "event/event_names.h"
#include "event/format_number.h"
#include "platform/cp932.h"

namespace {

enum eArg : unsigned char {
  kEnd,
  kInt,       // I[slot] in decimal
  kText,      // S[slot] as it stands
  kSigned,    // I[slot] with its sign, "+0" for 0
  kLabel,     // label of I[slot] in `labels`
  kName,      // name of row I[slot] of `table`
  kSkill,     // skill I[1] of list I[0]
  kVarNo,     // I[slot] in three zero-padded digits
  kStatus,    // status name of I[slot]
  kLandOrAll  // "全て" while I[1] is 0, else the terrain name of I[slot]
};

struct cArg {
  eArg type = kEnd;
  int slot = 0;
  const char* const* labels = nullptr;
  eNamedTable table = eNamedTable::Picture;
};

constexpr cArg Int(int s) { return {kInt, s}; }
constexpr cArg Signed(int s) { return {kSigned, s}; }
constexpr cArg Label(const char* const* labels, int s) { return {kLabel, s, labels}; }
constexpr cArg Name(eNamedTable table, int s) { return {kName, s, nullptr, table}; }
constexpr cArg Var(int s) { return Name(eNamedTable::CommonVar, s); }
constexpr cArg kSkillArg{kSkill, 0};

// A condition on one slot; a piece with no condition always applies.
constexpr int kNone = -1;
struct cCond {
  int slot = kNone;
  bool equal = true;
  int value = 0;
};
constexpr cCond Is(int s, int v) { return {s, true, v}; }
constexpr cCond Set(int s) { return {s, false, 0}; }

// One part of a summary: appended, in table order, when its conditions hold.
struct cPiece {
  int kind;
  cCond when[2];
  const char* format;  // UTF-8; each %s or %d takes the next argument
  cArg args[5];
};

// Kinds 0, 9, 24, 25 and 26 have no pieces: their rows are the label alone.
constexpr cPiece kPieces[] = {
    {1, {Set(15)}, " : メッセージの消去", {}},
    {1, {Is(15, 0)}, " : %s", {{kText, 0}}},
    {2, {Set(3)}, " : ピクチャーの消去", {}},
    {2, {Is(3, 0)}, " : %s", {Name(eNamedTable::Picture, 0)}},
    {3, {}, " : %d", {Int(0)}},
    {4, {}, " : %s", {Label(CURSORTARGET, 0)}},
    {5, {}, " : (%d,%d)", {Int(1), Int(2)}},
    {6, {Is(1, 1)}, " : グループ %d を ON", {Int(0)}},
    {6, {{1, false, 1}}, " : グループ %d を OFF", {Int(0)}},
    {7, {}, " : グループ %d", {Int(0)}},
    {8, {}, " : %s", {Name(eNamedTable::Friend, 0)}},
    {8, {Is(2, 0)}, " (%d,%d)", {Int(3), Int(4)}},
    {10, {}, " : イベント変数 %s %d", {Label(ACTOPERATOR, 0), Int(1)}},
    {11, {}, " : コモン変数「%s」%s %d", {Var(0), Label(ACTOPERATOR, 1), Int(2)}},
    {12, {}, " : %s の %s を %s に変更", {Label(CHIPAREA, 0), {kLandOrAll, 2}, Name(eNamedTable::Land, 3)}},
    {13, {}, " : %d 番に変更", {Int(0)}},
    {14, {}, " : %s", {Name(eNamedTable::Sound, 0)}},
    {15, {}, " : %s のBGMを %s に変更", {Label(BGMSCENE, 0), Name(eNamedTable::Bgm, 1)}},
    {16, {}, "：", {}},
    {16, {Is(0, 0), Is(3, 0)}, " %s の %s を", {Label(STATUSCHARA, 3), {kStatus, 4}}},
    {16, {Is(0, 1), Is(1, 0)}, " 「%s %s」を", {{kVarNo, 2}, Var(2)}},
    {16, {Is(0, 1), Is(1, 1)}, " イベント変数 を", {}},
    {16, {}, " %s", {Label(ACTOPERATOR, 5)}},
    {16, {Is(6, 0)}, " %d", {Int(7)}},
    {16, {Is(6, 1)}, " %d～%d", {Int(8), Int(9)}},
    {16, {Is(6, 2), Is(12, 0)}, " %s の %s", {Label(STATUSCHARA, 12), {kStatus, 13}}},
    {16, {Is(6, 3), Is(10, 0)}, " 「%s %s」", {{kVarNo, 11}, Var(11)}},
    {16, {Is(6, 3), Is(10, 1)}, " イベント変数", {}},
    {16, {Set(14)}, "％", {}},
    {17, {}, " : %s", {Signed(0)}},
    {18, {}, " : %s", {kSkillArg}},
    {19, {}, " : %s %s", {kSkillArg, Signed(2)}},
    {20, {}, " : %s", {kSkillArg}},
    {20, {Is(2, 0)}, " %s", {Signed(3)}},
    {21, {}, " : %s ランク %d～%d の %s 回数%d",
     {Name(eNamedTable::SkillList, 0), Int(1), Int(2), Label(RANDOMSKILLMODE, 3), Int(4)}},
    {22, {}, " : %s %s", {Name(eNamedTable::Friend, 0), Signed(1)}},
    {23, {}, " : %s %s", {Name(eNamedTable::Friend, 0), Signed(1)}},
};
constexpr std::size_t kPieceCount = sizeof kPieces / sizeof kPieces[0];

// Slots beyond the vector read as 0 and empty, so that a row never ends the run.
int IntSlot(const cEventAct& act, int slot) {
  return slot < act.m_vecInt.Count() ? act.m_vecInt[static_cast<std::size_t>(slot)] : 0;
}

bool Holds(const cEventAct& act, const cCond& cond) {
  if (cond.slot == kNone) return true;
  return (IntSlot(act, cond.slot) == cond.value) == cond.equal;
}

std::string ArgText(const cEventAct& act, const cArg& arg) {
  const int v = IntSlot(act, arg.slot);
  switch (arg.type) {
    case kInt: return std::to_string(v);
    case kText: return arg.slot < act.m_vecStr.Count() ? act.m_vecStr[static_cast<std::size_t>(arg.slot)] : "";
    case kSigned: return FormatNumber(v, 0, 0, 1);
    case kLabel: return LabelText(arg.labels, v);
    case kName: return RowName(arg.table, v);
    case kSkill: return SkillName(IntSlot(act, 0), IntSlot(act, 1));
    case kVarNo: return FormatNumber(v, 3, 1, 0);
    case kStatus: return StatusName(v);
    case kLandOrAll: return IntSlot(act, 1) == 0 ? CP932_TEXT("全て") : RowName(eNamedTable::Land, v);
    case kEnd: break;
  }
  return {};
}

// The formats in CP932, converted once. "%" is never the second byte of a double-byte
// character, so the conversions can be found in the converted text.
const std::string& FormatOf(std::size_t piece) {
  static const std::vector<std::string> formats = [] {
    std::vector<std::string> all;
    for (const cPiece& p : kPieces) all.push_back(Cp932FromLiteral(p.format));
    return all;
  }();
  return formats[piece];
}

void AppendPiece(std::string& out, const cEventAct& act, std::size_t piece) {
  const std::string& format = FormatOf(piece);
  const cArg* arg = kPieces[piece].args;
  for (std::size_t i = 0; i < format.size(); ++i) {
    if (format[i] == '%' && i + 1 < format.size() && arg->type != kEnd) {
      out += ArgText(act, *arg++);
      ++i;
    } else {
      out += format[i];
    }
  }
}

}  // namespace

void EventActRowText(std::string& out, int /*row*/, const cEventAct& act) {
  if (act.m_nKind < 0 || act.m_nKind >= kEventActKinds) return;
  out += EventActLabelText(act.m_nKind);
  for (std::size_t i = 0; i < kPieceCount; ++i) {
    const cPiece& piece = kPieces[i];
    if (piece.kind == act.m_nKind && Holds(act, piece.when[0]) && Holds(act, piece.when[1])) AppendPiece(out, act, i);
  }
}

void EventPageRowText(std::string& out, int /*row*/, const cEventPage& page) {
  out += CP932_TEXT("ｱｸｼｮﾝ×");
  out += std::to_string(page.m_vecAct.size());
}
