#pragma once
// Filling g_Stage from the default stage or the stage of the last run, and whether
// the editor then has a stage open.

#include <string>

// The project load: g_Stage from the configured default stage, as a starting content;
// 1 when the file loaded. A failure leaves g_Stage as it was.
int LoadDefaultStage();

// A new stage: the configured default stage, or the built-in one with a message when
// that does not load. Either way a stage without a file is then open. Always 1.
int NewStageFromDefault();

// Opens the stage the configuration remembers. An empty path, or one that does not
// load (the stage then gets the built-in defaults, silently), leaves no stage open and
// gives 0.
int LoadLastStage(const std::string& storedPath);

// No stage is open: the state at the end of the project load.
void ResetStageOpenState();

// Makes a stored path relative to the current directory. A relative path stays as it
// is. 0 when no relative form exists (another drive); the path then stays absolute.
int MakeRelativePath(std::string& storedPath);
