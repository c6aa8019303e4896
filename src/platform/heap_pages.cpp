#include "platform/heap_pages.h"

#include <unistd.h>

#include <cstdlib>
#include <string>

namespace {

constexpr const char* kTunables = "GLIBC_TUNABLES";
constexpr const char* kHugePageHeap = "glibc.malloc.hugetlb=1";
// Set on the restart, so that a C library that ignores the request cannot make the
// program start itself again and again.
constexpr const char* kRestarted = "ORTALUNE_HEAP_RESTARTED";

}  // namespace

void RestartWithHugePageHeap(char** argv) {
  if (argv == nullptr || argv[0] == nullptr || std::getenv(kRestarted) != nullptr) return;
  if (std::getenv("ORTALUNE_SMALL_PAGES") != nullptr) return;  // for measuring the difference
  std::string tunables = std::getenv(kTunables) != nullptr ? std::getenv(kTunables) : "";
  if (tunables.find("glibc.malloc.hugetlb") != std::string::npos) return;
  tunables = tunables.empty() ? kHugePageHeap : tunables + ":" + kHugePageHeap;
  if (setenv(kTunables, tunables.c_str(), 1) != 0 || setenv(kRestarted, "1", 1) != 0) return;
  execv("/proc/self/exe", argv);
  // Still here: the restart failed. Run on with the heap as it is.
  unsetenv(kRestarted);
}
