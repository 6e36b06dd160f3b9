// Where in the history a copied page stands, and whether it is new in this run.
#include "parse/history_paging.h"

#include <gtest/gtest.h>

#include <ostream>
#include <string>
#include <string_view>
#include <vector>

#include "import_bench.h"
#include "missing_delimiter.h"
#include "page_benches.h"
#include "raised.h"

namespace ordex::testing {
namespace {

// The three numbers of a page's place.
struct Place {
  int page = 0;
  int pages = 0;
  int events = 0;

  bool operator==(const Place&) const = default;
};

std::ostream& operator<<(std::ostream& out, const Place& place) {
  return out << "page " << place.page << "/" << place.pages << ", " << place.events << " events";
}

// Begins at page 7 of 8 with 9 events.
class HistoryPlace : public ::testing::Test {
 protected:
  HistoryPlace() {
    Delimiters(kHistoryDelimiters);
    paging_.iPaginaStorico = 7;
    paging_.iTotPagineStorico = 8;
    paging_.iTotEventiStorico = 9;
  }

  void Delimiters(std::string_view bytes) {
    folder_.Write(kMapDelimitatori, bytes);
    LocateMappings(mappings_, folder_.path());
    LoadDelimitatori(mappings_);
  }
  // From a text without blanks; keeps what is left of it.
  Place ReadFrom(const std::string& text) {
    left_ = text;
    LeggiPaginazioneStorico(mappings_.cDelimitatori, left_, paging_);
    return Now();
  }
  Place Copy(std::string_view text) {
    ReadHistoryPlace(mappings_.cDelimitatori, text, paging_);
    return Now();
  }
  Place Now() const {
    return {paging_.iPaginaStorico, paging_.iTotPagineStorico, paging_.iTotEventiStorico};
  }

  TempFolder folder_;
  Mappings mappings_;
  HistoryPaging paging_;
  std::string left_;
};

const Place kBefore{7, 8, 9};

// --- the place on the page ----------------------------------------------------------------------

TEST_F(HistoryPlace, IsReadFromTheTotalAndThePageLine) {
  EXPECT_EQ(ReadFrom("Storico\r\nLista(42voci)Foglio2su5\r\n1\r\n"), (Place{2, 5, 42}));
}

TEST_F(HistoryPlace, OverwritesItsTextWithAFragmentOfIt) {
  ReadFrom("Lista(42voci)Foglio2su5\r\n1\r\n");
  EXPECT_EQ(left_, "2su5");
}

TEST_F(HistoryPlace, OfAnEmptyTextStaysAsItWas) {
  EXPECT_EQ(ReadFrom(""), kBefore);
}

TEST_F(HistoryPlace, WithoutAPageLineIsPageOneOfOne) {
  EXPECT_EQ(ReadFrom("Lista(7voci)\r\nN.GiornoFatto\r\n"), (Place{1, 1, 7}));
}

TEST_F(HistoryPlace, NeedsThePageMarkRightBehindTheTotal) {
  EXPECT_EQ(ReadFrom("Foglio3su4\r\nLista(7voci),Foglio2su5\r\nFoglio3su4"), (Place{1, 1, 7}));
}

TEST_F(HistoryPlace, HasTheTotalOfTheFirstMarkAndThePageOfTheFirstThatAPageMarkFollows) {
  EXPECT_EQ(ReadFrom("Lista(7voci)\r\nLista(6voci)Foglio3su4\r\nLista(5voci)Foglio1su2"),
            (Place{3, 4, 7}));
}

TEST_F(HistoryPlace, EndsWithTheTextWhereNoLineBreakFollows) {
  EXPECT_EQ(ReadFrom("Lista(42voci)Foglio2su5"), (Place{2, 5, 42}));
}

TEST_F(HistoryPlace, EndsAtTheFirstLineBreak) {
  EXPECT_EQ(ReadFrom("Lista(42voci)Foglio2su5\r\n6su7\r\n"), (Place{2, 5, 42}));
}

// --- numbers that cannot be read ----------------------------------------------------------------

TEST_F(HistoryPlace, KeepsThePageThatCannotBeRead) {
  EXPECT_EQ(ReadFrom("Lista(42voci)Fogliodue"
                     "su5\r\n"),
            (Place{7, 5, 42}));
  EXPECT_EQ(ReadFrom("Lista(42voci)Fogliosu6\r\n"), (Place{7, 6, 42}));
  EXPECT_EQ(ReadFrom("Lista(42voci)Foglio32768su4\r\n"), (Place{7, 4, 42}));
}

TEST_F(HistoryPlace, KeepsTheNumberOfPagesThatCannotBeRead) {
  EXPECT_EQ(ReadFrom("Lista(42voci)Foglio2sucinque\r\n"), (Place{2, 8, 42}));
  EXPECT_EQ(ReadFrom("Lista(42voci)Foglio3su5Avanti\r\n"), (Place{3, 8, 42}));
  EXPECT_EQ(ReadFrom("Lista(42voci)Foglio4su40000\r\n"), (Place{4, 8, 42}));
  EXPECT_EQ(ReadFrom("Lista(42voci)Foglio5\r\n"), (Place{5, 8, 42}));
  EXPECT_EQ(ReadFrom("Lista(42voci)Foglio6su"), (Place{6, 8, 42}));
}

TEST_F(HistoryPlace, WithoutTheTotalsBeginBeforeItsEndRaisesASubscriptError) {
  const Raised raised{9,
                      "Indice non incluso nell'intervallo: " +
                          TotalNotRead("\"Lista(\" (DELSF4) non sta prima di \"voci)\" (DELSF5)")};
  EXPECT_EQ(RaisedBy([&] { ReadFrom("42voci)Lista(Foglio2su5\r\n"); }), raised);
  EXPECT_EQ(Now(), kBefore);
}

TEST_F(HistoryPlace, WithoutANumberInTheTotalRaisesATypeMismatch) {
  EXPECT_EQ(RaisedBy([&] { ReadFrom("Lista(voci)Foglio2su5\r\n"); }),
            (Raised{13, "Tipo non corrispondente: " + TotalIs("")}));
  EXPECT_EQ(RaisedBy([&] { ReadFrom("Lista(moltevoci)Foglio2su5\r\n"); }),
            (Raised{13, "Tipo non corrispondente: " + TotalIs("molte")}));
  EXPECT_EQ(RaisedBy([&] { ReadFrom("Lista(di\r\nLista(4voci)\r\n"); }),
            (Raised{13, "Tipo non corrispondente: " + TotalIs("di\r\nLista(4")}));
  EXPECT_EQ(Now(), kBefore);
}

TEST_F(HistoryPlace, WithATotalOverSixteenBitsRaisesAnOverflow) {
  EXPECT_EQ(RaisedBy([&] { ReadFrom("Lista(32768voci)Foglio2su5\r\n"); }),
            (Raised{6, "Overflow: " + TotalIs("32768")}));
  EXPECT_EQ(Now(), kBefore);
}

// --- the copied page ----------------------------------------------------------------------------

TEST_F(HistoryPlace, IsReadWithEveryBlankTakenOut) {
  EXPECT_EQ(Copy("Lista( 4 2  voci)   Fog lio 2  s u 5 \r\n"), (Place{2, 5, 42}));
}

TEST_F(HistoryPlace, StaysAsItWasWhereOneMarkOfTheTotalIsMissing) {
  paging_.bPaginaNuova = false;
  EXPECT_EQ(Copy("42 voci) Foglio 2 su 5\r\n"), kBefore);
  EXPECT_EQ(Copy("Lista(42 Foglio 2 su 5\r\n"), kBefore);
  EXPECT_EQ(Copy(""), kBefore);
  EXPECT_FALSE(paging_.bPaginaNuova);
  EXPECT_EQ(ValuesOf(paging_.cPagineStorico), NamedValues{});
}

TEST_F(HistoryPlace, NeedsTheMarksOfTheTotalInTheirLetterCaseAndWithoutBlanksInside) {
  EXPECT_EQ(Copy("lista(42 voci) Foglio 2 su 5\r\n"), kBefore);
  EXPECT_EQ(Copy("Lista(42 VOCI) Foglio 2 su 5\r\n"), kBefore);
  EXPECT_EQ(Copy("Lis ta(42 voci) Foglio 2 su 5\r\n"), kBefore);
  EXPECT_EQ(Copy("Lista(42 voci ) Foglio 2 su 5\r\n"), kBefore);
}

// In a text without blanks it can never be found.
TEST_F(HistoryPlace, APageMarkWrittenWithABlankIsNeverFound) {
  std::string delimiters(kHistoryDelimiters);
  delimiters.replace(delimiters.find("Foglio=DELSF6"), 6, "Il foglio");
  Delimiters(delimiters);
  EXPECT_EQ(Copy("Lista(42 voci)Il foglio 2 su 5\r\n"), (Place{1, 1, 42}));
}

TEST_F(HistoryPlace, OfAPageNotSeenInThisRunIsNewAndKept) {
  paging_.bPaginaNuova = false;
  Copy("Lista(42 voci) Foglio 2 su 5\r\n");
  EXPECT_TRUE(paging_.bPaginaNuova);
  Copy("Lista(42 voci) Foglio 5 su 5\r\n");
  EXPECT_TRUE(paging_.bPaginaNuova);
  EXPECT_EQ(ValuesOf(paging_.cPagineStorico), (NamedValues{{"2", "2"}, {"5", "5"}}));
}

TEST_F(HistoryPlace, OfAPageSeenInThisRunIsNotNew) {
  Copy("Lista(42 voci) Foglio 2 su 5\r\n");
  Copy("Lista(42 voci) Foglio 1 su 5\r\n");
  Copy("Lista(43 voci) Foglio 2 su 6\r\n");
  EXPECT_FALSE(paging_.bPaginaNuova);
  EXPECT_EQ(Now(), (Place{2, 6, 43}));
  EXPECT_EQ(ValuesOf(paging_.cPagineStorico), (NamedValues{{"2", "2"}, {"1", "1"}}));
}

TEST_F(HistoryPlace, IsLookedUpByTheNumberThatItKeptWhereThePageCannotBeRead) {
  Copy("Lista(42 voci) Foglio 2 su 5\r\n");
  Copy("Lista(42 voci) Foglio due su 5\r\n");
  EXPECT_FALSE(paging_.bPaginaNuova);
}

TEST_F(HistoryPlace, AFaultInTheTotalDecidesNothing) {
  Copy("Lista(42 voci) Foglio 2 su 5\r\n");
  EXPECT_EQ(RaisedBy([&] { Copy("Lista(x voci) Foglio 3 su 5\r\n"); }).number, 13);
  EXPECT_TRUE(paging_.bPaginaNuova);
  EXPECT_EQ(Now(), (Place{2, 5, 42}));
  EXPECT_EQ(ValuesOf(paging_.cPagineStorico), (NamedValues{{"2", "2"}}));
}

TEST_F(HistoryPlace, NeedsTheDelimitersOfTheTotal) {
  for (const std::string key : {"DELSF4", "DELSF5"}) {
    Delimiters(DelimitersWithout(kHistoryDelimiters, key));
    EXPECT_EQ(RaisedBy([&] { Copy("Lista(42 voci)\r\n"); }), (Raised{5, MissingText(key)}));
  }
}

// Without its mark there is no page line to be found.
TEST_F(HistoryPlace, WithoutTheDelimiterOfThePageLineIsPageOneOfOne) {
  Delimiters(DelimitersWithout(kHistoryDelimiters, "DELSF6"));
  EXPECT_EQ(Copy("Lista(42 voci) Foglio 2 su 5\r\n"), (Place{1, 1, 42}));
  EXPECT_TRUE(paging_.bPaginaNuova);
  EXPECT_EQ(ValuesOf(paging_.cPagineStorico), (NamedValues{{"1", "1"}}));
}

// The page line is there, but neither of its numbers can be cut out of it.
TEST_F(HistoryPlace, WithoutTheDelimiterBetweenPageAndPagesKeepsBoth) {
  Delimiters(DelimitersWithout(kHistoryDelimiters, "DELSF7"));
  EXPECT_EQ(Copy("Lista(42 voci) Foglio 2 su 5\r\n"), (Place{7, 8, 42}));
  EXPECT_TRUE(paging_.bPaginaNuova);
  EXPECT_EQ(ValuesOf(paging_.cPagineStorico), (NamedValues{{"7", "7"}}));
}

TEST_F(HistoryPlace, WithoutTheDelimiterBetweenPageAndPagesIsStillPageOneOfOneWithoutAPageLine) {
  Delimiters(DelimitersWithout(kHistoryDelimiters, "DELSF7"));
  EXPECT_EQ(Copy("Lista(42 voci)\r\n"), (Place{1, 1, 42}));
}

// --- forgetting a page --------------------------------------------------------------------------

TEST_F(HistoryPlace, OfAForgottenPageIsNewAgain) {
  Copy("Lista(42 voci) Foglio 1 su 5\r\n");
  Copy("Lista(42 voci) Foglio 2 su 5\r\n");
  ForgetHistoryPage(paging_);
  EXPECT_EQ(ValuesOf(paging_.cPagineStorico), (NamedValues{{"1", "1"}}));
  Copy("Lista(42 voci) Foglio 2 su 5\r\n");
  EXPECT_TRUE(paging_.bPaginaNuova);
}

TEST_F(HistoryPlace, OfAPageTakenEarlierIsNotForgotten) {
  Copy("Lista(42 voci) Foglio 2 su 5\r\n");
  Copy("Lista(42 voci) Foglio 2 su 5\r\n");
  ForgetHistoryPage(paging_);
  EXPECT_EQ(ValuesOf(paging_.cPagineStorico), (NamedValues{{"2", "2"}}));
}

TEST_F(HistoryPlace, OfAPageThatTellsNoPlaceForgetsNone) {
  Copy("Lista(42 voci) Foglio 2 su 5\r\n");
  Copy("senza posto");
  ForgetHistoryPage(paging_);
  EXPECT_EQ(ValuesOf(paging_.cPagineStorico), (NamedValues{{"2", "2"}}));
}

TEST_F(HistoryPlace, OfAPageWhoseTotalIsAtFaultForgetsNone) {
  Copy("Lista(42 voci) Foglio 2 su 5\r\n");
  EXPECT_EQ(RaisedBy([&] { Copy("Lista(x voci) Foglio 3 su 5\r\n"); }).number, 13);
  ForgetHistoryPage(paging_);
  EXPECT_EQ(ValuesOf(paging_.cPagineStorico), (NamedValues{{"2", "2"}}));
}

TEST(HistoryPaging, BeginsWithANewPageAtPlaceNoughtAndAnEmptyHistory) {
  const HistoryPaging paging;
  EXPECT_TRUE(paging.bPaginaNuova);
  EXPECT_TRUE(paging.bStoricoVuoto);
  EXPECT_EQ(paging.iPaginaStorico, 0);
  EXPECT_EQ(paging.iTotPagineStorico, 0);
  EXPECT_EQ(paging.iTotEventiStorico, 0);
}

}  // namespace
}  // namespace ordex::testing
