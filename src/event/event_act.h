#pragma once
// One step of an event page. Every kind of action is the same record: a kind number
// and slots of integers and texts whose meaning belongs to the kind. The game program
// reads the slots, so old files are migrated slot by slot as kinds gained parameters
// or were renumbered.

#include <cstdint>
#include <string>

#include "database/skill_list.h"
#include "event/event_act_info.h"
#include "kernel/serial.h"
#include "kernel/vector_class.h"

class cEventAct : public cSerial {
 public:
  cEventAct() { Reset(); }
  SERIAL_RECORD(cEventAct)

  int Serialize(int op, const cSerial* other, cSerialFile* file, std::uint32_t version) override;
  int Load(cSerialFile* file) override;
  int Save(cSerialFile* file) override;

  int m_nKind;
  VECTOR_CLASS<std::int32_t> m_vecInt;
  VECTOR_CLASS<std::string> m_vecStr;
  VECTOR_CLASS<cShopSkill> m_vecOldShopSkill;  // only read from files before 55; unused
};

// Slot counts from the kind's table row, then the kind's references clamped against
// the tables of the moment. A kind the table does not have becomes an empty action of
// kind 0: there is nothing to size or clamp it by, and the game knows no such kind.
void NormalizeEventAct(cEventAct& act);

// The slot migrations of a record read from a file of `version` (below 290).
void MigrateEventAct(cEventAct& act, std::uint32_t version);

// The kind's slots as its form writes them for a new action.
void SetEventActDefaults(cEventAct& act);
