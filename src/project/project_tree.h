#pragma once
// The directory tree of a project: the current directory of the process.

// Creates the directories every start needs, in order, ignoring errors.
void CreateProjectDirectories();

// The first-run copy: when "data" does not exist but "default" does, asks the user and
// copies the whole tree "default" to "data". 1 to go on (bFresh 1 when the copy was
// made), 0 when the program cannot go on: no data and no default, the user said no, or
// the copy failed (a half copy is removed so it cannot pass for data next time).
int CreateDefaultData(void* hWnd, int& bFresh);
