#pragma once
// A loaded project holds millions of small records (every character has a place per
// skill slot in every list), close to a gigabyte for a large project. Touching that
// much memory in 4 KiB pages costs several times more than reading the records, so
// the heap should grow in transparent huge pages. The C library does this only when
// told so in its environment before the process starts.

// When the environment does not yet ask the C library for a huge-page heap, adds that
// request and starts this program again in place with the same arguments. Returns only
// when that is not done or not possible; the program then runs on as it is. In the
// restarted program it puts the environment back as it was given, so that the programs
// it starts inherit nothing of the restart.
void RestartWithHugePageHeap(char** argv);
