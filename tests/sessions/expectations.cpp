#include "expectations.h"

#include <algorithm>

namespace ordex::sessions {
namespace {

std::string Listed(const std::vector<std::string>& lines) {
  std::string text;
  for (const std::string& line : lines) text.append("  ").append(line).append("\n");
  return text.empty() ? "  (none)\n" : text;
}

// How near the events of the same kind came.
std::string NearMisses(const std::vector<Json>& events, const Json& expected, std::size_t from) {
  std::string text;
  for (std::size_t i = from; i < events.size(); ++i) {
    const bool same_kind = expected.contains("event") && events[i]["event"] == expected["event"];
    if (same_kind) text.append("\n  nearly: ").append(Difference(expected, events[i]).value_or(""));
  }
  return text;
}

}  // namespace

Json ParsedJson(std::string_view text, std::size_t line) {
  try {
    return Json::parse(text);
  } catch (const Json::parse_error& error) {
    throw SyntaxError(line, error.what());
  }
}

Json JsonOf(const Step& step) {
  return ParsedJson(step.argument.empty() ? step.BlockText() : step.argument, step.line);
}

std::optional<std::string> FindNext(const std::vector<Json>& events, const Json& expected,
                                    std::size_t& next) {
  for (std::size_t i = next; i < events.size(); ++i) {
    if (!Difference(expected, events[i])) {
      next = i + 1;
      return std::nullopt;
    }
  }
  return "no such event from event " + std::to_string(next + 1) + " on: " + expected.dump() +
         NearMisses(events, expected, next);
}

std::optional<std::string> CountDifference(const std::vector<Json>& events, const Json& expected,
                                           std::size_t count) {
  const auto found =
      static_cast<std::size_t>(std::count_if(events.begin(), events.end(), [&](const Json& event) {
        return !Difference(expected, event);
      }));
  if (found == count) return std::nullopt;
  return "expected " + std::to_string(count) + " such events, found " + std::to_string(found) +
         ": " + expected.dump();
}

std::vector<std::string> SqlTextsOf(const std::vector<Json>& events) {
  std::vector<std::string> texts;
  for (const Json& event : events) {
    if (event["event"] == "sql") texts.push_back(event.value("text", ""));
  }
  return texts;
}

std::optional<std::string> ListDifference(const std::vector<std::string>& expected,
                                          const std::vector<std::string>& found) {
  if (expected == found) return std::nullopt;
  const auto first = static_cast<std::size_t>(
      std::mismatch(expected.begin(), expected.end(), found.begin(), found.end()).first -
      expected.begin());
  return "differs from line " + std::to_string(first + 1) + " on; expected\n" + Listed(expected) +
         "found\n" + Listed(found);
}

std::optional<std::string> ContentDifference(const Content& before, const Content& after) {
  if (before == after) return std::nullopt;
  std::string text = "the database has changed";
  for (const auto& [table, rows] : before) {
    const auto now = after.find(table);
    if (now == after.end()) {
      text.append("; the table ").append(table).append(" is gone");
    } else if (now->second != rows) {
      text.append("\ntable ").append(table).append(" ");
      text.append(ListDifference(rows, now->second).value_or(""));
    }
  }
  for (const auto& [table, rows] : after) {
    if (!before.contains(table)) text.append("; the table ").append(table).append(" is new");
  }
  return text;
}

}  // namespace ordex::sessions
