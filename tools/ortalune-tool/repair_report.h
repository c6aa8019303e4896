#pragma once
// `check --repairs`: every value of the project's record files that the load changed
// or a save would change, file by file. References are repaired silently, by each
// record's FixRefs at its load and save and by the Clamp of the stage and the world
// map; this makes the repairs seen before a save makes them permanent.

// After a project load in the current directory: reads each record file of the project
// and every stage, compares what the file holds with what a save would write now, and
// prints the values that differ. Writes no file.
void ReportRepairs();
