#include "store/db/statement_tables.h"

#include <algorithm>
#include <array>
#include <optional>
#include <string_view>
#include <utility>

namespace ordex {
namespace {

template <std::size_t N>
bool IsOneOf(const Token& token, const std::array<std::string_view, N>& words) {
  return std::any_of(words.begin(), words.end(),
                     [&](std::string_view word) { return IsWord(token, word); });
}

// Finds the tables that a statement names, with the other names that it gives them.
class TableFinder {
 public:
  std::vector<NamedTable> Find(const std::vector<Token>& tokens) {
    for (const Token& token : tokens) {
      if (IsSilent(token)) continue;
      if (IsName(token)) {
        TakeName(token);
      } else {
        TakeOther(token);
      }
    }
    return std::move(tables_);
  }

 private:
  enum class Expected { kNothing, kTable, kAlias };

  void TakeName(const Token& token) {
    static constexpr std::array<std::string_view, 4> kBeforeTable = {"FROM", "JOIN", "UPDATE",
                                                                     "INTO"};
    static constexpr std::array<std::string_view, 8> kEnd = {"WHERE",  "ON",    "GROUP",  "ORDER",
                                                             "HAVING", "UNION", "SELECT", "SET"};
    static constexpr std::array<std::string_view, 6> kJoins = {"INNER", "LEFT",  "RIGHT",
                                                               "FULL",  "CROSS", "OUTER"};
    if (IsOneOf(token, kBeforeTable)) {
      expected_ = Expected::kTable;
      in_list_ = true;
    } else if (IsOneOf(token, kEnd)) {
      expected_ = Expected::kNothing;
      in_list_ = false;
    } else if (IsOneOf(token, kJoins)) {
      expected_ = Expected::kNothing;
    } else if (expected_ == Expected::kTable) {
      tables_.push_back({std::string(Name(token)), {}});
      expected_ = Expected::kAlias;
    } else if (expected_ == Expected::kAlias && !IsWord(token, "AS")) {
      tables_.back().alias = Name(token);
      expected_ = Expected::kNothing;
    }
  }

  void TakeOther(const Token& token) {
    if (IsSymbol(token, ',')) {
      expected_ = in_list_ ? Expected::kTable : Expected::kNothing;
    } else if (IsSymbol(token, '.') && expected_ == Expected::kAlias) {
      // What stood before was the schema.
      tables_.pop_back();
      expected_ = Expected::kTable;
    } else if (!IsSymbol(token, '(')) {
      expected_ = Expected::kNothing;
    }
  }

  std::vector<NamedTable> tables_;
  Expected expected_ = Expected::kNothing;
  bool in_list_ = false;
};

// The tokens of a statement that say something.
std::vector<const Token*> Telling(const std::vector<Token>& tokens) {
  std::vector<const Token*> telling;
  for (const Token& token : tokens) {
    if (!IsSilent(token)) telling.push_back(&token);
  }
  return telling;
}

using TokenRange = std::vector<const Token*>;

// "T.*", "*", "T.Column", "Column"; anything else is an expression.
SelectItem ItemOf(const TokenRange& item) {
  SelectItem expression{SelectItemKind::kExpression, {}, {}};
  const bool qualified = item.size() == 3 && IsName(*item[0]) && IsSymbol(*item[1], '.');
  if (item.size() != 1 && !qualified) return expression;
  const std::string qualifier = qualified ? std::string(Name(*item[0])) : std::string();
  const Token& last = *item.back();
  if (IsSymbol(last, '*')) return {SelectItemKind::kAll, qualifier, {}};
  if (!IsName(last)) return expression;
  return {SelectItemKind::kColumn, qualifier, std::string(Name(last))};
}

bool HoldsSecondSelect(const TokenRange& tokens) {
  return std::any_of(tokens.begin() + 1, tokens.end(),
                     [](const Token* token) { return IsWord(*token, "SELECT"); });
}

// Words between SELECT and its first column.
bool IsQuantifier(const Token& token) {
  static constexpr std::array<std::string_view, 2> kQuantifiers = {"DISTINCT", "ALL"};
  return IsOneOf(token, kQuantifiers);
}

}  // namespace

std::vector<NamedTable> FindTables(const std::vector<Token>& tokens) {
  return TableFinder().Find(tokens);
}

std::vector<SelectItem> SelectItems(const std::vector<Token>& tokens) {
  const TokenRange telling = Telling(tokens);
  if (telling.empty() || !IsWord(*telling[0], "SELECT") || HoldsSecondSelect(telling)) return {};
  std::vector<SelectItem> items;
  TokenRange item;
  int depth = 0;
  for (auto at = telling.begin() + 1; at != telling.end(); ++at) {
    const Token& token = **at;
    if (depth == 0 && IsWord(token, "FROM")) break;
    if (items.empty() && item.empty() && IsQuantifier(token)) continue;
    if (depth == 0 && IsWord(token, "TOP")) return {};
    if (IsSymbol(token, '(')) ++depth;
    if (IsSymbol(token, ')')) --depth;
    if (depth == 0 && IsSymbol(token, ',')) {
      items.push_back(ItemOf(item));
      item.clear();
    } else {
      item.push_back(&token);
    }
  }
  items.push_back(ItemOf(item));
  return items;
}

}  // namespace ordex
