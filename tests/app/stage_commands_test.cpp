// The stage editor's commands as the menu and toolbar run them: enabling, the file
// commands with their dialogs and questions, leaving with unsaved changes, and the
// event palette's context menu.

#include <gtest/gtest.h>

#include <filesystem>
#include <tuple>

#include "app/stage_commands.h"
#include "platform/cp932.h"
#include "project/project_globals.h"
#include "stage/edit_state.h"
#include "stage/event_menu.h"
#include "stage/map_cursor.h"
#include "stage/map_edit.h"
#include "support/test_env.h"

namespace fs = std::filesystem;

namespace {

class cWindowsHost : public cMapEditHost {
 public:
  void DestroyMain() override { ++rebuilds; }
  void UpdateTitle() override { ++titles; }
  bool RunForm(int command) override { return command == formWeHave; }
  int PopupEventMenu(const bool* enabled) override {
    menuEnabled.assign(enabled, enabled + kEventMenu.size());
    return menuChoice;
  }
  int rebuilds = 0, titles = 0, formWeHave = 0, menuChoice = 0;
  std::vector<bool> menuEnabled;
};

class StageCommandsTest : public ProjectDirTest {
 protected:
  void SetUp() override {
    ProjectDirTest::SetUp();
    ResetProjectGlobals();
    fs::create_directories("data/stg");
    fs::create_directories("e_data");
    g_vecLand.resize(4);
    g_EditState = cEditState{};
    g_Cursor.Reset();
    g_EditConfig.m_nUndoDepth = 5;
    SetMapEditHost(&m_host);
  }
  void TearDown() override {
    SetMapEditHost(nullptr);
    g_EditState = cEditState{};
    ProjectDirTest::TearDown();
  }
  // A stage of `width` cells saved as data\stg\<name>.stg2, open or not.
  std::string SaveStageFile(const std::string& name, int width) {
    g_Stage.Init();
    g_Stage.Resize(width, 5);
    const std::string stored = "data\\stg\\" + name + ".stg2";
    EXPECT_TRUE(g_Stage.SaveFile(stored.c_str()));
    return stored;
  }
  void OpenStage(const std::string& stored) {
    ASSERT_TRUE(g_Stage.LoadFile(stored.c_str()));
    g_EditState.m_bStageOpen = 1;
    g_EditState.m_strStagePath = stored;
  }
  bool Enabled(int id) { return CommandEnabled(*FindStageCommand(id)); }
  std::string Native(const std::string& relative) { return (m_dir / relative).string(); }

  cWindowsHost m_host;
};

TEST_F(StageCommandsTest, EnablingFollowsTheOpenStageAndTheHistory) {
  for (int id : {IDM_SAVE, IDM_UNDO, IDM_REDO, IDT_PALETTE_CHIP, IDM_CLOSE, IDM_CLEAR_EVENTS, IDM_STAGE_SETTINGS})
    EXPECT_FALSE(Enabled(id)) << id;
  for (int id : {IDM_NEW, IDM_OPEN, IDM_DATABASE, IDM_TEST_PLAY, IDT_TEST_PLAY, IDM_SAVE_PALETTE})
    EXPECT_TRUE(Enabled(id)) << id;
  EXPECT_FALSE(RunStageCommand(IDM_SAVE_KEY)) << "a disabled command does not run from its shortcut either";

  OpenStage(SaveStageFile("a", 10));
  EXPECT_TRUE(Enabled(IDM_SAVE));
  EXPECT_FALSE(Enabled(IDM_UNDO));
  PushUndo();
  EXPECT_TRUE(Enabled(IDM_UNDO));
  EXPECT_TRUE(RunStageCommand(IDM_UNDO_KEY));
  EXPECT_EQ(std::make_tuple(Enabled(IDM_UNDO), Enabled(IDM_REDO)), std::make_tuple(false, true));

  // The palette's menu item and toolbar button show the current palette.
  EXPECT_TRUE(RunStageCommand(IDT_PALETTE_EVENT));
  EXPECT_TRUE(CommandChecked(*FindStageCommand(IDM_PALETTE_EVENT)));
  EXPECT_FALSE(CommandChecked(*FindStageCommand(IDT_PALETTE_CHIP)));
}

TEST_F(StageCommandsTest, EveryMenuAndToolbarEntryNamesACommandOnce) {
  std::vector<int> seen;
  for (const cMenuRow& row : StageMenu())
    if (row.kind == eMenuRow::kItem) {
      const cStageCommand* command = FindStageCommand(row.id);
      ASSERT_NE(command, nullptr) << row.id;
      EXPECT_NE(command->menuText, nullptr) << row.id;
      seen.push_back(row.id);
    }
  for (int id : StageToolbar())
    if (id != 0) EXPECT_NE(FindStageCommand(id)->toolText, nullptr) << id;
  std::sort(seen.begin(), seen.end());
  EXPECT_EQ(std::adjacent_find(seen.begin(), seen.end()), seen.end());
  for (const cStageCommand& c : StageCommands())
    if (c.menuText != nullptr) EXPECT_TRUE(std::binary_search(seen.begin(), seen.end(), c.id)) << c.id;
}

TEST_F(StageCommandsTest, NewAsksOnlyItsOwnQuestionAndTheFirstSaveAsksWhereAfterwardsTheTitleHoldsThePath) {
  const std::string defaultStage = SaveStageFile("Default", 12);
  g_EditConfig.m_strDefaultStage = defaultStage;
  OpenStage(SaveStageFile("a", 10));
  g_EditState.m_bStageModified = 1;
  m_prompt.answers = {IDNO};
  RunStageCommand(IDM_NEW);
  ASSERT_EQ(m_prompt.shown.size(), 1u);
  EXPECT_EQ(m_prompt.shown[0].caption, CP932_TEXT("新規作成の確認"));
  EXPECT_EQ(g_Stage.m_nWidth, 10) << "no keeps the stage";

  m_prompt.answers = {IDYES};
  PushUndo();
  RunStageCommand(IDM_NEW);
  EXPECT_EQ(std::make_tuple(g_Stage.m_nWidth, g_EditState.m_strStagePath, g_EditState.m_bStageModified,
                            g_EditState.m_History.CanUndo(), m_host.rebuilds),
            std::make_tuple(12, std::string(), 0, false, 1));

  // A stage without a file: "上書き保存" opens the save dialog.
  g_EditState.m_bStageModified = 1;
  m_prompt.files = {{Native("data/stg/new.stg2")}};
  RunStageCommand(IDM_SAVE);
  ASSERT_EQ(m_prompt.fileAsks.size(), 1u);
  EXPECT_TRUE(m_prompt.fileAsks[0].save);
  EXPECT_EQ(m_prompt.fileAsks[0].title, "保存先のファイルの選択");
  EXPECT_EQ(g_EditState.m_strStagePath, "data\\stg\\new.stg2");
  EXPECT_EQ(std::make_tuple(g_EditState.m_bStageModified, m_host.titles), std::make_tuple(0, 1));
  EXPECT_TRUE(fs::exists("data/stg/new.stg2"));
  EXPECT_TRUE(fs::exists("data/EventPlt.dat")) << "the event palette is saved with the stage";

  // Now it overwrites without asking; a cancelled "新規保存" keeps the flag.
  g_EditState.m_bStageModified = 1;
  RunStageCommand(IDM_SAVE);
  EXPECT_EQ(std::make_tuple(m_prompt.fileAsks.size(), g_EditState.m_bStageModified), std::make_tuple(1u, 0));
  g_EditState.m_bStageModified = 1;
  RunStageCommand(IDM_SAVE_AS);
  EXPECT_EQ(std::make_tuple(m_prompt.fileAsks.size(), g_EditState.m_bStageModified), std::make_tuple(2u, 1));
}

TEST_F(StageCommandsTest, OpenAsksNothingDropsTheChangesAndAFailedOpenChangesNothing) {
  const std::string other = SaveStageFile("other", 7);
  OpenStage(SaveStageFile("a", 10));
  g_EditState.m_bStageModified = 1;
  PushUndo();

  m_prompt.files = {{Native("data/stg/missing.stg2")}};
  RunStageCommand(IDM_OPEN_KEY);
  EXPECT_EQ(std::make_tuple(g_Stage.m_nWidth, g_EditState.m_strStagePath, g_EditState.m_bStageModified),
            std::make_tuple(10, std::string("data\\stg\\a.stg2"), 1));

  m_prompt.files = {{Native("data/stg/other.stg2")}};
  RunStageCommand(IDM_OPEN);
  EXPECT_TRUE(m_prompt.shown.empty());
  EXPECT_EQ(m_prompt.fileAsks.back().initialDir, Native("data/stg"));
  EXPECT_EQ(std::make_tuple(g_Stage.m_nWidth, g_EditState.m_strStagePath, g_EditState.m_bStageModified,
                            g_EditState.m_History.CanUndo()),
            std::make_tuple(7, other, 0, false));

  // The palette is not the stage: its edits are still asked about after the stage goes.
  g_EditState.m_bEventPltModified = 1;
  RunStageCommand(IDM_CLOSE);
  EXPECT_EQ(std::make_tuple(g_EditState.m_bStageOpen, g_EditState.m_strStagePath, g_EditState.m_bEventPltModified),
            std::make_tuple(0, std::string(), 1));
}

TEST_F(StageCommandsTest, LeavingAsksForTheStageThenThePaletteAndCancelKeepsEverything) {
  OpenStage(SaveStageFile("a", 10));
  g_EditState.m_bStageModified = 1;
  g_EditState.m_bEventPltModified = 1;
  m_prompt.answers = {IDCANCEL};
  EXPECT_EQ(AskSave(), 0);
  EXPECT_EQ(std::make_tuple(g_EditState.m_bStageModified, g_EditState.m_bEventPltModified), std::make_tuple(1, 1));

  // No for the stage still asks for the palette.
  m_prompt.shown.clear();
  m_prompt.answers = {IDNO, IDCANCEL};
  EXPECT_EQ(AskSave(), 0);
  ASSERT_EQ(m_prompt.shown.size(), 2u);
  EXPECT_EQ(m_prompt.shown[1].text, CP932_TEXT("イベントパレットが変更された可能性があります。\n保存しますか？"));

  m_prompt.answers = {IDYES, IDYES};
  EXPECT_EQ(AskSave(), 1);
  EXPECT_EQ(std::make_tuple(g_EditState.m_bStageModified, g_EditState.m_bEventPltModified), std::make_tuple(0, 0));

  // Yes whose save does not happen keeps the window: here a new stage whose file is not chosen.
  g_EditState.m_strStagePath.clear();
  g_EditState.m_bStageModified = 1;
  m_prompt.files = {{}};
  m_prompt.answers = {IDYES};
  EXPECT_EQ(AskSave(), 0);
  EXPECT_EQ(g_EditState.m_bStageModified, 1);

  // The palette's question comes with no stage open too.
  g_EditState.m_bStageOpen = 0;
  g_EditState.m_bStageModified = 1;
  g_EditState.m_bEventPltModified = 1;
  m_prompt.shown.clear();
  m_prompt.answers = {IDNO};
  EXPECT_EQ(AskSave(), 1);
  ASSERT_EQ(m_prompt.shown.size(), 1u);
  EXPECT_EQ(m_prompt.shown[0].caption, CP932_TEXT("保存確認"));
}

TEST_F(StageCommandsTest, TheDefaultStageIsStoredAtOnceAndFormsWeDoNotHaveBeep) {
  SaveStageFile("Mine", 9);
  m_prompt.files = {{Native("data/stg/Mine.stg2")}};
  RunStageCommand(IDM_DEFAULT_STAGE);
  EXPECT_EQ(g_EditConfig.m_strDefaultStage, "data\\stg\\Mine.stg2");
  cEditConfig stored;
  ASSERT_TRUE(stored.LoadFile(kEditConfigPath));
  EXPECT_EQ(stored.m_strDefaultStage, "data\\stg\\Mine.stg2");

  m_host.formWeHave = IDM_TEST_PLAY_SETTINGS;
  RunStageCommand(IDM_TEST_PLAY_SETTINGS);
  RunStageCommand(IDM_DATABASE);
  EXPECT_EQ(m_prompt.beeps, 1);
}

TEST_F(StageCommandsTest, TheEventMenuWorksOnTheClickedCellAndACopyOfNothingKeepsTheClipboard) {
  OpenStage(SaveStageFile("a", 10));
  cEvent event;
  event.m_strName = "e";
  g_Stage.PutEvent(event, 2, 1);
  g_Cursor.Top() = {2, 1, 64, 32};

  m_host.menuChoice = IDM_EVENT_COPY;
  EventContextMenu();
  EXPECT_EQ(m_host.menuEnabled, (std::vector<bool>{true, true, true, false, true, true}));
  EXPECT_EQ(std::make_tuple(g_EditState.m_bEventClip, g_EditState.m_EventClip.m_strName, g_Cursor.Depth()),
            std::make_tuple(1, std::string("e"), 1));

  // On an empty cell: copy sets the flag and keeps the old content; paste places it.
  g_Cursor.Top() = {4, 3, 128, 96};
  EventContextMenu();
  EXPECT_EQ(m_host.menuEnabled, (std::vector<bool>{false, false, false, true, true, false}));
  EXPECT_EQ(g_EditState.m_EventClip.m_strName, "e");
  m_host.menuChoice = IDM_EVENT_PASTE;
  EventContextMenu();
  ASSERT_EQ(g_Stage.m_vecEvent.size(), 2u);
  EXPECT_EQ(std::make_tuple(g_Stage.m_vecEvent[1].m_nX, g_Stage.m_vecEvent[1].m_nY), std::make_tuple(4, 3));

  // Cut and delete make undo steps; a dismissed menu still pops its frame.
  m_host.menuChoice = IDM_EVENT_CUT;
  EventContextMenu();
  EXPECT_EQ(g_Stage.m_vecEvent.size(), 1u);
  g_Cursor.Top() = {2, 1, 64, 32};
  m_host.menuChoice = IDM_EVENT_DELETE;
  EventContextMenu();
  EXPECT_TRUE(g_Stage.m_vecEvent.empty());
  EXPECT_EQ(g_EditState.m_History.UndoCount(), 3);
  Undo();
  EXPECT_EQ(g_Stage.m_vecEvent.size(), 1u);
  m_host.menuChoice = 0;
  EventContextMenu();
  EXPECT_EQ(g_Cursor.Depth(), 1);
}

}  // namespace
