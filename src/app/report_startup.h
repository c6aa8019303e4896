#pragma once
#include <filesystem>

// The logs of a start in the project directory `dir`: the switchable log named and
// switched off, the report log created afresh with the version line and the machine
// report. 0 when the report log cannot be created, which ends the editor's start.
int StartReportLog(const std::filesystem::path& dir);
