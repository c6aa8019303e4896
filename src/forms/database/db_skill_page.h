#pragma once
// PROP_DBSKILL, "スキルの設定", and its one page DLG_DBSKILL: the skills of one skill
// list, opened from the skill list page over the list in edit there. The page works
// on a copy of the list's skill table; the sheet's apply carries it into the list's
// row on that page, and nothing goes to a file before the database sheet's own apply.

#include <array>
#include <functional>
#include <span>
#include <string>
#include <utility>
#include <vector>

#include "database/anim_player.h"
#include "database/skill_kind_rules.h"
#include "database/skill_list.h"
#include "forms/animated_previews.h"
#include "forms/table_page.h"
#include "toolkit/prop_class.h"

// The list the skills belong to, as the page needs it.
struct cSkillSheetList {
  VECTOR_CLASS<cSkill>* pSkills;         // the table the page works on a copy of
  const VECTOR_CLASS<cCateg>* pCategs;   // names the skills' categories
  int nNumber;                           // the list's row plus 1: its spreadsheet file
  std::string strName;                   // CP932, for the spreadsheet commands' questions
  std::function<void()> commit;          // the table, just written, into the list's row
};

class DLG_DBSKILL : public cTablePage<cSkill> {
 public:
  enum : unsigned {
    kList = 1700, kCsvSave, kCsvRead, kName, kNotUsed, kDesc, kKind, kTarget, kWeapon, kCateg, kNeedSense,
    kNeedSenseSpin, kLearnClass, kNoForget, kPrice, kPriceSpin, kStockMax, kStockMaxSpin, kVanish, kSortOn,
    kSortNumber, kResource, kCostSP, kCostSPSpin, kUseLimit, kUseLimitSpin, kUnlimited, kUseMapSkill,
    kUseMapStock, kUseBattleSkill, kUseBattleQuick, kUseBattleStock, kEffectValue, kDamageRate,
    kDamageRateSpin, kNoStatus, kCompati, kCompatiOfWeapon, kElem, kElemOfWeapon, kElemValue, kHitRate,
    kHitRateSpin, kHitOfWeapon, kCritical, kCriticalSpin, kCriticalAdd, kLearnRate, kLearnRateSpin,
    kLearnRateSense, kLearnLvMin, kLearnLvMax, kLearnLvSense, kRankMin, kRankMax, kRarity, kSubAPercent,
    kSubBPercent, kEffectOfWeapon, kEffect, kEffectSpin, kEffectList, kPreview, kEffectAnim, kCharaAnim,
    kScale, kScaleSpin, kAlpha, kAlphaSpin, kHue, kHueSpin, kSat, kSatSpin, kVal, kValSpin, kSound,
    kSubA = 1800,  // nine number edits, one per status
    kSubB = 1810,  // the same for sub-effect B
  };
  static constexpr int kPreviewSide = 64;

  explicit DLG_DBSKILL(cSkillSheetList list);

  // Rows numbered, and the table into the list's row on the list page.
  void CommitToList();

  // The controls the kind table governs, each with its row of the table.
  static std::span<const std::pair<unsigned, eSkillControl>> Governed();
  // The enabled state the kind table gives the governed controls of the row in edit.
  SKILL_CONTROL_STATES RuleStates() const;

 protected:
  void OnReady() override;
  void OnDestroy() override;
  void OnFormCommand(unsigned id, unsigned code) override;
  void OnUpdateEnable() override;
  void ApplyControls() override;

 private:
  // The kind table's enabling, told to each control only when it changes.
  void Enable(const SKILL_CONTROL_STATES& states);
  // The tinted graphic, made again only when one of its four values changed.
  void UpdatePreview();
  // The player on the pattern the effect animation box shows, from its start.
  void ReloadPlayer();
  void DrawFrame(int frame);
  void SaveCsv();
  void ReadCsv();

  cSkillSheetList m_Owner;
  VECTOR_CLASS<std::string> m_vecCategNames, m_vecClassNames, m_vecCompatiNames, m_vecElemNames;
  VECTOR_CLASS<std::string> m_vecCharaAnimNames, m_vecEffectAnimNames, m_vecSoundNames;
  std::vector<std::pair<CTRL_CLASS*, eSkillControl>> m_vecGoverned;
  std::vector<signed char> m_vecShownState;  // per governed control: -1 not yet told
  std::array<int, 4> m_aPreviewKey{-1, 0, 0, 0};
  int m_nShownFrame = -1;
  unsigned m_nCommand = 0;  // the command in progress
  cAnimatedPreview m_Animation{[this] { DrawFrame(g_AnimPlayer.Step()); }};
};

class PROP_DBSKILL : public PROP_CLASS {
 public:
  explicit PROP_DBSKILL(cSkillSheetList list);
  DLG_DBSKILL* Page() const { return m_pPage; }
  // Rows numbered, the table into the list's row.
  void ApplyPages() override;
  void OnEnd() override;

  // Runs when the sheet ends, whichever way.
  std::function<void()> m_onEnd;

 private:
  DLG_DBSKILL* m_pPage;
};

// Opens the skill sheet modeless over `parent`; `onEnd` runs when it closes. The sheet,
// which the window registry owns; null when it could not be made.
PROP_DBSKILL* OpenSkillSheet(QWidget* parent, cSkillSheetList list, std::function<void()> onEnd);
