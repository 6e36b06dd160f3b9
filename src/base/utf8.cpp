#include "base/utf8.h"

#include <utf8proc.h>

#include <array>

namespace ordex {

Character FirstCharacter(std::string_view text) {
  const auto* bytes = reinterpret_cast<const utf8proc_uint8_t*>(text.data());
  if (bytes[0] < 0x80) return {bytes[0], 1};
  utf8proc_int32_t code = kNoCode;
  const utf8proc_ssize_t length =
      utf8proc_iterate(bytes, static_cast<utf8proc_ssize_t>(text.size()), &code);
  if (length < 1) return {kNoCode, 1};
  return {code, static_cast<std::size_t>(length)};
}

void AppendCodePoint(std::int32_t code, std::string& out) {
  std::array<utf8proc_uint8_t, 4> bytes{};
  const utf8proc_ssize_t length = utf8proc_encode_char(code, bytes.data());
  out.append(reinterpret_cast<const char*>(bytes.data()), static_cast<std::size_t>(length));
}

}  // namespace ordex
