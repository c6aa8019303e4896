#include "app/test_play.h"

#include "app/app_frame.h"
#include "app/game_program.h"
#include "app/stage_commands.h"
#include "platform/clock.h"
#include "platform/cp932.h"
#include "platform/diagnostics.h"
#include "platform/process_launch.h"
#include "stage/edit_state.h"
#include "stage/map_edit.h"

std::uint32_t g_dwTestPlayStart = 0;
std::string g_strTestPlayStage;

namespace {

// A key held down repeats the command; within this time a running test is no mistake.
constexpr std::uint32_t kRepeatAbsorbMs = 3000;

GameLauncher g_Launcher;

bool Launch(const std::filesystem::path& program) {
  return g_Launcher ? g_Launcher(program) : LaunchDetached(program);
}

// The open stage and the event palette on disk, their flags and histories cleared, so
// that the game reads what the author sees and a later exit asks nothing. False, with
// the reason said, when the stage has no file to go to.
bool SaveForTest() {
  cEditState& es = g_EditState;
  if (es.m_strStagePath.empty()) {
    ErrorBox(CP932_TEXT("ステージファイルのパスが無効です！\n1度はステージを保存しないと、テストプレイは実行できません！"));
    return false;
  }
  if (!SaveStage(true)) {
    ErrorBox(CP932_TEXT("ステージファイルのパスが無効です！\n1度ステージを保存する必要があります！"));
    return false;
  }
  SaveEventPalette();  // clears its flag only once written, so that leaving still asks
  es.m_bStageModified = 0;
  ClearHistory();
  MapEditHost().UpdateCommands();
  return true;
}

}  // namespace

void SetGameLauncher(GameLauncher launcher) { g_Launcher = std::move(launcher); }

void StartTestPlay() {
  std::filesystem::path program;
  if (!FindGameProgram(program)) {
    ErrorBox(CP932_TEXT("ゲームプログラムが見つかりません！"));
    return;
  }
  if (bTestPlay) {
    if (GetTickMs() - g_dwTestPlayStart >= kRepeatAbsorbMs)
      ErrorBox(CP932_TEXT("二重起動はできません！\n二重起動でないのにこのエラーが出る場合はエディタープログラムとゲーム"
                          "プログラムのバージョンが合っていない可能性があります。"));
    return;
  }
  g_dwTestPlayStart = GetTickMs();
  bTestPlay = 1;
  if (g_EditState.m_bStageOpen && !SaveForTest()) {
    bTestPlay = 0;
    return;
  }
  g_strTestPlayStage = g_EditState.m_bStageOpen ? g_EditState.m_strStagePath : std::string();
  if (!Launch(program)) {
    bTestPlay = 0;
    ErrorBox(CP932_TEXT("ゲームプログラムが呼び出せません！"));
    return;
  }
  g_bAppActive = 0;
}

void OnGameEnded(const cCopyData& copyData) {
  if (copyData.dwData != 0) return;
  MapEditHost().FocusMain();
  ECSP("bTestPlay = FALSE;");
  bTestPlay = 0;
}
