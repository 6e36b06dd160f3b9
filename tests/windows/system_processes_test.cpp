// The processes of the system that the tests run on, among them the tests themselves.
#include "ui/windows/system_processes.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "app/praxion_running.h"
#include "base/path_text.h"
#include "base/text.h"
#include "ui/common/process.h"

namespace ordex::testing {
namespace {

std::string OwnName() {
  return TextOf(ExecutableFile("").filename());
}

TEST(SystemProcesses, AreThoseOfASystemOfToday) {
  const auto version = SystemProcesses().Version();
  ASSERT_TRUE(version);
  EXPECT_EQ(version->platform, 2);
}

TEST(SystemProcesses, HoldThisOneByItsFileName) {
  const auto names = SystemProcesses().Snapshot();
  ASSERT_TRUE(names);
  EXPECT_EQ(std::count(names->begin(), names->end(), OwnName()), 1);
}

// Run under another name as well, so that both answers are seen.
TEST(SystemProcesses, HoldPraxionWhenThisOneIsNamedSo) {
  EXPECT_EQ(PraxionInEsecuzione(SystemProcesses()), Contains(Upper(OwnName()), "PRAXION"));
}

}  // namespace
}  // namespace ordex::testing
