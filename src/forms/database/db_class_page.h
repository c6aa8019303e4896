#pragma once
// DLG_DBCLASS, page 0 of the database sheet: the classes, the templates of characters.

#include <array>

#include "database/chara_class.h"
#include "forms/database/skill_pair.h"
#include "forms/table_page.h"

class DLG_DBCLASS : public cTablePage<cClass> {
 public:
  enum : unsigned {
    kList = 1100, kName, kGraphic, kGraphicSpin, kGraphicList, kPreview, kHue, kHueSpin, kSat, kSatSpin, kVal,
    kValSpin, kScale, kScaleSpin, kMove, kMoveSpin, kFly, kExRate, kExRateSpin, kLevelMax, kLevelMaxSpin,
    kAtkList, kAtkSkill, kNoAttack, kSense, kSenseEdit, kResist, kResistEdit, kOrgSlot, kOrgSlotEdit,
    kInit = 1140,   // nine number edits, one per status
    kFinal = 1150,  // the same for the final values
  };
  DLG_DBCLASS();

 protected:
  void OnReady() override;
  void OnSetActive() override;
  void OnStale() override;
  void OnFormCommand(unsigned id, unsigned code) override;
  void OnUpdateEnable() override;
  void UpdateAllExcept(unsigned id) override;

 private:
  // The tinted graphic, made again only when one of its four values changed.
  void UpdatePreview();
  void EditSense();
  void EditOrgSlot();
  // A sub-list changed the edit record: its row, and the screen, follow.
  void SubListChanged(cListCtrlBase& list);

  cSkillPair m_Attack{kAtkList, kAtkSkill};
  CTRL_LIST_CLASS<VECTOR_CLASS<std::int32_t>> m_Sense;
  CTRL_LIST_CLASS<std::int32_t> m_Resist;
  CTRL_LIST_CLASS<cOrgSlotList> m_OrgSlot;
  std::array<int, 4> m_aPreviewKey{-1, 0, 0, 0};
};
