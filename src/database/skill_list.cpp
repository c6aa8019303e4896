#include "database/skill_list.h"

#include <initializer_list>

#include "kernel/serial_fields.h"
#include "platform/cp932.h"
#include "project/project_globals.h"

const char* const kSlotTypeLabels[] = {"スロット数とカテゴリーの制限有り", "スロット数とカテゴリーの制限無し", "スロットなし", ""};

const char* const kSceneLabels[] = {"編成パート全般",
                                    "編成パート「ストック」",
                                    "編成パート「ショップ」",
                                    "マップパート全般",
                                    "オート戦闘：マップパート「闘う」「待機」「装備」",
                                    "マップパート「スキル」（回復スキルのみ使用可）",
                                    "マップパート「ストック」（回復スキルのみ使用可）",
                                    "マニュアル戦闘：戦闘パート「スキル」",
                                    "マニュアル戦闘：戦闘パート「クイック」",
                                    "マニュアル戦闘：戦闘パート「ストック」",
                                    ""};

namespace {

VECTOR_CLASS<cCmd> Commands(std::initializer_list<const char*> names) {
  VECTOR_CLASS<cCmd> commands;
  for (const char* name : names) {
    cCmd command;
    command.m_strName = Cp932FromLiteral(name);
    command.m_bEnabled = 1;
    commands.push_back(command);
  }
  return commands;
}

}  // namespace

int cCateg::Serialize(int op, const cSerial* other, cSerialFile* file, std::uint32_t version) {
  const auto* o = SerialOther<cCateg>(other);
  SERIAL_FIELD(SerialInt(op, m_nSymbol, OTHER(m_nSymbol), file));
  SERIAL_FIELD(SerialString(op, m_strName, OTHER(m_strName), file));
  if (version >= 70) SERIAL_FIELD(SerialDouble(op, m_dRate, OTHER(m_dRate), file));
  return 1;
}

int cCateg::Load(cSerialFile* file) {
  if (!cSerial::Load(file)) return 0;
  // The rate of versions 70 to 121 meant something else; it starts over at 1.
  if (g_nFileVersion < 122) m_dRate = 1.0;
  return 1;
}

int cAcqCond::Serialize(int op, const cSerial* other, cSerialFile* file, std::uint32_t version) {
  const auto* o = SerialOther<cAcqCond>(other);
  SERIAL_FIELD(SerialInt(op, m_nCateg, OTHER(m_nCateg), file));
  return 1;
}

int cSlot::Serialize(int op, const cSerial* other, cSerialFile* file, std::uint32_t version) {
  const auto* o = SerialOther<cSlot>(other);
  SERIAL_FIELD(SerialInt(op, m_bAnyCateg, OTHER(m_bAnyCateg), file));
  SERIAL_FIELD(SerialInt(op, m_bShowAllSymbols, OTHER(m_bShowAllSymbols), file));
  SERIAL_FIELD(SerialInt(op, m_nEmptySymbol, OTHER(m_nEmptySymbol), file));
  SERIAL_FIELD(SerialRecordVector(op, m_vecAcqCond, OTHER(m_vecAcqCond), file));
  return 1;
}

int cAcqSkill::Serialize(int op, const cSerial* other, cSerialFile* file, std::uint32_t version) {
  const auto* o = SerialOther<cAcqSkill>(other);
  SERIAL_FIELD(SerialInt(op, m_nList, OTHER(m_nList), file));
  SERIAL_FIELD(SerialInt(op, m_nSkill, OTHER(m_nSkill), file));
  SERIAL_FIELD(SerialInt(op, m_nUses, OTHER(m_nUses), file));
  SERIAL_FIELD(SerialInt(op, m_bEquip, OTHER(m_bEquip), file));
  SERIAL_FIELD(SerialRecord(op, m_Slot, OTHER(m_Slot), file));
  return 1;
}

int cShopSkill::Serialize(int op, const cSerial* other, cSerialFile* file, std::uint32_t version) {
  const auto* o = SerialOther<cShopSkill>(other);
  if (version >= 55) SERIAL_FIELD(SerialInt(op, m_nList, OTHER(m_nList), file));
  SERIAL_FIELD(SerialInt(op, m_nSkill, OTHER(m_nSkill), file));
  if (version >= 55) {
    SERIAL_FIELD(SerialInt(op, m_nValue1, OTHER(m_nValue1), file));
    SERIAL_FIELD(SerialInt(op, m_nValue2, OTHER(m_nValue2), file));
  }
  return 1;
}

void cShopSkill::FixRefs() {
  if (m_nList < 0 || m_nList >= g_vecSkillList.Count()) {
    m_nList = 0;
    m_nSkill = 1;
  }
  int rows = m_nList < g_vecSkillList.Count() ? g_vecSkillList[static_cast<std::size_t>(m_nList)].m_vecSkill.Count() : 0;
  if (m_nSkill >= rows) m_nSkill = 1;
}

void cSkillList::SetDefault() {
  Reset();
  m_nSlotType = kSlotUnlimited;
  m_nFreeSlots = 200;
  m_bReserve = 1;
  m_nReserveMax = 200;
  m_bHeaderSP = 1;
  m_strSenseName = CP932_TEXT("センス");
  m_bSameSkill = 1;
  m_bRecoverUses = 1;
  m_bStockAsLearn = 1;
  m_nMoneyVal = 1;
  m_bConfirmLearn = 1;
  m_bConfirmForget = 1;
  m_vecSlot.resize(1);
  m_vecCateg.resize(1);
  m_vecScene.assign(kSceneCount, 1);
  m_vecMenuCmd = Commands({"覚える", "リザーブ", "装備", "復元", "売る", "忘れる", "戻る"});
  m_vecLearnCmd = Commands({"習得する", "やっぱりやめる"});
  m_vecSellCmd = Commands({"売る", "やっぱりやめる"});
  m_vecForgetCmd = Commands({"忘れる", "やっぱりやめる"});
  m_vecSkill.resize(2);  // row 0 is reserved: one usable skill
}

void cSkillList::FixRefs() {
  const int categories = m_vecCateg.Count();
  for (cSkill& skill : m_vecSkill) {
    if (skill.m_nCateg >= categories) skill.m_nCateg = 0;
  }
  for (cSlot& slot : m_vecSlot) {
    std::erase_if(slot.m_vecAcqCond, [categories](const cAcqCond& c) { return c.m_nCateg >= categories; });
  }
}

int cSkillList::Serialize(int op, const cSerial* other, cSerialFile* file, std::uint32_t version) {
  const auto* o = SerialOther<cSkillList>(other);
  SERIAL_FIELD(SerialInt(op, m_nID, OTHER(m_nID), file));
  SERIAL_FIELD(SerialString(op, m_strName, OTHER(m_strName), file));
  SERIAL_FIELD(SerialInt(op, m_nSlotType, OTHER(m_nSlotType), file));
  SERIAL_FIELD(SerialInt(op, m_nFreeSlots, OTHER(m_nFreeSlots), file));
  SERIAL_FIELD(SerialInt(op, m_bReserve, OTHER(m_bReserve), file));
  SERIAL_FIELD(SerialInt(op, m_nReserveMax, OTHER(m_nReserveMax), file));
  SERIAL_FIELD(SerialInt(op, m_bHeaderSP, OTHER(m_bHeaderSP), file));
  SERIAL_FIELD(SerialInt(op, m_bSymbolSense, OTHER(m_bSymbolSense), file));
  SERIAL_FIELD(SerialInt(op, m_bStatusSense, OTHER(m_bStatusSense), file));
  SERIAL_FIELD(SerialString(op, m_strSenseName, OTHER(m_strSenseName), file));
  if (version >= 70) SERIAL_FIELD(SerialInt(op, m_nReserved, OTHER(m_nReserved), file));
  if (version >= 7) SERIAL_FIELD(SerialInt(op, m_bSameSkill, OTHER(m_bSameSkill), file));
  if (version >= 6) SERIAL_FIELD(SerialInt(op, m_bRecoverUses, OTHER(m_bRecoverUses), file));
  if (version >= 82) SERIAL_FIELD(SerialInt(op, m_bStockAsLearn, OTHER(m_bStockAsLearn), file));
  SERIAL_FIELD(SerialInt(op, m_nMoneyVal, OTHER(m_nMoneyVal), file));
  if (version >= 19) {
    SERIAL_FIELD(SerialInt(op, m_bForgetOnDeath, OTHER(m_bForgetOnDeath), file));
    SERIAL_FIELD(SerialInt(op, m_bForgetOnRelease, OTHER(m_bForgetOnRelease), file));
  }
  if (version >= 41) {
    SERIAL_FIELD(SerialInt(op, m_bF8Learn, OTHER(m_bF8Learn), file));
    SERIAL_FIELD(SerialInt(op, m_bF8Stock, OTHER(m_bF8Stock), file));
  }
  SERIAL_FIELD(SerialInt(op, m_bForgetToStock, OTHER(m_bForgetToStock), file));
  SERIAL_FIELD(SerialInt(op, m_bConfirmLearn, OTHER(m_bConfirmLearn), file));
  SERIAL_FIELD(SerialInt(op, m_bConfirmForget, OTHER(m_bConfirmForget), file));
  SERIAL_FIELD(SerialRecordVector(op, m_vecSlot, OTHER(m_vecSlot), file));
  SERIAL_FIELD(SerialRecordVector(op, m_vecCateg, OTHER(m_vecCateg), file));
  SERIAL_FIELD(SerialIntVector(op, m_vecScene, OTHER(m_vecScene), file));
  SERIAL_FIELD(SerialRecordVector(op, m_vecMenuCmd, OTHER(m_vecMenuCmd), file));
  SERIAL_FIELD(SerialRecordVector(op, m_vecLearnCmd, OTHER(m_vecLearnCmd), file));
  if (version >= 56) SERIAL_FIELD(SerialRecordVector(op, m_vecSellCmd, OTHER(m_vecSellCmd), file));
  SERIAL_FIELD(SerialRecordVector(op, m_vecForgetCmd, OTHER(m_vecForgetCmd), file));
  SERIAL_FIELD(SerialRecordVector(op, m_vecSkill, OTHER(m_vecSkill), file));
  return 1;
}

int cSkillList::Load(cSerialFile* file) {
  if (!cSerial::Load(file)) return 0;
  if (g_nFileVersion < 41) {
    m_bF8Learn = 1;
    m_bF8Stock = 1;
  }
  if (g_nFileVersion < 56 && m_vecMenuCmd.size() > 4) m_vecMenuCmd.erase(m_vecMenuCmd.begin() + 4);
  if (g_nFileVersion < 77) {
    // The shop scene was inserted at 2: later entries move up one, and it starts on.
    m_vecScene.resize(kSceneCount, 0);
    for (std::size_t i = kSceneCount - 1; i >= 3; --i) m_vecScene[i] = m_vecScene[i - 1];
    m_vecScene[2] = 1;
  }
  FixRefs();
  return 1;
}

int cSkillList::Save(cSerialFile* file) {
  FixRefs();
  return cSerial::Save(file);
}

void NumberSkillLists(VECTOR_CLASS<cSkillList>& lists) {
  for (std::size_t i = 0; i < lists.size(); ++i) {
    lists[i].m_nID = static_cast<int>(i);
    for (std::size_t s = 0; s < lists[i].m_vecSkill.size(); ++s) lists[i].m_vecSkill[s].m_nID = static_cast<int>(s);
  }
}
