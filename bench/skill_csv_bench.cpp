// The spreadsheet exchange of a full project: 16 skill lists of 999 skills, each
// written to its file and read back into its table (with the backup and every check),
// measured in the same run. Writing a file ends in a flush to the disk, so the same
// work is measured once more on the text in memory.

#include <benchmark/benchmark.h>

#include "ratio_reporter.h"

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <string>
#include <unistd.h>
#include <vector>

#include "database/skill_csv_exchange.h"
#include "database/skill_csv_read.h"
#include "database/skill_csv_write.h"
#include "database/skill_list.h"
#include "platform/cp932.h"
#include "platform/prompt.h"

namespace fs = std::filesystem;

namespace {

constexpr int kLists = 16;
constexpr int kSkills = 999;

class cSilentPrompt : public cPrompt {
 public:
  int MessageBox(void*, const std::string&, const std::string&, unsigned) override { return IDOK; }
  void Beep() override {}
};

// Tables as authors fill them: short Japanese names, descriptions of some length, a
// spread of values in range.
VECTOR_CLASS<cSkill> Skills(int list) {
  VECTOR_CLASS<cSkill> skills(kSkills + 1);
  const std::string names[] = {Cp932FromLiteral("ファイア"), Cp932FromLiteral("ヒール"), Cp932FromLiteral("鋼の剣,改"),
                               Cp932FromLiteral("革の鎧")};
  const std::string desc = Cp932FromLiteral("敵単体に炎属性の魔法ダメージを与える。");
  for (int i = 1; i <= kSkills; ++i) {
    cSkill& s = skills[static_cast<std::size_t>(i)];
    s.m_strName = names[(i + list) % 4];
    s.m_strDesc = desc.substr(0, static_cast<std::size_t>(2 * (i % 18)));
    s.m_nPrice = i * 50 % 1000000;
    s.m_nCostSP = i % 100;
    s.m_nEffectValue = i * 3 - 400;
    s.m_dLearnRateSense = (i % 100) / 10.0;
    s.m_dSortNumber = i / 4.0;
    for (int k = 0; k < kStatusCount; ++k) s.m_anSubEffectA[k] = (i + k) % 7 == 0 ? i % 50 : 0;
    s.m_nScale = 100 + i % 200;
  }
  return skills;
}

struct Workspace {
  fs::path dir;
  std::vector<VECTOR_CLASS<cSkill>> lists;
  cSilentPrompt prompt;

  Workspace() {
    std::string pattern = (fs::temp_directory_path() / "ortalune-csv-XXXXXX").string();
    if (!::mkdtemp(pattern.data())) std::abort();
    dir = pattern;
    for (int l = 0; l < kLists; ++l) lists.push_back(Skills(l));
    SetPrompt(&prompt);
  }
  ~Workspace() {
    SetPrompt(nullptr);
    std::error_code ec;
    fs::remove_all(dir, ec);
  }
  fs::path File(int l) const { return dir / ("Skill" + std::to_string(l + 1) + ".csv"); }
};

Workspace& Project() {
  static Workspace workspace;
  return workspace;
}

void BM_Export(benchmark::State& state) {
  Workspace& w = Project();
  for (auto _ : state) {
    for (int l = 0; l < kLists; ++l) {
      if (!WriteSkillsCsv(w.lists[static_cast<std::size_t>(l)], SkillCsvTypeName(l + 1), w.File(l)))
        state.SkipWithError("write failed");
    }
  }
}

void BM_Import(benchmark::State& state) {
  Workspace& w = Project();
  for (int l = 0; l < kLists; ++l) WriteSkillsCsv(w.lists[static_cast<std::size_t>(l)], SkillCsvTypeName(l + 1), w.File(l));
  for (auto _ : state) {
    for (int l = 0; l < kLists; ++l) {
      if (!LoadSkillCsv(w.lists[static_cast<std::size_t>(l)], SkillCsvTypeName(l + 1), w.File(l), ""))
        state.SkipWithError("read refused");
    }
  }
}

std::vector<std::string> Texts(Workspace& w) {
  std::vector<std::string> texts;
  for (int l = 0; l < kLists; ++l) {
    CSV_GRID grid;
    SkillsToGrid(grid, w.lists[static_cast<std::size_t>(l)], SkillColumns(), SkillCsvTypeName(l + 1));
    texts.push_back(JoinCsv(grid));
  }
  return texts;
}

void BM_ExportText(benchmark::State& state) {
  Workspace& w = Project();
  for (auto _ : state) {
    for (int l = 0; l < kLists; ++l) {
      CSV_GRID grid;
      SkillsToGrid(grid, w.lists[static_cast<std::size_t>(l)], SkillColumns(), SkillCsvTypeName(l + 1));
      std::string text = JoinCsv(grid);
      benchmark::DoNotOptimize(text.data());
    }
  }
}

void BM_ImportText(benchmark::State& state) {
  Workspace& w = Project();
  const std::vector<std::string> texts = Texts(w);
  for (auto _ : state) {
    for (int l = 0; l < kLists; ++l) {
      VECTOR_CLASS<cSkill>& skills = w.lists[static_cast<std::size_t>(l)];
      CSV_GRID grid;
      TokenizeCsv(texts[static_cast<std::size_t>(l)], grid);
      VECTOR_CLASS<cSkill> backup = skills;
      if (!GridToSkills(skills, grid, SkillColumns(), SkillCsvTypeName(l + 1))) state.SkipWithError("read refused");
      benchmark::DoNotOptimize(backup.data());
    }
  }
}

BENCHMARK(BM_Export)->Unit(benchmark::kMillisecond)->MinTime(2.0);
BENCHMARK(BM_Import)->Unit(benchmark::kMillisecond)->MinTime(2.0);
BENCHMARK(BM_ExportText)->Unit(benchmark::kMillisecond)->MinTime(2.0);
BENCHMARK(BM_ImportText)->Unit(benchmark::kMillisecond)->MinTime(2.0);

}  // namespace

int main(int argc, char** argv) {
  benchmark::Initialize(&argc, argv);
  cRatioReporter reporter;
  benchmark::RunSpecifiedBenchmarks(&reporter);
  double exported = reporter.Time("BM_Export/min_time:2.000");
  double imported = reporter.Time("BM_Import/min_time:2.000");
  double exportedText = reporter.Time("BM_ExportText/min_time:2.000");
  double importedText = reporter.Time("BM_ImportText/min_time:2.000");
  if (exported > 0 && exportedText > 0) {
    std::printf("Skill CSV: importing %d lists of %d skills takes %.2f times the time of exporting them "
                "(target: at most 3); in memory, without the files, %.2f times\n",
                kLists, kSkills, imported / exported, importedText / exportedText);
  }
  benchmark::Shutdown();
  return 0;
}
