#include "platform/clock.h"

#include <chrono>

std::uint32_t GetTickMs() {
  auto now = std::chrono::steady_clock::now().time_since_epoch();
  return static_cast<std::uint32_t>(std::chrono::duration_cast<std::chrono::milliseconds>(now).count());
}
