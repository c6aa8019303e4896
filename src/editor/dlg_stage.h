#pragma once
// DLG_STAGE, the stage settings: name, size, allied start, background, music, reward,
// rate corrections, text images, and the three description lists whose lines are edited
// in DLG_ENDCOND. The form works on a copy of the stage, with working copies of the size
// and the lists: a form with lists applies its controls at every change, and Cancel must
// leave the stage as it was. OK resizes the copy, which then becomes the stage.

#include <string>

#include "stage/stage.h"
#include "toolkit/live_instance.h"
#include "toolkit/record_form.h"

class DLG_STAGE : public cRecordForm<cStage>, public cLiveInstance<DLG_STAGE> {
 public:
  enum : unsigned {
    kIdName = 1110,
    kIdWidth = 1111,
    kIdWidthSpin = 1112,
    kIdHeight = 1113,
    kIdHeightSpin = 1114,
    kIdStartGroup = 1115,
    kIdBack = 1116,
    kIdBgm = 1117,
    kIdPlay = 1118,
    kIdAllGroups = 1119,
    kIdRewardVal = 1120,
    kIdReward = 1121,
    kIdRewardSpin = 1122,
    kIdTurnCut = 1123,
    kIdTurnCutSpin = 1124,
    kIdTurnPercent = 1125,
    kIdRepeatRate = 1126,
    kIdRepeatRateSpin = 1127,
    kIdExpRate = 1128,
    kIdExpRateSpin = 1129,
    kIdExpCleared = 1130,
    kIdExpClearedSpin = 1131,
    kIdGoldRate = 1132,
    kIdGoldRateSpin = 1133,
    kIdGoldCleared = 1134,
    kIdGoldClearedSpin = 1135,
    kIdShowClear = 1136,
    kIdShowGameOver = 1137,
    // Each description list: the list, then its buttons "挿入", "編集", "削除".
    kIdWinList = 1140,
    kIdLoseList = 1144,
    kIdRuleList = 1148,
  };
  enum : int { kWin, kLose, kRule, kDescriptions };
  enum : unsigned { kListOffset = 0, kInsertOffset = 1, kEditOffset = 2, kDeleteOffset = 3 };
  static constexpr int kMaxLines = 4;

  DLG_STAGE(const cStage& source, QWidget* parent);

  // Each list works on the form's copy of the stage itself, so that refreshing one list
  // after a command in another never takes back its edits; OK hands the copy on whole.
  struct cDescription {
    CTRL_LIST_CLASS<cEndCond> list;
    VECTOR_CLASS<cEndCond>* work = nullptr;  // a list of the copy
    unsigned id;
  };
  cDescription m_aDesc[kDescriptions];
  int m_nWidth, m_nHeight;

 protected:
  void OnReady() override;
  bool OnOk() override;
  void OnFormCommand(unsigned id, unsigned code) override;
  void OnDestroy() override;

 private:
  void Insert(cDescription& d);
  void Edit(cDescription& d);
  void Play();

  VECTOR_CLASS<std::string> m_vecGroupRows, m_vecBackRows, m_vecBgmRows, m_vecPtValRows;
  bool m_bPlayed = false;
};

// The command "ステージの設定": the form on g_Stage, modal. 1 after OK, when the stage
// holds the new settings and size and the main window has yet to clamp it.
int RunStageSettings(QWidget* parent);
