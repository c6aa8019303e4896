// ortalune-tool csv: the skill page's spreadsheet commands without the editor. The same
// code writes and reads the file; an import that the file passes is saved to the
// project's skill file at once.

#include <charconv>
#include <cstdio>
#include <filesystem>
#include <optional>

#include "app/edit_config_load.h"
#include "platform/main_window_link.h"
#include "command_table.h"
#include "project_here.h"
#include "database/skill_csv_exchange.h"
#include "platform/cp932.h"
#include "platform/stored_path.h"
#include "project/project_files.h"
#include "project/project_globals.h"
#include "project/project_load.h"

namespace fs = std::filesystem;

namespace {

constexpr const char* kUsage =
    "usage: ortalune-tool csv export DIR LIST OUT.csv\n"
    "       ortalune-tool csv import DIR LIST IN.csv\n";

// The current directory and the stored-path alias, put back when the command ends.
class cProjectScope {
 public:
  cProjectScope() : m_previous(fs::current_path()) {}
  ~cProjectScope() {
    m_data.reset();
    SetStoredPathAlias("", "");
    std::error_code ec;
    fs::current_path(m_previous, ec);
  }

  // Makes the project of `dir` current: a directory with "data", or before the editor's
  // first start with "default", is the project root; where `dataDirToo`, a directory
  // holding "database" is taken as the data directory of the project above it, under
  // whatever name.
  bool Enter(const fs::path& dir, bool dataDirToo) {
    std::error_code ec;
    fs::path full = fs::canonical(dir, ec);
    if (ec) {
      std::fprintf(stderr, "csv: cannot open %s: %s\n", dir.c_str(), ec.message().c_str());
      return false;
    }
    if (fs::is_directory(NativePathOf("data", full), ec) || fs::is_directory(NativePathOf("default", full), ec)) {
      fs::current_path(full, ec);
      if (ec) return false;
      m_data.emplace("csv");
      return true;
    }
    if (dataDirToo && fs::is_directory(NativePathOf("database", full), ec)) {
      fs::current_path(full.parent_path(), ec);
      SetStoredPathAlias("data", Utf8ToCp932Lossy(full.filename().string()));
      return !ec;
    }
    std::fprintf(stderr, "csv: %s is not a project directory (one holding \"data\" or \"default\")%s\n", dir.c_str(),
                 dataDirToo ? " nor a project's data directory (one holding \"database\")" : "");
    return false;
  }

 private:
  fs::path m_previous;
  std::optional<cProjectDataHere> m_data;
};

// The project's tables as the editor loads them; its messages, if any, are shown as
// they come.
bool LoadTables(const std::string& dir) {
  LoadEditConfig(g_EditConfig, false);
  if (LoadProjectRecords()) return true;
  std::fprintf(stderr, "csv: the project in %s does not load; 'ortalune-tool check' shows why\n", dir.c_str());
  return false;
}

// The list numbered `word` as the editor numbers them, from 1; null after a message.
cSkillList* ListNumbered(const std::string& word) {
  int number = 0;
  auto [end, ec] = std::from_chars(word.data(), word.data() + word.size(), number);
  if (ec == std::errc() && end == word.data() + word.size() && number >= 1 && number <= g_vecSkillList.Count()) {
    return &g_vecSkillList[static_cast<std::size_t>(number - 1)];
  }
  std::fprintf(stderr, "csv: no skill list '%s': the project's lists are numbered 1 to %d\n", word.c_str(),
               g_vecSkillList.Count());
  return nullptr;
}

int Export(cSkillList& list, const fs::path& out, const std::string& shown) {
  if (!SaveSkillCsv(list.m_vecSkill, SkillCsvTypeName(list.m_nID + 1), out, shown)) return kToolFailed;
  std::printf("csv: wrote %d skills of list %d to %s\n", list.m_vecSkill.Count() - 1, list.m_nID + 1, out.c_str());
  return kToolOk;
}

int Import(cSkillList& list, const fs::path& in, const std::string& shown) {
  if (!LoadSkillCsv(list.m_vecSkill, SkillCsvTypeName(list.m_nID + 1), in, shown)) return kToolFailed;
  if (g_bRunEnding) {
    std::fprintf(stderr, "csv: stopped by an internal error (see Report_Editor.txt); nothing was saved\n");
    return kToolFailed;
  }
  if (!kSkillFile.save(kSkillFile.path)) {
    std::fprintf(stderr, "csv: the skills were read but %s could not be written\n", kSkillFile.path);
    return kToolFailed;
  }
  std::printf("csv: read %d skills into list %d and saved %s\n", list.m_vecSkill.Count() - 1, list.m_nID + 1,
              kSkillFile.path);
  return kToolOk;
}

}  // namespace

int RunCsv(std::span<const std::string> args) {
  const bool exporting = args.size() == 4 && args[0] == "export";
  if (!exporting && !(args.size() == 4 && args[0] == "import")) {
    std::fprintf(stderr, "%s", kUsage);
    return kToolUsage;
  }
  // The file is named from where the tool was started, before the project is entered.
  const fs::path file = fs::absolute(args[3]);
  const std::string shown = Utf8ToCp932Lossy(args[3]);
  cProjectScope scope;
  if (!scope.Enter(args[1], exporting) || !LoadTables(args[1])) return kToolFailed;
  cSkillList* list = ListNumbered(args[2]);
  if (list == nullptr) return kToolFailed;
  return exporting ? Export(*list, file, shown) : Import(*list, file, shown);
}
