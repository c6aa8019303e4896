#include "platform/heap_pages.h"

#include <unistd.h>

#include <cstdlib>
#include <string>

namespace {

constexpr const char* kTunables = "GLIBC_TUNABLES";
constexpr const char* kHugePageHeap = "glibc.malloc.hugetlb=1";
// Set on the restart, so that a C library that ignores the request cannot make the
// program start itself again and again. It holds the tunables the program was given:
// "-" for none, else "=" and their text.
constexpr const char* kRestarted = "ORTALUNE_HEAP_RESTARTED";

// The restarted program's heap is set up; the programs it starts, the game among them,
// get the environment it was first given.
void RestoreEnvironment(const std::string& before) {
  if (before.rfind('=', 0) == 0) setenv(kTunables, before.c_str() + 1, 1);
  else unsetenv(kTunables);
  unsetenv(kRestarted);
}

}  // namespace

void RestartWithHugePageHeap(char** argv) {
  if (const char* before = std::getenv(kRestarted)) return RestoreEnvironment(before);
  if (argv == nullptr || argv[0] == nullptr) return;
  if (std::getenv("ORTALUNE_SMALL_PAGES") != nullptr) return;  // for measuring the difference
  const char* given = std::getenv(kTunables);
  std::string tunables = given != nullptr ? given : "";
  if (tunables.find("glibc.malloc.hugetlb") != std::string::npos) return;
  const std::string before = given != nullptr ? "=" + tunables : "-";
  tunables = tunables.empty() ? kHugePageHeap : tunables + ":" + kHugePageHeap;
  if (setenv(kTunables, tunables.c_str(), 1) != 0 || setenv(kRestarted, before.c_str(), 1) != 0) return;
  execv("/proc/self/exe", argv);
  // Still here: the restart failed. Run on with the heap and the environment as they were.
  RestoreEnvironment(before);
}
