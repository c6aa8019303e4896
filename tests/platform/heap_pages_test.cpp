// The huge-page restart leaves nothing of itself in the environment of the restarted
// program, which the programs it starts inherit.

#include <gtest/gtest.h>

#include <cstdlib>
#include <string>

#include "platform/heap_pages.h"

namespace {

TEST(HugePageRestart, TheRestartedProgramGetsTheEnvironmentItWasFirstGiven) {
  const char* argv[] = {"ortalune", nullptr};
  ::setenv("ORTALUNE_HEAP_RESTARTED", "=glibc.malloc.check=3", 1);
  ::setenv("GLIBC_TUNABLES", "glibc.malloc.check=3:glibc.malloc.hugetlb=1", 1);
  RestartWithHugePageHeap(const_cast<char**>(argv));
  ASSERT_NE(std::getenv("GLIBC_TUNABLES"), nullptr);
  EXPECT_EQ(std::string(std::getenv("GLIBC_TUNABLES")), "glibc.malloc.check=3");
  EXPECT_EQ(std::getenv("ORTALUNE_HEAP_RESTARTED"), nullptr);

  // Given none, it has none.
  ::setenv("ORTALUNE_HEAP_RESTARTED", "-", 1);
  ::setenv("GLIBC_TUNABLES", "glibc.malloc.hugetlb=1", 1);
  RestartWithHugePageHeap(const_cast<char**>(argv));
  EXPECT_EQ(std::getenv("GLIBC_TUNABLES"), nullptr);
  EXPECT_EQ(std::getenv("ORTALUNE_HEAP_RESTARTED"), nullptr);
}

}  // namespace
