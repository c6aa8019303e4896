#include <cstdio>
#include <filesystem>

#include "command_table.h"
#include "template_dir.h"

namespace fs = std::filesystem;

namespace {

// A target that exists must be an empty directory: a project is never copied over
// files of the user's.
bool TargetIsUsable(const fs::path& target) {
  std::error_code ec;
  if (!fs::exists(target, ec)) return true;
  if (!fs::is_directory(target, ec)) {
    std::fprintf(stderr, "new: %s exists and is not a directory; choose a new or empty directory\n",
                 target.c_str());
    return false;
  }
  if (!fs::is_empty(target, ec) || ec) {
    std::fprintf(stderr, "new: %s is not empty; a new project needs a new or empty directory\n", target.c_str());
    return false;
  }
  return true;
}

}  // namespace

int RunNew(std::span<const std::string> args) {
  if (args.size() != 1) {
    std::fprintf(stderr, "usage: ortalune-tool new DIR\n");
    return kToolUsage;
  }
  const fs::path target = args[0];
  const fs::path source = ProjectTemplateDir();
  std::error_code ec;
  if (source.empty() || !fs::is_directory(source / "default", ec)) {
    std::fprintf(stderr,
                 "new: the project template was not found at %s; set ORTALUNE_TEMPLATE to the template "
                 "directory\n",
                 source.c_str());
    return kToolFailed;
  }
  if (!TargetIsUsable(target)) return kToolFailed;
  const bool made = !fs::exists(target, ec);
  fs::create_directories(target, ec);
  if (!ec) fs::copy(source, target, fs::copy_options::recursive, ec);
  if (ec) {
    std::fprintf(stderr, "new: copying the template to %s failed: %s\n", target.c_str(), ec.message().c_str());
    // Leave nothing behind that could pass for a project.
    std::error_code ignored;
    if (made) {
      fs::remove_all(target, ignored);
    } else {
      for (const fs::directory_entry& entry : fs::directory_iterator(target, ignored)) fs::remove_all(entry, ignored);
    }
    return kToolFailed;
  }
  std::printf("new: made a project in %s; the editor turns its \"default\" folder into \"data\" at its first start\n",
              target.c_str());
  return kToolOk;
}
