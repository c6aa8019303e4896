#pragma once
#include "project/edit_config.h"

// Loads the configuration at the start of a run. A project can still hold the file in
// its old place under "data"; it is then read from there, written to "e_data" and the
// old copy deleted, so that one copy is never left behind. With bMoveOldFile false the
// old file is read but nothing is written or deleted (for checks that change nothing).
// Failures leave the defaults and go to the switchable log only.
void LoadEditConfig(cEditConfig& config, bool bMoveOldFile = true);
