// Writing and reading 100,000 small records with mixed fields, against two baselines
// measured in the same run: a stream that makes one system call per field, and one
// plain read or write of the same bytes.

#include <benchmark/benchmark.h>

#include "ratio_reporter.h"

#include <cstdio>
#include <fcntl.h>
#include <string>
#include <unistd.h>

#include "kernel/record_vector_file.h"

namespace {

constexpr int kRecords = 100000;

class cBenchRecord : public cSerial {
 public:
  cBenchRecord() { Reset(); }
  SERIAL_RECORD(cBenchRecord)

  int Serialize(int op, const cSerial* other, cSerialFile* file, std::uint32_t version) override {
    const auto* o = SerialOther<cBenchRecord>(other);
    SERIAL_FIELD(SerialInt(op, m_nId, OTHER(m_nId), file));
    SERIAL_FIELD(SerialShort(op, m_sLevel, OTHER(m_sLevel), file));
    SERIAL_FIELD(SerialByte(op, m_byFlags, OTHER(m_byFlags), file));
    SERIAL_FIELD(SerialDouble(op, m_dRate, OTHER(m_dRate), file));
    SERIAL_FIELD(SerialString(op, m_strName, OTHER(m_strName), file));
    SERIAL_FIELD(SerialIntVector(op, m_vecValues, OTHER(m_vecValues), file));
    return 1;
  }

  std::int32_t m_nId;
  std::int16_t m_sLevel;
  std::uint8_t m_byFlags;
  double m_dRate;
  std::string m_strName;
  VECTOR_CLASS<std::int32_t> m_vecValues;
};

VECTOR_CLASS<cBenchRecord> MakeRecords() {
  VECTOR_CLASS<cBenchRecord> records(kRecords);
  for (int i = 0; i < kRecords; ++i) {
    cBenchRecord& r = records[i];
    r.m_nId = i;
    r.m_sLevel = static_cast<std::int16_t>(i % 99);
    r.m_byFlags = static_cast<std::uint8_t>(i);
    r.m_dRate = i * 0.25;
    r.m_strName = "\x83\x58\x83\x89\x83\x43\x83\x80" + std::to_string(i % 1000);
    r.m_vecValues.assign(static_cast<std::size_t>(i % 4), i);
  }
  return records;
}

const VECTOR_CLASS<cBenchRecord>& Records() {
  static const VECTOR_CLASS<cBenchRecord> records = MakeRecords();
  return records;
}

std::string PathOf(const char* name) { return std::string(P_tmpdir) + "/ortalune-bench-" + name; }

// The naive stream: every field straight to the operating system.
void NaiveWrite(int fd, const void* data, std::size_t size) {
  if (::write(fd, data, size) != static_cast<ssize_t>(size)) std::abort();
}

void NaiveRead(int fd, void* data, std::size_t size) {
  if (::read(fd, data, size) != static_cast<ssize_t>(size)) std::abort();
}

void NaiveWriteAll(const std::string& path) {
  int fd = ::open(path.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0644);
  std::uint32_t header = g_nCurVersion, count = kRecords;
  NaiveWrite(fd, &header, 4);
  NaiveWrite(fd, &count, 4);
  for (const cBenchRecord& r : Records()) {
    NaiveWrite(fd, &r.m_nId, 4);
    NaiveWrite(fd, &r.m_sLevel, 2);
    NaiveWrite(fd, &r.m_byFlags, 1);
    NaiveWrite(fd, &r.m_dRate, 8);
    std::uint32_t length = static_cast<std::uint32_t>(r.m_strName.size() + 1);
    NaiveWrite(fd, &length, 4);
    NaiveWrite(fd, r.m_strName.c_str(), length);
    std::uint32_t n = static_cast<std::uint32_t>(r.m_vecValues.size());
    NaiveWrite(fd, &n, 4);
    if (n) NaiveWrite(fd, r.m_vecValues.data(), n * 4);
  }
  ::fsync(fd);
  ::close(fd);
}

void NaiveReadAll(const std::string& path, std::vector<cBenchRecord>& out) {
  int fd = ::open(path.c_str(), O_RDONLY);
  std::uint32_t header = 0, count = 0;
  NaiveRead(fd, &header, 4);
  NaiveRead(fd, &count, 4);
  out.assign(count, cBenchRecord());
  char buffer[256];
  for (cBenchRecord& r : out) {
    NaiveRead(fd, &r.m_nId, 4);
    NaiveRead(fd, &r.m_sLevel, 2);
    NaiveRead(fd, &r.m_byFlags, 1);
    NaiveRead(fd, &r.m_dRate, 8);
    std::uint32_t length = 0;
    NaiveRead(fd, &length, 4);
    NaiveRead(fd, buffer, length);
    r.m_strName.assign(buffer);
    std::uint32_t n = 0;
    NaiveRead(fd, &n, 4);
    r.m_vecValues.resize(n);
    if (n) NaiveRead(fd, r.m_vecValues.data(), n * 4);
  }
  ::close(fd);
}

void BM_Write_Ours(benchmark::State& state) {
  VECTOR_CLASS<cBenchRecord> records = Records();
  std::string path = PathOf("ours.dat");
  for (auto _ : state) {
    if (!SaveVector(records, std::filesystem::path(path))) state.SkipWithError("save failed");
  }
}

void BM_Write_NaiveSyscallPerField(benchmark::State& state) {
  std::string path = PathOf("naive.dat");
  for (auto _ : state) NaiveWriteAll(path);
}

void BM_Write_PlainBytes(benchmark::State& state) {
  std::vector<unsigned char> bytes;
  ReadWholeFile(PathOf("ours.dat"), bytes);
  std::string path = PathOf("plain.dat");
  for (auto _ : state) {
    int fd = ::open(path.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0644);
    NaiveWrite(fd, bytes.data(), bytes.size());
    ::fsync(fd);
    ::close(fd);
  }
}

void BM_Read_Ours(benchmark::State& state) {
  std::string path = PathOf("ours.dat");
  for (auto _ : state) {
    VECTOR_CLASS<cBenchRecord> records;
    if (!LoadVector(records, std::filesystem::path(path))) state.SkipWithError("load failed");
    benchmark::DoNotOptimize(records.data());
  }
}

void BM_Read_NaiveSyscallPerField(benchmark::State& state) {
  std::string path = PathOf("naive.dat");
  for (auto _ : state) {
    std::vector<cBenchRecord> records;
    NaiveReadAll(path, records);
    benchmark::DoNotOptimize(records.data());
  }
}

void BM_Read_PlainBytes(benchmark::State& state) {
  std::string path = PathOf("plain.dat");
  for (auto _ : state) {
    std::vector<unsigned char> bytes;
    ReadWholeFile(path, bytes);
    benchmark::DoNotOptimize(bytes.data());
  }
}

BENCHMARK(BM_Write_Ours)->Unit(benchmark::kMillisecond)->MinTime(1.0);
BENCHMARK(BM_Write_NaiveSyscallPerField)->Unit(benchmark::kMillisecond)->MinTime(1.0);
BENCHMARK(BM_Write_PlainBytes)->Unit(benchmark::kMillisecond)->MinTime(1.0);
BENCHMARK(BM_Read_Ours)->Unit(benchmark::kMillisecond)->MinTime(1.0);
BENCHMARK(BM_Read_NaiveSyscallPerField)->Unit(benchmark::kMillisecond)->MinTime(1.0);
BENCHMARK(BM_Read_PlainBytes)->Unit(benchmark::kMillisecond)->MinTime(1.0);

}  // namespace

int main(int argc, char** argv) {
  benchmark::Initialize(&argc, argv);
  cRatioReporter reporter;
  benchmark::RunSpecifiedBenchmarks(&reporter);
  for (const char* what : {"Write", "Read"}) {
    double ours = reporter.Time(std::string("BM_") + what + "_Ours/min_time:1.000");
    double naive = reporter.Time(std::string("BM_") + what + "_NaiveSyscallPerField/min_time:1.000");
    double plain = reporter.Time(std::string("BM_") + what + "_PlainBytes/min_time:1.000");
    if (ours <= 0) continue;
    std::printf("%-5s: ours is %.1f times as fast as one system call per field (target: at least 20), "
                "and takes %.2f times the time of a plain %s of the same bytes\n",
                what, naive / ours, plain > 0 ? ours / plain : 0.0, what[0] == 'W' ? "write" : "read");
  }
  for (const char* name : {"ours.dat", "naive.dat", "plain.dat"}) std::remove(PathOf(name).c_str());
  benchmark::Shutdown();
  return 0;
}
