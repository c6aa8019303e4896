#include <clocale>
#include <string>
#include <vector>

#include "app/out_of_memory.h"
#include "platform/heap_pages.h"
#include "command_table.h"

int main(int argc, char** argv) {
  RestartWithHugePageHeap(argv);
  std::setlocale(LC_ALL, "C");
  InstallOutOfMemoryHandler();
  std::vector<std::string> args(argv + 1, argv + argc);
  return RunTool(args);
}
