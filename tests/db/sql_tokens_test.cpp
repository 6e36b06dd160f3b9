#include "store/db/sql_tokens.h"

#include <gtest/gtest.h>

#include <ostream>
#include <string>
#include <string_view>
#include <vector>

namespace ordex {

bool operator==(const Token& a, const Token& b) {
  return a.kind == b.kind && a.text == b.text;
}

void PrintTo(const Token& token, std::ostream* out) {
  *out << static_cast<int>(token.kind) << " <" << token.text << ">";
}

namespace {

using Tokens = std::vector<Token>;

TEST(Tokenize, EveryKindOfTokenIsToldApart) {
  EXPECT_EQ(Tokenize("a1 [b c]=1.5'd''e'\"f\"\"g\"#1#;--h\n/*i*/,"),
            (Tokens{{TokenKind::kWord, "a1"},
                    {TokenKind::kBlank, " "},
                    {TokenKind::kBracketed, "[b c]"},
                    {TokenKind::kSymbol, "="},
                    {TokenKind::kNumber, "1.5"},
                    {TokenKind::kText, "'d''e'"},
                    {TokenKind::kQuoted, "\"f\"\"g\""},
                    {TokenKind::kDate, "#1#"},
                    {TokenKind::kSemicolon, ";"},
                    {TokenKind::kComment, "--h"},
                    {TokenKind::kBlank, "\n"},
                    {TokenKind::kComment, "/*i*/"},
                    {TokenKind::kSymbol, ","}}));
}

TEST(Tokenize, NothingGivesNoTokens) {
  EXPECT_EQ(Tokenize(""), Tokens{});
}

TEST(Tokenize, TheTokensJoinedGiveTheText) {
  for (const std::string& text :
       {std::string("select 'a' # b"), std::string("1e+5 1e 0x1F .5 1..2"), std::string("[a]]b]"),
        std::string(R"('''' """" -- x)"), std::string("è'à' /*"), std::string("a\0b", 3),
        std::string("- / -- \n /* */ ]")}) {
    std::string joined;
    for (const Token& token : Tokenize(text)) joined += token.text;
    EXPECT_EQ(joined, text);
  }
}

TEST(Tokenize, ALiteralThatIsNotClosedIsUnfinished) {
  for (const char* text : {"'", "'a", "'a''", "\"a", "[a", "#05/03/2024", "/* a", "/*/"}) {
    EXPECT_EQ(Tokenize(text), (Tokens{{TokenKind::kUnfinished, text}})) << text;
  }
}

TEST(Tokenize, TwoDashesWithoutALineEndAreAComment) {
  EXPECT_EQ(Tokenize("--"), (Tokens{{TokenKind::kComment, "--"}}));
}

TEST(Tokenize, AWordMayStandDirectlyBehindANumber) {
  EXPECT_EQ(Tokenize("1DROP"), (Tokens{{TokenKind::kNumber, "1"}, {TokenKind::kWord, "DROP"}}));
  EXPECT_EQ(Tokenize("1e5"), (Tokens{{TokenKind::kNumber, "1e5"}}));
}

}  // namespace
}  // namespace ordex
