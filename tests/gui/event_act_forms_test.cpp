// The forms of the event actions as the author meets them: a new action of every
// kind confirmed as it opens, a damaged one opened and declined, the status action's
// refusals in the start event, and which slots each form lets the author set.

#include <QComboBox>
#include <QLineEdit>
#include <QTest>
#include <climits>
#include <map>

#include "event/event_summary.h"
#include "forms/event/event_act_form.h"
#include "forms/event/event_act_form_base.h"
#include "forms/input_forms.h"
#include "gui/form_probe.h"
#include "gui/stage_form_support.h"
#include "platform/cp932.h"
#include "sound/sound_start.h"

namespace {

// Every list an action refers to has rows with short names that read the same in
// any code page.
class EventActFormTest : public StageFormTest {
 protected:
  void SetUp() override {
    StageFormTest::SetUp();
    Name(g_Database.m_vecPicture, "Pic");
    Name(g_Database.m_vecSound, "Snd");
    Name(g_Database.m_vecBgm, "Bgm");
    Name(g_vecLand, "Land");
    Name(g_vecFriend, "Ally");
    Name(g_Stage.m_vecGroupPos, "Grp");
    Name(g_vecSkillList, "List");
    for (cSkillList& list : g_vecSkillList) Name(list.m_vecSkill, list.m_strName + "-");
    g_vecGValInfo.resize(kCommonVarRows);
    g_vecGValInfo[1].m_strName = "Var1";
  }
  template <class Row>
  static void Name(VECTOR_CLASS<Row>& rows, const std::string& stem) {
    rows.resize(3);
    for (int i = 0; i < 3; ++i) rows[i].m_strName = stem + std::to_string(i);
  }
};

cEventAct NewAct(int kind) {
  cEventAct act;
  act.m_nKind = kind;
  return act;
}

std::string RowText(const cEventAct& act) {
  std::string row;
  EventActRowText(row, 0, act);
  return row;
}

// The summary that a new action of each kind reads as, on the lists of the fixture.
const std::map<int, const char*> kNewActRows = {
    {1, "メッセージ : "},
    {2, "ピクチャー : Pic1"},
    {3, "ウエイト : 10"},
    {4, "マップカーソルの移動 : このイベント"},
    {5, "ワープ : (0,0)"},
    {6, "敵グループの操作 : グループ 1 を ON"},
    {7, "敵のコピー : グループ 1"},
    {8, "味方の配置 : Ally1"},
    {9, "初期位置の変更"},
    {10, "イベント変数の操作 : イベント変数 ＝ 0"},
    {11, "コモン変数の操作 : コモン変数「Var1」＝ 0"},
    {12, "マップチップの変更 : マップ全範囲内 の 全て を Land0 に変更"},
    {13, "イベントのグラフィックを変更 : 0 番に変更"},
    {14, "効果音の再生 : Snd1"},
    {15, "BGMの変更 : ステージ のBGMを Bgm0 に変更"},
    {16, "ステータスの操作： キャラ の HP を ＝ 0"},
    {17, "所持金の操作 : +0"},
    {18, "スキルの習得 : List0-1"},
    {19, "ストックの操作 : List0-1 +1"},
    {20, "商品の追加 : List0-1"},
    {21, "スキルをランダムに獲得 : List0 ランク 0～0 の ストックを獲得 回数1"},
    {22, "仲間屋の変更 : Ally1 +0"},
    {23, "パーティーの変更 : Ally1 +1"},
};

TEST_F(EventActFormTest, ANewActionConfirmedAsItOpensHoldsItsKindsDefaultsAndReadsSo) {
  for (int kind = 1; kind <= 23; ++kind) {
    SCOPED_TRACE(kind);
    ASSERT_TRUE(EventActHasForm(kind));
    cEventAct act = NewAct(kind);
    DuringModal([](DLG_CLASS& form) {
      EXPECT_EQ(ProbeOpenForm(form), std::vector<std::string>{});
      Click(form, kIdOk);
    });
    ASSERT_EQ(RunEventActForm(act, {.bNewAct = true}), 1);
    EXPECT_EQ(act.m_vecInt, EventActDefaultInts(kind));
    EXPECT_EQ(act.m_vecStr.Count(), EventActInfoOf(kind).m_nStrCount);
    EXPECT_EQ(RowText(act), Cp932FromLiteral(kNewActRows.at(kind)));
  }
  // The kinds that only end the stage, and the one no form makes, open nothing.
  for (int kind : {0, 24, 25, 26, 27}) EXPECT_FALSE(EventActHasForm(kind)) << kind;
  EXPECT_TRUE(m_prompt.shown.empty());
}

// A file may hold any value in any slot, and slots short of the kind's count.
cEventAct DamagedAct(int kind) {
  cEventAct act = NewAct(kind);
  const int count = EventActInfoOf(kind).m_nIntCount;
  for (int s = 0; s < count; ++s) act.m_vecInt.push_back(s % 2 == 0 ? INT_MAX : INT_MIN);
  if (EventActInfoOf(kind).m_nStrCount > 0) act.m_vecStr.push_back(std::string(2000, 'x') + "\r\n" + std::string(80, 'y'));
  return act;
}

TEST_F(EventActFormTest, AnActionWithValuesNoFormOffersOpensAndCancelLeavesItsBytes) {
  for (int kind = 1; kind <= 23; ++kind) {
    SCOPED_TRACE(kind);
    cEventAct act = DamagedAct(kind);
    const std::vector<unsigned char> before = SavedBytes(act);
    DuringModal([](DLG_CLASS& form) { Click(form, kIdCancel); });
    EXPECT_EQ(RunEventActForm(act, {}), 0);
    EXPECT_EQ(SavedBytes(act), before);
  }
  // An action short of slots gains them, and only them, even on Cancel.
  cEventAct shortAct = NewAct(EACT_PICTURE);
  shortAct.m_vecInt = {2, 1};
  DuringModal([](DLG_CLASS& form) { Click(form, kIdCancel); });
  RunEventActForm(shortAct, {});
  EXPECT_EQ(shortAct.m_vecInt.Count(), 18);
  EXPECT_EQ((std::vector<int>(shortAct.m_vecInt.begin(), shortAct.m_vecInt.begin() + 3)), (std::vector<int>{2, 1, 0}));
}

TEST_F(EventActFormTest, OkBringsNumbersIntoTheFormsRangesAndKeepsChoicesNoRowShows) {
  cEventAct act = DamagedAct(EACT_MESSAGE);
  DuringModal([](DLG_CLASS& form) { Click(form, kIdOk); });
  ASSERT_EQ(RunEventActForm(act, {}), 1);
  const auto& I = act.m_vecInt;
  EXPECT_EQ(I[0], INT_MAX) << "a position no row shows stays";
  EXPECT_EQ(std::make_tuple(I[1], I[2], I[8], I[14], I[23], I[25]), std::make_tuple(-20, 15, 9999, 999, 0, 1));
  EXPECT_EQ(std::make_tuple(I[5], I[6]), std::make_tuple(1, 1)) << "a flag is 0 or 1";
  EXPECT_LE(act.m_vecStr[0].size(), 29u * 32u) << "the text is held to its lines";
}

TEST_F(EventActFormTest, TheStatusActionInTheStartEventRefusesCharactersAndEventVariablesInOrder) {
  using F = DLG_EACT_BASE;
  const std::string noStatus = Cp932FromLiteral("初期イベントではキャラのステータスは利用できません！");
  const std::string noEventVar = Cp932FromLiteral("初期イベントではイベント変数は利用できません！");
  cEventAct act = NewAct(EACT_STATUS);
  DuringModal([](DLG_CLASS& form) {
    Click(form, kIdOk);  // left: the character's status
    Choose(form, F::SlotId(0), 1);
    Choose(form, F::SlotId(1), 1);
    Choose(form, F::SlotId(6), 2);
    Click(form, kIdOk);  // right: the character's status, before the left's event variable
    Choose(form, F::SlotId(6), 3);
    Choose(form, F::SlotId(10), 1);
    Click(form, kIdOk);  // left: the event variable, before the right's
    Choose(form, F::SlotId(1), 0);
    Click(form, kIdOk);  // right: the event variable
    EXPECT_TRUE(form.m_hWnd) << "every refusal keeps the form open";
    Choose(form, F::SlotId(10), 0);
    Click(form, kIdOk);
  });
  ASSERT_EQ(RunEventActForm(act, {.bNewAct = true, .bStartEvent = true}), 1);
  std::vector<std::string> shown;
  for (const auto& box : m_prompt.shown) shown.push_back(box.text);
  EXPECT_EQ(shown, (std::vector<std::string>{noStatus, noStatus, noEventVar, noEventVar}));
  EXPECT_EQ(RowText(act), Cp932FromLiteral("ステータスの操作： 「001 Var1」を ＝ 「001 Var1」"));

  // Outside the start event the character's status is what a new action offers.
  const cActKindForm& kindForm = *ActKindFormOf(EACT_STATUS);
  EXPECT_STREQ(kindForm.startEventRefusal(EventActDefaultInts(EACT_STATUS)), "初期イベントではキャラのステータスは利用できません！");
  cEventAct plain = NewAct(EACT_STATUS);
  DuringModal([](DLG_CLASS& form) { Click(form, kIdOk); });
  EXPECT_EQ(RunEventActForm(plain, {.bNewAct = true}), 1);
}

// One slot set to a value, and what that does to another slot of the same form.
struct cRuleCase {
  int kind;
  std::vector<std::pair<int, int>> set;  // slot, value; on top of the kind's defaults
  int slot;
  bool applies;
};

TEST_F(EventActFormTest, EachFormLetsTheAuthorSetOnlyTheSlotsThatApply) {
  const std::vector<cRuleCase> cases = {
      // Message: coordinates for the two positions that take them, the time for a
      // timed message, the key toggle and the screen follow for one that stays.
      {1, {}, 1, false}, {1, {{0, 9}}, 1, true}, {1, {{0, 10}}, 2, true},
      {1, {}, 8, false}, {1, {{7, 2}}, 8, true}, {1, {{7, 1}}, 6, true}, {1, {{7, 1}}, 9, true}, {1, {}, 6, false},
      {1, {{10, 0}}, 11, false}, {1, {}, 11, true},
      {1, {}, 17, false}, {1, {{16, 1}}, 25, true}, {1, {{16, 1}}, 19, false}, {1, {{16, 1}, {18, 8}}, 20, true},
      {1, {{18, 8}}, 20, false},
      // Erasing by id: only the id and the erase itself remain, the text too goes.
      {1, {{15, 1}}, 13, true}, {1, {{15, 1}}, 14, true}, {1, {{15, 1}}, 15, true},
      {1, {{15, 1}}, 0, false}, {1, {{15, 1}}, kTextSlot, false}, {1, {}, kTextSlot, true},
      {2, {{3, 1}}, 2, true}, {2, {{3, 1}}, 0, false}, {2, {{4, 9}}, 5, true}, {2, {}, 6, false},
      {2, {{15, 2}}, 16, true}, {2, {{15, 1}}, 13, true}, {2, {{15, 1}}, 17, true}, {2, {}, 17, false},
      {4, {}, 1, false}, {4, {{0, 2}}, 1, true}, {4, {{0, 3}}, 3, true}, {4, {{0, 2}}, 2, false},
      {8, {}, 3, false}, {8, {{2, 0}}, 4, true}, {8, {}, 5, false}, {8, {{1, 0}}, 5, true},
      {12, {}, 2, false}, {12, {{1, 1}}, 2, true}, {12, {}, 4, false}, {12, {{0, 6}}, 4, true},
      {15, {}, 2, true}, {15, {{0, 3}}, 2, false},
      // Status: each side shows what it reads.
      {16, {}, 3, true}, {16, {}, 1, false}, {16, {{0, 1}}, 2, true}, {16, {{0, 1}, {1, 1}}, 2, false},
      {16, {{0, 1}}, 4, false}, {16, {}, 7, true}, {16, {{6, 1}}, 9, true}, {16, {{6, 1}}, 7, false},
      {16, {{6, 2}}, 13, true}, {16, {{6, 3}}, 11, true}, {16, {{6, 3}, {10, 1}}, 11, false}, {16, {{6, 3}}, 12, false},
      {20, {}, 3, false}, {20, {{2, 0}}, 3, true},
  };
  for (const cRuleCase& c : cases) {
    cActSlots I = EventActDefaultInts(c.kind);
    for (auto [slot, value] : c.set) I[slot] = value;
    EXPECT_EQ(ActKindFormOf(c.kind)->applies(c.slot, I), c.applies) << "kind " << c.kind << " slot " << c.slot;
  }
}

TEST_F(EventActFormTest, TheFormFollowsWhatTheScreenShowsAndTheSkillFollowsItsList) {
  using F = DLG_EACT_BASE;
  cEventAct message = NewAct(EACT_MESSAGE);
  DuringModal([](DLG_CLASS& form) {
    QWidget* x = form.GetDlgItem(F::SlotId(1));
    QWidget* text = form.GetDlgItem(F::kText);
    EXPECT_FALSE(x->isEnabled());
    Choose(form, F::SlotId(0), 9);
    EXPECT_TRUE(x->isEnabled());
    Click(form, F::SlotId(15));
    EXPECT_EQ(std::make_pair(text->isEnabled(), form.GetDlgItem(F::SlotId(14))->isEnabled()), std::make_pair(false, true));
    Click(form, kIdCancel);
  });
  EXPECT_EQ(RunEventActForm(message, {.bNewAct = true}), 0);
  EXPECT_EQ(message.m_vecInt, EventActDefaultInts(EACT_MESSAGE)) << "Cancel leaves the defaults written for it";

  cEventAct learn = NewAct(EACT_LEARNSKILL);
  DuringModal([](DLG_CLASS& form) {
    auto* skill = static_cast<QComboBox*>(form.GetDlgItem(F::SlotId(1)));
    Choose(form, F::SlotId(0), 1);
    // Both boxes number their rows, as every table's rows are numbered in these forms.
    EXPECT_EQ(static_cast<QComboBox*>(form.GetDlgItem(F::SlotId(0)))->itemText(1), QStringLiteral("001 List1"));
    EXPECT_EQ(skill->itemText(0), QStringLiteral("001 List1-1"));
    EXPECT_EQ(skill->currentIndex(), 0);
    Click(form, kIdOk);
  });
  ASSERT_EQ(RunEventActForm(learn, {.bNewAct = true}), 1);
  EXPECT_EQ(learn.m_vecInt, (VECTOR_CLASS<std::int32_t>{1, 1}));
}

TEST_F(EventActFormTest, ChoosingASoundOrPressingPlayPlaysItAndAFileThatWillNotPlayIsTold) {
  StartOfflineSound(0);
  g_Database.m_vecSound[2].m_strPath = "wave\\missing.wav";
  g_Database.m_vecBgm[2].m_strPath = "bgm\\missing.ogg";
  cEventAct sound = NewAct(EACT_SOUND);
  DuringModal([](DLG_CLASS& form) {
    Choose(form, DLG_EACT_BASE::SlotId(0), 0);  // a row without a file plays nothing
    Choose(form, DLG_EACT_BASE::SlotId(0), 1);
    EXPECT_TRUE(form.m_hWnd);
    Click(form, kIdOk);
  });
  EXPECT_EQ(RunEventActForm(sound, {.bNewAct = true}), 1);
  EXPECT_EQ(sound.m_vecInt[0], 2);
  cEventAct music = NewAct(EACT_BGM);
  DuringModal([](DLG_CLASS& form) {
    Click(form, DLG_EACT_BASE::kPlay);  // "なし"
    Choose(form, DLG_EACT_BASE::SlotId(1), 2);
    Click(form, DLG_EACT_BASE::kPlay);
    Click(form, kIdCancel);
  });
  EXPECT_EQ(RunEventActForm(music, {.bNewAct = true}), 0);
  EndSound();
  std::vector<std::string> shown;
  for (const auto& box : m_prompt.shown) shown.push_back(box.text);
  EXPECT_EQ(shown, std::vector<std::string>(2, Cp932FromLiteral("読み込み失敗！")));
}

TEST_F(EventActFormTest, ARenamedCommonVariableShowsAtOnceAndStaysWhenTheActionIsDeclined) {
  using F = DLG_EACT_BASE;
  cEventAct act = NewAct(EACT_COMMONVAR);
  DuringModal([](DLG_CLASS& form) {
    DuringModal([](DLG_CLASS& input) {
      auto* edit = static_cast<QLineEdit*>(input.GetDlgItem(DLG_INPUT_STR::kIdInput));
      edit->selectAll();
      QTest::keyClicks(edit, "Gold");
      Click(input, kIdOk);
    });
    Click(form, F::RenameId(0));
    EXPECT_EQ(static_cast<QComboBox*>(form.GetDlgItem(F::SlotId(0)))->currentText(), QStringLiteral("001 Gold"));
    Click(form, kIdCancel);
  });
  EXPECT_EQ(RunEventActForm(act, {.bNewAct = true}), 0);
  EXPECT_EQ(g_vecGValInfo[1].m_strName, "Gold");
}

}  // namespace
