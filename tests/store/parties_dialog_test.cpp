// The parties dialog: the names that the page masks, typed by the user.
#include "store/parties_dialog.h"

#include <gtest/gtest.h>

#include <array>
#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "support/fake_ports.h"

namespace ordex::testing {
namespace {

using Texts = std::vector<std::string>;
using Parties = std::vector<std::pair<std::string, std::string>>;

constexpr const char* kAskPlaintiff = "Specificare il nome ed il cognome dell'attore.";
constexpr const char* kAskPlaintiffCounsel =
    "Specificare il nome ed il cognome del difensore dell'attore.";
constexpr const char* kAskDefendant = "Specificare il nome ed il cognome del convenuto.";
constexpr const char* kAskDefendantCounsel =
    "Specificare il nome ed il cognome del difensore del convenuto.";

struct PartiesFixture {
  PartiesFixture() {
    page.cDatiFasc.Add("R****** M****", "Attore");
    page.cDatiFasc.Add("F**** N***", "DifAttore");
    page.cDatiFasc.Add("C***** DI C***", "Convenuto");
    page.cDatiFasc.Add("", "DifConvenuto");
    mappings.cDelimitatori.Add("Opponente/Ricorrente:", "DELGDP8");
    mappings.cDelimitatori.Add("Opposto/Resistente:", "DELGDP9");
    mappings.cOrdexMap.Add("ParteAttrice", "Opponente/Ricorrente:");
    mappings.cOrdexMap.Add("ParteConvenuta", "Opposto/Resistente:");
  }

  // Shows the dialog; the user does that in it.
  void Show(const std::function<void()>& user) {
    dialogs.onParties = user;
    dialog.ShowModal();
  }
  // The user types that into the four boxes and presses OK.
  void Confirm(const std::array<std::string, 4>& typed) {
    Show([&] {
      Type(typed);
      dialog.cmdOk_Click();
    });
  }
  void Type(const std::array<std::string, 4>& typed) {
    dialog.Type("txtAttore", typed[0]);
    dialog.Type("txtAttoreDifensore", typed[1]);
    dialog.Type("txtConvenuto", typed[2]);
    dialog.Type("txtConvenutoDifensore", typed[3]);
  }
  void Forget(const std::string& key) { page.cDatiFasc.Remove(key); }
  // "key=value" of each page value, in order.
  Texts Values() const {
    Texts values;
    for (const KeyedTable::Entry& entry : page.cDatiFasc.Entries()) {
      values.push_back(entry.key + "=" + entry.value);
    }
    return values;
  }
  Texts BoxTexts() const {
    Texts texts;
    for (const TextBox& box : form.boxes) texts.push_back(box.text);
    return texts;
  }

  PartiesForm form;
  Page page;
  Mappings mappings;
  Parties offered;
  FakeDialogs dialogs;
  FakeDesktop desktop;
  FakeMessageBoxes boxes;
  PartiesDialog dialog{form,
                       page,
                       mappings,
                       [this](std::string_view szSoggetto, std::string_view szDifensore) {
                         offered.emplace_back(szSoggetto, szDifensore);
                       },
                       dialogs,
                       desktop,
                       boxes};
};

BoxText Missing(const std::string& text) {
  return {text, "Verifica campi", BoxIcon::kWarning, BoxButtons::kOk};
}

// --- showing it ---------------------------------------------------------------------------------

TEST(PartiesDialog, HasItsTexts) {
  const PartiesForm form;
  EXPECT_EQ(form.caption, "Parti");
  EXPECT_EQ(form.lblTitolo,
            "Nella pagina web le informazioni riguardanti le parti sono cifrate. E' possibile "
            "modificare queste informazioni per una corretta importazione della pratica in "
            "Praxion.");
  EXPECT_EQ(form.frameAttore, "Attore");
  EXPECT_EQ(form.lblAttore, "Cognome e nome dell'Attore");
  EXPECT_EQ(form.lblAttoreDifensore, "Cognome e nome del Difensore");
  EXPECT_EQ(form.frameConvenuto, "Convenuto");
  EXPECT_EQ(form.lblConvenuto, "Cognome e nome del Convenuto");
  EXPECT_EQ(form.lblConvenutoDifensore, "Cognome e nome del Difensore");
}

TEST(PartiesDialog, ShowsTheNamesOfThePage) {
  PartiesFixture parties;
  parties.Show([] {});
  EXPECT_EQ(parties.BoxTexts(), (Texts{"R****** M****", "F**** N***", "C***** DI C***", ""}));
  EXPECT_EQ(parties.form.filledByPage, (std::array<bool, 4>{true, true, true, false}));
}

TEST(PartiesDialog, ReadsAKeyThatThePageDoesNotHoldAsEmpty) {
  PartiesFixture parties;
  parties.page.cDatiFasc.Clear();
  parties.Show([] {});
  EXPECT_EQ(parties.BoxTexts(), (Texts{"", "", "", ""}));
  EXPECT_EQ(parties.form.filledByPage, (std::array<bool, 4>{}));
}

TEST(PartiesDialog, CountsANameOfBlanksAsNotGivenAndShowsItAsItIs) {
  PartiesFixture parties;
  parties.Forget("Convenuto");
  parties.page.cDatiFasc.Add("   ", "Convenuto");
  parties.Show([] {});
  EXPECT_EQ(parties.form.boxes[kDefendantBox].text, "   ");
  EXPECT_FALSE(parties.form.filledByPage[kDefendantBox]);
}

TEST(PartiesDialog, IsOpenWhileItIsShownWithTheFocusInTheFirstBox) {
  PartiesFixture parties;
  bool open = false;
  Texts events;
  parties.Show([&] {
    open = parties.form.open;
    events = parties.desktop.events;
  });
  EXPECT_TRUE(open);
  EXPECT_EQ(events, (Texts{"SetFocus txtAttore"}));
  EXPECT_FALSE(parties.form.open);
  EXPECT_EQ(parties.dialogs.shown, (Texts{"ShowParties"}));
}

TEST(PartiesDialog, TakesTextForItsOwnBoxesAlone) {
  PartiesFixture parties;
  EXPECT_TRUE(parties.dialog.Type("txtConvenutoDifensore", "NERI"));
  EXPECT_FALSE(parties.dialog.Type("txtAltro", "NERI"));
  EXPECT_EQ(parties.BoxTexts(), (Texts{"", "", "", "NERI"}));
}

TEST(PartiesDialog, ShownAgainForgetsWhatWasTypedAndLeft) {
  PartiesFixture parties;
  parties.Show([&] { parties.Type({"A", "B", "C", "D"}); });
  parties.Show([] {});
  EXPECT_EQ(parties.BoxTexts(), (Texts{"R****** M****", "F**** N***", "C***** DI C***", ""}));
}

// --- validation ---------------------------------------------------------------------------------

TEST(PartiesValidation, AsksForTheClearedPlaintiffAndReturnsTheFocus) {
  PartiesFixture parties;
  bool open = false;
  parties.Show([&] {
    parties.dialog.Type("txtAttore", "");
    parties.dialog.cmdOk_Click();
    open = parties.form.open;
  });
  EXPECT_EQ(parties.boxes.shown, (std::vector<BoxText>{Missing(kAskPlaintiff)}));
  EXPECT_EQ(parties.desktop.events, (Texts{"SetFocus txtAttore", "SetFocus txtAttore"}));
  EXPECT_TRUE(open);
}

TEST(PartiesValidation, GoesFromThePlaintiffToTheDefendantsCounsel) {
  PartiesFixture parties;
  parties.Forget("DifConvenuto");
  parties.page.cDatiFasc.Add("D**** V****", "DifConvenuto");
  parties.Show([&] {
    parties.Type({"", "", "", ""});
    for (const char* box :
         {"txtAttore", "txtAttoreDifensore", "txtConvenuto", "txtConvenutoDifensore"}) {
      parties.dialog.cmdOk_Click();
      parties.dialog.Type(box, "NOME");
    }
    parties.dialog.cmdOk_Click();
  });
  EXPECT_EQ(parties.boxes.shown,
            (std::vector<BoxText>{Missing(kAskPlaintiff), Missing(kAskPlaintiffCounsel),
                                  Missing(kAskDefendant), Missing(kAskDefendantCounsel)}));
  EXPECT_EQ(parties.desktop.events,
            (Texts{"SetFocus txtAttore", "SetFocus txtAttore", "SetFocus txtAttoreDifensore",
                   "SetFocus txtConvenuto", "SetFocus txtConvenutoDifensore"}));
  EXPECT_EQ(parties.page.cDatiFasc.Item("DifConvenuto"), "NOME");
}

TEST(PartiesValidation, CountsBlanksAsMissing) {
  PartiesFixture parties;
  parties.Confirm({"ROSSI", "NERI", "   ", ""});
  EXPECT_EQ(parties.boxes.shown, (std::vector<BoxText>{Missing(kAskDefendant)}));
}

TEST(PartiesValidation, ThatFailsStoresAndOffersNothing) {
  PartiesFixture parties;
  const Texts before = parties.Values();
  parties.Confirm({"ROSSI", "NERI", "", "VERDI"});
  EXPECT_EQ(parties.Values(), before);
  EXPECT_TRUE(parties.offered.empty());
}

TEST(PartiesValidation, LetsABoxStayBlankThatWasBlankOnThePage) {
  PartiesFixture parties;
  parties.Confirm({"ROSSI MARIO", "NERI UGO", "BIANCHI ADA", ""});
  EXPECT_TRUE(parties.boxes.shown.empty());
  EXPECT_FALSE(parties.form.open);
  EXPECT_EQ(parties.page.cDatiFasc.Item("DifConvenuto"), "");
  EXPECT_EQ(parties.page.cDatiFasc.Item("ParteConvenuta"), "BIANCHI ADA");
}

// --- OK -----------------------------------------------------------------------------------------

TEST(PartiesConfirmed, AreStoredAsTypedAndComposedTrimmedInThisOrder) {
  PartiesFixture parties;
  parties.page.cDatiFasc.Add("Multa", "Oggetto");
  parties.Confirm({"  ROSSI MARIO ", " NERI UGO  ", "BIANCHI ADA ", "  VERDI IDA"});
  EXPECT_EQ(parties.Values(),
            (Texts{"Oggetto=Multa", "Attore=  ROSSI MARIO ", "DifAttore= NERI UGO  ",
                   "Convenuto=BIANCHI ADA ", "DifConvenuto=  VERDI IDA",
                   "ParteAttrice=ROSSI MARIO rappresentato/a da NERI UGO",
                   "ParteConvenuta=BIANCHI ADA rappresentato/a da VERDI IDA"}));
}

TEST(PartiesConfirmed, AreOfferedAsTypedPlaintiffFirst) {
  PartiesFixture parties;
  parties.Confirm({" ROSSI MARIO", "NERI UGO ", "BIANCHI ADA", ""});
  EXPECT_EQ(parties.offered, (Parties{{" ROSSI MARIO", "NERI UGO "}, {"BIANCHI ADA", ""}}));
}

TEST(PartiesConfirmed, ReplaceTheTextsThatThePageGave) {
  PartiesFixture parties;
  parties.page.cDatiFasc.Add("R****** M**** rappresentato/a da F**** N***", "ParteAttrice");
  parties.page.cDatiFasc.Add("C***** DI C***", "PARTECONVENUTA");
  parties.Confirm({"ROSSI MARIO", "NERI UGO", "BIANCHI ADA", ""});
  EXPECT_EQ(parties.page.cDatiFasc.Count(), 6U);
  EXPECT_EQ(parties.page.cDatiFasc.Item("ParteAttrice"), "ROSSI MARIO rappresentato/a da NERI UGO");
  EXPECT_EQ(parties.page.cDatiFasc.Item("ParteConvenuta"), "BIANCHI ADA");
}

TEST(PartiesConfirmed, AddKeysThatThePageDoesNotHold) {
  PartiesFixture parties;
  parties.page.cDatiFasc.Clear();
  parties.Confirm({"ROSSI MARIO", "", "", ""});
  EXPECT_EQ(parties.Values(),
            (Texts{"Attore=ROSSI MARIO", "DifAttore=", "Convenuto=", "DifConvenuto=",
                   "ParteAttrice=ROSSI MARIO", "ParteConvenuta="}));
}

TEST(PartiesConfirmed, WithCounselButNoPartyHaveAnEmptyText) {
  PartiesFixture parties;
  parties.page.cDatiFasc.Clear();
  parties.Confirm({"", "NERI UGO", "", ""});
  EXPECT_EQ(parties.page.cDatiFasc.Item("ParteAttrice"), "");
}

// Whether there is a party is asked of the text as typed, not trimmed.
TEST(PartiesConfirmed, WithAPartyOfBlanksNameTheCounselAlone) {
  PartiesFixture parties;
  parties.page.cDatiFasc.Clear();
  parties.Confirm({"  ", "NERI UGO", "", ""});
  EXPECT_EQ(parties.page.cDatiFasc.Item("ParteAttrice"), " rappresentato/a da NERI UGO");
}

TEST(PartiesConfirmed, WithCounselOfBlanksNameThePartyAlone) {
  PartiesFixture parties;
  parties.Confirm({"ROSSI MARIO", "NERI UGO", "BIANCHI ADA", "   "});
  EXPECT_EQ(parties.page.cDatiFasc.Item("ParteConvenuta"), "BIANCHI ADA");
}

TEST(PartiesConfirmed, WhoseTextTheOfficeMapsToNoFieldAreKeptUnderTheirOwnKeysAlone) {
  PartiesFixture parties;
  parties.mappings.cOrdexMap.Remove("Opponente/Ricorrente:");
  parties.Confirm({"ROSSI MARIO", "NERI UGO", "BIANCHI ADA", ""});
  EXPECT_EQ(parties.Values(),
            (Texts{"Attore=ROSSI MARIO", "DifAttore=NERI UGO", "Convenuto=BIANCHI ADA",
                   "DifConvenuto=", "ParteConvenuta=BIANCHI ADA"}));
  EXPECT_FALSE(parties.form.open);
}

TEST(PartiesConfirmed, WhoseDelimiterTextIsMissingAreKeptUnderTheirOwnKeysAlone) {
  PartiesFixture parties;
  parties.mappings.cDelimitatori.Remove("DELGDP9");
  parties.Confirm({"ROSSI MARIO", "NERI UGO", "BIANCHI ADA", ""});
  EXPECT_EQ(parties.Values(),
            (Texts{"Attore=ROSSI MARIO", "DifAttore=NERI UGO", "Convenuto=BIANCHI ADA",
                   "DifConvenuto=", "ParteAttrice=ROSSI MARIO rappresentato/a da NERI UGO"}));
}

TEST(PartiesConfirmed, CloseTheDialog) {
  PartiesFixture parties;
  bool open = true;
  parties.Show([&] {
    parties.dialog.cmdOk_Click();
    open = parties.form.open;
  });
  EXPECT_FALSE(open);
}

// --- closed without OK --------------------------------------------------------------------------

TEST(PartiesClosed, StoreAndOfferNothing) {
  PartiesFixture parties;
  const Texts before = parties.Values();
  parties.Show([&] {
    parties.Type({"ROSSI MARIO", "", "BIANCHI ADA", "VERDI IDA"});
    parties.dialog.Close();
  });
  EXPECT_EQ(parties.Values(), before);
  EXPECT_TRUE(parties.offered.empty());
  EXPECT_TRUE(parties.boxes.shown.empty());
  EXPECT_FALSE(parties.form.open);
}

}  // namespace
}  // namespace ordex::testing
