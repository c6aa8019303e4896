#pragma once
#include <cstddef>

// Keeps a reserve of memory and installs a handler for failed allocations: the first
// failure gives the reserve back, so that the message box and the orderly exit can
// still run, and reports through ReportOutOfMemory. A failure after the reserve is gone
// writes the report log and ends the process.
void InstallOutOfMemoryHandler(std::size_t reserveBytes = std::size_t{1} << 20);

// The handler itself, for tests: true when the reserve was given back and the program
// goes on towards its exit, false when it had nothing left (the process would end).
bool HandleOutOfMemory();
