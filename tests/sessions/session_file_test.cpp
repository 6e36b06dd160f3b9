#include "session_file.h"

#include <gtest/gtest.h>

#include <string>

namespace ordex::sessions {
namespace {

struct Fault {
  std::size_t line = 0;
  std::string text;
};

Fault FaultOf(const std::string& session) {
  try {
    ParseSession(session);
    return {};
  } catch (const SyntaxError& error) {
    return {error.line(), error.what()};
  }
}

TEST(SessionFile, KeywordsArgumentsAndBlocksAreReadInOrder) {
  const auto steps = ParseSession(
      "# a comment\n"
      "\n"
      "page samples/x.txt\n"
      "run\n"
      "  click cmdAzione\n"
      "\n"
      "end\n"
      "  exit 0\n");
  ASSERT_EQ(steps.size(), 3U);
  EXPECT_EQ(steps[0].keyword, "page");
  EXPECT_EQ(steps[0].argument, "samples/x.txt");
  EXPECT_EQ(steps[0].line, 3U);
  EXPECT_EQ(steps[1].BlockText(), "  click cmdAzione\n");
  EXPECT_EQ(steps[2].keyword, "exit");
  EXPECT_EQ(steps[2].line, 8U);
}

TEST(SessionFile, ABlockKeepsBlanksTabsAndLinesThatBeginWithAHash) {
  const auto steps = ParseSession("page-text\n\t# a  b \n end\nend\nrun\nend\nexit 0\n");
  EXPECT_EQ(steps[0].BlockText(), "\t# a  b \n end");
}

TEST(SessionFile, AnArgumentKeepsTheBlanksAtItsEnd) {
  const auto steps = ParseSession("run\nend\nexit 0\nquery SELECT 1\nrow  a|b \n");
  EXPECT_EQ(steps[3].argument, " a|b ");
}

TEST(SessionFile, ARepeatedPieceIsWrittenOut) {
  EXPECT_EQ(Expanded("<${repeat 3 ab}|${repeat 0 x}>", 1), "<ababab|>");
  EXPECT_THROW(Expanded("${repeat 2 }}", 1), SyntaxError) << "the piece ends at the first brace";
}

TEST(SessionFile, AnUnknownKeywordIsTold) {
  const Fault fault = FaultOf("now 1\nrunn\nend\n");
  EXPECT_EQ(fault.line, 2U);
  EXPECT_EQ(fault.text, "unknown keyword \"runn\"");
}

TEST(SessionFile, AMissingArgumentIsTold) {
  EXPECT_EQ(FaultOf("page\n").text, "\"page\" needs an argument");
  EXPECT_EQ(FaultOf("mapping\nend\n").text, "\"mapping\" needs an argument");
}

TEST(SessionFile, ANeedlessArgumentIsTold) {
  EXPECT_EQ(FaultOf("run click\nend\n").text, "\"run\" takes no argument");
  EXPECT_EQ(FaultOf("as-nobody please\n").text, "\"as-nobody\" takes no argument");
}

TEST(SessionFile, ABlockWithoutEndIsToldAtItsBeginning) {
  const Fault fault = FaultOf("\nrun\n  state\n");
  EXPECT_EQ(fault.line, 2U);
  EXPECT_EQ(fault.text, "the block of \"run\" has no line \"end\"");
}

TEST(SessionFile, AnExpectationBeforeTheFirstRunIsTold) {
  const Fault fault = FaultOf("present x\nrun\nend\nexit 0\n");
  EXPECT_EQ(fault.line, 1U);
  EXPECT_EQ(fault.text, "\"present\" stands before the first run");
}

TEST(SessionFile, ARunWithoutItsExitCodeIsTold) {
  EXPECT_EQ(FaultOf("run\nend\n").text, "\"exit N\" must follow the run");
  EXPECT_EQ(FaultOf("run\nend\nabsent x\nexit 0\n").line, 1U);
  EXPECT_EQ(FaultOf("call db create x\n").text, "\"exit N\" must follow the run");
}

TEST(SessionFile, AQueryWithoutRowsProvesNothing) {
  const std::string run = "run\nend\nexit 0\n";
  EXPECT_EQ(FaultOf(run + "query SELECT 1\n").text,
            "neither \"row\" nor \"no-rows\" follows the query");
  EXPECT_EQ(FaultOf(run + "query SELECT 1\nabsent x\n").line, 4U);
  EXPECT_EQ(FaultOf(run + "query SELECT 1\nno-rows\n").line, 0U);
  EXPECT_EQ(FaultOf(run + "query SELECT 1\nrow 1\nrow 2\n").line, 0U);
}

TEST(SessionFile, RowsWithoutAQueryAreTold) {
  const std::string run = "run\nend\nexit 0\n";
  EXPECT_EQ(FaultOf(run + "row 1\n").text, "\"row\" does not follow a query");
  EXPECT_EQ(FaultOf(run + "query SELECT 1\nno-rows\nrow 1\n").line, 6U);
}

TEST(SessionFile, AFileThatRunsNothingIsTold) {
  EXPECT_EQ(FaultOf("").text, "nothing is run");
  EXPECT_EQ(FaultOf("page samples/x.txt\n").text, "nothing is run");
}

TEST(SessionFile, ABrokenRepetitionIsTold) {
  EXPECT_EQ(FaultOf("page-text\n${repeat x a}\nend\n").line, 2U);
  EXPECT_EQ(FaultOf("page-text\n${repeat 3}\nend\n").line, 2U);
  EXPECT_EQ(FaultOf("page-text\n${repeat 3 a\nend\n").line, 2U);
}

TEST(SessionFile, AReplacementHasTwoSides) {
  Step step;
  step.keyword = "page-replace";
  step.line = 4;
  step.argument = "a b => c => d";
  EXPECT_EQ(ReplacementOf(step).before, "a b");
  EXPECT_EQ(ReplacementOf(step).after, "c => d");
  step.argument = "a b";
  EXPECT_THROW(ReplacementOf(step), SyntaxError);
}

TEST(SessionFile, TheLastWordTakesTheRest) {
  Step step;
  step.keyword = "setting";
  step.argument = "Shared Name a b";
  EXPECT_EQ(WordsOf(step, 3), (std::vector<std::string>{"Shared", "Name", "a b"}));
  step.argument = "Shared Name";
  EXPECT_THROW(WordsOf(step, 3), SyntaxError);
}

}  // namespace
}  // namespace ordex::sessions
