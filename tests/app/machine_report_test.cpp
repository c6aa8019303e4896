#include "app/machine_report.h"

#include <gtest/gtest.h>

TEST(MachineReport, LinesKeepTheirFormatsAndThirtyTwoBitFigures) {
  cMachineFacts f;
  f.osName = "Debian GNU/Linux 12 Linux 6.1.0 x86_64";
  f.cpuVendor = "GenuineIntel";
  f.cpuBrand = "Test CPU";
  f.cpuHz = 2'399'999'999;
  f.memTotal = std::uint64_t{24} << 30;  // beyond 32 bits: shows as the largest 32-bit value
  f.memFree = std::uint64_t{512} << 20;
  f.virTotal = std::uint64_t{2} << 30;
  f.virFree = (std::uint64_t{3} << 19);  // 1.5 MB
  f.diskFree = std::uint64_t{80} << 30;  // 2 GiB and more is 0x7FFFFFFF bytes
  f.displayWidth = 1920;
  f.displayHeight = 1080;
  f.fontFace = "IPAGothic";
  f.fontWidth = 0;
  f.fontHeight = -12;
  f.fontCharSet = 128;
  EXPECT_EQ(FormatMachineReport(f),
            "OS : Debian GNU/Linux 12 Linux 6.1.0 x86_64\n"
            "CPU : GenuineIntel Test CPU 2399\n"
            "Mem Total : 4096.000MB\n"
            "Mem Free : 512MB\n"
            "Vir Total : 2048.000MB\n"
            "Vir Free :   2MB\n"
            "HD Free : 2048MB\n"
            "Display : (1920,1080)\n"
            "System Font : IPAGothic (0,-12) 128\n");
}
