#include "repair_report.h"

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <string>
#include <unordered_map>
#include <vector>

#include "field_values.h"
#include "kernel/record_file_describe.h"
#include "platform/file_io.h"
#include "platform/stored_path.h"
#include "project/project_files.h"
#include "project/project_globals.h"
#include "project/project_load.h"
#include "record_types.h"

namespace fs = std::filesystem;

namespace {

// A value as the file holds it and as a save would write it.
struct cRepair {
  std::string where;  // "row 3: m_vecElemRate", or the field alone in a file of one record
  std::string read;
  std::string became;
};

// Describes one record, or one row, at the cursor of each stream and lists the values
// under the same path that differ. A value on one side only belongs to a vector whose
// count changed, which is listed, or to a field that the file's older version lacks.
bool CompareRecords(const cRecordFileType& type, cSerialFile& read, cSerialFile& written, const std::string& row,
                    std::vector<cRepair>& repairs) {
  cFieldValues before, after;
  if (!type.describeRecord(read, before) || !type.describeRecord(written, after)) return false;
  std::unordered_map<std::string_view, std::string_view> became;
  for (const cFieldValues::cEntry& entry : after.Entries()) became.emplace(entry.path, entry.value);
  for (const cFieldValues::cEntry& entry : before.Entries()) {
    auto it = became.find(entry.path);
    if (it != became.end() && it->second != entry.value) {
      repairs.push_back({row + entry.path, entry.value, std::string(it->second)});
    }
  }
  return true;
}

bool CompareStreams(const cRecordFileType& type, cSerialFile& read, cSerialFile& written,
                    std::vector<cRepair>& repairs) {
  if (!type.bRows) return CompareRecords(type, read, written, "", repairs);
  std::uint32_t readRows = 0, writtenRows = 0;
  if (!ReadRowCount(read, readRows) || !ReadRowCount(written, writtenRows)) return false;
  if (readRows != writtenRows) repairs.push_back({"rows", EntriesText(readRows), EntriesText(writtenRows)});
  for (std::uint32_t i = 0; i < std::min(readRows, writtenRows); ++i) {
    if (!CompareRecords(type, read, written, "row " + std::to_string(i) + ": ", repairs)) return false;
  }
  return true;
}

class cRepairReport {
 public:
  // Compares the file at `path` with what `write` puts into a stream now; a file that
  // is not there is left out, as the load leaves it out.
  void CompareFile(const fs::path& path, void (*write)(cSerialFile*)) {
    std::vector<unsigned char> bytes;
    std::error_code ec;
    if (!fs::is_regular_file(path, ec) || !ReadWholeFile(path, bytes)) return;
    SerialFilePtr out = OpenSerialWriteBuffer();
    write(out.get());
    std::vector<unsigned char> saved = out->Bytes();
    if (saved == bytes) return;
    const cRecordFileType* type = FindRecordTypeForFile(path);
    SerialFilePtr read = OpenSerialReadBuffer(std::move(bytes));
    SerialFilePtr written = OpenSerialReadBuffer(std::move(saved));
    std::vector<cRepair> repairs;
    if (type == nullptr || !read || !written || !CompareStreams(*type, *read, *written, repairs)) {
      std::printf("%s: a save would write it differently, but its fields cannot be compared\n", path.c_str());
      ++m_nFiles;
      return;
    }
    if (repairs.empty()) return;
    std::printf("%s: %zu repaired\n", path.c_str(), repairs.size());
    for (const cRepair& repair : repairs) {
      std::printf("  %s: %s -> %s\n", repair.where.c_str(), repair.read.c_str(), repair.became.c_str());
    }
    ++m_nFiles;
    m_nValues += repairs.size();
  }

  void PrintTotal() const {
    if (m_nFiles == 0) {
      std::printf("check: no reference was repaired, and a save would repair none\n");
    } else {
      std::printf("check: %zu repaired values in %d files; a save makes them permanent\n", m_nValues, m_nFiles);
    }
  }

 private:
  int m_nFiles = 0;
  std::size_t m_nValues = 0;
};

// The stage files of the project, by name; each is read as the editor opens it, into
// the one stage in memory.
std::vector<fs::path> StageFiles() {
  std::vector<fs::path> stages;
  std::error_code ec;
  for (fs::directory_iterator it(NativePathOf("data\\stg", {}), ec), end; !ec && it != end; it.increment(ec)) {
    if (it->is_regular_file(ec) && FindRecordTypeForFile(it->path()) == FindRecordTypeByName("Stage")) {
      stages.push_back(it->path());
    }
  }
  std::sort(stages.begin(), stages.end());
  return stages;
}

}  // namespace

void ReportRepairs() {
  cRepairReport report;
  for (const cProjectFile* file : ProjectRecordFiles()) report.CompareFile(NativePathOf(file->path, {}), file->write);
  for (const fs::path& stage : StageFiles()) {
    if (!g_Stage.LoadFile(stage)) {
      std::printf("%s: does not load as a stage\n", stage.c_str());
      continue;
    }
    report.CompareFile(stage, [](cSerialFile* file) { g_Stage.Save(file); });
  }
  report.PrintTotal();
}
