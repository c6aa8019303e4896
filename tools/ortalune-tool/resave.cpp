#include <cstdio>
#include <filesystem>
#include <vector>

#include "app/main_window_link.h"
#include "command_table.h"
#include "record_types.h"

namespace fs = std::filesystem;

int RunResave(std::span<const std::string> args) {
  std::string typeName;
  std::vector<std::string> paths;
  for (std::size_t i = 0; i < args.size(); ++i) {
    if (args[i] == "--type" && i + 1 < args.size()) {
      typeName = args[++i];
    } else if (args[i].starts_with("--type=")) {
      typeName = args[i].substr(7);
    } else {
      paths.push_back(args[i]);
    }
  }
  if (paths.empty() || paths.size() > 2) {
    std::fprintf(stderr, "usage: ortalune-tool resave [--type TYPE] FILE [OUT]\n");
    return kToolUsage;
  }
  fs::path in = paths[0];
  fs::path out = paths.size() == 2 ? fs::path(paths[1]) : in;

  const cRecordFileType* type = typeName.empty() ? FindRecordTypeForFile(in) : FindRecordTypeByName(typeName);
  if (type == nullptr) {
    if (typeName.empty()) {
      std::fprintf(stderr, "resave: cannot tell the record type of '%s' from its name; give --type\n", in.c_str());
    } else {
      std::fprintf(stderr, "resave: unknown record type '%s'\n", typeName.c_str());
    }
    std::fprintf(stderr, "'ortalune-tool help' lists the record types\n");
    return kToolUsage;
  }

  cResaveResult result = type->resave(in, out);
  if (g_bRunEnding) {
    std::fprintf(stderr, "resave: %s: stopped by an internal error (see Report_Editor.txt); nothing trustworthy was written\n",
                 in.c_str());
    return kToolFailed;
  }
  std::fprintf(result.ok ? stdout : stderr, "%s%s\n", result.ok ? "" : "resave: ", result.message.c_str());
  return result.ok ? kToolOk : kToolFailed;
}
