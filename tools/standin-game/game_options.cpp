#include "game_options.h"

#include <charconv>
#include <cstdlib>
#include <sstream>

std::vector<std::string> GameArguments(int argc, char** argv) {
  std::vector<std::string> args(argv + 1, argv + argc);
  const char* inherited = std::getenv("ORTALUNE_STANDIN_OPTIONS");
  if (!args.empty() || inherited == nullptr) return args;
  std::istringstream words(inherited);
  for (std::string word; words >> word;) args.push_back(word);
  return args;
}

cGameOptions ParseGameOptions(std::span<const std::string> args) {
  cGameOptions options;
  for (std::size_t i = 0; i < args.size(); ++i) {
    const std::string& arg = args[i];
    if (arg == "--no-window") {
      options.bWindow = false;
    } else if (arg == "--no-end-message") {
      options.bEndMessage = false;
    } else if (arg == "--help" || arg == "-h") {
      options.bHelp = true;
    } else if (arg == "--seconds") {
      const std::string value = i + 1 < args.size() ? args[++i] : std::string();
      int seconds = -1;
      auto [end, ec] = std::from_chars(value.data(), value.data() + value.size(), seconds);
      if (ec != std::errc() || end != value.data() + value.size() || seconds < 0)
        options.error = "--seconds wants a whole number of seconds, not \"" + value + "\"";
      else
        options.nSeconds = seconds;
    } else {
      options.error = "unknown option \"" + arg + "\"";
    }
  }
  return options;
}
