#include <cstdio>

#include "command_table.h"
#include "project_here.h"

int RunCheck(std::span<const std::string> args) {
  if (args.size() > 1) {
    std::fprintf(stderr, "usage: ortalune-tool check [DIR]\n");
    return kToolUsage;
  }
  if (!EnterProjectDir(args.empty() ? std::string() : args[0], "check")) return kToolFailed;
  cProjectDataHere here("check");
  if (!LoadProjectHere(here, "check")) return kToolFailed;
  std::printf("check: the project loads\n");
  return kToolOk;
}
