#include "store/db/connection_fragments.h"

#include <gtest/gtest.h>

#include <string>

namespace ordex {
namespace {

TEST(JoinConnectionFragments, PutsTheProgramsOwnTextsInFrontAndBetween) {
  EXPECT_EQ(JoinConnectionFragments(";Integrated Security=SSPI;", "Data Source=SRV"),
            "Provider=SQLNCLI.1;Integrated Security=SSPI;Initial Catalog=Zelmo32;Data Source=SRV");
}

TEST(JoinConnectionFragments, AddsNoSeparatorAndTrimsNothing) {
  EXPECT_EQ(JoinConnectionFragments(" a ", " b "),
            "Provider=SQLNCLI.1 a Initial Catalog=Zelmo32; b ");
  EXPECT_EQ(JoinConnectionFragments("", ""), "Provider=SQLNCLI.1Initial Catalog=Zelmo32;");
}

TEST(WithSemicolonsAtJoints, PutsBackWhatTheFragmentsLack) {
  EXPECT_EQ(WithSemicolonsAtJoints(JoinConnectionFragments("User ID=u;Password=p", "Server=S")),
            "Provider=SQLNCLI.1;User ID=u;Password=p;Initial Catalog=Zelmo32;Server=S");
}

TEST(WithSemicolonsAtJoints, LeavesAStringAloneThatHasThem) {
  const std::string joined = JoinConnectionFragments(" ;User ID=u; ", "Data Source=SRV");
  EXPECT_EQ(WithSemicolonsAtJoints(joined), joined);
}

}  // namespace
}  // namespace ordex
