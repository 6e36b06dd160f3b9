// What the fuzz targets share: taking an input apart, and saying what must hold.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <string_view>

namespace ordex::fuzz {

// Ends the run where `holds` is false, so that the input is kept.
inline void Require(bool holds, const std::string& what) {
  if (holds) return;
  std::fprintf(stderr, "does not hold: %s\n", what.c_str());
  std::abort();
}

// The bytes of an input, taken off from the front. Past the end there are zeros and empty texts, so
// that every input means something.
class Input {
 public:
  Input(const std::uint8_t* data, std::size_t size)
      : rest_(reinterpret_cast<const char*>(data), size) {}

  bool AtEnd() const { return rest_.empty(); }
  std::string_view Rest() const { return rest_; }

  unsigned char Byte() {
    if (rest_.empty()) return 0;
    const auto byte = static_cast<unsigned char>(rest_.front());
    rest_.remove_prefix(1);
    return byte;
  }

  // A number from 0 to `count` - 1, written as a printable character in the corpora: " " is 0.
  std::size_t Choice(std::size_t count) {
    const unsigned char byte = Byte();
    return static_cast<unsigned char>(byte - 0x20) % count;
  }

  // Up to the next LF, which is taken off too.
  std::string_view Line() {
    const std::size_t end = rest_.find('\n');
    const std::string_view line = rest_.substr(0, end);
    rest_.remove_prefix(end == std::string_view::npos ? rest_.size() : end + 1);
    return line;
  }

 private:
  std::string_view rest_;
};

}  // namespace ordex::fuzz
