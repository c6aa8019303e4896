#include "app/report_startup.h"

#include "platform/diagnostics.h"
#include "app/machine_report.h"
#include "kernel/serial.h"

int StartReportLog(const std::filesystem::path& dir) {
  std::error_code ec;
  std::filesystem::path absolute = std::filesystem::absolute(dir, ec);
  if (ec) absolute = dir;
  ECSetup(0, (absolute / "EC_Editor.txt").string());
  if (!ReportCreate((absolute / "Report_Editor.txt").string())) return 0;
  ReportLog("App : ver %u", g_nCurVersion);
  ReportMachine();
  return 1;
}
