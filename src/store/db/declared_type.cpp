#include "store/db/declared_type.h"

#include <array>
#include <charconv>
#include <string>
#include <string_view>

#include "base/text.h"
#include "store/db/ascii.h"

namespace ordex {
namespace {

struct KnownType {
  std::string_view name;  // lower case
  DeclaredType declared;
};

// The first whose name the declared type begins with; so the longer names stand first.
constexpr std::array<KnownType, 22> kKnownTypes = {{
    {"bit", {ColumnType::kBit, 0}},
    {"bool", {ColumnType::kBit, 0}},
    {"smalldatetime", {ColumnType::kDate, 0}},
    {"date", {ColumnType::kDate, 0}},
    {"tinyint", {ColumnType::kInteger, 1}},
    {"smallint", {ColumnType::kInteger, 2}},
    {"mediumint", {ColumnType::kInteger, 4}},
    {"bigint", {ColumnType::kInteger, 8}},
    {"int8", {ColumnType::kInteger, 8}},
    {"int2", {ColumnType::kInteger, 2}},
    {"int", {ColumnType::kInteger, 4}},
    {"float", {ColumnType::kReal, 0}},
    {"real", {ColumnType::kReal, 0}},
    {"double", {ColumnType::kReal, 0}},
    {"money", {ColumnType::kReal, 0}},
    {"smallmoney", {ColumnType::kReal, 0}},
    {"decimal", {ColumnType::kReal, 0}},
    {"numeric", {ColumnType::kReal, 0}},
    {"nvarchar", {ColumnType::kText, 0}},
    {"varchar", {ColumnType::kText, 0}},
    {"nchar", {ColumnType::kText, 0}},
    {"char", {ColumnType::kText, 0}},
}};

// The number in "NVARCHAR(200)"; 0 where there is none, as in "NVARCHAR(MAX)".
std::size_t ParsedSize(std::string_view declared) {
  std::size_t size = 0;
  const std::size_t open = declared.find('(');
  if (open == std::string_view::npos) return size;
  const std::string_view digits = TrimLeft(declared.substr(open + 1));
  std::from_chars(digits.data(), digits.data() + digits.size(), size);
  return size;
}

}  // namespace

std::optional<DeclaredType> ParseDeclaredType(const char* declared) {
  if (declared == nullptr) return std::nullopt;
  const std::string lower = LowerAscii(std::string_view(declared));
  for (const KnownType& known : kKnownTypes) {
    if (!lower.starts_with(known.name)) continue;
    DeclaredType type = known.declared;
    if (type.type == ColumnType::kText) type.size = ParsedSize(lower);
    return type;
  }
  if (Contains(lower, "text") || Contains(lower, "char")) return DeclaredType{ColumnType::kText, 0};
  return std::nullopt;
}

}  // namespace ordex
