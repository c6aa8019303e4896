#pragma once
// Loading the project a command works on, as the editor would load it at its start.

#include <string>

// Enters `dir` (unless empty) and loads the project there. A project that has no
// "data" yet is read from its "default" tree, as the editor's first start would copy
// it. Every message the editor would show is printed; `command` names the command in
// this tool's own lines. False when the editor would not start on it.
bool LoadProjectIn(const std::string& dir, const char* command);
