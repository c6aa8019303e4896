// The stand-in game program. The editor starts it for a test play, in the project's
// directory and without arguments; it reads the project and the stage to start on,
// shows that (or prints it where there is no display), and sends the end message.

#include <chrono>
#include <clocale>
#include <cstdio>
#include <thread>

#include "app/game_program.h"
#include "app/test_play_link.h"
#include "game_options.h"
#include "game_report.h"
#include "game_window.h"

// The mark by which the editor tells a game program from any other program.
__attribute__((used, section(ORTALUNE_GAME_MARK_SECTION))) const char kStandInMark[] = "GAME";

namespace {

void EndTestPlay(const cGameOptions& options) {
  if (!options.bEndMessage) {
    std::printf("ended without the end message\n");
  } else if (SendCopyData(0, {})) {
    std::printf("sent the end message\n");
  } else {
    std::fprintf(stderr, "standin-game: no editor listens for the end message\n");
  }
  std::fflush(stdout);
}

}  // namespace

int main(int argc, char** argv) {
  std::setlocale(LC_NUMERIC, "C");
  const cGameOptions options = ParseGameOptions(GameArguments(argc, argv));
  if (options.bHelp || !options.error.empty()) {
    if (!options.error.empty()) std::fprintf(stderr, "standin-game: %s\n", options.error.c_str());
    std::fputs(kGameUsage, options.bHelp ? stdout : stderr);
    // A test play still ends, so that the editor does not wait for it in vain.
    if (!options.bHelp) EndTestPlay(options);
    return options.bHelp ? 0 : 2;
  }
  const cGameReport report = ReadGame();
  for (const std::string& line : report.lines) std::printf("%s\n", line.c_str());
  std::fflush(stdout);
  if (options.bWindow && DisplayAvailable())
    RunGameWindow(argc, argv, report, options.nSeconds);
  else if (options.nSeconds > 0)
    std::this_thread::sleep_for(std::chrono::seconds(options.nSeconds));
  EndTestPlay(options);
  return report.bLoaded ? 0 : 1;
}
