#include "app/world_commands.h"

#include "platform/cp932.h"
#include "platform/diagnostics.h"
#include "project/project_globals.h"
#include "stage/world_edit.h"

namespace {

cWorldEditHost& Host() { return WorldEditHost(); }

void Save(int) { SaveWorldMap(); }

// The flag stays as it was, so that the closing question still comes.
void SaveAndClose(int) {
  const int modified = g_EditState.m_bWorldModified;
  SaveWorldMap();
  g_EditState.m_bWorldModified = modified;
  Host().CloseWindow();
}

void Close(int) { Host().CloseWindow(); }
void UndoCommand(int) { WorldUndo(); }
void RedoCommand(int) { WorldRedo(); }

void Palette(int id) {
  ChangeWorldPalette(id == IDW_PALETTE_EVENT || id == IDW_TOOL_EVENT ? WORLD_PALETTE_EVENT : WORLD_PALETTE_CHIP);
  Host().FocusWindow();
}

void Clear(int id) { ClearWorldData(id == IDW_CLEAR_CHIPS); }

// A new size, start and back image: the map is clamped to them, and the history, whose
// steps hold cells of the old size, is given up, whether or not the size changed.
void Settings(int) {
  Host().ShowPalettes(false);
  if (Host().RunSettings()) {
    g_WorldMap.Clamp();
    Host().MapResized();
    Host().Redraw();
    WorldClearHistory();
    g_EditState.m_bWorldModified = 1;
  }
  Host().ShowPalettes(true);
}

bool Enabled(const cStageCommand& command) {
  switch (command.enable) {
    case eCommandEnable::kUndo: return g_WorldEditState.m_History.CanUndo();
    case eCommandEnable::kRedo: return g_WorldEditState.m_History.CanRedo();
    default: return true;
  }
}

bool Checked(const cStageCommand& command) {
  return command.palette >= 0 && g_WorldEditState.m_nPalette == command.palette;
}

using enum eCommandEnable;
constexpr int kNone = -1;

constexpr cStageCommand kCommands[] = {
    {IDW_SAVE, "上書き保存(&S)", "上書き保存", "Ctrl+S", IDW_SAVE_KEY, kAlways, kNone, Save},
    {IDW_SAVE_CLOSE, "上書き保存して終了(&C)", nullptr, nullptr, 0, kAlways, kNone, SaveAndClose},
    {IDW_CLOSE, "保存せずに終了(&E)", nullptr, nullptr, 0, kAlways, kNone, Close},
    {IDW_UNDO, "元に戻す(&U)", "元に戻す", "Ctrl+Z", IDW_UNDO_KEY, kUndo, kNone, UndoCommand},
    {IDW_REDO, "やり直し(&R)", "やり直し", "Ctrl+Y", IDW_REDO_KEY, kRedo, kNone, RedoCommand},
    {IDW_PALETTE_CHIP, "マップチップ(&M)", nullptr, nullptr, 0, kAlways, WORLD_PALETTE_CHIP, Palette},
    {IDW_PALETTE_EVENT, "イベント(&E)", nullptr, nullptr, 0, kAlways, WORLD_PALETTE_EVENT, Palette},
    {IDW_CLEAR_CHIPS, "全てのマップチップをクリア(&M)", nullptr, nullptr, 0, kAlways, kNone, Clear},
    {IDW_CLEAR_EVENTS, "全てのイベントをクリア(&V)", nullptr, nullptr, 0, kAlways, kNone, Clear},
    {IDW_SETTINGS, "ワールドマップの設定(&W)", nullptr, nullptr, 0, kAlways, kNone, Settings},
    {IDW_TOOL_CHIP, nullptr, "マップチップパレット", nullptr, 0, kAlways, WORLD_PALETTE_CHIP, Palette},
    {IDW_TOOL_EVENT, nullptr, "イベントパレット", nullptr, 0, kAlways, WORLD_PALETTE_EVENT, Palette},
};

using enum eMenuRow;
constexpr cMenuRow kMenuBar[] = {
    {kMenu, "ファイル(&F)", 0},
    {kItem, nullptr, IDW_SAVE},
    {kItem, nullptr, IDW_SAVE_CLOSE},
    {kItem, nullptr, IDW_CLOSE},
    {kMenu, "編集(&E)", 0},
    {kItem, nullptr, IDW_UNDO},
    {kItem, nullptr, IDW_REDO},
    {kSub, "パレット変更(&P)", 0},
    {kItem, nullptr, IDW_PALETTE_CHIP},
    {kItem, nullptr, IDW_PALETTE_EVENT},
    {kEndSub, nullptr, 0},
    {kSub, "配置データのクリア(&C)", 0},
    {kItem, nullptr, IDW_CLEAR_CHIPS},
    {kItem, nullptr, IDW_CLEAR_EVENTS},
    {kEndSub, nullptr, 0},
    {kMenu, "設定(&S)", 0},
    {kItem, nullptr, IDW_SETTINGS},
};

constexpr int kToolbar[] = {IDW_SAVE, 0, IDW_UNDO, IDW_REDO, 0, IDW_TOOL_CHIP, IDW_TOOL_EVENT};

}  // namespace

const cCommandSet& WorldCommandSet() {
  static const cCommandSet set{kCommands, kMenuBar, kToolbar, Enabled, Checked};
  return set;
}

bool RunWorldCommand(int id) {
  const cStageCommand* command = WorldCommandSet().Find(id);
  if (command == nullptr || !Enabled(*command)) return false;
  command->run(command->id);
  Host().UpdateCommands();
  return true;
}

bool SaveWorldMap() {
  // A map that did not reach its file stays modified, so that leaving still asks.
  if (!g_WorldMap.SaveFile(kWorldMapPath)) return false;
  g_EditState.m_bWorldModified = 0;
  return true;
}

bool AskCloseWorldMap() {
  if (!g_EditState.m_bWorldModified) return true;
  Host().EnableAllWindows(false);
  const int answer = MesBox(nullptr, CP932_TEXT("ワールドマップが変更された可能性があります。\n保存しますか？"),
                            CP932_TEXT("保存確認"), MB_YESNOCANCEL);
  Host().EnableAllWindows(true);
  switch (answer) {
    case IDCANCEL: return false;
    case IDYES: return SaveWorldMap();  // a failed save keeps the window and the edits
    default: g_WorldMap.LoadFile(kWorldMapPath); return true;
  }
}
