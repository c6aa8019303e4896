#include "large_project.h"

#include <cstdlib>
#include <unistd.h>

#include "platform/cp932.h"
#include "project/project_files.h"
#include "project/project_globals.h"

namespace fs = std::filesystem;

namespace {

constexpr int kRows = 999;

void FillProject() {
  g_vecSkillList.assign(16, cSkillList());
  for (cSkillList& list : g_vecSkillList) {
    list.m_vecCateg.resize(4);
    list.m_vecSkill.resize(kRows + 1);
    for (std::size_t i = 1; i < list.m_vecSkill.size(); ++i) list.m_vecSkill[i].m_strName = Cp932FromLiteral("ファイア");
  }
  NumberSkillLists(g_vecSkillList);
  g_vecLand.assign(kRows, cLand());
  g_vecClass.assign(kRows + 1, cClass());
  for (cClass& cls : g_vecClass) cls.FixRefs();
  g_vecFriend.assign(kRows + 1, cFriend());
  g_vecEnemy.assign(kRows + 1, cEnemy());
  for (cFriend& ally : g_vecFriend) ally.FixRefs();
  for (cEnemy& enemy : g_vecEnemy) enemy.FixRefs();
  g_Stage.Init();
  g_Stage.Resize(64, 64);
  for (int i = 0; i < 500; ++i) {
    cEvent event;
    event.m_strName = Cp932FromLiteral("宝箱");
    g_Stage.PutEvent(event, i % 64, i / 64);
  }
  g_vecEventPlt.assign(kRows, cEvent());
}

}  // namespace

cLargeProjectDir::cLargeProjectDir() {
  std::string pattern = (fs::temp_directory_path() / "ortalune-project-XXXXXX").string();
  if (!::mkdtemp(pattern.data())) std::abort();
  m_dir = pattern;
  fs::current_path(m_dir);
  SetPrompt(&m_prompt);
  FillProject();
  if (!SaveProjectRecords()) std::abort();
}

cLargeProjectDir::~cLargeProjectDir() {
  SetPrompt(nullptr);
  std::error_code ec;
  fs::current_path(fs::temp_directory_path(), ec);
  fs::remove_all(m_dir, ec);
}
