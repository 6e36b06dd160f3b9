// Random pages, the same on every platform, and what must hold of the import of any page at all.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <random>
#include <sstream>
#include <string>
#include <vector>

#include "base/text.h"
#include "import_bench.h"
#include "support/random_values.h"

namespace ordex::testing {

// The same numbers on every platform: the standard's distributions are not.
class Dice {
 public:
  explicit Dice(std::uint32_t seed) : engine_(seed + SeedOfTheDay()) {}

  std::size_t Below(std::size_t count) { return engine_() % count; }
  bool Half() { return Below(2) == 0; }
  std::string Blanks() {
    std::string blanks(Below(4), ' ');
    return blanks;
  }
  template <std::size_t kCount>
  std::string OneOf(const std::array<const char*, kCount>& texts) {
    return texts[Below(kCount)];
  }

 private:
  std::mt19937 engine_;
};

inline std::string RandomBytes(Dice& dice, std::size_t most) {
  std::string bytes(dice.Below(most + 1), '\0');
  for (char& byte : bytes) byte = static_cast<char>(dice.Below(256));
  return bytes;
}

// Some of these words, parted by single blanks.
template <std::size_t kCount>
std::string SomeOf(Dice& dice, const std::array<const char*, kCount>& words) {
  std::string text = dice.OneOf(words);
  for (std::size_t i = dice.Below(4); i > 0; --i) text += " " + dice.OneOf(words);
  return text;
}

inline std::string Padded(Dice& dice, const std::string& core) {
  std::string padded = dice.Blanks();
  return padded.append(core).append(dice.Blanks());
}

// Bits of pages in any order: gets deeper into the rules than plain bytes.
template <std::size_t kCount>
std::string PiecesOf(Dice& dice, const std::array<const char*, kCount>& pieces) {
  std::string text;
  for (std::size_t count = dice.Below(120); count > 0; --count) text += dice.OneOf(pieces);
  return text;
}

// Some bytes of the text changed, put in or taken out.
inline std::string Damaged(Dice& dice, std::string text) {
  for (std::size_t count = 1 + dice.Below(30); count > 0 && !text.empty(); --count) {
    const std::size_t at = dice.Below(text.size());
    const char byte = static_cast<char>(dice.Below(256));
    switch (dice.Below(4)) {
      case 0:
        text[at] = byte;
        break;
      case 1:
        text.insert(at, 1, byte);
        break;
      case 2:
        text.erase(at, 1 + dice.Below(20));
        break;
      default:
        text.insert(at, "\r\n");
        break;
    }
  }
  return text;
}

inline std::vector<RecordingTrace::ReadLine> LinesOf(const std::string& bytes) {
  std::vector<RecordingTrace::ReadLine> lines;
  std::istringstream in(DecodeText(bytes));
  for (std::string line; std::getline(in, line);) {
    // A line that the end of the file cuts short has no line end to drop.
    if (line.ends_with('\r') && !in.eof()) line.pop_back();
    lines.push_back({lines.size() + 1, line});
  }
  return lines;
}

// What holds of every import, stopped or not: it stops only in the page and for one of these
// errors, each line was read once and in order, and only lines that were read are taken.
inline void ExpectSound(const ImportBench& bench, const Stop& stop, const std::string& bytes,
                        const std::vector<int>& errors) {
  std::vector<RecordingTrace::ReadLine> lines = LinesOf(bytes);
  if (stop != Stop{}) {
    ASSERT_TRUE(stop.inPage) << stop;
    ASSERT_GE(stop.line, 1U) << stop;
    ASSERT_LE(stop.line, bench.trace.lines.size()) << stop;
    ASSERT_EQ(stop.lineText, lines.at(stop.line - 1).text) << stop;
    ASSERT_NE(std::find(errors.begin(), errors.end(), stop.number), errors.end()) << stop;
    lines.resize(std::min(lines.size(), bench.trace.lines.size()));
  }
  ASSERT_EQ(bench.trace.lines, lines);
  for (const auto& [line, rules] : bench.trace.takers) {
    ASSERT_GE(line, 1U);
    ASSERT_LE(line, lines.size());
  }
}

// The rule that took each line, "none" where there was none.
inline std::vector<std::string> TakerOfEachLine(const RecordingTrace& trace) {
  std::vector<std::string> takers;
  for (const auto& line : trace.lines) takers.push_back(trace.FirstTaker(line.number));
  return takers;
}

inline void ExpectNoLineTakenTwice(const ImportBench& bench) {
  for (const auto& [line, rules] : bench.trace.takers) ASSERT_EQ(rules.size(), 1U) << line;
}

}  // namespace ordex::testing
