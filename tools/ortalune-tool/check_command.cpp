#include <cstdio>

#include "command_table.h"
#include "project_here.h"
#include "repair_report.h"

int RunCheck(std::span<const std::string> args) {
  bool repairs = false;
  std::string dir;
  int words = 0;
  for (const std::string& arg : args) {
    if (arg == "--repairs") {
      repairs = true;
    } else {
      dir = arg;
      ++words;
    }
  }
  if (words > 1) {
    std::fprintf(stderr, "usage: ortalune-tool check [--repairs] [DIR]\n");
    return kToolUsage;
  }
  if (!EnterProjectDir(dir, "check")) return kToolFailed;
  cProjectDataHere here("check");
  if (!LoadProjectHere(here, "check")) return kToolFailed;
  std::printf("check: the project loads\n");
  if (repairs) ReportRepairs();
  return kToolOk;
}
