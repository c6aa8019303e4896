#include "app/stage_commands.h"

#include <algorithm>
#include <array>
#include <vector>

#include "app/test_play.h"
#include "kernel/record_vector_file.h"
#include "platform/cp932.h"
#include "platform/diagnostics.h"
#include "platform/stored_path.h"
#include "project/project_globals.h"
#include "stage/edit_state.h"
#include "stage/map_cursor.h"
#include "stage/map_edit.h"
#include "stage/stage_open.h"

namespace {

cEditState& ES() { return g_EditState; }
cMapEditHost& Host() { return MapEditHost(); }

// Every question and dialog of a command holds the other windows still.
int Ask(const char* text, const char* caption, unsigned style) {
  Host().EnableAllWindows(false);
  const int answer = MesBox(nullptr, Utf8ToCp932Lossy(text), Utf8ToCp932Lossy(caption), style);
  Host().EnableAllWindows(true);
  return answer;
}

void WarnOtherDrive() {
  Ask("オルタルーン本体が存在するドライブとステージファイルが存在するドライブとが異なります！\n"
      "全てのファイルは同一ドライブに保存することを推奨します。",
      "警告", MB_OK);
}

// A stage file from the open or save dialog. `native` is the path to read or write,
// `stored` its CP932 form. False when cancelled, or when the name has no CP932 form,
// which the project's files cannot hold (said).
bool ChooseStageFile(bool save, const char* title, const char* storedDir, std::string& native, std::string& stored) {
  cFileAsk ask;
  ask.save = save;
  ask.title = title;
  ask.initialDir = NativePathOf(storedDir).string();
  ask.filter = "StageFile ( *.stg2 )";
  ask.defaultExt = "stg2";
  std::vector<std::string> chosen;
  Host().EnableAllWindows(false);
  const bool ok = CurrentPrompt().ChooseFiles(nullptr, ask, chosen) && !chosen.empty();
  Host().EnableAllWindows(true);
  if (!ok) return false;
  native = chosen.front();
  if (!Utf8ToCp932(native, stored)) {
    Ask("このファイル名はプロジェクトに保存できない文字を含んでいます。", "ファイル名の確認", MB_OK);
    return false;
  }
  return true;
}

// New, open and close leave the stage unchanged since its file, with no history.
void AfterStageChange() {
  ClearHistory();
  RebuildMain();
  ES().m_bStageModified = 0;
}

void New(int) {
  if (ES().m_bStageOpen &&
      Ask("現在のステージは破棄されます。\n新規作成しますか？\n", "新規作成の確認", MB_YESNO) != IDYES)
    return;
  NewStageFromDefault();
  AfterStageChange();
}

// Open asks nothing: a stage with changes is dropped.
void Open(int) {
  std::string native, stored;
  if (!ChooseStageFile(false, "読み込むファイルの選択", "data\\stg", native, stored)) return;
  if (!MakeRelativePath(stored)) WarnOtherDrive();
  if (!g_Stage.LoadFile(stored.c_str())) return;  // the stage in memory stands as it was
  ES().m_bStageOpen = 1;
  ES().m_strStagePath = stored;
  AfterStageChange();
}

void Close(int) {
  Host().WaitCursor(true);
  ES().m_bStageOpen = 0;
  ES().m_strStagePath.clear();
  g_Stage.Init();
  AfterStageChange();
  Host().WaitCursor(false);
}

void SaveBoth(bool overwrite) {
  if (!ES().m_bStageOpen) return;
  SaveEventPalette();
  if (SaveStage(overwrite)) ES().m_bStageModified = 0;
  Host().UpdateTitle();
  Host().FocusMain();
}

void Save(int) { SaveBoth(true); }
void SaveAs(int) { SaveBoth(false); }
void SavePalette(int) { SaveEventPalette(); }

// A default stage on another drive is not taken.
void DefaultStage(int) {
  std::string native, stored;
  if (!ChooseStageFile(false, "デフォルトステージの選択", "data\\stg", native, stored)) return;
  if (!MakeRelativePath(stored)) return;
  g_EditConfig.m_strDefaultStage = stored;
  g_EditConfig.SaveFile(kEditConfigPath);
}

void UndoCommand(int) { Undo(); }
void RedoCommand(int) { Redo(); }

int PaletteOf(int id) {
  switch (id) {
    case IDM_PALETTE_ENEMY: case IDT_PALETTE_ENEMY: return PALETTE_ENEMY;
    case IDM_PALETTE_EVENT: case IDT_PALETTE_EVENT: return PALETTE_EVENT;
    default: return PALETTE_CHIP;
  }
}

void Palette(int id) {
  ChangePalette(PaletteOf(id));
  Host().FocusMain();
}

void Clear(int id) {
  const eClearKind kind = id == IDM_CLEAR_CHIPS ? eClearKind::kChips
                          : id == IDM_CLEAR_ENEMIES ? eClearKind::kEnemies
                                                    : eClearKind::kEvents;
  ClearPlacedData(kind);
}

// The forms of the stage, the project and the test play; a command whose form the
// program does not have refuses with a beep.
void Form(int id) {
  if (!Host().RunForm(id)) CurrentPrompt().Beep();
}

void TestPlay(int) { StartTestPlay(); }

using enum eCommandEnable;
constexpr int kNone = -1;

constexpr cStageCommand kCommands[] = {
    {IDM_NEW, "ステージの新規作成(&N)", "新規作成", nullptr, 0, kAlways, kNone, New},
    {IDM_OPEN, "ステージを開く(&O)", "開く", "Ctrl+O", IDM_OPEN_KEY, kAlways, kNone, Open},
    {IDM_CLOSE, "ステージを閉じる(&C)", nullptr, nullptr, 0, kStageOpen, kNone, Close},
    {IDM_SAVE, "イベントパレットの上書き保存＆ステージの上書き保存(&S)", "上書き保存", "Ctrl+S", IDM_SAVE_KEY, kStageOpen,
     kNone, Save},
    {IDM_SAVE_AS, "イベントパレットの上書き保存＆ステージの新規保存(&A)", nullptr, nullptr, 0, kStageOpen, kNone, SaveAs},
    {IDM_SAVE_PALETTE, "イベントパレットの上書き保存(&B)", nullptr, nullptr, 0, kAlways, kNone, SavePalette},
    {IDM_DEFAULT_STAGE, "デフォルトステージの変更(&D)", nullptr, nullptr, 0, kAlways, kNone, DefaultStage},
    {IDM_UNDO, "元に戻す(&U)", "元に戻す", "Ctrl+Z", IDM_UNDO_KEY, kUndo, kNone, UndoCommand},
    {IDM_REDO, "やり直し(&R)", "やり直し", "Ctrl+Y", IDM_REDO_KEY, kRedo, kNone, RedoCommand},
    {IDM_PALETTE_CHIP, "マップチップ(&M)", nullptr, nullptr, 0, kStageOpen, PALETTE_CHIP, Palette},
    {IDM_PALETTE_ENEMY, "敵キャラ(&C)", nullptr, nullptr, 0, kStageOpen, PALETTE_ENEMY, Palette},
    {IDM_PALETTE_EVENT, "イベント(&E)", nullptr, nullptr, 0, kStageOpen, PALETTE_EVENT, Palette},
    {IDM_CLEAR_CHIPS, "全てのマップチップをクリア(&M)", nullptr, nullptr, 0, kStageOpen, kNone, Clear},
    {IDM_CLEAR_ENEMIES, "全ての敵をクリア(&C)", nullptr, nullptr, 0, kStageOpen, kNone, Clear},
    {IDM_CLEAR_EVENTS, "全てのイベントをクリア(&E)", nullptr, nullptr, 0, kStageOpen, kNone, Clear},
    {IDM_STAGE_SETTINGS, "ステージの設定(&E)", nullptr, nullptr, 0, kStageOpen, kNone, Form},
    {IDM_POSITION_GROUPS, "位置グループの設定(&P)", nullptr, nullptr, 0, kStageOpen, kNone, Form},
    {IDM_DATABASE, "データベース(&D)", nullptr, nullptr, 0, kAlways, kNone, Form},
    {IDM_START_EVENT, "初期イベント(&E)", nullptr, nullptr, 0, kAlways, kNone, Form},
    {IDM_WORLD_MAP, "ワールドマップ(&W)", nullptr, nullptr, 0, kAlways, kNone, Form},
    {IDM_TEST_PLAY, "テストプレイ(T)", nullptr, "F5;Ctrl+T", IDM_TEST_PLAY_KEY, kAlways, kNone, TestPlay},
    {IDM_TEST_PLAY_SETTINGS, "テストプレイの設定(&E)", nullptr, nullptr, 0, kAlways, kNone, Form},
    {IDT_PALETTE_CHIP, nullptr, "マップチップパレット", nullptr, 0, kStageOpen, PALETTE_CHIP, Palette},
    {IDT_PALETTE_ENEMY, nullptr, "敵パレット", nullptr, 0, kStageOpen, PALETTE_ENEMY, Palette},
    {IDT_PALETTE_EVENT, nullptr, "イベントパレット", nullptr, 0, kStageOpen, PALETTE_EVENT, Palette},
    {IDT_TEST_PLAY, nullptr, "テストプレイ", nullptr, 0, kAlways, kNone, TestPlay},
};

using enum eMenuRow;
constexpr cMenuRow kMenuBar[] = {
    {kMenu, "ファイル(&F)", 0},
    {kItem, nullptr, IDM_NEW},
    {kItem, nullptr, IDM_OPEN},
    {kItem, nullptr, IDM_CLOSE},
    {kItem, nullptr, IDM_SAVE},
    {kItem, nullptr, IDM_SAVE_AS},
    {kItem, nullptr, IDM_SAVE_PALETTE},
    {kItem, nullptr, IDM_DEFAULT_STAGE},
    {kMenu, "編集(&E)", 0},
    {kItem, nullptr, IDM_UNDO},
    {kItem, nullptr, IDM_REDO},
    {kSub, "パレット変更(&P)", 0},
    {kItem, nullptr, IDM_PALETTE_CHIP},
    {kItem, nullptr, IDM_PALETTE_ENEMY},
    {kItem, nullptr, IDM_PALETTE_EVENT},
    {kEndSub, nullptr, 0},
    {kSub, "配置データのクリア(&C)", 0},
    {kItem, nullptr, IDM_CLEAR_CHIPS},
    {kItem, nullptr, IDM_CLEAR_ENEMIES},
    {kItem, nullptr, IDM_CLEAR_EVENTS},
    {kEndSub, nullptr, 0},
    {kMenu, "ステージ(&S)", 0},
    {kItem, nullptr, IDM_STAGE_SETTINGS},
    {kItem, nullptr, IDM_POSITION_GROUPS},
    {kMenu, "プロジェクト(&P)", 0},
    {kItem, nullptr, IDM_DATABASE},
    {kItem, nullptr, IDM_START_EVENT},
    {kItem, nullptr, IDM_WORLD_MAP},
    {kMenu, "テストプレイ(&T)", 0},
    {kItem, nullptr, IDM_TEST_PLAY},
    {kItem, nullptr, IDM_TEST_PLAY_SETTINGS},
};

constexpr int kToolbar[] = {IDM_NEW,          IDM_OPEN,          IDM_SAVE,          0, IDM_UNDO, IDM_REDO, 0,
                            IDT_PALETTE_CHIP, IDT_PALETTE_ENEMY, IDT_PALETTE_EVENT, 0, IDT_TEST_PLAY};

}  // namespace

std::span<const cStageCommand> StageCommands() { return kCommands; }
std::span<const cMenuRow> StageMenu() { return kMenuBar; }
std::span<const int> StageToolbar() { return kToolbar; }

const cStageCommand* cCommandSet::Find(int id) const {
  for (const cStageCommand& c : commands)
    if (c.id == id || (c.shortcutId != 0 && c.shortcutId == id)) return &c;
  return nullptr;
}

const cCommandSet& StageCommandSet() {
  static const cCommandSet set{kCommands, kMenuBar, kToolbar, CommandEnabled, CommandChecked};
  return set;
}

const cStageCommand* FindStageCommand(int id) { return StageCommandSet().Find(id); }

bool CommandEnabled(const cStageCommand& command) {
  const cEditState& es = ES();
  switch (command.enable) {
    case kAlways: return true;
    case kStageOpen: return es.m_bStageOpen != 0;
    case kUndo: return es.m_bStageOpen != 0 && es.m_History.CanUndo();
    case kRedo: return es.m_bStageOpen != 0 && es.m_History.CanRedo();
  }
  return false;
}

bool CommandChecked(const cStageCommand& command) {
  return command.palette != kNone && ES().m_nPalette == command.palette;
}

bool RunStageCommand(int id) {
  const cStageCommand* command = FindStageCommand(id);
  if (command == nullptr || !CommandEnabled(*command)) return false;
  command->run(command->id);
  Host().UpdateCommands();
  return true;
}

int SaveStage(bool bOverwrite) {
  cEditState& es = ES();
  if (bOverwrite && !es.m_strStagePath.empty()) return g_Stage.SaveFile(es.m_strStagePath.c_str());
  std::string native, stored;
  if (!ChooseStageFile(true, "保存先のファイルの選択", "data\\stg\\", native, stored)) return 0;
  if (!g_Stage.SaveFile(std::filesystem::path(native))) return 0;
  // The warning changes nothing: the stage is saved, and its path stays absolute.
  if (!MakeRelativePath(stored)) WarnOtherDrive();
  es.m_strStagePath = stored;
  return 1;
}

// A palette that could not be written stays marked, so that leaving still asks.
int SaveEventPalette() {
  if (!SaveVector(g_vecEventPlt, kEventPltPath)) return 0;
  ES().m_bEventPltModified = 0;
  return 1;
}

int AskSave() {
  cEditState& es = ES();
  if (es.m_bStageOpen && es.m_bStageModified) {
    switch (Ask("ステージが変更された可能性があります。\n保存しますか？", "保存確認", MB_YESNOCANCEL)) {
      case IDCANCEL: return 0;
      case IDYES: {
        const bool saved = SaveStage(true);
        if (saved) es.m_bStageModified = 0;
        Host().UpdateTitle();
        // A save refused or whose file was not chosen keeps the program: leaving would
        // lose the stage the author wanted kept.
        if (!saved) return 0;
        break;
      }
      default: break;
    }
  }
  if (es.m_bEventPltModified) {
    switch (Ask("イベントパレットが変更された可能性があります。\n保存しますか？", "保存確認", MB_YESNOCANCEL)) {
      case IDCANCEL: return 0;
      case IDYES:
        if (!SaveEventPalette()) return 0;
        break;
      default: break;
    }
  }
  return 1;
}

void RebuildMain() {
  cEditState& es = ES();
  Host().DestroyMain();
  // The stage's state starts anew; the palette and the world map are not the stage, and
  // their edits must still be asked about when the program ends.
  const int open = es.m_bStageOpen;
  const std::string path = es.m_strStagePath;
  const int paletteModified = es.m_bEventPltModified, worldModified = es.m_bWorldModified;
  es.Reset();
  es.m_bStageOpen = open;
  es.m_strStagePath = path;
  es.m_bEventPltModified = paletteModified;
  es.m_bWorldModified = worldModified;
  g_Cursor.Reset();
  Host().BuildMain();
  if (es.m_bStageOpen) ChangePalette(es.m_nPalette);
  Host().FocusMain();
}
