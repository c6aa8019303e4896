#pragma once
// DLG_DBSKILLLIST, page 3 of the database sheet: the skill lists, each a skill system
// of its own with its categories, slots and the texts of its skill menu. Its skills
// are edited in a sheet of their own (db_skill_page.h), opened from here.

#include <array>
#include <string>

#include "database/skill_list.h"
#include "forms/table_page.h"

class PROP_DBSKILL;

class DLG_DBSKILLLIST : public cTablePage<cSkillList> {
 public:
  static constexpr int kMenuCount = 7, kSceneShown = 10, kConfirmCount = 2;
  enum : unsigned {
    kList = 1500, kName, kSlotType, kReserve, kReserveMax, kReserveMaxSpin, kHeaderSP, kSymbolSense,
    kStatusSense, kSenseName, kSameSkill, kRecoverUses, kStockAsLearn, kMoneyVal, kForgetOnDeath,
    kForgetOnRelease, kF8Learn, kF8Stock, kForgetToStock, kConfirmLearn, kConfirmForget,
    kCategs, kCategNew, kCategEdit, kCategClear, kCategCount,
    kSlots, kSlotNew, kSlotEdit, kSlotClear, kSlotCount, kEditSkills,
    kScene = 1540,      // one check per scene
    kMenuOn = 1550,     // one check per menu command
    kMenuName = 1560,   // its text
    kLearnText = 1570,  // the texts of the three confirmations, two each
    kSellText = 1572,
    kForgetText = 1574,
  };
  DLG_DBSKILLLIST();

  // The skill sheet while it is open over this page's row, else null.
  PROP_DBSKILL* SkillSheet() const { return m_pSkillSheet; }

 protected:
  void OnReady() override;
  void OnStale() override;
  void OnDestroy() override;
  void OnFormCommand(unsigned id, unsigned code) override;
  void UpdateAllExcept(unsigned id) override;
  void ApplyControls() override;

 private:
  // The entries of the row's vectors that the page shows as single controls. A row
  // cleared to nothing has none of them: the controls then show blanks, and an entry
  // is added only when the user gives it a value.
  struct cShownEntries {
    std::array<int, kSceneShown> aScene{};
    std::array<int, kMenuCount> aMenuOn{};
    std::array<std::string, kMenuCount> aMenu;
    std::array<std::string, kConfirmCount> aLearn, aSell, aForget;
  };
  void TakeEntries();
  void GiveEntries();

  // "ｸﾘｱ" of this page: each selected list becomes zeros with empty vectors, not a new
  // list's defaults.
  void ClearRows();
  // The category or slot list's commands; true when the row changed.
  bool CategCommand(unsigned id, unsigned code);
  bool SlotCommand(unsigned id, unsigned code);
  // Normalises the row and opens the skill sheet over its skills, every other window
  // disabled until it closes.
  void EditSkills();

  CTRL_LIST_CLASS<cCateg> m_Categs;
  CTRL_LIST_CLASS<cSlot> m_Slots;
  cShownEntries m_Shown;
  VECTOR_CLASS<std::string> m_vecMoneyNames;
  PROP_DBSKILL* m_pSkillSheet = nullptr;
  bool m_bJustCleared = false;
};
