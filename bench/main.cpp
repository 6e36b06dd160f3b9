#include <charconv>
#include <cstdint>
#include <string_view>
#include <vector>

#include "benchmarks.h"

namespace {

// Takes "--cases=N" out of the arguments.
std::int64_t TakeCases(std::vector<char*>& arguments) {
  constexpr std::string_view kCases = "--cases=";
  std::int64_t cases = 1000000;
  for (auto argument = arguments.begin(); argument != arguments.end(); ++argument) {
    const std::string_view text = *argument;
    if (!text.starts_with(kCases)) continue;
    std::from_chars(text.data() + kCases.size(), text.data() + text.size(), cases);
    arguments.erase(argument);
    break;
  }
  return cases;
}

}  // namespace

int main(int argc, char** argv) {
  std::vector<char*> arguments(argv, argv + argc);
  const std::int64_t cases = TakeCases(arguments);
  int count = static_cast<int>(arguments.size());
  benchmark::Initialize(&count, arguments.data());
  ordex::bench::RatioReporter reporter;
  ordex::bench::AddParseBenchmarks(reporter);
  ordex::bench::AddSearchBenchmarks(reporter, cases);
  ordex::bench::AddImportBenchmarks(reporter);
  ordex::bench::AddHistoryBenchmarks(reporter);
  benchmark::RunSpecifiedBenchmarks(&reporter);
  return 0;
}
