#pragma once
#include <cstdint>

// Milliseconds of a monotonic clock, wrapping at 2^32 like the frame and music clocks
// expect. Only differences between two readings mean anything.
std::uint32_t GetTickMs();
