#include "template_dir.h"

#include <cstdlib>

namespace fs = std::filesystem;

fs::path ProjectTemplateDir() {
  if (const char* chosen = std::getenv("ORTALUNE_TEMPLATE"); chosen != nullptr && *chosen != '\0') return chosen;
  std::error_code ec;
  fs::path program = fs::read_symlink("/proc/self/exe", ec);
  if (ec) return {};
  return program.parent_path().parent_path() / "share" / "ortalune" / "template";
}
