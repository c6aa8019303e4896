#include "platform/runtime_path.h"

#include <cstdlib>
#include <unistd.h>

std::string RuntimeFilePath(std::string_view name, std::string_view suffix, std::size_t maxLength) {
  const char* runtime = std::getenv("XDG_RUNTIME_DIR");
  if (runtime != nullptr && *runtime != '\0') {
    std::string path = std::string(runtime) + "/" + std::string(name) + std::string(suffix);
    if (path.size() <= maxLength) return path;
  }
  return "/tmp/" + std::string(name) + "-" + std::to_string(::getuid()) + std::string(suffix);
}
