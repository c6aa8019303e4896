#include "database/chara.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "database/table_rows.h"
#include "kernel/serial_fields.h"
#include "project/project_globals.h"

int cLearnSkill::Serialize(int op, const cSerial* other, cSerialFile* file, std::uint32_t version) {
  const auto* o = SerialOther<cLearnSkill>(other);
  SERIAL_FIELD(SerialInt(op, m_nList, OTHER(m_nList), file));
  SERIAL_FIELD(SerialInt(op, m_nSkill, OTHER(m_nSkill), file));
  SERIAL_FIELD(SerialInt(op, m_nLevel, OTHER(m_nLevel), file));
  return 1;
}

int StatusMax(int i) {
  if (i < 0 || i >= g_System.m_vecParam.Count()) return 999999;
  return g_System.m_vecParam[static_cast<std::size_t>(i)].m_nMax;
}

int StatusPercent(int v, int r) {
  return static_cast<int>(std::clamp(std::round(static_cast<double>(v) * r / 100.0),
                                     static_cast<double>(std::numeric_limits<int>::min()),
                                     static_cast<double>(std::numeric_limits<int>::max())));
}

int cChara::Serialize(int op, const cSerial* other, cSerialFile* file, std::uint32_t version) {
  const auto* o = SerialOther<cChara>(other);
  auto ints = [&](int* field, const int* of, int count) { return SerialIntArray(op, field, of, count, file); };
#define ARRAY(member) member, o ? o->member : nullptr
  SERIAL_FIELD(SerialInt(op, m_nID, OTHER(m_nID), file));
  SERIAL_FIELD(SerialInt(op, m_bRandomName, OTHER(m_bRandomName), file));
  if (version >= 88) SERIAL_FIELD(SerialInt(op, m_nNameFile, OTHER(m_nNameFile), file));
  SERIAL_FIELD(SerialInt(op, m_bEnemy, OTHER(m_bEnemy), file));
  SERIAL_FIELD(SerialInt(op, m_nReserved, OTHER(m_nReserved), file));
  SERIAL_FIELD(SerialInt(op, m_nClass, OTHER(m_nClass), file));
  SERIAL_FIELD(SerialInt(op, m_nLevel, OTHER(m_nLevel), file));
  SERIAL_FIELD(SerialInt(op, m_nLevelMax, OTHER(m_nLevelMax), file));
  SERIAL_FIELD(SerialInt(op, m_nEX, OTHER(m_nEX), file));
  SERIAL_FIELD(ints(ARRAY(m_anInit), kStatusCount));
  SERIAL_FIELD(ints(ARRAY(m_anFinal), kStatusCount));
  SERIAL_FIELD(ints(ARRAY(m_anBaseInit), kStatusCount));
  SERIAL_FIELD(ints(ARRAY(m_anBaseFinal), kStatusCount));
  SERIAL_FIELD(ints(ARRAY(m_anFrac), kStatusCount));
  if (version >= 73) SERIAL_FIELD(ints(ARRAY(m_anFracInit), kStatusCount));
  SERIAL_FIELD(ints(ARRAY(m_abGrow), kStatusCount));
  SERIAL_FIELD(SerialInt(op, m_bRandomGrowth, OTHER(m_bRandomGrowth), file));
  if (version >= 214) SERIAL_FIELD(SerialInt(op, m_bRandomSense, OTHER(m_bRandomSense), file));
  SERIAL_FIELD(SerialInt(op, m_bRandomSkill, OTHER(m_bRandomSkill), file));
  if (version >= 70) SERIAL_FIELD(SerialInt(op, m_nGrowthTime, OTHER(m_nGrowthTime), file));
  if (version >= 232) SERIAL_FIELD(SerialInt(op, m_nBuiltVersion, OTHER(m_nBuiltVersion), file));
  if (version >= 4) SERIAL_FIELD(SerialRecordArray(op, m_aParam, o ? o->m_aParam : nullptr, kStatusCount, file));
  SERIAL_FIELD(SerialInt(op, m_anState1, OTHER(m_anState1), file));
  if (version >= 96) SERIAL_FIELD(ints(ARRAY(m_anState2), 3));
  SERIAL_FIELD(ints(ARRAY(m_anState3), 4));
  if (version >= 45) SERIAL_FIELD(SerialInt(op, m_nState4, OTHER(m_nState4), file));
  SERIAL_FIELD(SerialInt(op, m_nState5, OTHER(m_nState5), file));
  if (version >= 52) SERIAL_FIELD(ints(ARRAY(m_anState6), 2));
  SERIAL_FIELD(ints(ARRAY(m_anState7), 3));
  if (version >= 99) SERIAL_FIELD(SerialInt(op, m_nCompatiType, OTHER(m_nCompatiType), file));
  if (version >= 34) {
    SERIAL_FIELD(SerialInt(op, m_bFixEX, OTHER(m_bFixEX), file));
    SERIAL_FIELD(SerialInt(op, m_nFixEX, OTHER(m_nFixEX), file));
  }
  if (version >= 86) {
    SERIAL_FIELD(SerialInt(op, m_nMoneyVal, OTHER(m_nMoneyVal), file));
    SERIAL_FIELD(SerialInt(op, m_nMoney, OTHER(m_nMoney), file));
  }
  SERIAL_FIELD(ints(&m_anEquip[0][0], o ? &o->m_anEquip[0][0] : nullptr, kEquipCount * 2));
  SERIAL_FIELD(SerialString(op, m_strName, OTHER(m_strName), file));
  SERIAL_FIELD(SerialString(op, m_strDesc, OTHER(m_strDesc), file));
  const auto growth = [&](GROWTH_TABLE& t, const GROWTH_TABLE* ot) {
    return SerialVectorArray(op, t.data(), ot != nullptr ? ot->data() : nullptr, kStatusCount, file);
  };
  const auto sense = [&](SENSE_TABLE& t, const SENSE_TABLE* ot) { return SerialVectorVector(op, t, ot, file); };
  SERIAL_FIELD(SerialShared(op, m_avecGrow, OTHER(m_avecGrow), growth));
  if (version >= 69) SERIAL_FIELD(SerialShared(op, m_avecRandomGrow, OTHER(m_avecRandomGrow), growth));
  SERIAL_FIELD(SerialShared(op, m_vecvecSense, OTHER(m_vecvecSense), sense));
  if (version >= 231) {
    SERIAL_FIELD(SerialShared(op, m_vecvecSenseBase, OTHER(m_vecvecSenseBase), sense));
    SERIAL_FIELD(SerialShared(op, m_vecvecSenseAdd, OTHER(m_vecvecSenseAdd), sense));
  }
  SERIAL_FIELD(SerialSharedRecordVectorVector(op, m_vecvecSlot, OTHER(m_vecvecSlot), file));
  SERIAL_FIELD(SerialSharedRecordVectorVector(op, m_vecvecReserve, OTHER(m_vecvecReserve), file));
  SERIAL_FIELD(SerialRecordVector(op, m_vecLearnSkill, OTHER(m_vecLearnSkill), file));
#undef ARRAY
  return 1;
}

void cChara::SetDefault() {
  m_nClass = 1;
  m_nLevel = 1;
  m_nMoneyVal = 1;
  for (int i = 0; i < kStatusCount; ++i) {
    m_aParam[i].Reset();
    m_aParam[i].m_nType = i;
  }
  for (auto* sense : {&m_vecvecSense, &m_vecvecSenseBase, &m_vecvecSenseAdd}) sense->Clear();
  m_vecvecSlot.Clear();
  m_vecvecReserve.Clear();
  m_vecLearnSkill.clear();
}

void cChara::DropDerivedTables() {
  for (auto* sense : {&m_vecvecSense, &m_vecvecSenseBase, &m_vecvecSenseAdd}) sense->Clear();
  m_vecvecSlot.Clear();
  m_vecvecReserve.Clear();
  m_avecGrow.Clear();
  m_avecRandomGrow.Clear();
}

const cClass* cChara::Class() const {
  if (m_nClass <= 0 || m_nClass >= g_vecClass.Count()) return nullptr;
  return &g_vecClass[static_cast<std::size_t>(m_nClass)];
}

SKILL_HOLDER cChara::Holder() {
  SKILL_HOLDER holder;
  holder.nClass = m_nClass;
  holder.bEnemy = m_bEnemy != 0;
  holder.pSense = &*m_vecvecSense;
  holder.pSlots = &m_vecvecSlot.Edit();
  holder.pReserve = &m_vecvecReserve.Edit();
  holder.recalcStatus = [this] { RecalcStatus(); };
  return holder;
}

namespace {

int SkillRows(int list) {
  if (list < 0 || list >= g_vecSkillList.Count()) return 0;
  return g_vecSkillList[static_cast<std::size_t>(list)].m_vecSkill.Count();
}

bool InRange(int value, int count) { return value >= 0 && value < count; }

}  // namespace

void cChara::FixRefs() {
  if (g_vecClass.empty()) return;
  if (!InRange(m_nClass, g_vecClass.Count())) m_nClass = 1;
  if (m_nMoneyVal >= PtValRows()) m_nMoneyVal = 1;
  if (m_nCompatiType >= CompatiTypeRows()) m_nCompatiType = 0;

  const cClass* cls = Class();
  m_nLevelMax = std::max(cls != nullptr ? cls->m_nLevelMax : 1, 1);
  m_nLevel = std::min(m_nLevel, m_nLevelMax);
  const auto levels = static_cast<std::size_t>(m_nLevelMax);
  for (auto* growth : {&m_avecGrow, &m_avecRandomGrow}) {
    const bool sized = std::all_of((*growth)->begin(), (*growth)->end(), [levels](const auto& v) { return v.size() == levels; });
    if (!sized)
      for (auto& values : growth->Edit()) values.resize(levels, 0);
  }
  for (auto* sense : {&m_vecvecSense, &m_vecvecSenseBase, &m_vecvecSenseAdd})
    if (!SenseFitsLists(**sense)) FitSenseToLists(sense->Edit());

  BuildPlaces(0);

  cSharedTableEdit<PLACE_TABLE> slots(m_vecvecSlot), reserve(m_vecvecReserve);
  for (std::size_t list = 0; list < slots.Read().size(); ++list) {
    const int rows = SkillRows(static_cast<int>(list));
    for (std::size_t i = 0; i < slots.Read()[list].size(); ++i) {
      if (slots.Read()[list][i].m_nSkill >= rows) slots.Write()[list][i].m_nSkill = 0;
    }
    const auto stale = [rows](const cAcqSkill& place) { return place.m_nSkill >= rows; };
    if (list < reserve.Read().size() && std::any_of(reserve.Read()[list].begin(), reserve.Read()[list].end(), stale))
      std::erase_if(reserve.Write()[list], stale);
  }
  std::erase_if(m_vecLearnSkill, [](const cLearnSkill& learn) {
    return !InRange(learn.m_nList, g_vecSkillList.Count()) || !InRange(learn.m_nSkill, SkillRows(learn.m_nList));
  });
  for (auto& equip : m_anEquip) {
    if (!InRange(equip[0], g_vecSkillList.Count())) equip[0] = 0;
    const int places =
        InRange(equip[0], slots.Read().Count()) ? slots.Read()[static_cast<std::size_t>(equip[0])].Count() : 0;
    if (equip[1] >= places) equip[1] = 0;
  }
}

// Written as reads and changes: a character whose places already follow the lists
// keeps sharing them with its copies.
void cChara::BuildPlaces(int bClear) {
  cSharedTableEdit<PLACE_TABLE> slots(m_vecvecSlot), reserve(m_vecvecReserve);
  if (bClear && !slots.Read().empty()) slots.Write().clear();
  const std::size_t lists = g_vecSkillList.size();
  if (slots.Read().size() != lists) slots.Write().resize(lists);
  if (reserve.Read().size() != lists) reserve.Write().resize(lists);
  const cClass* cls = Class();
  const cAcqSkill emptyPlace;
  for (std::size_t list = 0; list < lists; ++list) {
    const cSkillList& rules = g_vecSkillList[list];
    const auto resize = [&](std::size_t count) {
      if (slots.Read()[list].size() != count) slots.Write()[list].resize(count);
    };
    const VECTOR_CLASS<cSlot>* source = nullptr;
    cSlot freeSlot;  // the rules of a free place: any category, all symbols shown
    bool keep = false;
    switch (rules.m_nSlotType) {
      case kSlotLimited: {
        source = &rules.m_vecSlot;
        if (cls != nullptr && list < cls->m_vecOrgSlot.size() && cls->m_vecOrgSlot[list].m_bOwn) {
          source = &cls->m_vecOrgSlot[list].m_vecSlot;
          keep = source->empty();  // an empty own list leaves the places as they are
        }
        if (!keep) resize(source->size());
        break;
      }
      case kSlotUnlimited: resize(static_cast<std::size_t>(std::max(rules.m_nFreeSlots, 0))); break;
      default:  // one place, always empty
        resize(1);
        if (!Compare(slots.Read()[list][0], emptyPlace)) slots.Write()[list][0] = emptyPlace;
        break;
    }
    for (std::size_t i = 0; i < slots.Read()[list].size() && !keep; ++i) {
      if (bClear && !Compare(slots.Read()[list][i], emptyPlace)) slots.Write()[list][i] = emptyPlace;
      const cSlot& wanted = source != nullptr ? (*source)[i] : freeSlot;
      if (!Compare(slots.Read()[list][i].m_Slot, wanted)) slots.Write()[list][i].m_Slot = wanted;
    }
    // The reserve keeps its skills across repairs; only a clearing build empties it.
    if (!m_bEnemy && rules.m_bReserve) {
      const std::size_t count = static_cast<std::size_t>(std::max(rules.m_nReserveMax, 0));
      if (reserve.Read()[list].size() != count) reserve.Write()[list].resize(count);
      if (bClear)
        for (std::size_t i = 0; i < count; ++i)
          if (!Compare(reserve.Read()[list][i], emptyPlace)) reserve.Write()[list][i] = emptyPlace;
    }
  }
}
