#pragma once
// The form of each kind of event action as data: one table per kind that names, in
// the order they stand on the form, each slot's control with its label and its range,
// enumeration or reference list; the places between them; and the few buttons and
// helpers a kind has of its own. A kind's defaults are those of EventActDefaultInts,
// its enumerations those of event_act_info.h. Beside the table stands the kind's rule
// of which slots apply while other slots hold what they hold.

#include <cstdint>
#include <span>

#include "kernel/vector_class.h"

// What an entry of a kind's table puts on the form.
enum class eActCtrl : std::uint8_t {
  kEdit,        // number edit of I[slot], min to max, with a spin
  kCheck,       // flag I[slot]
  kEnum,        // combo of I[slot] over a label table that ends with ""
  kRef,         // combo of I[slot] over the rows of a reference list
  kSkillList,   // the list of a skill pair: I[slot] chooses the skill list
  kSkill,       // the skill of the pair: I[slot], the skill of the chosen list
  kText,        // the text S[0]
  kRename,      // "_": renames the common variable that I[slot] shows
  kPlay,        // plays the music of the BGM row I[slot]
  kGraphic,     // "一覧" and a preview of the event graphic of I[slot]
  kSymbolHelp,  // the symbol numbers with a preview; only looked up, never stored
  kVarHelp,     // the common variables with "_"; only looked up, never stored
  kNote,        // a fixed text
  kRow,
  kGroup,
  kEndGroup,
  kColumn,
  kEndColumns,
};

// The reference lists of the combos, each with the row its values start at.
enum class eActList : std::uint8_t {
  kPicture,    // pictures from 1
  kSound,      // sounds from 1
  kBgm,        // "なし", then the BGM records from 1
  kLand,       // terrain from 0
  kSkillList,  // skill lists from 0
  kFriend,     // allied characters from 1
  kGroupPos,   // the stage's position groups from 1
  kCommonVar,  // common variables from 1
  kStatus,     // the statuses of the status action
  kCount
};

// Entry flags.
enum : unsigned {
  kActPlaysSound = 1,   // a choice in the combo plays the sound of that row
  kActStatusRange = 2,  // the edit's range is that of the status on the left side
};

struct cActCtrl {
  eActCtrl type = eActCtrl::kRow;
  int slot = 0;
  const char* label = "";  // beside the control, or a check's or button's own text
  int min = 0, max = 0;
  const char* const* labels = nullptr;
  eActList list = eActList::kPicture;
  int span = 1;
  int lines = 1;
  unsigned flags = 0;
  const char* name = nullptr;  // what a screen reader says of a control without a label

  constexpr cActCtrl Span(int cells) const { return With(&cActCtrl::span, cells); }
  constexpr cActCtrl Lines(int n) const { return With(&cActCtrl::lines, n); }
  constexpr cActCtrl Flags(unsigned f) const { return With(&cActCtrl::flags, f); }
  constexpr cActCtrl As(const char* n) const { return With(&cActCtrl::name, n); }

 private:
  template <class T>
  constexpr cActCtrl With(T cActCtrl::*field, T value) const {
    cActCtrl c = *this;
    c.*field = value;
    return c;
  }
};

constexpr cActCtrl Edit(int slot, const char* label, int min, int max) {
  return {eActCtrl::kEdit, slot, label, min, max};
}
constexpr cActCtrl Check(int slot, const char* text) { return {eActCtrl::kCheck, slot, text}; }
constexpr cActCtrl Enum(int slot, const char* label, const char* const* labels) {
  return {eActCtrl::kEnum, slot, label, 0, 0, labels};
}
constexpr cActCtrl Ref(int slot, const char* label, eActList list) {
  return {eActCtrl::kRef, slot, label, 0, 0, nullptr, list};
}
constexpr cActCtrl SkillListOf(int slot, const char* label) { return {eActCtrl::kSkillList, slot, label}; }
constexpr cActCtrl SkillOf(int slot, const char* label) { return {eActCtrl::kSkill, slot, label}; }
// S[0] in a box of `lines` lines of `chars` characters.
constexpr cActCtrl TextSlot(const char* label, int lines, int chars) { return {eActCtrl::kText, 0, label, lines, chars}; }
constexpr cActCtrl Rename(int slot) { return {eActCtrl::kRename, slot, "_"}; }
constexpr cActCtrl PlayBgm(int slot) { return {eActCtrl::kPlay, slot, "再生"}; }
constexpr cActCtrl GraphicOf(int slot) { return {eActCtrl::kGraphic, slot, "一覧"}; }
constexpr cActCtrl SymbolHelp() { return {eActCtrl::kSymbolHelp, 0, "参照：#P"}; }
constexpr cActCtrl VarHelp() { return {eActCtrl::kVarHelp, 0, "参照：#C"}; }
constexpr cActCtrl Note(const char* text, int span = 1) { return cActCtrl{eActCtrl::kNote, 0, text}.Span(span); }
constexpr cActCtrl NewRow() { return {eActCtrl::kRow}; }
constexpr cActCtrl Group(const char* title) { return {eActCtrl::kGroup, 0, title}; }
constexpr cActCtrl EndGroup() { return {eActCtrl::kEndGroup}; }
constexpr cActCtrl Column() { return {eActCtrl::kColumn}; }
constexpr cActCtrl EndColumns() { return {eActCtrl::kEndColumns}; }

// The slot number that the rules give the text S[0] and the helpers that go with it.
constexpr int kTextSlot = 100;

using cActSlots = VECTOR_CLASS<std::int32_t>;

// Whether the control of slot `slot` applies while the slots hold `I` (at the kind's
// count); null for a kind whose slots always apply.
using ActSlotRule = bool (*)(int slot, const cActSlots& I);
// The message that refuses OK in the start event, or null to accept.
using ActRefusal = const char* (*)(const cActSlots& I);

struct cActKindForm {
  int kind;
  const char* name;   // the form's name in the catalog of forms
  const char* title;
  std::span<const cActCtrl> ctrls;
  ActSlotRule applies = nullptr;
  ActRefusal startEventRefusal = nullptr;
};

// The form of `kind`; null for a kind without one.
const cActKindForm* ActKindFormOf(int kind);

// The tables of the kinds, by subject.
std::span<const cActKindForm> ShowActForms();   // message, picture, graphic, sound, music
std::span<const cActKindForm> MapActForms();    // wait, cursor, warp, enemies, allies, chips
std::span<const cActKindForm> ValueActForms();  // variables, status, money
std::span<const cActKindForm> PartyActForms();  // skills, shops, party
