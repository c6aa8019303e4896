#pragma once
// A test play: the editor saves what the author works on, starts the game program on
// the project in its own directory, and hears from it when the game has ended. While
// a test runs (bTestPlay), idle frames stop and a further test is refused.

#include <cstdint>
#include <filesystem>
#include <functional>
#include <string>

extern std::uint32_t g_dwTestPlayStart;  // the clock at the last launch
// The stored path of the stage the running test started on; empty with no stage open.
extern std::string g_strTestPlayStage;

// The message a game program sends the editor; dwData 0 says that it has ended.
struct cCopyData {
  std::uint32_t dwData = 0;
  std::string data;
};

// The command F5: finds the game program, saves the open stage and the event palette,
// and starts the program. Every refusal is said in a box.
void StartTestPlay();

// A message from the game program: dwData 0 ends the test and brings the editor's main
// window forward; any other value is ignored.
void OnGameEnded(const cCopyData& copyData);

// How the program is started: detached, by default. Tests put their own in place; an
// empty function restores the default.
using GameLauncher = std::function<bool(const std::filesystem::path& program)>;
void SetGameLauncher(GameLauncher launcher);
