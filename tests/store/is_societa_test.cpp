// Company or natural person, told by the marks in the name.
#include <gtest/gtest.h>

#include <ostream>
#include <string>

#include "store/party_names.h"
#include "support/office_fixture.h"

namespace ordex::testing {
namespace {

struct MarkedName {
  int mark;  // its place in the office's list
  const char* name;
};

std::ostream& operator<<(std::ostream& out, const MarkedName& one) {
  return out << "mark " << one.mark << " in \"" << one.name << "\"";
}

class CompanyMark : public ::testing::TestWithParam<MarkedName> {};

TEST_P(CompanyMark, MakesTheNameACompany) {
  EXPECT_TRUE(IsSocieta(GetParam().name));
}

INSTANTIATE_TEST_SUITE_P(
    AllTwentySeven, CompanyMark,
    ::testing::Values(
        MarkedName{1, "OLMETO S.A.S"}, MarkedName{2, "OLMETO S.P.A"}, MarkedName{3, "OLMETO S.S."},
        MarkedName{4, "OLMETO S.N.C"}, MarkedName{5, "OLMETO S.R.L"}, MarkedName{6, "OLMETO & C."},
        MarkedName{7, "OLMETO SNC"}, MarkedName{8, "OLMETO SPA MONTEFOSCO"},
        MarkedName{9, "OLMETO SRL"}, MarkedName{10, "OLMETO SAS MONTEFOSCO"},
        MarkedName{11, "OLMETO S.A.S."}, MarkedName{12, "OLMETO S.P.A."},
        MarkedName{13, "OLMETO S.N.C."}, MarkedName{14, "OLMETO S.R.L."},
        MarkedName{15, "OLMETO A.R.L."}, MarkedName{16, "ROSSI & FIGLI"},
        MarkedName{17, "ROSSI E BIANCHI"}, MarkedName{18, "MARIA DI MAIO"},
        MarkedName{19, "ROSSI-BIANCHI LUCA"}, MarkedName{20, "OLMETO A.R.L"},
        MarkedName{21, "OLMETO ARL"}, MarkedName{22, "BIANCHI SPA"}, MarkedName{23, "OLMETO SAS"},
        MarkedName{24, "OLMETO ARL MONTEFOSCO"}, MarkedName{25, "DOTT. ROSSI MARIO"},
        MarkedName{26, "MINISTERO DELLA GIUSTIZIA"}, MarkedName{27, "Condominio Via Roma 3"}),
    [](const auto& test) { return "Mark" + std::to_string(test.param.mark); });

class NearMark : public ::testing::TestWithParam<const char*> {};

TEST_P(NearMark, LeavesTheNameAPerson) {
  EXPECT_FALSE(IsSocieta(GetParam()));
}

INSTANTIATE_TEST_SUITE_P(Persons, NearMark,
                         ::testing::Values("ROSSI MARIO", "", "SPADA MARIO", "SPA MARIO",
                                           "SAS MARIO", "ARL MARIO", "ROSSISPA", "ROSSISAS", "CARL",
                                           "DI MAIO LUIGI", "E BIANCHI MARIO", "ROSSI E",
                                           "ROSSI DI", "ROSSI\tSPA", "ROSSI  MARIO",
                                           "D'AMICO LUCA"));

TEST(IsSocieta, IgnoresLetterCaseOfTheMarks) {
  EXPECT_TRUE(IsSocieta("olmeto spa"));
  EXPECT_TRUE(IsSocieta("Ministero Della Giustizia"));
  EXPECT_TRUE(IsSocieta("CONDOMINIO LE BETULLE"));
}

TEST(IsSocieta, FindsMarksWithoutBlanksInsideAWord) {
  EXPECT_TRUE(IsSocieta("ASRLEO MARIO"));
  EXPECT_TRUE(IsSocieta("ESNCA MARIO"));
}

TEST(IsSocieta, DoesNotTrimTheText) {
  // Behind the mark stands a blank: the mark of the middle is found, that of the end is not.
  EXPECT_TRUE(IsSocieta("OLMETO SPA "));
  EXPECT_TRUE(IsSocieta(" E "));
  EXPECT_FALSE(IsSocieta("OLMETOSPA "));
}

TEST(IsSocieta, TakesTextsOfUpTo32767CharactersHoweverManyBytesTheyHave) {
  std::string longest;
  for (int i = 0; i < 32767; ++i) longest.append("È");
  EXPECT_FALSE(IsSocieta(longest));
  EXPECT_EQ(ErrorNumberOf([&] { IsSocieta(longest + "A"); }), 6);
}

}  // namespace
}  // namespace ordex::testing
