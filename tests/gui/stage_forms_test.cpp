// The position group forms, as the author uses them: OK writes what the forms show,
// Cancel leaves the stage's bytes.

#include <QLineEdit>
#include <QListWidget>
#include <QTest>
#include <tuple>

#include "editor/dlg_grouppos.h"
#include "editor/dlg_grouppos_set.h"
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
    if (close == kIdCancel) EXPECT_EQ(SavedBytes(g_Stage), before);
  }
  const cGroupPos& group = g_Stage.m_vecGroupPos[1];
  // The cell clicked twice went and came back: it is last.
  EXPECT_EQ(group.m_vecPos, (VECTOR_CLASS<cMapPos>{{2, 1}, {1, 1}}));
  EXPECT_EQ(std::tie(group.m_strName, group.m_nCenterX), std::make_tuple(std::string("north"), 19));
}

}  // namespace
