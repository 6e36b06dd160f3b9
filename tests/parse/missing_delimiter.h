// A delimiter file that lacks one key, and the words of the error that follows.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace ordex::testing {

// The delimiters without the line of `key`, which must be there.
inline std::string DelimitersWithout(std::string_view all, const std::string& key) {
  std::string delimiters(all);
  const std::size_t end = delimiters.find("=" + key + "\n");
  const std::size_t before = delimiters.rfind('\n', end);
  const std::size_t start = before == std::string::npos ? 0 : before + 1;
  return delimiters.erase(start, end + key.size() + 2 - start);
}

inline std::string MissingText(const std::string& key) {
  return "Chiave non trovata: \"" + key +
         R"(" manca nel file "MapDelimitatori.txt": aggiungere la riga testo=)" + key;
}

}  // namespace ordex::testing
