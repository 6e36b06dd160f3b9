#include "base/keyed_table.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <optional>
#include <random>
#include <string>
#include <utility>
#include <vector>

#include "raised.h"

namespace ordex {
namespace {

using testing::ElementsAre;
using testing::Pair;

std::vector<std::pair<std::string, std::string>> Listed(const KeyedTable& table) {
  std::vector<std::pair<std::string, std::string>> list;
  for (const KeyedTable::Entry& entry : table.Entries()) list.emplace_back(entry.key, entry.value);
  return list;
}

KeyedTable ThreeSections() {
  KeyedTable table;
  table.Add("uno", "Prima");
  table.Add("due", "Seconda");
  table.Add("tre", "Terza");
  return table;
}

TEST(KeyedTable, KeepsTheOrderInWhichEntriesWereAdded) {
  KeyedTable table;
  table.Add("z", "Zeta");
  table.Add("a", "Alfa");
  table.Add("m");
  EXPECT_EQ(table.Count(), 3U);
  EXPECT_EQ(table.At(1).value, "z");
  EXPECT_EQ(table.At(2).value, "a");
  EXPECT_EQ(table.At(3).value, "m");
}

TEST(KeyedTable, AnEntryKeepsItsKeyAsItWasWritten) {
  KeyedTable table;
  table.Add("1", "DataIscrizione");
  table.Add("2");
  EXPECT_THAT(Listed(table), ElementsAre(Pair("DataIscrizione", "1"), Pair("", "2")));
}

TEST(KeyedTable, LooksUpIgnoringLetterCase) {
  KeyedTable table;
  table.Add("x", "NumeroRegGenerale");
  EXPECT_EQ(table.Item("numeroreggenerale"), "x");
  EXPECT_EQ(table.Item("NUMEROREGGENERALE"), "x");
  EXPECT_TRUE(ItemExists(table, "nUMEROrEGgENERALE"));
}

TEST(KeyedTable, LooksUpIgnoringTheCaseOfAccentedLetters) {
  KeyedTable table;
  table.Add("x", "È già Così");
  table.Add("y", "ŁÓDŹ ȘTEFAN");
  EXPECT_EQ(table.Item("è GIÀ cosÌ"), "x");
  EXPECT_EQ(table.Item("łódź ștefan"), "y");
  EXPECT_FALSE(ItemExists(table, "E gia Cosi"));
}

TEST(KeyedTable, AKeyWhoseFoldedFormIsAsciiIsFoundByIt) {
  KeyedTable table;
  table.Add("kelvin", "\xE2\x84\xAA");  // the Kelvin sign, whose lower case is the letter k
  EXPECT_EQ(table.Item("k"), "kelvin");
  EXPECT_EQ(table.Item("K"), "kelvin");
}

TEST(KeyedTable, BytesThatAreNoUtf8AreAKeyLikeAnother) {
  KeyedTable table;
  table.Add("x", "Attivit\xE0");
  EXPECT_EQ(table.Item("ATTIVIT\xE0"), "x");
  EXPECT_FALSE(ItemExists(table, "Attivit\xC0"));
}

TEST(KeyedTable, CharactersThatAreNoLettersAreToldApart) {
  // Each pair differs in the one bit that tells small letters from capitals.
  const std::vector<std::pair<std::string, std::string>> pairs = {
      {"@", "`"},    {"[", "{"}, {"\\", "|"}, {"]", "}"}, {"^", "~"}, {" ", std::string(1, '\0')},
      {"0", "\x10"}, {"×", "÷"}};
  for (const auto& [one, other] : pairs) {
    for (const std::string& filler :
         {std::string(), std::string("sette__"), std::string(20, 'x')}) {
      KeyedTable table;
      table.Add("x", filler + one);
      EXPECT_FALSE(ItemExists(table, filler + other)) << filler << one;
      EXPECT_TRUE(ItemExists(table, filler + one));
    }
  }
}

TEST(KeyedTable, KeysThatDifferInOneCharacterAreDifferentEntriesWhateverTheirLength) {
  KeyedTable table;
  std::vector<std::string> keys;
  for (std::size_t length = 1; length <= 40; ++length) {
    keys.emplace_back(length, 'a');
    for (std::size_t at = 0; at < length; ++at) {
      keys.emplace_back(length, 'a');
      keys.back()[at] = 'b';
    }
  }
  for (const std::string& key : keys) table.Add(key, key);
  for (const std::string& key : keys) {
    std::string capitals = key;
    for (char& letter : capitals) letter = letter == 'a' ? 'A' : 'B';
    EXPECT_EQ(table.Item(capitals), key);
  }
}

TEST(KeyedTable, TwoKeysThatWereMadeToHaveTheSameHashAreToldApart) {
  KeyedTable table;
  table.Add("x", "data di 5wib5rr9");
  EXPECT_FALSE(ItemExists(table, "dmtvvmbkx5-4x4g6"));
  table.Add("y", "dmtvvmbkx5-4x4g6");
  EXPECT_EQ(table.Item("Data di 5wib5rr9"), "x");
  EXPECT_EQ(table.Item("DMTVVMBKX5-4X4G6"), "y");
}

TEST(KeyedTable, AKeyIsNotFoundByItsBeginningOrByMoreThanItself) {
  KeyedTable table;
  table.Add("x", "Data di notifica");
  EXPECT_FALSE(ItemExists(table, "Data di notific"));
  EXPECT_FALSE(ItemExists(table, "Data di notifica "));
  EXPECT_FALSE(ItemExists(table, " Data di notifica"));
  EXPECT_FALSE(ItemExists(table, ""));
}

TEST(KeyedTable, AddingAnExistingKeyIsAnErrorAndChangesNothing) {
  KeyedTable table = ThreeSections();
  EXPECT_EQ(RaisedBy([&] { table.Add("altro", "Seconda"); }),
            (Raised{457, "Chiave già presente: \"Seconda\""}));
  EXPECT_THAT(Listed(table),
              ElementsAre(Pair("Prima", "uno"), Pair("Seconda", "due"), Pair("Terza", "tre")));
  EXPECT_EQ(table.Item("Seconda"), "due");
}

TEST(KeyedTable, AddingAnExistingKeyInOtherLetterCaseIsAnError) {
  KeyedTable table;
  table.Add("x", "Perché");
  EXPECT_EQ(RaisedBy([&] { table.Add("y", "PERCHÉ"); }),
            (Raised{457, "Chiave già presente: \"PERCHÉ\""}));
  EXPECT_EQ(table.Count(), 1U);
}

TEST(KeyedTable, ReadingAMissingKeyIsAnErrorThatNamesIt) {
  const KeyedTable table = ThreeSections();
  EXPECT_EQ(RaisedBy([&] { (void)table.Item("Quarta"); }),
            (Raised{5, "Chiave non trovata: \"Quarta\""}));
}

TEST(KeyedTable, ReadingTheEmptyKeyIsAMissingKeyAlsoWhereAnEntryHasNone) {
  KeyedTable table;
  table.Add("senza chiave");
  EXPECT_EQ(RaisedBy([&] { (void)table.Item(""); }).number, 5);
  EXPECT_EQ(table.Lookup(""), nullptr);
}

TEST(KeyedTable, EntriesWithoutAKeyMayBeMany) {
  KeyedTable table;
  table.Add("uno");
  table.Add("due");
  EXPECT_EQ(table.Count(), 2U);
  EXPECT_EQ(table.At(2).value, "due");
}

TEST(KeyedTable, APositionOutsideTheTableIsASubscriptError) {
  const KeyedTable table = ThreeSections();
  EXPECT_EQ(RaisedBy([&] { (void)table.At(0); }),
            (Raised{9, "Indice non incluso nell'intervallo: 0"}));
  EXPECT_EQ(RaisedBy([&] { (void)table.At(4); }),
            (Raised{9, "Indice non incluso nell'intervallo: 4"}));
  EXPECT_EQ(RaisedBy([] { (void)KeyedTable().At(1); }).number, 9);
}

TEST(KeyedTable, RemovingMovesTheEntriesBehindOnePositionDown) {
  KeyedTable table = ThreeSections();
  table.Remove("PRIMA");
  EXPECT_EQ(table.Count(), 2U);
  EXPECT_EQ(table.At(1).value, "due");
  EXPECT_EQ(table.At(2).value, "tre");
  EXPECT_EQ(RaisedBy([&] { (void)table.At(3); }).number, 9);
  EXPECT_FALSE(ItemExists(table, "Prima"));
  EXPECT_EQ(table.Item("Terza"), "tre");
}

TEST(KeyedTable, RemovingAMissingKeyIsAnErrorAndChangesNothing) {
  KeyedTable table = ThreeSections();
  EXPECT_EQ(RaisedBy([&] { table.Remove("Quarta"); }),
            (Raised{5, "Chiave non trovata: \"Quarta\""}));
  EXPECT_EQ(RaisedBy([&] { table.Take("Quarta"); }).number, 5);
  EXPECT_EQ(table.Count(), 3U);
}

TEST(KeyedTable, TakingGivesTheValueAndRemovesTheEntry) {
  KeyedTable table = ThreeSections();
  EXPECT_EQ(table.Take("seconda"), "due");
  EXPECT_THAT(Listed(table), ElementsAre(Pair("Prima", "uno"), Pair("Terza", "tre")));
}

TEST(KeyedTable, AnEntryRemovedAndAddedAgainStandsAtTheEnd) {
  KeyedTable table = ThreeSections();
  table.Add(table.Take("Prima") + "; altro", "prima");
  EXPECT_THAT(Listed(table), ElementsAre(Pair("Seconda", "due"), Pair("Terza", "tre"),
                                         Pair("prima", "uno; altro")));
}

TEST(KeyedTable, AnEntryMovedToTheEndTakesTheKeyAsItIsWrittenNowAndItsValueCanBeBuiltOn) {
  KeyedTable table = ThreeSections();
  std::string* value = table.MoveToEnd("PRIMA");
  ASSERT_NE(value, nullptr);
  value->append("; altro");
  EXPECT_THAT(Listed(table), ElementsAre(Pair("Seconda", "due"), Pair("Terza", "tre"),
                                         Pair("PRIMA", "uno; altro")));
  EXPECT_EQ(table.Item("prima"), "uno; altro");
  EXPECT_EQ(table.Count(), 3U);
}

TEST(KeyedTable, MovingTheLastEntryToTheEndLeavesItThere) {
  KeyedTable table = ThreeSections();
  EXPECT_EQ(*table.MoveToEnd("Terza"), "tre");
  EXPECT_THAT(Listed(table),
              ElementsAre(Pair("Prima", "uno"), Pair("Seconda", "due"), Pair("Terza", "tre")));
}

TEST(KeyedTable, MovingAnAbsentKeyToTheEndGivesNullAndChangesNothing) {
  KeyedTable table = ThreeSections();
  EXPECT_EQ(table.MoveToEnd("Quarta"), nullptr);
  EXPECT_EQ(table.Count(), 3U);
}

TEST(KeyedTable, AnEntryOfTheTableMayBeNamedByItsOwnKey) {
  KeyedTable table = ThreeSections();
  EXPECT_EQ(table.Take(table.At(2).key), "due");
  table.Remove(table.At(1).key);
  EXPECT_THAT(Listed(table), ElementsAre(Pair("Terza", "tre")));
}

TEST(KeyedTable, AKeyMayBeATextThatLivesInTheTableItself) {
  KeyedTable table;
  table.Add("Sezione");
  table.Add("x", table.At(1).value);
  EXPECT_EQ(table.At(2).key, "Sezione");
  EXPECT_EQ(table.Item("sezione"), "x");
}

TEST(KeyedTable, LookupGivesNullWhereTheKeyIsAbsent) {
  const KeyedTable table = ThreeSections();
  EXPECT_EQ(table.Lookup("Quarta"), nullptr);
  ASSERT_NE(table.Lookup("terza"), nullptr);
  EXPECT_EQ(*table.Lookup("terza"), "tre");
}

TEST(KeyedTable, ItemExistsRaisesNoError) {
  const KeyedTable table = ThreeSections();
  EXPECT_TRUE(ItemExists(table, "PRIMA"));
  EXPECT_FALSE(ItemExists(table, "Quarta"));
  EXPECT_FALSE(ItemExists(table, ""));
}

TEST(KeyedTable, AnEmptyValueIsAValue) {
  KeyedTable table;
  table.Add("", "DifAttore");
  EXPECT_TRUE(ItemExists(table, "DifAttore"));
  EXPECT_EQ(table.Item("DifAttore"), "");
}

TEST(KeyedTable, ACopyIsIndependent) {
  KeyedTable table = ThreeSections();
  KeyedTable copy = table;
  copy.Remove("Prima");
  copy.Add("quattro", "Quarta");
  EXPECT_EQ(table.Item("Prima"), "uno");
  EXPECT_FALSE(ItemExists(table, "Quarta"));
  EXPECT_EQ(copy.Item("seconda"), "due");
}

TEST(KeyedTable, ATableAssignedFromAnotherOutlivesIt) {
  KeyedTable copy;
  copy.Add("vecchio", "Vecchia");
  {
    const KeyedTable table = ThreeSections();
    copy = table;
  }
  EXPECT_FALSE(ItemExists(copy, "Vecchia"));
  EXPECT_EQ(*copy.MoveToEnd("PRIMA"), "uno");
  EXPECT_EQ(copy.Take("seconda"), "due");
  EXPECT_THAT(Listed(copy), ElementsAre(Pair("Terza", "tre"), Pair("PRIMA", "uno")));
}

TEST(KeyedTable, AMovedTableKeepsItsEntriesAndTakesNewOnes) {
  KeyedTable table = ThreeSections();
  KeyedTable moved = std::move(table);
  moved.Add("quattro", "Quarta");
  moved.Remove("PRIMA");
  EXPECT_THAT(Listed(moved),
              ElementsAre(Pair("Seconda", "due"), Pair("Terza", "tre"), Pair("Quarta", "quattro")));
  moved = ThreeSections();
  EXPECT_EQ(moved.Item("prima"), "uno");
  EXPECT_FALSE(ItemExists(moved, "Quarta"));
}

TEST(KeyedTable, AClearedTableIsEmptyAndUsable) {
  KeyedTable table = ThreeSections();
  table.Remove("Prima");
  table.Clear();
  EXPECT_EQ(table.Count(), 0U);
  EXPECT_FALSE(ItemExists(table, "Seconda"));
  EXPECT_TRUE(table.Entries().empty());
  table.Add("nuovo", "Seconda");
  EXPECT_EQ(table.At(1).value, "nuovo");
}

// The same table, told as simply as possible: a list that is searched from its start. A key is a
// number here, so that the model need not know what letter case is.
struct Model {
  struct Entry {
    std::optional<std::size_t> key;
    std::string value;
  };

  std::vector<Entry> entries;

  std::vector<Entry>::iterator Place(std::size_t key) {
    return std::find_if(entries.begin(), entries.end(),
                        [&](const Entry& entry) { return entry.key == key; });
  }
};

// Each key in three spellings that are the same key.
constexpr std::size_t kSpellings = 3;
const std::vector<std::vector<std::string>>& ModelKeys() {
  static const std::vector<std::vector<std::string>> keys = {
      {"Attore", "ATTORE", "attore"},
      {"È", "è", "È"},
      {"Data di iscrizione a ruolo", "DATA DI ISCRIZIONE A RUOLO", "data Di Iscrizione a ruolo"},
      {"Data di iscrizione a ruoli", "DATA DI ISCRIZIONE A RUOLI", "data Di Iscrizione a ruoli"},
      {"Attività istruttoria", "ATTIVITÀ ISTRUTTORIA", "attivitÀ ISTRUTTORIA"},
      {"x", "X", "x"},
      {"12345678", "12345678", "12345678"},
      {"dupd", "DUPD", "DuPd"},
  };
  return keys;
}

void ExpectSame(const KeyedTable& table, Model& model) {
  ASSERT_EQ(table.Count(), model.entries.size());
  const auto listed = table.Entries();
  ASSERT_EQ(listed.size(), model.entries.size());
  for (std::size_t i = 0; i < model.entries.size(); ++i) {
    ASSERT_EQ(table.At(i + 1).value, model.entries[i].value);
    ASSERT_EQ(listed[i].value, model.entries[i].value);
  }
  ASSERT_EQ(RaisedBy([&] { (void)table.At(model.entries.size() + 1); }).number, 9);
  for (std::size_t key = 0; key < ModelKeys().size(); ++key) {
    const auto place = model.Place(key);
    for (const std::string& spelling : ModelKeys()[key]) {
      const std::string* value = table.Lookup(spelling);
      ASSERT_EQ(value != nullptr, place != model.entries.end()) << spelling;
      if (value != nullptr) {
        ASSERT_EQ(*value, place->value);
      }
    }
  }
}

void AddToBoth(KeyedTable& table, Model& model, std::optional<std::size_t> key,
               const std::string& spelling, const std::string& value) {
  const bool repeated = key && model.Place(*key) != model.entries.end();
  const Raised raised = RaisedBy([&] { table.Add(value, spelling); });
  ASSERT_EQ(raised.number, repeated ? 457 : 0);
  if (!repeated) model.entries.push_back({key, value});
}

void TakeFromBoth(KeyedTable& table, Model& model, std::size_t key, const std::string& spelling) {
  const auto place = model.Place(key);
  if (place == model.entries.end()) {
    ASSERT_EQ(RaisedBy([&] { table.Take(spelling); }).number, 5);
    return;
  }
  ASSERT_EQ(table.Take(spelling), place->value);
  model.entries.erase(place);
}

void MoveInBoth(KeyedTable& table, Model& model, std::size_t key, const std::string& spelling) {
  const auto place = model.Place(key);
  std::string* value = table.MoveToEnd(spelling);
  ASSERT_EQ(value != nullptr, place != model.entries.end());
  if (value == nullptr) return;
  ASSERT_EQ(*value, place->value);
  *value += "+";
  place->value += "+";
  std::rotate(place, place + 1, model.entries.end());
}

TEST(KeyedTableProperties, BehavesLikeAListSearchedFromItsStart) {
  std::mt19937 random(7);
  const auto below = [&](std::size_t limit) {
    return std::uniform_int_distribution<std::size_t>(0, limit - 1)(random);
  };
  for (int run = 0; run < 20; ++run) {
    KeyedTable table;
    Model model;
    for (int step = 0; step < 300; ++step) {
      const std::size_t key = below(ModelKeys().size());
      const std::string& spelling = ModelKeys()[key][below(kSpellings)];
      const std::string value = std::to_string(run) + "." + std::to_string(step);
      const std::size_t act = below(10);
      if (act == 0) {
        AddToBoth(table, model, std::nullopt, "", value);
      } else if (act < 4) {
        AddToBoth(table, model, key, spelling, value);
      } else if (act < 8) {
        MoveInBoth(table, model, key, spelling);
      } else {
        TakeFromBoth(table, model, key, spelling);
      }
      ExpectSame(table, model);
      if (testing::Test::HasFatalFailure()) return;
    }
  }
}

TEST(KeyedTableProperties, ManyEntriesTakenInAnyOrderLeaveTheOthersInTheirs) {
  std::mt19937 random(8);
  constexpr std::size_t kCount = 2000;
  KeyedTable table;
  std::vector<std::size_t> order(kCount);
  for (std::size_t i = 0; i < kCount; ++i) {
    table.Add(std::to_string(i), "Chiave " + std::to_string(i));
    order[i] = i;
  }
  std::shuffle(order.begin(), order.end(), random);
  std::vector<bool> taken(kCount, false);
  for (std::size_t i = 0; i < kCount * 9 / 10; ++i) {
    ASSERT_EQ(table.Take("CHIAVE " + std::to_string(order[i])), std::to_string(order[i]));
    taken[order[i]] = true;
  }
  std::vector<std::string> left;
  for (std::size_t i = 0; i < kCount; ++i) {
    if (!taken[i]) left.push_back(std::to_string(i));
    ASSERT_EQ(ItemExists(table, "chiave " + std::to_string(i)), !taken[i]);
  }
  std::vector<std::string> values;
  for (const auto& entry : table.Entries()) values.push_back(entry.value);
  EXPECT_EQ(values, left);
}

}  // namespace
}  // namespace ordex
