// Compares an event with what a session expects of it.
#pragma once

#include <nlohmann/json.hpp>
#include <optional>
#include <string>

namespace ordex::sessions {

using Json = nlohmann::ordered_json;

// Where and how `actual` differs from `expected`; nullopt where it is as expected.
//
// An object is as expected where each member that `expected` names is there and as expected;
// further members are free. A list has the same length and each element as expected. {"$contains":
// [TEXT …]} expects a text that holds these texts, one behind the other. Everything else is to be
// equal.
std::optional<std::string> Difference(const Json& expected, const Json& actual,
                                      const std::string& where = "");

// The same for the kinds of values: `types` has the kind's name where `actual` has the value,
// "string", "number", "boolean", "null", "object" or "array", several of them apart by "|". A list
// of one kind stands for a list of any length, one of several for a list of just these; the member
// "*" of an object stands for all members.
std::optional<std::string> TypeDifference(const Json& types, const Json& actual,
                                          const std::string& where = "");

}  // namespace ordex::sessions
