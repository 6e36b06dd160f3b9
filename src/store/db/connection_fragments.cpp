#include "store/db/connection_fragments.h"

#include <cstddef>

#include "base/text.h"

namespace ordex {
namespace {

constexpr std::string_view kBeginning = "Provider=SQLNCLI.1";
constexpr std::string_view kMiddle = "Initial Catalog=Zelmo32;";

bool EndsPiece(std::string_view text) {
  const std::size_t last = text.find_last_not_of(' ');
  return last == std::string_view::npos || text[last] == ';';
}

}  // namespace

std::string JoinConnectionFragments(std::string_view security, std::string_view server) {
  return std::string(kBeginning).append(security).append(kMiddle).append(server);
}

std::string WithSemicolonsAtJoints(std::string_view joined) {
  std::string whole(joined);
  if (joined.starts_with(kBeginning) &&
      !TrimLeft(joined.substr(kBeginning.size())).starts_with(';')) {
    whole.insert(kBeginning.size(), ";");
  }
  const std::size_t middle = whole.find(kMiddle);
  if (middle != std::string::npos && !EndsPiece(std::string_view(whole).substr(0, middle))) {
    whole.insert(middle, ";");
  }
  return whole;
}

}  // namespace ordex
