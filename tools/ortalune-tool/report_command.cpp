#include <cstdio>
#include <filesystem>
#include <vector>

#include "platform/diagnostics.h"
#include "app/report_startup.h"
#include "command_table.h"
#include "platform/cp932.h"
#include "platform/file_io.h"

int RunReport(std::span<const std::string> args) {
  if (args.size() > 1) {
    std::fprintf(stderr, "usage: ortalune-tool report [DIR]\n");
    return kToolUsage;
  }
  std::filesystem::path dir = args.empty() ? std::filesystem::path(".") : std::filesystem::path(args[0]);
  if (!StartReportLog(dir)) {
    std::fprintf(stderr, "report: cannot create the report log in %s\n", dir.c_str());
    return kToolFailed;
  }
  std::vector<unsigned char> bytes;
  ReadWholeFile(g_szReportPath, bytes);
  std::string text = Cp932ToUtf8Lossy(std::string_view(reinterpret_cast<const char*>(bytes.data()), bytes.size()));
  std::erase(text, '\r');
  std::printf("%s:\n%s", g_szReportPath.c_str(), text.c_str());
  return kToolOk;
}
