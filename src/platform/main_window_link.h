#pragma once
// The two things the diagnostics and the checked vectors ask of the main window: close
// it in order (out of memory) or destroy it at once (a bad index). The window layer
// installs its handlers; without a window both only mark the run as ending, and
// headless programs test that mark before they write anything.

using MainWindowHandler = void (*)();

void SetMainWindowHandlers(MainWindowHandler postClose, MainWindowHandler destroy);
void PostMainWindowClose();
void DestroyMainWindow();

// Set by either request; a headless run that sees it stops with a failure.
extern bool g_bRunEnding;
