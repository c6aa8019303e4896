#pragma once
// DLG_EACT_BASE, the form of one kind of event action, made from the kind's table
// (forms/event/event_act_layout.h). The controls are bound to a working copy of the
// action; the caller takes it back on OK, so Cancel leaves the action's slots alone.

#include <array>
#include <memory>

#include "event/event_act.h"
#include "forms/database/skill_pair.h"
#include "forms/event/event_act_layout.h"
#include "toolkit/record_form.h"

class DLG_EACT_BASE : public cRecordForm<cEventAct> {
 public:
  // Slot s has the control SlotId(s) and, for a number, the spin SpinId(s).
  enum : unsigned {
    kSlotBase = 2000,
    kSpinBase = 2100,
    kRenameBase = 2300,  // "_" beside the common variable combo of slot s
    kText = 2200,
    kSymbolCombo = 2400,
    kSymbolPreview,
    kVarHelpCombo,
    kVarHelpRename,
    kGraphicList,
    kGraphicPreview,
    kPlay = 1313,
  };
  static constexpr unsigned SlotId(int slot) { return kSlotBase + static_cast<unsigned>(slot); }
  static constexpr unsigned SpinId(int slot) { return kSpinBase + static_cast<unsigned>(slot); }
  static constexpr unsigned RenameId(int slot) { return kRenameBase + static_cast<unsigned>(slot); }

  // `act` must have its kind's slot counts.
  DLG_EACT_BASE(const cActKindForm& kindForm, const cEventAct& act, bool bStartEvent, QWidget* owner);
  ~DLG_EACT_BASE() override;

  // The integer slots as the screen shows them now: the working copy, with the value
  // of each slot's control in its place.
  cActSlots ScreenSlots();

 protected:
  void OnReady() override;
  bool OnOk() override;
  void OnFormCommand(unsigned id, unsigned code) override;
  void OnUpdateEnable() override;
  void OnDestroy() override;

 private:
  void Declare(cFormTable& F, const cActCtrl& c);
  // The ids a table entry puts on the form that its slot's rule enables.
  std::vector<unsigned> IdsOf(const cActCtrl& c) const;
  // After a rename: every combo of common variables takes the new names.
  void RefreshVarNames();
  // The number edits that follow the left side's status take its range.
  void FollowStatus(const cActSlots& I);
  void ShowGraphic(int graphic);
  void PlaySound(int row);
  void PlayMusic(int row);

  const cActKindForm& m_Kind;
  bool m_bStartEvent;
  std::array<VECTOR_CLASS<std::string>, static_cast<std::size_t>(eActList::kCount)> m_aRows;
  std::unique_ptr<cSkillPair> m_pSkill;
  int m_nSymbol = 0;   // the symbol looked up; stored nowhere
  int m_nHelpVar = 1;  // the common variable looked up; stored nowhere
  int m_nRangeStatus = -2;  // the status whose range the edits have; -1 the full range
  int m_nShownGraphic = -1;
  bool m_bPlayedSound = false, m_bPlayedMusic = false;
};

// The slots at the counts of the action's kind: new ones 0 and empty, those beyond
// the count gone, the others as they were.
void ResizeEventActSlots(cEventAct& act);

// The kind's form on a copy of `act`, made but not opened; null for a kind without a
// form. `act` must have its kind's slot counts.
std::unique_ptr<DLG_EACT_BASE> MakeEventActForm(const cEventAct& act, bool bStartEvent, QWidget* owner);
