#include "kernel/vector_class.h"

#include "platform/diagnostics.h"
#include "platform/main_window_link.h"

void ReportBadVectorIndex(long long index, std::size_t size, std::size_t elementSize) {
  int needed = 0;
  std::string line = FormatIntoBuffer(kReportEcBuffer, &needed, "err V[%d] ( %d , %d )", static_cast<int>(index),
                                      static_cast<int>(size), static_cast<int>(elementSize));
  ECWrite(line);
  ReportLog("%s", line.c_str());
  DestroyMainWindow();
}
