// What the process is given: its environment and its own file.
#include "ui/common/process.h"

#include <gtest/gtest.h>
#include <windows.h>

namespace ordex::testing {
namespace {

TEST(Process, EnvironmentTextsMayHoldAnyLetter) {
  SetEnvironmentVariableW(L"ORDEX_PROVA", L"C:\\Niccolò Żółć");
  EXPECT_EQ(EnvironmentText("ORDEX_PROVA"), "C:\\Niccolò Żółć");
}

TEST(Process, AnEnvironmentVariableThatIsNotSetIsEmpty) {
  SetEnvironmentVariableW(L"ORDEX_PROVA", nullptr);
  EXPECT_EQ(EnvironmentText("ORDEX_PROVA"), "");
}

TEST(Process, AnEmptyEnvironmentVariableIsEmpty) {
  SetEnvironmentVariableW(L"ORDEX_PROVA", L"");
  EXPECT_EQ(EnvironmentText("ORDEX_PROVA"), "");
}

TEST(Process, KnowsItsOwnFile) {
  const std::filesystem::path self = ExecutableFile("");
  EXPECT_TRUE(self.is_absolute());
  EXPECT_EQ(self.extension(), ".exe");
  EXPECT_TRUE(std::filesystem::exists(self));
}

}  // namespace
}  // namespace ordex::testing
