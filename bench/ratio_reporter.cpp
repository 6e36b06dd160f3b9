#include "ratio_reporter.h"

#include <algorithm>
#include <cstdio>
#include <tuple>

namespace ordex::bench {
namespace {

double Median(std::vector<double> values) {
  std::sort(values.begin(), values.end());
  return values[values.size() / 2];
}

std::string GroupOf(const std::string& name) {
  return name.substr(0, name.find('/'));
}

bool IsBaseline(const std::string& name) {
  return name.ends_with("/baseline");
}

// By group, each led by its baseline: with interleaving the first runs come in any order.
bool StandsBefore(const std::string& a, const std::string& b) {
  return std::tuple(GroupOf(a), !IsBaseline(a), a) < std::tuple(GroupOf(b), !IsBaseline(b), b);
}

}  // namespace

void RatioReporter::ReportRuns(const std::vector<Run>& runs) {
  for (const Run& run : runs) {
    if (run.run_type != Run::RT_Iteration || run.error_occurred) continue;
    const std::string name = run.run_name.function_name;
    if (measured_.find(name) == measured_.end()) order_.push_back(name);
    Measured& measured = measured_[name];
    measured.seconds.push_back(run.real_accumulated_time / static_cast<double>(run.iterations));
    const auto rate = run.counters.find("bytes_per_second");
    if (rate != run.counters.end()) measured.bytesPerSecond = rate->second;
  }
}

void RatioReporter::Finalize() {
  std::printf("%-44s %12s %10s %8s %8s\n", "benchmark", "time", "MB/s", "ratio", "aim");
  std::sort(order_.begin(), order_.end(), StandsBefore);
  for (const std::string& name : order_) {
    const Measured& measured = measured_[name];
    const auto baseline = measured_.find(GroupOf(name) + "/baseline");
    const double seconds = Median(measured.seconds);
    std::printf("%-44s %9.1f us", name.c_str(), seconds * 1e6);
    if (measured.bytesPerSecond > 0) {
      std::printf(" %10.0f", measured.bytesPerSecond / 1e6);
    } else {
      std::printf(" %10s", "");
    }
    if (baseline != measured_.end() && baseline->first != name) {
      std::printf(" %8.2f", seconds / Median(baseline->second.seconds));
      const auto aim = aims_.find(GroupOf(name));
      if (aim != aims_.end()) std::printf(" %8.2f", aim->second);
    }
    std::printf("\n");
  }
}

}  // namespace ordex::bench
