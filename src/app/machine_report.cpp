#include "app/machine_report.h"

#include <cstdint>

#include "platform/diagnostics.h"
#include "platform/cp932.h"

namespace {

// The report takes memory and disk figures as unsigned 32-bit values; a larger figure
// shows as the largest such value rather than wrapping to a small one.
double Megabytes32(std::uint64_t bytes) {
  std::uint32_t clipped = bytes > 0xFFFFFFFFu ? 0xFFFFFFFFu : static_cast<std::uint32_t>(bytes);
  return clipped / 1024.0 / 1024.0;
}

}  // namespace

std::string FormatMachineReport(const cMachineFacts& f) {
  std::uint64_t disk = f.diskFree >= (std::uint64_t{1} << 31) ? 0x7FFFFFFFu : f.diskFree;
  std::string out;
  auto line = [&out](auto... args) { out += FormatIntoBuffer(kMessageBuffer, nullptr, args...); };
  line("OS : %s\n", Utf8ToCp932Lossy(f.osName).c_str());
  line("CPU : %s %s %d\n", Utf8ToCp932Lossy(f.cpuVendor).c_str(),
                        Utf8ToCp932Lossy(f.cpuBrand).c_str(), static_cast<int>(f.cpuHz / 1000 / 1000));
  line("Mem Total : %.3fMB\n", Megabytes32(f.memTotal));
  line("Mem Free : %3.fMB\n", Megabytes32(f.memFree));
  line("Vir Total : %.3fMB\n", Megabytes32(f.virTotal));
  line("Vir Free : %3.fMB\n", Megabytes32(f.virFree));
  line("HD Free : %3.fMB\n", Megabytes32(disk));
  line("Display : (%d,%d)\n", f.displayWidth, f.displayHeight);
  line("System Font : %s (%d,%d) %u\n",
                        Utf8ToCp932Lossy(f.fontFace).c_str(), f.fontWidth, f.fontHeight, f.fontCharSet);
  return out;
}

int ReportMachine() { return ReportAppend(FormatMachineReport(ReadMachineFacts())); }

void GetOsName(std::string* text, int* major, int* minor) {
  cOsFacts os = ReadOsFacts();
  if (text != nullptr) *text = Utf8ToCp932Lossy(os.name);
  if (major != nullptr) *major = os.major;
  if (minor != nullptr) *minor = os.minor;
}

int IsOsVersion(int major, int minor) {
  int m = 0, n = 0;
  GetOsName(nullptr, &m, &n);
  return m == major && n == minor;
}

int IsOsAtLeast(int major, int minor) {
  int m = 0, n = 0;
  GetOsName(nullptr, &m, &n);
  return m > major || (m == major && n >= minor);
}
