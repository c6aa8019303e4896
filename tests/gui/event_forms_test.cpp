// The event form, the action chooser and the action palette as the author uses them.
// The kinds' own forms stand behind an interface; here a stand-in takes their place
// that, like them, gives a new action its kind's defaults and answers OK or Cancel.

#include <QComboBox>
#include <QListWidget>
#include <QMenu>
#include <QTest>
#include <filesystem>

#include "event/event_summary.h"
#include "event/stored_events.h"
#include "editor/dlg_event.h"
#include "forms/event/action_palette.h"
#include "forms/event/dlg_event_set.h"
#include "forms/event/dlg_eventact.h"
#include "forms/event/dlg_eventactplt.h"
#include "forms/input_forms.h"
#include "gui/stage_form_support.h"
#include "kernel/record_vector_file.h"
#include "platform/cp932.h"
#include "project/project_files.h"
#include "stage/map_edit.h"

namespace {

class EventFormTest : public StageFormTest {
 protected:
  void SetUp() override {
    StageFormTest::SetUp();
    std::filesystem::create_directories(Path("data/database"));
    m_previousForms = SetEventActForms({[](int kind) { return kind != EACT_STAGECLEAR && kind != EACT_GAMEOVER; },
                                        [this](cEventAct& act, const cEventActFormContext& context) {
                                          m_contexts.push_back(context);
                                          m_kinds.push_back(act.m_nKind);
                                          if (context.bNewAct) SetEventActDefaults(act);
                                          return m_nAnswer;
                                        }});
  }
  void TearDown() override {
    SetEventActForms(m_previousForms);
    StageFormTest::TearDown();
  }

  // The form open (modeless, as the hands of a test need it) on `event`.
  std::unique_ptr<DLG_EVENT_SET> Open(cEvent& event, eEventTarget kind = eEventTarget::kStage) {
    auto form = std::make_unique<DLG_EVENT_SET>(event, kind, nullptr);
    EXPECT_TRUE(form->Create(0, true));
    return form;
  }
  static QListWidget* List(DLG_CLASS& form, unsigned id) { return static_cast<QListWidget*>(form.GetDlgItem(id)); }
  static void SelectRow(DLG_CLASS& form, unsigned id, int row) {
    List(form, id)->setCurrentRow(row, QItemSelectionModel::ClearAndSelect);
  }
  static std::vector<std::string> Rows(DLG_EVENT_SET& form) {
    std::vector<std::string> rows;
    for (const std::string& r : form.m_ActList.Box().rows) rows.push_back(Cp932ToUtf8Lossy(r));
    rows.pop_back();  // the blank row
    return rows;
  }
  // Inserts an action through the chooser, pressing the button of `kind`, or closing
  // the chooser for 0.
  void InsertThrough(DLG_EVENT_SET& form, int kind) {
    DuringModal([kind](DLG_CLASS& chooser) {
      if (kind == 0) chooser.SendCommand(kIdCancel, kNotifyClicked);
      else Click(chooser, DLG_EVENTACT::ButtonOf(kind));
    });
    Click(form, DLG_EVENT_SET::kIdActInsert);
  }
  static cEventAct Act(int kind) {
    cEventAct act;
    act.m_nKind = kind;
    SetEventActDefaults(act);
    return act;
  }

  int m_nAnswer = 1;
  std::vector<cEventActFormContext> m_contexts;
  std::vector<int> m_kinds;
  cEventActForms m_previousForms;
  cGlobalsGuard<VECTOR_CLASS<cEventActPlt>, cEvent> m_stores{g_vecEventActPlt, g_StartEvent};
};

TEST_F(EventFormTest, InsertsGoWhereTheSelectionStandsAndADeclinedOneLeavesTheListAsItWas) {
  cEvent event;
  auto form = Open(event);
  EXPECT_EQ(Rows(*form), std::vector<std::string>{}) << "a new event's page has only the blank row";
  EXPECT_EQ(form->m_ActList.Box().Count(), 1);

  InsertThrough(*form, EACT_WAIT);  // at the blank row: appended
  InsertThrough(*form, EACT_MONEY);  // the selection moved past the first: after it
  EXPECT_EQ(Rows(*form), (std::vector<std::string>{"ウエイト : 10", "所持金の操作 : +0"}));
  EXPECT_EQ(form->m_ActList.m_nCurSel, 2);
  std::string pageRow;
  EventPageRowText(pageRow, 0, form->m_Event.m_vecPage[0]);
  EXPECT_EQ(Cp932ToUtf8Lossy(pageRow), "ｱｸｼｮﾝ×2") << "the page row has the actions";

  // Declined in the kind's form, or in the chooser itself: nothing stays.
  SelectRow(*form, DLG_EVENT_SET::kIdActList, 1);
  m_nAnswer = 0;
  InsertThrough(*form, EACT_WAIT);
  InsertThrough(*form, 0);
  EXPECT_EQ(Rows(*form), (std::vector<std::string>{"ウエイト : 10", "所持金の操作 : +0"}));
  EXPECT_EQ(form->m_ActList.m_nCurSel, 1);
  EXPECT_EQ(m_kinds, (std::vector<int>{EACT_WAIT, EACT_MONEY, EACT_WAIT}));
  EXPECT_TRUE(m_contexts[0].bNewAct);

  // A kind without a form is confirmed by its button alone.
  m_nAnswer = 1;
  InsertThrough(*form, EACT_STAGECLEAR);
  EXPECT_EQ(Rows(*form)[1], "ステージクリア");
  form->SendCommand(kIdCancel, kNotifyClicked);
}

TEST_F(EventFormTest, AnExistingActionGoesStraightToItsKindsFormAndTheBlankRowOpensNothing) {
  cEvent event;
  event.m_vecPage[0].m_vecAct.push_back(Act(EACT_WAIT));
  auto form = Open(event);
  SelectRow(*form, DLG_EVENT_SET::kIdActList, 1);
  Click(*form, DLG_EVENT_SET::kIdActEdit);
  EXPECT_TRUE(m_kinds.empty()) << "the blank row has no action";
  EXPECT_EQ(DLG_EVENTACT::Live(), nullptr);

  SelectRow(*form, DLG_EVENT_SET::kIdActList, 0);
  Click(*form, DLG_EVENT_SET::kIdActEdit);  // the chooser presses the kind's button itself
  ASSERT_EQ(m_kinds, std::vector<int>{EACT_WAIT});
  EXPECT_FALSE(m_contexts[0].bNewAct);
  EXPECT_EQ(DLG_EVENTACT::Live(), nullptr);
  form->SendCommand(kIdCancel, kNotifyClicked);
}

TEST_F(EventFormTest, CancelLeavesTheEventAndOkWritesItAfterTheUndoStep) {
  cEvent& placed = g_Stage.m_vecEvent.emplace_back();
  placed.m_vecPage[0].m_vecAct.push_back(Act(EACT_WAIT));
  const std::vector<unsigned char> before = SavedBytes(placed);
  for (bool ok : {false, true}) {
    auto form = Open(placed);
    Click(*form, DLG_EVENT_SET::kIdPageInsert);
    InsertThrough(*form, EACT_MONEY);
    Click(*form, DLG_EVENT_SET::kIdTurnA);
    SelectRow(*form, DLG_EVENT_SET::kIdPageList, 1);  // the first page moved down
    SelectRow(*form, DLG_EVENT_SET::kIdActList, 0);
    Click(*form, DLG_EVENT_SET::kIdActDelete);
    form->SendCommand(ok ? kIdOk : kIdCancel, kNotifyClicked);
    if (!ok) {
      EXPECT_EQ(SavedBytes(placed), before);
    }
  }
  ASSERT_EQ(placed.m_vecPage.Count(), 2);
  EXPECT_EQ(placed.m_vecPage[0].m_bTurnCondA, 1);
  EXPECT_EQ(placed.m_vecPage[0].m_vecAct.Count(), 1);
  EXPECT_EQ(placed.m_vecPage[1].m_vecAct.Count(), 0) << "the delete reached the second page";
  Undo();
  EXPECT_EQ(SavedBytes(g_Stage.m_vecEvent[0]), before) << "one undo step brings the event back";
}

TEST_F(EventFormTest, ThePageRulesReadTheScreenAndADisabledFieldKeepsItsValue) {
  cEvent event;
  event.m_vecPage[0].m_nTargetChara = 2;
  event.m_vecPage[0].m_nTiming = 3;
  auto form = Open(event);
  auto enabled = [&](unsigned id) { return form->GetDlgItem(id)->isEnabled(); };
  EXPECT_FALSE(enabled(DLG_EVENT_SET::kIdChara)) << "条件なし: the character is off";
  EXPECT_FALSE(enabled(DLG_EVENT_SET::kIdEnemyGroupCheck));
  EXPECT_TRUE(enabled(DLG_EVENT_SET::kIdCommand)) << "a command timing";
  EXPECT_FALSE(enabled(DLG_EVENT_SET::kIdTurnABase));
  EXPECT_FALSE(enabled(DLG_EVENT_SET::kIdPlus));

  Choose(*form, DLG_EVENT_SET::kIdRange, 3);
  EXPECT_TRUE(enabled(DLG_EVENT_SET::kIdPosGroup));
  EXPECT_TRUE(enabled(DLG_EVENT_SET::kIdEnemyGroupCheck)) << "敵";
  EXPECT_FALSE(enabled(DLG_EVENT_SET::kIdEnemyGroup)) << "its check is off";
  EXPECT_FALSE(enabled(DLG_EVENT_SET::kIdFriend));
  Click(*form, DLG_EVENT_SET::kIdEnemyGroupCheck);
  EXPECT_TRUE(enabled(DLG_EVENT_SET::kIdEnemyGroup));
  Click(*form, DLG_EVENT_SET::kIdTurnA);
  EXPECT_TRUE(enabled(DLG_EVENT_SET::kIdPlus));

  Choose(*form, DLG_EVENT_SET::kIdRange, 0);
  EXPECT_FALSE(enabled(DLG_EVENT_SET::kIdChara));
  EXPECT_FALSE(enabled(DLG_EVENT_SET::kIdEnemyGroup));
  form->SendCommand(kIdOk, kNotifyClicked);
  EXPECT_EQ(event.m_vecPage[0].m_nTargetChara, 2);
  EXPECT_EQ(event.m_vecPage[0].m_bEnemyGroupCond, 1);
}

TEST_F(EventFormTest, OkOnATemplateOfThePaletteMakesAStepOfTheStageAsAPlacedEventDoes) {
  cEvent templ;
  Open(templ, eEventTarget::kTemplate)->SendCommand(kIdOk, kNotifyClicked);
  EXPECT_TRUE(g_EditState.m_History.CanUndo());
}

TEST_F(EventFormTest, TheStartEventOffersOnlyItsKindsAndOkSavesItsFile) {
  g_StartEvent = cEvent();
  auto form = Open(g_StartEvent, eEventTarget::kStart);
  for (unsigned id : {DLG_EVENT_SET::kIdPageList, DLG_EVENT_SET::kIdTiming, DLG_EVENT_SET::kIdName, DLG_EVENT_SET::kIdGraphic})
    EXPECT_FALSE(form->GetDlgItem(id)->isEnabled()) << id;
  EXPECT_TRUE(form->GetDlgItem(DLG_EVENT_SET::kIdActList)->isEnabled());
  EXPECT_TRUE(form->GetDlgItem(DLG_EVENT_SET::kIdActInsert)->isEnabled());

  std::vector<int> choosable;
  DuringModal([&](DLG_CLASS& chooser) {
    for (int kind = 1; kind <= 25; ++kind)
      if (chooser.GetDlgItem(DLG_EVENTACT::ButtonOf(kind))->isEnabled()) choosable.push_back(kind);
    Click(chooser, DLG_EVENTACT::ButtonOf(EACT_MONEY));
  });
  Click(*form, DLG_EVENT_SET::kIdActInsert);
  EXPECT_EQ(choosable, (std::vector<int>{11, 15, 16, 17, 19, 20, 21, 22, 23}));
  EXPECT_TRUE(m_contexts.at(0).bStartEvent);

  form->SendCommand(kIdOk, kNotifyClicked);
  cEvent saved;
  ASSERT_TRUE(saved.LoadFile(kStartEventPath));
  EXPECT_EQ(SavedBytes(saved), SavedBytes(g_StartEvent));
  EXPECT_EQ(saved.m_vecPage[0].m_vecAct.Count(), 1);
  EXPECT_FALSE(g_EditState.m_History.CanUndo()) << "the start event is no part of the stage";
}

TEST_F(EventFormTest, TheRenameOfACommonVariableShowsAtOnceAndVariableNoneBeeps) {
  FitCommonVarNames(g_vecGValInfo);
  cEvent event;
  event.m_vecPage[0].m_nCommonVar = 5;
  auto form = Open(event);
  EXPECT_TRUE(form->GetDlgItem(DLG_EVENT_SET::kIdCommonVarValue)->isEnabled());
  DuringModal([](DLG_CLASS& input) {
    QTest::keyClicks(input.GetDlgItem(cInputForm::kIdInput), QStringLiteral("gold"));
    Click(input, kIdOk);
  });
  Click(*form, DLG_EVENT_SET::kIdRename);
  EXPECT_EQ(g_vecGValInfo[5].m_strName, "gold");
  auto* combo = static_cast<QComboBox*>(form->GetDlgItem(DLG_EVENT_SET::kIdCommonVar));
  EXPECT_EQ(combo->currentText(), QStringLiteral("005 gold")) << "the selection stays, with its new name";
  EXPECT_TRUE(std::filesystem::exists(Path("data/GValInfo.dat")));

  Choose(*form, DLG_EVENT_SET::kIdCommonVar, 0);
  EXPECT_FALSE(form->GetDlgItem(DLG_EVENT_SET::kIdCommonVarValue)->isEnabled());
  Click(*form, DLG_EVENT_SET::kIdRename);
  EXPECT_EQ(m_prompt.beeps, 1);
  form->SendCommand(kIdCancel, kNotifyClicked);
}

class ActionPaletteTest : public EventFormTest {
 protected:
  void SetUp() override {
    EventFormTest::SetUp();
    g_vecEventActPlt.resize(2);
    g_vecEventActPlt[0].m_strName = CP932_TEXT("会話");
    g_vecEventActPlt[0].m_vecAct = {Act(EACT_MESSAGE), Act(EACT_MONEY), Act(EACT_WAIT)};
    g_vecEventActPlt[1].m_strName = CP932_TEXT("待つ");
    g_vecEventActPlt[1].m_vecAct = {Act(EACT_WAIT)};
    m_event.m_vecPage[0].m_vecAct.push_back(Act(EACT_WAIT));
  }
  static std::vector<std::string> MenuRows(QMenu* menu) {
    std::vector<std::string> rows;
    for (QAction* a : menu->actions()) rows.push_back(a->text().toStdString());
    return rows;
  }
  cEvent m_event;
};

TEST_F(ActionPaletteTest, TheMenuNamesEachEntryAndAPasteIntoTheStartEventKeepsOnlyItsKinds) {
  auto form = Open(m_event);
  EXPECT_EQ(MenuRows(form->PasteMenu()), (std::vector<std::string>{"01 会話", "02 待つ"})) << "（未登録） is gone";
  SelectRow(*form, DLG_EVENT_SET::kIdActList, 1);
  form->SendCommand(IDM_ACTPLT_PASTE + 0, 0);
  EXPECT_EQ(form->m_ActList.RowCount(), 4);
  form->SendCommand(IDM_ACTPLT_PASTE + 120, 0);  // past the rows the menu reaches
  EXPECT_EQ(form->m_ActList.RowCount(), 4);
  form->SendCommand(kIdCancel, kNotifyClicked);

  g_StartEvent = cEvent();
  auto start = Open(g_StartEvent, eEventTarget::kStart);
  start->SendCommand(IDM_ACTPLT_PASTE + 1, 0);  // only waits: nothing
  start->SendCommand(IDM_ACTPLT_PASTE + 0, 0);
  ASSERT_EQ(start->m_ActList.RowCount(), 1);
  EXPECT_EQ(start->m_PageEdit.m_vecAct[0].m_nKind, EACT_MONEY);
  EXPECT_EQ(m_prompt.beeps, 0);
  start->SendCommand(kIdCancel, kNotifyClicked);

  g_vecEventActPlt.clear();
  auto empty = Open(m_event);
  EXPECT_TRUE(empty->PasteMenu()->isEmpty());
  EXPECT_TRUE(empty->OverwriteMenu()->isEmpty());
  empty->SendCommand(kIdCancel, kNotifyClicked);
}

TEST_F(ActionPaletteTest, ANewSaveShowsTheNewEntryAndItsCancelKeepsThePaletteAndTheFile) {
  ASSERT_TRUE(SaveVector(g_vecEventActPlt, kEventActPltPath));
  const std::vector<unsigned char> file = FileBytes(Path("data/EventActionPlt.dat"));
  auto form = Open(m_event);
  SelectRow(*form, DLG_EVENT_SET::kIdActList, 0);
  int selected = -1;
  std::string contents;
  DuringModal([&](DLG_CLASS& plt) {
    auto& palette = static_cast<DLG_EVENTACTPLT&>(plt);
    selected = palette.m_List.m_nCurSel;
    contents = Cp932ToUtf8Lossy(palette.m_List.Box().rows[1]);
    Click(plt, kIdCancel);
  });
  form->SendCommand(IDM_ACTPLT_NEW, 0);
  EXPECT_EQ(selected, 2);
  EXPECT_EQ(contents, "2 待つ") << "the rows above stay";
  EXPECT_EQ(g_vecEventActPlt.Count(), 2);
  EXPECT_EQ(FileBytes(Path("data/EventActionPlt.dat")), file);

  // Confirmed with a name, it is the palette and its file at once.
  DuringModal([](DLG_CLASS& plt) {
    QTest::keyClicks(plt.GetDlgItem(DLG_EVENTACTPLT::kIdName), QStringLiteral("rest"));
    Click(plt, kIdOk);
  });
  form->SendCommand(IDM_ACTPLT_NEW, 0);
  ASSERT_EQ(g_vecEventActPlt.Count(), 3);
  EXPECT_EQ(g_vecEventActPlt[2].m_strName, "rest");
  EXPECT_EQ(g_vecEventActPlt[2].m_vecAct.Count(), 1);
  EXPECT_EQ(MenuRows(form->OverwriteMenu()).back(), "03 rest");
  VECTOR_CLASS<cEventActPlt> reread;
  ASSERT_TRUE(LoadVector(reread, kEventActPltPath));
  EXPECT_EQ(reread.Count(), 3);
  form->SendCommand(kIdCancel, kNotifyClicked);
}

TEST_F(ActionPaletteTest, The999thEntryIsMadeTheNextRefusedAndAnOverwriteAnsweredNoChangesNothing) {
  g_vecEventActPlt.resize(kActionPaletteMax - 1);
  auto form = Open(m_event);
  SelectRow(*form, DLG_EVENT_SET::kIdActList, 0);
  DuringModal([](DLG_CLASS& plt) { Click(plt, kIdOk); });
  form->SendCommand(IDM_ACTPLT_NEW, 0);
  EXPECT_EQ(g_vecEventActPlt.Count(), kActionPaletteMax);
  EXPECT_TRUE(m_prompt.shown.empty());
  form->SendCommand(IDM_ACTPLT_NEW, 0);  // no form opens
  ASSERT_EQ(m_prompt.shown.size(), 1u);
  EXPECT_EQ(m_prompt.shown[0].text, CP932_TEXT("999個までしか保存できません！"));
  EXPECT_EQ(g_vecEventActPlt.Count(), kActionPaletteMax);

  std::filesystem::remove(Path("data/EventActionPlt.dat"));
  const std::vector<unsigned char> entry = SavedBytes(g_vecEventActPlt[0]);
  m_prompt.answers = {IDNO, IDYES};
  form->SendCommand(IDM_ACTPLT_OVERWRITE + 0, 0);
  EXPECT_EQ(m_prompt.shown.back().text, CP932_TEXT("「会話」を上書きします。\nよろしいですか？\n"));
  EXPECT_EQ(SavedBytes(g_vecEventActPlt[0]), entry);
  EXPECT_FALSE(std::filesystem::exists(Path("data/EventActionPlt.dat")));
  form->SendCommand(IDM_ACTPLT_OVERWRITE + 0, 0);
  EXPECT_EQ(g_vecEventActPlt[0].m_strName, CP932_TEXT("会話")) << "the name stays";
  EXPECT_EQ(g_vecEventActPlt[0].m_vecAct.Count(), 1);
  EXPECT_TRUE(std::filesystem::exists(Path("data/EventActionPlt.dat"))) << "saved at once";
  form->SendCommand(kIdCancel, kNotifyClicked);
}

class EventPaletteTest : public EventFormTest {
 protected:
  void SetUp() override {
    EventFormTest::SetUp();
    g_vecEventPlt.resize(2);
    g_vecEventPlt[0].m_strName = CP932_TEXT("宝箱");
    g_vecEventPlt[1].m_strName = CP932_TEXT("扉");
    m_palette = std::make_unique<DLG_EVENT>(nullptr, nullptr, nullptr);
    ASSERT_TRUE(m_palette->Create(0, true));
    m_palette->m_Palette.m_fnEditEvent = [this](cEvent& event) {
      ++m_nForms;
      if (m_bConfirm) event.m_strName = CP932_TEXT("新しい");
      return m_bConfirm;
    };
  }
  void TearDown() override {
    m_palette.reset();
    EventFormTest::TearDown();
  }
  std::vector<std::string> Names() const {
    std::vector<std::string> names;
    for (const cEvent& e : g_vecEventPlt) names.push_back(Cp932ToUtf8Lossy(e.m_strName));
    return names;
  }
  std::unique_ptr<DLG_EVENT> m_palette;
  cGlobalsGuard<VECTOR_CLASS<cEvent>> m_templates{g_vecEventPlt};
  bool m_bConfirm = false;
  int m_nForms = 0;
};

TEST_F(EventPaletteTest, TheSelectionIsThePensTemplateAndACopyFillsTheMapsClipboard) {
  SelectRow(*m_palette, cEventPalette::kIdList, 1);
  EXPECT_EQ(std::make_tuple(g_EditState.m_nSelected, g_EditState.m_nListSel, g_EditState.m_nBrushW),
            std::make_tuple(1, 1, 1));
  EXPECT_EQ(g_EditState.m_PutEvent.m_strName, CP932_TEXT("扉"));
  m_palette->SendCommand(40031, 0);  // Ctrl+C
  EXPECT_EQ(g_EditState.m_bEventClip, 1);
  EXPECT_EQ(g_EditState.m_EventClip.m_strName, CP932_TEXT("扉"));
  EXPECT_EQ(g_EditState.m_bEventPltModified, 0) << "a copy changes nothing";

  SelectRow(*m_palette, cEventPalette::kIdList, 2);  // the blank row
  EXPECT_EQ(std::make_tuple(g_EditState.m_nSelected, g_EditState.m_nBrushW, g_EditState.m_nBrushH),
            std::make_tuple(-1, 0, 0));
  Click(*m_palette, cEventPalette::kIdEdit);
  EXPECT_EQ(m_nForms, 0) << "the blank row names no template";

  g_EditConfig.m_PosEvent.m_bValid = 0;
  m_palette.reset();
  EXPECT_TRUE(g_EditConfig.m_PosEvent.m_bValid) << "its place is kept for the next time";
}

TEST_F(EventPaletteTest, ADeclinedInsertTakesItsRowAgainAndAConfirmedOneStays) {
  SelectRow(*m_palette, cEventPalette::kIdList, 1);
  Click(*m_palette, cEventPalette::kIdInsert);
  EXPECT_EQ(Names(), (std::vector<std::string>{"宝箱", "扉"}));
  EXPECT_EQ(m_palette->m_Palette.m_List.m_nCurSel, 1);
  m_bConfirm = true;
  m_palette->SendCommand(40069, 0);  // Ctrl+I
  EXPECT_EQ(Names(), (std::vector<std::string>{"宝箱", "新しい", "扉"}));
  EXPECT_EQ(g_EditState.m_PutEvent.m_strName, CP932_TEXT("新しい"));
  EXPECT_EQ(m_nForms, 2);
  EXPECT_EQ(g_EditState.m_bEventPltModified, 1);
}

TEST(ActionPaletteRules, TheContentsLineAndTheMenuRowsReadAsTheAuthorSeesThem) {
  cEventActPlt entry;
  entry.m_strName = CP932_TEXT("会話");
  for (int kind : {EACT_MESSAGE, EACT_WAIT}) {
    cEventAct act;
    act.m_nKind = kind;
    entry.m_vecAct.push_back(act);
  }
  EXPECT_EQ(Cp932ToUtf8Lossy(PaletteContentsText(entry)), "内容： メッセージ → ウエイト");
  EXPECT_EQ(Cp932ToUtf8Lossy(PaletteMenuRowText(99, entry)), "100 会話");
  EXPECT_EQ(PalettePasteEntry(IDM_ACTPLT_PASTE + 99), 99);
  EXPECT_EQ(PalettePasteEntry(IDM_ACTPLT_PASTE + 100), -1);
  EXPECT_EQ(PaletteOverwriteEntry(IDM_ACTPLT_PASTE), -1);
}

}  // namespace
