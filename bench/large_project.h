#pragma once
// The large project of the benchmarks, in a temporary directory that is the current
// one while it lives: 999 classes, allies and enemies; 16 skill lists of 999 skills; 999
// terrain rows; a 64 by 64 default stage with 500 events; 999 palette events. Its records
// are in memory and saved to its files.

#include <cstdlib>
#include <filesystem>
#include <string>
#include <system_error>
#include <unistd.h>

#include "platform/cp932.h"
#include "platform/prompt.h"
#include "project/project_files.h"
#include "project/project_globals.h"

class cSilentPrompt : public cPrompt {
 public:
  int MessageBox(void*, const std::string&, const std::string&, unsigned) override { return IDOK; }
  void Beep() override {}
};

class cLargeProject {
 public:
  static constexpr int kRows = 999;

  cLargeProject() {
    std::string pattern = (std::filesystem::temp_directory_path() / "ortalune-project-XXXXXX").string();
    if (!::mkdtemp(pattern.data())) std::abort();
    m_Dir = pattern;
    std::filesystem::current_path(m_Dir);
    SetPrompt(&m_Prompt);
    Fill();
    if (!SaveProjectRecords()) std::abort();
  }
  ~cLargeProject() {
    SetPrompt(nullptr);
    std::error_code ec;
    std::filesystem::current_path(std::filesystem::temp_directory_path(), ec);
    std::filesystem::remove_all(m_Dir, ec);
  }
  cLargeProject(const cLargeProject&) = delete;
  cLargeProject& operator=(const cLargeProject&) = delete;

 private:
  static void Fill() {
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

  std::filesystem::path m_Dir;
  cSilentPrompt m_Prompt;
};
