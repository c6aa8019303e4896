// The load of the large project and the save of its database, each against the plain
// file work underneath it measured in the same run: reading the same files' bytes, and
// writing the same bytes to the same files through a temporary file and a rename. The
// load is that of the records (what `ortalune-tool check` runs before the image sheets).

#include <benchmark/benchmark.h>

#include "large_project.h"
#include "ratio_reporter.h"

#include <cstdio>
#include <filesystem>
#include <vector>

#include "platform/file_io.h"
#include "platform/heap_pages.h"
#include "project/project_files.h"
#include "project/project_load.h"

namespace fs = std::filesystem;

namespace {

struct Workspace {
  cLargeProjectDir project;
  std::vector<std::pair<fs::path, std::vector<unsigned char>>> allFiles;
  std::vector<std::pair<fs::path, std::vector<unsigned char>>> databaseFiles;

  Workspace() {
    for (const auto& entry : fs::recursive_directory_iterator("data")) {
      if (!entry.is_regular_file()) continue;
      std::vector<unsigned char> bytes;
      ReadWholeFile(entry.path(), bytes);
      allFiles.emplace_back(entry.path(), bytes);
      // The files SaveAllDatabaseFiles writes: the database folder.
      if (entry.path().parent_path().filename() == "database" && entry.path().filename() != "StartEvent.dat") {
        databaseFiles.emplace_back(entry.path(), bytes);
      }
    }
  }
};

Workspace& Project() {
  static Workspace workspace;
  return workspace;
}

void BM_LoadProject(benchmark::State& state) {
  Project();
  for (auto _ : state) {
    if (!LoadProjectRecords()) state.SkipWithError("the project did not load");
  }
}

void BM_ReadSameBytes(benchmark::State& state) {
  Workspace& w = Project();
  std::vector<unsigned char> bytes;
  for (auto _ : state) {
    for (const auto& [path, stored] : w.allFiles) {
      ReadWholeFile(path, bytes);
      benchmark::DoNotOptimize(bytes.data());
    }
  }
}

void BM_SaveAllDatabase(benchmark::State& state) {
  Project();
  for (auto _ : state) {
    if (!SaveAllDatabaseFiles()) state.SkipWithError("a file was skipped");
  }
}

void BM_WriteSameBytes(benchmark::State& state) {
  Workspace& w = Project();
  for (auto _ : state) {
    for (const auto& [path, bytes] : w.databaseFiles) WriteFileAtomic(path, bytes.data(), bytes.size());
  }
}

// The warm-up loads a few times first, so that what is timed is the records' own work:
// the first loads of a process also wait for the kernel to hand out close to a gigabyte
// of fresh memory, which depends on the machine far more than on this code.
BENCHMARK(BM_LoadProject)->Unit(benchmark::kMillisecond)->MinTime(2.0)->MinWarmUpTime(3.0);
BENCHMARK(BM_ReadSameBytes)->Unit(benchmark::kMillisecond)->MinTime(2.0);
BENCHMARK(BM_SaveAllDatabase)->Unit(benchmark::kMillisecond)->MinTime(2.0);
BENCHMARK(BM_WriteSameBytes)->Unit(benchmark::kMillisecond)->MinTime(2.0);

}  // namespace

int main(int argc, char** argv) {
  RestartWithHugePageHeap(argv);  // as the editor and the tool do at their start
  benchmark::Initialize(&argc, argv);
  cRatioReporter reporter;
  benchmark::RunSpecifiedBenchmarks(&reporter);
  const double load = reporter.Time("BM_LoadProject/min_time:2.000/min_warmup_time:3.000");
  const double read = reporter.Time("BM_ReadSameBytes/min_time:2.000");
  const double save = reporter.Time("BM_SaveAllDatabase/min_time:2.000");
  const double write = reporter.Time("BM_WriteSameBytes/min_time:2.000");
  if (read > 0) std::printf("Project load: %.2f times reading the same files' bytes (target: at most 10)\n", load / read);
  if (write > 0) {
    std::printf("Database save: %.2f times writing the same bytes the same way (target: at most 2)\n", save / write);
  }
  benchmark::Shutdown();
  return 0;
}
