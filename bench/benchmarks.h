// The groups of benchmarks, each in a file of its own.
#pragma once

#include <cstdint>

#include "ratio_reporter.h"

namespace ordex::bench {

void AddParseBenchmarks(RatioReporter& reporter);
// Look-up and search in a database with so many cases.
void AddSearchBenchmarks(RatioReporter& reporter, std::int64_t cases);
void AddImportBenchmarks(RatioReporter& reporter);
void AddHistoryBenchmarks(RatioReporter& reporter);

}  // namespace ordex::bench
