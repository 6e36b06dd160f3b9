// What a SELECT names: its tables and the columns of its result.
#pragma once

#include <string>
#include <vector>

#include "store/db/sql_tokens.h"

namespace ordex {

struct NamedTable {
  std::string name;
  std::string alias;
};

// The tables that a statement names, with the other names that it gives them, in order.
std::vector<NamedTable> FindTables(const std::vector<Token>& tokens);

enum class SelectItemKind {
  kAll,         // "*"
  kColumn,      // a column under its own name
  kExpression,  // anything else, a column under another name too
};

struct SelectItem {
  SelectItemKind kind;
  std::string qualifier;  // the table or alias in front of the column or "*"; empty where none is
  std::string name;       // of a column
};

// What stands between SELECT and FROM, in order. Nothing where the statement is no plain SELECT of
// one level: then its columns cannot be told from its text.
std::vector<SelectItem> SelectItems(const std::vector<Token>& tokens);

}  // namespace ordex
