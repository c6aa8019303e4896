#include <cstdio>
#include <string>
#include <filesystem>
#include <optional>
#include <vector>

#include "app/edit_config_load.h"
#include "platform/main_window_link.h"
#include "platform/cp932.h"
#include "platform/prompt.h"
#include "project/project_globals.h"
#include "project/project_load.h"
#include "command_table.h"
#include "project_here.h"
#include "record_types.h"

namespace fs = std::filesystem;

namespace {

// Collects the project load's messages instead of printing them one by one.
class cQuietPrompt : public cHeadlessPrompt {
 public:
  int MessageBox(void*, const std::string& text, const std::string&, unsigned style) override {
    m_lastText = text;
    return AnswerThatChangesNothing(style);
  }
  std::string m_lastText;
};

// Records clamp their references against the tables of the project, so a file is read
// with the tables of the project in the current directory, when there is one. A project
// that does not load would make the clamps cut references: refuse rather than lose data.
bool LoadTablesOfCurrentProject() {
  cQuietPrompt quiet;
  cPrompt* previous = SetPrompt(&quiet);
  LoadEditConfig(g_EditConfig, false);
  int loaded = LoadProjectRecords();
  SetPrompt(previous);
  if (loaded) return true;
  std::fprintf(stderr,
               "resave: the project in the current directory does not load (%s);\n"
               "        run 'ortalune-tool check' to see why, or resave from another directory with --no-project\n",
               Cp932ToUtf8Lossy(quiet.m_lastText).c_str());
  return false;
}

}  // namespace

int RunResave(std::span<const std::string> args) {
  std::string typeName;
  std::vector<std::string> paths;
  bool withProject = true;
  for (std::size_t i = 0; i < args.size(); ++i) {
    if (args[i] == "--no-project") {
      withProject = false;
    } else if (!TakeTypeOption(args, i, typeName)) {
      paths.push_back(args[i]);
    }
  }
  if (paths.empty() || paths.size() > 2) {
    std::fprintf(stderr, "usage: ortalune-tool resave [--type TYPE] [--no-project] FILE [OUT]\n");
    return kToolUsage;
  }
  fs::path in = paths[0];
  fs::path out = paths.size() == 2 ? fs::path(paths[1]) : in;

  const cRecordFileType* type = RecordTypeOrSay(in, typeName, "resave");
  if (type == nullptr) return kToolUsage;

  std::optional<cProjectDataHere> project;
  if (withProject) project.emplace("resave");
  if (project && project->Found()) {
    if (!LoadTablesOfCurrentProject()) return kToolFailed;
  } else {
    std::fprintf(stderr,
                 "resave: no project tables loaded: references into other tables are checked against empty\n"
                 "        tables and may be reset; run from the project's directory to keep them\n");
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
