// What a session expects of a run's events and rows, each compared with what was found. All return
// what differs, in words, or nullopt.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "database.h"
#include "json_match.h"
#include "session_file.h"

namespace ordex::sessions {

// Error: SyntaxError.
Json ParsedJson(std::string_view text, std::size_t line);
// The argument of the step, or its block.
Json JsonOf(const Step& step);

// Looks for `expected` from `next` on, and sets `next` behind it.
std::optional<std::string> FindNext(const std::vector<Json>& events, const Json& expected,
                                    std::size_t& next);

std::optional<std::string> CountDifference(const std::vector<Json>& events, const Json& expected,
                                           std::size_t count);

std::vector<std::string> SqlTextsOf(const std::vector<Json>& events);

std::optional<std::string> ListDifference(const std::vector<std::string>& expected,
                                          const std::vector<std::string>& found);

std::optional<std::string> ContentDifference(const Content& before, const Content& after);

}  // namespace ordex::sessions
