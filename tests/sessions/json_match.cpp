#include "json_match.h"

#include <string_view>
#include <utility>

namespace ordex::sessions {
namespace {

constexpr std::string_view kContains = "$contains";
constexpr std::string_view kAnyMember = "*";

std::string Told(const std::string& where, const std::string& text) {
  return (where.empty() ? std::string("/") : where) + ": " + text;
}

std::string Place(std::string where, const std::string& member) {
  return where.append("/").append(member);
}

std::string Place(std::string where, std::size_t index) {
  return Place(std::move(where), std::to_string(index));
}

std::optional<std::string> MissingPiece(const Json& pieces, const Json& actual,
                                        const std::string& where) {
  if (!actual.is_string()) return Told(where, "text expected, found " + actual.dump());
  const auto& text = actual.get_ref<const std::string&>();
  std::size_t at = 0;
  for (const Json& piece : pieces) {
    const auto& wanted = piece.get_ref<const std::string&>();
    at = text.find(wanted, at);
    if (at == std::string::npos) {
      return Told(where, "the piece " + piece.dump() + " is not in " + actual.dump() +
                             ", or not in its order");
    }
    at += wanted.size();
  }
  return std::nullopt;
}

std::optional<std::string> ObjectDifference(const Json& expected, const Json& actual,
                                            const std::string& where) {
  if (expected.size() == 1 && expected.contains(kContains)) {
    return MissingPiece(expected.at(kContains), actual, where);
  }
  if (!actual.is_object()) return Told(where, "object expected, found " + actual.dump());
  for (const auto& [name, value] : expected.items()) {
    if (!actual.contains(name)) return Told(where, "member \"" + name + "\" is missing");
    if (auto difference = Difference(value, actual.at(name), Place(where, name))) {
      return difference;
    }
  }
  return std::nullopt;
}

std::optional<std::string> ListDifference(const Json& expected, const Json& actual,
                                          const std::string& where) {
  if (!actual.is_array()) return Told(where, "list expected, found " + actual.dump());
  for (std::size_t i = 0; i < expected.size() && i < actual.size(); ++i) {
    if (auto difference = Difference(expected[i], actual[i], Place(where, i))) return difference;
  }
  if (expected.size() == actual.size()) return std::nullopt;
  return Told(where, "expected " + std::to_string(expected.size()) + " elements, found " +
                         std::to_string(actual.size()));
}

bool IsOfType(const Json& actual, std::string_view types) {
  for (;;) {
    const std::size_t bar = types.find('|');
    if (types.substr(0, bar) == actual.type_name()) return true;
    if (bar == std::string_view::npos) return false;
    types.remove_prefix(bar + 1);
  }
}

std::optional<std::string> MemberTypeDifference(const Json& types, const Json& actual,
                                                const std::string& where) {
  if (!actual.is_object()) return Told(where, "object expected, found " + actual.dump());
  if (types.contains(kAnyMember)) {
    for (const auto& [name, value] : actual.items()) {
      if (auto difference = TypeDifference(types.at(kAnyMember), value, Place(where, name))) {
        return difference;
      }
    }
    return std::nullopt;
  }
  for (const auto& [name, type] : types.items()) {
    if (!actual.contains(name)) return Told(where, "member \"" + name + "\" is missing");
    if (auto difference = TypeDifference(type, actual.at(name), Place(where, name))) {
      return difference;
    }
  }
  return std::nullopt;
}

std::optional<std::string> ElementTypeDifference(const Json& types, const Json& actual,
                                                 const std::string& where) {
  if (!actual.is_array()) return Told(where, "list expected, found " + actual.dump());
  if (types.size() > 1 && types.size() != actual.size()) {
    return Told(where, "expected " + std::to_string(types.size()) + " elements, found " +
                           std::to_string(actual.size()));
  }
  for (std::size_t i = 0; i < actual.size(); ++i) {
    const Json& type = types.size() == 1 ? types[0] : types[i];
    if (auto difference = TypeDifference(type, actual[i], Place(where, i))) return difference;
  }
  return std::nullopt;
}

}  // namespace

std::optional<std::string> Difference(const Json& expected, const Json& actual,
                                      const std::string& where) {
  if (expected.is_object()) return ObjectDifference(expected, actual, where);
  if (expected.is_array()) return ListDifference(expected, actual, where);
  if (expected == actual) return std::nullopt;
  return Told(where, "expected " + expected.dump() + ", found " + actual.dump());
}

std::optional<std::string> TypeDifference(const Json& types, const Json& actual,
                                          const std::string& where) {
  if (types.is_object()) return MemberTypeDifference(types, actual, where);
  if (types.is_array()) return ElementTypeDifference(types, actual, where);
  const auto& names = types.get_ref<const std::string&>();
  if (IsOfType(actual, names)) return std::nullopt;
  return Told(where, "expected " + names + ", found " + actual.dump());
}

}  // namespace ordex::sessions
