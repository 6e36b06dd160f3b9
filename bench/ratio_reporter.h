// Prints the benchmarks as ratios against a baseline that was measured in the same run.
#pragma once

#include <benchmark/benchmark.h>

#include <map>
#include <string>
#include <vector>

namespace ordex::bench {

// Benchmarks come in groups named "GROUP/WHAT", with one "GROUP/baseline". Of the repetitions the
// median counts.
class RatioReporter : public benchmark::BenchmarkReporter {
 public:
  bool ReportContext(const Context&) override { return true; }
  void ReportRuns(const std::vector<Run>& runs) override;
  void Finalize() override;

  // What a group aims at: at most so many times the baseline's time.
  void Aim(const std::string& group, double ratio) { aims_[group] = ratio; }

 private:
  struct Measured {
    std::vector<double> seconds;
    double bytesPerSecond = 0;
  };

  std::vector<std::string> order_;
  std::map<std::string, Measured> measured_;
  std::map<std::string, double> aims_;
};

}  // namespace ordex::bench
