#include "platform/instance_lock.h"

#include <gtest/gtest.h>
#include <unistd.h>

TEST(InstanceLock, TellsWhetherAnotherInstanceHoldsTheName) {
  const std::string name = "ortalune-lock-test-" + std::to_string(::getpid());
  cInstanceLock first, second, third;
  EXPECT_FALSE(first.Acquire(name));
  EXPECT_TRUE(second.Acquire(name));
  // The first ends; the second still runs, so a third start is told so too.
  first.Release();
  EXPECT_TRUE(third.Acquire(name));
  second.Release();
  third.Release();
  cInstanceLock later;
  EXPECT_FALSE(later.Acquire(name));
  later.Release();
  ::unlink(cInstanceLock::LockPathOf(name).c_str());
}
