#pragma once
// The description of the machine that starts every report log.

#include <string>

#include "platform/machine_facts.h"

// The lines of the machine report for `facts`, CP932, each ending in a line feed.
std::string FormatMachineReport(const cMachineFacts& facts);

// Appends the report of this machine to the report log; 0 when the log won't open.
int ReportMachine();

// The operating system's name (CP932) and version; each out-parameter may be null.
void GetOsName(std::string* text, int* major, int* minor);
int IsOsVersion(int major, int minor);
int IsOsAtLeast(int major, int minor);
