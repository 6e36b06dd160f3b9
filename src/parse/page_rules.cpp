#include "parse/page_rules.h"

#include <string>

#include "base/error.h"
#include "base/text.h"
#include "parse/mapping_files.h"

namespace ordex {

std::string_view Delimiter::Find() const {
  const std::string* text = cDelimitatori_.Lookup(key_);
  if (text == nullptr) {
    throw MakeError(ErrorNumber::kMissingKey,
                    "\"" + std::string(key_) + "\" manca nel file \"" +
                        std::string(kMapDelimitatori) +
                        "\": aggiungere la riga testo=" + std::string(key_));
  }
  return *text;
}

bool Landmark::In(std::string_view line) {
  const std::string_view wanted = text();
  if (line.empty()) return wanted.empty();
  const auto begin = static_cast<std::size_t>(line.data() - page_.data());
  if (begin < searchedFrom_ || begin > next_) {
    searchedFrom_ = begin;
    next_ = OffsetOf(page_, wanted, begin);
  }
  return next_ != std::string_view::npos && next_ + wanted.size() <= begin + line.size();
}

std::string_view Part(const Parts& parts, std::size_t index) {
  if (index >= parts.size()) {
    throw MakeError(ErrorNumber::kSubscript, "la riga ha " + std::to_string(parts.size()) +
                                                 (parts.size() == 1 ? " parte" : " parti") +
                                                 ", ne servono almeno " +
                                                 std::to_string(index + 1));
  }
  return parts[index];
}

const std::string& FieldOf(const KeyedTable& cOrdexMap, std::string_view label) {
  const std::string* field = cOrdexMap.Lookup(label);
  if (field == nullptr) {
    throw MakeError(ErrorNumber::kMissingKey,
                    "\"" + std::string(label) + "\" manca nel file \"" + std::string(kMapCampi) +
                        "\": aggiungere la riga campo=" + std::string(label));
  }
  return *field;
}

void StoreValue(KeyedTable& cDatiFasc, const std::string& NomeDb, std::string_view value) {
  if (std::string* stored = cDatiFasc.MoveToEnd(NomeDb)) {
    stored->append("; \r\n").append(value);
  } else {
    cDatiFasc.Add(std::string(value), NomeDb);
  }
}

}  // namespace ordex
