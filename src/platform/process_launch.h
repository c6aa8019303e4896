#pragma once
// Starting another program and letting it go its own way.

#include <filesystem>

// Starts `program` with no argument, in the current directory and with this process's
// environment, and keeps nothing of it: no handle, no wait for its end, and no child
// left behind to be collected. False when it could not be started (missing, not
// executable, not a program of this machine); `error` then holds the reason as an
// errno value.
bool LaunchDetached(const std::filesystem::path& program, int* error = nullptr);
