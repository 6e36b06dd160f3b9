// Random values, the same on every platform for the same seed.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <random>
#include <string>
#include <string_view>

#include "base/date.h"

namespace ordex::testing {

// What the environment variable ORDEX_SEED adds to every seed; 0 without it. A run with another one
// tries other values.
inline std::uint32_t SeedOfTheDay() {
  const char* text = std::getenv("ORDEX_SEED");
  return text == nullptr ? 0 : static_cast<std::uint32_t>(std::strtoul(text, nullptr, 10));
}

class Random {
 public:
  explicit Random(std::uint32_t seed) : engine_(seed + SeedOfTheDay()) {}

  // The standard's distributions are not the same everywhere.
  std::uint64_t Bits() { return std::uint64_t{engine_()} << 32 | engine_(); }
  std::size_t Below(std::size_t count) { return static_cast<std::size_t>(Bits() % count); }
  std::int64_t Between(std::int64_t least, std::int64_t most) {
    return least +
           static_cast<std::int64_t>(Bits() % (static_cast<std::uint64_t>(most - least) + 1));
  }
  bool Half() { return Below(2) == 0; }
  template <std::size_t kCount>
  std::string_view OneOf(const std::array<std::string_view, kCount>& texts) {
    return texts[Below(kCount)];
  }

  // Any characters of Unicode, most of them from the scripts of the portal's users.
  std::string Text(std::size_t most) {
    std::string text;
    for (std::size_t count = Below(most + 1); count > 0; --count) AppendCharacter(text);
    return text;
  }

  // Any second of the years that every engine's date column can hold.
  DateTime Date() {
    const DateTime first{1753, 1, 1, 0, 0, 0};
    constexpr int kDays = 3012153;  // from 1/1/1753 to 31/12/9999
    DateTime date = AddDays(first, static_cast<int>(Below(kDays + 1)));
    date.hour = static_cast<int>(Below(24));
    date.minute = static_cast<int>(Below(60));
    date.second = static_cast<int>(Below(60));
    return date;
  }

 private:
  std::uint32_t CodePoint() {
    switch (Below(6)) {
      case 0:
        return static_cast<std::uint32_t>(Between(1, 0x1F));  // control characters
      case 1:
        return static_cast<std::uint32_t>(Between(0x80, 0x24F));  // Latin with its accents
      case 2:
        return static_cast<std::uint32_t>(Between(0x200B, 0x206F));  // marks of direction
      case 3:
        return static_cast<std::uint32_t>(Between(0x10000, 0x10FFFF));
      case 4:
        return static_cast<std::uint32_t>(Between(0x250, 0xD7FF));
      default:
        return static_cast<std::uint32_t>(Between(0x20, 0x7E));
    }
  }

  void AppendCharacter(std::string& text) {
    const std::uint32_t code = CodePoint();
    const auto byte = [&](std::uint32_t value) { text.push_back(static_cast<char>(value)); };
    if (code < 0x80) {
      byte(code);
    } else if (code < 0x800) {
      byte(0xC0 | code >> 6);
      byte(0x80 | (code & 0x3F));
    } else if (code < 0x10000) {
      byte(0xE0 | code >> 12);
      byte(0x80 | (code >> 6 & 0x3F));
      byte(0x80 | (code & 0x3F));
    } else {
      byte(0xF0 | code >> 18);
      byte(0x80 | (code >> 12 & 0x3F));
      byte(0x80 | (code >> 6 & 0x3F));
      byte(0x80 | (code & 0x3F));
    }
  }

  std::mt19937 engine_;
};

}  // namespace ordex::testing
