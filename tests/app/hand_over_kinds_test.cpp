// Every kind of page handed over to the window of every kind: which are taken, which refused.
#include <gtest/gtest.h>

#include <array>
#include <string>
#include <tuple>
#include <vector>

#include "support/page_texts.h"
#include "support/window_fixture.h"

namespace ordex::testing {
namespace {

using Texts = std::vector<std::string>;

struct Kind {
  const char* name;
  const char* phrase;
  const char* first;    // the sample with which the window opens
  const char* further;  // the sample that is handed over
};

// By page kind.
constexpr std::array<Kind, 5> kKinds = {{
    {"", "", "", ""},
    {"Profile", kProfilePhrase, "profilo-contratto.txt", "profilo-condominio.txt"},
    {"History", kHistoryPhrase, "storico-pagina-1.txt", "storico-pagina-2.txt"},
    {"Agenda", kAgendaPhrase, "agenda-vuota.txt", "agenda-settimana.txt"},
    {"JusticeOfThePeace", kJusticePhrase, "giudice-di-pace-opposizione.txt",
     "giudice-di-pace-sinistro.txt"},
}};

std::string Sample(const char* name) {
  return SourceFile(std::string("samples/") + name);
}

// What a refused page must leave as it is.
Texts Untouched(const WindowFixture& fixture) {
  const Window& state = fixture.state();
  const CaseChoice& choice = state.choice;
  return {state.frmMain.caption,
          state.page.szNameTxt,
          state.page.szNumeroRG,
          std::to_string(state.page.pageAtOpening),
          std::to_string(state.page.cDatiFasc.Count()),
          std::to_string(state.page.iNrEventiAgenda),
          std::to_string(state.lstImport.rows.size()),
          std::to_string(state.lstAgendaAvv.rows.size()),
          std::to_string(choice.iCountPra),
          std::to_string(choice.ctlTestata1.idPra),
          std::to_string(choice.cmbParti[kBoxClient].items.size()),
          state.commands.cmdAzione.caption,
          state.commands.cmdAzione.enabled ? "enabled" : "disabled",
          std::to_string(fixture.office.diagnostics.sql.size()),
          std::to_string(fixture.folder.FileCount()),
          std::to_string(fixture.clipboard.clears)};
}

class PairOfKinds : public ::testing::TestWithParam<std::tuple<int, int>> {
 protected:
  static const Kind& Opening() { return kKinds.at(static_cast<std::size_t>(OpeningKind())); }
  static const Kind& Poked() { return kKinds.at(static_cast<std::size_t>(PokedKind())); }
  static int OpeningKind() { return std::get<0>(GetParam()); }
  static int PokedKind() { return std::get<1>(GetParam()); }
};

std::string NameOf(const ::testing::TestParamInfo<std::tuple<int, int>>& test) {
  const auto [opening, poked] = test.param;
  return std::string(kKinds.at(static_cast<std::size_t>(poked)).name) + "IntoTheWindowOf" +
         kKinds.at(static_cast<std::size_t>(opening)).name;
}

class RefusedPair : public PairOfKinds {};

TEST_P(RefusedPair, BeepsTellsWhatToDoAndChangesNothingButTheKindOfThePage) {
  WindowFixture fixture(Sample(Opening().first));
  fixture.Start();
  ASSERT_TRUE(fixture.boxes.shown.empty());
  const Texts before = Untouched(fixture);
  fixture.Poke(Sample(Poked().further));
  EXPECT_EQ(fixture.desktop.events, (Texts{"Beep"}));
  EXPECT_EQ(fixture.state().status.picture, "Stop");
  EXPECT_EQ(fixture.state().status.text,
            "Completare l'operazione corrente oppure chiudere il programma.");
  EXPECT_EQ(fixture.state().page.iOrdexPage, PokedKind());
  EXPECT_EQ(Untouched(fixture), before);
  EXPECT_TRUE(fixture.boxes.shown.empty());
  EXPECT_FALSE(fixture.window.ended().has_value());
}

INSTANTIATE_TEST_SUITE_P(
    AllKinds, RefusedPair,
    ::testing::Values(std::tuple{1, 2}, std::tuple{1, 3}, std::tuple{1, 4},  // into a profile
                      std::tuple{2, 1}, std::tuple{2, 3}, std::tuple{2, 4},  // into a history
                      std::tuple{3, 1}, std::tuple{3, 2}, std::tuple{3, 3}, std::tuple{3, 4},
                      std::tuple{4, 1}, std::tuple{4, 2}, std::tuple{4, 3}, std::tuple{4, 4}),
    NameOf);

class TakenPair : public PairOfKinds {};

TEST_P(TakenPair, BringsItsRowsWithoutABeep) {
  WindowFixture fixture(Sample(Opening().first));
  fixture.Start();
  const std::size_t rows = fixture.state().lstImport.rows.size();
  fixture.Poke(Sample(Poked().further));
  EXPECT_TRUE(fixture.desktop.events.empty());
  EXPECT_NE(fixture.state().lstImport.rows.size(), rows);
  EXPECT_EQ(fixture.state().frmMain.caption, std::string("Ordex - ") + Poked().phrase);
  EXPECT_NE(fixture.state().status.picture, "Stop");
  EXPECT_FALSE(fixture.window.ended().has_value());
}

INSTANTIATE_TEST_SUITE_P(AllKinds, TakenPair, ::testing::Values(std::tuple{1, 1}, std::tuple{2, 2}),
                         NameOf);

}  // namespace
}  // namespace ordex::testing
