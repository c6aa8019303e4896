// The template's records, written by the project's own saves: the globals are filled
// with the sample game and saved as a new project is, with "data" read as "default",
// the tree that the first start copies to "data".

#include "data/template_data.h"

#include <cstdio>
#include <iterator>

#include "data/template_parts.h"
#include "platform/file_io.h"
#include "platform/stored_path.h"
#include "project/project_files.h"
#include "project/project_globals.h"

namespace fs = std::filesystem;
using namespace TemplateData;

namespace {

constexpr const char* kSampleStagePath = "data\\stg\\Sample.stg2";

// Working below the template root, with "data" meaning "default", until the end of
// the scope; the process's own state comes back whatever happens in between.
class cTemplateScope {
 public:
  explicit cTemplateScope(const fs::path& root) {
    std::error_code ec;
    m_previous = fs::current_path(ec);
    fs::current_path(root, m_error);
    SetStoredPathAlias("data", "default");
  }
  ~cTemplateScope() {
    SetStoredPathAlias("", "");
    ResetProjectGlobals();
    std::error_code ec;
    if (!m_previous.empty()) fs::current_path(m_previous, ec);
  }
  const std::error_code& Error() const { return m_error; }

 private:
  fs::path m_previous;
  std::error_code m_error;
};

bool WriteText(const fs::path& path, const std::string& text) { return WriteFileAtomic(path, text.data(), text.size()); }

// The name lists of random names, one name a line.
bool WriteRandomNames() {
  struct List {
    const char* title;
    const char* names;
  };
  const List lists[] = {
      {"人間男性", "アルト\r\nバルド\r\nカイル\r\nダリオ\r\nエリク\r\nフェン\r\nグレン\r\nハンス\r\n"},
      {"人間女性", "アイナ\r\nベラ\r\nクレア\r\nディナ\r\nエマ\r\nフィオ\r\nグレタ\r\nハンナ\r\n"},
      {"魔物", "ガルグ\r\nズーム\r\nボルド\r\nギーガ\r\nドロス\r\n"},
  };
  for (std::size_t i = 0; i < std::size(lists); ++i) {
    char prefix[32];
    std::snprintf(prefix, sizeof prefix, "RandomName%03zu_", i);
    const std::string stored = std::string("data\\random_name\\") + prefix + Text(lists[i].title) + ".txt";
    if (!WriteText(NativePathOf(stored), Text(lists[i].names))) return false;
  }
  return true;
}

// The keys the game-wide settings name, each at its default.
std::string SystemIniText() {
  std::string text;
  for (const cIni& row : g_System.m_vecIni) text += row.m_strKey + "=" + std::to_string(row.m_nDefault) + "\r\n";
  return text + "Exit\r\n";
}

}  // namespace

bool WriteTemplateData(const fs::path& rootIn, std::string& error) {
  std::error_code ec;
  const fs::path root = fs::absolute(rootIn, ec);
  fs::create_directories(root / "default", ec);
  cTemplateScope scope(root);
  if (ec || scope.Error()) {
    error = "cannot enter " + root.string() + ": " + (ec ? ec : scope.Error()).message();
    return false;
  }

  ResetProjectGlobals();
  FillRuleTables();
  FillCharacters();
  FillStoredEvents();
  FillWorldMap();
  g_Stage.Init();  // the default stage, from which new stages are made: plain grass
  if (!SaveProjectRecords()) {
    error = "cannot write the records under " + (root / "default").string();
    return false;
  }
  g_Stage = SampleStage();
  if (!g_Stage.SaveFile(kSampleStagePath) || !WriteRandomNames()) {
    error = "cannot write the sample stage or the name lists under " + (root / "default").string();
    return false;
  }

  // The editor's first start opens the sample stage.
  cEditConfig config;
  config.m_strStagePath = kSampleStagePath;
  if (!config.SaveFile(kEditConfigPath) || !WriteText(root / "System.ini", SystemIniText())) {
    error = "cannot write e_data\\EditConfig.dat or System.ini under " + root.string();
    return false;
  }
  return true;
}
