#pragma once
// A console reporter that keeps the time of each run, so that a benchmark can print its
// ratios against the baselines measured in the same run.

#include <benchmark/benchmark.h>

#include <map>
#include <string>
#include <vector>

class cRatioReporter : public benchmark::ConsoleReporter {
 public:
  void ReportRuns(const std::vector<Run>& runs) override {
    for (const Run& run : runs) m_times[run.benchmark_name()] = run.GetAdjustedRealTime();
    ConsoleReporter::ReportRuns(runs);
  }
  // The time of the run named `name`, or 0 when it did not run.
  double Time(const std::string& name) const {
    auto it = m_times.find(name);
    return it == m_times.end() ? 0 : it->second;
  }

 private:
  std::map<std::string, double> m_times;
};
