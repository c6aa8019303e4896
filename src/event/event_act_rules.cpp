// Migrations and clamps of event actions.

#include <algorithm>

#include "database/table_rows.h"
#include "event/event_act.h"

namespace {

using Slots = VECTOR_CLASS<std::int32_t>;

void Grow(Slots& slots, int count) {
  if (slots.Count() < count) slots.resize(static_cast<std::size_t>(count), 0);
}

// Later slots move up one. The vector grows by the slot rather than dropping its last
// one: the normalisation after the migrations cuts it to the kind's count, so a short
// or renumbered old action keeps every value it stored.
void InsertAt(Slots& slots, int index, int value) {
  Grow(slots, index);
  slots.insert(slots.begin() + index, value);
}

void SetAt(Slots& slots, int index, int value) {
  Grow(slots, index + 1);
  slots[static_cast<std::size_t>(index)] = value;
}

// A kind the table does not know stays unknown, and a huge one does not overflow.
void Renumber(int& kind) {
  if (kind < kEventActKinds) ++kind;
}

// Both ends, the lower first. An empty range (nothing beyond a reserved row, or no
// map yet) gives 0: "none" for a reference, the first cell for a coordinate.
int ClampSlot(int value, int lo, int hi) {
  if (lo > hi) return 0;
  return std::clamp(value, lo, hi);
}

struct cSlotClamp {
  int kind;
  int slot;
  int lo;
  int (*rows)();  // the upper end is rows() - 1
};

constexpr cSlotClamp kSlotClamps[] = {
    {EACT_PICTURE, 0, 0, &PictureRows},
    {EACT_MAPCURSOR, 1, 1, &GroupPosRows},
    {EACT_MAPCURSOR, 2, 0, &StageWidth},
    {EACT_MAPCURSOR, 3, 0, &StageHeight},
    {EACT_WARP, 1, 0, &StageWidth},
    {EACT_WARP, 2, 0, &StageHeight},
    {EACT_PUTFRIEND, 0, 1, &FriendRows},
    {EACT_PUTFRIEND, 3, 0, &StageWidth},
    {EACT_PUTFRIEND, 4, 0, &StageHeight},
    {EACT_STARTPOS, 0, 1, &GroupPosRows},
    {EACT_MAPCHIP, 2, 0, &LandRows},
    {EACT_MAPCHIP, 3, 0, &LandRows},
    {EACT_MAPCHIP, 4, 1, &GroupPosRows},
    {EACT_SOUND, 0, 1, &SoundRows},
    // 0 is "none" in the form's list of music, so it stays a valid choice.
    {EACT_BGM, 1, 0, &BgmRows},
    {EACT_FRIENDSHOP, 0, 1, &FriendRows},
    {EACT_PARTY, 0, 1, &FriendRows},
};

// A skill is a pair: list I[0], skill I[1] of that list. A list that does not exist,
// below the table as well as beyond it, falls back to list 0.
void ClampSkillRef(Slots& slots, bool bWithSkill) {
  if (slots[0] < 0 || slots[0] >= SkillListRows()) {
    slots[0] = 0;
    if (bWithSkill) slots[1] = 1;
  }
  if (bWithSkill && slots[1] >= SkillRowsOf(slots[0])) slots[1] = 1;
}

}  // namespace

void MigrateEventAct(cEventAct& act, std::uint32_t version) {
  int& kind = act.m_nKind;
  Slots& I = act.m_vecInt;
  const cEventActInfo& stored = EventActInfoOf(kind);
  Grow(I, stored.m_nIntCount);
  if (act.m_vecStr.Count() < stored.m_nStrCount) act.m_vecStr.resize(static_cast<std::size_t>(stored.m_nStrCount));

  if (version < 25 && kind >= 5) {
    Renumber(kind);
    if (kind >= 7) Renumber(kind);
  }
  if (version < 57 && kind == EACT_MESSAGE) SetAt(I, 21, 100);
  if (version < 59 && kind == EACT_MESSAGE) {
    InsertAt(I, 20, 0);
    InsertAt(I, 21, 0);
  }
  if (version < 59 && kind == EACT_PICTURE) {
    InsertAt(I, 9, 0);
    InsertAt(I, 10, 0);
  }
  if (version < 60 && kind == EACT_MESSAGE) InsertAt(I, 9, 0);
  if (version < 60 && kind == EACT_PICTURE) InsertAt(I, 16, 0);
  if (version < 62 && kind == EACT_MESSAGE) InsertAt(I, 23, 255);
  if (version < 62 && kind == EACT_PICTURE) InsertAt(I, 11, 255);
  if (version < 67 && kind >= 8) Renumber(kind);
  // The status action of these files has a layout of its own; it starts over.
  if (version < 71 && kind == 15) I.assign(15, 0);
  if (version < 95 && kind >= 8) Renumber(kind);
  if (version < 103 && kind >= 21) Renumber(kind);
  if (version < 126 && kind == EACT_MAPCHIP) InsertAt(I, 1, 0);
  if (version < 281 && kind == EACT_BGM) {
    Grow(I, 3);
    I[2] = I[0] == 2 ? 1 : 0;  // only the stage's music loops
  }
}

void NormalizeEventAct(cEventAct& act) {
  if (act.m_nKind < 0 || act.m_nKind >= kEventActKinds) act.m_nKind = EACT_NONE;
  const cEventActInfo& info = EventActInfoOf(act.m_nKind);
  Slots& I = act.m_vecInt;
  I.resize(static_cast<std::size_t>(info.m_nIntCount), 0);
  act.m_vecStr.resize(static_cast<std::size_t>(info.m_nStrCount));
  for (const cSlotClamp& clamp : kSlotClamps) {
    if (clamp.kind != act.m_nKind) continue;
    std::int32_t& slot = I[static_cast<std::size_t>(clamp.slot)];
    slot = ClampSlot(slot, clamp.lo, clamp.rows() - 1);
  }
  switch (act.m_nKind) {
    case EACT_LEARNSKILL:
    case EACT_STOCK:
    case EACT_SHOPGOODS: ClampSkillRef(I, true); break;
    case EACT_RANDOMSKILL: ClampSkillRef(I, false); break;
    default: break;
  }
}
