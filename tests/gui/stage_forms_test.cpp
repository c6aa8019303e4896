// The position group forms and the stage settings with their description lines, as the
// author uses them: OK writes what the forms show, Cancel leaves the stage's bytes.

#include <QLineEdit>
#include <QListWidget>
#include <QTest>
#include <tuple>

#include "editor/dlg_endcond.h"
#include "editor/dlg_grouppos.h"
#include "editor/dlg_grouppos_set.h"
#include "editor/dlg_stage.h"
#include "gui/stage_form_support.h"
#include "platform/cp932.h"

namespace {

class StageFormsTest : public StageFormTest {};

void Type(DLG_CLASS& form, unsigned id, const char* text) {
  auto* edit = static_cast<QLineEdit*>(form.GetDlgItem(id));
  edit->selectAll();
  QTest::keyClicks(edit, text);
}

QListWidget* List(DLG_CLASS& form, unsigned id) { return static_cast<QListWidget*>(form.GetDlgItem(id)); }

TEST_F(StageFormsTest, AStageWithGroupZeroAloneShowsOneGroupAfterTheFormEvenCancelled) {
  g_Stage.m_vecGroupPos.resize(1);
  DuringModal([this](DLG_CLASS& form) {
    EXPECT_EQ(List(form, DLG_GROUPPOS::kIdList)->count(), 2) << "one group and the blank row";
    EXPECT_EQ(List(form, DLG_GROUPPOS::kIdList)->item(0)->text(), QStringLiteral("1          中心座標(0,0)"));
    // At least one group stays: cutting the only one is refused.
    auto& groups = static_cast<DLG_GROUPPOS&>(form);
    groups.m_List.Box().focus = true;
    form.SendCommand(40030, kNotifyClicked);
    EXPECT_EQ(m_prompt.beeps, 1);
    EXPECT_EQ(groups.m_vecWork.Count(), 2);
    Click(form, kIdCancel);
  });
  EXPECT_EQ(RunPositionGroups(nullptr), 0);
  EXPECT_EQ(g_Stage.m_vecGroupPos.Count(), 2);
}

TEST_F(StageFormsTest, ClicksOnTheGroupsPictureReachTheStageOnlyThroughBothOks) {
  const std::vector<unsigned char> before = SavedBytes(g_Stage);
  auto clickCells = [](DLG_CLASS& set) {
    QWidget* map = set.GetDlgItem(DLG_GROUPPOS_SET::kIdMap);
    for (QPoint cell : {QPoint(1, 1), QPoint(2, 1), QPoint(1, 1), QPoint(1, 1)})
      QTest::mouseClick(map, Qt::LeftButton, {}, cell * 32 + QPoint(5, 5));
    Type(set, DLG_GROUPPOS_SET::kIdName, "north");
    Type(set, DLG_GROUPPOS_SET::kIdCenterX, "99");  // beyond the map: the limit takes it
    Click(set, kIdOk);
  };
  for (unsigned close : {unsigned{kIdCancel}, unsigned{kIdOk}}) {
    DuringModal([&](DLG_CLASS& form) {
      DuringModal(clickCells);
      Click(form, DLG_GROUPPOS::kIdEdit);
      EXPECT_EQ(List(form, DLG_GROUPPOS::kIdList)->item(0)->text(), QStringLiteral("1 north    中心座標(19,0)"));
      Click(form, close);
    });
    RunPositionGroups(nullptr);
    if (close == kIdCancel) {
      EXPECT_EQ(SavedBytes(g_Stage), before);
    }
  }
  const cGroupPos& group = g_Stage.m_vecGroupPos[1];
  // The cell clicked twice went and came back: it is last.
  EXPECT_EQ(group.m_vecPos, (VECTOR_CLASS<cMapPos>{{2, 1}, {1, 1}}));
  EXPECT_EQ(std::tie(group.m_strName, group.m_nCenterX), std::make_tuple(std::string("north"), 19));
}

TEST_F(StageFormsTest, SettingsOkWritesTheFieldsShownAndResizesCancelLeavesTheBytes) {
  const std::vector<unsigned char> before = SavedBytes(g_Stage);
  auto edit = [](DLG_CLASS& form) {
    Type(form, DLG_STAGE::kIdName, "Ridge");
    Type(form, DLG_STAGE::kIdWidth, "10");
    Type(form, DLG_STAGE::kIdExpRate, "1200");  // beyond 999: the limit takes it
    Choose(form, DLG_STAGE::kIdBgm, 1);
    Click(form, DLG_STAGE::kIdAllGroups);
  };
  DuringModal([&](DLG_CLASS& form) {
    edit(form);
    Click(form, kIdCancel);
  });
  EXPECT_EQ(RunStageSettings(nullptr), 0);
  EXPECT_EQ(SavedBytes(g_Stage), before);

  cStage expected;
  expected.Copy(g_Stage);
  expected.m_strName = "Ridge", expected.m_nExpRate = 999, expected.m_nBgm = 1, expected.m_bAllGroups = 0;
  expected.Resize(10, 15);
  DuringModal([&](DLG_CLASS& form) {
    edit(form);
    Click(form, kIdOk);
  });
  EXPECT_EQ(RunStageSettings(nullptr), 1);
  EXPECT_EQ(SavedBytes(g_Stage), SavedBytes(expected));
}

TEST_F(StageFormsTest, DescriptionLinesComeFromTheirFormAndAFifthIsRefused) {
  g_Stage.m_vecLoseCond.resize(4);
  g_Stage.m_vecGroupPos.resize(3);
  DuringModal([this](DLG_CLASS& form) {
    auto& stage = static_cast<DLG_STAGE&>(form);
    // Four lines and the blank row: an insert there beeps and opens no form.
    EXPECT_EQ(List(form, DLG_STAGE::kIdLoseList)->count(), 5);
    List(form, DLG_STAGE::kIdLoseList)->setCurrentRow(4);
    Click(form, unsigned{DLG_STAGE::kIdLoseList} + DLG_STAGE::kInsertOffset);
    EXPECT_EQ(m_prompt.beeps, 1);

    DuringModal([](DLG_CLASS& line) {
      // Only what the target needs is open.
      QWidget* chara = line.GetDlgItem(DLG_ENDCOND::kIdChara);
      QWidget* x = line.GetDlgItem(DLG_ENDCOND::kIdX);
      EXPECT_FALSE(chara->isEnabled());
      Choose(line, DLG_ENDCOND::kIdFocus, DLG_ENDCOND::kFocusCell);
      EXPECT_EQ(std::make_pair(chara->isEnabled(), x->isEnabled()), std::make_pair(false, true));
      Type(line, DLG_ENDCOND::kIdText, "Hold");
      Type(line, DLG_ENDCOND::kIdX, "64");
      Click(line, kIdOk);
    });
    Click(form, unsigned{DLG_STAGE::kIdWinList} + DLG_STAGE::kInsertOffset);
    EXPECT_EQ(List(form, DLG_STAGE::kIdWinList)->item(0)->text(), QStringLiteral("1 Hold"));
    DuringModal([](DLG_CLASS& line) { Click(line, kIdCancel); });
    Click(form, unsigned{DLG_STAGE::kIdWinList} + DLG_STAGE::kInsertOffset);
    EXPECT_EQ(stage.m_aDesc[DLG_STAGE::kWin].work->Count(), 1) << "a declined line goes again";
    // A click in another list keeps this list's edits.
    List(form, DLG_STAGE::kIdLoseList)->setCurrentRow(1);
    EXPECT_EQ(List(form, DLG_STAGE::kIdWinList)->item(0)->text(), QStringLiteral("1 Hold"));
    Click(form, kIdOk);
  });
  ASSERT_EQ(RunStageSettings(nullptr), 1);
  ASSERT_EQ(g_Stage.m_vecWinCond.Count(), 1);
  const cEndCond& line = g_Stage.m_vecWinCond[0];
  // The form's limit is 64, not the map's; the line keeps the groups it named none of.
  EXPECT_EQ(std::tie(line.m_strText, line.m_nFocus, line.m_nFocusX, line.m_nFocusGroup, line.m_nShowGroup),
            std::make_tuple(std::string("Hold"), 4, 64, 0, 0));
}

}  // namespace
