// ortalune-tool dump of the largest file of the large project, against resave of the
// same file measured in the same run: the readable form of a file may take at most
// twice what reading and writing it back takes. Both run as a process of their own, as
// an author's scripts run them: resave reads the file alone (--no-project), so that its
// time is that of the one file, and writes it beside; dump writes its text into a pipe
// that this process reads to the end, as git reads a diff driver's text.

#include <benchmark/benchmark.h>

#include "large_project.h"
#include "ratio_reporter.h"

#include <cstdio>
#include <fcntl.h>
#include <filesystem>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

namespace fs = std::filesystem;

extern char** environ;

namespace {

struct Workspace {
  cLargeProjectDir project;
  fs::path largest;
  fs::path tool = fs::read_symlink("/proc/self/exe").parent_path() / "ortalune-tool";

  Workspace() {
    std::uintmax_t size = 0;
    for (const auto& entry : fs::recursive_directory_iterator("data")) {
      if (entry.is_regular_file() && entry.file_size() > size) {
        size = entry.file_size();
        largest = entry.path();
      }
    }
    std::printf("The largest file: %s, %.1f MB\n", largest.c_str(), static_cast<double>(size) / 1e6);
  }
};

Workspace& Project() {
  static Workspace workspace;
  return workspace;
}

// Runs the tool with its stderr going to nowhere and its stdout read here to the end;
// its exit status. `textBytes` counts what it wrote.
int RunTool(std::vector<std::string> args, std::size_t& textBytes) {
  int pipeEnds[2];
  if (::pipe(pipeEnds) != 0) return -1;
  posix_spawn_file_actions_t actions;
  posix_spawn_file_actions_init(&actions);
  posix_spawn_file_actions_adddup2(&actions, pipeEnds[1], STDOUT_FILENO);
  posix_spawn_file_actions_addclose(&actions, pipeEnds[0]);
  posix_spawn_file_actions_addopen(&actions, STDERR_FILENO, "/dev/null", O_WRONLY, 0);
  const std::string tool = Project().tool.string();
  std::vector<char*> argv{const_cast<char*>(tool.c_str())};
  for (std::string& arg : args) argv.push_back(arg.data());
  argv.push_back(nullptr);
  pid_t pid = 0;
  const bool started = posix_spawn(&pid, tool.c_str(), &actions, nullptr, argv.data(), environ) == 0;
  posix_spawn_file_actions_destroy(&actions);
  ::close(pipeEnds[1]);
  static std::vector<char> sink(1 << 20);
  textBytes = 0;
  for (ssize_t n; (n = ::read(pipeEnds[0], sink.data(), sink.size())) > 0;) textBytes += static_cast<std::size_t>(n);
  ::close(pipeEnds[0]);
  int status = -1;
  if (started) waitpid(pid, &status, 0);
  return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

void BM_Resave(benchmark::State& state) {
  Workspace& w = Project();
  std::size_t text = 0;
  for (auto _ : state) {
    if (RunTool({"resave", "--no-project", w.largest.string(), "resaved.dat"}, text) != 0) {
      state.SkipWithError("resave failed");
    }
  }
}

void BM_Dump(benchmark::State& state) {
  Workspace& w = Project();
  std::size_t text = 0;
  for (auto _ : state) {
    if (RunTool({"dump", w.largest.string()}, text) != 0) state.SkipWithError("dump failed");
  }
  state.counters["text MB"] = static_cast<double>(text) / 1e6;
}

BENCHMARK(BM_Resave)->Unit(benchmark::kMillisecond)->MinTime(5.0)->UseRealTime();
BENCHMARK(BM_Dump)->Unit(benchmark::kMillisecond)->MinTime(5.0)->UseRealTime();

}  // namespace

int main(int argc, char** argv) {
  benchmark::Initialize(&argc, argv);
  cRatioReporter reporter;
  benchmark::RunSpecifiedBenchmarks(&reporter);
  const double resave = reporter.Time("BM_Resave/min_time:5.000/real_time");
  const double dump = reporter.Time("BM_Dump/min_time:5.000/real_time");
  if (resave > 0) std::printf("Dump: %.2f times a resave of the same file (target: at most 2)\n", dump / resave);
  benchmark::Shutdown();
  return 0;
}
