#include "app/out_of_memory.h"

#include <cstdlib>
#include <new>

#include "platform/diagnostics.h"
#include "platform/cp932.h"

namespace {

char* g_pReserve = nullptr;

void NewHandler() {
  if (HandleOutOfMemory()) return;  // the allocation is tried again with the reserve freed
  std::_Exit(EXIT_FAILURE);
}

}  // namespace

void InstallOutOfMemoryHandler(std::size_t reserveBytes) {
  if (g_pReserve == nullptr) g_pReserve = static_cast<char*>(std::malloc(reserveBytes));
  std::set_new_handler(NewHandler);
}

bool HandleOutOfMemory() {
  if (g_pReserve == nullptr) {
    ReportLog("%s", CP932_TEXT("メモリが不足しています！").c_str());
    return false;
  }
  std::free(g_pReserve);
  g_pReserve = nullptr;
  ReportOutOfMemory();
  return true;
}
