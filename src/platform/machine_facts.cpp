#include "platform/machine_facts.h"

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <sstream>
#include <sys/resource.h>
#include <sys/statvfs.h>
#include <sys/sysinfo.h>
#include <sys/utsname.h>
#include <unistd.h>

#if defined(__x86_64__) || defined(__i386__)
#include <cpuid.h>
#endif

namespace {

cDisplayFacts g_displayFacts;

std::string Trim(std::string s) {
  std::size_t b = s.find_first_not_of(" \t\"");
  std::size_t e = s.find_last_not_of(" \t\"\n");
  return b == std::string::npos ? std::string() : s.substr(b, e - b + 1);
}

// The value of the first line "key<sep>value" of a text file, or "".
std::string ValueOf(const char* file, const std::string& key, char sep) {
  std::ifstream in(file);
  std::string line;
  while (std::getline(in, line)) {
    std::size_t at = line.find(sep);
    if (at != std::string::npos && Trim(line.substr(0, at)) == key) return Trim(line.substr(at + 1));
  }
  return {};
}

std::uint64_t KiBValueOf(const char* file, const std::string& key) {
  std::string v = ValueOf(file, key, ':');
  return v.empty() ? 0 : std::strtoull(v.c_str(), nullptr, 10) * 1024;
}

void ReadCpu(cMachineFacts& f) {
#if defined(__x86_64__) || defined(__i386__)
  unsigned a = 0, b = 0, c = 0, d = 0;
  if (__get_cpuid(0, &a, &b, &c, &d)) {
    char vendor[13] = {};
    std::memcpy(vendor, &b, 4);
    std::memcpy(vendor + 4, &d, 4);
    std::memcpy(vendor + 8, &c, 4);
    f.cpuVendor = vendor;
  }
  if (__get_cpuid(0x80000000, &a, &b, &c, &d) && a >= 0x80000004) {
    char brand[49] = {};
    for (unsigned leaf = 0; leaf < 3; ++leaf) {
      unsigned r[4];
      __get_cpuid(0x80000002 + leaf, &r[0], &r[1], &r[2], &r[3]);
      std::memcpy(brand + leaf * 16, r, 16);
    }
    f.cpuBrand = brand;
    f.cpuBrand.erase(f.cpuBrand.find_last_not_of(' ') + 1);  // the processor pads it with spaces
  }
#endif
  if (f.cpuVendor.empty()) f.cpuVendor = ValueOf("/proc/cpuinfo", "vendor_id", ':');
  if (f.cpuBrand.empty()) f.cpuBrand = ValueOf("/proc/cpuinfo", "model name", ':');
  // The kernel knows the clock; measuring it would cost a second of every start.
  std::string mhz = ValueOf("/proc/cpuinfo", "cpu MHz", ':');
  if (!mhz.empty()) {
    f.cpuHz = static_cast<std::uint64_t>(std::strtod(mhz.c_str(), nullptr) * 1e6);
  } else {
    std::ifstream max("/sys/devices/system/cpu/cpu0/cpufreq/cpuinfo_max_freq");
    std::uint64_t khz = 0;
    if (max >> khz) f.cpuHz = khz * 1000;
  }
}

void ReadMemory(cMachineFacts& f) {
  f.memTotal = KiBValueOf("/proc/meminfo", "MemTotal");
  f.memFree = ReadAvailableMemory();
  // The address space this process may use, and what of it is not yet mapped.
  struct rlimit limit {};
  f.virTotal = (::getrlimit(RLIMIT_AS, &limit) == 0 && limit.rlim_cur != RLIM_INFINITY)
                   ? limit.rlim_cur
                   : (std::uint64_t{1} << 47);
  std::uint64_t used = KiBValueOf("/proc/self/status", "VmSize");
  f.virFree = used < f.virTotal ? f.virTotal - used : 0;
}

void ReadDisk(cMachineFacts& f) {
  struct statvfs st {};
  if (::statvfs(".", &st) == 0) f.diskFree = static_cast<std::uint64_t>(st.f_bavail) * st.f_frsize;
}

}  // namespace

cOsFacts ReadOsFacts() {
  cOsFacts os;
  struct utsname u {};
  if (::uname(&u) != 0) {
    os.name = "Linux";
    return os;
  }
  std::sscanf(u.release, "%d.%d", &os.major, &os.minor);
  std::string pretty = ValueOf("/etc/os-release", "PRETTY_NAME", '=');
  os.name = std::string(u.sysname) + " " + u.release + " " + u.machine;
  if (!pretty.empty()) os.name = pretty + " " + os.name;
  return os;
}

cMachineFacts ReadMachineFacts() {
  cMachineFacts f;
  cOsFacts os = ReadOsFacts();
  f.osName = os.name;
  f.osMajor = os.major;
  f.osMinor = os.minor;
  ReadCpu(f);
  ReadMemory(f);
  ReadDisk(f);
  const cDisplayFacts& d = g_displayFacts;
  f.displayWidth = d.width;
  f.displayHeight = d.height;
  f.fontFace = d.fontFace;
  f.fontWidth = d.fontWidth;
  f.fontHeight = d.fontHeight;
  f.fontCharSet = d.fontCharSet;
  return f;
}

void SetDisplayFacts(const cDisplayFacts& facts) { g_displayFacts = facts; }
const cDisplayFacts& GetDisplayFacts() { return g_displayFacts; }

std::uint64_t ReadAvailableMemory() { return KiBValueOf("/proc/meminfo", "MemAvailable"); }
