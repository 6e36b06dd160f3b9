// The three files that are shipped hold all that the rules of the pages ask for.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "import_bench.h"
#include "parse/mapping_files.h"
#include "support/temp_folder.h"

namespace ordex::testing {
namespace {

class ShippedMapping : public ::testing::Test {
 protected:
  ShippedMapping() {
    LocateMappings(mappings_, folder_.path());
    LoadRestr(mappings_);
    LoadOrdexMap(mappings_);
    LoadDelimitatori(mappings_);
  }

  TempProgramFolder folder_;
  Mappings mappings_;
};

TEST_F(ShippedMapping, NamesTheFourPageKindsInTheirFixedOrder) {
  EXPECT_EQ(ValuesOf(mappings_.cRestr),
            (NamedValues{{"Profilo", "profilo del fascicolo - dati generali"},
                         {"Storico", "storico del fascicolo - elenco eventi"},
                         {"Agenda", "agenda dell'avvocato - impegni del periodo"},
                         {"GiudicePace", "giudice di pace - scheda del procedimento"}}));
}

TEST_F(ShippedMapping, HasEveryDelimiterThatThePageRulesAskFor) {
  const std::vector<std::string> keys = {
      "DELPF1",   "DELPF2",   "DELPF3",   "DELPF4",   "DELPF6",   "DELPF7",  "DELPF8",
      "TESTO1",   "TESTO2",   "TESTO3",   "TESTO4",   "DELSF1",   "DELSF2",  "DELSF3",
      "DELSF4",   "DELSF5",   "DELSF6",   "DELSF7",   "DELSF8",   "DELSF9",  "DELSF10",
      "DELAV1",   "DELAV2",   "DELAV3",   "DELAV4",   "DELAV5",   "DELAV6",  "DELGDP1",
      "DELGDP2",  "DELGDP3",  "DELGDP4",  "DELGDP5",  "DELGDP6",  "DELGDP8", "DELGDP9",
      "DELGDP10", "DELGDP11", "DELGDP12", "DELGDP13", "DELGDP14", "DELGDP15"};
  for (const std::string& key : keys) EXPECT_TRUE(ItemExists(mappings_.cDelimitatori, key)) << key;
  EXPECT_EQ(mappings_.cDelimitatori.Count(), keys.size());
}

TEST_F(ShippedMapping, MapsTheCaseNumbersDelimiterToTheRegisterNumber) {
  EXPECT_EQ(mappings_.cOrdexMap.Item(mappings_.cDelimitatori.Item("DELPF1")), "NumeroRegGenerale");
}

TEST_F(ShippedMapping, MapsEveryPartyLabel) {
  for (const char* key : {"DELPF7", "DELPF8", "TESTO1", "TESTO2", "TESTO3", "TESTO4"}) {
    EXPECT_TRUE(ItemExists(mappings_.cOrdexMap, mappings_.cDelimitatori.Item(key))) << key;
  }
}

TEST_F(ShippedMapping, MapsTheTwoHearingLabels) {
  EXPECT_EQ(mappings_.cOrdexMap.Item("Ultima udienza"), "DUUd");
  EXPECT_EQ(mappings_.cOrdexMap.Item("Prossima udienza"), "DPUd");
}

// The recognition text becomes the name of the page file.
TEST_F(ShippedMapping, HasNoRecognitionTextThatCannotBeAFileName) {
  for (const KeyedTable::Entry& entry : mappings_.cRestr.Entries()) {
    EXPECT_EQ(entry.value.find_first_of("/\\:*?\"<>|"), std::string::npos) << entry.value;
  }
}

}  // namespace
}  // namespace ordex::testing
