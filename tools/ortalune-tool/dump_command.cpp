// ortalune-tool dump: a record file as readable text on stdout, for reading and for
// version control (a diff driver's text conversion). The fields come from the record
// class's own walk, read at the file's version; nothing is migrated or repaired.

#include <cstdio>
#include <fcntl.h>
#include <filesystem>
#include <sys/stat.h>
#include <unistd.h>
#include <string>
#include <vector>

#include "command_table.h"
#include "field_text.h"
#include "kernel/serial.h"
#include "record_types.h"

namespace fs = std::filesystem;

namespace {

int Usage() {
  std::fprintf(stderr, "usage: ortalune-tool dump [--type TYPE] FILE\n");
  return kToolUsage;
}

// The text of a large table runs to a gigabyte, and a diff driver's reader takes it
// from a pipe: a pipe of the largest size the system allows passes it in fewer turns.
void WidenPipe(std::FILE* out) {
  const int fd = ::fileno(out);
  struct stat status;
  if (fd < 0 || ::fstat(fd, &status) != 0 || !S_ISFIFO(status.st_mode)) return;
  for (int size = 1 << 20; size >= 1 << 16; size /= 2) {
    if (::fcntl(fd, F_SETPIPE_SZ, size) >= 0) return;
  }
}

}  // namespace

int RunDump(std::span<const std::string> args) {
  std::string typeName;
  std::vector<std::string> paths;
  for (std::size_t i = 0; i < args.size(); ++i) {
    if (!TakeTypeOption(args, i, typeName)) paths.push_back(args[i]);
  }
  if (paths.size() != 1) return Usage();
  const fs::path in = paths[0];
  const cRecordFileType* type = RecordTypeOrSay(in, typeName, "dump");
  if (type == nullptr) return kToolUsage;

  g_strLastSerialFailure.clear();
  SerialFilePtr file = OpenSerialRead(in);
  if (!file) {
    std::fprintf(stderr, "dump: %s\n", ReadFailureText(in).c_str());
    return kToolFailed;
  }
  WidenPipe(stdout);
  cFieldTextWriter text(stdout);
  text.Line("version " + std::to_string(file->Version()));
  const bool whole = DescribeFile(*type, *file, text);
  // Bytes that no field takes are no part of the record, and a load ignores them; they
  // are still something the file holds.
  if (whole && file->Remaining() > 0) text.Line("(" + std::to_string(file->Remaining()) + " bytes after the last field)");
  const bool written = text.Flush();
  if (!whole) {
    const std::string where = text.Where();
    std::fprintf(stderr, "dump: %s: %s%s%s; the text above ends there\n", in.c_str(), file->FailureText().c_str(),
                 where.empty() ? "" : ", in ", where.c_str());
    return kToolFailed;
  }
  if (!written) {
    std::fprintf(stderr, "dump: the text could not be written\n");
    return kToolFailed;
  }
  return kToolOk;
}
