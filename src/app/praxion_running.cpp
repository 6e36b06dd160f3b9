#include "app/praxion_running.h"

#include <algorithm>
#include <optional>

#include "base/text.h"

namespace ordex {
namespace {

enum class Names { kWholePaths, kFileNames };

Names NamesOf(const std::optional<SystemVersion>& version) {
  constexpr int kMillenniumMinor = 90;
  if (!version || version->platform == 0) return Names::kWholePaths;
  if (version->platform == 1 && version->minor != kMillenniumMinor) return Names::kWholePaths;
  return Names::kFileNames;
}

// A name comes out of a field of fixed length.
std::string WithoutZeros(std::string_view name) {
  std::string text(name);
  std::erase(text, '\0');
  return text;
}

bool IsPraxion(const std::string& name, Names names) {
  if (names == Names::kWholePaths) return Upper(EstraiNomeFile(name)) == "PRAXION.EXE";
  return Contains(Upper(name), "PRAXION");
}

}  // namespace

bool PraxionInEsecuzione(const Processes& processes) {
  const Names names = NamesOf(processes.Version());
  const auto running = processes.Snapshot();
  if (!running) return false;
  return std::any_of(running->begin(), running->end(), [names](const std::string& name) {
    return IsPraxion(WithoutZeros(name), names);
  });
}

std::string EstraiNomeFile(std::string_view path) {
  // Without a "\" the position found is the largest number there is, and one more is zero.
  return std::string(path.substr(path.rfind('\\') + 1));
}

}  // namespace ordex
