#include "json_match.h"

#include <gtest/gtest.h>

namespace ordex::sessions {
namespace {

std::string DifferenceOf(const char* expected, const char* actual) {
  return Difference(Json::parse(expected), Json::parse(actual)).value_or("none");
}

std::string TypeDifferenceOf(const char* types, const char* actual) {
  return TypeDifference(Json::parse(types), Json::parse(actual)).value_or("none");
}

TEST(Difference, FurtherMembersOfAnObjectAreFree) {
  EXPECT_EQ(DifferenceOf(R"({"a":{"b":1}})", R"({"x":0,"a":{"c":2,"b":1}})"), "none");
}

TEST(Difference, AMemberThatIsMissingOrOtherIsToldWithItsPlace) {
  EXPECT_EQ(DifferenceOf(R"({"a":{"b":1}})", R"({"a":{"b":2}})"), "/a/b: expected 1, found 2");
  EXPECT_EQ(DifferenceOf(R"({"a":{"b":1}})", R"({"a":{}})"), "/a: member \"b\" is missing");
  EXPECT_EQ(DifferenceOf(R"({"a":{}})", R"({"a":7})"), "/a: object expected, found 7");
  EXPECT_EQ(DifferenceOf("1", "\"1\""), "/: expected 1, found \"1\"");
}

TEST(Difference, AListHasJustItsElements) {
  EXPECT_EQ(DifferenceOf(R"([{"a":1},2])", R"([{"a":1,"b":0},2])"), "none");
  EXPECT_EQ(DifferenceOf("[1,2]", "[1,3]"), "/1: expected 2, found 3");
  EXPECT_EQ(DifferenceOf("[1]", "[1,2]"), "/: expected 1 elements, found 2");
  EXPECT_EQ(DifferenceOf("[1,2]", "[1]"), "/: expected 2 elements, found 1");
  EXPECT_EQ(DifferenceOf("[]", "{}"), "/: list expected, found {}");
}

TEST(Difference, PiecesOfATextAreLookedForInTheirOrder) {
  EXPECT_EQ(DifferenceOf(R"({"t":{"$contains":["ab","c"]}})", R"({"t":"xabxcx"})"), "none");
  EXPECT_EQ(DifferenceOf(R"({"$contains":["c","ab"]})", R"("xabxcx")"),
            "/: the piece \"ab\" is not in \"xabxcx\", or not in its order");
  EXPECT_EQ(DifferenceOf(R"({"$contains":["aa","a"]})", R"("aa")"),
            "/: the piece \"a\" is not in \"aa\", or not in its order");
  EXPECT_EQ(DifferenceOf(R"({"$contains":["a"]})", "1"), "/: text expected, found 1");
}

TEST(TypeDifference, TheKindsOfValuesAreCompared) {
  EXPECT_EQ(TypeDifferenceOf(R"({"a":"string","b":"number|null"})", R"({"a":"","b":null,"c":1})"),
            "none");
  EXPECT_EQ(TypeDifferenceOf(R"({"a":"string"})", R"({"a":1})"), "/a: expected string, found 1");
  EXPECT_EQ(TypeDifferenceOf(R"({"a":"boolean"})", "{}"), "/: member \"a\" is missing");
}

TEST(TypeDifference, AListOfOneKindHasAnyLengthAndAnotherJustItsOwn) {
  EXPECT_EQ(TypeDifferenceOf(R"(["number"])", "[]"), "none");
  EXPECT_EQ(TypeDifferenceOf(R"(["number"])", "[1,2,\"3\"]"), "/2: expected number, found \"3\"");
  EXPECT_EQ(TypeDifferenceOf(R"(["string","string"])", R"(["a","b"])"), "none");
  EXPECT_EQ(TypeDifferenceOf(R"(["string","string"])", R"(["a"])"),
            "/: expected 2 elements, found 1");
}

TEST(TypeDifference, AStarStandsForAllMembers) {
  EXPECT_EQ(TypeDifferenceOf(R"({"*":"string"})", R"({"CL0":"a","CO0":"b"})"), "none");
  EXPECT_EQ(TypeDifferenceOf(R"({"*":"string"})", R"({"CL0":1})"),
            "/CL0: expected string, found 1");
}

}  // namespace
}  // namespace ordex::sessions
