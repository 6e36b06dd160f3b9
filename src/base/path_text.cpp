#include "base/path_text.h"

#include "base/error.h"

namespace ordex {
namespace {

std::string Bytes(const std::u8string& text) {
  return {text.begin(), text.end()};
}

}  // namespace

std::filesystem::path PathOf(std::string_view utf8) {
  try {
    return {std::u8string(utf8.begin(), utf8.end())};
  } catch (const std::filesystem::filesystem_error&) {
    throw MakeError(ErrorNumber::kFileAccess,
                    "\"" + std::string(utf8) + "\" non può essere il nome di un file");
  }
}

std::string TextOf(const std::filesystem::path& path) {
  return Bytes(path.u8string());
}

std::string GenericTextOf(const std::filesystem::path& path) {
  return Bytes(path.generic_u8string());
}

}  // namespace ordex
