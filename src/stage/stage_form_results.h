#pragma once
// What the stage editor does once the author confirms one of the stage's forms. The
// stage is marked modified by the confirmation itself, changed or not: the editor never
// compares a stage with its file.

// "ステージの設定": enemies, events and group positions beyond a smaller map go, and
// every reference is repaired; the undo history is emptied, since its snapshots know no
// size and must not outlive a resize.
void StageSettingsConfirmed();

// "位置グループの設定": positions beyond the map, which a click in the group picture can
// reach, go. Groups are no part of an undo step, so the history stays.
void PositionGroupsConfirmed();
