#pragma once
// The choice of the battle mode on the first start of a new project.

// Stores the chosen battle mode in g_System, the turn mode following it (by action
// counts for the automatic mode), and saves the settings file. 1 when it was written.
int ApplyBattleMode(int index);
