// What the status bar says of the cases or entries found, and the action button that goes with it;
// and the choice of a case in the header.
#include <gtest/gtest.h>

#include "cases/case_choice_rules.h"

namespace ordex::testing {
namespace {

struct Panel {
  Panel() { cmdAzione.caption = "as it was"; }

  StatusBar status{"old picture", "old text"};
  Button cmdAzione;
};

TEST(GestCount, OneCaseOffersTheUpdate) {
  Panel panel;
  GestCount(1, "12/2026", panel.status, panel.cmdAzione);
  EXPECT_EQ(panel.status.picture, "Praxion");
  EXPECT_EQ(panel.status.text,
            "Trovata una sola pratica sulla base del N. Registro Generale : 12/2026");
  EXPECT_EQ(panel.cmdAzione.caption, "Aggiorna");
  EXPECT_EQ(panel.cmdAzione.symbol, Symbol::kUpdate);
}

TEST(GestCount, NoCaseOffersToCreateOne) {
  Panel panel;
  GestCount(0, "12/2026", panel.status, panel.cmdAzione);
  EXPECT_EQ(panel.status.picture, "NoPratiche");
  EXPECT_EQ(panel.status.text,
            "Nessuna pratica trovata sulla base del N. Registro Generale : 12/2026");
  EXPECT_EQ(panel.cmdAzione.caption, "Crea");
  EXPECT_EQ(panel.cmdAzione.symbol, Symbol::kCreate);
}

TEST(GestCount, SeveralCasesOfferTheUpdateAndTellHowMany) {
  Panel panel;
  GestCount(2, "12/2026", panel.status, panel.cmdAzione);
  EXPECT_EQ(panel.status.picture, "Praxion");
  EXPECT_EQ(panel.status.text,
            "Sono state trovate 2 pratiche sulla base del N. Registro Generale : 12/2026");
  EXPECT_EQ(panel.cmdAzione.caption, "Aggiorna");
  EXPECT_EQ(panel.cmdAzione.symbol, Symbol::kUpdate);
}

TEST(GestCount, ACountThatIsNeitherNoneNorOneCountsAsSeveral) {
  Panel panel;
  GestCount(-1, "", panel.status, panel.cmdAzione);
  EXPECT_EQ(panel.status.picture, "Praxion");
  EXPECT_EQ(panel.status.text,
            "Sono state trovate -1 pratiche sulla base del N. Registro Generale : ");
  EXPECT_EQ(panel.cmdAzione.caption, "Aggiorna");
}

TEST(GestCount, LeavesTheButtonEnabledOrNotAsItWas) {
  Panel panel;
  panel.cmdAzione.enabled = false;
  GestCount(1, "12/2026", panel.status, panel.cmdAzione);
  EXPECT_FALSE(panel.cmdAzione.enabled);
}

// --- entries of an agenda page ------------------------------------------------------------------

StatusBar AgendaStatus(std::int16_t count) {
  StatusBar status{"old picture", "old text"};
  GestCountAgenda(count, status);
  return status;
}

TEST(GestCountAgenda, BelowOneTheNumberIsFollowedDirectlyByTheClosingWords) {
  EXPECT_EQ(AgendaStatus(0).text, "0 nell'Agenda di Praxion.");
  EXPECT_EQ(AgendaStatus(-3).text, "-3 nell'Agenda di Praxion.");
}

TEST(GestCountAgenda, SpeaksOfOneEntryInTheSingular) {
  EXPECT_EQ(AgendaStatus(1).text, "1 evento sarà riportato nell'Agenda di Praxion.");
}

TEST(GestCountAgenda, SpeaksOfSeveralEntriesInThePlural) {
  EXPECT_EQ(AgendaStatus(2).text, "2 eventi saranno riportati nell'Agenda di Praxion.");
  EXPECT_EQ(AgendaStatus(32767).text, "32767 eventi saranno riportati nell'Agenda di Praxion.");
}

TEST(GestCountAgenda, LeavesThePictureAsItIs) {
  EXPECT_EQ(AgendaStatus(2).picture, "old picture");
}

// --- a case chosen in the header ----------------------------------------------------------------

CaseHeader Chosen() {
  CaseHeader header;
  header.idPra = 7;
  header.title = "ROSSI MARIO - R.G. 12/2026";
  return header;
}

TEST(HeaderEvent9, OnAProfilePageSetsTheButtonAndLeavesTheStatusText) {
  Panel panel;
  panel.cmdAzione.enabled = false;
  ctlTestata1_Event9(kPageProfile, Chosen(), panel.status, panel.cmdAzione);
  EXPECT_TRUE(panel.cmdAzione.enabled);
  EXPECT_EQ(panel.cmdAzione.caption, "Aggiorna");
  EXPECT_EQ(panel.cmdAzione.symbol, Symbol::kUpdate);
  EXPECT_EQ(panel.status.text, "old text");
  EXPECT_EQ(panel.status.picture, "old picture");
}

TEST(HeaderEvent9, OnAHistoryPageAlsoTellsWhichCaseWasChosen) {
  Panel panel;
  panel.cmdAzione.enabled = false;
  ctlTestata1_Event9(kPageHistory, Chosen(), panel.status, panel.cmdAzione);
  EXPECT_EQ(panel.status.picture, "Praxion");
  EXPECT_EQ(panel.status.text, "Pratica selezionata : ROSSI MARIO - R.G. 12/2026");
  EXPECT_TRUE(panel.cmdAzione.enabled);
  EXPECT_EQ(panel.cmdAzione.caption, "Aggiorna");
  EXPECT_EQ(panel.cmdAzione.symbol, Symbol::kUpdate);
}

}  // namespace
}  // namespace ordex::testing
