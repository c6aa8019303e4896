#pragma once
// What the report log says about the machine. Values are gathered from the operating
// system; the display and the system font are known only to the window layer, which
// fills them in before the report is written.

#include <cstdint>
#include <string>

struct cMachineFacts {
  std::string osName;         // UTF-8
  int osMajor = 0;
  int osMinor = 0;
  std::string cpuVendor;      // CPUID leaf 0, or the kernel's vendor_id
  std::string cpuBrand;       // CPUID 0x80000002..4, or the kernel's model name
  std::uint64_t cpuHz = 0;
  std::uint64_t memTotal = 0;  // bytes
  std::uint64_t memFree = 0;
  std::uint64_t virTotal = 0;
  std::uint64_t virFree = 0;
  std::uint64_t diskFree = 0;  // free bytes for this user on the current directory's file system
  int displayWidth = 0;
  int displayHeight = 0;
  std::string fontFace;        // UTF-8
  int fontWidth = 0;
  int fontHeight = 0;
  unsigned fontCharSet = 0;
};

struct cOsFacts {
  std::string name;  // UTF-8: distribution, kernel release and machine
  int major = 0;     // the kernel's version
  int minor = 0;
};
cOsFacts ReadOsFacts();

// Everything the operating system tells without a display.
cMachineFacts ReadMachineFacts();
// The memory the system could give a program now without swapping, in bytes.
std::uint64_t ReadAvailableMemory();

// Facts of the display and its font, set by the window layer at start-up.
struct cDisplayFacts {
  int width = 0;
  int height = 0;
  std::string fontFace;
  int fontWidth = 0;
  int fontHeight = 0;
  unsigned fontCharSet = 0;
};
void SetDisplayFacts(const cDisplayFacts& facts);
const cDisplayFacts& GetDisplayFacts();
